// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvLayoutChooser.h"

#include "pages/MvPageThumbnail.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoPass.h"
#include "common/MvPictureList.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Layouts that are only a part of a page, such as the line with the month, are not offered.
bool isWholePage(const MvCalendariumLayoutSchema &schema)
{
    return schema.calendariumType().traits().hasDayCells;
}

} // namespace

MvLayoutChooser::MvLayoutChooser(QWidget *parent, const QSize &pictureSize)
    : QWidget(parent)
    , m_list(new MvPictureList(
          pictureSize, [this](int row, const QSize &sheet, double ratio) { return makePage(row, sheet, ratio); }, this))
    , m_description(new QLabel(this))
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
{
    m_list->setObjectName(u"layoutList"_s);
    m_list->setAccessibleName(tr("Layouts"));
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata())
        if (isWholePage(schema))
            m_list->addPicture(schema.ID().toString(), schema.name(), schema.description());
    m_description->setWordWrap(true);
    m_description->setObjectName(u"layoutDescription"_s);
    m_description->setMinimumHeight(2 * m_description->fontMetrics().lineSpacing());
    m_description->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_list, 1);
    column->addWidget(m_description);

    connect(m_entryFotos, &MvFotoPages::arrived, this, [this](int row) { m_list->renew(row); });
    connect(m_list, &QListWidget::currentRowChanged, this, [this] {
        describeCurrent();
        Q_EMIT layoutIdChanged();
    });
    connect(m_list, &QListWidget::itemActivated, this, &MvLayoutChooser::activated);
    setFocusProxy(m_list);
}

MvLayoutChooser::~MvLayoutChooser() = default;

void MvLayoutChooser::setDocument(const MvCalendarDocument &document)
{
    m_document = MvCalendarDocument();
    m_document.setAppearance(document.appearance());
    m_document.setHolidayConfig(document.holidayConfig());
    m_document.setFormat(document.format());
    const QDate start = document.range().start();
    m_document.setRange({start, start.addMonths(12).addDays(-1)});
    m_list->setPaper(document.format().trimSize());
    m_list->renew();
    if (!layoutId().isValid())
        setLayoutId(document.appearance().layoutSchema().ID());
}

MvCalendariumLayoutSchemaID MvLayoutChooser::layoutId() const
{
    const QString id = m_list->currentId();
    return id.isEmpty() ? MvCalendariumLayoutSchemaID() : MvCalendariumLayoutSchemaID(id);
}

void MvLayoutChooser::setLayoutId(const MvCalendariumLayoutSchemaID &id)
{
    m_list->setCurrentId(id.toString());
}

MvCalendariumAppearance MvLayoutChooser::withLayout(const MvCalendariumAppearance &appearance,
                                                    const MvCalendariumLayoutSchemaID &id)
{
    MvCalendariumAppearance changed = appearance;
    changed.setLayoutSchemaByID(id);
    changed.adoptLayoutSuggestions();
    changed.adaptGridToLayout();
    return changed;
}

QImage MvLayoutChooser::makePage(int row, const QSize &sheet, double ratio) const
{
    MvCalendarDocument document = m_document;
    document.setAppearance(withLayout(document.appearance(), MvCalendariumLayoutSchemaID(m_list->idOf(row))));
    if (document.pages().isEmpty())
        return {};
    MvFotoPass fotos(*m_entryFotos, row);
    MvRenderingSources sources;
    sources.fotos = &fotos;
    return MvPageThumbnail::make(document.pages().constFirst(), document.format(), document.context(), sheet, ratio,
                                 nullptr, sources);
}

void MvLayoutChooser::describeCurrent()
{
    const QListWidgetItem *item = m_list->currentItem();
    m_description->setText(item ? item->toolTip() : QString());
}
