// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StoredData.h"

#include <QObject>
#include <QTimer>

/// Answers searches of GNOME's overview (org.gnome.Shell.SearchProvider2) from a process of its own, which the bus
/// starts and which ends when nobody searches. It reads, and changes nothing: no window, no check, no new store.
class SearchProvider : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

public:
    explicit SearchProvider(StoredData::Place place);

    /// Serves until it is idle, and returns the exit status.
    [[nodiscard]] int run();

    // NOLINTBEGIN(readability-identifier-naming): names set by the interface
    Q_SCRIPTABLE Q_SLOT QStringList GetInitialResultSet(const QStringList& terms);
    Q_SCRIPTABLE Q_SLOT QStringList GetSubsearchResultSet(const QStringList& previous, const QStringList& terms);
    Q_SCRIPTABLE Q_SLOT QList<QVariantMap> GetResultMetas(const QStringList& results);
    Q_SCRIPTABLE Q_SLOT void ActivateResult(const QString& result, const QStringList& terms, uint time);
    Q_SCRIPTABLE Q_SLOT void LaunchSearch(const QStringList& terms, uint time);
    // NOLINTEND(readability-identifier-naming)

private:
    struct Result {
        QString id;
        QString name;
        QString description;
    };

    /// None without data.
    [[nodiscard]] QList<Result> results() const;
    [[nodiscard]] QVariantMap status() const;
    void openProgram() const;

    StoredData::Place m_place;
    QTimer m_idle;
};
