// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QScopeGuard>

#include <gmock/gmock.h>

#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Where a QTemporaryDir has its files in memory, if it can: thousands of saves would wait for the disk.
inline const QString inMemory =
    (QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm"_s : QDir::tempPath()) + u"/pellory-XXXXXX"_s;

/// Shows the strings of a failed comparison.
inline void PrintTo(const QString& string, std::ostream* out) // NOLINT(readability-identifier-naming)
{
    *out << '"' << string.toStdString() << '"';
}

/// The locale of the tests. Its formats are the same in all versions of Qt, unlike those of the C locale.
[[nodiscard]] inline QLocale testLocale()
{
    QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

/// Puts another locale in the place of the tests' own for a scope.
[[nodiscard]] inline auto scopedLocale(const QLocale& locale)
{
    QLocale::setDefault(locale);
    return qScopeGuard([] { QLocale::setDefault(testLocale()); });
}

/// Root may write everywhere: while this lives, a process of root has the rights of an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser()
    {
        constexpr unsigned nobody = 65534;
        if (m_wasRoot && (setresgid(nobody, nobody, 0) != 0 || setresuid(nobody, nobody, 0) != 0))
            qFatal("The rights of root cannot be dropped");
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0))
            qFatal("The rights of root cannot be taken again");
        prctl(PR_SET_DUMPABLE, 1); // lost with a change of the user; the leak checker needs it
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    const bool m_wasRoot = geteuid() == 0;
};
