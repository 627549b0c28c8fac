// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;

/// Country and region, whose holidays a calendar shows.
class MvRegionEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MvRegionEditor(QWidget *parent = nullptr);

    /// What else the configuration says is kept.
    void setConfig(const MvCalendariumHolidayConfig &config);
    MvCalendariumHolidayConfig config() const;

Q_SIGNALS:
    /// By whomever.
    void countryChanged();

private:
    void fillRegions(const QString &chosen);

    MvCalendariumHolidayConfig m_given;
    QList<MvLocale> m_countries;
    QComboBox *m_country;
    QComboBox *m_region;
    QLabel *m_hint;
};
