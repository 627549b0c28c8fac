// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvTextPanel.h"

#include "common/MvStudioMerge.h"
#include "pages/MvPageSelection.h"
#include "panels/MvCommonNumberBox.h"
#include "panels/MvCommonValue.h"
#include "panels/MvPageEdits.h"

#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvFontFamilyBox.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvModelBase/MvFontTester.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
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
    , m_points(new MvCommonNumberBox(this))
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
    addAlignment(form);
    column->addLayout(form);
    column->addStretch(1);
    MvFormFields::setTabOrder({m_points, m_bold, m_italic, m_capitals, m_colorKind, m_color, m_horizontal, m_vertical});
    MvFormFields::keepWheelOut({m_family, m_points, m_colorKind, m_horizontal, m_vertical});
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
    m_noFamily = m_family->lineEdit()->placeholderText();
    m_family->setAccessibleName(tr("Schriftart"));
    connect(m_family, &QComboBox::currentIndexChanged, this,
            [this] { editLook([this](MvTextElement &text) { text.setFamily(m_family->currentText()); }); });
    m_points->setObjectName(u"textPoints"_s);
    m_points->setAccessibleName(tr("Schriftgröße in Punkt auf A4"));
    m_points->setLimits(MvTextElement::smallestPoints, MvTextElement::largestPoints);
    m_points->setDecimals(1);
    m_points->setSuffix(tr(" pt"));
    connect(m_points, &MvCommonNumberBox::entered, this,
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
}

void MvTextPanel::addAlignment(QFormLayout *form)
{
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
    for (const auto &[box, mask] :
         {std::pair(m_horizontal, Qt::AlignHorizontal_Mask), std::pair(m_vertical, Qt::AlignVertical_Mask)}) {
        connect(box, &QComboBox::activated, this, [this, box = box, mask = mask] {
            const auto chosen = Qt::Alignment(box->currentData().toInt());
            editLook([chosen, mask](MvTextElement &text) { text.setAlignment((text.alignment() & ~mask) | chosen); });
        });
    }
    auto *alignment = new QHBoxLayout;
    alignment->addWidget(m_horizontal, 1);
    alignment->addWidget(m_vertical, 1);
    form->addRow(tr("Lage:"), alignment);
}

QList<MvTextElement> MvTextPanel::texts() const
{
    const QList<MvPageElement> elements = edits()->page().elementsOn(edits()->document().format());
    QList<MvTextElement> texts;
    for (const int number : m_selection->elementsOfKind()) {
        const MvPageElement element = elements.value(number);
        if (element.text())
            texts.append(*element.text());
    }
    return texts;
}

void MvTextPanel::showPage()
{
    const QList<MvTextElement> texts = this->texts();
    if (m_selection->kind() != MvPageSelection::Kind::Text || texts.isEmpty())
        return;
    const auto common = [&texts](const auto &get) { return MvCommonValue::of(texts, get); };
    const std::optional<QString> said = common(&MvTextElement::text);
    m_text->setPlaceholderText(said ? QString() : MvCommonValue::different());
    if (m_text->toPlainText() != said.value_or(QString()))
        m_text->setPlainText(said.value_or(QString()));
    const std::optional<QString> family = common(&MvTextElement::family);
    m_family->setFontFamily(family.value_or(QString()));
    m_family->lineEdit()->setPlaceholderText(family ? m_noFamily : MvCommonValue::different());
    m_points->show(common(&MvTextElement::points), texts.constLast().points());
    MvCommonValue::show(m_bold, common([](const MvTextElement &text) { return text.weight() > QFont::Medium; }));
    MvCommonValue::show(m_italic, common(&MvTextElement::isItalic));
    MvCommonValue::show(m_capitals, common(&MvTextElement::hasCapitals));
    const std::optional<QVariant> colorKind = common([](const MvTextElement &text) {
        return QVariant(int(text.color().isValid() ? Own : text.isAccent() ? Accent : OfPage));
    });
    MvCommonValue::show(m_colorKind, colorKind);
    m_color->setEnabled(colorKind == QVariant(int(Own)));
    MvCommonValue::show(m_color, common([](const MvTextElement &text) {
                            return text.color().isValid() ? text.color() : QColor(Qt::black);
                        }));
    const auto aligned = [&common](Qt::Alignment mask) {
        return common([mask](const MvTextElement &text) { return QVariant(int(text.alignment() & mask)); });
    };
    MvCommonValue::show(m_horizontal, aligned(Qt::AlignHorizontal_Mask));
    MvCommonValue::show(m_vertical, aligned(Qt::AlignVertical_Mask));
}

/// All chosen texts, in one step.
void MvTextPanel::edit(const TextEdit &edit, const QString &text, int mergeId)
{
    if (isShowing() || texts().isEmpty())
        return;
    const MvPageFormat format = edits()->document().format();
    edits()->editCurrent(
        [&](MvCalendarPage &page) {
            const QList<MvPageElement> elements = page.elementsOn(format);
            for (const int number : m_selection->elementsOfKind()) {
                MvPageElement element = elements.at(number);
                MvTextElement changed = *element.text();
                edit(changed);
                element.setContent(changed);
                page.setElement(number, element);
            }
        },
        text, mergeId);
}

void MvTextPanel::editLook(const TextEdit &change)
{
    edit(change, tr("Aussehen des Textes ändern"), MvStudioMerge::TextLook);
}
