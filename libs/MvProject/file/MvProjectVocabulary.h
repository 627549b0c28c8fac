// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoFrame.h"

#include <QList>
#include <QString>
#include <QStringList>

/// The words of project files, for their reader and their writer.
namespace MvProjectVocabulary {

/// Of the user's folder: where unsaved work lies.
inline const QString recoveryFolder = QStringLiteral("recovery");

/// What this program writes and reads; a document that needs nothing newer is written as the first.
constexpr int firstVersion = 1;
constexpr int version = 2;
constexpr int mostMonths = 1200;

inline const QString root = QStringLiteral("calendarproject");
inline const QString versionKey = QStringLiteral("version");
inline const QString titleKey = QStringLiteral("title");
inline const QString authorKey = QStringLiteral("author");
// of a recovered document
inline const QString originalKey = QStringLiteral("original");
inline const QString originalStampKey = QStringLiteral("originalstamp");

inline const QString entriesKey = QStringLiteral("entries");
inline const QString themeKey = QStringLiteral("theme");

inline const QString paper = QStringLiteral("paper");
inline const QString widthKey = QStringLiteral("width");
inline const QString heightKey = QStringLiteral("height");
inline const QString bleedKey = QStringLiteral("bleed");

inline const QString bindingKey = QStringLiteral("binding");
inline const QString bindingZoneKey = QStringLiteral("bindingzone");
inline const QString safeMarginKey = QStringLiteral("safemargin");

inline const QString range = QStringLiteral("range");
inline const QString firstKey = QStringLiteral("first");
inline const QString lastKey = QStringLiteral("last");

inline const QString page = QStringLiteral("page");
inline const QString monthKey = QStringLiteral("month");
inline const QString monthFormat = QStringLiteral("yyyy-MM");

inline const QString kindKey = QStringLiteral("kind"); // also of an element
inline const QString templateKey = QStringLiteral("template");
inline const QString arrangementKey = QStringLiteral("arrangement");
inline const QString freeArrangement = QStringLiteral("free");
inline const QString sparePage = QStringLiteral("sparepage");

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
inline const QString hiddenGroupsKey = QStringLiteral("hiddengroups");
inline const QString entryTextKey = QStringLiteral("entrytext");
inline const QString entryTimesKey = QStringLiteral("entrytimes");

inline const QString foto = QStringLiteral("photo");
inline const QString spareFoto = QStringLiteral("sparephoto");
inline const QString pathKey = QStringLiteral("path");
inline const QString placementKey = QStringLiteral("placement");
inline const QString shareKey = QStringLiteral("share");
inline const QString focusXKey = QStringLiteral("focusx");
inline const QString focusYKey = QStringLiteral("focusy");

inline const QString fitKey = QStringLiteral("fit");
inline const QString zoomKey = QStringLiteral("zoom");
inline const QString turnsKey = QStringLiteral("turns");
inline const QString straighteningKey = QStringLiteral("straightening");
inline const QString brightnessKey = QStringLiteral("brightness");
inline const QString contrastKey = QStringLiteral("contrast");
inline const QString borderWidthKey = QStringLiteral("borderwidth");
inline const QString borderColorKey = QStringLiteral("bordercolor");
inline const QString captionKey = QStringLiteral("caption");

inline const QString element = QStringLiteral("element");
inline const QString spareElement = QStringLiteral("spareelement");
inline const QString slotKey = QStringLiteral("slot");
inline const QString xKey = QStringLiteral("x");
inline const QString yKey = QStringLiteral("y");
inline const QString rotationKey = QStringLiteral("rotation");
inline const QString onFotoKey = QStringLiteral("onphoto");
// of a text
inline const QString textKey = QStringLiteral("text");
inline const QString fotoSlotKey = QStringLiteral("photoslot");
inline const QString fontKey = QStringLiteral("font");
inline const QString pointsKey = QStringLiteral("points");
inline const QString weightKey = QStringLiteral("weight");
inline const QString italicKey = QStringLiteral("italic");
inline const QString capitalsKey = QStringLiteral("capitals");
inline const QString spacingKey = QStringLiteral("letterspacing");
inline const QString colorKey = QStringLiteral("color"); // also of a background
inline const QString accentKey = QStringLiteral("accent");
inline const QString horizontalKey = QStringLiteral("horizontal");
inline const QString verticalKey = QStringLiteral("vertical");
// of a calendarium
inline const QString layoutIdKey = QStringLiteral("layout");
inline const QString monthsAheadKey = QStringLiteral("monthsahead");
inline const QString monthLineKey = QStringLiteral("monthline");

inline const QString background = QStringLiteral("background");
inline const QString veilKey = QStringLiteral("veil");

inline const QString pool = QStringLiteral("photopool");
inline const QString capturedKey = QStringLiteral("captured");
inline const QString interestKey = QStringLiteral("interest");

/// In the order of MvPageKind.
inline const QStringList pageKinds = {QStringLiteral("month"), QStringLiteral("cover"), QStringLiteral("free"),
                                      QStringLiteral("back")};
/// In the order of MvPageElement::Kind.
inline const QStringList elementKinds = {QStringLiteral("photo"), QStringLiteral("text"),
                                         QStringLiteral("calendarium")};
/// In the order of MvFotoElement::Fit.
inline const QStringList fits = {QStringLiteral("fill"), QStringLiteral("whole")};
/// From left to right, and from top to bottom.
inline const QStringList horizontals = {QStringLiteral("left"), QStringLiteral("center"), QStringLiteral("right")};
inline const QStringList verticals = {QStringLiteral("top"), QStringLiteral("center"), QStringLiteral("bottom")};
inline const QList<Qt::Alignment> horizontalFlags = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
inline const QList<Qt::Alignment> verticalFlags = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};

/// In the order of MvFotoFrame::Placement.
inline const QStringList placements = {QStringLiteral("top"), QStringLiteral("left"), QStringLiteral("right")};

} // namespace MvProjectVocabulary
