// SPDX-License-Identifier: LGPL-2.1-or-later
#include "start/MvRecentCalendars.h"

#include "common/MvStudioSettings.h"
#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvProjectFile.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(150, 112); // logical pixels
constexpr int longestName = 40;

} // namespace

MvRecentCalendars::MvRecentCalendars(QWidget *parent)
    : MvPictureList(
          pictureSize, [this](int row, const QSize &sheet, double ratio) { return makePage(row, sheet, ratio); },
          parent)
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Background, this))
{
    setObjectName(u"recentCalendars"_s);
    setAccessibleName(tr("Zuletzt geöffnete Kalender"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setWholeHeight(true);
    connect(m_fotos, &MvScreenFotos::loaded, this, &MvRecentCalendars::onFotoLoaded);
    const auto choose = [this](const QListWidgetItem *item) {
        if (isVisible()) // a double click is two clicks
            Q_EMIT chosen(idOf(row(item)));
    };
    connect(this, &QListWidget::itemClicked, this, choose);
    connect(this, &QListWidget::itemActivated, this, choose);
}

MvRecentCalendars::~MvRecentCalendars() = default;

void MvRecentCalendars::look()
{
    clear();
    m_fotos->clear();
    m_rowsOfFotos.clear();
    for (const QString &path : MvStudioSettings::recentFiles()) {
        if (count() < most && QFileInfo(path).isFile())
            addPicture(path, MvPrintableText::inShort(QFileInfo(path).completeBaseName(), longestName),
                       QDir::toNativeSeparators(path));
    }
    renew();
}

/// Files have sheets of all proportions: each stands in the middle of its picture.
QImage MvRecentCalendars::makePage(int row, const QSize &sheet, double ratio)
{
    const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(idOf(row)));
    if (!content.isOk() || content.document.pages().isEmpty())
        return {};
    const MvCalendarDocument &document = content.document;
    const MvCalendarPage &page = document.pages().constFirst();
    for (const QString &path : page.fotoPaths())
        m_rowsOfFotos[path].insert(row);
    const QSize size = document.format().trimSize().scaled(sheet, Qt::KeepAspectRatio).toSize();
    QImage image(sheet * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawImage(QPointF(sheet.width() - size.width(), sheet.height() - size.height()) / 2.0,
                      MvPageThumbnail::make(page, document.format(), document.context(), size, ratio, m_fotos, {}));
    return image;
}

void MvRecentCalendars::onFotoLoaded(const QString &path)
{
    for (const int row : m_rowsOfFotos.value(path))
        renew(row);
}
