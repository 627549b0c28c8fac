// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvGroupsDialog.h"

#include "common/MvStudioMessage.h"
#include "panels/MvEntryPatternEdit.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryListModel.h"
#include "MvCalendar/MvEventText.h"
#include "MvCalendar/MvSession.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvUndoController.h"
#include "MvCore/MvYesNoRequest.h"
#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvPaint/MvPrintableText.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int symbolLetters = 4; // some characters are pairs of code units
constexpr int contrastLines = 3;
const QColor firstColor = 0x1F6FB2;

QString ratioText(double ratio)
{
    return MvApplicationLocale::instance().locale().toString(std::floor(ratio * 10) / 10, 'f', 1);
}

} // namespace

MvGroupsDialog::MvGroupsDialog(MvPageEdits *edits, QWidget *parent)
    : QDialog(parent)
    , m_edits(edits)
    , m_groups(edits)
{
    setObjectName(u"groupsDialog"_s);
    setWindowTitle(tr("Gruppen und Alter"));
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(createList(), 2);
    row->addWidget(createDetails(), 3);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row, 1);
    column->addWidget(createWhole());
    column->addWidget(buttons);
    setTabOrder(m_times, buttons->button(QDialogButtonBox::Close));
    connectParts();
}

MvGroupsDialog::~MvGroupsDialog() = default;

MvGroupsDialog *MvGroupsDialog::open(MvPageEdits *edits, QWidget *window)
{
    auto *dialog = window->findChild<MvGroupsDialog *>();
    if (!dialog) {
        dialog = new MvGroupsDialog(edits, window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

// ---- parts

QToolButton *MvGroupsDialog::createButton(const QString &objectName, const QString &text, const QString &tip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QWidget *MvGroupsDialog::createList()
{
    auto *part = new QWidget(this);
    m_list = new QListWidget(part);
    m_list->setObjectName(u"groupList"_s);
    m_list->setAccessibleName(tr("Gruppen, angekreuzt, wenn der Kalender sie zeigt"));
    m_list->setUniformItemSizes(true);
    m_list->setIconSize(MvEntryListModel::sizeOfDots(MvEntryListModel::dots({MvEventGroup()})));
    auto *hint = new QLabel(tr("Der Kalender zeigt, was angekreuzt ist."), part);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *add = createButton(u"addGroup"_s, tr("Neu"), tr("Neue Gruppe"));
    m_remove = createButton(u"removeGroup"_s, tr("Entfernen …"),
                            tr("Die Gruppe entfernen; ihre Einträge bleiben im Kalender"));
    m_up = createButton(u"groupUp"_s, u"↑"_s, tr("Gruppe nach oben"));
    m_down = createButton(u"groupDown"_s, u"↓"_s, tr("Gruppe nach unten"));
    auto *buttons = new MvFlowLayout;
    for (QToolButton *button : {add, m_remove, m_up, m_down})
        buttons->addWidget(button);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins({});
    column->addWidget(hint);
    column->addWidget(m_list, 1);
    column->addLayout(buttons);
    connect(add, &QToolButton::clicked, this, &MvGroupsDialog::addGroup);
    return part;
}

QWidget *MvGroupsDialog::createColorRow()
{
    auto *part = new QWidget(m_details);
    m_hasColor = new QCheckBox(tr("Eigene"), part);
    m_hasColor->setObjectName(u"groupHasColor"_s);
    m_hasColor->setToolTip(tr("Ohne eigene Farbe haben die Einträge der Gruppe die der Seite"));
    m_color = new MvColorSelectionButton(false, part);
    m_color->setObjectName(u"groupColor"_s);
    m_color->setAccessibleName(tr("Farbe der Gruppe"));
    m_takeReadable = new QPushButton(tr("Lesbaren Ton nehmen"), part);
    m_takeReadable->setObjectName(u"takeReadable"_s);
    m_takeReadable->setAutoDefault(false);
    auto *row = new MvFlowLayout(part);
    row->setContentsMargins({});
    row->addWidget(m_hasColor);
    row->addWidget(m_color);
    row->addWidget(m_takeReadable);
    return part;
}

QWidget *MvGroupsDialog::createDetails()
{
    m_details = new QWidget(this);
    m_name = new QLineEdit(m_details);
    m_name->setObjectName(u"groupName"_s);
    m_nameNotice = new QLabel(m_details);
    m_nameNotice->setObjectName(u"groupNameNotice"_s);
    m_nameNotice->setWordWrap(true);
    m_nameNotice->hide();
    m_contrast = new QLabel(m_details);
    m_contrast->setObjectName(u"groupContrast"_s);
    m_contrast->setWordWrap(true);
    m_contrast->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_contrast->setMinimumHeight(contrastLines * fontMetrics().lineSpacing());
    QWidget *color = createColorRow();
    m_symbol = new QLineEdit(m_details);
    m_symbol->setObjectName(u"groupSymbol"_s);
    m_symbol->setMaxLength(symbolLetters);
    m_symbol->setPlaceholderText(tr("keines"));
    m_symbol->setToolTip(tr("Steht vor den Einträgen der Gruppe, ein Zeichen wie ♥ oder ★"));
    m_pattern = new MvEntryPatternEdit(tr("Wie im ganzen Kalender"), tr("So lesen sich Einträge der Gruppe"),
                                       u"groupPattern"_s, m_details);
    auto *form = new QFormLayout(m_details);
    form->setContentsMargins({});
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Name:"), m_name);
    form->addRow(m_nameNotice);
    form->addRow(tr("Farbe:"), color);
    form->addRow(m_contrast);
    form->addRow(tr("Zeichen:"), m_symbol);
    form->addRow(tr("Alter:"), m_pattern);
    return m_details;
}

QWidget *MvGroupsDialog::createWhole()
{
    auto *part = new QGroupBox(tr("Ganzer Kalender"), this);
    m_wholePattern =
        new MvEntryPatternEdit(tr("Ohne Alter"), tr("So lesen sich die Einträge"), u"calendarPattern"_s, part);
    m_times = new QCheckBox(tr("Uhrzeiten vor die Einträge schreiben"), part);
    m_times->setObjectName(u"showTimes"_s);
    auto *form = new QFormLayout(part);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Alter:"), m_wholePattern);
    form->addRow(m_times);
    return part;
}

void MvGroupsDialog::connectParts()
{
    connect(&m_edits->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvGroupsDialog::renew);
    connect(m_edits, &MvPageEdits::pageRefreshed, this, &MvGroupsDialog::renew);
    connect(m_list, &QListWidget::currentRowChanged, this, &MvGroupsDialog::showDetails);
    connect(m_list, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
        if (!m_isShowing)
            m_groups.setShown(item->data(Qt::UserRole).toString(), item->checkState() == Qt::Checked);
    });
    connect(m_remove, &QToolButton::clicked, this, &MvGroupsDialog::askAndRemove);
    connect(m_up, &QToolButton::clicked, this, [this] { m_groups.move(currentId(), -1); });
    connect(m_down, &QToolButton::clicked, this, [this] { m_groups.move(currentId(), 1); });
    connect(m_name, &QLineEdit::editingFinished, this, &MvGroupsDialog::takeName);
    connect(m_name, &QLineEdit::textEdited, m_nameNotice, &QWidget::hide);
    connect(m_hasColor, &QCheckBox::clicked, this, [this](bool has) {
        changeCurrent([this, has](MvEventGroup &group) { group.color = has ? m_color->color() : QColor(); },
                      tr("Farbe der Gruppe ändern"));
    });
    connect(m_color, &MvColorSelectionButton::colorChanged, this, [this](const QColor &color) {
        changeCurrent([&color](MvEventGroup &group) { group.color = color; }, tr("Farbe der Gruppe ändern"));
    });
    connect(m_takeReadable, &QPushButton::clicked, this, [this] {
        changeCurrent([this](MvEventGroup &group) { group.color = m_grounds.nearestReadable(group.color); },
                      tr("Farbe der Gruppe ändern"));
        m_color->setFocus(); // the button has gone
    });
    connect(m_symbol, &QLineEdit::editingFinished, this, [this] {
        changeCurrent([this](MvEventGroup &group) { group.symbol = m_symbol->text().trimmed(); },
                      tr("Zeichen der Gruppe ändern"));
    });
    connect(m_pattern, &MvEntryPatternEdit::patternChanged, this, [this](const QString &pattern) {
        changeCurrent([&pattern](MvEventGroup &group) { group.entryText = pattern; }, tr("Alter in der Gruppe ändern"));
    });
    const auto changeDisplay = [this](const std::function<void(MvEntryDisplay &)> &edit, const QString &name) {
        MvEntryDisplay display = m_groups.display();
        edit(display);
        m_groups.setDisplay(display, name);
    };
    connect(m_wholePattern, &MvEntryPatternEdit::patternChanged, this, [changeDisplay](const QString &pattern) {
        changeDisplay([&pattern](MvEntryDisplay &display) { display.text = pattern; }, tr("Alter im Kalender ändern"));
    });
    connect(m_times, &QCheckBox::clicked, this, [changeDisplay](bool on) {
        changeDisplay([on](MvEntryDisplay &display) { display.showTimes = on; }, tr("Uhrzeiten ein- oder ausblenden"));
    });
    MvUndoController &undo = m_edits->session().undo();
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this, [&undo] { undo.undo(); });
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, this, [&undo] { undo.redo(); });
    connect(new QShortcut(QKeySequence::Delete, m_list), &QShortcut::activated, this, &MvGroupsDialog::askAndRemove);
}

/// Return takes over what was typed, and does not close the dialog then.
void MvGroupsDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto *edit = qobject_cast<QLineEdit *>(focusWidget()); edit && isReturn)
        edit->selectAll();
    else
        QDialog::keyPressEvent(event);
}

// ---- following the calendar

void MvGroupsDialog::showEvent(QShowEvent *event)
{
    renew();
    QDialog::showEvent(event);
}

void MvGroupsDialog::renew()
{
    if (m_isShowing)
        return;
    m_grounds = {};
    for (const MvCalendarPage &page : m_edits->document().pages())
        m_grounds.add(page.appearance(), page.background().color());
    showList();
    showDetails();
}

void MvGroupsDialog::showList()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const MvCalendarEventList events = m_edits->session().entries().activeEventList();
    QHash<QString, int> counts;
    for (const MvCalendarEvent &event : events) {
        for (const QString &id : event.groups())
            ++counts[id];
    }
    const QString id = currentId();
    int row = m_list->currentRow();
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const MvEventGroup &group : events.groups()) {
        auto *item = new QListWidgetItem(MvEntryListModel::dots({group}), {}, m_list);
        item->setText(u"%1 (%2)"_s.arg(MvPrintableText::inShort(group.name), QString::number(counts.value(group.id))));
        item->setData(Qt::UserRole, group.id);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(m_groups.isShown(group.id) ? Qt::Checked : Qt::Unchecked);
        if (group.id == id)
            row = m_list->count() - 1;
    }
    m_list->setCurrentRow(qBound(qMin(0, m_list->count() - 1), row, m_list->count() - 1));
}

void MvGroupsDialog::showDetails()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const MvEventGroup group = current();
    const int row = m_list->currentRow();
    m_details->setEnabled(group.isValid());
    m_remove->setEnabled(group.isValid());
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_list->count());
    if (m_name->text().simplified() != group.name)
        m_name->setText(group.name);
    m_nameNotice->hide();
    m_hasColor->setChecked(group.color.isValid());
    m_color->setEnabled(group.color.isValid());
    m_color->setColor(group.color.isValid() ? group.color : m_grounds.nearestReadable(firstColor));
    showContrast(group.color);
    if (m_symbol->text() != group.symbol)
        m_symbol->setText(group.symbol);
    m_pattern->setPattern(group.entryText);
    m_pattern->setExample(group.isValid() ? example(group.id) : QString());
    m_wholePattern->setPattern(m_groups.display().text);
    m_wholePattern->setExample(example({}));
    m_times->setChecked(m_groups.display().showTimes);
}

/// In words: on which days it is hard to read, and whether the nearest tone that is not is on offer.
void MvGroupsDialog::showContrast(const QColor &color)
{
    const QList<MvCalendarCellType> types =
        color.isValid() ? m_grounds.unreadableOn(color) : QList<MvCalendarCellType>();
    const QColor better = types.isEmpty() ? QColor() : m_grounds.nearestReadable(color);
    m_takeReadable->setVisible(better.isValid());
    if (better.isValid()) {
        QPixmap swatch(m_takeReadable->iconSize());
        swatch.fill(better);
        m_takeReadable->setIcon(swatch);
    }
    if (!color.isValid()) {
        m_contrast->clear();
        return;
    }
    if (types.isEmpty()) {
        m_contrast->setText(
            tr("Auf allen Tagen gut zu lesen (Kontrast %1 : 1).").arg(ratioText(m_grounds.contrast(color))));
        return;
    }
    QStringList names;
    for (const MvCalendarCellType &type : types)
        names.append(type.description());
    const QString where =
        tr("Schwer zu lesen (Kontrast %1 : 1, gut sind %2 : 1): %3.")
            .arg(ratioText(m_grounds.contrast(color)), ratioText(MvDayGrounds::readableContrast), names.join(u", "_s));
    m_contrast->setText(where + u' ' +
                        (better.isValid() ? tr("Gedruckt wird sie dort abgetönt.")
                                          : tr("In keiner Helligkeit passt sie zu hellen und dunklen Tagen zugleich; "
                                               "gedruckt wird sie dort abgetönt.")));
}

/// An entry of the group, or of the calendar, as it reads; one with an age before all others.
QString MvGroupsDialog::example(const QString &group) const
{
    const MvDateRange range = m_edits->document().range();
    const MvCalendarEventList events = m_edits->session().entries().activeEventList();
    QString text;
    for (const MvCalendarEvent &event : events) {
        if (!group.isEmpty() && !event.groups().contains(group))
            continue;
        const bool isByYear = event.hasYear() && event.isByDayOfYear() && event.storedRecurrent();
        if (!isByYear && !text.isEmpty())
            continue;
        const QDate start(isByYear ? range.end().year() : event.dateTime().date().year(), 1, 1);
        const QDate day = event.startsInYear(start.year()).value(0);
        if (!day.isValid())
            continue;
        text = tr("So steht es da: %1").arg(MvEventText::of(event, day, events.groups(), m_groups.display()).text);
        if (event.yearsAt(day) > 0)
            return text;
    }
    return text;
}

// ---- edits

QString MvGroupsDialog::currentId() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

MvEventGroup MvGroupsDialog::current() const
{
    const MvEventGroupList all = m_groups.groups();
    const MvEventGroup *group = all.find(currentId());
    return group ? *group : MvEventGroup();
}

void MvGroupsDialog::addGroup()
{
    const QString id = m_groups.add();
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole) == id)
            m_list->setCurrentRow(row);
    }
    m_name->setFocus();
    m_name->selectAll();
}

void MvGroupsDialog::takeName()
{
    const MvEventGroup group = current();
    const QString name = m_name->text().simplified();
    if (m_isShowing || !group.isValid() || name == group.name || m_groups.rename(group.id, name))
        return;
    m_name->setText(group.name);
    m_nameNotice->setText(name.isEmpty() ? tr("Eine Gruppe braucht einen Namen.")
                                         : tr("Eine Gruppe „%1“ gibt es schon.").arg(MvPrintableText::inShort(name)));
    m_nameNotice->show();
}

void MvGroupsDialog::changeCurrent(const std::function<void(MvEventGroup &)> &edit, const QString &name)
{
    MvEventGroup group = current();
    if (m_isShowing || !group.isValid())
        return;
    edit(group);
    m_groups.change(group, name);
}

void MvGroupsDialog::askAndRemove()
{
    const MvEventGroup group = current();
    if (!group.isValid())
        return;
    const MvCalendarEventList events = m_edits->session().entries().activeEventList();
    const auto count = std::count_if(events.cbegin(), events.cend(), [&group](const MvCalendarEvent &event) {
        return event.groups().contains(group.id);
    });
    const auto remove = [this, id = group.id](bool yes) {
        if (yes)
            m_groups.remove(id);
    };
    if (count == 0) {
        remove(true);
        return;
    }
    MvRequestHandler::ChoiceRequest question;
    question.title = tr("Gruppe entfernen?");
    question.text = tr("Die Gruppe „%1“ entfernen?").arg(MvPrintableText::inShort(group.name));
    question.details =
        tr("%n Einträge gehören zu ihr. Sie bleiben im Kalender und verlieren nur diese Gruppe.", nullptr, int(count));
    question.buttons = QStringList{tr("Entfernen"), tr("Abbrechen")};
    MvYesNoRequest::instance().request(question, this, remove);
}
