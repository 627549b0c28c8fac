// SPDX-License-Identifier: LGPL-2.1-or-later
// Shows a page of a calendar in a window of another program; arrow keys turn pages: page_widget [PICTURE.png]
// Given a file, saves what the window would show instead.
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCore/MvInitializer.h"
#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvCalendarDocument.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

class PageWidget : public QWidget
{
public:
    explicit PageWidget(const MvCalendarDocument &calendar)
        : m_calendar(calendar)
    {
        showPage(0);
    }

    void showPage(int page)
    {
        m_page = std::clamp(page, 0, int(m_calendar.pages().size()) - 1);
        // laying a page out takes long, replaying it does not: once per page, not once per repaint
        m_recording = shown().record(m_calendar.format(), m_calendar.range());
        setWindowTitle(locale().toString(m_calendar.pageDates().at(m_page), QStringLiteral("MMMM yyyy")));
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QRectF paper = m_calendar.format().trimRect(); // tenths of a millimetre
        const double scale = std::min(width() / paper.width(), height() / paper.height());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.setClipRect(paper);
        shown().paintGround(painter, m_calendar.format());
        shown().paintFoto(painter, m_calendar.format());
        m_recording.replay(painter);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Right)
            showPage(m_page + 1);
        else if (event->key() == Qt::Key_Left)
            showPage(m_page - 1);
        else
            QWidget::keyPressEvent(event);
    }

private:
    const MvCalendarPage &shown() const { return m_calendar.pages().at(m_page); }

    MvCalendarDocument m_calendar;
    MvPaintRecording m_recording;
    int m_page = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    MvInitializer::instance().setup(MvInitializerOption::Everything);

    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(QStringLiteral("MONTH_GRID_SERIF")));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(QStringLiteral("WARM_PAPER")));
    appearance.adaptGridToLayout();
    MvCalendarDocument calendar;
    calendar.setAppearance(appearance);
    calendar.setRange(MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));

    PageWidget widget(calendar);
    widget.resize(891, 630);
    if (argc > 1)
        return widget.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
    widget.show();
    return QApplication::exec();
}
