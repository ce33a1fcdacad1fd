// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordForm.h"

#include <QObject>

#include <thread>

struct RecordContents;

/// Saves a record, one at a time, in a thread of its own. The file gets its name once it is whole; whatever goes wrong,
/// what was there stays. A record that is being saved when this is destroyed is abandoned.
class RecordJob : public QObject {
    Q_OBJECT

public:
    explicit RecordJob(QObject* parent = nullptr);

    /// Ends with saved(), failed() or stopped().
    void start(const RecordContents& contents, const RecordForm& form, const QString& path);
    void stop() { m_thread.request_stop(); }
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    void progressed(int percent);
    void saved();
    /// `reason` is in words for the person.
    void failed(const QString& reason);
    void stopped();

private:
    enum class Outcome { Saved, Failed, Stopped };
    void end(Outcome outcome, const QString& reason);

    bool m_isRunning = false;
    std::jthread m_thread;
};
