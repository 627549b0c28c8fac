// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvDialogRequestHandler.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QWidget *windowOf(QObject *asker)
{
    const auto *widget = qobject_cast<QWidget *>(asker);
    return widget ? widget->window() : QApplication::activeWindow();
}

/// The suffix of the filter's first pattern, which a typed name without one gets.
QString suffixOf(const QString &filter)
{
    static const QRegularExpression pattern(uR"(\*\.(\w+))"_s);
    return pattern.match(filter).captured(1);
}

QMessageBox *messageBox(QMessageBox::Icon icon, const QString &title, const QString &text, QObject *asker)
{
    auto *box = new QMessageBox(icon, title, text, QMessageBox::NoButton, windowOf(asker));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // file names are no markup
    return box;
}

} // namespace

MvDialogRequestHandler::MvDialogRequestHandler() = default;
MvDialogRequestHandler::~MvDialogRequestHandler() = default;

void MvDialogRequestHandler::setFolderMemory(const std::function<QString(int)> &given,
                                             const std::function<void(int, const QString &)> &keep)
{
    m_givenFolder = given;
    m_keepFolder = keep;
}

/// Never none: the toolkit would take the folder of whatever was chosen last.
QString MvDialogRequestHandler::folderFor(const FileRequest &request) const
{
    QString folder = m_givenFolder ? m_givenFolder(request.kind) : QString();
    if (folder.isEmpty())
        folder = m_lastFolders.value(request.kind, request.folder);
    return folder.isEmpty() ? QDir::homePath() : folder;
}

void MvDialogRequestHandler::askForFile(const FileRequest &request, QObject *asker, const FileAnswer &answer)
{
    auto *dialog = new QFileDialog(windowOf(asker), request.title, folderFor(request), request.filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const bool saves = request.mode == FileMode::Save;
    dialog->setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (saves) {
        dialog->setDefaultSuffix(suffixOf(request.filter));
        dialog->selectFile(request.suggestedName);
        QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
            const QFileInfo name(dialog->selectedFiles().value(0)); // the suggested one goes along
            dialog->setDefaultSuffix(suffixOf(filter));
            if (!name.suffix().isEmpty() && !suffixOf(filter).isEmpty())
                dialog->selectFile(name.completeBaseName() + u'.' + suffixOf(filter));
        });
    }
    QObject::connect(dialog, &QFileDialog::finished, dialog, [this, dialog, kind = request.kind, answer](int result) {
        const QString file = result == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
        if (!file.isEmpty() && &MvRequestHandler::current() == this) {
            m_lastFolders.insert(kind, QFileInfo(file).absolutePath());
            if (m_keepFolder)
                m_keepFolder(kind, QFileInfo(file).absolutePath());
        }
        answer(file);
    });
    dialog->open();
}

void MvDialogRequestHandler::askYesNo(const QString &title, const QString &text, QObject *asker,
                                      const YesNoAnswer &answer)
{
    askChoice({title, text, {}, {tr("Ja"), tr("Nein")}}, asker, [answer](int button) { answer(button == 0); });
}

void MvDialogRequestHandler::askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer)
{
    QMessageBox *box = messageBox(QMessageBox::Question, request.title, request.text, asker);
    box->setInformativeText(request.details);
    if (auto *label = box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s))
        label->setTextFormat(Qt::PlainText); // that of the box does not reach it
    QList<QPushButton *> buttons;
    for (const QString &text : request.buttons) {
        const bool isLast = buttons.size() + 1 == request.buttons.size();
        buttons.append(box->addButton(text, isLast ? QMessageBox::NoRole : QMessageBox::YesRole));
    }
    box->setDefaultButton(buttons.last()); // what changes nothing
    box->setEscapeButton(buttons.last());
    QObject::connect(box, &QMessageBox::finished, box, [box, buttons, answer] {
        const auto clicked = buttons.indexOf(qobject_cast<QPushButton *>(box->clickedButton()));
        answer(int(clicked < 0 ? buttons.size() - 1 : clicked));
    });
    box->open();
}

void MvDialogRequestHandler::report(const QString &title, const QString &text, QObject *asker)
{
    QMessageBox *box = messageBox(QMessageBox::Warning, title, text, asker);
    box->addButton(QMessageBox::Ok);
    box->open();
}
