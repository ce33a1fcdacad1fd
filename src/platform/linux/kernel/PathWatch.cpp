// SPDX-License-Identifier: GPL-3.0-or-later
#include "PathWatch.h"

#include <QSocketNotifier>

#include <array>
#include <cstdint>
#include <sys/inotify.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t ofItself = IN_CLOSE_WRITE | IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t ofContents = IN_CREATE | IN_DELETE | IN_MOVE;

int addWatch(int inotify, const QByteArray& path)
{
    const int folder = inotify_add_watch(inotify, path.constData(), IN_ONLYDIR | ofItself | ofContents);
    return folder >= 0 ? folder : inotify_add_watch(inotify, path.constData(), IN_DONT_FOLLOW | ofItself);
}

} // namespace

PathWatch::PathWatch(const QByteArray& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
    , m_inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_inotify < 0)
        return;
    // A link may be removed before its successor is made.
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(500ms);
    connect(&m_debounce, &QTimer::timeout, this, [this] {
        renewWatch(); // the old one was of the old link
        Q_EMIT changed();
    });
    m_notifier = std::make_unique<QSocketNotifier>(m_inotify, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::array<char, 4096> events{};
        while (read(m_inotify, events.data(), events.size()) > 0)
            m_debounce.start();
    });
    renewWatch();
}

PathWatch::~PathWatch()
{
    m_notifier.reset();
    if (m_inotify >= 0)
        close(m_inotify);
}

void PathWatch::renewWatch()
{
    const int before = m_watch;
    QByteArray path = m_path;
    while ((m_watch = addWatch(m_inotify, path)) < 0 && !path.isEmpty())
        path.truncate(path.lastIndexOf('/'));
    if (m_watch != before && before >= 0)
        inotify_rm_watch(m_inotify, before);
}
