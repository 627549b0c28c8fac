// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/mvxml_export.h"

#include <QMap>
#include <QString>

class QDomElement;

/// A text that a file gives in several languages: the attribute "name" holds it in German, "name_en" in English, and so
/// on for any ISO 639 code. It is shown in the program's language.
class MVXML_EXPORT MvLocalizedText
{
public:
    MvLocalizedText() = default;
    /// One text for all languages; none when it is empty.
    explicit MvLocalizedText(const QString &text);

    /// Replaces what was there by the element's attributes "<key>" and "<key>_<language>"; empty ones do not count.
    void read(const QDomElement &element, const QString &key);
    /// Writes the attributes that read() took.
    void write(QDomElement &element, const QString &key) const;

    bool isEmpty() const { return m_texts.isEmpty(); }
    /// In the program's language (MvTranslations::language()), else in German, else in any.
    QString text() const;
    /// In this language alone; empty where the file gives none.
    QString text(const QString &language) const;
    /// Whether it reads so in one of its languages, in capitals or not.
    bool isAnyOf(const QString &text) const;

    friend bool operator==(const MvLocalizedText &, const MvLocalizedText &) = default;

private:
    QMap<QString, QString> m_texts; // by language
};
