// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvHelpDialogs.h"

#include "MvGUIWidgets/MvIconRegistry.h"
#include "common/MvStudioMessage.h"

#include <QAction>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QDialog *createDialog(const QString &objectName, const QString &title, QWidget *parent)
{
    auto *dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(objectName);
    dialog->setWindowTitle(title);
    return dialog;
}

void addCloseButton(QDialog *dialog, QVBoxLayout *column)
{
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    column->addWidget(buttons);
}

/// From the first photo to the print shop, with pictures.
QTextBrowser *createGuide(QWidget *parent)
{
    auto *guide = new QTextBrowser(parent);
    guide->setObjectName(u"guideText"_s);
    guide->setAccessibleName(MvHelpDialogs::tr("Anleitung"));
    guide->document()->setDocumentMargin(24.0);
    //: the guide's file in the language
    guide->setSource(QUrl(u"qrc:/guide/"_s + MvHelpDialogs::tr("guide.de.html")));
    return guide;
}

QString keysOf(const QAction *action)
{
    QStringList keys;
    for (const QKeySequence &sequence : action->shortcuts())
        keys.append(sequence.toString(QKeySequence::NativeText));
    keys.removeAll(QString());
    return keys.join(u", "_s);
}

/// What no action stands for.
struct Keys
{
    QString what;
    QString keys;
    QString purpose;
};

QList<Keys> keysOfPage()
{
    return {
        {MvHelpDialogs::tr("Tag"), MvHelpDialogs::tr("Pfeile"),
         MvHelpDialogs::tr("Auf der Seite von Tag zu Tag gehen, am Rand zur nächsten Seite")},
        {MvHelpDialogs::tr("Eintrag"), MvHelpDialogs::tr("Eingabe"),
         MvHelpDialogs::tr("Für den Tag einen Eintrag anlegen oder ändern")},
        {MvHelpDialogs::tr("Zoom des Fotos"), MvHelpDialogs::tr("Strg+Mausrad über dem Foto"),
         MvHelpDialogs::tr("Dem Foto näher kommen oder sich entfernen")},
        {MvHelpDialogs::tr("Rahmen"), MvHelpDialogs::tr("Alt+Ziehen"),
         MvHelpDialogs::tr("Einen Rahmen verschieben; an seinen Ecken ändert sich die Größe")},
        {MvHelpDialogs::tr("Ausschnitt"), MvHelpDialogs::tr("Alt+Pfeile"),
         MvHelpDialogs::tr("Den Ausschnitt des Fotos verschieben")},
        {MvHelpDialogs::tr("Seiten"), MvHelpDialogs::tr("Bild auf, Bild ab, Pos1, Ende"),
         MvHelpDialogs::tr("In den Seiten blättern; das Mausrad tut es auch")},
        {MvHelpDialogs::tr("Zoom"), MvHelpDialogs::tr("Strg+Mausrad"),
         MvHelpDialogs::tr("Die Seite größer oder kleiner zeigen")},
        {MvHelpDialogs::tr("Hand"), MvHelpDialogs::tr("Leertaste"),
         MvHelpDialogs::tr("Gedrückt halten und die Seite mit der Maus verschieben")},
        {MvHelpDialogs::tr("Foto"), MvHelpDialogs::tr("Umschalt beim Ablegen"),
         MvHelpDialogs::tr("Das Foto wird das der Seite, nicht das eines Tages")},
        {MvHelpDialogs::tr("Abbruch"), MvHelpDialogs::tr("Esc"),
         MvHelpDialogs::tr("Das Ziehen am Foto abbrechen, den Tag verlassen")},
    };
}

} // namespace

QDialog *MvHelpDialogs::openShortcuts(const QList<QAction *> &actions, QWidget *parent)
{
    QDialog *dialog = createDialog(u"shortcutsDialog"_s, tr("Hilfe"), parent);
    auto *tabs = new QTabWidget(dialog);
    tabs->addTab(createGuide(tabs), tr("Anleitung"));
    auto *table = new QTreeWidget(tabs);
    tabs->addTab(table, tr("Tastenkürzel"));
    table->setObjectName(u"shortcutTable"_s);
    table->setAccessibleName(tr("Tastenkürzel"));
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setHeaderLabels({tr("Was"), tr("Tasten"), tr("Wozu")});
    for (const QAction *action : actions) {
        const QString keys = keysOf(action);
        if (keys.isEmpty())
            continue;
        auto *row =
            new QTreeWidgetItem(table, {action->text().remove(u'&').remove(u" …"_s), keys, action->statusTip()});
        row->setIcon(0, action->icon());
    }
    for (const Keys &keys : keysOfPage())
        new QTreeWidgetItem(table, {keys.what, keys.keys, keys.purpose});
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setStretchLastSection(true);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(tabs, 1);
    addCloseButton(dialog, column);
    dialog->resize(780, 700);
    dialog->open();
    return dialog;
}

QDialog *MvHelpDialogs::openAbout(QWidget *parent)
{
    QDialog *dialog = createDialog(u"aboutDialog"_s, tr("Über MvCalendar"), parent);
    auto *text = new QLabel(dialog);
    text->setObjectName(u"aboutText"_s);
    text->setTextFormat(Qt::RichText);
    text->setTextInteractionFlags(Qt::TextBrowserInteraction);
    text->setOpenExternalLinks(false);
    text->setWordWrap(true);
    text->setText(tr("<h2>MvCalendar %1</h2>"
                     "<p>Gestaltet Fotokalender und druckt sie: als PDF, als Bilder und auf Papier.</p>"
                     "<p>Gebaut mit Qt %2 und qpdf. Schriften: Lato und EB Garamond (SIL Open Font License). "
                     "Ein Teil der Schulferien stammt aus einer Sammlung unter der Open Database License; "
                     "Näheres steht in docs/third-party.md.</p>")
                      .arg(QCoreApplication::applicationVersion(), QLatin1StringView(qVersion())));
    auto *icon = new QLabel(dialog);
    icon->setPixmap(dialog->windowIcon().pixmap(64));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    auto *column = new QVBoxLayout(dialog);
    column->addLayout(row, 1);
    addCloseButton(dialog, column);
    dialog->setMinimumWidth(dialog->fontMetrics().averageCharWidth() * 80);
    dialog->open();
    return dialog;
}
