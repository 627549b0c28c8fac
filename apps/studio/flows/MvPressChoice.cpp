// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPressChoice.h"

#include "common/MvStudioSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

MvPressChoice::MvPressChoice(QWidget *parent)
    : QWidget(parent)
    , m_profile(new QComboBox(this))
    , m_edge(new QComboBox(this))
    , m_keepsColors(new QCheckBox(tr("&Farbfotos bleiben in sRGB"), this))
    , m_reason(new QLabel(tr("nur für eine Druckerei"), this))
{
    m_profile->setObjectName(u"exportPress"_s);
    m_profile->addItem(tr("Bildschirm und eigener Drucker"), QString());
    m_profile->addItem(tr("Druckerei, glattes Papier (FOGRA39)"), u"fogra39"_s);
    m_profile->addItem(tr("Druckerei, raues Papier (FOGRA29)"), u"fogra29"_s);
    m_profile->addItem(tr("Druckerei in Amerika (GRACoL)"), u"gracol"_s);
    m_profile->setToolTip(
        tr("Für eine Druckerei entsteht ein PDF/X-4 in Druckfarben, mit Schnittmarken und Angaben neben "
           "der Seite. Fragen Sie dort, was gewünscht ist"));
    m_profile->setCurrentIndex(std::max(0, m_profile->findData(MvStudioSettings::text(u"export/press"_s))));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_profile);
    column->addWidget(createDetails());
    connect(m_profile, &QComboBox::currentIndexChanged, this, &MvPressChoice::enableDetails);
    for (QComboBox *box : {m_profile, m_edge})
        connect(box, &QComboBox::currentIndexChanged, this, &MvPressChoice::changed);
    connect(m_keepsColors, &QCheckBox::toggled, this, &MvPressChoice::changed);
    enableDetails();
}

QWidget *MvPressChoice::createDetails()
{
    auto *details = new QWidget(this);
    m_edge->setObjectName(u"exportBleedEdge"_s);
    m_edge->setAccessibleName(tr("Beschnitt, wo die Seite keinen hat"));
    m_edge->addItem(tr("Rand gespiegelt"), u"mirror"_s);
    m_edge->addItem(tr("Rand ausgezogen"), u"stretch"_s);
    m_edge->setToolTip(
        tr("Woraus der Beschnitt wird, wo die Seite keinen eigenen hat: ihr Rand wird nach außen gespiegelt, "
           "oder seine Farben werden ausgezogen"));
    m_edge->setCurrentIndex(std::max(0, m_edge->findData(MvStudioSettings::text(u"export/bleedEdge"_s))));
    m_keepsColors->setObjectName(u"exportKeepColors"_s);
    m_keepsColors->setToolTip(
        tr("Farbfotos behalten ihre Farben und ihr Farbprofil; die Druckerei rechnet sie selbst in Druckfarben um"));
    m_keepsColors->setChecked(MvStudioSettings::text(u"export/keepColors"_s) == u"1");
    m_reason->setObjectName(u"exportPressReason"_s);
    auto *row = new QHBoxLayout(details);
    row->setContentsMargins({});
    for (QWidget *widget : std::initializer_list<QWidget *>{m_edge, m_keepsColors, m_reason})
        row->addWidget(widget);
    row->addStretch(1);
    return details;
}

void MvPressChoice::enableDetails()
{
    const bool isForPress = !profile().isEmpty();
    m_reason->setVisible(!isForPress);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_edge, m_keepsColors}) {
        widget->setEnabled(isForPress);
        widget->setAccessibleDescription(isForPress ? QString() : m_reason->text());
    }
}

QString MvPressChoice::profile() const
{
    return m_profile->currentData().toString();
}

MvPressSettings MvPressChoice::settings() const
{
    MvPressSettings settings;
    if (m_edge->currentData() == u"stretch"_s)
        settings.bleedKind = MvPressSettings::Bleed::Stretched;
    settings.keepsFotoColors = m_keepsColors->isChecked();
    return settings;
}

void MvPressChoice::remember() const
{
    MvStudioSettings::setText(u"export/press"_s, profile());
    MvStudioSettings::setText(u"export/bleedEdge"_s, m_edge->currentData().toString());
    MvStudioSettings::setText(u"export/keepColors"_s, m_keepsColors->isChecked() ? u"1"_s : u"0"_s);
}
