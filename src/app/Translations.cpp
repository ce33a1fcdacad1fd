// SPDX-License-Identifier: GPL-3.0-or-later
#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

Translations::Translations(const QStringList& languages)
{
    for (const QString& language : languages) {
        // What is liked less than English is not wanted, although English has no catalogue that could be found.
        if (QLocale(language).language() == QLocale::English || load(language))
            return;
    }
}

bool Translations::load(const QString& language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::C || !m_own.load(locale, u"pellory"_s, u"_"_s, u":/i18n"_s))
        return false;
    // The last one that is installed is asked first.
    if (m_toolkit.load(locale, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
    QCoreApplication::installTranslator(&m_own);
    return true;
}
