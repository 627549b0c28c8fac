// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvColorSchemaShelf.h"

#include "common/MvStudioMessage.h"
#include "panels/MvColorSchemaPicker.h"
#include "panels/MvSchemaNameDialog.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCore/MvUndoController.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const MvCalendariumColorSchemaID &id)
{
    return MvCalendariumColorSchemaRegistry::instance().name(id);
}

/// A name as a menu shows it: "&" would be a mnemonic.
QString inMenu(QString name)
{
    return name.replace(u'&', u"&&"_s);
}

/// The user's id under which a schema can be renamed and deleted; an invalid one for a shipped schema.
MvCalendariumColorSchemaID userId(const MvCalendariumColorSchemaID &id)
{
    return id.isUserSchema() ? id : MvCalendariumColorSchemaID();
}

} // namespace

MvColorSchemaShelf::MvColorSchemaShelf(const MvUndoController &undo, QWidget *parent)
    : QWidget(parent)
    , m_picker(new MvColorSchemaPicker(this))
    , m_keep(createKeepButton())
    , m_manage(createManageButton())
{
    auto *row = new QHBoxLayout;
    row->addWidget(m_keep);
    row->addStretch(1);
    row->addWidget(m_manage);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_picker);
    column->addLayout(row);
    m_picker->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_picker, &QWidget::customContextMenuRequested, this, &MvColorSchemaShelf::openContextMenu);
    connect(undo.stack(), &QUndoStack::indexChanged, this, [this](int steps) {
        m_own.setUndoSteps(steps);
        reload();
    });
    connect(m_picker, &MvColorSchemaPicker::colorSchemaChosen, this, [this](const MvCalendariumColorSchema &schema) {
        m_own.keepPresent();
        Q_EMIT colorSchemaChosen(schema);
    });
}

QPushButton *MvColorSchemaShelf::createKeepButton()
{
    auto *button = new QPushButton(tr("Eigene Farben behalten …"), this);
    button->setObjectName(u"keepColors"_s);
    button->setToolTip(tr("Gibt den eigenen Farben dieser Seite einen Namen und bietet sie in allen Kalendern an"));
    connect(button, &QPushButton::clicked, this, [this] { askToKeep(m_current); });
    return button;
}

QToolButton *MvColorSchemaShelf::createManageButton()
{
    auto *button = new QToolButton(this);
    button->setObjectName(u"manageSchemata"_s);
    button->setText(tr("Verwalten"));
    button->setToolTip(tr("Farbschemata umbenennen, löschen, aus- und einblenden"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fillMenu(menu, m_picker->currentRow()); });
    button->setMenu(menu);
    return button;
}

void MvColorSchemaShelf::showSchema(const MvCalendariumColorSchema &current,
                                    const QList<MvCalendariumColorSchema> &ofPages)
{
    m_current = current;
    QList<MvCalendariumColorSchema> own;
    for (const MvCalendariumColorSchema &schema : ofPages) {
        if (schema.isValid() && !own.contains(schema) && !MvColorSchemaPicker::registeredId(schema).isValid())
            own.append(schema);
    }
    m_own.update(own);
    reload();
}

void MvColorSchemaShelf::reload()
{
    QList<MvCalendariumColorSchema> own = m_own.colors();
    own.removeIf([](const auto &schema) { return MvColorSchemaPicker::registeredId(schema).isValid(); });
    m_picker->showSchemata(m_current, own);
    m_keep->setEnabled(own.contains(m_current));
}

void MvColorSchemaShelf::forgetUnusedColors()
{
    m_own.forgetUnused();
    reload();
}

void MvColorSchemaShelf::forgetOwnColors()
{
    m_own.clear();
}

// ---- menus

void MvColorSchemaShelf::openContextMenu(const QPoint &position)
{
    const QListWidgetItem *item = m_picker->itemAt(position);
    if (!item)
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(menu, m_picker->row(item));
    menu->popup(m_picker->viewport()->mapToGlobal(position));
}

/// What can be done with the schema of a row, and with all of them.
void MvColorSchemaShelf::fillMenu(QMenu *menu, int row)
{
    qDeleteAll(menu->findChildren<QMenu *>(Qt::FindDirectChildrenOnly)); // which clearing would leave behind
    menu->clear();
    const MvCalendariumColorSchemaID id = m_picker->id(row);
    const MvCalendariumColorSchema schema = m_picker->schema(row);
    const QString name = inMenu(nameOf(id));
    const auto add = [this, menu](const QString &objectName, const QString &text, const auto &task) {
        menu->addAction(text, this, task)->setObjectName(objectName);
    };
    if (schema.isValid() && !id.isValid())
        add(u"keepSchema"_s, tr("Eigene Farben behalten …"), [this, schema] { askToKeep(schema); });
    if (userId(id).isValid()) {
        add(u"renameSchema"_s, tr("„%1“ umbenennen …").arg(name), [this, id] { askToRename(id); });
        add(u"deleteSchema"_s, tr("„%1“ löschen …").arg(name), [this, id] { askToDelete(id); });
    }
    if (id.isValid() && MvCalendariumColorSchemaRegistry::instance().isIgnoredSchema(id))
        add(u"showSchema"_s, tr("„%1“ wieder anbieten").arg(name), [this, id] { hideSchema(id, false); });
    else if (id.isValid())
        add(u"hideSchema"_s, tr("„%1“ ausblenden").arg(name), [this, id] { hideSchema(id, true); });
    menu->addSeparator();
    addHiddenMenu(menu);
    add(u"resetSchemata"_s, tr("Auf die mitgelieferten zurücksetzen …"), [this] { askToReset(); });
}

void MvColorSchemaShelf::addHiddenMenu(QMenu *menu)
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    QMenu *hidden = menu->addMenu(tr("Ausgeblendete"));
    hidden->setObjectName(u"hiddenSchemata"_s);
    for (const MvCalendariumColorSchema &schema : registry.hiddenSchemata()) {
        const MvCalendariumColorSchemaID id = registry.id(schema);
        hidden->addAction(tr("„%1“ wieder anbieten").arg(inMenu(nameOf(id))), this,
                          [this, id] { hideSchema(id, false); });
    }
    hidden->setEnabled(!hidden->isEmpty());
}

// ---- tasks

void MvColorSchemaShelf::askToKeep(const MvCalendariumColorSchema &schema)
{
    const QString usual = tr("Meine Farben");
    QString name = usual;
    for (int number = 2; !MvUserColorSchemata::checkName(name).isOk() && number < 100; ++number)
        name = u"%1 %2"_s.arg(usual).arg(number);
    auto *dialog = new MvSchemaNameDialog(tr("Eigene Farben behalten"), name, {}, this);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, schema] { finish(MvUserColorSchemata::keep(schema, dialog->name())); });
    dialog->open();
}

void MvColorSchemaShelf::askToRename(const MvCalendariumColorSchemaID &id)
{
    auto *dialog = new MvSchemaNameDialog(tr("Farbschema umbenennen"), nameOf(id), id, this);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, id] { finish(MvUserColorSchemata::rename(id, dialog->name())); });
    dialog->open();
}

void MvColorSchemaShelf::askToDelete(const MvCalendariumColorSchemaID &id)
{
    askBefore(u"deleteSchemaQuestion"_s, tr("Das Farbschema „%1“ löschen?").arg(nameOf(id)),
              tr("Kalender, die es zeigen, behalten ihre Farben."), tr("Löschen"),
              [id] { return MvUserColorSchemata::remove(id); });
}

void MvColorSchemaShelf::askToReset()
{
    askBefore(u"resetSchemataQuestion"_s, tr("Alle eigenen Farbschemata löschen und ausgeblendete wieder anbieten?"),
              tr("Kalender, die sie zeigen, behalten ihre Farben."), tr("Zurücksetzen"),
              [] { return MvUserColorSchemata::reset(); });
}

void MvColorSchemaShelf::askBefore(const QString &name, const QString &text, const QString &hint, const QString &doIt,
                                   const std::function<MvUserColorSchemata::Result()> &task)
{
    QMessageBox *box = MvStudioMessage::question(this, name, text, hint);
    QPushButton *agree = box->addButton(doIt, QMessageBox::DestructiveRole);
    QPushButton *cancel =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), QMessageBox::RejectRole);
    agree->setObjectName(u"agreeButton"_s);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, task, agree](QAbstractButton *button) {
        if (button == agree)
            finish(task());
    });
    box->open();
}

void MvColorSchemaShelf::hideSchema(const MvCalendariumColorSchemaID &id, bool hide)
{
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    if (hide)
        registry.setIgnoreSchema(id);
    else
        registry.unsetIgnoreSchema(id);
    reload();
}

/// Colours that lost their schema are the pages' own from now on.
void MvColorSchemaShelf::finish(const MvUserColorSchemata::Result &result)
{
    if (!result.isOk())
        MvStudioMessage::error(this, result.error);
    Q_EMIT schemataChanged();
}
