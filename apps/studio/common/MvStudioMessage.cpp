#include "common/MvStudioMessage.h"

#include <QAbstractButton>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QMessageBox *createBox(QWidget *parent, QMessageBox::Icon icon, const QString &text, const QString &hint)
{
    auto *box = new QMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(icon);
    box->setWindowTitle(u"MvCalendar"_s);
    box->setTextFormat(Qt::PlainText); // names of files may look like markup
    box->setText(text);
    box->setInformativeText(hint);
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
    if (lines.size() <= most)
        return lines.join(u'\n');
    return QStringList(lines.mid(0, most)).join(u'\n') + u'\n' + tr("… und %1 weitere").arg(lines.size() - most);
}
