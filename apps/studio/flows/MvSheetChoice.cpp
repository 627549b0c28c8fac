// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvSheetChoice.h"

#include "MvProject/MvPageFormat.h"
#include "common/MvStudioSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double tenths = 10.0; // of a millimetre
constexpr double mostOverlap = 60.0;

/// What is chosen: the number of pages on a sheet, or one of these.
enum Kind { OwnSheets = 1, Tiles = 0 };

} // namespace

MvSheetChoice::MvSheetChoice(QWidget *parent)
    : QWidget(parent)
    , m_kind(new QComboBox(this))
    , m_paper(new QComboBox(this))
    , m_overlap(new QDoubleSpinBox(this))
    , m_isForCutting(new QCheckBox(tr("Zum S&chneiden, in Stapeln"), this))
    , m_isTwoSided(new QCheckBox(tr("Be&idseitig"), this))
    , m_twoSidedReason(new QLabel(tr("nur zum Schneiden"), this))
    , m_reason(new QLabel(this))
    , m_details(createDetails())
{
    m_kind->setObjectName(u"exportSheets"_s);
    m_kind->addItem(tr("Jede Seite auf ein eigenes Blatt"), OwnSheets);
    m_kind->addItem(tr("Auf mehrere Blätter verteilen (Kacheln)"), Tiles);
    m_kind->addItem(tr("Zwei Seiten auf ein Blatt"), 2);
    m_kind->addItem(tr("Vier Seiten auf ein Blatt"), 4);
    m_kind->setToolTip(tr("Für den Drucker zu Hause: große Seiten aus mehreren Blättern zum Zusammenkleben, oder "
                          "mehrere Seiten auf einem Blatt"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_kind);
    column->addWidget(m_details);
    column->addWidget(m_reason);
    m_reason->setObjectName(u"exportSheetsReason"_s);
    m_reason->hide();
    connect(m_kind, &QComboBox::currentIndexChanged, this, &MvSheetChoice::showDetails);
    for (QComboBox *box : {m_kind, m_paper})
        connect(box, &QComboBox::currentIndexChanged, this, &MvSheetChoice::changed);
    connect(m_overlap, &QDoubleSpinBox::valueChanged, this, &MvSheetChoice::changed);
    connect(m_isForCutting, &QCheckBox::toggled, this, &MvSheetChoice::showDetails);
    for (QCheckBox *box : {m_isForCutting, m_isTwoSided})
        connect(box, &QCheckBox::toggled, this, &MvSheetChoice::changed);
    showDetails();
}

QWidget *MvSheetChoice::createDetails()
{
    auto *details = new QWidget(this);
    m_paper->setObjectName(u"exportPaper"_s);
    m_paper->setAccessibleName(tr("Papier des Druckers"));
    for (const QString &name : {u"A4"_s, u"A3"_s, u"A5"_s, u"Letter"_s, u"Legal"_s, u"Tabloid"_s})
        m_paper->addItem(MvPageFormat::label(name), name);
    m_paper->setCurrentIndex(std::max(0, m_paper->findData(MvStudioSettings::text(u"export/paper"_s, u"A4"_s))));
    m_overlap->setObjectName(u"exportOverlap"_s);
    m_overlap->setRange(0.0, mostOverlap);
    m_overlap->setDecimals(0);
    m_overlap->setSuffix(tr(" mm"));
    m_overlap->setPrefix(tr("Überlappung "));
    m_overlap->setAccessibleName(tr("Überlappung der Kacheln"));
    m_overlap->setValue(MvSheetSettings().overlap / tenths);
    m_isForCutting->setObjectName(u"exportCutting"_s);
    m_isForCutting->setToolTip(
        tr("Mit Schnittmarken; die geschnittenen Stapel ergeben aufeinandergelegt den Kalender"));
    m_isTwoSided->setObjectName(u"exportTwoSided"_s);
    m_isTwoSided->setToolTip(tr("Die nächste Seite auf der Rückseite: Drucken Sie beidseitig, wie es unten steht"));
    m_isTwoSided->setChecked(MvStudioSettings::text(u"export/twoSided"_s) == u"1");
    auto *row = new QHBoxLayout(details);
    row->setContentsMargins({});
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_paper, m_overlap, m_isForCutting, m_isTwoSided, m_twoSidedReason})
        row->addWidget(widget);
    row->addStretch(1);
    return details;
}

void MvSheetChoice::showDetails()
{
    const int kind = m_kind->currentData().toInt();
    m_details->setVisible(kind != OwnSheets);
    m_overlap->setVisible(kind == Tiles);
    m_isForCutting->setVisible(kind > OwnSheets);
    m_isTwoSided->setVisible(kind > OwnSheets);
    m_isTwoSided->setEnabled(m_isForCutting->isChecked());
    m_isTwoSided->setAccessibleDescription(m_isTwoSided->isEnabled() ? QString() : m_twoSidedReason->text());
    m_twoSidedReason->setVisible(kind > OwnSheets && !m_isTwoSided->isEnabled());
}

void MvSheetChoice::setAvailable(bool isAvailable, const QString &reason)
{
    for (QWidget *widget : {static_cast<QWidget *>(m_kind), m_details})
        widget->setEnabled(isAvailable);
    m_reason->setText(reason);
    m_reason->setVisible(!isAvailable);
    m_kind->setAccessibleDescription(isAvailable ? QString() : reason);
}

MvSheetSettings MvSheetChoice::settings() const
{
    MvSheetSettings settings;
    const int kind = m_kind->currentData().toInt();
    if (kind == OwnSheets || !m_kind->isEnabled())
        return settings;
    settings.kind = kind == Tiles ? MvSheetSettings::Kind::Tiles : MvSheetSettings::Kind::Several;
    settings.paper = MvPageFormat::fromName(m_paper->currentData().toString()).trimSize();
    settings.overlap = m_overlap->value() * tenths;
    settings.perSheet = std::max(kind, 2);
    settings.isForCutting = kind > OwnSheets && m_isForCutting->isChecked();
    settings.isTwoSided = settings.isForCutting && m_isTwoSided->isChecked();
    return settings;
}

void MvSheetChoice::remember() const
{
    MvStudioSettings::setText(u"export/paper"_s, m_paper->currentData().toString());
    MvStudioSettings::setText(u"export/twoSided"_s, m_isTwoSided->isChecked() ? u"1"_s : u"0"_s);
}
