#pragma once

#include "MvCalendar/MvUnfittingText.h"
#include "MvCore/MvLocale.h"
#include "MvModelBase/MvPaintRecording.h"
#include "MvProject/MvCalendarPage.h"

#include <QMap>
#include <QStringList>

class MvCalendariumRenderer;

/// What a person chooses for a page.
struct MvPageChoice
{
    enum Entries { None, Short, Long, Many, Photos };

    QString layout;
    QString paper; ///< "A5", "A4 landscape", "90x55"
    QString place; ///< of the photo: "none", "top", "left", "right"
    double share = MvPhotoFrame::defaultShare;
    int font = 100; ///< percent of the layout's size
    MvLocale language;
    QString region;
    Entries entries = Short;
    QDate month;
    bool hasWeeks = true; ///< asked for; not every layout has them

    /// One line, "MONTH_ONLY, A4 landscape, photo left 0.65, 150 %, de_DE BY, long names, 2027-05, weeks".
    QString describe() const;

    static const QStringList &papers();
    static const QStringList &places();
    /// All shares that matter, from the smallest to the largest.
    static const QList<double> &shares();
    static const QList<int> &fonts();
    /// Months of four, five and six weeks, with week 53, with a leap day, with the longest name.
    static const QList<QDate> &months();
    static QStringList layouts();
};

/// A page as the programs print it, recorded, with what it says of itself. The active entries become those of the
/// choice.
class MvPrintedPage
{
public:
    /// The family of all fonts; empty for those of the layouts.
    MvPrintedPage(const MvPageChoice &choice, const QString &family);

    const MvPageChoice &choice() const { return m_choice; }
    const MvPageFormat &format() const { return m_format; }
    const MvCalendarPage &page() const { return m_page; }
    MvDateRange range() const;

    struct Day
    {
        QDate date;
        QRectF rect;
    };
    /// The days that were reported, in the order of painting.
    QList<Day> days;
    QList<MvPaintRecording::Item> items;
    QList<MvUnfittingText> unfitting;

    // what the page is to show
    QMap<QDate, QStringList> dayTexts; ///< of all days of its months, in layouts that write them
    bool showsDays = false;
    QStringList words;               ///< that must be somewhere: the month or the year, names of columns
    QList<QList<QStringList>> heads; ///< sets of names, each in the forms that are allowed, from long to short
    double textFloor = 0.0;          ///< pixels of type that a day's texts may not fall below
    double headFloor = 0.0;          ///< the same for everything else

    /// The whole page with its photo, for a person to look at.
    QImage picture(double pixelsPerUnit) const;

private:
    void expect(const MvCalendariumRenderer &renderer);
    void expectHeads(const MvCalendariumRenderer &renderer);
    void measureFloors();

    MvPageChoice m_choice;
    MvPageFormat m_format;
    MvCalendarPage m_page;
};
