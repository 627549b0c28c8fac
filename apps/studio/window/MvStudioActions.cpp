// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvStudioActions.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    MvStudioActions::Id id;
    const char *name;
    const char *icon;
    QKeySequence shortcut;
    QString text;
    QString tip;
};

QList<Row> fileRows()
{
    using A = MvStudioActions;
    return {
        {A::New, "newProject", "document_new", QKeySequence::New, MvStudioActions::tr("&Neu …"),
         MvStudioActions::tr("Einen neuen Kalender beginnen")},
        {A::Open, "openProject", "document_open", QKeySequence::Open, MvStudioActions::tr("Ö&ffnen …"),
         MvStudioActions::tr("Einen gespeicherten Kalender öffnen")},
        {A::Save, "saveProject", "document_save", QKeySequence::Save, MvStudioActions::tr("&Speichern"),
         MvStudioActions::tr("Den Kalender speichern")},
        {A::SaveAs, "saveProjectAs", "document_save_as", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
         MvStudioActions::tr("Speichern &unter …"), MvStudioActions::tr("Den Kalender unter anderem Namen speichern")},
        {A::ExportPdf, "exportPdf", "export_pdf", QKeySequence(Qt::CTRL | Qt::Key_E),
         MvStudioActions::tr("Als &PDF exportieren …"),
         MvStudioActions::tr("Den Kalender als PDF für die Druckerei schreiben")},
        {A::ExportPng, "exportPng", "export_png", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
         MvStudioActions::tr("Als B&ilder exportieren …"), MvStudioActions::tr("Jede Seite als PNG-Bild schreiben")},
        {A::PrintCheck,
         "printCheck",
         "warning",
         {},
         MvStudioActions::tr("Vor dem D&ruck prüfen …"),
         MvStudioActions::tr("Alles auflisten, was nicht gut gedruckt würde")},
        {A::Print, "print", "print", QKeySequence::Print, MvStudioActions::tr("&Drucken …"),
         MvStudioActions::tr("Die Druckvorschau zeigen und den Kalender drucken")},
        {A::ImportBirthdays, "importBirthdays", "import_contacts", QKeySequence(Qt::CTRL | Qt::Key_I),
         MvStudioActions::tr("&Geburtstage importieren …"),
         MvStudioActions::tr("Geburtstage aus einem Adressbuch (vCard) übernehmen")},
        {A::ImportDates, "importDates", "entries", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I),
         MvStudioActions::tr("&Termine importieren …"),
         MvStudioActions::tr("Termine aus einem Kalender (iCalendar), einer Tabelle oder einer Liste übernehmen")},
        {A::Quit, "quit", "quit", QKeySequence(Qt::CTRL | Qt::Key_Q), MvStudioActions::tr("&Beenden"),
         MvStudioActions::tr("Das Programm beenden")},
        {A::Settings, "settings", "settings", QKeySequence(Qt::CTRL | Qt::Key_Comma),
         MvStudioActions::tr("&Einstellungen …"), MvStudioActions::tr("Sprache und Farben des Programms wählen")},
    };
}

QList<Row> viewRows()
{
    using A = MvStudioActions;
    return {
        {A::ZoomIn, "zoomIn", "zoom_in", QKeySequence(Qt::CTRL | Qt::Key_Plus), MvStudioActions::tr("Ver&größern"),
         MvStudioActions::tr("Die Seite größer zeigen")},
        {A::ZoomOut, "zoomOut", "zoom_out", QKeySequence(Qt::CTRL | Qt::Key_Minus), MvStudioActions::tr("Ver&kleinern"),
         MvStudioActions::tr("Die Seite kleiner zeigen")},
        {A::ZoomFit, "zoomFit", "zoom_fit", QKeySequence(Qt::CTRL | Qt::Key_0), MvStudioActions::tr("Ganze S&eite"),
         MvStudioActions::tr("Die Seite so groß zeigen, dass sie ganz zu sehen ist")},
        {A::Zoom100, "zoom100", "zoom_100", QKeySequence(Qt::CTRL | Qt::Key_1), MvStudioActions::tr("&Originalgröße"),
         MvStudioActions::tr("Die Seite so groß zeigen, wie sie gedruckt wird")},
        {A::FullScreen, "fullScreen", "full_screen", QKeySequence(Qt::Key_F11), MvStudioActions::tr("&Vollbild"),
         MvStudioActions::tr("Das Fenster über den ganzen Bildschirm breiten")},
        {A::PrintMarks,
         "printMarks",
         "page_setup",
         {},
         MvStudioActions::tr("Schnitt, Rand und &Bindung"),
         MvStudioActions::tr("Auf der Seite zeigen, wo geschnitten und gebunden wird und wo nichts stehen sollte")},
        {A::Welcome,
         "showWelcome",
         "welcome",
         {},
         MvStudioActions::tr("&Startseite"),
         MvStudioActions::tr("Einen neuen Kalender beginnen oder einen der letzten öffnen")},
        {A::Shortcuts, "shortcuts", "help", QKeySequence(Qt::Key_F1),
         MvStudioActions::tr("&Anleitung und Tastenkürzel"),
         MvStudioActions::tr("Zeigen, wie aus Fotos ein Kalender wird, und alle Tastenkürzel auflisten")},
        {A::About,
         "about",
         "about",
         {},
         MvStudioActions::tr("Ü&ber MvCalendar"),
         MvStudioActions::tr("Version und Bestandteile des Programms")},
    };
}

QList<Row> pageRows()
{
    using A = MvStudioActions;
    return {
        {A::PreviousPage, "previousPage", "page_previous", QKeySequence(Qt::CTRL | Qt::Key_PageUp),
         MvStudioActions::tr("&Vorige Seite"), MvStudioActions::tr("Zur vorigen Seite gehen")},
        {A::NextPage, "nextPage", "page_next", QKeySequence(Qt::CTRL | Qt::Key_PageDown),
         MvStudioActions::tr("&Nächste Seite"), MvStudioActions::tr("Zur nächsten Seite gehen")},
        {A::FirstPage, "firstPage", "page_first", QKeySequence(Qt::CTRL | Qt::Key_Home),
         MvStudioActions::tr("&Erste Seite"), MvStudioActions::tr("Zur ersten Seite gehen")},
        {A::LastPage, "lastPage", "page_last", QKeySequence(Qt::CTRL | Qt::Key_End),
         MvStudioActions::tr("Le&tzte Seite"), MvStudioActions::tr("Zur letzten Seite gehen")},
        {A::AddPage,
         "addPage",
         "document_new",
         {},
         MvStudioActions::tr("Seite e&infügen"),
         MvStudioActions::tr("Hinter der gezeigten Seite eine weitere für Fotos einfügen")},
        {A::AddCover,
         "addCover",
         "page_first",
         {},
         MvStudioActions::tr("Tite&lblatt einfügen"),
         MvStudioActions::tr("Dem Kalender ein Titelblatt geben")},
        {A::AddBack,
         "addBack",
         "page_last",
         {},
         MvStudioActions::tr("&Rückseite einfügen"),
         MvStudioActions::tr("Dem Kalender eine Rückseite geben")},
        {A::DuplicatePage,
         "duplicatePage",
         "document_save_as",
         {},
         MvStudioActions::tr("Seite verd&oppeln"),
         MvStudioActions::tr("Hinter der gezeigten Seite eine einfügen, die ihr gleicht")},
        {A::MovePageUp, "movePageUp", "page_previous", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageUp),
         MvStudioActions::tr("Nach vorn s&chieben"), MvStudioActions::tr("Die gezeigte Seite vor die vorige schieben")},
        {A::MovePageDown, "movePageDown", "page_next", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageDown),
         MvStudioActions::tr("Nach &hinten schieben"),
         MvStudioActions::tr("Die gezeigte Seite hinter die nächste schieben")},
        {A::RemovePage,
         "removePage",
         "remove",
         {},
         MvStudioActions::tr("Seite ent&fernen"),
         MvStudioActions::tr("Die gezeigte Seite entfernen; Seiten von Monaten bleiben")},
        {A::NextElement, "nextElement", "layout", QKeySequence(Qt::Key_F7),
         MvStudioActions::tr("&Nächsten Rahmen wählen"),
         MvStudioActions::tr("Auf der Seite von Foto zu Foto und Text zu Text gehen")},
    };
}

QList<Row> frameRows()
{
    using A = MvStudioActions;
    const QKeySequence none;
    return {
        {A::AddFotoFrame, "addPhotoFrame", "photo_add", none, MvStudioActions::tr("&Fotorahmen einfügen"),
         MvStudioActions::tr("Einen Rahmen für ein weiteres Foto auf die Seite setzen")},
        {A::AddTextFrame, "addTextFrame", "text_frame", none, MvStudioActions::tr("&Textrahmen einfügen"),
         MvStudioActions::tr("Ein paar Worte auf die Seite setzen")},
        {A::AddSmallMonth, "addSmallMonth", "layout", none, MvStudioActions::tr("Kleinen &Monat einfügen"),
         MvStudioActions::tr("Den nächsten Monat klein auf die Seite setzen")},
        {A::DuplicateFrame, "duplicateFrame", "duplicate", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D),
         MvStudioActions::tr("Rahmen ver&doppeln"),
         MvStudioActions::tr("Neben die gewählten Rahmen solche setzen, die ihnen gleichen")},
        {A::RemoveFrame, "removeFrame", "remove", QKeySequence(Qt::SHIFT | Qt::Key_Delete),
         MvStudioActions::tr("Rahmen &löschen"), MvStudioActions::tr("Die gewählten Rahmen von der Seite nehmen")},
        {A::FrameToFront, "frameToFrontAction", "to_front", none, MvStudioActions::tr("Ganz nach &vorn"),
         MvStudioActions::tr("Die gewählten Rahmen über alle anderen legen")},
        {A::FrameToBack, "frameToBackAction", "to_back", none, MvStudioActions::tr("Ganz nach &hinten"),
         MvStudioActions::tr("Die gewählten Rahmen unter alle anderen legen")},
        {A::PlaceFrame, "placeFrame", "page_setup", none, MvStudioActions::tr("La&ge und Größe"),
         MvStudioActions::tr("Den gewählten Rahmen nach Maß setzen und mit anderen ausrichten")},
        {A::FreeFrames, "freeFrames", "layout", none, MvStudioActions::tr("Rahmen frei &anordnen"),
         MvStudioActions::tr("Foto und Kalender der Seite einzeln verschiebbar machen")},
    };
}

QList<Row> fotoRows()
{
    using A = MvStudioActions;
    return {
        {A::AddFotos, "addPhotos", "photo_add", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A),
         MvStudioActions::tr("Fotos hin&zufügen …"),
         MvStudioActions::tr("Fotos zum Kalender nehmen; sie liegen dann unter der Seite bereit")},
        {A::AddFolder,
         "addPhotoFolder",
         "document_open",
         {},
         MvStudioActions::tr("&Ordner hinzufügen …"),
         MvStudioActions::tr("Alle Fotos eines Ordners zum Kalender nehmen")},
        {A::Distribute, "distributePhotos", "content", QKeySequence(Qt::CTRL | Qt::Key_D),
         MvStudioActions::tr("Auf die Seiten &verteilen"),
         MvStudioActions::tr("Die leeren Rahmen füllen: Jedes Foto kommt in seinen Monat")},
        {A::ChooseFoto, "choosePhoto", "photo_add", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F),
         MvStudioActions::tr("&Foto wählen …"), MvStudioActions::tr("Der gezeigten Seite ein Foto geben")},
        {A::RemoveFoto,
         "removePhoto",
         "remove",
         {},
         MvStudioActions::tr("Foto entfe&rnen"),
         MvStudioActions::tr("Das Foto der gezeigten Seite entfernen")},
        {A::FindFotos,
         "findPhotos",
         "photo_add",
         {},
         MvStudioActions::tr("Feh&lende Fotos suchen …"),
         MvStudioActions::tr("Fotos, die nicht mehr an ihrem Platz sind, in einem Ordner wiederfinden")},
    };
}

QList<Row> lookRows()
{
    using A = MvStudioActions;
    const QKeySequence none;
    return {
        {A::Theme, "chooseTheme", "colors", QKeySequence(Qt::CTRL | Qt::Key_T),
         MvStudioActions::tr("&Gestaltung wählen"),
         MvStudioActions::tr("Layout, Farben, Schriften und Vorlagen aller Seiten auf einmal wählen")},
        {A::Template,
         "chooseTemplate",
         "layout",
         {},
         MvStudioActions::tr("&Vorlage der Seite"),
         MvStudioActions::tr("Wählen, wie Fotos, Texte und Kalender auf der Seite stehen")},
        {A::Layout, "chooseLayout", "layout", QKeySequence(Qt::CTRL | Qt::Key_L),
         MvStudioActions::tr("&Layout wählen …"), MvStudioActions::tr("Ein Layout für alle Seiten aus Bildern wählen")},
        {A::Groups, "groups", "entries", none, MvStudioActions::tr("&Gruppen und Alter …"),
         MvStudioActions::tr("Einträge zu Gruppen mit Farben ordnen, und wählen, welche der Kalender zeigt")},
        {A::PageSetup, "pageSetup", "page_setup", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
         MvStudioActions::tr("&Papier und Zeitraum …"),
         MvStudioActions::tr("Papier, Ausrichtung und Monate des Kalenders ändern")},
    };
}

} // namespace

MvStudioActions::MvStudioActions(QWidget *parent)
    : QObject(parent)
{
    for (const Row &row : fileRows() + viewRows() + pageRows() + frameRows() + fotoRows() + lookRows()) {
        auto *action = new QAction(row.text, parent);
        action->setObjectName(QLatin1StringView(row.name));
        action->setShortcut(row.shortcut);
        action->setStatusTip(row.tip);
        QString name = row.text;
        name.remove(u'&').remove(u" …"_s);
        const QString keys = row.shortcut.toString(QKeySequence::NativeText);
        action->setToolTip(keys.isEmpty() ? name : u"%1 (%2)"_s.arg(name, keys));
        action->setIcon(MvIconRegistry::instance().icon(u"ico_studio_"_s + QLatin1StringView(row.icon)));
        m_actions.insert(row.id, action);
        m_inOrder.append(action);
    }
    qApp->installEventFilter(this);
    m_actions.value(Quit)->setMenuRole(QAction::QuitRole);
    m_actions.value(About)->setMenuRole(QAction::AboutRole);
    m_actions.value(Settings)->setMenuRole(QAction::PreferencesRole);
    m_actions.value(FullScreen)->setCheckable(true);
    m_actions.value(Welcome)->setCheckable(true);
    m_actions.value(PrintMarks)->setCheckable(true);
}

bool MvStudioActions::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::ShortcutOverride || widget == nullptr || widget->window() != parent())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isLetter = key->key() >= Qt::Key_A && key->key() <= Qt::Key_Z;
    if (!isLetter || !(key->modifiers() & Qt::ControlModifier))
        return false;
    const QKeySequence keys(key->keyCombination());
    for (const QAction *action : m_inOrder) {
        if (action->isEnabled() && action->shortcuts().contains(keys)) {
            event->ignore(); // no key of the widget's own
            return true;
        }
    }
    return false;
}
