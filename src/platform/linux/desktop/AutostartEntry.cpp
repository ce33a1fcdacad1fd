// SPDX-License-Identifier: GPL-3.0-or-later
#include "AutostartEntry.h"

#include "PathWatch.h"
#include "PlatformError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Escapes twice: as a quoted argument, and as a string in a desktop file.
QString quoted(QString argument)
{
    for (const QChar special : uR"(\"`$)"_s)
        argument.replace(special, u'\\' + QString(special));
    argument.replace(u'%', "%%"_L1);
    argument.replace(u'\\', uR"(\\)"_s).replace(u'\n', uR"(\n)"_s);
    return u'"' + argument + u'"';
}

bool makeFolder(const QString& path)
{
    return QDir(path).exists() || (makeFolder(QFileInfo(path).path()) &&
                                   QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

} // namespace

AutostartEntry AutostartEntry::ofThisProgram(const QString& sandboxMark)
{
    if (!QFile::exists(sandboxMark))
        return {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                {QCoreApplication::applicationFilePath()}};
    return {qEnvironmentVariable("HOST_XDG_CONFIG_HOME", QDir::homePath() + u"/.config"_s),
            {u"flatpak"_s, u"run"_s, u"io.github.pellory.Pellory"_s}};
}

bool AutostartEntry::isEnabled() const
{
    QFile file(m_path);
    if (!file.open(QFile::ReadOnly))
        return false;
    bool isInGroup = false, hasGroup = false;
    for (const QByteArray& text : file.readAll().split('\n')) {
        const QByteArray line = text.simplified().replace(" =", "=").replace("= ", "=");
        if (line.startsWith('['))
            isInGroup = line == "[Desktop Entry]";
        else if (isInGroup && (line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false"))
            return false;
        hasGroup = hasGroup || isInGroup;
    }
    return hasGroup;
}

void AutostartEntry::watch(QObject& owner, const std::function<void()>& changed)
{
    auto* watch = new PathWatch(QFile::encodeName(m_folder), &owner);
    QObject::connect(watch, &PathWatch::changed, &owner, changed);
}

void AutostartEntry::registerItem()
{
    if (!makeFolder(m_folder))
        throw PlatformError(qt_error_string());
    QStringList arguments = m_command;
    for (QString& argument : arguments)
        argument = quoted(argument);
    const QString entry = u"[Desktop Entry]\nType=Application\nName=Pellory\nIcon=io.github.pellory.Pellory\n"
                          "Exec=%1 --at-login\nTerminal=false\nStartupNotify=false\n"_s.arg(arguments.join(u' '));
    QSaveFile file(m_path);
    // commit() would not say that the disk is full.
    if (!file.open(QFile::WriteOnly) || file.write(entry.toUtf8()) < 0 || !file.flush() || !file.commit())
        throw PlatformError(file.errorString());
}

void AutostartEntry::unregisterItem()
{
    if (unlink(QFile::encodeName(m_path).constData()) != 0 && errno != ENOENT)
        throw PlatformError(qt_error_string());
}
