// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvStudioMessage.h"

#include "MvCore/MvStringHelper.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 200; // of a list in a message; longer names make windows larger than the screen

QMessageBox *createBox(QWidget *parent, QMessageBox::Icon icon, const QString &text, const QString &hint)
{
    auto *box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(icon);
    box->setWindowTitle(u"MvCalendar"_s);
    box->setTextFormat(Qt::PlainText); // names of files and people may look like markup
    box->setText(text);
    box->setInformativeText(hint);
    if (auto *label = box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s))
        label->setTextFormat(Qt::PlainText); // that of the box does not reach it
    return box;
}

QMessageBox *openWithOk(QMessageBox *box, const QString &objectName)
{
    box->setObjectName(objectName);
    QPushButton *ok = box->addButton(QMessageBox::Ok);
    ok->setText(MvStudioMessage::buttonText(QDialogButtonBox::Ok));
    box->open();
    return box;
}

} // namespace

QMessageBox *MvStudioMessage::error(QWidget *parent, const QString &text, const QString &hint)
{
    return openWithOk(createBox(parent, QMessageBox::Warning, text, hint), u"errorMessage"_s);
}

QMessageBox *MvStudioMessage::information(QWidget *parent, const QString &text, const QString &hint)
{
    return openWithOk(createBox(parent, QMessageBox::Information, text, hint), u"informationMessage"_s);
}

QMessageBox *MvStudioMessage::question(QWidget *parent, const QString &objectName, const QString &text,
                                       const QString &hint)
{
    QMessageBox *box = createBox(parent, QMessageBox::Question, text, hint);
    box->setObjectName(objectName);
    return box;
}

QString MvStudioMessage::buttonText(QDialogButtonBox::StandardButton button)
{
    switch (button) {
    case QDialogButtonBox::Ok:
        return tr("OK");
    case QDialogButtonBox::Cancel:
        return tr("Abbrechen");
    case QDialogButtonBox::Close:
        return tr("Schließen");
    case QDialogButtonBox::Save:
        return tr("Speichern");
    case QDialogButtonBox::Discard:
        return tr("Verwerfen");
    case QDialogButtonBox::Open:
        return tr("Öffnen");
    default:
        return {};
    }
}

QDialogButtonBox *MvStudioMessage::createButtonBox(QDialogButtonBox::StandardButtons buttons, QWidget *parent)
{
    auto *box = new QDialogButtonBox(buttons, parent);
    for (QAbstractButton *button : box->buttons())
        if (const QString text = buttonText(box->standardButton(button)); !text.isEmpty())
            button->setText(text);
    for (QAbstractButton *button : box->buttons())
        button->setIcon({}); // the style's own do not go with the program's
    return box;
}

QString MvStudioMessage::shortened(const QStringList &lines, int most)
{
    QStringList shown;
    for (const QString &line : lines.mid(0, most)) {
        const QString start = MvStringHelper::beginning(line, longestLine);
        shown.append(start.size() < line.size() ? start + u'…' : line);
    }
    if (lines.size() > most)
        shown.append(tr("… und %1 weitere").arg(lines.size() - most));
    return shown.join(u'\n');
}
