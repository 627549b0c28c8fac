// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvDesignerPlugin.h"

#include "MvCalendar/MvCalendarEventListWidget.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumColorSchemaEditor.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumColumnHeadersEditor.h"
#include "MvCalendar/MvCalendariumContentConfigEditor.h"
#include "MvCalendar/MvCalendariumFontEditor.h"
#include "MvDesignerWidget.h"
#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvFontFamilyBox.h"
#include "MvGUIWidgets/MvLineEdit.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvGUIWidgets/MvTableView.h"
#include "MvModelBase/MvFontTester.h"

#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace {

/// A function that makes the widget, for the rows below.
template <class Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

/// A function that shows the widget's sample content.
template <class Widget, class Function>
std::function<void(QWidget *)> sample(Function show)
{
    return [show](QWidget *widget) { show(static_cast<Widget *>(widget)); };
}

QStringList fontFamilies()
{
    MvFontTester &tester = MvSingleton<MvFontTester>::instance();
    if (!tester.updateWasRun())
        tester.updateFonts();
    return tester.goodFonts();
}

void showColors(MvCalendariumColorSchemaEditor *editor)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s));
    appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
    editor->setAppearance(appearance);
}

void showRows(MvTableView *view)
{
    auto *model = new QStandardItemModel(3, 2, view);
    model->setHorizontalHeaderLabels({u"Name"_s, u"Datum"_s});
    const QStringList texts{u"Oma Erika"_s, u"10.3.1950"_s, u"Ben"_s, u"4.7.2015"_s, u"Hochzeitstag"_s, u"12.9.2009"_s};
    for (int i = 0; i < texts.size(); ++i)
        model->setItem(i / 2, i % 2, new QStandardItem(texts[i]));
    view->setModel(model);
}

/// One row for each widget.
QList<MvDesignerWidget::Row> rows()
{
    const QString calendar = u"MvCalendar"_s;
    const QString widgets = u"MvGUIWidgets"_s;
    return {
        {u"MvCalendariumContentConfigEditor"_s, calendar, u"ico_studio_content"_s, u"What a calendar shows"_s,
         QSize(300, 320), create<MvCalendariumContentConfigEditor>,
         sample<MvCalendariumContentConfigEditor>([](auto *editor) { editor->setStartDate(QDate(2027, 1, 1)); })},
        {u"MvCalendariumColorSchemaEditor"_s, calendar, u"ico_studio_colors"_s, u"The colours of a calendarium"_s,
         QSize(360, 600), create<MvCalendariumColorSchemaEditor>, sample<MvCalendariumColorSchemaEditor>(showColors)},
        {u"MvCalendariumFontEditor"_s, calendar, u"ico_studio_fonts"_s, u"The fonts of a calendarium"_s,
         QSize(260, 140), create<MvCalendariumFontEditor>, sample<MvCalendariumFontEditor>([](auto *editor) {
             editor->setFontSettings({u"Lato"_s, 10, -50, QFont::Normal, QFont::MixedCase, 0.0});
         })},
        {u"MvCalendariumColumnHeadersEditor"_s, calendar, u"ico_studio_column_headers"_s,
         u"The headings of the columns of a list of days"_s, QSize(240, 260), create<MvCalendariumColumnHeadersEditor>,
         sample<MvCalendariumColumnHeadersEditor>([](auto *editor) {
             editor->setHeaders({u"Mama"_s, u"Papa"_s, u"Lena"_s, u"Jonas"_s});
         })},
        {u"MvCalendarEventListWidget"_s,
         calendar,
         u"ico_studio_entries"_s,
         u"The personal entries"_s,
         QSize(420, 320),
         create<MvCalendarEventListWidget>,
         {}},
        {u"MvLineEdit"_s, widgets, u"ico_common_edit"_s, u"A line of text"_s, QSize(160, 28), create<MvLineEdit>,
         sample<MvLineEdit>([](auto *edit) { edit->setText(u"Text"_s); })},
        {u"MvSpinBox"_s, widgets, u"ico_common_plus_grey"_s, u"A number"_s, QSize(80, 28), create<MvSpinBox>, {}},
        {u"MvTableView"_s, widgets, u"ico_studio_layout"_s, u"A table whose rows show buttons under the mouse"_s,
         QSize(300, 200), create<MvTableView>, sample<MvTableView>(showRows)},
        {u"MvColorSelectionButton"_s, widgets, u"ico_studio_colors"_s, u"A colour to choose"_s, QSize(80, 28),
         [](QWidget *parent) -> QWidget * { return new MvColorSelectionButton(true, parent); },
         sample<MvColorSelectionButton>([](auto *button) { button->setColor(QColor(0x2f, 0x6f, 0x8f)); })},
        {u"MvFontFamilyBox"_s, widgets, u"ico_studio_fonts"_s, u"A font family to choose"_s, QSize(200, 28),
         [](QWidget *parent) -> QWidget * { return new MvFontFamilyBox(fontFamilies(), parent); },
         sample<MvFontFamilyBox>([](auto *box) { box->setFontFamily(u"Lato"_s); })},
    };
}

} // namespace

MvDesignerPlugin::MvDesignerPlugin(QObject *parent)
    : QObject(parent)
{
    for (const MvDesignerWidget::Row &row : rows())
        m_widgets.append(new MvDesignerWidget(row, this));
}
