// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvTextPanel.h"

#include "common/MvStudioMerge.h"
#include "pages/MvPageSelection.h"
#include "panels/MvPageEdits.h"

#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvFontFamilyBox.h"
#include "MvGUIWidgets/MvMouseWheelEventFilter.h"
#include "MvModelBase/MvFontTester.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

enum ColorKind { OfPage, Accent, Own };

MvFontFamilyBox *createFamilies(QWidget *parent)
{
    MvFontTester &tester = MvSingleton<MvFontTester>::instance();
    if (!tester.updateWasRun())
        tester.updateFonts();
    auto *box = new MvFontFamilyBox(tester.goodFonts(), parent);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(10);
    return box;
}

} // namespace

MvTextPanel::MvTextPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_selection(selection)
    , m_text(new QPlainTextEdit(this))
    , m_placeholders(new QToolButton(this))
    , m_family(createFamilies(this))
    , m_points(new QDoubleSpinBox(this))
    , m_colorKind(new QComboBox(this))
    , m_color(new MvColorSelectionButton(false, this))
    , m_horizontal(new QComboBox(this))
    , m_vertical(new QComboBox(this))
{
    setObjectName(u"textPanel"_s);
    QVBoxLayout *column = addScrollingColumn();
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addText(form);
    addFont(form);
    addLook(form);
    column->addLayout(form);
    column->addStretch(1);
    QWidget *before = m_points; // as they stand, not as they were made
    for (QWidget *next : std::initializer_list<QWidget *>{m_bold, m_italic, m_capitals, m_colorKind, m_color,
                                                          m_horizontal, m_vertical}) {
        setTabOrder(before, next);
        before = next;
    }
    auto *keepsWheelOut = new MvMouseWheelEventFilter(this);
    for (QWidget *box : std::initializer_list<QWidget *>{m_family, m_points, m_colorKind, m_horizontal, m_vertical})
        box->installEventFilter(keepsWheelOut);
    connect(selection, &MvPageSelection::changed, this, &MvPagePanel::renew);
}

void MvTextPanel::addText(QFormLayout *form)
{
    m_text->setObjectName(u"textEdit"_s);
    m_text->setAccessibleName(tr("Text"));
    m_text->setTabChangesFocus(true);
    m_text->setFixedHeight(5 * fontMetrics().lineSpacing());
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] {
        edit([this](MvTextElement &text) { text.setText(m_text->toPlainText()); }, tr("Text ändern"),
             MvStudioMerge::Text);
    });
    m_placeholders->setObjectName(u"textPlaceholders"_s);
    m_placeholders->setText(tr("Einfügen"));
    m_placeholders->setToolTip(tr("Etwas einfügen, das der Kalender selbst ausfüllt"));
    m_placeholders->setPopupMode(QToolButton::InstantPopup);
    m_placeholders->setFocusPolicy(Qt::StrongFocus);
    auto *menu = new QMenu(m_placeholders);
    const std::pair<QString, QString> rows[] = {{tr("Titel des Kalenders"), u"{title}"_s},
                                                {tr("Monat"), u"{month}"_s},
                                                {tr("Jahr"), u"{year}"_s},
                                                {tr("Unterschrift des Fotos"), u"{caption}"_s},
                                                {tr("Alle Unterschriften"), u"{photos}"_s},
                                                {tr("Name des Autors"), u"{author}"_s}};
    for (const auto &[name, placeholder] : rows)
        connect(menu->addAction(name), &QAction::triggered, m_text,
                [this, placeholder = placeholder] { m_text->insertPlainText(placeholder); });
    m_placeholders->setMenu(menu);
    form->addRow(m_text);
    form->addRow(m_placeholders);
}

QCheckBox *MvTextPanel::createBox(const char *objectName, const QString &text,
                                  const std::function<void(MvTextElement &, bool)> &set)
{
    auto *box = new QCheckBox(text, this);
    box->setObjectName(QLatin1StringView(objectName));
    connect(box, &QCheckBox::clicked, this,
            [this, set](bool on) { editLook([&set, on](MvTextElement &element) { set(element, on); }); });
    return box;
}

void MvTextPanel::addFont(QFormLayout *form)
{
    m_family->setObjectName(u"textFamily"_s);
    m_family->setAccessibleName(tr("Schriftart"));
    connect(m_family, &QComboBox::currentIndexChanged, this,
            [this] { editLook([this](MvTextElement &text) { text.setFamily(m_family->currentText()); }); });
    m_points->setObjectName(u"textPoints"_s);
    m_points->setAccessibleName(tr("Schriftgröße in Punkt auf A4"));
    m_points->setRange(MvTextElement::smallestPoints, MvTextElement::largestPoints);
    m_points->setDecimals(1);
    m_points->setSuffix(tr(" pt"));
    m_points->setKeyboardTracking(false);
    connect(m_points, &QDoubleSpinBox::valueChanged, this,
            [this](double points) { editLook([points](MvTextElement &text) { text.setPoints(points); }); });
    m_bold = createBox("textBold", tr("Fett"),
                       [](MvTextElement &text, bool on) { text.setWeight(on ? QFont::Bold : QFont::Normal); });
    m_italic = createBox("textItalic", tr("Kursiv"), [](MvTextElement &text, bool on) { text.setItalic(on); });
    m_capitals =
        createBox("textCapitals", tr("Großbuchstaben"), [](MvTextElement &text, bool on) { text.setCapitals(on); });
    auto *style = new QHBoxLayout;
    for (QCheckBox *box : {m_bold, m_italic, m_capitals})
        style->addWidget(box);
    style->addStretch(1);
    form->addRow(tr("Schrift:"), m_family);
    form->addRow(tr("Größe:"), m_points);
    form->addRow(style);
}

void MvTextPanel::addLook(QFormLayout *form)
{
    m_colorKind->setObjectName(u"textColorKind"_s);
    m_colorKind->setAccessibleName(tr("Farbe des Textes"));
    m_colorKind->addItem(tr("Wie die Seite"), OfPage);
    m_colorKind->addItem(tr("Wie die Sonntage"), Accent);
    m_colorKind->addItem(tr("Eigene Farbe"), Own);
    connect(m_colorKind, &QComboBox::activated, this, [this] {
        const int kind = m_colorKind->currentData().toInt();
        editLook([this, kind](MvTextElement &text) {
            text.setAccent(kind == Accent);
            text.setColor(kind == Own ? m_color->color() : QColor());
        });
    });
    m_color->setObjectName(u"textColor"_s);
    m_color->setAccessibleName(tr("Eigene Farbe des Textes"));
    connect(m_color, &MvColorSelectionButton::colorChanged, this,
            [this](const QColor &color) { editLook([&color](MvTextElement &text) { text.setColor(color); }); });
    auto *colors = new QHBoxLayout;
    colors->addWidget(m_colorKind, 1);
    colors->addWidget(m_color);
    form->addRow(tr("Farbe:"), colors);

    m_horizontal->setObjectName(u"textHorizontal"_s);
    m_horizontal->setAccessibleName(tr("Ausrichtung waagrecht"));
    m_vertical->setObjectName(u"textVertical"_s);
    m_vertical->setAccessibleName(tr("Ausrichtung senkrecht"));
    m_horizontal->addItem(tr("Links"), int(Qt::AlignLeft));
    m_horizontal->addItem(tr("Mitte"), int(Qt::AlignHCenter));
    m_horizontal->addItem(tr("Rechts"), int(Qt::AlignRight));
    m_vertical->addItem(tr("Oben"), int(Qt::AlignTop));
    m_vertical->addItem(tr("Mitte"), int(Qt::AlignVCenter));
    m_vertical->addItem(tr("Unten"), int(Qt::AlignBottom));
    for (QComboBox *box : {m_horizontal, m_vertical}) {
        connect(box, &QComboBox::activated, this, [this] {
            editLook([this](MvTextElement &text) {
                text.setAlignment(
                    Qt::Alignment(m_horizontal->currentData().toInt() | m_vertical->currentData().toInt()));
            });
        });
    }
    auto *alignment = new QHBoxLayout;
    alignment->addWidget(m_horizontal, 1);
    alignment->addWidget(m_vertical, 1);
    form->addRow(tr("Lage:"), alignment);
}

void MvTextPanel::showPage()
{
    const MvPageElement element =
        edits()->page().elementsOn(edits()->document().format()).value(m_selection->element());
    if (m_selection->kind() != MvPageSelection::Kind::Text || !element.text())
        return;
    const MvTextElement &text = *element.text();
    if (m_text->toPlainText() != text.text())
        m_text->setPlainText(text.text());
    m_family->setFontFamily(text.family());
    m_points->setValue(text.points());
    m_bold->setChecked(text.weight() > QFont::Medium);
    m_italic->setChecked(text.isItalic());
    m_capitals->setChecked(text.hasCapitals());
    m_colorKind->setCurrentIndex(text.color().isValid() ? Own : text.isAccent() ? Accent : OfPage);
    m_color->setEnabled(text.color().isValid());
    m_color->setColor(text.color().isValid() ? text.color() : QColor(Qt::black));
    m_horizontal->setCurrentIndex(m_horizontal->findData(int(text.alignment() & Qt::AlignHorizontal_Mask)));
    m_vertical->setCurrentIndex(m_vertical->findData(int(text.alignment() & Qt::AlignVertical_Mask)));
}

void MvTextPanel::edit(const TextEdit &edit, const QString &text, int mergeId)
{
    MvPageElement element = edits()->page().elementsOn(edits()->document().format()).value(m_selection->element());
    if (isShowing() || !element.text())
        return;
    MvTextElement changed = *element.text();
    edit(changed);
    element.setContent(changed);
    edits()->editCurrent([&](MvCalendarPage &page) { page.setElement(m_selection->element(), element); }, text,
                         mergeId);
}

void MvTextPanel::editLook(const TextEdit &change)
{
    edit(change, tr("Aussehen des Textes ändern"), MvStudioMerge::TextLook);
}
