// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <memory>

class QSocketNotifier;

/// Reports that something in a folder, or else a file or a symbolic link itself, was made, replaced, changed or
/// removed. What a link to a file points to is not followed. Without inotify it reports nothing.
class PathWatch : public QObject {
    Q_OBJECT

public:
    /// The path must be absolute. While nothing exists there, the nearest folder above is watched instead.
    explicit PathWatch(const QByteArray& path, QObject* parent = nullptr);
    ~PathWatch() override;

Q_SIGNALS:
    /// Once for changes in quick succession.
    void changed();

private:
    void renewWatch();

    QByteArray m_path;
    int m_inotify;
    int m_watch = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_debounce{this};
};
