// SPDX-License-Identifier: GPL-3.0-or-later
#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

Translations::Translations(const QStringList& languages)
{
    for (const QString& language : languages) {
        // The texts are in English already, so English needs no catalogue and ends the search.
        if (QLocale(language).language() == QLocale::English || load(language))
            return;
    }
}

bool Translations::load(const QString& language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::C || !m_own.load(locale, u"pellory"_s, u"_"_s, u":/i18n"_s))
        return false;
    // The translator installed last is asked first.
    if (m_toolkit.load(locale, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
    QCoreApplication::installTranslator(&m_own);
    return true;
}
