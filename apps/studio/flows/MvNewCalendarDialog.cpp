// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvNewCalendarDialog.h"

#include "common/MvDraggedFotos.h"
#include "common/MvStudioMessage.h"
#include "flows/MvFotoFlow.h"
#include "panels/MvCalendarKindChooser.h"
#include "panels/MvLayoutChooser.h"
#include "panels/MvPageSetupEditor.h"
#include "panels/MvRegionEditor.h"
#include "panels/MvThemeChooser.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvCalendarTitle.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kindSize(128, 84); // logical pixels
constexpr QSize lookSize(140, 105);
constexpr QSize usualSize(1040, 680);
constexpr int pictureDelay = 400; // milliseconds without changes before the pictures follow
constexpr int longestName = 30;

/// The fields of all forms in it begin at one edge.
void alignLabels(QWidget *column)
{
    QList<QWidget *> labels;
    int width = 0;
    for (auto *form : column->findChildren<QFormLayout *>()) {
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
            if (!item || !item->widget())
                continue;
            labels.append(item->widget());
            width = qMax(width, item->widget()->sizeHint().width());
        }
    }
    for (QWidget *label : labels)
        label->setMinimumWidth(width);
}

QLabel *heading(const QString &text, QWidget *list, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(list);
    return label;
}

} // namespace

MvNewCalendarDialog::MvNewCalendarDialog(const MvCalendarDraft &draft, QWidget *parent)
    : QDialog(parent)
    , m_draft(draft)
    , m_kinds(new MvCalendarKindChooser(kindSize, this))
    , m_looks(new QStackedWidget(this))
    , m_themes(new MvThemeChooser(lookSize, this))
    , m_layouts(new MvLayoutChooser(this, lookSize))
    , m_setup(new MvPageSetupEditor(this))
    , m_region(new MvRegionEditor(this))
    , m_title(new QLineEdit(this))
    , m_cover(new QCheckBox(tr("Titelblatt"), this))
    , m_back(new QCheckBox(tr("Rückseite"), this))
    , m_facing(new QCheckBox(tr("Fotos auf eigenen Seiten"), this))
    , m_fotos(new QLabel(this))
    , m_later(new QTimer(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"newProjectDialog"_s);
    setWindowTitle(tr("Neuer Kalender"));
    setAcceptDrops(true);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Kalender &anlegen"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->setSpacing(fontMetrics().height());
    row->addWidget(createLooks(), 1);
    row->addWidget(createSettings());
    auto *column = new QVBoxLayout(this);
    column->addLayout(row, 1);
    column->addWidget(buttons);
    resize(usualSize);

    m_later->setSingleShot(true);
    m_later->setInterval(pictureDelay);
    connect(m_later, &QTimer::timeout, this, &MvNewCalendarDialog::renewPictures);
    connect(m_setup, &MvPageSetupEditor::changed, m_later, qOverload<>(&QTimer::start));
    connect(m_setup, &MvPageSetupEditor::changed, this, &MvNewCalendarDialog::updateTitle);
    connect(m_region, &MvRegionEditor::countryChanged, this, &MvNewCalendarDialog::updateTitle);
    connect(m_kinds, &QListWidget::currentRowChanged, this,
            [this](int kind) { setKind(MvCalendarKindChooser::kindOf(qMax(0, kind))); });
    connect(m_themes, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(m_layouts, &MvLayoutChooser::activated, this, &QDialog::accept);
    renewPictures();
    m_kinds->setKind(draft.kind);
    setKind(draft.kind);
    m_themes->setCurrentId(draft.wanted.themeId);
    if (m_themes->currentRow() < 0)
        m_themes->setCurrentRow(0);
    updateTitle();
}

MvNewCalendarDialog::~MvNewCalendarDialog() = default;

QWidget *MvNewCalendarDialog::createLooks()
{
    auto *looks = new QWidget(this);
    m_themes->setObjectName(u"newThemes"_s);
    m_looks->addWidget(m_themes);
    m_looks->addWidget(m_layouts);
    m_kinds->setFixedHeight(m_kinds->gridSize().height() + 2 * m_kinds->frameWidth()); // one row
    auto *column = new QVBoxLayout(looks);
    column->setContentsMargins({});
    column->addWidget(heading(tr("A&rt des Kalenders:"), m_kinds, looks));
    column->addWidget(m_kinds);
    column->addWidget(heading(tr("Ge&staltung:"), m_looks, looks));
    column->addWidget(m_looks, 1);
    return looks;
}

/// In a column that scrolls where the screen is low, and is never cut at the side.
QWidget *MvNewCalendarDialog::createSettings()
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    m_form = new QFormLayout;
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addFotos(m_form);
    addCalendar(m_form);
    m_setup->setFormat(m_draft.wanted.format);
    m_setup->setRange(m_draft.wanted.range);
    if (m_draft.wanted.holidays)
        m_region->setConfig(*m_draft.wanted.holidays);
    column->addLayout(m_form);
    column->addWidget(m_setup);
    column->addWidget(m_region);
    column->addStretch(1);
    alignLabels(content);
    auto *area = new QScrollArea(this);
    area->setObjectName(u"newSettings"_s);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    area->setWidget(content);
    area->setFixedWidth(content->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

void MvNewCalendarDialog::addCalendar(QFormLayout *form)
{
    m_title->setObjectName(u"newTitle"_s);
    m_cover->setObjectName(u"newCover"_s);
    m_back->setObjectName(u"newBack"_s);
    m_cover->setChecked(m_draft.wanted.hasCover);
    m_back->setChecked(m_draft.wanted.hasBack);
    m_facing->setObjectName(u"newFacing"_s);
    m_facing->setChecked(m_draft.wanted.hasFacingPages);
    m_facing->setToolTip(tr("Vor jedem Monat eine Seite für sein Foto, die über ihm hängt"));
    form->addRow(tr("T&itel:"), m_title);
    m_extras = new QWidget(this);
    auto *row = new QHBoxLayout;
    row->addWidget(m_cover);
    row->addWidget(m_back);
    row->addStretch(1);
    auto *rows = new QVBoxLayout(m_extras);
    rows->setContentsMargins({});
    rows->addLayout(row);
    rows->addWidget(m_facing);
    form->addRow(tr("Dazu:"), m_extras);
}

void MvNewCalendarDialog::addFotos(QFormLayout *form)
{
    m_fotoRow = new QWidget(this);
    m_fotos->setObjectName(u"newPhotos"_s);
    m_fotos->setTextFormat(Qt::PlainText);
    m_fotos->setWordWrap(true);
    auto *folder = new QPushButton(tr("&Ordner wählen …"), m_fotoRow);
    folder->setObjectName(u"newFolder"_s);
    auto *files = new QPushButton(tr("&Fotos wählen …"), m_fotoRow);
    files->setObjectName(u"newFiles"_s);
    const auto take = [this](const QStringList &paths) { setFotoPaths(paths); };
    connect(folder, &QPushButton::clicked, this, [this, take] { MvFotoFlow::askForPaths(this, true, take); });
    connect(files, &QPushButton::clicked, this, [this, take] { MvFotoFlow::askForPaths(this, false, take); });
    auto *buttons = new MvFlowLayout;
    for (QPushButton *button : {folder, files}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto *column = new QVBoxLayout(m_fotoRow);
    column->setContentsMargins({});
    column->addWidget(m_fotos);
    column->addLayout(buttons);
    form->addRow(tr("Fotos:"), m_fotoRow);
    setFotoPaths({});
}

void MvNewCalendarDialog::setFotoPaths(const QStringList &paths)
{
    m_paths = paths;
    const QString name = MvPrintableText::inShort(QFileInfo(paths.value(0)).fileName(), longestName);
    if (paths.isEmpty())
        m_fotos->setText(tr("Noch keine; sie lassen sich auch hierher ziehen."));
    else if (paths.size() > 1)
        m_fotos->setText(tr("„%1“ und %n weitere", nullptr, int(paths.size()) - 1).arg(name));
    else
        m_fotos->setText(QFileInfo(paths.constFirst()).isDir() ? tr("Ordner „%1“").arg(name) : u"„%1“"_s.arg(name));
}

void MvNewCalendarDialog::setKind(MvCalendarKind kind)
{
    const bool isPlanner = kind == MvCalendarKind::Planner;
    m_looks->setCurrentWidget(isPlanner ? static_cast<QWidget *>(m_layouts) : m_themes);
    m_form->setRowVisible(m_fotoRow, !isPlanner);
    m_form->setRowVisible(m_extras, !isPlanner);
    m_facing->setVisible(kind == MvCalendarKind::Fotos);
}

/// The pictures show the paper and the first month that are chosen.
void MvNewCalendarDialog::renewPictures()
{
    MvCalendarDraft sample = draft();
    sample.wanted.hasCover = sample.wanted.hasBack = sample.wanted.hasFacingPages = false;
    sample.kind = MvCalendarKind::Fotos;
    m_themes->setDocument(sample.make());
    sample.kind = MvCalendarKind::Planner;
    m_layouts->setDocument(sample.make());
}

/// What the calendar is called unless somebody says otherwise.
void MvNewCalendarDialog::updateTitle()
{
    m_title->setPlaceholderText(MvCalendarTitle::ofRange(m_setup->range(), m_region->config().language()));
}

MvCalendarDraft MvNewCalendarDialog::draft() const
{
    MvCalendarDraft draft = m_draft;
    draft.kind = m_kinds->kind();
    draft.layout = m_layouts->layoutId();
    MvNewCalendar &wanted = draft.wanted;
    wanted.range = m_setup->range();
    wanted.format = m_setup->format();
    wanted.holidays = m_region->config();
    wanted.hasCover = m_cover->isChecked();
    wanted.hasBack = m_back->isChecked();
    wanted.hasFacingPages = draft.kind == MvCalendarKind::Fotos && m_facing->isChecked();
    wanted.themeId = m_themes->currentId().isEmpty() ? m_draft.wanted.themeId : m_themes->currentId();
    const QString title = m_title->text().trimmed();
    wanted.title = title.isEmpty() ? MvCalendarTitle::ofRange(wanted.range, m_region->config().language()) : title;
    return draft;
}

QStringList MvNewCalendarDialog::fotoPaths() const
{
    return m_kinds->kind() == MvCalendarKind::Planner ? QStringList() : m_paths;
}

void MvNewCalendarDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_kinds->kind() != MvCalendarKind::Planner && MvDraggedFotos::areIn(event->mimeData()))
        event->acceptProposedAction();
}

void MvNewCalendarDialog::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    setFotoPaths(MvDraggedFotos::paths(event->mimeData()));
}
