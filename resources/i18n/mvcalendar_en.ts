<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>MvActionRegistry</name>
    <message>
        <source>Eintrag bearbeiten…</source>
        <translation>Edit entry…</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
</context>
<context>
    <name>MvAddressBookImport</name>
    <message>
        <source>Das Bild ist zu groß.</source>
        <translation>The picture is too large.</translation>
    </message>
</context>
<context>
    <name>MvBackground</name>
    <message>
        <source>das Betriebssystem gibt dem Programm keinen Thread, um Seiten zu malen; die Grenze für Prozesse oder Speicher ist erreicht</source>
        <translation>the operating system gives the program no thread to paint pages with; the limit of processes or of memory is reached</translation>
    </message>
</context>
<context>
    <name>MvBatchCommand</name>
    <message>
        <source>druckt viele Kalender, je Zeile einer Auftragsliste einen</source>
        <translation>prints many calendars, one for each line of a list of orders</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>die Aufträge, je Zeile ein JSON-Objekt mit Optionen von render: {&quot;id&quot;: &quot;4711&quot;, &quot;year&quot;: 2027, &quot;region&quot;: &quot;BY&quot;, &quot;output&quot;: &quot;4711.pdf&quot;}; - ist die Standardeingabe; --list kann wegbleiben</source>
        <translation>the orders, on each line a JSON object of options of render: {&quot;id&quot;: &quot;4711&quot;, &quot;year&quot;: 2027, &quot;region&quot;: &quot;BY&quot;, &quot;output&quot;: &quot;4711.pdf&quot;}; - is the standard input; --list can be left out</translation>
    </message>
    <message>
        <source>ZAHL</source>
        <translation>NUMBER</translation>
    </message>
    <message>
        <source>so viele Kalender zugleich (je Kern einen)</source>
        <translation>so many calendars at a time (one for each core)</translation>
    </message>
    <message>
        <source>Bericht, je Kalender eine Zeile JSON (Standardausgabe); ein zweiter Lauf mit derselben Datei lässt aus, was fertig und unverändert ist</source>
        <translation>report, a line of JSON for each calendar (standard output); a second run with the same file leaves out what is done and unchanged</translation>
    </message>
    <message>
        <source>SEKUNDEN</source>
        <translation>SECONDS</translation>
    </message>
    <message>
        <source>wer länger braucht, wird abgebrochen (%1)</source>
        <translation>what takes longer is ended (%1)</translation>
    </message>
    <message>
        <source>wer mehr Speicher braucht, wird abgebrochen (%1)</source>
        <translation>what needs more memory is ended (%1)</translation>
    </message>
    <message>
        <source>nur den K-ten von N Teilen der Liste, für mehrere Rechner</source>
        <translation>only the Kth of N parts of the list, for several computers</translation>
    </message>
    <message>
        <source>--shard „%1“: erlaubt sind Teile wie 1/8 bis 8/8</source>
        <translation>--shard “%1”: allowed are parts such as 1/8 to 8/8</translation>
    </message>
    <message>
        <source>es fehlt die Liste der Aufträge: mvcalendar batch auftraege.jsonl</source>
        <translation>the list of orders is missing: mvcalendar batch orders.jsonl</translation>
    </message>
    <message>
        <source>unterbrochen nach %1 von %2 Kalendern; derselbe Aufruf macht weiter</source>
        <translation>interrupted after %1 of %2 calendars; the same call goes on</translation>
    </message>
    <message>
        <source>%1 von %2 Kalendern sind nicht gemacht</source>
        <translation>%1 of %2 calendars are not made</translation>
    </message>
</context>
<context>
    <name>MvBatchJob</name>
    <message>
        <source>kein gültiges JSON ab Zeichen %1 (%2)</source>
        <translation>no valid JSON from character %1 on (%2)</translation>
    </message>
    <message>
        <source>jede Zeile muss ein JSON-Objekt sein, {&quot;year&quot;: 2027, &quot;output&quot;: &quot;kalender.pdf&quot;}</source>
        <translation>each line must be a JSON object, {&quot;year&quot;: 2027, &quot;output&quot;: &quot;calendar.pdf&quot;}</translation>
    </message>
    <message>
        <source>„%1“: erlaubt sind Text, Zahl, true, false und Listen davon</source>
        <translation>“%1”: allowed are text, number, true, false and lists of these</translation>
    </message>
    <message>
        <source>„id“: erlaubt sind Text und Zahl</source>
        <translation>“id”: allowed are text and number</translation>
    </message>
    <message>
        <source>--%1 gibt es in einem Stapel nicht</source>
        <translation>--%1 does not exist in a batch</translation>
    </message>
    <message>
        <source>es fehlt „output“, der Name der Datei</source>
        <translation>“output”, the name of the file, is missing</translation>
    </message>
    <message>
        <source>„%1“: in einem Stapel sind nur Dateien erlaubt</source>
        <translation>“%1”: in a batch only files are allowed</translation>
    </message>
</context>
<context>
    <name>MvBatchList</name>
    <message>
        <source>Standardeingabe</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>die Zeile ist länger als %1 MB</source>
        <translation>the line is longer than %1 MB</translation>
    </message>
    <message>
        <source>%1 ist zweimal angegeben</source>
        <translation>%1 is given twice</translation>
    </message>
    <message>
        <source>%2 schreibt auch Zeile %1; keiner der beiden Kalender wird gemacht</source>
        <translation>%2 is written by line %1, too; neither of the two calendars is made</translation>
    </message>
    <message>
        <source>%1, Zeile %2</source>
        <translation>%1, line %2</translation>
    </message>
</context>
<context>
    <name>MvBatchProcess</name>
    <message numerus="yes">
        <source>nicht fertig nach %n Sekunden (--time-limit)</source>
        <translation>
            <numerusform>not done after %n second (--time-limit)</numerusform>
            <numerusform>not done after %n seconds (--time-limit)</numerusform>
        </translation>
    </message>
    <message>
        <source>der Arbeitsprozess ließ sich nicht starten: %1</source>
        <translation>the worker could not be started: %1</translation>
    </message>
    <message>
        <source>der Arbeitsprozess endete durch Signal %1</source>
        <translation>the worker was ended by signal %1</translation>
    </message>
    <message>
        <source>der Arbeitsprozess endete mit Rückgabewert %1</source>
        <translation>the worker ended with exit code %1</translation>
    </message>
    <message>
        <source>erlaubt sind %1 MB Speicher (--memory-limit)</source>
        <translation>%1 MB of memory are allowed (--memory-limit)</translation>
    </message>
</context>
<context>
    <name>MvBatchProgress</name>
    <message>
        <source>unverändert</source>
        <translation>unchanged</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 von %2 Kalendern, davon unverändert %3, misslungen %4</source>
        <translation>%1 of %2 calendars, of these unchanged %3, failed %4</translation>
    </message>
    <message numerus="yes">
        <source>noch etwa %n Sekunden</source>
        <translation>
            <numerusform>about %n second left</numerusform>
            <numerusform>about %n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>noch etwa %n Minuten</source>
        <translation>
            <numerusform>about %n minute left</numerusform>
            <numerusform>about %n minutes left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvBatchReport</name>
    <message>
        <source>%1 ist keine Datei</source>
        <translation>%1 is not a file</translation>
    </message>
    <message>
        <source>%1 gehört einem anderen Lauf, der noch nicht fertig ist</source>
        <translation>%1 belongs to another run, which is not done yet</translation>
    </message>
    <message>
        <source>%1, Zeile %2: das ist kein Bericht eines Stapels; er bleibt, wie er ist</source>
        <translation>%1, line %2: this is not a report of a batch; it stays as it is</translation>
    </message>
    <message>
        <source>die Standardausgabe</source>
        <translation>the standard output</translation>
    </message>
    <message>
        <source>%1: der Bericht lässt sich nicht schreiben: %2</source>
        <translation>%1: the report cannot be written: %2</translation>
    </message>
</context>
<context>
    <name>MvBirthdayImport</name>
    <message>
        <source>Geburtstage aus einem Adressbuch importieren</source>
        <translation>Import birthdays from an address book</translation>
    </message>
    <message>
        <source>Visitenkarten (*.vcf *.vcard)</source>
        <translation>Contact cards (*.vcf *.vcard)</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Das Adressbuch wird gelesen …</source>
        <translation>Reading the address book …</translation>
    </message>
    <message>
        <source>Geburtstage importieren</source>
        <translation>Import birthdays</translation>
    </message>
    <message>
        <source>Import abgebrochen; es wurde nichts übernommen</source>
        <translation>Import cancelled; nothing was taken over</translation>
    </message>
    <message>
        <source>Ist mit „%1“ der %2 gemeint?</source>
        <translation>Does “%1” mean %2?</translation>
    </message>
    <message>
        <source>In der Datei steht nirgends, ob der Tag oder der Monat vorn steht. Ihre Antwort gilt für alle Daten, die so geschrieben sind.</source>
        <translation>Nothing in the file says whether the day or the month comes first. Your answer holds for all dates that are written like this.</translation>
    </message>
    <message>
        <source>Ja, der %1</source>
        <translation>Yes, %1</translation>
    </message>
    <message>
        <source>Nein, der %1</source>
        <translation>No, %1</translation>
    </message>
    <message>
        <source>Diese auslassen</source>
        <translation>Leave these out</translation>
    </message>
    <message>
        <source>Ein anderes Programm arbeitet gerade mit der Datei; gespeichert wird danach.</source>
        <translation>Another program is working with the file; it will be saved afterwards.</translation>
    </message>
    <message>
        <source>d. MMMM</source>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>Keine Geburtstage übernommen</source>
        <translation>No birthdays taken over</translation>
    </message>
</context>
<context>
    <name>MvCalendarCellType</name>
    <message>
        <source>Titel</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Werktag</source>
        <translation>Weekday</translation>
    </message>
    <message>
        <source>Samstag</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Sonntag</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Besonderer Tag</source>
        <translation>Special day</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Leer</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>Extra Information</source>
        <translation>Extra information</translation>
    </message>
    <message>
        <source>Überschrift Werktag</source>
        <translation>Heading, weekday</translation>
    </message>
    <message>
        <source>Überschrift Samstag</source>
        <translation>Heading, Saturday</translation>
    </message>
    <message>
        <source>Überschrift Sonntag</source>
        <translation>Heading, Sunday</translation>
    </message>
    <message>
        <source>Überschrift sonstige</source>
        <translation>Heading, other</translation>
    </message>
    <message>
        <source>Wochentag</source>
        <translation>Day of the week</translation>
    </message>
    <message>
        <source>Kalenderwoche</source>
        <translation>Calendar week</translation>
    </message>
    <message>
        <source>Monat</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Jahr</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Feiertag</source>
        <translation>Holiday</translation>
    </message>
    <message>
        <source>Überschrift Feiertag</source>
        <translation>Heading, holiday</translation>
    </message>
    <message>
        <source>Schulferien</source>
        <translation>School holidays</translation>
    </message>
    <message>
        <source>Überschrift Schulferien</source>
        <translation>Heading, school holidays</translation>
    </message>
</context>
<context>
    <name>MvCalendarDayEditorDialog</name>
    <message>
        <source>Kalendereintrag bearbeiten</source>
        <translation>Edit calendar entry</translation>
    </message>
    <message>
        <source>Mein Termin / Ereignis</source>
        <translation>My appointment / event</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Bestätigt den Termin und ermöglicht es, direkt einen Weiteren anzulegen.</source>
        <translation>Confirms the appointment and lets you create another one right away.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Der Eintrag „%1“ ist inzwischen gelöscht worden. Das Fenster dafür ist deshalb geschlossen.</source>
        <translation>The entry “%1” has been deleted meanwhile. Its window is therefore closed.</translation>
    </message>
    <message>
        <source>Der Eintrag „%1“ ist inzwischen gelöscht worden. „OK“ legt ihn mit Ihren Angaben neu an.</source>
        <translation>The entry “%1” has been deleted meanwhile. “OK” makes it anew from what you have entered.</translation>
    </message>
    <message>
        <source>Ein Klick auf die Fläche wählt ein Foto aus.</source>
        <translation>A click on the area chooses a photo.</translation>
    </message>
    <message>
        <source>Eintrag &amp;löschen</source>
        <translation>&amp;Delete entry</translation>
    </message>
    <message>
        <source>&amp;Abbrechen</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>OK und &amp;weiter</source>
        <translation>OK and &amp;next</translation>
    </message>
</context>
<context>
    <name>MvCalendarEvent</name>
    <message>
        <source>„%1“ als %2 ist nicht zu lesen</source>
        <translation>“%1” as %2 cannot be read</translation>
    </message>
    <message>
        <source>die Wiederholung ist nicht zu verstehen: %1</source>
        <translation>the repetition cannot be understood: %1</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventContacts</name>
    <message>
        <source>%1 von %2 Einträgen mit Geburtstagen importiert</source>
        <translation>%1 of %2 entries with birthdays imported</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventDateEdit</name>
    <message>
        <source>Jahr unbekannt</source>
        <translation>Year unknown</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Der Eintrag hat nur Tag und Monat, etwa ein Geburtstag, dessen Jahr Sie nicht kennen.</source>
        <translation>The entry has day and month alone, such as a birthday whose year you do not know.</translation>
    </message>
    <message>
        <source>Tag und Monat</source>
        <translation>Day and month</translation>
    </message>
    <message>
        <source>Tag, Monat und Jahr</source>
        <translation>Day, month and year</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventDelegateEditDeleteWidget</name>
    <message>
        <source>Eintrag bearbeiten</source>
        <translation>Edit entry</translation>
    </message>
    <message>
        <source>„%1“ bearbeiten</source>
        <translation>Edit “%1”</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
    <message>
        <source>„%1“ löschen</source>
        <translation>Delete “%1”</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFile</name>
    <message numerus="yes">
        <source>%1: %n Fotos liegen außerhalb der erlaubten Ordner und werden nicht geladen, zuerst %2</source>
        <translation>
            <numerusform>%1: %n photo lies outside the permitted folders and is not loaded: %2</numerusform>
            <numerusform>%1: %n photos lie outside the permitted folders and are not loaded, the first being %2</numerusform>
        </translation>
    </message>
    <message>
        <source>der Name fehlt</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>das Datum fehlt</source>
        <translation>the date is missing</translation>
    </message>
    <message>
        <source>das Datum „%1“ ist nicht zu lesen</source>
        <translation>the date “%1” cannot be read</translation>
    </message>
    <message>
        <source>das ist kein Eintrag</source>
        <translation>this is no entry</translation>
    </message>
    <message>
        <source>Das ist keine Liste von Kalendereinträgen; die Datei beginnt mit „%1“ statt mit „%2“.</source>
        <translation>This is no list of calendar entries; the file begins with “%1” instead of “%2”.</translation>
    </message>
    <message>
        <source>Zeile %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>Zeile %1, „%2“: %3</source>
        <translation>Line %1, “%2”: %3</translation>
    </message>
    <message numerus="yes">
        <source>… und %n weitere</source>
        <translation>
            <numerusform>… and %n more</numerusform>
            <numerusform>… and %n more</numerusform>
        </translation>
    </message>
    <message>
        <source>der Gruppe fehlt Kennung oder Name</source>
        <translation>the group lacks its id or name</translation>
    </message>
    <message>
        <source>die Gruppe „%1“ steht zweimal da</source>
        <translation>the group “%1” is there twice</translation>
    </message>
    <message>
        <source>die Farbe „%1“ ist nicht zu lesen</source>
        <translation>the colour “%1” cannot be read</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFileIntake</name>
    <message>
        <source>Kalendereinträge</source>
        <translation>Calendar entries</translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge der Datei sind nicht lesbar:</source>
        <translation>
            <numerusform>%n entry of the file cannot be read:</numerusform>
            <numerusform>%n entries of the file cannot be read:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon stehen nicht in der Datei.</source>
        <translation>
            <numerusform>%n of them is not in the file.</numerusform>
            <numerusform>%n of them are not in the file.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ersetzen</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Die lesbaren Einträge aus „%1“ hinzufügen?</source>
        <translation>Add the readable entries of “%1”?</translation>
    </message>
    <message>
        <source>Die lesbaren Einträge aus „%1“ laden?</source>
        <translation>Load the readable entries of “%1”?</translation>
    </message>
    <message>
        <source>Hinzufügen</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Laden</source>
        <translation>Load</translation>
    </message>
    <message numerus="yes">
        <source>„%1“ ist eine leere Liste. Die %n Einträge dieses Kalenders dennoch durch sie ersetzen?</source>
        <translation>
            <numerusform>“%1” is an empty list. Replace the %n entry of this calendar by it all the same?</numerusform>
            <numerusform>“%1” is an empty list. Replace the %n entries of this calendar by it all the same?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die %n Einträge dieses Kalenders durch die aus „%1“ ersetzen?</source>
        <translation>
            <numerusform>Replace the %n entry of this calendar by those of “%1”?</numerusform>
            <numerusform>Replace the %n entries of this calendar by those of “%1”?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>„%1“ ist eine leere Liste. Ihre %n Einträge dennoch durch sie ersetzen?</source>
        <translation>
            <numerusform>“%1” is an empty list. Replace your %n entry by it all the same?</numerusform>
            <numerusform>“%1” is an empty list. Replace your %n entries by it all the same?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ihre %n Einträge durch die aus „%1“ ersetzen?</source>
        <translation>
            <numerusform>Replace your %n entry by those of “%1”?</numerusform>
            <numerusform>Replace your %n entries by those of “%1”?</numerusform>
        </translation>
    </message>
    <message>
        <source>Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie die bisherigen Einträge wieder.</source>
        <translation>Your own entries and your other calendars stay as they are. “Undo” brings the present entries back.</translation>
    </message>
    <message>
        <source>Die Liste gilt für alle Ihre Kalender, nicht nur für diesen. Mit „Rückgängig“ bekommen Sie die bisherigen Einträge wieder.</source>
        <translation>The list counts for all your calendars, not for this one alone. “Undo” brings your present entries back.</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFotoCopy</name>
    <message>
        <source>Das Foto „%1“ kann nicht gelesen werden. %2</source>
        <translation>The photo “%1” cannot be read. %2</translation>
    </message>
    <message>
        <source>Das Foto „%1“ ließ sich nicht in den Fotoordner kopieren. %2</source>
        <translation>The photo “%1” could not be copied into the photo folder. %2</translation>
    </message>
    <message>
        <source>Das Bild ließ sich nicht umwandeln.</source>
        <translation>The picture could not be converted.</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFotoDelegateEditorWidget</name>
    <message>
        <source>Foto ändern…</source>
        <translation>Change photo…</translation>
    </message>
    <message>
        <source>Foto von „%1“ ändern</source>
        <translation>Change the photo of “%1”</translation>
    </message>
    <message>
        <source>Foto hinzufügen…</source>
        <translation>Add photo…</translation>
    </message>
    <message>
        <source>Foto zu „%1“ hinzufügen</source>
        <translation>Add a photo to “%1”</translation>
    </message>
    <message>
        <source>Foto entfernen</source>
        <translation>Remove photo</translation>
    </message>
    <message>
        <source>Foto von „%1“ entfernen</source>
        <translation>Remove the photo of “%1”</translation>
    </message>
    <message>
        <source>Fotos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>Foto auswählen</source>
        <translation>Choose photo</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFotoIntake</name>
    <message>
        <source>Das Foto „%1“ ist nicht beim Eintrag „%2“: Dessen Kalender ist nicht mehr offen. Öffnen Sie ihn, und wählen Sie das Foto noch einmal.</source>
        <translation>The photo “%1” is not with the entry “%2”: its calendar is no longer open. Open it and choose the photo once more.</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventListWidget</name>
    <message>
        <source>Eigene Einträge</source>
        <translation>Own entries</translation>
    </message>
    <message>
        <source>Noch keine Einträge. Fügen Sie Geburtstage, Jahrestage und andere Termine hinzu, und sie erscheinen in Ihrem Kalender.</source>
        <translation>No entries yet. Add birthdays, anniversaries and other dates, and they will appear in your calendar.</translation>
    </message>
    <message>
        <source>Eintrag hinzufügen...</source>
        <translation>Add entry...</translation>
    </message>
    <message>
        <source>Aus Adressbuch importieren</source>
        <translation>Import from address book</translation>
    </message>
    <message>
        <source>Andere Einträge…</source>
        <translation>Other entries…</translation>
    </message>
    <message>
        <source>Sichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Laden…</source>
        <translation>Load…</translation>
    </message>
    <message>
        <source>Hinzufügen…</source>
        <translation>Add…</translation>
    </message>
    <message>
        <source>Alle löschen…</source>
        <translation>Delete all…</translation>
    </message>
    <message>
        <source>Kalendereinträge</source>
        <translation>Calendar entries</translation>
    </message>
    <message>
        <source>Alle Einträge löschen?</source>
        <translation>Delete all entries?</translation>
    </message>
    <message>
        <source>Ersetzt Ihre Einträge, in allen Ihren Kalendern, durch die einer Datei</source>
        <translation>Replaces your entries, in all your calendars, by those of a file</translation>
    </message>
    <message>
        <source>Fügt die Einträge einer Datei zu Ihren hinzu, in allen Ihren Kalendern</source>
        <translation>Adds the entries of a file to yours, in all your calendars</translation>
    </message>
    <message>
        <source>Löscht Ihre Einträge aus allen Ihren Kalendern</source>
        <translation>Deletes your entries from all your calendars</translation>
    </message>
    <message>
        <source>Ihre Einträge verschwinden aus allen Ihren Kalendern, nicht nur aus diesem. Mit „Rückgängig“ bekommen Sie sie wieder.</source>
        <translation>Your entries will disappear from all your calendars, not from this one alone. “Undo” brings them back.</translation>
    </message>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Einträge suchen</source>
        <translation>Search entries</translation>
    </message>
    <message>
        <source>Einträge hinzufügen</source>
        <translation>Add entries</translation>
    </message>
    <message>
        <source>Einträge laden</source>
        <translation>Load entries</translation>
    </message>
    <message>
        <source>Einträge löschen</source>
        <translation>Delete entries</translation>
    </message>
    <message>
        <source>Aus meinen Einträgen übernehmen…</source>
        <translation>Take over from my entries…</translation>
    </message>
    <message>
        <source>In meine Einträge übernehmen…</source>
        <translation>Take over into my entries…</translation>
    </message>
    <message>
        <source>Ersetzt die Einträge dieses Kalenders durch die einer Datei</source>
        <translation>Replaces the entries of this calendar by those of a file</translation>
    </message>
    <message>
        <source>Fügt die Einträge einer Datei zu denen dieses Kalenders hinzu</source>
        <translation>Adds the entries of a file to those of this calendar</translation>
    </message>
    <message>
        <source>Löscht die Einträge dieses Kalenders; Ihre eigenen bleiben</source>
        <translation>Deletes the entries of this calendar; your own ones stay</translation>
    </message>
    <message>
        <source>Zeigt, was in Ihren eigenen Einträgen neu oder anders ist</source>
        <translation>Shows what is new or different in your own entries</translation>
    </message>
    <message>
        <source>Zeigt, was in diesem Kalender neu oder anders ist; aus Ihren eigenen Einträgen entstehen neue Kalender</source>
        <translation>Shows what is new or different in this calendar; new calendars start from your own entries</translation>
    </message>
    <message numerus="yes">
        <source>Die %n Einträge dieses Kalenders verschwinden. Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie sie wieder.</source>
        <translation>
            <numerusform>The %n entry of this calendar will be gone. Your own entries and your other calendars stay as they are. “Undo” brings it back.</numerusform>
            <numerusform>The %n entries of this calendar will be gone. Your own entries and your other calendars stay as they are. “Undo” brings them back.</numerusform>
        </translation>
    </message>
    <message>
        <source>Alles, was in Ihren Einträgen steht, steht auch in diesem Kalender.</source>
        <translation>Everything in your entries is in this calendar, too.</translation>
    </message>
    <message>
        <source>Alles, was in diesem Kalender steht, steht auch in Ihren Einträgen.</source>
        <translation>Everything in this calendar is in your entries, too.</translation>
    </message>
    <message>
        <source>Aus meinen Einträgen übernehmen</source>
        <translation>Take over from my entries</translation>
    </message>
    <message>
        <source>In meine Einträge übernehmen</source>
        <translation>Take over into my entries</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventModel</name>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventStep</name>
    <message>
        <source>Eintrag anlegen</source>
        <translation>Add entry</translation>
    </message>
    <message>
        <source>Eintrag ändern</source>
        <translation>Change entry</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventStore</name>
    <message>
        <source>%1 konnte nicht gespeichert werden: %2</source>
        <translation>%1 could not be saved: %2</translation>
    </message>
    <message>
        <source>Ihre Einträge konnten nicht gelesen werden. %1</source>
        <translation>Your entries could not be read. %1</translation>
    </message>
    <message>
        <source>Ein Teil Ihrer Einträge in %1 konnte nicht gelesen werden.</source>
        <translation>Some of your entries in %1 could not be read.</translation>
    </message>
    <message>
        <source>%1 konnte noch nicht gespeichert werden: %2 Es wird weiter versucht.</source>
        <translation>%1 could not be saved yet: %2 Saving is tried again and again.</translation>
    </message>
    <message>
        <source>%1 ist nicht vollständig lesbar und ließ sich nicht beiseitelegen. Es wurde nichts überschrieben.</source>
        <translation>%1 cannot be read completely and could not be put aside. Nothing was overwritten.</translation>
    </message>
    <message>
        <source>Diese Einträge stehen in keiner Datei.</source>
        <translation>These entries are in no file.</translation>
    </message>
</context>
<context>
    <name>MvCalendarEventTransferDialog</name>
    <message>
        <source>Aus meinen Einträgen übernehmen</source>
        <translation>Take over from my entries</translation>
    </message>
    <message>
        <source>In meine Einträge übernehmen</source>
        <translation>Take over into my entries</translation>
    </message>
    <message numerus="yes">
        <source>%n Ihrer Einträge fehlen in diesem Kalender oder stehen dort anders. Was angekreuzt ist, kommt hinein; Ihre eigenen bleiben, wie sie sind.</source>
        <translation>
            <numerusform>%n of your entries is missing in this calendar or is different there. What is ticked goes into it; your own ones stay as they are.</numerusform>
            <numerusform>%n of your entries are missing in this calendar or are different there. What is ticked goes into it; your own ones stay as they are.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge dieses Kalenders fehlen in Ihren eigenen oder stehen dort anders. Was angekreuzt ist, kommt hinein; der Kalender bleibt, wie er ist.</source>
        <translation>
            <numerusform>%n entry of this calendar is missing in your own ones or is different there. What is ticked goes into them; the calendar stays as it is.</numerusform>
            <numerusform>%n entries of this calendar are missing in your own ones or are different there. What is ticked goes into them; the calendar stays as it is.</numerusform>
        </translation>
    </message>
    <message>
        <source>Einträge</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Eintrag</source>
        <translation>Entry</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Alle</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Keinen</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Take over</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>neu</source>
        <translation>new</translation>
    </message>
    <message>
        <source>„%1“</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>mit anderen Angaben</source>
        <translation>with other details</translation>
    </message>
    <message>
        <source>mit anderem Foto</source>
        <translation>with another photo</translation>
    </message>
    <message>
        <source>im Kalender: %1</source>
        <translation>in the calendar: %1</translation>
    </message>
    <message>
        <source>in Ihren Einträgen: %1</source>
        <translation>in your entries: %1</translation>
    </message>
</context>
<context>
    <name>MvCalendarFeatureType</name>
    <message>
        <source>Startdatum</source>
        <translation>Start date</translation>
    </message>
    <message>
        <source>Feiertage &amp; eigene Einträge</source>
        <translation>Holidays &amp; own entries</translation>
    </message>
    <message>
        <source>Farben</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Artickelvarianten</source>
        <translation>Product variants</translation>
    </message>
</context>
<context>
    <name>MvCalendarKindChooser</name>
    <message>
        <source>Art des Kalenders</source>
        <translation>Kind of calendar</translation>
    </message>
    <message>
        <source>Fotokalender</source>
        <translation>Photo calendar</translation>
    </message>
    <message>
        <source>Titelblatt, für jeden Monat Fotos, Rückseite</source>
        <translation>Cover, photos for every month, back</translation>
    </message>
    <message>
        <source>Planer</source>
        <translation>Planner</translation>
    </message>
    <message>
        <source>Raster, Liste oder ganzes Jahr, mit Platz zum Eintragen</source>
        <translation>Grid, list or the whole year, with room to write</translation>
    </message>
    <message>
        <source>Geburtstagskalender</source>
        <translation>Birthday calendar</translation>
    </message>
    <message>
        <source>Neben jedem Monat die Menschen, die Geburtstag haben, mit ihren Fotos</source>
        <translation>Beside each month the people whose birthday it is, with their photos</translation>
    </message>
</context>
<context>
    <name>MvCalendarOptions</name>
    <message>
        <source>JAHR</source>
        <translation>YEAR</translation>
    </message>
    <message>
        <source>Januar bis Dezember dieses Jahres (das kommende)</source>
        <translation>January to December of this year (the coming one)</translation>
    </message>
    <message>
        <source>JAHR-MONAT</source>
        <translation>YEAR-MONTH</translation>
    </message>
    <message>
        <source>erster Monat, statt --year</source>
        <translation>first month, instead of --year</translation>
    </message>
    <message>
        <source>ZAHL</source>
        <translation>NUMBER</translation>
    </message>
    <message>
        <source>wie viele Monate ab --from (12)</source>
        <translation>how many months from --from (12)</translation>
    </message>
    <message>
        <source>nur gesetzliche Feiertage</source>
        <translation>public holidays only</translation>
    </message>
    <message>
        <source>auch Schulferien</source>
        <translation>school holidays too</translation>
    </message>
    <message>
        <source>keine Feiertage</source>
        <translation>no holidays</translation>
    </message>
    <message>
        <source>Layout, siehe layouts</source>
        <translation>layout, see layouts</translation>
    </message>
    <message>
        <source>Farbschema, siehe colors</source>
        <translation>colour scheme, see colors</translation>
    </message>
    <message>
        <source>NAMEN</source>
        <translation>NAMES</translation>
    </message>
    <message>
        <source>Spalten einer Tagesliste, mit Kommas getrennt, statt der des Layouts</source>
        <translation>columns of a list of days, separated by commas, instead of those of the layout</translation>
    </message>
    <message>
        <source>FAMILIE</source>
        <translation>FAMILY</translation>
    </message>
    <message>
        <source>Schriftfamilie statt der des Layouts</source>
        <translation>font family instead of that of the layout</translation>
    </message>
    <message>
        <source>A0 bis A6, square-210, 30x45cm, panorama, Letter …, oder Breite und Höhe in Millimetern, 300x200 (A4)</source>
        <translation>A0 to A6, square-210, 30x45cm, panorama, Letter …, or width and height in millimetres, 300x200 (A4)</translation>
    </message>
    <message>
        <source>Querformat (so bei benannten Formaten)</source>
        <translation>landscape (the default for named formats)</translation>
    </message>
    <message>
        <source>Hochformat</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>Beschnitt an jeder Kante, nur im PDF (0)</source>
        <translation>bleed at each edge, in the PDF only (0)</translation>
    </message>
    <message>
        <source>Kante, an der Spirale oder Aufhänger Platz brauchen (none)</source>
        <translation>the edge at which spiral or hanger need room (none)</translation>
    </message>
    <message>
        <source>Layouts und Farbschemata fehlen; das Programm ist unvollständig installiert</source>
        <translation>layouts and colour schemes are missing; the program is not installed completely</translation>
    </message>
    <message>
        <source>--columns: das Layout „%1“ hat keine Spalten zum Eintragen, nur Tageslisten haben welche</source>
        <translation>--columns: the layout “%1” has no columns to write in, only lists of days have</translation>
    </message>
    <message>
        <source>--columns: %1 Namen; erlaubt sind höchstens %2</source>
        <translation>--columns: %1 names; allowed are at most %2</translation>
    </message>
    <message>
        <source>--page „%1“: erlaubt sind %2 oder Breite und Höhe in Millimetern wie 300x200 (20 bis 3000)</source>
        <translation>--page “%1”: allowed are %2, or width and height in millimetres such as 300x200 (20 to 3000)</translation>
    </message>
</context>
<context>
    <name>MvCalendariumColorSchemaEditor</name>
    <message>
        <source>Farben der Felder</source>
        <translation>Colours of the cells</translation>
    </message>
    <message>
        <source>Schulferien wie Samstage färben</source>
        <comment>CHECKBOX</comment>
        <translation>Colour school holidays like Saturdays</translation>
    </message>
    <message>
        <source>Feiertage wie Sonntage färben</source>
        <comment>CHECKBOX</comment>
        <translation>Colour holidays like Sundays</translation>
    </message>
    <message>
        <source>Farbwechsel je Woche</source>
        <comment>CHECKBOX</comment>
        <translation>Change colours every week</translation>
    </message>
    <message>
        <source>Gitter anzeigen</source>
        <comment>CHECKBOX</comment>
        <translation>Show grid</translation>
    </message>
    <message>
        <source>Farbe des Gitters</source>
        <translation>Colour of the grid</translation>
    </message>
</context>
<context>
    <name>MvCalendariumColorSchemaModel</name>
    <message>
        <source>Gezählt von der ersten Woche der Seite an</source>
        <translation>Counted from the first week of the page</translation>
    </message>
    <message>
        <source>Feld</source>
        <translation>Cell</translation>
    </message>
    <message>
        <source>Hintergrund</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Textfarbe</source>
        <translation>Text colour</translation>
    </message>
    <message>
        <source>%1, gerade Wochen</source>
        <translation>%1, even weeks</translation>
    </message>
    <message>
        <source>%1, ungerade Wochen</source>
        <translation>%1, odd weeks</translation>
    </message>
    <message>
        <source>Kontrast %1 : 1, empfohlen mindestens %2 : 1</source>
        <translation>Contrast %1 : 1, recommended at least %2 : 1</translation>
    </message>
</context>
<context>
    <name>MvCalendariumColorSchemaRegistry</name>
    <message>
        <source>Das Farbschema „%1“ bleibt weg, denn seine Kennung %2 hat auch „%3“. Eine andere, die mit USER_ beginnt, bringt es zurück.</source>
        <translation>The colour scheme “%1” is left out, because “%3” has its id %2, too. Another one that begins with USER_ brings it back.</translation>
    </message>
</context>
<context>
    <name>MvCalendariumColumnHeadersEditor</name>
    <message>
        <source>Anzahl der Spalten</source>
        <translation>Number of columns</translation>
    </message>
    <message>
        <source> Spalten</source>
        <translation> columns</translation>
    </message>
    <message>
        <source>Spaltenüberschriften</source>
        <translation>Column headings</translation>
    </message>
</context>
<context>
    <name>MvCalendariumContentConfigEditor</name>
    <message>
        <source>Feiertage</source>
        <translation>Holidays</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>BUTTON</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Schulferien</source>
        <translation>School holidays</translation>
    </message>
    <message>
        <source>Eigene Einträge</source>
        <translation>Own entries</translation>
    </message>
    <message>
        <source>Land:</source>
        <translation>Country:</translation>
    </message>
    <message>
        <source>Bundesland:</source>
        <translation>State:</translation>
    </message>
    <message>
        <source>Jahr, mit dem der Kalender beginnt</source>
        <translation>Year in which the calendar starts</translation>
    </message>
    <message>
        <source>Monat, mit dem der Kalender beginnt</source>
        <translation>Month in which the calendar starts</translation>
    </message>
    <message>
        <source>nicht gewählt</source>
        <translation>not chosen</translation>
    </message>
    <message>
        <source>Ganzes Land</source>
        <translation>Whole country</translation>
    </message>
    <message>
        <source>Kanton:</source>
        <translation>Canton:</translation>
    </message>
    <message>
        <source>Region:</source>
        <translation>Region:</translation>
    </message>
    <message>
        <source>Die Region, deren Feiertage gelten; Entf wählt wieder das ganze Land</source>
        <translation>The region whose holidays apply; Del goes back to the whole country</translation>
    </message>
    <message>
        <source>Zu sehen ist nur ein Teil: Feiertage, ihre Farben oder die Schulferien. Aus- und wieder eingeschaltet zeigt die Seite alles.</source>
        <translation>Only a part is shown: holidays, their colours or the school vacations. Switched off and on again, the page shows all of them.</translation>
    </message>
</context>
<context>
    <name>MvCalendariumFontEditor</name>
    <message>
        <source>Schriftgröße</source>
        <comment>LABEL</comment>
        <translation>Font size</translation>
    </message>
    <message>
        <source>Schriftgröße Feiertage</source>
        <comment>LABEL</comment>
        <translation>Font size of holidays</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
</context>
<context>
    <name>MvCalendariumLayoutSchemaRegistry</name>
    <message>
        <source>Das Layout „%1“ bleibt weg, denn seine Kennung %2 hat auch „%3“. Eine andere, die mit USER_ beginnt, bringt es zurück.</source>
        <translation>The layout “%1” is left out, because “%3” has its id %2, too. Another one that begins with USER_ brings it back.</translation>
    </message>
</context>
<context>
    <name>MvCalendariumPanel</name>
    <message>
        <source>Mit der Zeile des Monats darüber</source>
        <translation>With the line of the month above</translation>
    </message>
    <message>
        <source>Steht auf einem Foto</source>
        <translation>Stands on a photo</translation>
    </message>
    <message>
        <source>Monat der Seite</source>
        <translation>Month of the page</translation>
    </message>
    <message>
        <source>Voriger Monat</source>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Nächster Monat</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Übernächster Monat</source>
        <translation>The month after next</translation>
    </message>
    <message>
        <source>Ein Jahr später</source>
        <translation>One year later</translation>
    </message>
    <message>
        <source>Layout der Seite</source>
        <translation>Layout of the page</translation>
    </message>
    <message>
        <source>Darunter liegt dann ein Schleier, damit alles zu lesen ist</source>
        <translation>A veil lies below it then, so that everything can be read</translation>
    </message>
    <message>
        <source>Monat:</source>
        <translation>Month:</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Monat wählen</source>
        <translation>Choose month</translation>
    </message>
    <message>
        <source>Layout ändern</source>
        <translation>Change layout</translation>
    </message>
    <message>
        <source>Zeile des Monats ändern</source>
        <translation>Change line of the month</translation>
    </message>
    <message>
        <source>Schleier ändern</source>
        <translation>Change veil</translation>
    </message>
</context>
<context>
    <name>MvCardIntake</name>
    <message>
        <source>der Name fehlt</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>in „%1“ ist nicht klar, was der Tag ist und was der Monat</source>
        <translation>in “%1” it is not clear which is the day and which the month</translation>
    </message>
    <message>
        <source>das Datum „%1“ ist nicht zu lesen</source>
        <translation>the date “%1” cannot be read</translation>
    </message>
    <message numerus="yes">
        <source>%n Visitenkarten haben kein Datum.</source>
        <translation>
            <numerusform>%n visiting card has no date.</numerusform>
            <numerusform>%n visiting cards have no date.</numerusform>
        </translation>
    </message>
    <message>
        <source>es ist größer als %1 MB</source>
        <translation>it is larger than %1 MB</translation>
    </message>
    <message>
        <source>Zeile %1, „%2“ ohne sein Foto: %3</source>
        <translation>Line %1, “%2” without its photo: %3</translation>
    </message>
</context>
<context>
    <name>MvCli</name>
    <message>
        <source>die Ausgabe lässt sich nicht schreiben</source>
        <translation>the output cannot be written</translation>
    </message>
    <message>
        <source>es fehlt der Befehl; erlaubt sind %1 (Hilfe: mvcalendar --help)</source>
        <translation>the command is missing; allowed are %1 (help: mvcalendar --help)</translation>
    </message>
    <message>
        <source>unbekannter Befehl „%1“; erlaubt sind %2</source>
        <translation>unknown command “%1”; allowed are %2</translation>
    </message>
    <message>
        <source>%1 (Hilfe: mvcalendar %2 --help)</source>
        <translation>%1 (help: mvcalendar %2 --help)</translation>
    </message>
    <message>
        <source>mvcalendar setzt und druckt Kalender.</source>
        <translation>mvcalendar lays out and prints calendars.</translation>
    </message>
    <message>
        <source>Befehle:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>Beispiele:</source>
        <translation>Examples:</translation>
    </message>
    <message>
        <source>Optionen eines Befehls: mvcalendar BEFEHL --help. Version: mvcalendar --version.</source>
        <translation>Options of a command: mvcalendar COMMAND --help. Version: mvcalendar --version.</translation>
    </message>
    <message>
        <source>Optionen:</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>--quiet und --verbose schließen einander aus</source>
        <translation>--quiet and --verbose exclude each other</translation>
    </message>
    <message>
        <source>Was immer gelten soll, steht in ~/.config/mvcalendar/mvcalendar.conf, eine Zeile „country = AT“ je Option.</source>
        <translation>What is always wanted goes into ~/.config/mvcalendar/mvcalendar.conf, a line “country = AT” for each option.</translation>
    </message>
    <message>
        <source>Rückgabewerte: 0 fertig; 1 etwas ließ sich nicht lesen oder schreiben; 2 der Aufruf war falsch; 3 validate: etwas würde schlecht gedruckt; 4 batch: unterbrochen, der nächste Lauf macht weiter.</source>
        <translation>Exit codes: 0 done; 1 something could not be read or written; 2 the call was wrong; 3 validate: something would print badly; 4 batch: interrupted, the next run goes on.</translation>
    </message>
</context>
<context>
    <name>MvCliArguments</name>
    <message>
        <source>„%1“ gehört zu keiner Option</source>
        <translation>“%1” belongs to no option</translation>
    </message>
    <message>
        <source>unbekannte Option %1</source>
        <translation>unknown option %1</translation>
    </message>
    <message>
        <source>%1 nimmt keinen Wert</source>
        <translation>%1 takes no value</translation>
    </message>
    <message>
        <source>%1 ist zweimal angegeben</source>
        <translation>%1 is given twice</translation>
    </message>
    <message>
        <source>nach %1 fehlt der Wert: %2</source>
        <translation>the value after %1 is missing: %2</translation>
    </message>
</context>
<context>
    <name>MvCliCommand</name>
    <message>
        <source>Staat, Kürzel oder Name (DE)</source>
        <translation>country, code or name (DE)</translation>
    </message>
    <message>
        <source>Sprache, wo ein Staat mehrere hat: de, fr, it …</source>
        <translation>language, where a country has several: de, fr, it …</translation>
    </message>
    <message>
        <source>Bundesland, Kanton …, Kürzel oder Name: BY, Bayern</source>
        <translation>state, canton …, code or name: BY, Bayern</translation>
    </message>
    <message>
        <source>Ausgabe (text)</source>
        <translation>output (text)</translation>
    </message>
    <message>
        <source>LAND</source>
        <translation>COUNTRY</translation>
    </message>
    <message>
        <source>SPRACHE</source>
        <translation>LANGUAGE</translation>
    </message>
    <message>
        <source>wie --format json</source>
        <translation>the same as --format json</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>das Projekt; --project kann wegbleiben</source>
        <translation>the project; --project may be left out</translation>
    </message>
    <message>
        <source>nur Fehler nennen, keine Hinweise</source>
        <translation>tell errors only, no hints</translation>
    </message>
    <message>
        <source>auch nennen, was gerade geschieht</source>
        <translation>also tell what is going on</translation>
    </message>
    <message>
        <source>ohne die eigenen Einstellungen (mvcalendar.conf)</source>
        <translation>without the settings of one&apos;s own (mvcalendar.conf)</translation>
    </message>
</context>
<context>
    <name>MvCliConfig</name>
    <message>
        <source>%1 ist keine Datei</source>
        <translation>%1 is not a file</translation>
    </message>
    <message>
        <source>%1: die Datei ist zu groß für Einstellungen</source>
        <translation>%1: the file is too large for settings</translation>
    </message>
    <message>
        <source>%1 ist kein Abschnitt; erlaubt sind die Befehle: %2</source>
        <translation>%1 is no section; allowed are the commands: %2</translation>
    </message>
    <message>
        <source>„%1“ gibt es hier nicht; erlaubt sind %2</source>
        <translation>“%1” does not exist here; allowed are %2</translation>
    </message>
    <message>
        <source>%1, Zeile %2</source>
        <translation>%1, line %2</translation>
    </message>
    <message>
        <source>%1 kennt --%2 nicht</source>
        <translation>%1 does not know --%2</translation>
    </message>
    <message>
        <source>--%1 nimmt keinen Wert</source>
        <translation>--%1 takes no value</translation>
    </message>
    <message>
        <source>nach --%1 fehlt der Wert</source>
        <translation>after --%1 the value is missing</translation>
    </message>
</context>
<context>
    <name>MvCliProject</name>
    <message>
        <source>Foto fehlt oder ist nicht lesbar: %1 (%2)</source>
        <translation>Photo is missing or cannot be read: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MvCliValues</name>
    <message>
        <source>--%1 „%2“: erlaubt sind ganze Zahlen von %3 bis %4</source>
        <translation>--%1 “%2”: allowed are whole numbers from %3 to %4</translation>
    </message>
    <message>
        <source>--%1 „%2“: erlaubt sind 0 bis %3 Millimeter</source>
        <translation>--%1 “%2”: allowed are 0 to %3 millimetres</translation>
    </message>
    <message>
        <source>--%1 „%2“: erlaubt ist ein Monat wie 2026-08</source>
        <translation>--%1 “%2”: allowed is a month such as 2026-08</translation>
    </message>
    <message>
        <source>--%1 „%2“: erlaubt sind %3</source>
        <translation>--%1 “%2”: allowed are %3</translation>
    </message>
    <message>
        <source>--%1 und --%2 schließen einander aus</source>
        <translation>--%1 and --%2 exclude each other</translation>
    </message>
    <message>
        <source>--country „%1“: erlaubt sind %2</source>
        <translation>--country “%1”: allowed are %2</translation>
    </message>
    <message>
        <source>--language „%1“: erlaubt sind hier %2</source>
        <translation>--language “%1”: allowed here are %2</translation>
    </message>
    <message>
        <source>--region „%1“: %2 hat keine Regionen</source>
        <translation>--region “%1”: %2 has no regions</translation>
    </message>
    <message>
        <source>--region „%1“: erlaubt sind für %2 %3</source>
        <translation>--region “%1”: allowed for %2 are %3</translation>
    </message>
</context>
<context>
    <name>MvColorPalettePopup</name>
    <message>
        <source>Farbpalette</source>
        <translation>Colour palette</translation>
    </message>
    <message>
        <source>Verwendete Farben</source>
        <translation>Colours in use</translation>
    </message>
    <message>
        <source>Farbtöne</source>
        <translation>Hues</translation>
    </message>
    <message>
        <source>Andere Farbe…</source>
        <translation>Other colour…</translation>
    </message>
    <message>
        <source>Farbe wählen</source>
        <translation>Choose colour</translation>
    </message>
</context>
<context>
    <name>MvColorPanel</name>
    <message>
        <source>Farbschema ändern</source>
        <translation>Change color scheme</translation>
    </message>
    <message>
        <source>Farben ändern</source>
        <translation>Change colors</translation>
    </message>
</context>
<context>
    <name>MvColorSchemaPicker</name>
    <message>
        <source>Farbschemata</source>
        <translation>Colour schemes</translation>
    </message>
    <message>
        <source>Eigene Farben</source>
        <translation>Own colours</translation>
    </message>
    <message>
        <source>Farben, die Sie unten ändern, kommen als „Eigene Farben“ dazu.</source>
        <translation>Colours that you change below join them as “Own colours”.</translation>
    </message>
</context>
<context>
    <name>MvColorSchemaShelf</name>
    <message>
        <source>Eigene Farben behalten …</source>
        <translation>Keep own colours …</translation>
    </message>
    <message>
        <source>Gibt den eigenen Farben dieser Seite einen Namen und bietet sie in allen Kalendern an</source>
        <translation>Gives the own colours of this page a name and offers them in all calendars</translation>
    </message>
    <message>
        <source>Verwalten</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Farbschemata umbenennen, löschen, aus- und einblenden</source>
        <translation>Rename, delete, hide and show colour schemes</translation>
    </message>
    <message>
        <source>„%1“ umbenennen …</source>
        <translation>Rename “%1” …</translation>
    </message>
    <message>
        <source>„%1“ löschen …</source>
        <translation>Delete “%1” …</translation>
    </message>
    <message>
        <source>„%1“ wieder anbieten</source>
        <translation>Offer “%1” again</translation>
    </message>
    <message>
        <source>„%1“ ausblenden</source>
        <translation>Hide “%1”</translation>
    </message>
    <message>
        <source>Auf die mitgelieferten zurücksetzen …</source>
        <translation>Reset to those that came with it …</translation>
    </message>
    <message>
        <source>Ausgeblendete</source>
        <translation>Hidden ones</translation>
    </message>
    <message>
        <source>Meine Farben</source>
        <translation>My colours</translation>
    </message>
    <message>
        <source>Eigene Farben behalten</source>
        <translation>Keep own colours</translation>
    </message>
    <message>
        <source>Farbschema umbenennen</source>
        <translation>Rename colour scheme</translation>
    </message>
    <message>
        <source>Das Farbschema „%1“ löschen?</source>
        <translation>Delete the colour scheme “%1”?</translation>
    </message>
    <message>
        <source>Kalender, die es zeigen, behalten ihre Farben.</source>
        <translation>Calendars that show it keep their colours.</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Alle eigenen Farbschemata löschen und ausgeblendete wieder anbieten?</source>
        <translation>Delete all colour schemes of your own and offer the hidden ones again?</translation>
    </message>
    <message>
        <source>Kalender, die sie zeigen, behalten ihre Farben.</source>
        <translation>Calendars that show them keep their colours.</translation>
    </message>
    <message>
        <source>Zurücksetzen</source>
        <translation>Reset</translation>
    </message>
</context>
<context>
    <name>MvColorSwatch</name>
    <message>
        <source>Durchsichtig</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>%1, %2 % deckend</source>
        <translation>%1, %2 % opaque</translation>
    </message>
</context>
<context>
    <name>MvColorsCommand</name>
    <message>
        <source>Weitere Seiten haben andere eigene Farben; behalten werden die ersten.</source>
        <translation>Other pages have other colours of their own; the first ones are kept.</translation>
    </message>
    <message>
        <source>%1: das ist weder ein Projekt noch eine Datei mit genau einem Farbschema</source>
        <translation>%1: this is neither a project nor a file with exactly one colour scheme</translation>
    </message>
    <message>
        <source>zählt die Farbschemata auf, behält eigene, blendet welche aus</source>
        <translation>lists the colour schemes, keeps your own, hides some</translation>
    </message>
    <message>
        <source>zählt die ausgeblendeten auf</source>
        <translation>lists the hidden ones</translation>
    </message>
    <message>
        <source>behält die Farben der Datei --from als eigenes Farbschema</source>
        <translation>keeps the colours of the file --from as a colour scheme of your own</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>ein Projekt, oder eine Datei mit einem Farbschema</source>
        <translation>a project, or a file with one colour scheme</translation>
    </message>
    <message>
        <source>nennt ein eigenes Farbschema um in --to</source>
        <translation>renames a colour scheme of your own to --to</translation>
    </message>
    <message>
        <source>der neue Name</source>
        <translation>the new name</translation>
    </message>
    <message>
        <source>löscht ein eigenes Farbschema; Projekte behalten ihre Farben</source>
        <translation>deletes a colour scheme of your own; projects keep their colours</translation>
    </message>
    <message>
        <source>bietet ein Farbschema nicht mehr an</source>
        <translation>offers a colour scheme no more</translation>
    </message>
    <message>
        <source>bietet es wieder an</source>
        <translation>offers it again</translation>
    </message>
    <message>
        <source>löscht alle eigenen und bietet alle ausgeblendeten wieder an</source>
        <translation>deletes all of your own and offers all hidden ones again</translation>
    </message>
    <message>
        <source>--%1 und --%2 gehören zusammen</source>
        <translation>--%1 and --%2 belong together</translation>
    </message>
    <message>
        <source>--%1 „%2“: das ist kein eigenes Farbschema; ausblenden lässt es sich mit --hide</source>
        <translation>--%1 “%2”: this is no colour scheme of your own; --hide hides it</translation>
    </message>
</context>
<context>
    <name>MvColumnHeadersPanel</name>
    <message>
        <source>Dieses Layout hat keine Spalten mit Überschriften.</source>
        <translation>This layout has no columns with headings.</translation>
    </message>
    <message>
        <source>Layout „%1“ nehmen</source>
        <translation>Use layout “%1”</translation>
    </message>
    <message>
        <source>Spaltenüberschriften ändern</source>
        <translation>Change column headings</translation>
    </message>
    <message>
        <source>Spalten aus den Gruppen</source>
        <translation>Columns from the groups</translation>
    </message>
    <message>
        <source>Eine Spalte für jede Gruppe, die der Kalender zeigt; ihre Einträge stehen dann darin</source>
        <translation>A column for each group that the calendar shows; its entries then stand in it</translation>
    </message>
    <message>
        <source>Der Kalender zeigt noch keine Gruppe von Einträgen.</source>
        <translation>The calendar does not show any group of entries yet.</translation>
    </message>
</context>
<context>
    <name>MvCommonValue</name>
    <message>
        <source>verschieden</source>
        <translation>different</translation>
    </message>
</context>
<context>
    <name>MvContentPanel</name>
    <message>
        <source>&amp;Kalenderwochen</source>
        <translation>&amp;Calendar weeks</translation>
    </message>
    <message>
        <source>Fe&amp;rien an jedem Tag nennen</source>
        <translation>Name &amp;school holidays on each day</translation>
    </message>
    <message>
        <source>Ganzer Kalender</source>
        <translation>Whole calendar</translation>
    </message>
    <message>
        <source>Dieses Layout zeigt die Kalenderwochen immer.</source>
        <translation>This layout always shows the calendar weeks.</translation>
    </message>
    <message>
        <source>Beginn des Kalenders ändern</source>
        <translation>Change the start of the calendar</translation>
    </message>
    <message>
        <source>Feiertage und Einträge ändern</source>
        <translation>Change holidays and entries</translation>
    </message>
    <message>
        <source>Kalenderwochen ein- oder ausblenden</source>
        <translation>Show or hide calendar weeks</translation>
    </message>
    <message>
        <source>Anzahl der Monate ändern</source>
        <translation>Change the number of months</translation>
    </message>
    <message>
        <source>Seitenformat ändern</source>
        <translation>Change the page format</translation>
    </message>
    <message>
        <source>Dieses Layout zeigt keine Kalenderwochen.</source>
        <translation>This layout shows no calendar weeks.</translation>
    </message>
    <message>
        <source>Schulferien hat jede Region für sich: Sie erscheinen, sobald eine gewählt ist.</source>
        <translation>Each region has school vacations of its own: they appear as soon as one is chosen.</translation>
    </message>
    <message>
        <source>Nur ges&amp;etzliche Feiertage</source>
        <translation>Only p&amp;ublic holidays</translation>
    </message>
    <message>
        <source>Gruppen und Alter …</source>
        <translation>Groups and ages …</translation>
    </message>
    <message>
        <source>Welche Gruppen von Einträgen der Kalender zeigt, in welchen Farben und mit welchem Alter</source>
        <translation>Which groups of entries the calendar shows, in which colours and with which ages</translation>
    </message>
</context>
<context>
    <name>MvDayMenu</name>
    <message>
        <source>Eigene Einträge bearbeiten</source>
        <translation>Edit own entries</translation>
    </message>
    <message>
        <source>„%1“ bearbeiten…</source>
        <translation>Edit “%1”…</translation>
    </message>
    <message>
        <source>Neuen Eintrag am %1 erstellen…</source>
        <translation>Create new entry on %1…</translation>
    </message>
</context>
<context>
    <name>MvDayPanel</name>
    <message>
        <source>Ändern …</source>
        <translation>Change …</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Einträge des Tages</source>
        <translation>Entries of the day</translation>
    </message>
    <message>
        <source>Neuer Eintrag …</source>
        <translation>New entry …</translation>
    </message>
</context>
<context>
    <name>MvDialogRequestHandler</name>
    <message>
        <source>Ja</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Nein</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>MvDiskAccessRequest</name>
    <message>
        <source>„%1“ ist keine lesbare Liste von Kalendereinträgen. Ihre Einträge wurden nicht verändert.</source>
        <translation>“%1” is not a readable list of calendar entries. Your entries were not changed.</translation>
    </message>
    <message>
        <source>Kalendereinträge</source>
        <translation>Calendar entries</translation>
    </message>
    <message>
        <source>Die Kalendereinträge ließen sich nicht in „%1“ sichern.</source>
        <translation>The calendar entries could not be saved to “%1”.</translation>
    </message>
    <message>
        <source>„%1“ ist kein Foto, das gelesen werden kann.</source>
        <translation>“%1” is not a photo that can be read.</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message numerus="yes">
        <source>… und %n weitere Fotos.</source>
        <translation>
            <numerusform>… and %n more photo.</numerusform>
            <numerusform>… and %n more photos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvDraggedFotos</name>
    <message>
        <source>Fotos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
</context>
<context>
    <name>MvEntriesCommand</name>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>nach %1 fehlt die Datei</source>
        <translation>the file is missing after %1</translation>
    </message>
    <message>
        <source>%1: %2 Einträge, %3 ausgelassen</source>
        <translation>%1: %2 entries, %3 left out</translation>
    </message>
    <message>
        <source>zeigt und ändert persönliche Einträge, übernimmt sie aus anderen Programmen, gibt sie weiter</source>
        <translation>shows and changes personal entries, takes them in from other programs, gives them to others</translation>
    </message>
    <message>
        <source>list, import, export, check: Liste (XML), Kalender (iCalendar), Tabelle (CSV, TSV), Visitenkarten (vCard) oder ein Projekt, am Inhalt erkannt; - ist die Standardeingabe. Ohne: die eigenen Einträge</source>
        <translation>list, import, export, check: list (XML), calendar (iCalendar), table (CSV, TSV), visiting cards (vCard) or a project, known by its content; - is standard input. Without: the user’s own entries</translation>
    </message>
    <message>
        <source>add, remove, import: in dieser Liste (XML) oder diesem Projekt statt in den eigenen Einträgen</source>
        <translation>add, remove, import: in this list (XML) or this project instead of the user’s own entries</translation>
    </message>
    <message>
        <source>list, export: Feiertage dazu</source>
        <translation>list, export: public holidays, too</translation>
    </message>
    <message>
        <source>list, export: Schulferien dazu</source>
        <translation>list, export: school holidays, too</translation>
    </message>
    <message>
        <source>JAHR</source>
        <translation>YEAR</translation>
    </message>
    <message>
        <source>deren Jahr (das kommende)</source>
        <translation>their year (the coming one)</translation>
    </message>
    <message>
        <source>deren letztes Jahr, wenn es mehrere sind</source>
        <translation>their last year, if there are several</translation>
    </message>
    <message>
        <source>list, export: wohin (Standardausgabe)</source>
        <translation>list, export: where to (standard output)</translation>
    </message>
    <message>
        <source>es fehlt, was zu tun ist: %1</source>
        <translation>what to do is missing: %1</translation>
    </message>
    <message>
        <source>„%1“ gibt es nicht; möglich sind %2</source>
        <translation>there is no “%1”; possible are %2</translation>
    </message>
    <message>
        <source>--%1 gilt nicht für %2</source>
        <translation>--%1 does not go with %2</translation>
    </message>
    <message>
        <source>der Text steht zweimal da: „%1“ und „%2“</source>
        <translation>the text is there twice: “%1” and “%2”</translation>
    </message>
    <message>
        <source>was mit den Einträgen geschieht</source>
        <translation>what is done with the entries</translation>
    </message>
</context>
<context>
    <name>MvEntriesEdit</name>
    <message>
        <source>--%1 „%2“ ist kein Datum mit Jahr, wie 24.12.2027</source>
        <translation>--%1 “%2” is no date with a year, such as 24.12.2027</translation>
    </message>
    <message>
        <source>add, remove: der Text des Eintrags; --text kann wegbleiben</source>
        <translation>add, remove: the text of the entry; --text may be left out</translation>
    </message>
    <message>
        <source>DATUM</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>add, remove: sein Tag, 24.12.2027 oder 24.12.; --date kann wegbleiben</source>
        <translation>add, remove: its day, 24.12.2027 or 24.12.; --date may be left out</translation>
    </message>
    <message>
        <source>add: sein letzter Tag, wenn er mehrere dauert</source>
        <translation>add: its last day, if it lasts several</translation>
    </message>
    <message>
        <source>UHRZEIT</source>
        <translation>TIME</translation>
    </message>
    <message>
        <source>add: wann er beginnt, 19:30</source>
        <translation>add: when it begins, 19:30</translation>
    </message>
    <message>
        <source>WIE</source>
        <translation>HOW</translation>
    </message>
    <message>
        <source>add: einmal, jedes Jahr, alle 2 Wochen am Donnerstag, jeden Monat am letzten Freitag … oder eine Regel, FREQ=… (jedes Jahr)</source>
        <translation>add: once, every year, every 2 weeks on Thursday, every last Friday of the month … or a rule, FREQ=… (every year)</translation>
    </message>
    <message>
        <source>add: bis wann er sich wiederholt</source>
        <translation>add: until when it repeats</translation>
    </message>
    <message>
        <source>add: wo ein 29. Februar in anderen Jahren steht (february28)</source>
        <translation>add: where 29 February is in other years (february28)</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>add: eine Gruppe, zu der er gehört; mehrfach erlaubt</source>
        <translation>add: a group that it belongs to; may be given several times</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>add: sein Foto</source>
        <translation>add: its photo</translation>
    </message>
    <message>
        <source>remove: alle, auf die es passt</source>
        <translation>remove: all that it fits</translation>
    </message>
    <message>
        <source>nach add fehlt der Text des Eintrags</source>
        <translation>after add, the text of the entry is missing</translation>
    </message>
    <message>
        <source>nach dem Text fehlt das Datum</source>
        <translation>after the text, the date is missing</translation>
    </message>
    <message>
        <source>„%1“: das Jahr fehlt; ohne Jahr geht nur, was jedes Jahr ist</source>
        <translation>“%1”: the year is missing; without one there is only what is every year</translation>
    </message>
    <message>
        <source>--end „%1“: erlaubt ist bis zu ein Jahr nach dem ersten Tag</source>
        <translation>--end “%1”: up to a year after the first day is allowed</translation>
    </message>
    <message>
        <source>--time „%1“ ist keine Uhrzeit wie 19:30</source>
        <translation>--time “%1” is no time such as 19:30</translation>
    </message>
    <message>
        <source>--until gilt nur für das, was sich wiederholt</source>
        <translation>--until only goes with what repeats</translation>
    </message>
    <message>
        <source>in --repeat steht schon, wie lange</source>
        <translation>--repeat already says how long</translation>
    </message>
    <message>
        <source>--until „%1“ liegt vor dem ersten Tag</source>
        <translation>--until “%1” is before the first day</translation>
    </message>
    <message>
        <source>„%1“ steht schon da</source>
        <translation>“%1” is already there</translation>
    </message>
    <message>
        <source>nach remove fehlt der Text des Eintrags oder seine Kennung</source>
        <translation>after remove, the text of the entry or its uuid is missing</translation>
    </message>
    <message>
        <source>einen Eintrag „%1“ gibt es dort nicht</source>
        <translation>there is no entry “%1” there</translation>
    </message>
    <message>
        <source>„%1“ passt auf %2 Einträge: Datum oder Kennung sagt, welcher gemeint ist, --all alle</source>
        <translation>“%1” fits %2 entries: date or uuid says which is meant, --all means all</translation>
    </message>
</context>
<context>
    <name>MvEntriesFlow</name>
    <message>
        <source>Eine frühere Fassung gibt es nicht.</source>
        <translation>There is no earlier version.</translation>
    </message>
    <message>
        <source>Frühere Fassungen gibt es vom %1.</source>
        <translation>There are earlier versions of %1.</translation>
    </message>
    <message>
        <source>Solange das Programm läuft, sind sie noch da. Schaffen Sie Platz oder Schreibrechte, und versuchen Sie es noch einmal, oder sichern Sie Ihre Einträge in eine andere Datei.</source>
        <translation>As long as the program runs, they are still there. Make room on the disk or get the right to write, and try again, or save your entries to another file.</translation>
    </message>
    <message>
        <source>Die Datei bleibt, wie sie ist; bevor eine neue an ihre Stelle kommt, wird sie beiseitegelegt.</source>
        <translation>The file stays as it is; before a new one takes its place, it is set aside.</translation>
    </message>
    <message>
        <source>Die Datei wird aufbewahrt: %1</source>
        <translation>The file is kept: %1</translation>
    </message>
    <message>
        <source>Einträge nicht lesbar</source>
        <translation>Entries not readable</translation>
    </message>
    <message>
        <source>Einträge nicht alle lesbar</source>
        <translation>Not all entries readable</translation>
    </message>
    <message>
        <source>Einträge nicht gespeichert</source>
        <translation>Entries not saved</translation>
    </message>
    <message>
        <source>Einträge noch nicht gespeichert</source>
        <translation>Entries not saved yet</translation>
    </message>
    <message>
        <source>Noch einmal versuchen</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>In andere Datei sichern …</source>
        <translation>Save to another file …</translation>
    </message>
    <message>
        <source>Wiederherstellen …</source>
        <translation>Restore …</translation>
    </message>
    <message>
        <source>Ohne sie weitermachen</source>
        <translation>Go on without them</translation>
    </message>
    <message>
        <source>Später entscheiden</source>
        <translation>Decide later</translation>
    </message>
    <message>
        <source>Die Einträge sind gespeichert</source>
        <translation>The entries are saved</translation>
    </message>
    <message>
        <source>Die Einträge sind wiederhergestellt</source>
        <translation>The entries are restored</translation>
    </message>
    <message>
        <source>Die Einträge ließen sich nicht wiederherstellen.</source>
        <translation>The entries could not be restored.</translation>
    </message>
    <message>
        <source>Einträge gesichert: %1</source>
        <translation>Entries saved: %1</translation>
    </message>
    <message>
        <source>Kalendereinträge</source>
        <translation>Calendar entries</translation>
    </message>
    <message>
        <source>Wenn Sie das Programm jetzt beenden, gehen sie verloren.</source>
        <translation>If you quit the program now, they will be lost.</translation>
    </message>
    <message>
        <source>Trotzdem beenden</source>
        <translation>Quit all the same</translation>
    </message>
    <message>
        <source>Ihre eigenen Einträge lassen sich nicht lesen.</source>
        <translation>Your own entries cannot be read.</translation>
    </message>
    <message>
        <source>Ein Teil Ihrer eigenen Einträge lässt sich nicht lesen.</source>
        <translation>Some of your own entries cannot be read.</translation>
    </message>
    <message>
        <source>Ihre letzten Änderungen an Ihren eigenen Einträgen sind nicht gespeichert.</source>
        <translation>Your latest changes to your own entries are not saved.</translation>
    </message>
    <message>
        <source>Ihre letzten Änderungen an Ihren eigenen Einträgen sind noch nicht gespeichert.</source>
        <translation>Your latest changes to your own entries are not saved yet.</translation>
    </message>
</context>
<context>
    <name>MvEntriesInput</name>
    <message>
        <source>Standardeingabe</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>%1: mehr als %2 MB</source>
        <translation>%1: more than %2 MB</translation>
    </message>
    <message>
        <source>%1: ausgelassen: %2</source>
        <translation>%1: left out: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n weitere ausgelassen</source>
        <translation>
            <numerusform>%1: %n more left out</numerusform>
            <numerusform>%1: %n more left out</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MvEntriesPanel</name>
    <message>
        <source>„%1“ kommt in den Monaten dieses Kalenders nicht vor.</source>
        <translation>“%1” does not occur in the months of this calendar.</translation>
    </message>
</context>
<context>
    <name>MvEntriesPlace</name>
    <message>
        <source>%1 ist nicht vollständig lesbar und bleibt, wie es ist: %2</source>
        <translation>%1 cannot be read completely and stays as it is: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 ist keine Liste von Einträgen (XML) und bleibt, wie es ist</source>
        <translation>%1 is no list of entries (XML) and stays as it is</translation>
    </message>
    <message>
        <source>%1 lässt sich nicht als Foto lesen</source>
        <translation>%1 cannot be read as a photo</translation>
    </message>
    <message>
        <source>Auf den Seiten dieses Kalenders sind persönliche Einträge ausgeschaltet.</source>
        <translation>Personal entries are switched off on the pages of this calendar.</translation>
    </message>
</context>
<context>
    <name>MvEntriesPrinter</name>
    <message>
        <source>jedes Jahr</source>
        <translation>every year</translation>
    </message>
    <message>
        <source>einmal</source>
        <translation>once</translation>
    </message>
</context>
<context>
    <name>MvEntryBubble</name>
    <message>
        <source>Was ist an diesem Tag?</source>
        <translation>What is on this day?</translation>
    </message>
    <message>
        <source>Text des Eintrags</source>
        <translation>Text of the entry</translation>
    </message>
    <message>
        <source>Ohne Änderung verlassen (Esc)</source>
        <translation>Leave without a change (Esc)</translation>
    </message>
    <message>
        <source>Einträge des Tages</source>
        <translation>Entries of the day</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Ein anderes Datum verschiebt den Eintrag</source>
        <translation>Another date moves the entry</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Mehr …</source>
        <translation>More …</translation>
    </message>
    <message>
        <source>Alle Angaben, mit dem, was Sie eingetippt haben</source>
        <translation>All details, with what you have typed</translation>
    </message>
    <message>
        <source>Sichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Eintrag am %1</source>
        <translation>Entry on %1</translation>
    </message>
    <message>
        <source>Neuer Eintrag</source>
        <translation>New entry</translation>
    </message>
    <message>
        <source>Ein Eintrag braucht einen Text. Esc verlässt ihn ohne Änderung.</source>
        <translation>An entry needs a text. Esc leaves it without a change.</translation>
    </message>
    <message>
        <source>Eintrag verschieben</source>
        <translation>Move Entry</translation>
    </message>
    <message>
        <source>„%1“ ist verschoben.</source>
        <translation>“%1” has been moved.</translation>
    </message>
    <message>
        <source>Eintrag ändern</source>
        <translation>Change Entry</translation>
    </message>
    <message>
        <source>Eintrag anlegen</source>
        <translation>Add Entry</translation>
    </message>
    <message>
        <source>„%1“ ist gesichert.</source>
        <translation>“%1” has been saved.</translation>
    </message>
    <message>
        <source>%1 nimmt es zurück.</source>
        <translation>%1 takes it back.</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete Entry</translation>
    </message>
    <message>
        <source>„%1“ ist gelöscht.</source>
        <translation>“%1” has been deleted.</translation>
    </message>
</context>
<context>
    <name>MvEntryEdits</name>
    <message>
        <source>Einträge löschen</source>
        <translation>Delete entries</translation>
    </message>
    <message>
        <source>Gruppe von Einträgen ändern</source>
        <translation>Change group of entries</translation>
    </message>
    <message>
        <source>Einträge verschieben</source>
        <translation>Shift entries</translation>
    </message>
</context>
<context>
    <name>MvEntryFileImport</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Termine importieren</source>
        <translation>Import Dates</translation>
    </message>
    <message>
        <source>Nichts übernommen</source>
        <translation>Nothing was taken over</translation>
    </message>
    <message numerus="yes">
        <source>%n Dateien ließen sich nicht lesen.</source>
        <translation>
            <numerusform>%n file could not be read.</numerusform>
            <numerusform>%n files could not be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntryFiles</name>
    <message>
        <source>Termine und Einträge (%1)</source>
        <translation>Dates and entries (%1)</translation>
    </message>
    <message>
        <source>Listen von Einträgen (%1)</source>
        <translation>Lists of entries (%1)</translation>
    </message>
    <message>
        <source>Kalender, iCalendar (%1)</source>
        <translation>Calendars, iCalendar (%1)</translation>
    </message>
    <message>
        <source>Tabellen (%1)</source>
        <translation>Tables (%1)</translation>
    </message>
    <message>
        <source>Visitenkarten (%1)</source>
        <translation>Visiting cards (%1)</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Tabellen mit Semikolon (%1)</source>
        <translation>Tables with semicolons (%1)</translation>
    </message>
    <message>
        <source>Tabellen mit Tabulator (%1)</source>
        <translation>Tables with tabs (%1)</translation>
    </message>
</context>
<context>
    <name>MvEntryImportFlow</name>
    <message>
        <source>Termine importieren</source>
        <translation>Import Dates</translation>
    </message>
    <message>
        <source>Die Termine werden gelesen …</source>
        <translation>The dates are being read …</translation>
    </message>
</context>
<context>
    <name>MvEntryImportReport</name>
    <message>
        <source>Sie stehen jetzt auf ihren Tagen. Zurücknehmen lässt sich das mit Bearbeiten &gt; Rückgängig.</source>
        <translation>They are on their days now. Edit &gt; Undo takes that back.</translation>
    </message>
    <message>
        <source>Alles davon war schon da.</source>
        <translation>All of it was there already.</translation>
    </message>
    <message>
        <source>Termine importieren</source>
        <translation>Import Dates</translation>
    </message>
    <message>
        <source>Ausgelassen:</source>
        <translation>Left out:</translation>
    </message>
    <message>
        <source>Was ausgelassen wurde</source>
        <translation>What was left out</translation>
    </message>
</context>
<context>
    <name>MvEntryIntake</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: Die Datei ist größer als %2 MB.</source>
        <translation>%1: The file is larger than %2 MB.</translation>
    </message>
    <message>
        <source>%1 neu, %2 geändert, %3 gleich, %4 ausgelassen</source>
        <translation>%1 new, %2 changed, %3 equal, %4 skipped</translation>
    </message>
    <message>
        <source>Das ist weder eine Liste von Einträgen noch ein Kalender (iCalendar), eine Tabelle (CSV) oder eine Datei mit Visitenkarten (vCard).</source>
        <translation>This is neither a list of entries nor a calendar (iCalendar), a table (CSV) or a file of visiting cards (vCard).</translation>
    </message>
</context>
<context>
    <name>MvEntryList</name>
    <message>
        <source>Suchen</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Einträge suchen</source>
        <translation>Search entries</translation>
    </message>
    <message>
        <source>Einträge welcher Gruppe</source>
        <translation>Entries of which group</translation>
    </message>
    <message>
        <source>Gruppen …</source>
        <translation>Groups …</translation>
    </message>
    <message>
        <source>Gruppen benennen, färben und ordnen, und welche der Kalender zeigt</source>
        <translation>Name, colour and order groups, and which of them the calendar shows</translation>
    </message>
    <message>
        <source>Einträge</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Tag zeigen</source>
        <translation>Show day</translation>
    </message>
    <message>
        <source>Bearbeiten …</source>
        <translation>Edit …</translation>
    </message>
    <message>
        <source>Verschieben …</source>
        <translation>Shift …</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Gruppe</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Gruppe der ausgewählten Einträge</source>
        <translation>Group of the chosen entries</translation>
    </message>
    <message>
        <source>Alle</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Ohne Gruppe</source>
        <translation>Without group</translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %n Einträgen</source>
        <translation>
            <numerusform>%1 of %n entry</numerusform>
            <numerusform>%1 of %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ausgewählt</source>
        <translation>
            <numerusform>%n chosen</numerusform>
            <numerusform>%n chosen</numerusform>
        </translation>
    </message>
    <message>
        <source>Kein Eintrag passt zu Suche und Gruppe.</source>
        <translation>No entry fits search and group.</translation>
    </message>
    <message>
        <source>Noch keine Einträge. Fügen Sie Geburtstage, Jahrestage und andere Termine hinzu, und sie erscheinen in Ihrem Kalender.</source>
        <translation>No entries yet. Add birthdays, anniversaries and other dates, and they appear in your calendar.</translation>
    </message>
    <message>
        <source>In Gruppe verschieben</source>
        <translation>Move to group</translation>
    </message>
    <message>
        <source>Neue Gruppe …</source>
        <translation>New group …</translation>
    </message>
    <message>
        <source>Zu Gruppe hinzufügen</source>
        <translation>Add to group</translation>
    </message>
    <message>
        <source>Aus Gruppe nehmen</source>
        <translation>Take out of group</translation>
    </message>
    <message>
        <source>Neue Gruppe</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>Name der Gruppe:</source>
        <translation>Name of the group:</translation>
    </message>
</context>
<context>
    <name>MvEntryListModel</name>
    <message>
        <source>%1 bis %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>, %1 Uhr</source>
        <translation>, %1</translation>
    </message>
    <message>
        <source>jedes Jahr</source>
        <translation>every year</translation>
    </message>
    <message>
        <source>einmal</source>
        <translation>once</translation>
    </message>
    <message>
        <source>Eintrag</source>
        <translation>Entry</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Gruppe</source>
        <translation>Group</translation>
    </message>
</context>
<context>
    <name>MvEntryPatternEdit</name>
    <message>
        <source>Jörg</source>
        <translation>Jörg</translation>
    </message>
    <message>
        <source>%1 wird %2</source>
        <translation>%1 turns %2</translation>
    </message>
    <message>
        <source>%1, %2 Jahre</source>
        <translation>%1, %2 years</translation>
    </message>
    <message>
        <source>%1 seit %2</source>
        <translation>%1 since %2</translation>
    </message>
    <message>
        <source>Nur der Name</source>
        <translation>The name alone</translation>
    </message>
    <message>
        <source>Eigene Form …</source>
        <translation>Own form …</translation>
    </message>
    <message>
        <source>Eigene Form mit %name, %age und %year</source>
        <translation>Own form with %name, %age and %year</translation>
    </message>
    <message>
        <source>%name ist der Name, %age das Alter oder die Zahl der Jahre, %year das Jahr des Eintrags. Ohne bekanntes Jahr steht der Name allein.</source>
        <translation>%name is the name, %age the age or the number of years, %year the year of the entry. Where no year is known the name stands alone.</translation>
    </message>
    <message>
        <source>Runde Zahlen hervorheben: 60!</source>
        <translation>Mark round numbers: 60!</translation>
    </message>
    <message>
        <source>Volle Jahrzehnte, 25 und 75 bekommen ein Ausrufezeichen.</source>
        <translation>Full tens, 25 and 75 get an exclamation mark.</translation>
    </message>
</context>
<context>
    <name>MvEntryQuestion</name>
    <message>
        <source>Eintrag, der sich wiederholt</source>
        <translation>Entry that repeats</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>dddd, d. MMMM</source>
        <translation>dddd, d MMMM</translation>
    </message>
    <message>
        <source>„%1“ auf %2 verschieben?</source>
        <translation>Move “%1” to %2?</translation>
    </message>
    <message>
        <source>Nur dieses Mal</source>
        <translation>Only this time</translation>
    </message>
    <message>
        <source>Der Eintrag wiederholt sich. Nur dieses Mal lässt die anderen, wo sie sind; alle gehen sonst mit.</source>
        <translation>The entry repeats. Only this time leaves the others where they are; otherwise all of them go along.</translation>
    </message>
    <message>
        <source>Alle</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Der Eintrag wiederholt sich nach einer Regel, die an anderen Tagen nicht so gilt; „Mehr …“ beim Eintrag ändert sie.</source>
        <translation>The entry repeats by a rule that does not hold on other days; “More …” at the entry changes it.</translation>
    </message>
    <message>
        <source>„%1“ löschen?</source>
        <translation>Delete “%1”?</translation>
    </message>
    <message>
        <source>Der Eintrag wiederholt sich.</source>
        <translation>The entry repeats.</translation>
    </message>
    <message>
        <source>Nur am %1</source>
        <translation>Only on %1</translation>
    </message>
    <message>
        <source>Alle löschen</source>
        <translation>Delete all</translation>
    </message>
</context>
<context>
    <name>MvEntryShiftDialog</name>
    <message numerus="yes">
        <source>%n Einträge verschieben</source>
        <translation>
            <numerusform>Shift %n entry</numerusform>
            <numerusform>Shift %n entries</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Jahre:</source>
        <translation>&amp;Years:</translation>
    </message>
    <message>
        <source>&amp;Tage:</source>
        <translation>&amp;Days:</translation>
    </message>
    <message>
        <source>Vorwärts, mit einem Minus rückwärts. Was sich nach Wochentagen wiederholt, behält bei Jahren seinen Wochentag; wo kein Jahr bekannt ist, zählen nur die Tage.</source>
        <translation>Forwards, with a minus backwards. What repeats by weekdays keeps its weekday when it is shifted by years; where no year is known only the days count.</translation>
    </message>
    <message>
        <source>Verschieben</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>„%1“: %2 → %3</source>
        <translation>“%1”: %2 → %3</translation>
    </message>
</context>
<context>
    <name>MvEntryTable</name>
    <message>
        <source>der Name fehlt</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>das Datum fehlt</source>
        <translation>the date is missing</translation>
    </message>
    <message>
        <source>das Datum</source>
        <translation>the date</translation>
    </message>
    <message>
        <source>%1 „%2“ ist nicht zu lesen</source>
        <translation>%1 “%2” cannot be read</translation>
    </message>
    <message>
        <source>das Ende</source>
        <translation>the end</translation>
    </message>
    <message>
        <source>er dauert länger als ein Jahr</source>
        <translation>it lasts longer than a year</translation>
    </message>
    <message>
        <source>die Uhrzeit</source>
        <translation>the time</translation>
    </message>
    <message>
        <source>die Wiederholung</source>
        <translation>the repetition</translation>
    </message>
    <message>
        <source>Die Tabelle hat keine Spalte, in der Namen stehen, und eine mit Daten wie „17.05.2027“.</source>
        <translation>The table does not have a column of names and one of dates such as “17.05.2027”.</translation>
    </message>
    <message>
        <source>die Tabelle hat mehr als %1 Zeilen</source>
        <translation>the table has more than %1 rows</translation>
    </message>
    <message>
        <source>Ein Kalender druckt nicht: %1</source>
        <translation>A calendar does not print: %1</translation>
    </message>
</context>
<context>
    <name>MvEntryTableDialog</name>
    <message>
        <source>(auslassen)</source>
        <translation>(leave out)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Bis</source>
        <translation>Until</translation>
    </message>
    <message>
        <source>Uhrzeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Wiederholung</source>
        <translation>Repetition</translation>
    </message>
    <message>
        <source>Ausnahmen</source>
        <translation>Exceptions</translation>
    </message>
    <message>
        <source>Zusatztermine</source>
        <translation>Further dates</translation>
    </message>
    <message>
        <source>29. Februar</source>
        <translation>29 February</translation>
    </message>
    <message>
        <source>Gruppen</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Kennung</source>
        <translation>Identifier</translation>
    </message>
    <message>
        <source>Tabelle übernehmen</source>
        <translation>Take Over Table</translation>
    </message>
    <message>
        <source>So wird „%1“ gelesen. Stimmt etwas nicht, wählen Sie es hier anders.</source>
        <translation>This is how “%1” is read. If something is wrong, choose it otherwise here.</translation>
    </message>
    <message>
        <source>Die ersten Zeilen der Tabelle</source>
        <translation>The first rows of the table</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Take Over</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Spalten trennt</source>
        <translation>Columns end with</translation>
    </message>
    <message>
        <source>Semikolon</source>
        <translation>Semicolon</translation>
    </message>
    <message>
        <source>Komma</source>
        <translation>Comma</translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Senkrechter Strich</source>
        <translation>Vertical bar</translation>
    </message>
    <message>
        <source>Zeichen</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>Unicode (UTF-8)</translation>
    </message>
    <message>
        <source>Westeuropäisch</source>
        <translation>Western European</translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation>Unicode (UTF-16)</translation>
    </message>
    <message>
        <source>Ein Datum beginnt mit</source>
        <translation>A date begins with</translation>
    </message>
    <message>
        <source>dem Tag</source>
        <translation>the day</translation>
    </message>
    <message>
        <source>dem Monat</source>
        <translation>the month</translation>
    </message>
    <message>
        <source>Bitte wählen</source>
        <translation>Please choose</translation>
    </message>
    <message>
        <source>Die erste Zeile sind Überschriften</source>
        <translation>The first row has headings</translation>
    </message>
    <message>
        <source>Jedes Jahr, wo nichts anderes steht</source>
        <translation>Every year, unless the row says otherwise</translation>
    </message>
    <message>
        <source>Spalte %1</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>„%1“ lässt sich auf zwei Arten lesen: Wählen Sie, womit ein Datum beginnt.</source>
        <translation>“%1” can be read in two ways: choose what a date begins with.</translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge am Anfang der Datei</source>
        <translation>
            <numerusform>%n entry at the beginning of the file</numerusform>
            <numerusform>%n entries at the beginning of the file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeilen werden ausgelassen:</source>
        <translation>
            <numerusform>%n row is left out:</numerusform>
            <numerusform>%n rows are left out:</numerusform>
        </translation>
    </message>
    <message>
        <source>Endet um</source>
        <translation>Ends at</translation>
    </message>
    <message>
        <source>Ganztägig</source>
        <translation>All day</translation>
    </message>
</context>
<context>
    <name>MvEventRepetitionEdit</name>
    <message>
        <source>Ohne 29. Februar:</source>
        <translation>Without 29 February:</translation>
    </message>
    <message>
        <source>Wiederholung</source>
        <translation>Repetition</translation>
    </message>
    <message>
        <source>Einmal</source>
        <translation>Once</translation>
    </message>
    <message>
        <source>Jedes Jahr</source>
        <translation>Every year</translation>
    </message>
    <message>
        <source>Alle 2 Jahre</source>
        <translation>Every 2 years</translation>
    </message>
    <message>
        <source>Jede Woche</source>
        <translation>Every week</translation>
    </message>
    <message>
        <source>Alle 2 Wochen</source>
        <translation>Every 2 weeks</translation>
    </message>
    <message>
        <source>Jeden Monat am selben Tag</source>
        <translation>Every month on the same day</translation>
    </message>
    <message>
        <source>Jeden Monat am selben Wochentag</source>
        <translation>Every month on the same weekday</translation>
    </message>
    <message>
        <source>Jeden Monat am letzten dieses Wochentags</source>
        <translation>Every month on the last such weekday</translation>
    </message>
    <message>
        <source>Zuletzt am</source>
        <translation>Last on</translation>
    </message>
    <message>
        <source>Gruppe</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Dauert bis</source>
        <translation>Lasts until</translation>
    </message>
    <message>
        <source>nur in Schaltjahren</source>
        <translation>in leap years only</translation>
    </message>
    <message>
        <source>am 28. Februar</source>
        <translation>on 28 February</translation>
    </message>
    <message>
        <source>am 1. März</source>
        <translation>on 1 March</translation>
    </message>
</context>
<context>
    <name>MvExportDialog</name>
    <message>
        <source>Als PDF exportieren</source>
        <translation>Export as PDF</translation>
    </message>
    <message>
        <source>Als Bilder exportieren</source>
        <translation>Export as images</translation>
    </message>
    <message>
        <source>&amp;Exportieren</source>
        <translation>&amp;Export</translation>
    </message>
    <message>
        <source>D&amp;urchsuchen …</source>
        <translation>&amp;Browse …</translation>
    </message>
    <message>
        <source>&amp;Datei:</source>
        <translation>&amp;File:</translation>
    </message>
    <message>
        <source>&amp;Ordner:</source>
        <translation>F&amp;older:</translation>
    </message>
    <message>
        <source>%m Monat, %y Jahr, %n Nummer der Seite</source>
        <translation>%m month, %y year, %n number of the page</translation>
    </message>
    <message>
        <source>Datei&amp;namen:</source>
        <translation>File &amp;names:</translation>
    </message>
    <message>
        <source>Alle Seiten (%1)</source>
        <translation>All pages (%1)</translation>
    </message>
    <message>
        <source>Gezeigte Seite (%1)</source>
        <translation>Page shown (%1)</translation>
    </message>
    <message>
        <source>Auswahl:</source>
        <translation>Selection:</translation>
    </message>
    <message>
        <source>Seiten, die exportiert werden</source>
        <translation>Pages to export</translation>
    </message>
    <message>
        <source>zum Beispiel 1-3, 5</source>
        <translation>for example 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Seiten:</source>
        <translation>&amp;Pages:</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>&amp;Auflösung:</source>
        <translation>&amp;Resolution:</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Welche Seiten? Schreiben Sie zum Beispiel 1-3, 5.</source>
        <translation>Which pages? Write for example 1-3, 5.</translation>
    </message>
    <message>
        <source>Wie soll die Datei heißen?</source>
        <translation>What is the file to be called?</translation>
    </message>
    <message>
        <source>Wohin sollen die Bilder, und wie sollen sie heißen?</source>
        <translation>Where are the images to go, and what are they to be called?</translation>
    </message>
    <message>
        <source>Den Ordner %1 gibt es nicht.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
    <message>
        <source>In den Ordner %1 dürfen Sie nicht schreiben; wählen Sie einen anderen.</source>
        <translation>You may not write to the folder %1; choose another one.</translation>
    </message>
    <message>
        <source>%1 ist ein Ordner.</source>
        <translation>%1 is a folder.</translation>
    </message>
    <message>
        <source>Jedes Bild wird %1 × %2 Pixel groß.</source>
        <translation>Each image will be %1 × %2 pixels large.</translation>
    </message>
    <message>
        <source>Die Datei gibt es schon; sie wird ersetzt.</source>
        <translation>The file exists already; it will be replaced.</translation>
    </message>
    <message numerus="yes">
        <source>Schon vorhanden und ersetzt werden: %n Dateien.</source>
        <translation>
            <numerusform>Already there and to be replaced: %n file.</numerusform>
            <numerusform>Already there and to be replaced: %n files.</numerusform>
        </translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Was an jeder Kante über das fertige Blatt hinaus gedruckt und abgeschnitten wird; Druckereien verlangen meist 3 mm</source>
        <translation>What is printed beyond each edge of the finished sheet and cut off; print shops mostly want 3 mm</translation>
    </message>
    <message>
        <source>&amp;Beschnitt:</source>
        <translation>B&amp;leed:</translation>
    </message>
    <message>
        <source>&amp;Zur Stelle gehen</source>
        <translation>&amp;Go there</translation>
    </message>
    <message>
        <source>Dieses Fenster schließen und zeigen, was die gewählte Zeile meint</source>
        <translation>Close this window and show what the chosen line means</translation>
    </message>
    <message>
        <source>Die Seiten werden geprüft …</source>
        <translation>The pages are being checked …</translation>
    </message>
    <message>
        <source>&amp;Wofür:</source>
        <translation>&amp;What for:</translation>
    </message>
    <message>
        <source>B&amp;lätter:</source>
        <translation>S&amp;heets:</translation>
    </message>
    <message>
        <source>nicht für eine Druckerei, die ihre Bögen selbst anlegt</source>
        <translation>not for a print shop, which lays out its own sheets</translation>
    </message>
</context>
<context>
    <name>MvExportFlow</name>
    <message>
        <source>Der Kalender hat keine Seiten zum Exportieren.</source>
        <translation>The calendar has no pages to export.</translation>
    </message>
    <message>
        <source>Trotzdem exportieren</source>
        <translation>Export anyway</translation>
    </message>
    <message>
        <source>Exportieren</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Die Seiten werden geschrieben: %1</source>
        <translation>Writing the pages: %1</translation>
    </message>
    <message>
        <source>Export abgebrochen; nichts wurde geschrieben</source>
        <translation>Export cancelled; nothing was written</translation>
    </message>
    <message>
        <source>Der Kalender wurde nicht exportiert.</source>
        <translation>The calendar was not exported.</translation>
    </message>
    <message>
        <source>Exportiert: %1</source>
        <translation>Exported: %1</translation>
    </message>
    <message>
        <source>Der Kalender ist exportiert: %1</source>
        <translation>The calendar has been exported: %1</translation>
    </message>
    <message>
        <source>Diese Texte hatten keinen Platz und sind gekürzt:</source>
        <translation>These texts had no room and are shortened:</translation>
    </message>
    <message>
        <source>&amp;Ordner öffnen</source>
        <translation>&amp;Open folder</translation>
    </message>
    <message numerus="yes">
        <source>Export abgebrochen; fertig sind %n Dateien</source>
        <translation>
            <numerusform>Export cancelled; %n file is finished</numerusform>
            <numerusform>Export cancelled; %n files are finished</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Dateien in %1</source>
        <translation>
            <numerusform>%n file in %1</numerusform>
            <numerusform>%n files in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Sehen Sie vor dem Druck nach:</source>
        <translation>Have a look before printing:</translation>
    </message>
    <message>
        <source>Das würde nicht gut gedruckt:</source>
        <translation>This would not print well:</translation>
    </message>
    <message>
        <source>Plätze ohne Foto bleiben leer. Die ganze Liste steht unter Datei &gt; Vor dem Druck prüfen.</source>
        <translation>Places without a photo stay empty. The whole list is at File &gt; Check before printing.</translation>
    </message>
    <message>
        <source>Das Foto „%1“ fehlt in der Ausgabe. %2</source>
        <translation>The photo “%1” is missing from the output. %2</translation>
    </message>
    <message>
        <source>%1: zu viel Farbe, %2 % (erlaubt sind %3 %)</source>
        <translation>%1: too much ink, %2 % (allowed are %3 %)</translation>
    </message>
</context>
<context>
    <name>MvExportTarget</name>
    <message>
        <source>%1: den Ordner %2 gibt es nicht</source>
        <translation>%1: the folder %2 does not exist</translation>
    </message>
    <message>
        <source>%1: in %2 lässt sich nicht schreiben</source>
        <translation>%1: %2 cannot be written to</translation>
    </message>
    <message>
        <source>%1 ist ein Ordner</source>
        <translation>%1 is a folder</translation>
    </message>
    <message>
        <source>%1: die Endung muss .pdf, .html, .png, .jpg, .tif oder .svg sein</source>
        <translation>%1: the name must end in .pdf, .html, .png, .jpg, .tif or .svg</translation>
    </message>
    <message>
        <source>%1: jede Seite wird eine Datei für sich; mehrere auf einem Blatt brauchen einen Namen ohne %m, %y und %n</source>
        <translation>%1: each page becomes a file of its own; several on a sheet need a name without %m, %y and %n</translation>
    </message>
</context>
<context>
    <name>MvFileDescriptor</name>
    <message>
        <source>Der Datenträger ist voll.</source>
        <translation>The disk is full.</translation>
    </message>
    <message>
        <source>Der zugeteilte Speicherplatz ist verbraucht.</source>
        <translation>The disk quota is used up.</translation>
    </message>
    <message>
        <source>Die Datei wäre größer als erlaubt.</source>
        <translation>The file would be larger than allowed.</translation>
    </message>
    <message>
        <source>Im Ordner darf nicht geschrieben werden.</source>
        <translation>The folder may not be written to.</translation>
    </message>
    <message>
        <source>Der Datenträger ist schreibgeschützt.</source>
        <translation>The disk is write-protected.</translation>
    </message>
    <message>
        <source>Den Ordner gibt es nicht.</source>
        <translation>The folder does not exist.</translation>
    </message>
    <message>
        <source>Der Dateiname ist zu lang.</source>
        <translation>The file name is too long.</translation>
    </message>
    <message>
        <source>Unter diesem Namen gibt es einen Ordner.</source>
        <translation>There is a folder of this name.</translation>
    </message>
    <message>
        <source>Der Datenträger meldet einen Fehler.</source>
        <translation>The disk reports an error.</translation>
    </message>
</context>
<context>
    <name>MvFileGuard</name>
    <message>
        <source>Ein anderes Programm schreibt gerade in diese Datei.</source>
        <translation>Another program is just writing to this file.</translation>
    </message>
    <message>
        <source>Dateien lassen sich hier nicht sperren.</source>
        <translation>Files cannot be locked here.</translation>
    </message>
</context>
<context>
    <name>MvFileNamePattern</name>
    <message>
        <source>%1: bei %2 Seiten braucht der Dateiname einen Platzhalter, der sie unterscheidet: %n (Seite), %m (Monat) oder %y-%m</source>
        <translation>%1: with %2 pages the file name needs a placeholder that tells them apart: %n (page), %m (month) or %y-%m</translation>
    </message>
    <message>
        <source>%1: unbekannter Platzhalter; erlaubt sind %m (Monat), %y (Jahr), %n (Seite), %r (Region) und %% (Prozentzeichen)</source>
        <translation>%1: unknown placeholder; allowed are %m (month), %y (year), %n (page), %r (region) and %% (per cent sign)</translation>
    </message>
</context>
<context>
    <name>MvFontFamilyBox</name>
    <message>
        <source>Schrift des Layouts</source>
        <translation>Font of the layout</translation>
    </message>
    <message>
        <source>Auf diesem Computer nicht installiert</source>
        <translation>Not installed on this computer</translation>
    </message>
    <message>
        <source>%1, nicht installiert</source>
        <translation>%1, not installed</translation>
    </message>
    <message>
        <source>Die Schrift „%1“ ist auf diesem Computer nicht installiert; gezeigt und gedruckt wird eine Ersatzschrift.</source>
        <translation>The font “%1” is not installed on this computer; a substitute is shown and printed.</translation>
    </message>
    <message>
        <source>Ohne Eintrag gilt die Schrift des Layouts.</source>
        <translation>Left empty, the font of the layout is used.</translation>
    </message>
</context>
<context>
    <name>MvFontPanel</name>
    <message>
        <source>Zurücksetzen</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Nimmt wieder die Schriften und Größen, für die das Layout gemacht ist</source>
        <translation>Returns to the fonts and sizes that the layout is made for</translation>
    </message>
    <message>
        <source>Schrift ändern</source>
        <translation>Change font</translation>
    </message>
    <message>
        <source>Schrift des Layouts nehmen</source>
        <translation>Use the font of the layout</translation>
    </message>
</context>
<context>
    <name>MvFotoBar</name>
    <message>
        <source>Zoom des Fotos</source>
        <translation>Zoom of the photo</translation>
    </message>
    <message>
        <source>Wie nah man dem Foto kommt; auch mit Strg und dem Mausrad</source>
        <translation>How close the photo comes; also with Ctrl and the mouse wheel</translation>
    </message>
    <message>
        <source>Im Uhrzeigersinn drehen</source>
        <translation>Turn clockwise</translation>
    </message>
    <message>
        <source>Das ganze Foto zeigen, statt den Rahmen zu füllen</source>
        <translation>Show the whole photo instead of filling the frame</translation>
    </message>
    <message>
        <source>Foto vergrößern</source>
        <translation>Zoom photo</translation>
    </message>
    <message>
        <source>Foto drehen</source>
        <translation>Turn photo</translation>
    </message>
    <message>
        <source>Foto einpassen</source>
        <translation>Fit photo</translation>
    </message>
</context>
<context>
    <name>MvFotoCalendar</name>
    <message>
        <source>--theme „%1“: erlaubt sind %2</source>
        <translation>--theme “%1”: allowed are %2</translation>
    </message>
    <message>
        <source>ORT</source>
        <translation>PLACE</translation>
    </message>
    <message>
        <source>Fotos oder Ordner mit Fotos; daraus wird ein Fotokalender mit Titelblatt, Monaten und Rückseite; mehrfach erlaubt</source>
        <translation>photos, or folders with photos; they become a photo calendar with cover, months and back; may be given several times</translation>
    </message>
    <message>
        <source>wie der Fotokalender aussieht, siehe themes</source>
        <translation>how the photo calendar looks, see themes</translation>
    </message>
    <message>
        <source>ohne Titelblatt</source>
        <translation>without a cover</translation>
    </message>
    <message>
        <source>ohne Rückseite</source>
        <translation>without a back</translation>
    </message>
    <message>
        <source>das Foto jedes Monats auf einer eigenen Seite, die über dem Monat hängt</source>
        <translation>the photo of each month on a page of its own, which hangs above the month</translation>
    </message>
    <message>
        <source>--%1 gilt nicht für Fotokalender: ihr Aussehen steht im Thema (--theme)</source>
        <translation>--%1 is not for photo calendars: their look is that of the theme (--theme)</translation>
    </message>
    <message>
        <source>%1: das gibt es nicht</source>
        <translation>%1: there is no such thing</translation>
    </message>
    <message>
        <source>%1: darin sind keine Fotos</source>
        <translation>%1: there are no photos in it</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos haben auf den Seiten keinen Platz gefunden</source>
        <translation>
            <numerusform>One photo has found no place on the pages</numerusform>
            <numerusform>%n photos have found no place on the pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Rahmen bleiben leer; mehr Fotos oder ein Thema mit weniger Bildern je Seite füllen sie</source>
        <translation>
            <numerusform>One frame stays empty; more photos, or a theme with fewer pictures on a page, fill it</numerusform>
            <numerusform>%n frames stay empty; more photos, or a theme with fewer pictures on a page, fill them</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoField</name>
    <message>
        <source>Foto auswählen</source>
        <translation>Choose photo</translation>
    </message>
    <message>
        <source>Klicken um ein Foto auszuwählen</source>
        <translation>Click to choose a photo</translation>
    </message>
    <message>
        <source>&amp;Foto entfernen</source>
        <translation>&amp;Remove photo</translation>
    </message>
    <message>
        <source>Das Foto wird geladen…</source>
        <translation>Loading the photo…</translation>
    </message>
    <message>
        <source>Das Foto „%1“ kann nicht gelesen werden.</source>
        <translation>The photo “%1” cannot be read.</translation>
    </message>
    <message>
        <source>Anderes Foto auswählen</source>
        <translation>Choose another photo</translation>
    </message>
    <message>
        <source>Ziehen Sie ein Foto auf diese Fläche um es als Symbol für den Termin zu verwenden.</source>
        <translation>Drag a photo onto this area to use it as the symbol of the appointment.</translation>
    </message>
    <message>
        <source>Fotos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>Foto entfernen</source>
        <translation>Remove photo</translation>
    </message>
    <message>
        <source>Foto hinzufügen</source>
        <translation>Add a photo</translation>
    </message>
</context>
<context>
    <name>MvFotoFlow</name>
    <message>
        <source>Ordner mit Fotos wählen</source>
        <translation>Choose a folder of photos</translation>
    </message>
    <message>
        <source>Fotos wählen</source>
        <translation>Choose photos</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Add photos</translation>
    </message>
    <message>
        <source>Fotos einfügen</source>
        <translation>Insert photos</translation>
    </message>
    <message>
        <source>Fotos verteilen</source>
        <translation>Distribute photos</translation>
    </message>
    <message>
        <source>Es ist alles verteilt: Kein Rahmen ist leer, oder kein Foto ist mehr frei.</source>
        <translation>Everything is distributed: no frame is empty, or no photo is left.</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos verteilt.</source>
        <translation>
            <numerusform>%n photo distributed.</numerusform>
            <numerusform>%n photos distributed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Es werden schon Fotos gelesen. Warten Sie einen Augenblick.</source>
        <translation>Photos are being read already. Wait a moment.</translation>
    </message>
    <message>
        <source>Diese Fotos liegen schon bereit.</source>
        <translation>These photos are at hand already.</translation>
    </message>
    <message>
        <source>Darin ist kein Foto, das sich lesen lässt.</source>
        <translation>There is no photo in it that can be read.</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos hinzugefügt.</source>
        <translation>
            <numerusform>%n photo added.</numerusform>
            <numerusform>%n photos added.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keine Fotos übernommen: Der Kalender, für den sie gelesen wurden, ist nicht mehr offen.</source>
        <translation>No photos were taken: the calendar that they were read for is no longer open.</translation>
    </message>
</context>
<context>
    <name>MvFotoHandle</name>
    <message>
        <source>Größe des Fotos ändern</source>
        <translation>Change the size of the photo</translation>
    </message>
    <message>
        <source>Ausschnitt des Fotos verschieben</source>
        <translation>Move the crop of the photo</translation>
    </message>
    <message>
        <source>Fotos tauschen</source>
        <translation>Swap photos</translation>
    </message>
    <message>
        <source>Größe des Rahmens ändern</source>
        <translation>Resize frame</translation>
    </message>
    <message>
        <source>Rahmen verschieben</source>
        <translation>Move frame</translation>
    </message>
    <message>
        <source>Foto vergrößern</source>
        <translation>Zoom photo</translation>
    </message>
</context>
<context>
    <name>MvFotoInvitation</name>
    <message>
        <source>Foto hierher ziehen oder klicken</source>
        <translation>Drag a photo here or click</translation>
    </message>
</context>
<context>
    <name>MvFotoPainter</name>
    <message>
        <source>Foto fehlt</source>
        <translation>Photo missing</translation>
    </message>
</context>
<context>
    <name>MvFotoPanel</name>
    <message>
        <source>Foto wählen …</source>
        <translation>Choose photo …</translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Foto entfernen</source>
        <translation>Remove photo</translation>
    </message>
    <message>
        <source>steht dort, wo die Vorlage Platz hat</source>
        <translation>stands where the template has room</translation>
    </message>
    <message>
        <source>Bildunterschrift ändern</source>
        <translation>Change caption</translation>
    </message>
    <message>
        <source>Unterschrift:</source>
        <translation>Caption:</translation>
    </message>
    <message>
        <source>Füllt den Rahmen</source>
        <translation>Fills the frame</translation>
    </message>
    <message>
        <source>Ganz zu sehen</source>
        <translation>Seen whole</translation>
    </message>
    <message>
        <source>Foto einpassen</source>
        <translation>Fit photo</translation>
    </message>
    <message>
        <source>Foto vergrößern</source>
        <translation>Zoom photo</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Foto ausrichten</source>
        <translation>Straighten photo</translation>
    </message>
    <message>
        <source>Foto drehen</source>
        <translation>Turn photo</translation>
    </message>
    <message>
        <source>Gegen den Uhrzeigersinn drehen</source>
        <translation>Turn counterclockwise</translation>
    </message>
    <message>
        <source>Im Uhrzeigersinn drehen</source>
        <translation>Turn clockwise</translation>
    </message>
    <message>
        <source>Ausschnitt:</source>
        <translation>Crop:</translation>
    </message>
    <message>
        <source>Zoom:</source>
        <translation>Zoom:</translation>
    </message>
    <message>
        <source>Drehen:</source>
        <translation>Turn:</translation>
    </message>
    <message>
        <source>Ausrichten um Grad</source>
        <translation>Straighten by degrees</translation>
    </message>
    <message>
        <source>Zoom des Fotos</source>
        <translation>Zoom of the photo</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source> % der Seite</source>
        <translation> % of the page</translation>
    </message>
    <message>
        <source>Platz:</source>
        <translation>Place:</translation>
    </message>
    <message>
        <source>Größe:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Rand des Fotos ändern</source>
        <translation>Change border of the photo</translation>
    </message>
    <message>
        <source>Farbe des Randes</source>
        <translation>Color of the border</translation>
    </message>
    <message>
        <source>Rand:</source>
        <translation>Border:</translation>
    </message>
    <message>
        <source>Breite des Randes</source>
        <translation>Width of the border</translation>
    </message>
    <message>
        <source>Dieser Rahmen ist leer.</source>
        <translation>This frame is empty.</translation>
    </message>
    <message>
        <source>Ersetzen …</source>
        <translation>Replace …</translation>
    </message>
    <message>
        <source>Platz des Fotos ändern</source>
        <translation>Change place of the photo</translation>
    </message>
    <message>
        <source>Helligkeit des Fotos</source>
        <translation>Brightness of the photo</translation>
    </message>
    <message>
        <source>Helligkeit des Fotos ändern</source>
        <translation>Change brightness of the photo</translation>
    </message>
    <message>
        <source>Kontrast des Fotos</source>
        <translation>Contrast of the photo</translation>
    </message>
    <message>
        <source>Kontrast des Fotos ändern</source>
        <translation>Change contrast of the photo</translation>
    </message>
    <message>
        <source>Wie aufgenommen</source>
        <translation>As taken</translation>
    </message>
    <message>
        <source>Helligkeit und Kontrast wieder so, wie das Foto sie hat</source>
        <translation>Brightness and contrast as the photo has them</translation>
    </message>
    <message>
        <source>Helligkeit:</source>
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>Kontrast:</source>
        <translation>Contrast:</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos</source>
        <translation>
            <numerusform>One photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Diese Rahmen sind leer.</source>
        <translation>These frames are empty.</translation>
    </message>
</context>
<context>
    <name>MvFotoPoolIntake</name>
    <message>
        <source>Die Verknüpfung führt aus dem Ordner hinaus.</source>
        <translation>The link leads out of the folder.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… und %n weitere</source>
        <translation>
            <numerusform>… and %n more</numerusform>
            <numerusform>… and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Dateien sind keine Fotos.</source>
        <translation>
            <numerusform>%n file is not a photo.</numerusform>
            <numerusform>%n files are not photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos waren schon da.</source>
        <translation>
            <numerusform>%n photo was there already.</numerusform>
            <numerusform>%n photos were there already.</numerusform>
        </translation>
    </message>
    <message>
        <source>Mehr als %1 Dateien auf einmal werden nicht genommen. Wählen Sie kleinere Ordner.</source>
        <translation>More than %1 files at once are not taken. Choose smaller folders.</translation>
    </message>
</context>
<context>
    <name>MvFotoTray</name>
    <message>
        <source>Hier liegen die Fotos des Kalenders. Ziehen Sie Bilder oder einen Ordner hierher.</source>
        <translation>The photos of the calendar lie here. Drag pictures or a folder here.</translation>
    </message>
    <message>
        <source>Fotos des Kalenders</source>
        <translation>Photos of the calendar</translation>
    </message>
    <message>
        <source>Fotos …</source>
        <translation>Photos …</translation>
    </message>
    <message>
        <source>Fotos hinzufügen</source>
        <translation>Add photos</translation>
    </message>
    <message>
        <source>Ordner …</source>
        <translation>Folder …</translation>
    </message>
    <message>
        <source>Alle Fotos eines Ordners hinzufügen</source>
        <translation>Add all photos of a folder</translation>
    </message>
    <message>
        <source>Verteilen</source>
        <translation>Distribute</translation>
    </message>
    <message>
        <source>Die leeren Rahmen füllen: Jedes Foto kommt in seinen Monat</source>
        <translation>Fill the empty frames: every photo goes to its month</translation>
    </message>
    <message>
        <source>Sortieren</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Die Fotos nach Zeit oder Name ordnen</source>
        <translation>Sort the photos by time or name</translation>
    </message>
    <message>
        <source>Nach der &amp;Aufnahmezeit</source>
        <translation>By &amp;time taken</translation>
    </message>
    <message>
        <source>Nach dem &amp;Namen</source>
        <translation>By &amp;name</translation>
    </message>
    <message>
        <source>Nur freie</source>
        <translation>Unused only</translation>
    </message>
    <message>
        <source>Nur Fotos zeigen, die auf keiner Seite sind</source>
        <translation>Show only photos that are on no page</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Keine weiteren Fotos hinzufügen</source>
        <translation>Add no more photos</translation>
    </message>
    <message>
        <source>Fotos werden gelesen</source>
        <translation>Photos are being read</translation>
    </message>
    <message>
        <source>%v von %m</source>
        <translation>%v of %m</translation>
    </message>
    <message numerus="yes">
        <source>%1 von %n Fotos auf den Seiten</source>
        <translation>
            <numerusform>%1 of %n photo on the pages</numerusform>
            <numerusform>%1 of %n photos on the pages</numerusform>
        </translation>
    </message>
    <message>
        <source>Fotos sortieren</source>
        <translation>Sort photos</translation>
    </message>
    <message>
        <source>Fotos aus der Ablage nehmen</source>
        <translation>Take photos out of the tray</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos sind auf Seiten und bleiben.</source>
        <translation>
            <numerusform>%n photo is on pages and stays.</numerusform>
            <numerusform>%n photos are on pages and stay.</numerusform>
        </translation>
    </message>
    <message>
        <source>Auf die &amp;gezeigte Seite setzen</source>
        <translation>&amp;Put on the page shown</translation>
    </message>
    <message>
        <source>Zur &amp;Seite mit diesem Foto</source>
        <translation>&amp;Go to the page with this photo</translation>
    </message>
    <message>
        <source>&amp;Ordner öffnen</source>
        <translation>&amp;Open folder</translation>
    </message>
    <message>
        <source>Aus der Ablage &amp;nehmen</source>
        <translation>&amp;Take out of the tray</translation>
    </message>
</context>
<context>
    <name>MvFotoTrayModel</name>
    <message numerus="yes">
        <source>%1, %n-mal auf den Seiten</source>
        <translation>
            <numerusform>%1, once on the pages</numerusform>
            <numerusform>%1, %n times on the pages</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, noch unbenutzt</source>
        <translation>%1, not used yet</translation>
    </message>
</context>
<context>
    <name>MvFrameEdits</name>
    <message>
        <source>Fotorahmen einfügen</source>
        <translation>Insert photo frame</translation>
    </message>
    <message>
        <source>Ihr Text</source>
        <translation>Your text</translation>
    </message>
    <message>
        <source>Textrahmen einfügen</source>
        <translation>Insert text frame</translation>
    </message>
    <message>
        <source>Kleinen Monat einfügen</source>
        <translation>Insert small month</translation>
    </message>
    <message>
        <source>Rahmen verdoppeln</source>
        <translation>Duplicate frame</translation>
    </message>
    <message>
        <source>Rahmen löschen</source>
        <translation>Delete frame</translation>
    </message>
    <message>
        <source>Rahmen nach vorn holen</source>
        <translation>Bring frame to front</translation>
    </message>
    <message>
        <source>Rahmen nach hinten stellen</source>
        <translation>Send frame to back</translation>
    </message>
    <message>
        <source>Rahmen frei anordnen</source>
        <translation>Arrange frames freely</translation>
    </message>
    <message>
        <source>Foto und Kalender lassen sich jetzt einzeln verschieben; F7 geht von einem zum anderen.</source>
        <translation>Photo and calendar can be moved one by one now; F7 goes from one to the other.</translation>
    </message>
    <message>
        <source>Rahmen ausrichten</source>
        <translation>Align frames</translation>
    </message>
    <message>
        <source>Wählen Sie erst drei Rahmen oder mehr: den nächsten jeweils mit der Umschalttaste.</source>
        <translation>Choose three frames or more first: each further one with the Shift key.</translation>
    </message>
    <message>
        <source>Rahmen gleichmäßig verteilen</source>
        <translation>Distribute frames evenly</translation>
    </message>
    <message>
        <source>Rahmen verschieben</source>
        <translation>Move frame</translation>
    </message>
    <message>
        <source>%1 mm von links, %2 mm von oben</source>
        <translation>%1 mm from the left, %2 mm from the top</translation>
    </message>
    <message>
        <source>Größe des Rahmens ändern</source>
        <translation>Resize frame</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>&amp;Rahmen</source>
        <translation>F&amp;rame</translation>
    </message>
    <message>
        <source>Rahmen &amp;wählen</source>
        <translation>Choose &amp;frame</translation>
    </message>
    <message>
        <source>Rahmen ver&amp;doppeln</source>
        <translation>&amp;Duplicate frame</translation>
    </message>
    <message>
        <source>Ganz nach &amp;vorn</source>
        <translation>To the &amp;front</translation>
    </message>
    <message>
        <source>Ganz nach &amp;hinten</source>
        <translation>To the &amp;back</translation>
    </message>
    <message>
        <source>Rahmen &amp;löschen</source>
        <translation>De&amp;lete frame</translation>
    </message>
    <message>
        <source>&amp;Fotorahmen einfügen</source>
        <translation>Insert &amp;photo frame</translation>
    </message>
    <message>
        <source>&amp;Textrahmen einfügen</source>
        <translation>Insert &amp;text frame</translation>
    </message>
    <message>
        <source>Kleinen &amp;Monat einfügen</source>
        <translation>Insert small &amp;month</translation>
    </message>
    <message>
        <source>Rahmen frei &amp;anordnen</source>
        <translation>&amp;Arrange frames freely</translation>
    </message>
</context>
<context>
    <name>MvFrameNotices</name>
    <message>
        <source>Foto hierher ziehen oder klicken</source>
        <translation>Drag a photo here or click</translation>
    </message>
    <message>
        <source>„%1“ lässt sich nicht lesen.
Das Kontextmenü ersetzt das Foto durch ein anderes.</source>
        <translation>“%1” cannot be read.
The context menu replaces it by another photo.</translation>
    </message>
    <message>
        <source>Das Foto wird geladen …</source>
        <translation>The photo is being loaded …</translation>
    </message>
    <message>
        <source>%1 ppi</source>
        <translation>%1 ppi</translation>
    </message>
</context>
<context>
    <name>MvFramePanel</name>
    <message>
        <source>Foto und Kalender teilen sich diese Seite. Wer sie einzeln verschieben möchte, ordnet sie frei an.</source>
        <translation>Photo and calendar share this page. To move them one by one, arrange them freely.</translation>
    </message>
    <message>
        <source>Abstand von links</source>
        <translation>Distance from the left</translation>
    </message>
    <message>
        <source>Abstand von oben</source>
        <translation>Distance from the top</translation>
    </message>
    <message>
        <source>Breite des Rahmens</source>
        <translation>Width of the frame</translation>
    </message>
    <message>
        <source>Höhe des Rahmens</source>
        <translation>Height of the frame</translation>
    </message>
    <message>
        <source>Rahmen frei anordnen</source>
        <translation>Arrange frames freely</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Links:</source>
        <translation>Left:</translation>
    </message>
    <message>
        <source>Oben:</source>
        <translation>Top:</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Links bündig</source>
        <translation>Align left</translation>
    </message>
    <message>
        <source>Waagerecht mittig</source>
        <translation>Centre horizontally</translation>
    </message>
    <message>
        <source>Rechts bündig</source>
        <translation>Align right</translation>
    </message>
    <message>
        <source>Oben bündig</source>
        <translation>Align top</translation>
    </message>
    <message>
        <source>Senkrecht mittig</source>
        <translation>Centre vertically</translation>
    </message>
    <message>
        <source>Unten bündig</source>
        <translation>Align bottom</translation>
    </message>
    <message>
        <source>Nebeneinander gleichmäßig verteilen</source>
        <translation>Distribute evenly side by side</translation>
    </message>
    <message>
        <source>Untereinander gleichmäßig verteilen</source>
        <translation>Distribute evenly one below the other</translation>
    </message>
    <message>
        <source>Ausrichten:</source>
        <translation>Align:</translation>
    </message>
    <message>
        <source>Ganz nach vorn</source>
        <translation>To the front</translation>
    </message>
    <message>
        <source>Ganz nach hinten</source>
        <translation>To the back</translation>
    </message>
    <message>
        <source>Rahmen verdoppeln</source>
        <translation>Duplicate frame</translation>
    </message>
    <message>
        <source>Rahmen löschen</source>
        <translation>Delete frame</translation>
    </message>
    <message>
        <source>Rahmen:</source>
        <translation>Frame:</translation>
    </message>
</context>
<context>
    <name>MvGraphicsItemCalendariumCell</name>
    <message>
        <source>Klicken um eigenen Eintrag am %1 zu erstellen</source>
        <translation>Click to create an entry of your own on %1</translation>
    </message>
</context>
<context>
    <name>MvGroupEdits</name>
    <message>
        <source>Neue Gruppe</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>Neue Gruppe %1</source>
        <translation>New group %1</translation>
    </message>
    <message>
        <source>Gruppe anlegen</source>
        <translation>Create group</translation>
    </message>
    <message>
        <source>Gruppe umbenennen</source>
        <translation>Rename group</translation>
    </message>
    <message>
        <source>Gruppe entfernen</source>
        <translation>Remove group</translation>
    </message>
    <message>
        <source>Gruppen ordnen</source>
        <translation>Order groups</translation>
    </message>
    <message>
        <source>Gruppe einblenden</source>
        <translation>Show group</translation>
    </message>
    <message>
        <source>Gruppe ausblenden</source>
        <translation>Hide group</translation>
    </message>
    <message>
        <source>Spalten aus den Gruppen</source>
        <translation>Columns from the groups</translation>
    </message>
</context>
<context>
    <name>MvGroupsDialog</name>
    <message>
        <source>Gruppen und Alter</source>
        <translation>Groups and ages</translation>
    </message>
    <message>
        <source>Gruppen, angekreuzt, wenn der Kalender sie zeigt</source>
        <translation>Groups, ticked when the calendar shows them</translation>
    </message>
    <message>
        <source>Der Kalender zeigt, was angekreuzt ist.</source>
        <translation>The calendar shows what is ticked.</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Neue Gruppe</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>Entfernen …</source>
        <translation>Remove …</translation>
    </message>
    <message>
        <source>Die Gruppe entfernen; ihre Einträge bleiben im Kalender</source>
        <translation>Remove the group; its entries stay in the calendar</translation>
    </message>
    <message>
        <source>Gruppe nach oben</source>
        <translation>Group up</translation>
    </message>
    <message>
        <source>Gruppe nach unten</source>
        <translation>Group down</translation>
    </message>
    <message>
        <source>Eigene</source>
        <translation>Its own</translation>
    </message>
    <message>
        <source>Ohne eigene Farbe haben die Einträge der Gruppe die der Seite</source>
        <translation>Without a colour of its own the entries of the group have that of the page</translation>
    </message>
    <message>
        <source>Farbe der Gruppe</source>
        <translation>Colour of the group</translation>
    </message>
    <message>
        <source>Lesbaren Ton nehmen</source>
        <translation>Take readable tone</translation>
    </message>
    <message>
        <source>keines</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Steht vor den Einträgen der Gruppe, ein Zeichen wie ♥ oder ★</source>
        <translation>Stands before the entries of the group, a sign such as ♥ or ★</translation>
    </message>
    <message>
        <source>Wie im ganzen Kalender</source>
        <translation>As in the whole calendar</translation>
    </message>
    <message>
        <source>So lesen sich Einträge der Gruppe</source>
        <translation>How entries of the group read</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Farbe:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>Zeichen:</source>
        <translation>Sign:</translation>
    </message>
    <message>
        <source>Alter:</source>
        <translation>Age:</translation>
    </message>
    <message>
        <source>Ganzer Kalender</source>
        <translation>Whole calendar</translation>
    </message>
    <message>
        <source>Ohne Alter</source>
        <translation>Without age</translation>
    </message>
    <message>
        <source>So lesen sich die Einträge</source>
        <translation>How the entries read</translation>
    </message>
    <message>
        <source>Uhrzeiten vor die Einträge schreiben</source>
        <translation>Write times before the entries</translation>
    </message>
    <message>
        <source>Farbe der Gruppe ändern</source>
        <translation>Change colour of group</translation>
    </message>
    <message>
        <source>Zeichen der Gruppe ändern</source>
        <translation>Change sign of group</translation>
    </message>
    <message>
        <source>Alter in der Gruppe ändern</source>
        <translation>Change ages in group</translation>
    </message>
    <message>
        <source>Alter im Kalender ändern</source>
        <translation>Change ages in calendar</translation>
    </message>
    <message>
        <source>Uhrzeiten ein- oder ausblenden</source>
        <translation>Show or hide times</translation>
    </message>
    <message>
        <source>Auf allen Tagen gut zu lesen (Kontrast %1 : 1).</source>
        <translation>Easy to read on all days (contrast %1 : 1).</translation>
    </message>
    <message>
        <source>Schwer zu lesen (Kontrast %1 : 1, gut sind %2 : 1): %3.</source>
        <translation>Hard to read (contrast %1 : 1, good is %2 : 1): %3.</translation>
    </message>
    <message>
        <source>Gedruckt wird sie dort abgetönt.</source>
        <translation>It is printed in another tone there.</translation>
    </message>
    <message>
        <source>In keiner Helligkeit passt sie zu hellen und dunklen Tagen zugleich; gedruckt wird sie dort abgetönt.</source>
        <translation>In no lightness does it fit light and dark days alike; it is printed in another tone there.</translation>
    </message>
    <message>
        <source>So steht es da: %1</source>
        <translation>It reads: %1</translation>
    </message>
    <message>
        <source>Eine Gruppe braucht einen Namen.</source>
        <translation>A group needs a name.</translation>
    </message>
    <message>
        <source>Eine Gruppe „%1“ gibt es schon.</source>
        <translation>There is a group “%1” already.</translation>
    </message>
    <message>
        <source>Gruppe entfernen?</source>
        <translation>Remove group?</translation>
    </message>
    <message>
        <source>Die Gruppe „%1“ entfernen?</source>
        <translation>Remove the group “%1”?</translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge gehören zu ihr. Sie bleiben im Kalender und verlieren nur diese Gruppe.</source>
        <translation>
            <numerusform>%n entry belongs to it. It stays in the calendar and only loses this group.</numerusform>
            <numerusform>%n entries belong to it. They stay in the calendar and only lose this group.</numerusform>
        </translation>
    </message>
    <message>
        <source>Entfernen</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MvGuardedImageReader</name>
    <message>
        <source>Die Datei ist zu groß.</source>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>%1 × %2 Bildpunkte</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt oder nicht vollständig.</source>
        <translation>The file is damaged or not complete.</translation>
    </message>
    <message>
        <source>Die Datei ist viel zu klein für die %1, die sie haben will.</source>
        <translation>The file is far too small for the %1 that it claims to have.</translation>
    </message>
    <message>
        <source>Das Bild ist in mehr als %1 Durchgängen gespeichert. So etwas tut kein übliches Programm.</source>
        <translation>The picture is stored in more than %1 passes. No usual program does such a thing.</translation>
    </message>
    <message>
        <source>Das Bild ist zu groß: %1. Verkleinern Sie es in einem Bildprogramm.</source>
        <translation>The picture is too large: %1. Make it smaller in an image editor.</translation>
    </message>
    <message>
        <source>Das Bild zu lesen dauert zu lange.</source>
        <translation>Reading the picture takes too long.</translation>
    </message>
    <message>
        <source>Gelesen werden JPEG, PNG, HEIC, TIFF, WebP, BMP und GIF.</source>
        <translation>JPEG, PNG, HEIC, TIFF, WebP, BMP and GIF are read.</translation>
    </message>
</context>
<context>
    <name>MvHelpDialogs</name>
    <message>
        <source>Tastenkürzel</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Tasten</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Wozu</source>
        <translation>Purpose</translation>
    </message>
    <message>
        <source>Über MvCalendar</source>
        <translation>About MvCalendar</translation>
    </message>
    <message>
        <source>&lt;h2&gt;MvCalendar %1&lt;/h2&gt;&lt;p&gt;Gestaltet Fotokalender und druckt sie: als PDF, als Bilder und auf Papier.&lt;/p&gt;&lt;p&gt;Gebaut mit Qt %2 und qpdf. Schriften: Lato und EB Garamond (SIL Open Font License). Ein Teil der Schulferien stammt aus einer Sammlung unter der Open Database License; Näheres steht in docs/third-party.md.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;MvCalendar %1&lt;/h2&gt;&lt;p&gt;Designs photo calendars and prints them: as PDF, as images and on paper.&lt;/p&gt;&lt;p&gt;Built with Qt %2 and qpdf. Fonts: Lato and EB Garamond (SIL Open Font License). Part of the school holidays comes from a collection under the Open Database License; docs/third-party.md tells more.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Pfeile</source>
        <translation>Arrows</translation>
    </message>
    <message>
        <source>Auf der Seite von Tag zu Tag gehen, am Rand zur nächsten Seite</source>
        <translation>Go from day to day on the page, at its edge to the next page</translation>
    </message>
    <message>
        <source>Eintrag</source>
        <translation>Entry</translation>
    </message>
    <message>
        <source>Eingabe</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Für den Tag einen Eintrag anlegen oder ändern</source>
        <translation>Create or change an entry for the day</translation>
    </message>
    <message>
        <source>Ausschnitt</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Alt+Pfeile</source>
        <translation>Alt+arrows</translation>
    </message>
    <message>
        <source>Den Ausschnitt des Fotos verschieben</source>
        <translation>Move the part of the photo that is shown</translation>
    </message>
    <message>
        <source>Seiten</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Bild auf, Bild ab, Pos1, Ende</source>
        <translation>Page up, page down, Home, End</translation>
    </message>
    <message>
        <source>In den Seiten blättern; das Mausrad tut es auch</source>
        <translation>Turn the pages; the mouse wheel does so, too</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Strg+Mausrad</source>
        <translation>Ctrl+mouse wheel</translation>
    </message>
    <message>
        <source>Die Seite größer oder kleiner zeigen</source>
        <translation>Show the page larger or smaller</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Leertaste</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Gedrückt halten und die Seite mit der Maus verschieben</source>
        <translation>Hold it and move the page with the mouse</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Umschalt beim Ablegen</source>
        <translation>Shift when dropping</translation>
    </message>
    <message>
        <source>Das Foto wird das der Seite, nicht das eines Tages</source>
        <translation>The photo becomes that of the page, not of a day</translation>
    </message>
    <message>
        <source>Abbruch</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Das Ziehen am Foto abbrechen, den Tag verlassen</source>
        <translation>Stop dragging the photo, leave the day</translation>
    </message>
    <message>
        <source>Zoom des Fotos</source>
        <translation>Zoom of the photo</translation>
    </message>
    <message>
        <source>Strg+Mausrad über dem Foto</source>
        <translation>Ctrl+mouse wheel over the photo</translation>
    </message>
    <message>
        <source>Dem Foto näher kommen oder sich entfernen</source>
        <translation>Come closer to the photo or go away from it</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Alt+Ziehen</source>
        <translation>Alt+drag</translation>
    </message>
    <message>
        <source>Einen Rahmen verschieben; an seinen Ecken ändert sich die Größe</source>
        <translation>Move a frame; its corners change its size</translation>
    </message>
    <message>
        <source>Anleitung</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>guide.de.html</source>
        <extracomment>the guide&apos;s file in the language</extracomment>
        <translation>guide.en.html</translation>
    </message>
    <message>
        <source>Hilfe</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>MvHolidayEntries</name>
    <message>
        <source>Feiertage</source>
        <translation>Public holidays</translation>
    </message>
    <message>
        <source>Teils frei</source>
        <translation>Optional holidays</translation>
    </message>
    <message>
        <source>Gedenktage</source>
        <translation>Observances</translation>
    </message>
    <message>
        <source>Schulferien</source>
        <translation>School holidays</translation>
    </message>
</context>
<context>
    <name>MvHolidayRuleParser</name>
    <message>
        <source>leere Regel</source>
        <translation>empty rule</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein Anfang einer Regel</source>
        <translation>&quot;%1&quot; does not begin a rule</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein gezählter Wochentag</source>
        <translation>&quot;%1&quot; is not a counted day of the week</translation>
    </message>
    <message>
        <source>nach &quot;%1&quot; wird &quot;in&quot; erwartet, nicht &quot;%2&quot;</source>
        <translation>after &quot;%1&quot;, &quot;in&quot; is expected, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein Monat</source>
        <translation>&quot;%1&quot; is not a month</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist keine Bedingung</source>
        <translation>&quot;%1&quot; is not a condition</translation>
    </message>
    <message>
        <source>nach &quot;if %1&quot; wird &quot;then&quot; erwartet, nicht &quot;%2&quot;</source>
        <translation>after &quot;if %1&quot;, &quot;then&quot; is expected, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist zu weit</source>
        <translation>&quot;%1&quot; is too far</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein Schritt einer Regel</source>
        <translation>&quot;%1&quot; is not a step of a rule</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein Wochentag</source>
        <translation>&quot;%1&quot; is not a day of the week</translation>
    </message>
</context>
<context>
    <name>MvHolidayTableReader</name>
    <message numerus="yes">
        <source> (und %n weitere Fehler in dieser Datei)</source>
        <translation>
            <numerusform> (and %n more error in this file)</numerusform>
            <numerusform> (and %n more errors in this file)</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; statt &quot;%2&quot;</source>
        <translation>&quot;%1&quot; instead of &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Land ohne Kennung oder Sprache</source>
        <translation>country without code or language</translation>
    </message>
    <message>
        <source>Region ohne eigene Kennung</source>
        <translation>region without a code of its own</translation>
    </message>
    <message>
        <source>Feiertag ohne Namen</source>
        <translation>holiday without a name</translation>
    </message>
    <message>
        <source>Feiertag &quot;%1&quot; hat eine unbekannte Art</source>
        <translation>holiday &quot;%1&quot; is of an unknown kind</translation>
    </message>
    <message>
        <source>Feiertag &quot;%1&quot;: %2</source>
        <translation>holiday &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ist kein Jahr</source>
        <translation>&quot;%1&quot; is not a year</translation>
    </message>
    <message>
        <source>unbekannte Region &quot;%1&quot;</source>
        <translation>unknown region &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Ferien ohne Namen, Anfang oder Ende</source>
        <translation>school holidays without name, start or end</translation>
    </message>
    <message>
        <source>&quot;%1&quot; endet vor dem Anfang oder dauert zu lange</source>
        <translation>&quot;%1&quot; ends before it starts or lasts too long</translation>
    </message>
</context>
<context>
    <name>MvHolidaysCommand</name>
    <message>
        <source>Feiertag</source>
        <translation>holiday</translation>
    </message>
    <message>
        <source>teils frei</source>
        <translation>partly free</translation>
    </message>
    <message>
        <source>Gedenktag</source>
        <translation>observance</translation>
    </message>
    <message>
        <source>Ferien</source>
        <translation>school holidays</translation>
    </message>
    <message>
        <source>gibt Feiertage und Schulferien aus</source>
        <translation>lists public and school holidays</translation>
    </message>
    <message>
        <source>Jahr (das kommende)</source>
        <translation>year (the coming one)</translation>
    </message>
    <message>
        <source>letztes Jahr, wenn es mehrere sind</source>
        <translation>last year, if there are several</translation>
    </message>
    <message>
        <source>--to „%1“: erlaubt sind %2 bis %3</source>
        <translation>--to “%1”: allowed are %2 to %3</translation>
    </message>
    <message>
        <source>JAHR</source>
        <translation>YEAR</translation>
    </message>
    <message>
        <source>ddd dd.MM.yyyy</source>
        <translation>ddd d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>MvHtmlExporter</name>
    <message>
        <source>Auf diesen Seiten gibt es nichts zu lesen</source>
        <translation>There is nothing to read on these pages</translation>
    </message>
</context>
<context>
    <name>MvICalendar</name>
    <message>
        <source>das Datum „%1“ ist nicht zu lesen</source>
        <translation>the date “%1” cannot be read</translation>
    </message>
    <message>
        <source>die Datei endet mittendrin</source>
        <translation>the file ends in the middle</translation>
    </message>
    <message>
        <source>Das ist kein Kalender (iCalendar).</source>
        <translation>This is no calendar (iCalendar).</translation>
    </message>
    <message>
        <source>Aufgaben und Notizen sind keine Einträge</source>
        <translation>tasks and notes are no entries</translation>
    </message>
    <message>
        <source>der Termin ist abgesagt</source>
        <translation>the event is cancelled</translation>
    </message>
    <message>
        <source>der Name fehlt</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>das Datum fehlt</source>
        <translation>the date is missing</translation>
    </message>
    <message>
        <source>abgesagt</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>die Dauer „%1“ ist nicht zu lesen</source>
        <translation>the duration “%1” cannot be read</translation>
    </message>
    <message>
        <source>er dauert länger als ein Jahr</source>
        <translation>it lasts longer than a year</translation>
    </message>
    <message>
        <source>mehrere Regeln der Wiederholung sind nicht auszuwerten</source>
        <translation>several rules of repetition cannot be evaluated</translation>
    </message>
    <message>
        <source>die Wiederholung ist nicht auszuwerten: %1</source>
        <translation>the repetition cannot be evaluated: %1</translation>
    </message>
    <message>
        <source>Ausnahmen nach einer Regel sind nicht auszuwerten</source>
        <translation>exceptions by a rule cannot be evaluated</translation>
    </message>
    <message>
        <source>die Wiederholung zählt die Tage einer anderen Zeitzone</source>
        <translation>the repetition counts the days of another time zone</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>description</translation>
    </message>
    <message>
        <source>Ort</source>
        <translation>place</translation>
    </message>
    <message>
        <source>Anhang</source>
        <translation>attachment</translation>
    </message>
    <message>
        <source>Teilnehmer</source>
        <translation>participant</translation>
    </message>
    <message>
        <source>Erinnerung</source>
        <translation>alarm</translation>
    </message>
    <message>
        <source>die Angabe %1 ist zu lang, ihr Ende fehlt</source>
        <translation>%1 is too long, its end is missing</translation>
    </message>
    <message>
        <source>die Datei hat mehr als %1 Termine</source>
        <translation>the file has more than %1 events</translation>
    </message>
    <message numerus="yes">
        <source>%n Zeilen sind nicht zu lesen, dies ist die erste</source>
        <translation>
            <numerusform>%n line cannot be read</numerusform>
            <numerusform>%n lines cannot be read, this is the first</numerusform>
        </translation>
    </message>
    <message>
        <source>die Datei hat eine neuere Fassung davon</source>
        <translation>the file has a newer version of it</translation>
    </message>
    <message>
        <source>die Änderung gilt auch für alle Termine danach; geändert ist nur dieser</source>
        <translation>the change is meant for all dates after it, too; only this one is changed</translation>
    </message>
    <message>
        <source>Ein Kalender druckt nicht: %1</source>
        <translation>A calendar does not print: %1</translation>
    </message>
    <message>
        <source>Die Zeitzone „%1“ ist nicht bekannt; ihre Zeiten stehen da wie in der Datei.</source>
        <translation>The time zone “%1” is not known; its times are as in the file.</translation>
    </message>
</context>
<context>
    <name>MvImportReport</name>
    <message numerus="yes">
        <source>%n Geburtstage importiert.</source>
        <translation>
            <numerusform>%n birthday imported.</numerusform>
            <numerusform>%n birthdays imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Alle %n Geburtstage waren schon da.</source>
        <translation>
            <numerusform>The birthday was there already.</numerusform>
            <numerusform>All %n birthdays were there already.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ein Adressbuch ließ sich nicht lesen.</source>
        <translation>An address book could not be read.</translation>
    </message>
    <message>
        <source>In den Visitenkarten steht kein Geburtstag.</source>
        <translation>There is no birthday on the contact cards.</translation>
    </message>
    <message>
        <source>In den Visitenkarten steht kein Geburtstag, der sich lesen lässt.</source>
        <translation>There is no birthday on the contact cards that can be read.</translation>
    </message>
    <message numerus="yes">
        <source>%n waren schon da.</source>
        <translation>
            <numerusform>%n was there already.</numerusform>
            <numerusform>%n were there already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Visitenkarten haben keinen Geburtstag.</source>
        <translation>
            <numerusform>%n contact card has no birthday.</numerusform>
            <numerusform>%n contact cards have no birthday.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Visitenkarten mit Geburtstag haben keinen Namen.</source>
        <translation>
            <numerusform>%n contact card with a birthday has no name.</numerusform>
            <numerusform>%n contact cards with a birthday have no name.</numerusform>
        </translation>
    </message>
    <message>
        <source>Sie stehen jetzt auf ihren Tagen. Zurücknehmen lässt sich das mit Bearbeiten &gt; Rückgängig.</source>
        <translation>They are now on their days. Edit &gt; Undo takes this back.</translation>
    </message>
    <message>
        <source>Tragen Sie die Geburtstage im Adressbuch ein, und exportieren Sie es noch einmal als vCard (.vcf).</source>
        <translation>Enter the birthdays in the address book, and export it once more as vCard (.vcf).</translation>
    </message>
    <message>
        <source>Nicht verstanden (%1):</source>
        <translation>Not understood (%1):</translation>
    </message>
    <message>
        <source>Ohne Bild, denn es ließ sich nicht übernehmen (%1):</source>
        <translation>Without a picture, for it could not be taken over (%1):</translation>
    </message>
    <message numerus="yes">
        <source>%n Geburtstage stehen im Kalender, sind aber noch nicht gespeichert.</source>
        <translation>
            <numerusform>%n birthday is in the calendar, but not yet saved.</numerusform>
            <numerusform>%n birthdays are in the calendar, but not yet saved.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvInPlaceWriter</name>
    <message>
        <source>Die bisherige Fassung liegt in %1.</source>
        <translation>The previous version is in %1.</translation>
    </message>
    <message>
        <source>Die bisherige Fassung ist nicht lesbar.</source>
        <translation>The previous version cannot be read.</translation>
    </message>
    <message>
        <source>Von der bisherigen Fassung lässt sich keine Sicherung anlegen.</source>
        <translation>No backup of the previous version can be made.</translation>
    </message>
</context>
<context>
    <name>MvInspector</name>
    <message>
        <source>Eigenschaften</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Zurück zum ganzen Kalender</source>
        <translation>Back to the whole calendar</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Ganzer Kalender</source>
        <translation>Whole calendar</translation>
    </message>
    <message numerus="yes">
        <source>%n Rahmen</source>
        <translation>
            <numerusform>%n frame</numerusform>
            <numerusform>%n frames</numerusform>
        </translation>
    </message>
    <message>
        <source>Kalender als Rahmen</source>
        <translation>Calendar as a frame</translation>
    </message>
</context>
<context>
    <name>MvLayoutChooser</name>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
</context>
<context>
    <name>MvLayoutsCommand</name>
    <message>
        <source>zählt die Layouts auf</source>
        <translation>lists the layouts</translation>
    </message>
</context>
<context>
    <name>MvLeapDayHint</name>
    <message>
        <source>Nur in Schaltjahren gedruckt, dieser Kalender hat keinen 29. Februar: %1</source>
        <translation>Printed in leap years only, this calendar has no 29 February: %1</translation>
    </message>
</context>
<context>
    <name>MvLoadedModule</name>
    <message>
        <source>%1 lässt sich nicht laden: %2</source>
        <translation>%1 cannot be loaded: %2</translation>
    </message>
    <message>
        <source>%1 gehört zu einer anderen Version.</source>
        <translation>%1 belongs to another version.</translation>
    </message>
</context>
<context>
    <name>MvLocale</name>
    <message>
        <source>Österreich</source>
        <translation>Austria</translation>
    </message>
    <message>
        <source>Belgien</source>
        <translation>Belgium</translation>
    </message>
    <message>
        <source>Bulgarien</source>
        <translation>Bulgaria</translation>
    </message>
    <message>
        <source>Kanada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>Schweiz</source>
        <translation>Switzerland</translation>
    </message>
    <message>
        <source>Tschechien</source>
        <translation>Czechia</translation>
    </message>
    <message>
        <source>Deutschland</source>
        <translation>Germany</translation>
    </message>
    <message>
        <source>Dänemark</source>
        <translation>Denmark</translation>
    </message>
    <message>
        <source>Spanien</source>
        <translation>Spain</translation>
    </message>
    <message>
        <source>Finnland</source>
        <translation>Finland</translation>
    </message>
    <message>
        <source>Frankreich</source>
        <translation>France</translation>
    </message>
    <message>
        <source>Vereinigtes Königreich</source>
        <translation>United Kingdom</translation>
    </message>
    <message>
        <source>Griechenland</source>
        <translation>Greece</translation>
    </message>
    <message>
        <source>Kroatien</source>
        <translation>Croatia</translation>
    </message>
    <message>
        <source>Ungarn</source>
        <translation>Hungary</translation>
    </message>
    <message>
        <source>Irland</source>
        <translation>Ireland</translation>
    </message>
    <message>
        <source>Italien</source>
        <translation>Italy</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Luxemburg</source>
        <translation>Luxembourg</translation>
    </message>
    <message>
        <source>Niederlande</source>
        <translation>Netherlands</translation>
    </message>
    <message>
        <source>Norwegen</source>
        <translation>Norway</translation>
    </message>
    <message>
        <source>Polen</source>
        <translation>Poland</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Rumänien</source>
        <translation>Romania</translation>
    </message>
    <message>
        <source>Schweden</source>
        <translation>Sweden</translation>
    </message>
    <message>
        <source>Slowenien</source>
        <translation>Slovenia</translation>
    </message>
    <message>
        <source>Slowakei</source>
        <translation>Slovakia</translation>
    </message>
    <message>
        <source>USA</source>
        <translation>USA</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Französisch</source>
        <translation>French</translation>
    </message>
    <message>
        <source>Italienisch</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>Rätoromanisch</source>
        <translation>Romansh</translation>
    </message>
    <message>
        <source>Niederländisch</source>
        <translation>Dutch</translation>
    </message>
    <message>
        <source>Englisch</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Spanisch</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Katalanisch</source>
        <translation>Catalan</translation>
    </message>
    <message>
        <source>Galicisch</source>
        <translation>Galician</translation>
    </message>
    <message>
        <source>Baskisch</source>
        <translation>Basque</translation>
    </message>
    <message>
        <source>Luxemburgisch</source>
        <translation>Luxembourgish</translation>
    </message>
</context>
<context>
    <name>MvMissingFotos</name>
    <message numerus="yes">
        <source>%n Fotos sind nicht da oder lassen sich nicht lesen:</source>
        <translation>
            <numerusform>%n photo is missing or cannot be read:</numerusform>
            <numerusform>%n photos are missing or cannot be read:</numerusform>
        </translation>
    </message>
    <message>
        <source>Wenn sie in einen anderen Ordner gekommen sind, zeigen Sie ihn: Alle Fotos, die darin liegen, werden an ihren Namen erkannt.</source>
        <translation>If they have been moved to another folder, show it: all photos in it are recognised by their names.</translation>
    </message>
    <message>
        <source>In Ordner &amp;suchen …</source>
        <translation>&amp;Search in folder …</translation>
    </message>
    <message>
        <source>S&amp;päter</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>In welchem Ordner liegen die Fotos?</source>
        <translation>Which folder are the photos in?</translation>
    </message>
    <message>
        <source>Kein Foto fehlt</source>
        <translation>No photo is missing</translation>
    </message>
    <message>
        <source>Die Fotos werden gesucht …</source>
        <translation>Searching for the photos …</translation>
    </message>
    <message>
        <source>Fotos wiederfinden</source>
        <translation>Find photos again</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos gefunden</source>
        <translation>
            <numerusform>%n photo found</numerusform>
            <numerusform>%n photos found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos liegen nicht in diesem Ordner. Über Datei &gt; Fehlende Fotos suchen können Sie einen anderen zeigen.</source>
        <translation>
            <numerusform>%n photo is not in this folder. File &gt; Find missing photos lets you show another one.</numerusform>
            <numerusform>%n photos are not in this folder. File &gt; Find missing photos lets you show another one.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvNearMiss</name>
    <message>
        <source> – meinten Sie „%1“?</source>
        <translation> – did you mean “%1”?</translation>
    </message>
</context>
<context>
    <name>MvNewCalendarDialog</name>
    <message>
        <source>Titelblatt</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Rückseite</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Neuer Kalender</source>
        <translation>New calendar</translation>
    </message>
    <message>
        <source>Kalender &amp;anlegen</source>
        <translation>&amp;Create calendar</translation>
    </message>
    <message>
        <source>A&amp;rt des Kalenders:</source>
        <translation>&amp;Kind of calendar:</translation>
    </message>
    <message>
        <source>Ge&amp;staltung:</source>
        <translation>De&amp;sign:</translation>
    </message>
    <message>
        <source>T&amp;itel:</source>
        <translation>T&amp;itle:</translation>
    </message>
    <message>
        <source>Dazu:</source>
        <translation>With:</translation>
    </message>
    <message>
        <source>&amp;Ordner wählen …</source>
        <translation>Choose fo&amp;lder …</translation>
    </message>
    <message>
        <source>&amp;Fotos wählen …</source>
        <translation>Choose &amp;photos …</translation>
    </message>
    <message>
        <source>Fotos:</source>
        <translation>Photos:</translation>
    </message>
    <message>
        <source>Noch keine; sie lassen sich auch hierher ziehen.</source>
        <translation>None yet; you can also drag them here.</translation>
    </message>
    <message numerus="yes">
        <source>„%1“ und %n weitere</source>
        <translation>
            <numerusform>“%1” and %n more</numerusform>
            <numerusform>“%1” and %n more</numerusform>
        </translation>
    </message>
    <message>
        <source>Ordner „%1“</source>
        <translation>Folder “%1”</translation>
    </message>
    <message>
        <source>Fotos auf eigenen Seiten</source>
        <translation>Photos on pages of their own</translation>
    </message>
    <message>
        <source>Vor jedem Monat eine Seite für sein Foto, die über ihm hängt</source>
        <translation>Before each month a page for its photo, which hangs above it</translation>
    </message>
</context>
<context>
    <name>MvNewCommand</name>
    <message>
        <source>macht aus Fotos einen Kalender als Projekt</source>
        <translation>makes a calendar of photos, as a project</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Titel, auch auf dem Titelblatt</source>
        <translation>title, also on the cover</translation>
    </message>
    <message>
        <source>Verfasser</source>
        <translation>author</translation>
    </message>
    <message>
        <source>-o: das Projekt, ein Name auf .mvcalendar</source>
        <translation>-o: the project, a name that ends in .mvcalendar</translation>
    </message>
    <message>
        <source>es fehlt -o DATEI mit einem Namen auf .%1</source>
        <translation>-o FILE is missing, with a name that ends in .%1</translation>
    </message>
    <message>
        <source>%1: den Ordner %2 gibt es nicht</source>
        <translation>%1: there is no folder %2</translation>
    </message>
    <message>
        <source>der Kalender zeigt die eigenen persönlichen Einträge; sie kommen, wie sie jetzt sind, mit ihren Fotos in das Projekt</source>
        <translation>the calendar shows the user&apos;s own entries; they go into the project as they are now, with their photos</translation>
    </message>
    <message>
        <source>persönliche Einträge, die der Kalender zeigt; eine Liste (XML) gehört dann dazu, aus anderen Dateien kommen sie in das Projekt</source>
        <translation>personal entries that the calendar shows; a list (XML) then belongs to it, from other files they come into the project</translation>
    </message>
</context>
<context>
    <name>MvOpenCalendar</name>
    <message>
        <source>Nichts übernommen: Der Kalender, für den die Datei gelesen wurde, ist nicht mehr offen. Öffnen Sie ihn, und lesen Sie die Datei noch einmal ein.</source>
        <translation>Nothing taken over: the calendar for which the file was read is no longer open. Open it and import the file again.</translation>
    </message>
    <message>
        <source>Kalendereinträge</source>
        <translation>Calendar entries</translation>
    </message>
    <message>
        <source>Nichts geändert: Der Kalender, für den das gedacht war, ist nicht mehr offen.</source>
        <translation>Nothing changed: the calendar that this was meant for is no longer open.</translation>
    </message>
</context>
<context>
    <name>MvOutOfMemory</name>
    <message>
        <source>Der Arbeitsspeicher reicht nicht aus. Das Programm wird beendet.</source>
        <translation>There is not enough memory. The program ends now.</translation>
    </message>
</context>
<context>
    <name>MvOwnEntriesSwitch</name>
    <message>
        <source>Auch in meine Einträge übernehmen</source>
        <translation>Also in my entries</translation>
    </message>
    <message>
        <source>Was Sie in diesem Kalender eintragen, ändern oder löschen, gilt auch für Ihre eigenen Einträge, aus denen neue Kalender entstehen. „Laden…“ und „Alle löschen…“ betreffen nur diesen Kalender.</source>
        <translation>What you enter, change or delete in this calendar goes for your own entries, too, from which new calendars start. “Load…” and “Delete all…” concern this calendar alone.</translation>
    </message>
</context>
<context>
    <name>MvPackCommand</name>
    <message>
        <source>packt ein Projekt mit Fotos und Einträgen zum Mitnehmen</source>
        <translation>packs a project with photos and entries to be taken along</translation>
    </message>
    <message>
        <source>ORT</source>
        <translation>PLACE</translation>
    </message>
    <message>
        <source>-o: ein neuer Ordner, oder ein Archiv, wenn der Name auf .zip endet; darin liegt nur, was auf den Seiten ist</source>
        <translation>-o: a new folder, or an archive if the name ends in .zip; it holds only what is on the pages</translation>
    </message>
    <message>
        <source>es fehlt das Projekt: pack DATEI -o ORT</source>
        <translation>the project is missing: pack FILE -o PLACE</translation>
    </message>
    <message>
        <source>es fehlt -o ORT: ein neuer Ordner oder ein Archiv auf .zip</source>
        <translation>-o PLACE is missing: a new folder, or an archive that ends in .zip</translation>
    </message>
    <message>
        <source>%1: in %2 lässt sich nicht schreiben</source>
        <translation>%1: %2 cannot be written to</translation>
    </message>
</context>
<context>
    <name>MvPageCanvas</name>
    <message>
        <source>Kalenderseite</source>
        <translation>Calendar page</translation>
    </message>
    <message>
        <source>Seite %1 von %2: %3</source>
        <translation>Page %1 of %2: %3</translation>
    </message>
    <message>
        <source>„%1“ ist kein Foto, das gelesen werden kann.</source>
        <translation>“%1” is not a photo that can be read.</translation>
    </message>
    <message>
        <source>Loslassen setzt das Foto ein. Für einen Tag: auf ihm warten oder die Umschalttaste halten.</source>
        <translation>Let go to put the photo in. For a day: wait on it or hold the shift key.</translation>
    </message>
    <message>
        <source>Fotos tauschen</source>
        <translation>Swap photos</translation>
    </message>
</context>
<context>
    <name>MvPageDrop</name>
    <message>
        <source>Ab hier in die leeren Rahmen</source>
        <translation>Into the empty frames from here on</translation>
    </message>
    <message>
        <source>Foto der Seite</source>
        <translation>Photo of the page</translation>
    </message>
    <message>
        <source>Foto ersetzen</source>
        <translation>Replace photo</translation>
    </message>
    <message>
        <source>Foto in diesen Rahmen</source>
        <translation>Photo into this frame</translation>
    </message>
    <message>
        <source>Foto für den %1</source>
        <translation>Photo for %1</translation>
    </message>
</context>
<context>
    <name>MvPageEdits</name>
    <message>
        <source>Layout ändern</source>
        <translation>Change layout</translation>
    </message>
</context>
<context>
    <name>MvPageEntries</name>
    <message>
        <source>„%1“ auf einen anderen Tag ziehen; Esc bricht ab.</source>
        <translation>Drag “%1” to another day; Esc cancels.</translation>
    </message>
    <message>
        <source>„%1“ kopieren</source>
        <translation>Copy “%1”</translation>
    </message>
    <message>
        <source>Loslassen kopiert „%1“ auf %2.</source>
        <translation>Letting go copies “%1” to %2.</translation>
    </message>
    <message>
        <source>Loslassen verschiebt „%1“ auf %2; mit Strg wird es eine Kopie.</source>
        <translation>Letting go moves “%1” to %2; with Ctrl it becomes a copy.</translation>
    </message>
    <message>
        <source>Eintrag kopieren</source>
        <translation>Copy Entry</translation>
    </message>
    <message>
        <source>„%1“ ist auf %2 kopiert.</source>
        <translation>“%1” has been copied to %2.</translation>
    </message>
    <message>
        <source>Eintrag verschieben</source>
        <translation>Move Entry</translation>
    </message>
    <message>
        <source>„%1“ ist auf %2 verschoben.</source>
        <translation>“%1” has been moved to %2.</translation>
    </message>
</context>
<context>
    <name>MvPageFlow</name>
    <message>
        <source>Titelblatt einfügen</source>
        <translation>Insert cover</translation>
    </message>
    <message>
        <source>Rückseite einfügen</source>
        <translation>Insert back</translation>
    </message>
    <message>
        <source>Seite einfügen</source>
        <translation>Insert page</translation>
    </message>
    <message>
        <source>Seite verdoppeln</source>
        <translation>Duplicate page</translation>
    </message>
    <message>
        <source>Seiten von Monaten gehören zum Zeitraum; unter Gestaltung &gt; Papier und Zeitraum lässt er sich ändern.</source>
        <translation>Pages of months belong to the period; Design &gt; Paper and period changes it.</translation>
    </message>
    <message>
        <source>Seite entfernen</source>
        <translation>Remove page</translation>
    </message>
    <message>
        <source>Dorthin lässt sich diese Seite nicht schieben: Titelblätter stehen vorn, Rückseiten hinten, und Monate folgen aufeinander.</source>
        <translation>This page cannot be moved there: covers come first, backs last, and months follow each other.</translation>
    </message>
    <message>
        <source>Seite verschieben</source>
        <translation>Move page</translation>
    </message>
</context>
<context>
    <name>MvPageFormat</name>
    <message>
        <source>Quadrat 21 × 21 cm</source>
        <translation>Square 21 × 21 cm</translation>
    </message>
    <message>
        <source>Quadrat 30 × 30 cm</source>
        <translation>Square 30 × 30 cm</translation>
    </message>
    <message>
        <source>13 × 18 cm</source>
        <translation>13 × 18 cm</translation>
    </message>
    <message>
        <source>20 × 30 cm</source>
        <translation>20 × 30 cm</translation>
    </message>
    <message>
        <source>30 × 45 cm</source>
        <translation>30 × 45 cm</translation>
    </message>
    <message>
        <source>Panorama 42 × 14,85 cm</source>
        <translation>Panorama 42 × 14.85 cm</translation>
    </message>
</context>
<context>
    <name>MvPageFoto</name>
    <message>
        <source>Foto für die Seite wählen</source>
        <translation>Choose a photo for the page</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Foto einfügen</source>
        <translation>Insert photo</translation>
    </message>
    <message>
        <source>„%1“ ist jetzt das Foto der Seite.</source>
        <translation>“%1” is now the photo of the page.</translation>
    </message>
    <message>
        <source>Foto entfernen</source>
        <translation>Remove photo</translation>
    </message>
    <message>
        <source>Foto &amp;ersetzen…</source>
        <translation>R&amp;eplace photo…</translation>
    </message>
    <message>
        <source>&amp;Foto für die Seite wählen…</source>
        <translation>Choose a p&amp;hoto for the page…</translation>
    </message>
    <message>
        <source>&amp;Platz des Fotos</source>
        <translation>&amp;Place of the photo</translation>
    </message>
    <message>
        <source>&amp;Größe des Fotos</source>
        <translation>&amp;Size of the photo</translation>
    </message>
    <message>
        <source>Ausschnitt &amp;zur Mitte</source>
        <translation>&amp;Centre the crop</translation>
    </message>
    <message>
        <source>Ausschnitt des Fotos verschieben</source>
        <translation>Move the crop of the photo</translation>
    </message>
    <message>
        <source>Foto ent&amp;fernen</source>
        <translation>&amp;Remove photo</translation>
    </message>
    <message>
        <source>Platz des Fotos ändern</source>
        <translation>Change the place of the photo</translation>
    </message>
    <message>
        <source>&amp;Oben</source>
        <translation>&amp;Top</translation>
    </message>
    <message>
        <source>&amp;Links</source>
        <translation>&amp;Left</translation>
    </message>
    <message>
        <source>&amp;Rechts</source>
        <translation>&amp;Right</translation>
    </message>
    <message>
        <source>%1 % der Seite</source>
        <translation>%1 % of the page</translation>
    </message>
    <message>
        <source>Größe des Fotos ändern</source>
        <translation>Change the size of the photo</translation>
    </message>
    <message>
        <source>Das Foto „%1“ kann nicht gelesen werden. %2</source>
        <translation>The photo “%1” cannot be read. %2</translation>
    </message>
    <message>
        <source>Auf dieser Seite ist kein Platz für ein Foto; wählen Sie eine andere Vorlage.</source>
        <translation>There is no place for a photo on this page; choose another template.</translation>
    </message>
    <message>
        <source>Das Foto „%1“ ist nicht eingefügt: Die Seite, für die es gelesen wurde, ist nicht mehr offen.</source>
        <translation>The photo “%1” is not inserted: the page that it was read for is no longer open.</translation>
    </message>
</context>
<context>
    <name>MvPagePreview</name>
    <message>
        <source>Vorschau der Seite</source>
        <translation>Preview of the page</translation>
    </message>
    <message>
        <source>Vorige Seite</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Nächste Seite</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Keine Seiten</source>
        <translation>No pages</translation>
    </message>
</context>
<context>
    <name>MvPageRange</name>
    <message>
        <source>„%1“ sind keine Seiten; schreiben Sie zum Beispiel 1-3, 5</source>
        <translation>“%1” are not pages; write for example 1-3, 5</translation>
    </message>
    <message>
        <source>„%1“: es gibt die Seiten 1 bis %2</source>
        <translation>“%1”: there are pages 1 to %2</translation>
    </message>
    <message>
        <source>keine Seite gewählt</source>
        <translation>no page chosen</translation>
    </message>
</context>
<context>
    <name>MvPageSelection</name>
    <message>
        <source>--pages „%1“: erlaubt sind Seiten von 1 bis %2, Bereiche wie 2-4 und cover, months, free, back, soweit es sie gibt</source>
        <translation>--pages “%1”: allowed are pages from 1 to %2, ranges such as 2-4, and cover, months, free, back as far as there are any</translation>
    </message>
</context>
<context>
    <name>MvPageSetupEditor</name>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Erster Monat</source>
        <translation>First month</translation>
    </message>
    <message>
        <source>Jahr des ersten Monats</source>
        <translation>Year of the first month</translation>
    </message>
    <message>
        <source>&amp;Erster Monat:</source>
        <translation>&amp;First month:</translation>
    </message>
    <message>
        <source>&amp;Monate:</source>
        <translation>&amp;Months:</translation>
    </message>
    <message>
        <source>Eigenes Format</source>
        <translation>Custom format</translation>
    </message>
    <message>
        <source>Querformat</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Hochformat</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Breite des Papiers</source>
        <translation>Width of the paper</translation>
    </message>
    <message>
        <source>Höhe des Papiers</source>
        <translation>Height of the paper</translation>
    </message>
    <message>
        <source>Was an jeder Kante über das fertige Blatt hinaus gedruckt und abgeschnitten wird</source>
        <translation>What is printed beyond the finished sheet at each edge and cut off</translation>
    </message>
    <message>
        <source>&amp;Papier:</source>
        <translation>Pape&amp;r:</translation>
    </message>
    <message>
        <source>Ausrich&amp;tung:</source>
        <translation>&amp;Orientation:</translation>
    </message>
    <message>
        <source>Breite &amp;und Höhe:</source>
        <translation>&amp;Width and height:</translation>
    </message>
    <message>
        <source>Bes&amp;chnitt:</source>
        <translation>&amp;Bleed:</translation>
    </message>
    <message>
        <source>bis %1</source>
        <translation>to %1</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Die Kante mit Spirale oder Aufhänger</source>
        <translation>The edge with the spiral or hanger</translation>
    </message>
    <message>
        <source>Breite der Bindung</source>
        <translation>Width of the binding</translation>
    </message>
    <message>
        <source>So breit bleibt die Kante frei von Texten und Kalender</source>
        <translation>So much of the edge stays free of texts and calendar</translation>
    </message>
    <message>
        <source>Bin&amp;dung:</source>
        <translation>Bin&amp;ding:</translation>
    </message>
</context>
<context>
    <name>MvPageSource</name>
    <message>
        <source>Die Seite hat keine Größe</source>
        <translation>The page has no size</translation>
    </message>
    <message>
        <source>Der Kalender hat keine Seiten</source>
        <translation>The calendar has no pages</translation>
    </message>
</context>
<context>
    <name>MvPageStrip</name>
    <message>
        <source>Seiten</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Fotos tauschen</source>
        <translation>Swap photos</translation>
    </message>
</context>
<context>
    <name>MvPageStripModel</name>
    <message>
        <source>Seite %1: %2</source>
        <translation>Page %1: %2</translation>
    </message>
    <message>
        <source>Sieht anders aus als die übrigen Seiten</source>
        <translation>Looks different from the other pages</translation>
    </message>
    <message>
        <source>Ein Foto druckt grob, mit %1 Bildpunkten je Zoll</source>
        <translation>A photo prints coarsely, with %1 pixels per inch</translation>
    </message>
</context>
<context>
    <name>MvPageTemplateRegistry</name>
    <message>
        <source>Die Vorlage „%1“ bleibt weg, denn ihre Kennung %2 hat schon „%3“. Eine andere bringt sie zurück.</source>
        <translation>The template “%1” is left out, since “%3” has its id %2 already. Another one brings it back.</translation>
    </message>
</context>
<context>
    <name>MvPictureExporter</name>
    <message>
        <source>%1 Punkte je Zoll gehen nicht; erlaubt sind %2 bis %3</source>
        <translation>%1 dots per inch are not possible; allowed are %2 to %3</translation>
    </message>
    <message>
        <source>Die Seite wäre %1 × %2 Bildpunkte groß; erlaubt sind %3 je Seite</source>
        <translation>The page would be %1 × %2 pixels large; allowed are %3 on each side</translation>
    </message>
    <message>
        <source>Der Speicher reicht nicht für eine Seite</source>
        <translation>There is not enough memory for a page</translation>
    </message>
</context>
<context>
    <name>MvPictureIntake</name>
    <message>
        <source>Das Bild ließ sich nicht umwandeln.</source>
        <translation>The picture could not be converted.</translation>
    </message>
</context>
<context>
    <name>MvPressChoice</name>
    <message>
        <source>&amp;Farbfotos bleiben in sRGB</source>
        <translation>Colour photos stay in &amp;sRGB</translation>
    </message>
    <message>
        <source>nur für eine Druckerei</source>
        <translation>only for a print shop</translation>
    </message>
    <message>
        <source>Bildschirm und eigener Drucker</source>
        <translation>Screen and own printer</translation>
    </message>
    <message>
        <source>Druckerei, glattes Papier (FOGRA39)</source>
        <translation>Print shop, smooth paper (FOGRA39)</translation>
    </message>
    <message>
        <source>Druckerei, raues Papier (FOGRA29)</source>
        <translation>Print shop, rough paper (FOGRA29)</translation>
    </message>
    <message>
        <source>Druckerei in Amerika (GRACoL)</source>
        <translation>Print shop in America (GRACoL)</translation>
    </message>
    <message>
        <source>Für eine Druckerei entsteht ein PDF/X-4 in Druckfarben, mit Schnittmarken und Angaben neben der Seite. Fragen Sie dort, was gewünscht ist</source>
        <translation>For a print shop it becomes a PDF/X-4 in printing inks, with crop marks and details beside the page. Ask there what is wanted</translation>
    </message>
    <message>
        <source>Beschnitt, wo die Seite keinen hat</source>
        <translation>Bleed where the page has none</translation>
    </message>
    <message>
        <source>Rand gespiegelt</source>
        <translation>Edge mirrored</translation>
    </message>
    <message>
        <source>Rand ausgezogen</source>
        <translation>Edge stretched</translation>
    </message>
    <message>
        <source>Woraus der Beschnitt wird, wo die Seite keinen eigenen hat: ihr Rand wird nach außen gespiegelt, oder seine Farben werden ausgezogen</source>
        <translation>What the bleed is made of where the page has none of its own: its edge is mirrored outwards, or the edge&apos;s colours are drawn out</translation>
    </message>
    <message>
        <source>Farbfotos behalten ihre Farben und ihr Farbprofil; die Druckerei rechnet sie selbst in Druckfarben um</source>
        <translation>Photos in colour keep their colours and their colour profile; the print shop turns them into printing inks itself</translation>
    </message>
</context>
<context>
    <name>MvPressOptions</name>
    <message>
        <source>PROFIL</source>
        <translation>PROFILE</translation>
    </message>
    <message>
        <source>PDF für die Druckerei (PDF/X-4): Druckfarben nach diesem Farbprofil, Marken, Beschnitt 3 mm, wo keiner ist; %1 oder eine Datei (.icc)</source>
        <translation>PDF for a print shop (PDF/X-4): inks by this colour profile, marks, 3 mm of bleed where there is none; %1 or a file (.icc)</translation>
    </message>
    <message>
        <source>mit --press: ohne Marken und Angaben neben der Seite</source>
        <translation>with --press: no marks and nothing else beside the page</translation>
    </message>
    <message>
        <source>PROZENT</source>
        <translation>PERCENT</translation>
    </message>
    <message>
        <source>mit --press: ab diesem Farbauftrag wird eine Seite genannt (nach dem Profil)</source>
        <translation>with --press: pages with more ink than this are named (by the profile)</translation>
    </message>
    <message>
        <source>--%1 gehört zu --press</source>
        <translation>--%1 goes with --press</translation>
    </message>
    <message>
        <source>mit --press: der Beschnitt, wo keiner ist, spiegelt den Rand der Seite oder zieht ihn aus (mirror)</source>
        <translation>with --press: the bleed, where there is none, mirrors the page&apos;s edge or stretches it (mirror)</translation>
    </message>
    <message>
        <source>mit --press: Farbfotos bleiben in sRGB, mit Profil; die Druckerei rechnet sie selbst um</source>
        <translation>with --press: photos in colour stay in sRGB, with a profile; the shop converts them itself</translation>
    </message>
</context>
<context>
    <name>MvPressProfile</name>
    <message>
        <source>%1: ein solches Farbprofil gibt es nicht; möglich sind %2 oder eine Datei (.icc)</source>
        <translation>%1: there is no such colour profile; possible are %2 or a file (.icc)</translation>
    </message>
    <message>
        <source>die Datei ist zu groß für ein Farbprofil</source>
        <translation>the file is too large for a colour profile</translation>
    </message>
    <message>
        <source>das ist kein Farbprofil (ICC), oder nur ein Teil davon</source>
        <translation>this is no colour profile (ICC), or only a part of one</translation>
    </message>
    <message>
        <source>das ist kein Farbprofil (ICC)</source>
        <translation>this is no colour profile (ICC)</translation>
    </message>
    <message>
        <source>das ist ein Farbprofil für %1, nicht für den Druck mit Cyan, Magenta, Gelb und Schwarz (CMYK)</source>
        <translation>this is a colour profile for %1, not for printing with cyan, magenta, yellow and black (CMYK)</translation>
    </message>
    <message>
        <source>mit diesem Farbprofil lässt sich nicht drucken; nötig ist eines für die Ausgabe, Version 2 oder 4</source>
        <translation>this colour profile cannot be printed with; one for output is needed, version 2 or 4</translation>
    </message>
    <message>
        <source>das Farbprofil ist unvollständig oder beschädigt</source>
        <translation>the colour profile is incomplete or damaged</translation>
    </message>
</context>
<context>
    <name>MvPreviewSheets</name>
    <message>
        <source>Blatt %1 von %2</source>
        <translation>Sheet %1 of %2</translation>
    </message>
    <message>
        <source>Blatt %1 von %2, Vorderseite</source>
        <translation>Sheet %1 of %2, front</translation>
    </message>
    <message>
        <source>Blatt %1 von %2, Rückseite</source>
        <translation>Sheet %1 of %2, back</translation>
    </message>
</context>
<context>
    <name>MvPrintCheck</name>
    <message>
        <source>Ein Rahmen ist noch leer</source>
        <translation>A frame is still empty</translation>
    </message>
    <message>
        <source>Das Foto „%1“ fehlt. Es lag in %2</source>
        <translation>The photo “%1” is missing. It was in %2</translation>
    </message>
    <message>
        <source>Das Foto „%1“ lässt sich nicht lesen. %2</source>
        <translation>The photo “%1” cannot be read. %2</translation>
    </message>
    <message>
        <source>Das Foto „%1“ wird sehr grob, mit nur %2 Bildpunkten je Zoll. Machen Sie den Rahmen kleiner</source>
        <translation>The photo “%1” will look very coarse, with only %2 pixels per inch. Make its frame smaller</translation>
    </message>
    <message>
        <source>Das Foto „%1“ wird etwas grob, mit %2 Bildpunkten je Zoll</source>
        <translation>The photo “%1” will look a little coarse, with %2 pixels per inch</translation>
    </message>
    <message>
        <source>„%1“ hat nicht genug Platz</source>
        <translation>“%1” has not enough room</translation>
    </message>
    <message>
        <source>„%1“ – keine Schrift hat %2</source>
        <translation>“%1” – no font has %2</translation>
    </message>
    <message>
        <source>Ein Foto ragt in den Bereich der Bindung</source>
        <translation>A photo reaches into the binding</translation>
    </message>
    <message>
        <source>Der Text „%1“</source>
        <translation>The text “%1”</translation>
    </message>
    <message>
        <source>Das Kalendarium</source>
        <translation>The calendar grid</translation>
    </message>
    <message>
        <source>%1 ragt in den Bereich der Bindung</source>
        <translation>%1 reaches into the binding</translation>
    </message>
    <message>
        <source>%1 steht so nahe am Rand, dass es angeschnitten werden kann</source>
        <translation>%1 is so near to the edge that it may be cut</translation>
    </message>
    <message>
        <source>Seite %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Das Foto zu „%1“ fehlt. Es lag in %2</source>
        <translation>The photo of “%1” is missing. It was in %2</translation>
    </message>
    <message>
        <source>Das Foto zu „%1“ lässt sich nicht lesen. %2</source>
        <translation>The photo of “%1” cannot be read. %2</translation>
    </message>
</context>
<context>
    <name>MvPrintCheckDialog</name>
    <message>
        <source>Vor dem Druck prüfen</source>
        <translation>Check before printing</translation>
    </message>
    <message>
        <source>&amp;Zeigen</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>Die Seiten werden geprüft …</source>
        <translation>The pages are being checked …</translation>
    </message>
</context>
<context>
    <name>MvPrintFinding</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MvPrintFindingList</name>
    <message>
        <source>Was nicht gut gedruckt würde</source>
        <translation>What would not print well</translation>
    </message>
    <message>
        <source>Das sieht jeder.</source>
        <translation>Everybody sees that.</translation>
    </message>
    <message>
        <source>Alles wird gut gedruckt, soweit das Programm sehen kann.</source>
        <translation>Everything will print well, as far as the program can see.</translation>
    </message>
    <message>
        <source>Die Seiten werden geprüft …</source>
        <translation>The pages are being checked …</translation>
    </message>
    <message numerus="yes">
        <source>%n Stellen; ein Dreieck steht vor denen, die jeder sieht.</source>
        <translation>
            <numerusform>%n place; a triangle stands before those that everybody sees.</numerusform>
            <numerusform>%n places; a triangle stands before those that everybody sees.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvPrintFlow</name>
    <message>
        <source>Der Kalender hat keine Seiten zum Drucken.</source>
        <translation>The calendar has no pages to print.</translation>
    </message>
    <message>
        <source>Auf diesem Rechner ist kein Drucker eingerichtet.</source>
        <translation>No printer is set up on this computer.</translation>
    </message>
    <message>
        <source>Sie können den Kalender als PDF exportieren und anderswo drucken lassen, oder sich ansehen, wie er gedruckt aussähe.</source>
        <translation>You can export the calendar as a PDF and have it printed elsewhere, or look at how it would be printed.</translation>
    </message>
    <message>
        <source>Als &amp;PDF exportieren …</source>
        <translation>Export as &amp;PDF …</translation>
    </message>
    <message>
        <source>&amp;Vorschau</source>
        <translation>Pre&amp;view</translation>
    </message>
    <message>
        <source>Druckvorschau</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Die Seiten werden vorbereitet …</source>
        <translation>Preparing the pages …</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Die Seiten werden an den Drucker gegeben …</source>
        <translation>Handing the pages to the printer …</translation>
    </message>
    <message>
        <source>Der Kalender wurde nicht gedruckt.</source>
        <translation>The calendar was not printed.</translation>
    </message>
    <message>
        <source>Drucken abgebrochen</source>
        <translation>Printing cancelled</translation>
    </message>
    <message>
        <source>An den Drucker gegeben</source>
        <translation>Handed to the printer</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine Seiten an.</source>
        <translation>The printer does not accept any pages.</translation>
    </message>
    <message>
        <source>Der Drucker nimmt keine weiteren Seiten an.</source>
        <translation>The printer does not accept any more pages.</translation>
    </message>
    <message>
        <source>An den Drucker gegeben, auf %1 % verkleinert</source>
        <translation>Handed to the printer, reduced to %1 %</translation>
    </message>
</context>
<context>
    <name>MvPrintPreview</name>
    <message>
        <source>Druckvorschau</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>&amp;Drucken …</source>
        <translation>&amp;Print …</translation>
    </message>
    <message>
        <source>Als &amp;PDF exportieren …</source>
        <translation>Export as &amp;PDF …</translation>
    </message>
    <message>
        <source>Vorige Seite</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Nächste Seite</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Größer</source>
        <translation>Larger</translation>
    </message>
    <message>
        <source>Kleiner</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Ganze Seite</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>Seite %1 von %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Eingepasst (%1 %)</source>
        <translation>Fitted (%1 %)</translation>
    </message>
    <message>
        <source>Originalgröße</source>
        <translation>Original size</translation>
    </message>
    <message>
        <source>&amp;Größe:</source>
        <translation>S&amp;ize:</translation>
    </message>
    <message>
        <source>Verkleinert, damit Texte und Tage nicht dort stehen, wo der Drucker nichts druckt (bis %1 mm vom Rand).</source>
        <translation>Reduced, so that texts and days do not stand where the printer prints nothing (up to %1 mm from the edge).</translation>
    </message>
    <message>
        <source>Was näher als %1 mm am Rand steht, kann fehlen.</source>
        <translation>What is nearer than %1 mm to the edge may be missing.</translation>
    </message>
    <message>
        <source>D&amp;rucker:</source>
        <translation>P&amp;rinter:</translation>
    </message>
</context>
<context>
    <name>MvProgressDialog</name>
    <message>
        <source>Wird abgebrochen …</source>
        <translation>Cancelling …</translation>
    </message>
    <message>
        <source>%p %</source>
        <translation>%p%</translation>
    </message>
</context>
<context>
    <name>MvProject</name>
    <message>
        <source>Das Projekt hat noch keine Datei.</source>
        <translation>The project has no file yet.</translation>
    </message>
    <message>
        <source>Unbenannt</source>
        <translation>Untitled</translation>
    </message>
</context>
<context>
    <name>MvProjectAutosave</name>
    <message>
        <source>In %1 lässt sich nicht schreiben.</source>
        <translation>%1 cannot be written to.</translation>
    </message>
    <message>
        <source>Die Sicherung für den Notfall ist misslungen: %1</source>
        <translation>The emergency copy failed: %1</translation>
    </message>
</context>
<context>
    <name>MvProjectElementReader</name>
    <message>
        <source>Ein Element der Art „%1“ ist hier unbekannt; es bleibt weg.</source>
        <translation>An element of the kind “%1” is unknown here; it is left out.</translation>
    </message>
    <message>
        <source>Ein Foto ohne Datei, oder eines, das es schon gibt; es bleibt weg.</source>
        <translation>A photo without a file, or one that is there already; it is left out.</translation>
    </message>
    <message>
        <source>Wo das Element steht, ist nicht lesbar; es füllt die Seite.</source>
        <translation>Where the element stands cannot be read; it fills the page.</translation>
    </message>
    <message>
        <source>%1 „%2“ ist keine Farbe wie #RRGGBB.</source>
        <translation>%1 “%2” is no colour like #RRGGBB.</translation>
    </message>
</context>
<context>
    <name>MvProjectEntries</name>
    <message>
        <source>Die Einträge dieses Kalenders fehlen, bis ihre Datei wieder lesbar ist. %1</source>
        <translation>The entries of this calendar are missing until their file can be read again. %1</translation>
    </message>
    <message>
        <source>%1: Einträge, die sich nicht lesen lassen, bleiben weg.</source>
        <translation>%1: entries that cannot be read are left out.</translation>
    </message>
    <message numerus="yes">
        <source>Der Kalender hat jetzt seine eigenen Einträge: %n aus Ihren Einträgen stehen darin. Was Sie in anderen Kalendern ändern, ändert hier nichts mehr.</source>
        <translation>
            <numerusform>The calendar has entries of its own now: %n of your entries is in it. What you change in other calendars no longer changes anything here.</numerusform>
            <numerusform>The calendar has entries of its own now: %n of your entries are in it. What you change in other calendars no longer changes anything here.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvProjectEntryFotos</name>
    <message>
        <source>Das Foto zu „%1“ liegt nicht beim Kalender, auf anderen Rechnern fehlt es. %2</source>
        <translation>The photo of “%1” does not lie beside the calendar and will be missing on other computers. %2</translation>
    </message>
</context>
<context>
    <name>MvProjectFile</name>
    <message>
        <source>%1: So gespeichert ließe sich das Projekt nicht wieder öffnen. %2</source>
        <translation>%1: Saved like this, the project could not be opened again. %2</translation>
    </message>
</context>
<context>
    <name>MvProjectFlow</name>
    <message>
        <source>Kalender (*.%1)</source>
        <translation>Calendars (*.%1)</translation>
    </message>
    <message>
        <source>Kalender öffnen</source>
        <translation>Open calendar</translation>
    </message>
    <message>
        <source>Die Datei gibt es nicht mehr: %1</source>
        <translation>The file no longer exists: %1</translation>
    </message>
    <message>
        <source>Vielleicht wurde sie verschoben oder umbenannt. Suchen Sie sie über Datei &gt; Öffnen.</source>
        <translation>It may have been moved or renamed. Look for it with File &gt; Open.</translation>
    </message>
    <message>
        <source>Der Kalender lässt sich nicht öffnen.</source>
        <translation>The calendar cannot be opened.</translation>
    </message>
    <message>
        <source>%1 geöffnet</source>
        <translation>%1 opened</translation>
    </message>
    <message>
        <source>Nicht alles konnte so übernommen werden, wie es in der Datei steht.</source>
        <translation>Not everything could be taken over as it stands in the file.</translation>
    </message>
    <message>
        <source>„%1“ wurde geändert.</source>
        <translation>“%1” was changed.</translation>
    </message>
    <message>
        <source>Sollen die Änderungen gespeichert werden? Verworfenes ist nicht wiederzubekommen.</source>
        <translation>Save the changes? What is discarded cannot be brought back.</translation>
    </message>
    <message>
        <source>Die Datei %1 wurde inzwischen von anderer Hand geändert oder gelöscht.</source>
        <translation>The file %1 has meanwhile been changed or deleted by someone else.</translation>
    </message>
    <message>
        <source>Ersetzen</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Anderer Name …</source>
        <translation>Other name …</translation>
    </message>
    <message>
        <source>Kalender speichern</source>
        <translation>Save calendar</translation>
    </message>
    <message>
        <source>Der Kalender wurde nicht gespeichert.</source>
        <translation>The calendar was not saved.</translation>
    </message>
    <message>
        <source>%1
Speichern Sie ihn unter einem anderen Namen oder in einem anderen Ordner.</source>
        <translation>%1
Save it under another name or in another folder.</translation>
    </message>
    <message>
        <source>%1 gespeichert</source>
        <translation>%1 saved</translation>
    </message>
    <message>
        <source>Eine frühere Fassung, vom %1, liegt daneben und ist unversehrt.</source>
        <translation>An earlier version, of %1, lies beside it and is intact.</translation>
    </message>
    <message>
        <source>&amp;Frühere Fassung öffnen</source>
        <translation>Open &amp;earlier version</translation>
    </message>
    <message>
        <source>Speichern &amp;unter …</source>
        <translation>Save &amp;as …</translation>
    </message>
    <message>
        <source>Ersetzen Sie sie durch Ihren Stand, oder speichern Sie ihn unter einem anderen Namen. Einträge, die von anderer Hand dazugekommen sind, bleiben auch beim Ersetzen.</source>
        <translation>Replace it by your state, or save that under another name. Entries that somebody else has added stay even when it is replaced.</translation>
    </message>
    <message>
        <source>Der Kalender ist gespeichert.</source>
        <translation>The calendar is saved.</translation>
    </message>
</context>
<context>
    <name>MvProjectNotes</name>
    <message>
        <source>%1 „%2“ geht nicht; es gilt %3.</source>
        <translation>%1 “%2” is not possible; it becomes %3.</translation>
    </message>
    <message>
        <source>%1 „%2“ geht nicht; es gilt „%3“.</source>
        <translation>%1 “%2” is not possible; it becomes “%3”.</translation>
    </message>
</context>
<context>
    <name>MvProjectPack</name>
    <message>
        <source>%1 lässt sich nicht schreiben: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>Das Layout „%1“ ist ein eigenes; auf einem anderen Computer tritt ein anderes an seine Stelle.</source>
        <translation>The layout “%1” is your own; on another computer another one takes its place.</translation>
    </message>
    <message>
        <source>%1 ist schon da und nicht leer; bitte einen neuen Ordner nennen</source>
        <translation>%1 is there already and not empty; please name a new folder</translation>
    </message>
    <message>
        <source>der Ordner lässt sich nicht anlegen</source>
        <translation>the folder cannot be made</translation>
    </message>
</context>
<context>
    <name>MvProjectReader</name>
    <message>
        <source>Das ist kein Kalenderprojekt; die Datei beginnt mit „%1“.</source>
        <translation>This is not a calendar project; the file begins with “%1”.</translation>
    </message>
    <message>
        <source>Das Projekt stammt aus einer neueren Fassung des Programms. Bitte das Programm aktualisieren.</source>
        <translation>The project was made by a newer version of the program. Please update the program.</translation>
    </message>
    <message>
        <source>Den Monat %1 gibt es zweimal; die zweite Seite bleibt weg.</source>
        <translation>The month %1 occurs twice; the second page is left out.</translation>
    </message>
    <message>
        <source>Der Monat %1 liegt außerhalb des Kalenders; die Seite bleibt weg.</source>
        <translation>The month %1 lies outside the calendar; the page is left out.</translation>
    </message>
    <message>
        <source>Das Projekt enthält keine Seiten.</source>
        <translation>The project contains no pages.</translation>
    </message>
    <message>
        <source>Der Kalender reicht über mehr als %1 Monate.</source>
        <translation>The calendar covers more than %1 months.</translation>
    </message>
    <message>
        <source>Die Papiergröße fehlt oder geht nicht; es wird A4 quer.</source>
        <translation>The paper size is missing or impossible; A4 landscape is used.</translation>
    </message>
    <message>
        <source>Der Zeitraum ist nicht lesbar; es gilt der der Seiten.</source>
        <translation>The period cannot be read; that of the pages is used.</translation>
    </message>
    <message>
        <source>Das Layout „%1“ gibt es hier nicht; bis es wieder da ist, steht „%2“ an seiner Stelle.</source>
        <translation>The layout “%1” does not exist here; until it is back, “%2” stands in its place.</translation>
    </message>
    <message>
        <source>Das Farbschema „%1“ gibt es hier nicht; bis es wieder da ist, tritt ein anderes an seine Stelle.</source>
        <translation>The colour scheme “%1” does not exist here; until it is back, another one takes its place.</translation>
    </message>
    <message>
        <source>Die Sprache fehlt oder ist unbekannt; es wird Deutsch.</source>
        <translation>The language is missing or unknown; German is used.</translation>
    </message>
    <message>
        <source>Wo das Foto steht, ist nicht lesbar; es kommt nach oben.</source>
        <translation>The place of the photo cannot be read; it goes to the top.</translation>
    </message>
    <message>
        <source>„%1“ ist kein Monat wie 2027-01.</source>
        <translation>“%1” is not a month such as 2027-01.</translation>
    </message>
    <message>
        <source>Eine frühere Fassung liegt daneben: %1</source>
        <translation>An earlier version lies beside it: %1</translation>
    </message>
    <message>
        <source>Die Seitenvorlage „%1“ gibt es hier nicht; alles bleibt, wo es steht.</source>
        <translation>The page template “%1” is not there; everything stays where it stands.</translation>
    </message>
</context>
<context>
    <name>MvProjectRecovery</name>
    <message>
        <source>Der Stand ist schon in einem anderen Fenster geöffnet.</source>
        <translation>This version is open in another window already.</translation>
    </message>
</context>
<context>
    <name>MvRecentCalendars</name>
    <message>
        <source>Zuletzt geöffnete Kalender</source>
        <translation>Recently opened calendars</translation>
    </message>
</context>
<context>
    <name>MvRecoveryDialog</name>
    <message>
        <source>Nicht Gespeichertes wiederherstellen</source>
        <translation>Recover unsaved work</translation>
    </message>
    <message>
        <source>Das Programm wurde beim letzten Mal nicht richtig beendet. Diese Kalender waren noch nicht gespeichert:</source>
        <translation>The program did not end properly last time. These calendars had not been saved yet:</translation>
    </message>
    <message>
        <source>Nicht gespeicherte Kalender</source>
        <translation>Unsaved calendars</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>As of</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>noch nie gespeichert</source>
        <translation>never saved yet</translation>
    </message>
    <message>
        <source>Unbenannt</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Später entscheiden</source>
        <translation>Decide later</translation>
    </message>
</context>
<context>
    <name>MvRecurrenceRule</name>
    <message>
        <source>, %1-mal</source>
        <translation>, %1 times</translation>
    </message>
    <message>
        <source>, bis %1</source>
        <translation>, until %1</translation>
    </message>
    <message>
        <source>„%1“ ist keine Angabe einer Wiederholung oder steht zweimal da</source>
        <translation>“%1” is no part of a repetition or is there twice</translation>
    </message>
    <message>
        <source>„%1“ ist bei Wiederholungen nicht bekannt</source>
        <translation>“%1” is not known of repetitions</translation>
    </message>
    <message>
        <source>„%1=%2“ ist nicht zu lesen</source>
        <translation>“%1=%2” cannot be read</translation>
    </message>
    <message>
        <source>sie wiederholt sich öfter als einmal am Tag</source>
        <translation>it repeats more often than once a day</translation>
    </message>
    <message>
        <source>es steht nicht da, wie oft sie sich wiederholt (FREQ)</source>
        <translation>it does not say how often it repeats (FREQ)</translation>
    </message>
    <message>
        <source>COUNT und UNTIL stehen zugleich da</source>
        <translation>COUNT and UNTIL are there at once</translation>
    </message>
    <message>
        <source>den wievielten Wochentag gibt es nur in Monaten und Jahren</source>
        <translation>only months and years have an nth weekday</translation>
    </message>
    <message>
        <source>Wochen des Jahres gibt es nur bei jährlicher Wiederholung</source>
        <translation>weeks of the year go with yearly repetition only</translation>
    </message>
    <message>
        <source>Tage des Jahres gibt es nur bei jährlicher Wiederholung</source>
        <translation>days of the year go with yearly repetition only</translation>
    </message>
    <message>
        <source>Tage des Monats gibt es nicht bei wöchentlicher Wiederholung</source>
        <translation>days of the month do not go with weekly repetition</translation>
    </message>
    <message>
        <source>BYSETPOS steht allein da</source>
        <translation>BYSETPOS stands alone</translation>
    </message>
    <message>
        <source>letzten</source>
        <translation>last</translation>
    </message>
    <message>
        <source>%1.-letzten</source>
        <translation>%1th last</translation>
    </message>
    <message>
        <source>jeden Tag</source>
        <translation>every day</translation>
    </message>
    <message>
        <source>alle %1 Tage</source>
        <translation>every %1 days</translation>
    </message>
    <message>
        <source>jede Woche</source>
        <translation>every week</translation>
    </message>
    <message>
        <source>alle %1 Wochen</source>
        <translation>every %1 weeks</translation>
    </message>
    <message>
        <source>jeden Monat</source>
        <translation>every month</translation>
    </message>
    <message>
        <source>alle %1 Monate</source>
        <translation>every %1 months</translation>
    </message>
    <message>
        <source>jedes Jahr</source>
        <translation>every year</translation>
    </message>
    <message>
        <source>alle %1 Jahre</source>
        <translation>every %1 years</translation>
    </message>
    <message>
        <source> am %1</source>
        <translation> on %1</translation>
    </message>
    <message>
        <source> am %1 %2</source>
        <translation> on the %1 %2</translation>
    </message>
    <message>
        <source> am letzten Tag</source>
        <translation> on the last day</translation>
    </message>
    <message>
        <source> am %1.</source>
        <translation> on the %1.</translation>
    </message>
</context>
<context>
    <name>MvRegionEditor</name>
    <message>
        <source>Ferien und regionale Feiertage stehen erst da, wenn eine Region gewählt ist.</source>
        <translation>School holidays and regional holidays appear once a region is chosen.</translation>
    </message>
    <message>
        <source>&amp;Land:</source>
        <translation>Cou&amp;ntry:</translation>
    </message>
    <message>
        <source>Re&amp;gion:</source>
        <translation>Re&amp;gion:</translation>
    </message>
    <message>
        <source>Ganzes Land</source>
        <translation>Whole country</translation>
    </message>
</context>
<context>
    <name>MvRegionsCommand</name>
    <message>
        <source>zählt Staaten und Regionen auf, deren Feiertage bekannt sind</source>
        <translation>lists the countries and regions whose holidays are known</translation>
    </message>
    <message>
        <source>Ferien bis %1</source>
        <translation>school holidays until %1</translation>
    </message>
    <message>
        <source>nur dieser Staat, Kürzel oder Name (alle)</source>
        <translation>this country alone, code or name (all)</translation>
    </message>
</context>
<context>
    <name>MvRegularFile</name>
    <message>
        <source>Die Datei gibt es nicht.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Die Datei darf nicht gelesen werden.</source>
        <translation>The file may not be read.</translation>
    </message>
    <message>
        <source>Das ist ein Ordner.</source>
        <translation>This is a folder.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>This is not a regular file.</translation>
    </message>
</context>
<context>
    <name>MvRenderCommand</name>
    <message>
        <source>druckt einen Kalender in Dateien</source>
        <translation>prints a calendar into files</translation>
    </message>
    <message>
        <source>Verfasser im PDF</source>
        <translation>author in the PDF</translation>
    </message>
    <message>
        <source>Schrift nicht installiert, eine andere tritt an ihre Stelle: %1</source>
        <translation>font not installed, another takes its place: %1</translation>
    </message>
    <message>
        <source>29. Februar gibt es im gedruckten Zeitraum nicht: %1</source>
        <translation>29 February does not occur in the printed period: %1</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>ein Projekt; Zeitraum, Feiertage, Aussehen, Fotos und Papier stehen darin</source>
        <translation>a project; it holds period, holidays, look, photos and paper</translation>
    </message>
    <message>
        <source>--%1 und --project schließen einander aus: das steht im Projekt</source>
        <translation>--%1 and --project exclude each other: this is in the project</translation>
    </message>
    <message>
        <source>die eigenen persönlichen Einträge, ebenso</source>
        <translation>your own personal entries, in the same way</translation>
    </message>
    <message>
        <source>json: gibt statt der Dateinamen ein JSON-Objekt aus, das Dateien, Texte ohne Platz, Fotos mit ihrer Auflösung und nicht Lesbares nennt</source>
        <translation>json: prints a JSON object instead of the file names, which names files, texts without room, photos with their resolution and what could not be read</translation>
    </message>
    <message>
        <source>Titel der Dateien (Kalender 2027), mit --photos auch auf dem Titelblatt</source>
        <translation>title of the files (Calendar 2027), with --photos also on the cover</translation>
    </message>
    <message>
        <source>LISTE</source>
        <translation>LIST</translation>
    </message>
    <message>
        <source>nur diese Seiten: 1-3,7 oder cover, months, free, back</source>
        <translation>only these pages: 1-3,7 or cover, months, free, back</translation>
    </message>
    <message>
        <source>MUSTER</source>
        <translation>PATTERN</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Einträge dieser Gruppe weglassen</source>
        <translation>leave out entries of this group</translation>
    </message>
    <message>
        <source>mit ihren Uhrzeiten</source>
        <translation>with their times</translation>
    </message>
    <message>
        <source>--hide-group „%1“: eine solche Gruppe haben die Einträge nicht</source>
        <translation>--hide-group “%1”: the entries have no such group</translation>
    </message>
    <message>
        <source>wie sie zu lesen sind, mit %name, %age, %year, %round: &quot;%name (%age)&quot;</source>
        <translation>how they read, with %name, %age, %year, %round: &quot;%name (%age)&quot;</translation>
    </message>
    <message>
        <source>persönliche Einträge aus dieser Datei: Liste (XML), Kalender (iCalendar), Tabelle (CSV), Visitenkarten (vCard) oder Projekt, - ist die Standardeingabe; was darin nicht lesbar ist, wird genannt</source>
        <translation>personal entries of this file: list (XML), calendar (iCalendar), table (CSV), visiting cards (vCard) or project, - is standard input; what cannot be read is named</translation>
    </message>
</context>
<context>
    <name>MvRenderEntries</name>
    <message>
        <source>Eine frühere Fassung vom %1: %2</source>
        <translation>An earlier version of %1: %2</translation>
    </message>
    <message>
        <source>%1: nicht gedruckt: %2</source>
        <translation>%1: not printed: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n weitere nicht gedruckt; --report json nennt alle</source>
        <translation>
            <numerusform>%1: %n more not printed; --report json names all</numerusform>
            <numerusform>%1: %n more not printed; --report json names all</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: keine Einträge gefunden</source>
        <translation>%1: no entries found</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MvRenderReport</name>
    <message>
        <source>Keine Schrift hat diese Zeichen: %1; --report json nennt die Texte</source>
        <translation>no font has these characters: %1; --report json names the texts</translation>
    </message>
    <message>
        <source>Foto wird grob, nur %1 Pixel je Zoll (gut ab %2): Seite %3, %4</source>
        <translation>photo will look coarse, only %1 pixels per inch (good from %2 on): page %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n weitere Fotos werden grob; --report json nennt alle</source>
        <translation>
            <numerusform>%n more photo will look coarse; --report json names all</numerusform>
            <numerusform>%n more photos will look coarse; --report json names all</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos mit weniger als %1 Pixeln je Zoll; --report json nennt sie</source>
        <translation>
            <numerusform>%n photo of fewer than %1 pixels per inch; --report json names it</numerusform>
            <numerusform>%n photos of fewer than %1 pixels per inch; --report json names them</numerusform>
        </translation>
    </message>
    <message>
        <source>Seite %1</source>
        <translation>page %1</translation>
    </message>
    <message>
        <source>Texte ohne Platz: %1, der erste: %2; --report json nennt alle</source>
        <translation>Texts without room: %1, the first: %2; --report json names all</translation>
    </message>
    <message>
        <source>Zu viel Farbe, %1 % (erlaubt sind %2 %): Seite %3, %4 mm von links, %5 mm von oben</source>
        <translation>Too much ink, %1 % (allowed are %2 %): page %3, %4 mm from the left, %5 mm from the top</translation>
    </message>
    <message>
        <source>Farbauftrag höchstens %1 % (erlaubt sind %2 %): Seite %3, %4 mm von links, %5 mm von oben</source>
        <translation>Most ink %1 % (allowed are %2 %): page %3, %4 mm from the left, %5 mm from the top</translation>
    </message>
</context>
<context>
    <name>MvRenderTargets</name>
    <message>
        <source>%1: Seite %2 von %3</source>
        <translation>%1: page %2 of %3</translation>
    </message>
    <message>
        <source>ZAHL</source>
        <translation>NUMBER</translation>
    </message>
    <message>
        <source>Punkte je Zoll der Bilder (300)</source>
        <translation>dots per inch of pictures (300)</translation>
    </message>
    <message>
        <source>so viele Seiten zugleich (je Kern eine, höchstens vier)</source>
        <translation>so many pages at a time (one per core, at most four)</translation>
    </message>
    <message>
        <source>Dateien ersetzen, die es schon gibt (so, wenn nichts anderes eingestellt ist)</source>
        <translation>replace files that are already there (unless set otherwise)</translation>
    </message>
    <message>
        <source>nichts ersetzen: gibt es eine der Dateien schon, wird keine geschrieben</source>
        <translation>replace nothing: if one of the files is already there, none is written</translation>
    </message>
    <message>
        <source>was -o - ausgibt (pdf)</source>
        <translation>what -o - gives (pdf)</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>-o - steht allein: die Standardausgabe kann nur eine Datei sein</source>
        <translation>-o - stands alone: the standard output can be one file only</translation>
    </message>
    <message>
        <source>Standardausgabe</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>--format sagt, was -o - ausgibt; bei einer Datei sagt es ihr Name</source>
        <translation>--format says what -o - gives; with a file its name says so</translation>
    </message>
    <message>
        <source>-o -: was herauskommt, liest kein Mensch; leiten Sie es in eine Datei</source>
        <translation>-o -: what comes out is nothing to read; send it into a file</translation>
    </message>
    <message>
        <source>-o -: %1 Seiten sind ebenso viele Bilder; wählen Sie eine mit --pages, oder --format pdf</source>
        <translation>-o -: %1 pages are as many pictures; choose one by --pages, or --format pdf</translation>
    </message>
    <message>
        <source>%1 gibt es schon; --overwrite ersetzt es</source>
        <translation>%1 is already there; --overwrite replaces it</translation>
    </message>
    <message>
        <source>die Ausgabe lässt sich nicht schreiben</source>
        <translation>the output cannot be written</translation>
    </message>
    <message>
        <source>.pdf, .html, oder .png, .jpg, .tif und .svg je Seite; %m Monat, %y Jahr, %n Seite, %r Region, auch für ein .pdf je Seite; - ist die Standardausgabe; mehrfach erlaubt</source>
        <translation>.pdf, .html, or .png, .jpg, .tif and .svg for each page; %m month, %y year, %n page, %r region, also for a .pdf of each page; - is the standard output; may be repeated</translation>
    </message>
    <message>
        <source>es fehlt -o DATEI; erlaubt sind Namen auf .pdf, .html, .png, .jpg, .tif oder .svg, und -</source>
        <translation>-o FILE is missing; allowed are names in .pdf, .html, .png, .jpg, .tif or .svg, and -</translation>
    </message>
    <message>
        <source>--press macht ein PDF für die Druckerei; %1 ist keines</source>
        <translation>--press makes a PDF for a print shop; %1 is none</translation>
    </message>
    <message>
        <source>--%1 legt die Seiten eines PDF auf Blätter; %2 ist keines</source>
        <translation>--%1 lays the pages of a PDF on sheets; %2 is none</translation>
    </message>
    <message>
        <source>%1 würde zweimal geschrieben</source>
        <translation>%1 would be written twice</translation>
    </message>
</context>
<context>
    <name>MvRepetitionWords</name>
    <message>
        <source>„%1“ ist keine Wiederholung, die eindeutig ist; so geht es: einmal, jedes Jahr, alle 2 Wochen am Donnerstag, jeden Monat am letzten Freitag, bis 31.12.2027</source>
        <translation>“%1” is no repetition that is clear; this is how: once, every year, every 2 weeks on Thursday, every month on the last Friday, until 31.12.2027</translation>
    </message>
</context>
<context>
    <name>MvRestoreEntriesDialog</name>
    <message>
        <source>nicht lesbar</source>
        <translation>not readable</translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
    <message>
        <source>Einträge wiederherstellen</source>
        <translation>Restore entries</translation>
    </message>
    <message>
        <source>Die Einträge der gewählten Fassung kommen in Ihre Liste zurück. Was Sie seither eingegeben haben, bleibt; die jetzige Datei wird beiseitegelegt.</source>
        <translation>The entries of the chosen version come back into your list. What you have entered since stays; the present file is set aside.</translation>
    </message>
    <message>
        <source>Frühere Fassungen</source>
        <translation>Earlier versions</translation>
    </message>
    <message>
        <source>Fassung vom</source>
        <translation>Version of</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Content</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>MvSafeFileWriter</name>
    <message>
        <source>%1 konnte nicht gespeichert werden: %2</source>
        <translation>%1 could not be saved: %2</translation>
    </message>
    <message>
        <source>Die Verknüpfung führt im Kreis.</source>
        <translation>The link leads in a circle.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>This is not a regular file.</translation>
    </message>
    <message>
        <source>Die Datei ist schreibgeschützt.</source>
        <translation>The file is write-protected.</translation>
    </message>
    <message>
        <source>Von %1 ließ sich keine Sicherung anlegen.</source>
        <translation>No backup of %1 could be made.</translation>
    </message>
    <message>
        <source>Der Ordner %1 ließ sich nicht auf den Datenträger schreiben.</source>
        <translation>The folder %1 could not be written to the disk.</translation>
    </message>
    <message>
        <source>Ein unterbrochenes Speichern von %1 wurde zu Ende geführt.</source>
        <translation>An interrupted saving of %1 was finished.</translation>
    </message>
    <message>
        <source>Erweiterte Attribute von %1 gingen verloren.</source>
        <translation>Extended attributes of %1 were lost.</translation>
    </message>
</context>
<context>
    <name>MvSchemaFileCheck</name>
    <message>
        <source>Farbe</source>
        <translation>colour</translation>
    </message>
    <message>
        <source>Das Layout %1 bleibt weg: seine Art (type) „%2“ gibt es nicht.</source>
        <translation>The layout %1 is left out: there is no kind (type) “%2”.</translation>
    </message>
    <message>
        <source>%1: „%2“ gibt es nicht (%3); es zählt nicht.</source>
        <translation>%1: there is no “%2” (%3); it does not count.</translation>
    </message>
</context>
<context>
    <name>MvSchemaNameDialog</name>
    <message>
        <source>&amp;Name des Farbschemas:</source>
        <translation>&amp;Name of the colour scheme:</translation>
    </message>
</context>
<context>
    <name>MvSchemaNames</name>
    <message>
        <source>--%1 „%2“: erlaubt sind %3</source>
        <translation>--%1 “%2”: allowed are %3</translation>
    </message>
</context>
<context>
    <name>MvScopeSwitch</name>
    <message>
        <source>Für alle Seiten</source>
        <translation>For all pages</translation>
    </message>
    <message>
        <source>Änderungen gelten für alle Seiten</source>
        <translation>Changes apply to all pages</translation>
    </message>
    <message>
        <source>Nur diese Seite</source>
        <translation>Only this page</translation>
    </message>
    <message>
        <source>Änderungen gelten nur für die Seite, die gerade zu sehen ist</source>
        <translation>Changes apply only to the page now shown</translation>
    </message>
</context>
<context>
    <name>MvSettingsDialog</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Wie das System</source>
        <translation>Like the system</translation>
    </message>
    <message>
        <source>Hell</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dunkel</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Eine andere Sprache gilt ab dem nächsten Start.</source>
        <translation>Another language applies from the next start.</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>&amp;Farben:</source>
        <translation>&amp;Colours:</translation>
    </message>
</context>
<context>
    <name>MvSheetChoice</name>
    <message>
        <source>Zum S&amp;chneiden, in Stapeln</source>
        <translation>For cuttin&amp;g, in stacks</translation>
    </message>
    <message>
        <source>Jede Seite auf ein eigenes Blatt</source>
        <translation>Each page on a sheet of its own</translation>
    </message>
    <message>
        <source>Auf mehrere Blätter verteilen (Kacheln)</source>
        <translation>Divided into several sheets (tiles)</translation>
    </message>
    <message>
        <source>Zwei Seiten auf ein Blatt</source>
        <translation>Two pages on a sheet</translation>
    </message>
    <message>
        <source>Vier Seiten auf ein Blatt</source>
        <translation>Four pages on a sheet</translation>
    </message>
    <message>
        <source>Für den Drucker zu Hause: große Seiten aus mehreren Blättern zum Zusammenkleben, oder mehrere Seiten auf einem Blatt</source>
        <translation>For the printer at home: large pages made of several sheets to be glued together, or several pages on one sheet</translation>
    </message>
    <message>
        <source>Papier des Druckers</source>
        <translation>Paper of the printer</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Überlappung </source>
        <translation>Overlap </translation>
    </message>
    <message>
        <source>Überlappung der Kacheln</source>
        <translation>Overlap of the tiles</translation>
    </message>
    <message>
        <source>Mit Schnittmarken; die geschnittenen Stapel ergeben aufeinandergelegt den Kalender</source>
        <translation>With marks for cutting; the cut stacks, laid on each other, are the calendar</translation>
    </message>
    <message>
        <source>Be&amp;idseitig</source>
        <translation>Two-s&amp;ided</translation>
    </message>
    <message>
        <source>nur zum Schneiden</source>
        <translation>only for cutting</translation>
    </message>
    <message>
        <source>Die nächste Seite auf der Rückseite: Drucken Sie beidseitig, wie es unten steht</source>
        <translation>The next page on the back: print on both sides, as it says below</translation>
    </message>
</context>
<context>
    <name>MvSheetOptions</name>
    <message>
        <source>PAPIER</source>
        <translation>PAPER</translation>
    </message>
    <message>
        <source>große Seiten im PDF als Kacheln auf diesem Papier (A4, Letter, 200x300), zum Zusammenkleben</source>
        <translation>large pages of the PDF as tiles on this paper (A4, Letter, 200x300), to be glued together</translation>
    </message>
    <message>
        <source>mit --tiles: so weit überlappen sie (10)</source>
        <translation>with --tiles: how far they overlap (10)</translation>
    </message>
    <message>
        <source>so viele Seiten im PDF auf ein Blatt, bis 16</source>
        <translation>so many pages of the PDF on a sheet, up to 16</translation>
    </message>
    <message>
        <source>mit --n-up: das Blatt (A4)</source>
        <translation>with --n-up: the sheet (A4)</translation>
    </message>
    <message>
        <source>mit --n-up: mit Schnittmarken, und so, dass die geschnittenen Stapel aufeinandergelegt in der richtigen Folge sind</source>
        <translation>with --n-up: with marks for cutting, and so that the cut stacks, laid on each other, are in order</translation>
    </message>
    <message>
        <source>mit --cut-stack: auf Vorder- und Rückseite</source>
        <translation>with --cut-stack: on front and back</translation>
    </message>
    <message>
        <source>mit --tiles und --n-up: was der Drucker am Rand weiß lässt (5)</source>
        <translation>with --tiles and --n-up: what the printer leaves white at the edge (5)</translation>
    </message>
    <message>
        <source>--%1 gehört zu --%2</source>
        <translation>--%1 goes with --%2</translation>
    </message>
    <message>
        <source>--sheet-margin gehört zu --tiles oder --n-up</source>
        <translation>--sheet-margin goes with --tiles or --n-up</translation>
    </message>
    <message>
        <source>--%1 „%2“: erlaubt sind %3 und Maße in Millimetern wie 200x300</source>
        <translation>--%1 “%2”: allowed are %3 and millimetres such as 200x300</translation>
    </message>
</context>
<context>
    <name>MvSheetPlan</name>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Kacheln: die Seite (%1) passt auf ein Blatt (%2)</source>
        <translation>Tiles: the page (%1) fits on one sheet (%2)</translation>
    </message>
    <message>
        <source>Kacheln: auf dem Blatt (%1) bleibt neben Rand und Überlappung zu wenig Platz</source>
        <translation>Tiles: the sheet (%1) has too little room beside margin and overlap</translation>
    </message>
    <message>
        <source>%1 Seiten haben auf dem Blatt (%2) keinen Platz</source>
        <translation>%1 pages have no room on the sheet (%2)</translation>
    </message>
    <message>
        <source>Jede Seite wird zu %1 × %2 Blättern (%3).</source>
        <translation>Each page becomes %1 × %2 sheets (%3).</translation>
    </message>
    <message numerus="yes">
        <source>%n Blätter (%1), </source>
        <translation>
            <numerusform>%n sheet (%1), </numerusform>
            <numerusform>%n sheets (%1), </numerusform>
        </translation>
    </message>
    <message>
        <source>die Seiten in Originalgröße.</source>
        <translation>the pages in their own size.</translation>
    </message>
    <message>
        <source>die Seiten auf %1 % verkleinert.</source>
        <translation>the pages reduced to %1 %.</translation>
    </message>
    <message>
        <source>Beidseitig drucken, an der langen Kante wenden.</source>
        <translation>Print on both sides, turned about the long edge.</translation>
    </message>
    <message>
        <source>Beidseitig drucken, an der kurzen Kante wenden.</source>
        <translation>Print on both sides, turned about the short edge.</translation>
    </message>
</context>
<context>
    <name>MvStartDropZone</name>
    <message>
        <source>Fotos oder einen Ordner hierher ziehen</source>
        <translation>Drag photos or a folder here</translation>
    </message>
    <message>
        <source>O&amp;rdner wählen …</source>
        <translation>Choose fo&amp;lder …</translation>
    </message>
    <message>
        <source>Fotos &amp;wählen …</source>
        <translation>Choose ph&amp;otos …</translation>
    </message>
</context>
<context>
    <name>MvStartPage</name>
    <message>
        <source>Startseite</source>
        <translation>Start page</translation>
    </message>
    <message>
        <source>Diese Seite beim Start &amp;zeigen</source>
        <translation>&amp;Show this page at the start</translation>
    </message>
    <message>
        <source>Daraus wird ein Kalender mit Titelblatt: Jedes Bild kommt in seinen Monat. Alles lässt sich danach ändern.</source>
        <translation>They become a calendar with a cover: every picture goes to its month. Everything can be changed afterwards.</translation>
    </message>
    <message>
        <source>Z&amp;uletzt geöffnet</source>
        <translation>&amp;Recently opened</translation>
    </message>
    <message>
        <source>&amp;Ohne Fotos beginnen</source>
        <translation>&amp;Begin without photos</translation>
    </message>
    <message>
        <source>Einen Kalender anlegen, der noch keine Fotos hat</source>
        <translation>Make a calendar that has no photos yet</translation>
    </message>
    <message>
        <source>&amp;Kalender öffnen …</source>
        <translation>Open &amp;calendar …</translation>
    </message>
    <message>
        <source>Einen gespeicherten Kalender öffnen</source>
        <translation>Open a saved calendar</translation>
    </message>
    <message>
        <source>Geburtstage &amp;importieren …</source>
        <translation>&amp;Import birthdays …</translation>
    </message>
    <message>
        <source>Geburtstage aus einem Adressbuch (vCard) übernehmen</source>
        <translation>Take over birthdays from an address book (vCard)</translation>
    </message>
    <message>
        <source>W&amp;eiter zum Kalender</source>
        <translation>Co&amp;ntinue to the calendar</translation>
    </message>
    <message>
        <source>Zu dem Kalender gehen, der schon da ist</source>
        <translation>Go to the calendar that is there already</translation>
    </message>
    <message>
        <source>Einen Kalender Schritt für Schritt an&amp;legen</source>
        <translation>Create a calendar step b&amp;y step</translation>
    </message>
    <message>
        <source>Ges&amp;taltung, in der ein Kalender aus Fotos entsteht</source>
        <translation>Desi&amp;gn in which a calendar is made of photos</translation>
    </message>
</context>
<context>
    <name>MvStudioActions</name>
    <message>
        <source>&amp;Neu …</source>
        <translation>&amp;New …</translation>
    </message>
    <message>
        <source>Einen neuen Kalender beginnen</source>
        <translation>Start a new calendar</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen …</source>
        <translation>&amp;Open …</translation>
    </message>
    <message>
        <source>Einen gespeicherten Kalender öffnen</source>
        <translation>Open a saved calendar</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Den Kalender speichern</source>
        <translation>Save the calendar</translation>
    </message>
    <message>
        <source>Speichern &amp;unter …</source>
        <translation>Save &amp;As …</translation>
    </message>
    <message>
        <source>Den Kalender unter anderem Namen speichern</source>
        <translation>Save the calendar under another name</translation>
    </message>
    <message>
        <source>Als &amp;PDF exportieren …</source>
        <translation>Export as P&amp;DF …</translation>
    </message>
    <message>
        <source>Den Kalender als PDF für die Druckerei schreiben</source>
        <translation>Write the calendar as a PDF for the print shop</translation>
    </message>
    <message>
        <source>Als B&amp;ilder exportieren …</source>
        <translation>Export as &amp;Images …</translation>
    </message>
    <message>
        <source>Jede Seite als PNG-Bild schreiben</source>
        <translation>Write each page as a PNG image</translation>
    </message>
    <message>
        <source>&amp;Drucken …</source>
        <translation>&amp;Print …</translation>
    </message>
    <message>
        <source>Die Druckvorschau zeigen und den Kalender drucken</source>
        <translation>Show the print preview and print the calendar</translation>
    </message>
    <message>
        <source>&amp;Geburtstage importieren …</source>
        <translation>Import &amp;Birthdays …</translation>
    </message>
    <message>
        <source>Geburtstage aus einem Adressbuch (vCard) übernehmen</source>
        <translation>Take over birthdays from an address book (vCard)</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Das Programm beenden</source>
        <translation>Quit the program</translation>
    </message>
    <message>
        <source>&amp;Einstellungen …</source>
        <translation>Se&amp;ttings …</translation>
    </message>
    <message>
        <source>Sprache und Farben des Programms wählen</source>
        <translation>Choose the language and the colours of the program</translation>
    </message>
    <message>
        <source>Ver&amp;größern</source>
        <translation>Zoom &amp;In</translation>
    </message>
    <message>
        <source>Die Seite größer zeigen</source>
        <translation>Show the page larger</translation>
    </message>
    <message>
        <source>Ver&amp;kleinern</source>
        <translation>Zoom &amp;Out</translation>
    </message>
    <message>
        <source>Die Seite kleiner zeigen</source>
        <translation>Show the page smaller</translation>
    </message>
    <message>
        <source>Ganze S&amp;eite</source>
        <translation>&amp;Whole Page</translation>
    </message>
    <message>
        <source>Die Seite so groß zeigen, dass sie ganz zu sehen ist</source>
        <translation>Show the page at a size at which all of it can be seen</translation>
    </message>
    <message>
        <source>&amp;Originalgröße</source>
        <translation>&amp;Actual Size</translation>
    </message>
    <message>
        <source>Die Seite so groß zeigen, wie sie gedruckt wird</source>
        <translation>Show the page at the size at which it is printed</translation>
    </message>
    <message>
        <source>&amp;Vollbild</source>
        <translation>&amp;Full Screen</translation>
    </message>
    <message>
        <source>Das Fenster über den ganzen Bildschirm breiten</source>
        <translation>Spread the window over the whole screen</translation>
    </message>
    <message>
        <source>Ü&amp;ber MvCalendar</source>
        <translation>&amp;About MvCalendar</translation>
    </message>
    <message>
        <source>Version und Bestandteile des Programms</source>
        <translation>Version and components of the program</translation>
    </message>
    <message>
        <source>&amp;Layout wählen …</source>
        <translation>Choose &amp;Layout …</translation>
    </message>
    <message>
        <source>Ein Layout für alle Seiten aus Bildern wählen</source>
        <translation>Choose a layout for all pages from pictures</translation>
    </message>
    <message>
        <source>&amp;Papier und Zeitraum …</source>
        <translation>Pa&amp;per and Period …</translation>
    </message>
    <message>
        <source>Papier, Ausrichtung und Monate des Kalenders ändern</source>
        <translation>Change paper, orientation and months of the calendar</translation>
    </message>
    <message>
        <source>&amp;Foto wählen …</source>
        <translation>Choose P&amp;hoto …</translation>
    </message>
    <message>
        <source>Der gezeigten Seite ein Foto geben</source>
        <translation>Give the page shown a photo</translation>
    </message>
    <message>
        <source>Foto entfe&amp;rnen</source>
        <translation>&amp;Remove Photo</translation>
    </message>
    <message>
        <source>Das Foto der gezeigten Seite entfernen</source>
        <translation>Remove the photo of the page shown</translation>
    </message>
    <message>
        <source>&amp;Vorige Seite</source>
        <translation>Pre&amp;vious Page</translation>
    </message>
    <message>
        <source>Zur vorigen Seite gehen</source>
        <translation>Go to the previous page</translation>
    </message>
    <message>
        <source>&amp;Nächste Seite</source>
        <translation>&amp;Next Page</translation>
    </message>
    <message>
        <source>Zur nächsten Seite gehen</source>
        <translation>Go to the next page</translation>
    </message>
    <message>
        <source>&amp;Erste Seite</source>
        <translation>&amp;First Page</translation>
    </message>
    <message>
        <source>Zur ersten Seite gehen</source>
        <translation>Go to the first page</translation>
    </message>
    <message>
        <source>Le&amp;tzte Seite</source>
        <translation>La&amp;st Page</translation>
    </message>
    <message>
        <source>Zur letzten Seite gehen</source>
        <translation>Go to the last page</translation>
    </message>
    <message>
        <source>Feh&amp;lende Fotos suchen …</source>
        <translation>&amp;Find missing photos …</translation>
    </message>
    <message>
        <source>Fotos, die nicht mehr an ihrem Platz sind, in einem Ordner wiederfinden</source>
        <translation>Find photos again that have been moved to another folder</translation>
    </message>
    <message>
        <source>Vor dem D&amp;ruck prüfen …</source>
        <translation>C&amp;heck before printing …</translation>
    </message>
    <message>
        <source>Alles auflisten, was nicht gut gedruckt würde</source>
        <translation>List everything that would not print well</translation>
    </message>
    <message>
        <source>Schnitt, Rand und &amp;Bindung</source>
        <translation>Trim, margin and &amp;binding</translation>
    </message>
    <message>
        <source>Auf der Seite zeigen, wo geschnitten und gebunden wird und wo nichts stehen sollte</source>
        <translation>Show on the page where it is cut and bound and where nothing should stand</translation>
    </message>
    <message>
        <source>&amp;Startseite</source>
        <translation>&amp;Start page</translation>
    </message>
    <message>
        <source>Einen neuen Kalender beginnen oder einen der letzten öffnen</source>
        <translation>Begin a new calendar or open one of the last</translation>
    </message>
    <message>
        <source>Seite e&amp;infügen</source>
        <translation>&amp;Insert page</translation>
    </message>
    <message>
        <source>Hinter der gezeigten Seite eine weitere für Fotos einfügen</source>
        <translation>Insert another page for photos behind the one shown</translation>
    </message>
    <message>
        <source>Tite&amp;lblatt einfügen</source>
        <translation>Insert &amp;cover</translation>
    </message>
    <message>
        <source>Dem Kalender ein Titelblatt geben</source>
        <translation>Give the calendar a cover</translation>
    </message>
    <message>
        <source>&amp;Rückseite einfügen</source>
        <translation>Insert &amp;back</translation>
    </message>
    <message>
        <source>Dem Kalender eine Rückseite geben</source>
        <translation>Give the calendar a back</translation>
    </message>
    <message>
        <source>Seite verd&amp;oppeln</source>
        <translation>&amp;Duplicate page</translation>
    </message>
    <message>
        <source>Hinter der gezeigten Seite eine einfügen, die ihr gleicht</source>
        <translation>Insert a page like the one shown behind it</translation>
    </message>
    <message>
        <source>Nach vorn s&amp;chieben</source>
        <translation>Move for&amp;ward</translation>
    </message>
    <message>
        <source>Die gezeigte Seite vor die vorige schieben</source>
        <translation>Move the page shown before the previous one</translation>
    </message>
    <message>
        <source>Nach &amp;hinten schieben</source>
        <translation>Move bac&amp;kward</translation>
    </message>
    <message>
        <source>Die gezeigte Seite hinter die nächste schieben</source>
        <translation>Move the page shown behind the next one</translation>
    </message>
    <message>
        <source>Seite ent&amp;fernen</source>
        <translation>&amp;Remove page</translation>
    </message>
    <message>
        <source>Die gezeigte Seite entfernen; Seiten von Monaten bleiben</source>
        <translation>Remove the page shown; pages of months stay</translation>
    </message>
    <message>
        <source>Auf der Seite von Foto zu Foto und Text zu Text gehen</source>
        <translation>Go from photo to photo and text to text on the page</translation>
    </message>
    <message>
        <source>Fotos hin&amp;zufügen …</source>
        <translation>&amp;Add photos …</translation>
    </message>
    <message>
        <source>Fotos zum Kalender nehmen; sie liegen dann unter der Seite bereit</source>
        <translation>Take photos into the calendar; they are at hand below the page then</translation>
    </message>
    <message>
        <source>&amp;Ordner hinzufügen …</source>
        <translation>Add f&amp;older …</translation>
    </message>
    <message>
        <source>Alle Fotos eines Ordners zum Kalender nehmen</source>
        <translation>Take all photos of a folder into the calendar</translation>
    </message>
    <message>
        <source>Auf die Seiten &amp;verteilen</source>
        <translation>&amp;Distribute to the pages</translation>
    </message>
    <message>
        <source>Die leeren Rahmen füllen: Jedes Foto kommt in seinen Monat</source>
        <translation>Fill the empty frames: every photo goes to its month</translation>
    </message>
    <message>
        <source>&amp;Gestaltung wählen</source>
        <translation>Choose &amp;design</translation>
    </message>
    <message>
        <source>Layout, Farben, Schriften und Vorlagen aller Seiten auf einmal wählen</source>
        <translation>Choose layout, colors, fonts and templates of all pages at once</translation>
    </message>
    <message>
        <source>&amp;Vorlage der Seite</source>
        <translation>&amp;Template of the page</translation>
    </message>
    <message>
        <source>Wählen, wie Fotos, Texte und Kalender auf der Seite stehen</source>
        <translation>Choose how photos, texts and calendar stand on the page</translation>
    </message>
    <message>
        <source>&amp;Anleitung und Tastenkürzel</source>
        <translation>&amp;Guide and shortcuts</translation>
    </message>
    <message>
        <source>Zeigen, wie aus Fotos ein Kalender wird, und alle Tastenkürzel auflisten</source>
        <translation>Show how photos become a calendar, and list all shortcuts</translation>
    </message>
    <message>
        <source>&amp;Nächsten Rahmen wählen</source>
        <translation>Select &amp;next frame</translation>
    </message>
    <message>
        <source>&amp;Fotorahmen einfügen</source>
        <translation>Insert &amp;photo frame</translation>
    </message>
    <message>
        <source>Einen Rahmen für ein weiteres Foto auf die Seite setzen</source>
        <translation>Put a frame for another photo on the page</translation>
    </message>
    <message>
        <source>&amp;Textrahmen einfügen</source>
        <translation>Insert &amp;text frame</translation>
    </message>
    <message>
        <source>Ein paar Worte auf die Seite setzen</source>
        <translation>Put a few words on the page</translation>
    </message>
    <message>
        <source>Kleinen &amp;Monat einfügen</source>
        <translation>Insert small &amp;month</translation>
    </message>
    <message>
        <source>Den nächsten Monat klein auf die Seite setzen</source>
        <translation>Put the next month on the page, small</translation>
    </message>
    <message>
        <source>Rahmen ver&amp;doppeln</source>
        <translation>&amp;Duplicate frame</translation>
    </message>
    <message>
        <source>Neben die gewählten Rahmen solche setzen, die ihnen gleichen</source>
        <translation>Put frames like the chosen ones beside them</translation>
    </message>
    <message>
        <source>Rahmen &amp;löschen</source>
        <translation>De&amp;lete frame</translation>
    </message>
    <message>
        <source>Die gewählten Rahmen von der Seite nehmen</source>
        <translation>Take the chosen frames off the page</translation>
    </message>
    <message>
        <source>Ganz nach &amp;vorn</source>
        <translation>To the &amp;front</translation>
    </message>
    <message>
        <source>Die gewählten Rahmen über alle anderen legen</source>
        <translation>Put the chosen frames above all others</translation>
    </message>
    <message>
        <source>Ganz nach &amp;hinten</source>
        <translation>To the &amp;back</translation>
    </message>
    <message>
        <source>Die gewählten Rahmen unter alle anderen legen</source>
        <translation>Put the chosen frames below all others</translation>
    </message>
    <message>
        <source>La&amp;ge und Größe</source>
        <translation>Position and si&amp;ze</translation>
    </message>
    <message>
        <source>Den gewählten Rahmen nach Maß setzen und mit anderen ausrichten</source>
        <translation>Place the chosen frame by measure and align it with others</translation>
    </message>
    <message>
        <source>Rahmen frei &amp;anordnen</source>
        <translation>&amp;Arrange frames freely</translation>
    </message>
    <message>
        <source>Foto und Kalender der Seite einzeln verschiebbar machen</source>
        <translation>Make photo and calendar of the page movable one by one</translation>
    </message>
    <message>
        <source>&amp;Termine importieren …</source>
        <translation>I&amp;mport Dates …</translation>
    </message>
    <message>
        <source>Termine aus einem Kalender (iCalendar), einer Tabelle oder einer Liste übernehmen</source>
        <translation>Take over dates from a calendar (iCalendar), a table or a list</translation>
    </message>
    <message>
        <source>&amp;Gruppen und Alter …</source>
        <translation>&amp;Groups and Ages …</translation>
    </message>
    <message>
        <source>Einträge zu Gruppen mit Farben ordnen, und wählen, welche der Kalender zeigt</source>
        <translation>Put entries into groups with colours, and choose which of them the calendar shows</translation>
    </message>
</context>
<context>
    <name>MvStudioApplication</name>
    <message>
        <source>Die Sicherung nebenbei ist misslungen. Speichern Sie bald selbst.</source>
        <translation>The automatic backup failed. Save your work yourself soon.</translation>
    </message>
    <message>
        <source>Der Kalender lässt sich nicht wiederherstellen.</source>
        <translation>The calendar cannot be recovered.</translation>
    </message>
    <message>
        <source>Die Einstellungen ließen sich nicht speichern.</source>
        <translation>The settings could not be saved.</translation>
    </message>
    <message>
        <source>Ihre Einträge können auf diesem Rechner nicht gespeichert werden.</source>
        <translation>Your entries cannot be saved on this computer.</translation>
    </message>
    <message>
        <source>In den Ordner %1 lässt sich nicht schreiben. Was Sie eintragen, und was zwischendurch gesichert wird, ist nach dem Beenden nicht mehr da. Geben Sie dem Ordner Schreibrechte, und starten Sie das Programm neu.</source>
        <translation>The folder %1 cannot be written to. What you enter, and what is saved in between, will be gone after quitting. Give yourself the right to write there, and start the program again.</translation>
    </message>
</context>
<context>
    <name>MvStudioMenus</name>
    <message>
        <source>&amp;Hilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Zuletzt geöffnet</source>
        <translation>Open &amp;recent</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Seite</source>
        <translation>&amp;Page</translation>
    </message>
    <message>
        <source>&amp;Fotos</source>
        <translation>Pho&amp;tos</translation>
    </message>
    <message>
        <source>&amp;Gestaltung</source>
        <translation>&amp;Design</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Gestaltung</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Diesen Kalender öffnen</source>
        <translation>Open this calendar</translation>
    </message>
    <message>
        <source>Liste &amp;leeren</source>
        <translation>&amp;Clear list</translation>
    </message>
    <message>
        <source>Die Liste leeren; die Dateien bleiben</source>
        <translation>Clear the list; the files stay</translation>
    </message>
    <message>
        <source>Rahme&amp;n</source>
        <translation>Fr&amp;ame</translation>
    </message>
</context>
<context>
    <name>MvStudioMessage</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Verwerfen</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>… und %1 weitere</source>
        <translation>… and %1 more</translation>
    </message>
</context>
<context>
    <name>MvStudioOptions</name>
    <message>
        <source>Aufruf: mvcalendar-studio [Optionen] [Datei]
Gestaltet Fotokalender und druckt sie.

  Datei                      Kalender, der geöffnet wird
  --language de|en|system    Sprache des Programms
  --theme light|dark|system  helle oder dunkle Farben
  -h, --help                 diese Hilfe
  -v, --version              die Version
</source>
        <translation>Usage: mvcalendar-studio [options] [file]
Designs photo calendars and prints them.

  file                       calendar to open
  --language de|en|system    language of the program
  --theme light|dark|system  light or dark colours
  -h, --help                 this help
  -v, --version              the version
</translation>
    </message>
    <message>
        <source>eine Option steht ohne ihren Wert</source>
        <translation>an option lacks its value</translation>
    </message>
    <message>
        <source>unbekannte Option „%1“</source>
        <translation>unknown option “%1”</translation>
    </message>
    <message>
        <source>--%1 „%2“: erlaubt sind %3</source>
        <translation>--%1 “%2”: allowed are %3</translation>
    </message>
    <message>
        <source>mehr als eine Datei</source>
        <translation>more than one file</translation>
    </message>
    <message>
        <source>mvcalendar-studio: %1 (Hilfe: mvcalendar-studio --help)</source>
        <translation>mvcalendar-studio: %1 (help: mvcalendar-studio --help)</translation>
    </message>
</context>
<context>
    <name>MvStudioPanels</name>
    <message>
        <source>Inhalt</source>
        <translation>Content</translation>
    </message>
    <message>
        <source>Gestaltung</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Schriften</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Spalten</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Einträge</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Vorlage der Seite</source>
        <translation>Template of the page</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Farben</source>
        <translation>Colors</translation>
    </message>
    <message>
        <source>Foto</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Einträge des Tages</source>
        <translation>Entries of the day</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Lage und Größe</source>
        <translation>Position and size</translation>
    </message>
</context>
<context>
    <name>MvStudioSettings</name>
    <message>
        <source>In die Datei %1 lässt sich nicht schreiben.</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
</context>
<context>
    <name>MvStudioStatusBar</name>
    <message>
        <source>Diese Texte mussten gekürzt werden, weil ihr Tag zu wenig Platz hat</source>
        <translation>These texts had to be shortened because their day has too little room</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Wie groß die Seite zu sehen ist; 100 % ist die Größe auf dem Papier</source>
        <translation>How large the page is shown; 100 % is its size on paper</translation>
    </message>
    <message>
        <source>Ganze Seite</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Seite %1 von %2 · %3</source>
        <translation>Page %1 of %2 · %3</translation>
    </message>
    <message>
        <source>Keine Seiten</source>
        <translation>No pages</translation>
    </message>
    <message>
        <source>… und %1 weitere</source>
        <translation>… and %1 more</translation>
    </message>
    <message numerus="yes">
        <source>%n Texte ohne Platz</source>
        <translation>
            <numerusform>%n text without room</numerusform>
            <numerusform>%n texts without room</numerusform>
        </translation>
    </message>
    <message>
        <source>Was geschehen ist, und was Sie tun können</source>
        <translation>What has happened, and what you can do</translation>
    </message>
    <message numerus="yes">
        <source>%n Hinweise zum Druck</source>
        <translation>
            <numerusform>%n hint about printing</numerusform>
            <numerusform>%n hints about printing</numerusform>
        </translation>
    </message>
    <message>
        <source>Alles, was nicht gut gedruckt würde; ein Klick führt hin</source>
        <translation>Everything that would not print well; a click leads there</translation>
    </message>
</context>
<context>
    <name>MvStudioWindow</name>
    <message>
        <source>Seiten</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Layout für alle Seiten wählen</source>
        <translation>Choose a layout for all pages</translation>
    </message>
    <message>
        <source>Layout wählen</source>
        <translation>Choose layout</translation>
    </message>
    <message>
        <source>Papier und Zeitraum</source>
        <translation>Paper and period</translation>
    </message>
    <message>
        <source>Papier und Zeitraum ändern</source>
        <translation>Change paper and period</translation>
    </message>
    <message>
        <source>Die andere Sprache gilt ab dem nächsten Start.</source>
        <translation>The other language applies from the next start.</translation>
    </message>
    <message>
        <source>Layout übernehmen</source>
        <translation>Use Layout</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Eigenschaften</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Seiten bearbeiten</source>
        <translation>Edit pages</translation>
    </message>
    <message>
        <source>Loslassen übernimmt die Termine in den Kalender.</source>
        <translation>Letting go takes the dates into the calendar.</translation>
    </message>
</context>
<context>
    <name>MvTemplatePanel</name>
    <message>
        <source>Vorlagen der Seite</source>
        <translation>Templates of the page</translation>
    </message>
    <message>
        <source>Ohne Vorlage</source>
        <translation>Without a template</translation>
    </message>
    <message>
        <source>Ein Kalender und ein Foto, das sich oben oder daneben anlegt</source>
        <translation>A calendar and a photo above or beside it</translation>
    </message>
    <message>
        <source>Vorlage der Seite wählen</source>
        <translation>Choose template of the page</translation>
    </message>
</context>
<context>
    <name>MvTemplateReader</name>
    <message>
        <source>„%1“ ist keine Vorlage (template)</source>
        <translation>“%1” is no template</translation>
    </message>
    <message>
        <source>die Kennung (id) fehlt</source>
        <translation>the id is missing</translation>
    </message>
    <message>
        <source>der Name (name) fehlt</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>die Art (kind) „%1“ gibt es nicht; möglich sind month, cover, free und back</source>
        <translation>there is no kind “%1”; possible are month, cover, free and back</translation>
    </message>
    <message>
        <source>„%1“ ist keine Aufteilung (division)</source>
        <translation>“%1” is no division</translation>
    </message>
    <message>
        <source>zwei Plätze einer Aufteilung heißen gleich (slot)</source>
        <translation>two slots of a division have the same name</translation>
    </message>
    <message>
        <source>die Form (shapes) „%1“ gibt es nicht</source>
        <translation>there is no shape “%1”</translation>
    </message>
    <message>
        <source>der Name des Platzes (slot) fehlt</source>
        <translation>the name of the slot is missing</translation>
    </message>
    <message>
        <source>„%1“ ist kein Platz; möglich sind photo, text und calendarium</source>
        <translation>“%1” is no slot; possible are photo, text and calendarium</translation>
    </message>
    <message>
        <source>die Rolle (role) „%1“ gibt es nicht; möglich sind %2</source>
        <translation>there is no role “%1”; possible are %2</translation>
    </message>
    <message>
        <source>„%1“ (shows) gibt es nicht; möglich sind %2</source>
        <translation>there is no “%1” (shows); possible are %2</translation>
    </message>
    <message>
        <source>„%1“ (%2) ist keine Spanne von 1 bis %3</source>
        <translation>“%1” (%2) is no span from 1 to %3</translation>
    </message>
    <message>
        <source>die Seite (%1) „%2“ gibt es nicht; möglich sind left, top, right und bottom</source>
        <translation>there is no side (%1) “%2”; possible are left, top, right and bottom</translation>
    </message>
    <message>
        <source>„%1“ (%2) ist keine Zahl von %3 bis %4</source>
        <translation>“%1” (%2) is no number from %3 to %4</translation>
    </message>
    <message>
        <source>„%1“ (%2): möglich sind true und false</source>
        <translation>“%1” (%2): possible are true and false</translation>
    </message>
    <message>
        <source>für Seiten der Form %1 fehlt eine Aufteilung (division)</source>
        <translation>there is no division for pages of the shape %1</translation>
    </message>
    <message>
        <source>auf Seiten der Form %1 heißen die Plätze (slot) anders als im Querformat</source>
        <translation>on pages of the shape %1 the slots have other names than on landscape ones</translation>
    </message>
    <message>
        <source>„%1“ gibt es bei „%2“ nicht</source>
        <translation>there is no “%1” in “%2”</translation>
    </message>
    <message>
        <source>Die Vorlage „%1“ bleibt weg: %2.</source>
        <translation>The template “%1” is left out: %2.</translation>
    </message>
    <message>
        <source>die Bindung (bound) „%1“ gibt es nicht; möglich ist foot</source>
        <translation>there is no binding (bound) “%1”; foot is possible</translation>
    </message>
</context>
<context>
    <name>MvTemplatesCommand</name>
    <message>
        <source>zählt die Vorlagen für Seiten auf, mit ihren Fotos</source>
        <translation>lists the templates for pages, with their photos</translation>
    </message>
    <message>
        <source>nur die für Titelblatt, Monate, freie Seiten oder Rückseite</source>
        <translation>only those for cover, months, free pages or back</translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos</source>
        <translation>
            <numerusform>One photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvTextPanel</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text ändern</source>
        <translation>Change text</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Etwas einfügen, das der Kalender selbst ausfüllt</source>
        <translation>Insert something that the calendar fills in itself</translation>
    </message>
    <message>
        <source>Titel des Kalenders</source>
        <translation>Title of the calendar</translation>
    </message>
    <message>
        <source>Monat</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Jahr</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Unterschrift des Fotos</source>
        <translation>Caption of the photo</translation>
    </message>
    <message>
        <source>Alle Unterschriften</source>
        <translation>All captions</translation>
    </message>
    <message>
        <source>Name des Autors</source>
        <translation>Name of the author</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftgröße in Punkt auf A4</source>
        <translation>Font size in points on A4</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Fett</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Kursiv</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Großbuchstaben</source>
        <translation>Capitals</translation>
    </message>
    <message>
        <source>Schrift:</source>
        <translation>Font:</translation>
    </message>
    <message>
        <source>Größe:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Farbe des Textes</source>
        <translation>Color of the text</translation>
    </message>
    <message>
        <source>Wie die Seite</source>
        <translation>As the page</translation>
    </message>
    <message>
        <source>Wie die Sonntage</source>
        <translation>As Sundays</translation>
    </message>
    <message>
        <source>Eigene Farbe</source>
        <translation>Own color</translation>
    </message>
    <message>
        <source>Eigene Farbe des Textes</source>
        <translation>Own color of the text</translation>
    </message>
    <message>
        <source>Farbe:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Ausrichtung waagrecht</source>
        <translation>Horizontal alignment</translation>
    </message>
    <message>
        <source>Ausrichtung senkrecht</source>
        <translation>Vertical alignment</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Mitte</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Unten</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Lage:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Aussehen des Textes ändern</source>
        <translation>Change look of the text</translation>
    </message>
</context>
<context>
    <name>MvThemeChooser</name>
    <message>
        <source>Gestaltungen</source>
        <translation>Designs</translation>
    </message>
</context>
<context>
    <name>MvThemePanel</name>
    <message>
        <source>Gestaltung wählen</source>
        <translation>Choose design</translation>
    </message>
</context>
<context>
    <name>MvThemeReader</name>
    <message>
        <source>„%1“ ist kein Thema (theme)</source>
        <translation>“%1” is no theme</translation>
    </message>
    <message>
        <source>Kennung oder Name (id, name) fehlen</source>
        <translation>id or name are missing</translation>
    </message>
    <message>
        <source>„%1“ gibt es nicht</source>
        <translation>there is no “%1”</translation>
    </message>
    <message>
        <source>ein Layout (layouts grid) oder Farben (colors schema) fehlen</source>
        <translation>a layout (layouts grid) or colours (colors schema) are missing</translation>
    </message>
    <message>
        <source>die Vorlagen der Monate (pages month) fehlen</source>
        <translation>the templates of the months (pages month) are missing</translation>
    </message>
    <message>
        <source>„%1“ gibt es nicht; möglich sind %2</source>
        <translation>there is no “%1”; possible are %2</translation>
    </message>
    <message>
        <source>„%1“ (months) ist kein Monat von 1 bis 12</source>
        <translation>“%1” (months) is no month from 1 to 12</translation>
    </message>
    <message>
        <source>die Rolle (role) „%1“ gibt es nicht; möglich sind %2</source>
        <translation>there is no role “%1”; possible are %2</translation>
    </message>
    <message>
        <source>die Vorlage „%1“ (%2) gibt es nicht</source>
        <translation>there is no template “%1” (%2)</translation>
    </message>
    <message>
        <source>das Layout „%1“ (%2) gibt es nicht</source>
        <translation>there is no layout “%1” (%2)</translation>
    </message>
    <message>
        <source>die Farben „%1“ (%2) gibt es nicht</source>
        <translation>there are no colours “%1” (%2)</translation>
    </message>
    <message>
        <source>Das Thema „%1“ bleibt weg: %2.</source>
        <translation>The theme “%1” is left out: %2.</translation>
    </message>
</context>
<context>
    <name>MvThemeRegistry</name>
    <message>
        <source>Das Thema „%1“ bleibt weg, denn seine Kennung %2 hat schon „%3“. Eine andere bringt es zurück.</source>
        <translation>The theme “%1” is left out, since its id %2 is that of “%3” already. Another one brings it back.</translation>
    </message>
</context>
<context>
    <name>MvThemesCommand</name>
    <message>
        <source>zählt die Themen für Fotokalender auf</source>
        <translation>lists the themes for photo calendars</translation>
    </message>
</context>
<context>
    <name>MvTypedDate</name>
    <message>
        <source>Bitte ein Datum eingeben. Beispiel: %1</source>
        <translation>Please enter a date. Example: %1</translation>
    </message>
    <message>
        <source>„%1“ ist kein Datum. Beispiel: %2</source>
        <translation>“%1” is not a date. Example: %2</translation>
    </message>
    <message>
        <source>Den Tag „%1“ gibt es nicht. Beispiel: %2</source>
        <translation>There is no day “%1”. Example: %2</translation>
    </message>
    <message>
        <source>Den Tag „%1“ gibt es im Jahr %2 nicht. Beispiel: %3</source>
        <translation>There is no day “%1” in the year %2. Example: %3</translation>
    </message>
    <message>
        <source>„%1“ liegt vor dem Jahr %2. Beispiel: %3</source>
        <translation>“%1” is before the year %2. Example: %3</translation>
    </message>
    <message>
        <source>„%1“ liegt mehr als %2 Jahre voraus. Beispiel: %3</source>
        <translation>“%1” is more than %2 years ahead. Example: %3</translation>
    </message>
    <message>
        <source>„%1“: das Jahr %2 steht für ein unbekanntes. Beispiel: %3</source>
        <translation>“%1”: the year %2 stands for an unknown one. Example: %3</translation>
    </message>
</context>
<context>
    <name>MvUndoActions</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Den letzten Schritt zurücknehmen</source>
        <translation>Take back the last step</translation>
    </message>
    <message>
        <source>Den zurückgenommenen Schritt wieder tun</source>
        <translation>Do again the step taken back</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Redo</translation>
    </message>
</context>
<context>
    <name>MvUserColorSchemata</name>
    <message>
        <source>Es fehlt ein Name.</source>
        <translation>A name is missing.</translation>
    </message>
    <message>
        <source>Der Name ist länger als %1 Zeichen.</source>
        <translation>The name is longer than %1 letters.</translation>
    </message>
    <message>
        <source>Ein Farbschema „%1“ gibt es schon.</source>
        <translation>There is a colour scheme “%1” already.</translation>
    </message>
    <message>
        <source>Diese Farben gibt es schon: %1 („%2“).</source>
        <translation>These colours exist already: %1 (“%2”).</translation>
    </message>
</context>
<context>
    <name>MvUserSchemaFile</name>
    <message>
        <source>%1 konnte nicht gespeichert werden: %2</source>
        <translation>%1 could not be saved: %2</translation>
    </message>
    <message>
        <source>Der Ordner lässt sich nicht anlegen.</source>
        <translation>The folder cannot be made.</translation>
    </message>
    <message>
        <source>Was darin steht, ist nicht ganz zu lesen und ließ sich nicht beiseitelegen.</source>
        <translation>Not all that it holds can be read, and it could not be set aside.</translation>
    </message>
    <message>
        <source>%1 enthält mehr, als sich übernehmen lässt.</source>
        <translation>%1 holds more than can be taken over.</translation>
    </message>
    <message>
        <source>%1 Der alte Stand liegt in %2.</source>
        <translation>%1 The old state is in %2.</translation>
    </message>
</context>
<context>
    <name>MvVCardBirthdays</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MvVCardStream</name>
    <message>
        <source>%1 lässt sich nicht lesen: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 lässt sich nicht bis zum Ende lesen: %2</source>
        <translation>%1 cannot be read to its end: %2</translation>
    </message>
    <message>
        <source>keine Visitenkarten (vCard) gefunden</source>
        <translation>no contact cards (vCard) found</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>MvVacationHint</name>
    <message>
        <source>Ferien %1: keine bekannt</source>
        <translation>school holidays of %1: none known</translation>
    </message>
    <message>
        <source>Ferien %1 bis %2</source>
        <translation>school holidays of %1 to %2</translation>
    </message>
    <message>
        <source>ohne --region keine Schulferien: „mvcalendar regions --country %1“ nennt die Regionen</source>
        <translation>no school holidays without --region: “mvcalendar regions --country %1” names the regions</translation>
    </message>
</context>
<context>
    <name>MvValidateCommand</name>
    <message>
        <source>nennt, was an einem Projekt schlecht gedruckt würde</source>
        <translation>names what of a project would print badly</translation>
    </message>
    <message>
        <source>es fehlt das Projekt: validate DATEI</source>
        <translation>the project is missing: validate FILE</translation>
    </message>
</context>
<context>
    <name>MvXMLBuilder</name>
    <message>
        <source>%1 Der alte Stand liegt in %2.</source>
        <translation>%1 The old state is in %2.</translation>
    </message>
</context>
<context>
    <name>MvXMLFile</name>
    <message>
        <source>Ein NUL-Zeichen darf nicht vorkommen.</source>
        <translation>A NUL character is not allowed.</translation>
    </message>
    <message>
        <source>Entitäten dürfen nicht vereinbart werden.</source>
        <translation>Entities may not be declared.</translation>
    </message>
    <message>
        <source>Vorgaben für Attribute dürfen nicht vereinbart werden.</source>
        <translation>Defaults of attributes may not be declared.</translation>
    </message>
    <message>
        <source>Eine Auszeichnung ist länger als %1 KiB.</source>
        <translation>A tag is longer than %1 KiB.</translation>
    </message>
    <message>
        <source>Die Datei endet zu früh.</source>
        <translation>The file ends too early.</translation>
    </message>
    <message>
        <source>Das ist kein wohlgeformtes XML (%1)</source>
        <translation>This is not well-formed XML (%1)</translation>
    </message>
    <message>
        <source>Die Elemente sind tiefer als %1 Ebenen verschachtelt.</source>
        <translation>The elements are nested deeper than %1 levels.</translation>
    </message>
    <message>
        <source>Die Datei hat zu viele Elemente.</source>
        <translation>The file has too many elements.</translation>
    </message>
    <message>
        <source>Die Entität &quot;%1&quot; ist nicht bekannt.</source>
        <translation>The entity &quot;%1&quot; is not known.</translation>
    </message>
    <message>
        <source>Die Zeichen sind nicht als UTF-8 gespeichert.</source>
        <translation>The characters are not stored as UTF-8.</translation>
    </message>
    <message>
        <source>Die Datei lässt sich nicht zu Ende lesen.</source>
        <translation>The file cannot be read to its end.</translation>
    </message>
    <message>
        <source>Die Datei ist größer als %1 MiB.</source>
        <translation>The file is larger than %1 MiB.</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Eine Auszeichnung hat mehr als %1 Attribute.</source>
        <translation>A tag has more than %1 attributes.</translation>
    </message>
    <message>
        <source>Der Arbeitsspeicher reicht für diese Datei nicht aus.</source>
        <translation>There is not enough memory for this file.</translation>
    </message>
</context>
<context>
    <name>MvZipFile</name>
    <message>
        <source>Das ist keine Datei, die sich ersetzen lässt</source>
        <translation>This is no file that can be replaced</translation>
    </message>
    <message>
        <source>%1 lässt sich nicht schreiben: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
</context>
</TS>
