// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoFrame.h"

#include <QString>
#include <QStringList>

/// The words of project files, for their reader and their writer.
namespace MvProjectVocabulary {

constexpr int version = 1;
constexpr int mostMonths = 1200;

inline const QString root = QStringLiteral("calendarproject");
inline const QString versionKey = QStringLiteral("version");
inline const QString titleKey = QStringLiteral("title");
inline const QString authorKey = QStringLiteral("author");
// of a recovered document
inline const QString originalKey = QStringLiteral("original");
inline const QString originalStampKey = QStringLiteral("originalstamp");

inline const QString paper = QStringLiteral("paper");
inline const QString widthKey = QStringLiteral("width");
inline const QString heightKey = QStringLiteral("height");
inline const QString bleedKey = QStringLiteral("bleed");

inline const QString range = QStringLiteral("range");
inline const QString firstKey = QStringLiteral("first");
inline const QString lastKey = QStringLiteral("last");

inline const QString page = QStringLiteral("page");
inline const QString monthKey = QStringLiteral("month");
inline const QString monthFormat = QStringLiteral("yyyy-MM");

inline const QString calendarium = QStringLiteral("calendarium");
inline const QString layoutKey = QStringLiteral("layoutschema");
inline const QString colorsKey = QStringLiteral("colorschema"); // also of an element
inline const QString weeksKey = QStringLiteral("showcalendarweeks");
inline const QString gridKey = QStringLiteral("showgrid");
// of a page's appearance, to name them
inline const QString offsetMonthKey = QStringLiteral("offsetmonth");
inline const QString fontSizeKey = QStringLiteral("fontsize_percentage");
inline const QString holidayFontSizeKey = QStringLiteral("fontsize_percentage_holiddays");
inline const QString letterSpacingKey = QStringLiteral("font-letter-spacing");
inline const QString renderingKey = QStringLiteral("renderinfo");

inline const QString content = QStringLiteral("content");
inline const QString languageKey = QStringLiteral("language");
inline const QString regionKey = QStringLiteral("region");
inline const QString featuresKey = QStringLiteral("features");
inline const QString weekHeadKey = QStringLiteral("weekhead");
inline const QString weekTextKey = QStringLiteral("weektext");

inline const QString foto = QStringLiteral("photo");
inline const QString spareFoto = QStringLiteral("sparephoto");
inline const QString pathKey = QStringLiteral("path");
inline const QString placementKey = QStringLiteral("placement");
inline const QString shareKey = QStringLiteral("share");
inline const QString focusXKey = QStringLiteral("focusx");
inline const QString focusYKey = QStringLiteral("focusy");

/// In the order of MvFotoFrame::Placement.
inline const QStringList placements = {QStringLiteral("top"), QStringLiteral("left"), QStringLiteral("right")};

} // namespace MvProjectVocabulary
