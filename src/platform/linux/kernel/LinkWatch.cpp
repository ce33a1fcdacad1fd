// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkWatch.h"

#include <QSocketNotifier>

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

using namespace std::chrono_literals;

LinkWatch::LinkWatch(const QByteArray& path)
    : m_path(path)
    , m_inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_inotify < 0)
        return;
    // A link may be removed before its successor is made.
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(500ms);
    connect(&m_debounce, &QTimer::timeout, this, [this] {
        addWatch(); // the old one was of the old link
        Q_EMIT changed();
    });
    m_notifier = std::make_unique<QSocketNotifier>(m_inotify, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::array<char, 4096> events{};
        while (read(m_inotify, events.data(), events.size()) > 0)
            m_debounce.start();
    });
    addWatch();
}

LinkWatch::~LinkWatch()
{
    m_notifier.reset();
    if (m_inotify >= 0)
        close(m_inotify);
}

void LinkWatch::addWatch() const
{
    inotify_add_watch(m_inotify, m_path.constData(), IN_DONT_FOLLOW | IN_DELETE_SELF | IN_MOVE_SELF | IN_CLOSE_WRITE);
}
