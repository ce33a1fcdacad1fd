// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordJob.h"

#include "RecordContents.h"
#include "RecordCsv.h"
#include "RecordPdf.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <utility>

namespace {

/// Less than this is not enough for any record.
constexpr qint64 leastSpace = 1 << 20;

/// Whether the path is that of a folder or a device, which the record would replace.
bool isFolderOrDevice(const QString& path)
{
    const QFileInfo present(path);
    return present.exists() && !present.isFile();
}

QString problemOf(const QSaveFile& file)
{
    const QString folder = QFileInfo(file.fileName()).absolutePath();
    if (!QFileInfo(folder).isDir())
        return RecordJob::tr("The folder is not there any more. Choose another one.");
    if (isFolderOrDevice(file.fileName()))
        return RecordJob::tr("There is already a folder or a device with this name. Choose another name.");
    if (file.error() == QFileDevice::OpenError || file.error() == QFileDevice::PermissionsError) {
        if (!QFileInfo(folder).isWritable() || QFileInfo(file.fileName()).exists())
            return RecordJob::tr("Pellory may not write there. Choose another folder or name.");
    }
    const qint64 available = QStorageInfo(folder).bytesAvailable();
    if (available >= 0 && available < leastSpace)
        return RecordJob::tr("The disk is full. Choose another folder, or delete files that you do not need any more.");
    return RecordJob::tr("The disk did not take the file. Choose another folder.");
}

} // namespace

RecordJob::RecordJob(QObject* parent)
    : QObject(parent)
{
}

void RecordJob::start(const RecordContents& contents, const RecordForm& form, const QString& path)
{
    m_isRunning = true;
    m_thread = std::jthread([this, contents, form, path](const std::stop_token& stop) {
        const auto report = [this](Outcome outcome, const QString& reason) {
            QMetaObject::invokeMethod(
                this, [this, outcome, reason] { end(outcome, reason); }, Qt::QueuedConnection);
        };
        QSaveFile file(path);
        if (isFolderOrDevice(path) || !file.open(QIODevice::WriteOnly))
            return report(Outcome::Failed, problemOf(file));
        int told = 0;
        const auto progress = [&](int percent) {
            if (percent > std::exchange(told, percent)) {
                QMetaObject::invokeMethod(
                    this, [this, percent] { Q_EMIT progressed(percent); }, Qt::QueuedConnection);
            }
            return !stop.stop_requested() && file.error() == QFileDevice::NoError;
        };
        const auto write = form.format == RecordForm::Format::Csv ? writeRecordCsv : writeRecordPdf;
        const bool isWhole = write(contents, form, file, progress);
        if (!isWhole && stop.stop_requested())
            return report(Outcome::Stopped, {});
        const bool isSaved = isWhole && file.flush() && file.commit(); // which would not say that the disk is full
        report(isSaved ? Outcome::Saved : Outcome::Failed, isSaved ? QString() : problemOf(file));
    });
}

void RecordJob::end(Outcome outcome, const QString& reason)
{
    m_isRunning = false;
    switch (outcome) {
    case Outcome::Saved:
        Q_EMIT saved();
        break;
    case Outcome::Failed:
        Q_EMIT failed(reason);
        break;
    case Outcome::Stopped:
        Q_EMIT stopped();
        break;
    }
}
