// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

/// Translates our texts and the toolkit's for as long as it lives. Nothing is loaded for English, in which the texts
/// are written, and for languages without a catalogue.
class Translations {
public:
    /// `languages` are names of locales such as "de-AT", in order of preference.
    explicit Translations(const QStringList& languages);

private:
    [[nodiscard]] bool load(const QString& language);

    QTranslator m_toolkit;
    QTranslator m_own;
};
