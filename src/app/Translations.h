// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

/// The texts in the person's language, ours and the toolkit's, for as long as this lives. English, in which they are
/// written, and a language that they are not translated to load nothing.
class Translations {
public:
    /// `languages` are names of locales such as "de-AT", the one that is liked best first.
    explicit Translations(const QStringList& languages);

private:
    [[nodiscard]] bool load(const QString& language);

    QTranslator m_toolkit;
    QTranslator m_own;
};
