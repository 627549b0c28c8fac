// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvFontPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendariumFontEditor.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int familyLetters = 24;

} // namespace

MvFontPanel::MvFontPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_editor(new MvCalendariumFontEditor(this))
    , m_reset(new QPushButton(tr("Zurücksetzen"), this))
{
    setObjectName(u"fontPanel"_s);
    QVBoxLayout *column = addScrollingColumn();
    column->addWidget(m_editor);
    m_editor->setFamilyLength(familyLetters); // there is room here for whole names
    m_reset->setObjectName(u"resetFont"_s);
    m_reset->setToolTip(tr("Nimmt wieder die Schriften und Größen, für die das Layout gemacht ist"));
    column->addWidget(m_reset, 0, Qt::AlignLeft);
    column->addStretch(1);
    connect(m_editor, &MvCalendariumFontEditor::fontSettingsChanged, this, &MvFontPanel::onFontChanged);
    connect(m_reset, &QPushButton::clicked, this, &MvFontPanel::resetFont);
}

void MvFontPanel::showPage()
{
    const MvCalendariumAppearance appearance = edits()->page().appearance();
    m_editor->setFontSettings(appearance.fontSettings());
    m_shown = m_editor->currentSettings();
    MvCalendariumAppearance fresh = appearance;
    fresh.setFontSettings({});
    fresh.adoptLayoutSuggestions();
    m_reset->setEnabled(appearance.fontSettings() != fresh.fontSettings());
}

/// Takes over only what the user changed: where a page names no font, the editor shows one all the same.
void MvFontPanel::onFontChanged()
{
    if (isShowing())
        return;
    const MvCalendariumFontSettings before = m_shown;
    const MvCalendariumFontSettings after = m_editor->currentSettings();
    m_shown = after;
    const auto apply = [&](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        MvCalendariumFontSettings fonts = appearance.fontSettings();
        if (after.fontName() != before.fontName())
            fonts.setFont(after.fontName());
        if (after.fontSizePercentage() != before.fontSizePercentage())
            fonts.setFontSizePercentage(after.fontSizePercentage());
        if (after.fontSizePercentageHolidays() != before.fontSizePercentageHolidays())
            fonts.setFontSizePercentageHolidays(after.fontSizePercentageHolidays());
        appearance.setFontSettings(fonts);
        page.setAppearance(appearance);
    };
    edits()->edit(apply, tr("Schrift ändern"), MvStudioMerge::Fonts);
}

void MvFontPanel::resetFont()
{
    const auto reset = [](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        const QString headers = appearance.columnHeaders();
        appearance.setFontSettings({});
        appearance.adoptLayoutSuggestions(); // of which only the size of holiday texts is wanted here
        appearance.setColumnHeaders(headers);
        page.setAppearance(appearance);
    };
    edits()->edit(reset, tr("Schrift des Layouts nehmen"));
}
