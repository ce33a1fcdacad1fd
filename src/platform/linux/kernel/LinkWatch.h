// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <memory>

class QSocketNotifier;

/// Reports that a symbolic link, or a file, was replaced or changed; what the link points to is not followed. Without
/// inotify it reports nothing.
class LinkWatch : public QObject {
    Q_OBJECT

public:
    explicit LinkWatch(const QByteArray& path);
    ~LinkWatch() override;

Q_SIGNALS:
    /// Once for changes in quick succession.
    void changed();

private:
    void addWatch() const;

    QByteArray m_path;
    int m_inotify;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_debounce{this};
};
