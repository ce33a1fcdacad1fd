// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Adds a month and settings to a store. Returns how many months it has then, or 0 if it is refused.
qsizetype monthsWithOneMore(const QString& path)
{
    try {
        ModelContainer container({.name = {}, .path = path});
        ModelContext& context = container.mainContext();
        const qsizetype months = context.fetchMonths().size();
        context.insert(std::make_shared<AppSettings>());
        context.insert(std::make_shared<Month>(2026, 1));
        if (!context.save())
            qFatal("What can be read cannot be written");
        return months + 1;
    } catch (const StoreError& error) {
        if (error.description().isEmpty())
            qFatal("It is refused without a reason");
        return 0;
    }
}

} // namespace

/// Puts a store into an empty corpus, whose folder is the last argument.
// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer looks for this name
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) // NOLINT(readability-identifier-naming)
{
    const QDir corpus(QString::fromLocal8Bit((*argv)[*argc - 1]));
    if (corpus.exists() && !corpus.exists(u"sample"_s))
        static_cast<void>(monthsWithOneMore(corpus.filePath(u"sample"_s)));
    return 0;
}

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer looks for this name
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data,
                                      std::size_t size) // NOLINT(readability-identifier-naming)
{
    static const QTemporaryDir folder(u"/dev/shm/pellory-XXXXXX"_s);
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QFile file(folder.filePath(u"Pellory.store"_s));
    if (!file.open(QFile::WriteOnly) || file.write(input) != input.size())
        qFatal("The store cannot be put there");
    file.close();
    const qsizetype months = monthsWithOneMore(file.fileName());
    if (months == 0 && (!file.open(QFile::ReadOnly) || file.readAll() != input))
        qFatal("A refused store has changed");
    if (months != 0 && monthsWithOneMore(file.fileName()) != months + 1)
        qFatal("What was written is missing");
    if (QDir(folder.path()).count() != 3) // with "." and ".."
        qFatal("A file is left beside the store");
    return 0;
}
