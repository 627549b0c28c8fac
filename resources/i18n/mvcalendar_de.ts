<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>MvBatchProcess</name>
    <message numerus="yes">
        <source>nicht fertig nach %n Sekunden (--time-limit)</source>
        <translation>
            <numerusform>nicht fertig nach %n Sekunde (--time-limit)</numerusform>
            <numerusform>nicht fertig nach %n Sekunden (--time-limit)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvBatchProgress</name>
    <message numerus="yes">
        <source>noch etwa %n Sekunden</source>
        <translation>
            <numerusform>noch etwa %n Sekunde</numerusform>
            <numerusform>noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>noch etwa %n Minuten</source>
        <translation>
            <numerusform>noch etwa %n Minute</numerusform>
            <numerusform>noch etwa %n Minuten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFile</name>
    <message numerus="yes">
        <source>%1: %n Fotos liegen außerhalb der erlaubten Ordner und werden nicht geladen, zuerst %2</source>
        <translation>
            <numerusform>%1: %n Foto liegt außerhalb der erlaubten Ordner und wird nicht geladen: %2</numerusform>
            <numerusform>%1: %n Fotos liegen außerhalb der erlaubten Ordner und werden nicht geladen, zuerst %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>… und %n weitere</source>
        <translation>
            <numerusform>… und %n weiterer</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvCalendarEventFileIntake</name>
    <message numerus="yes">
        <source>%n Einträge der Datei sind nicht lesbar:</source>
        <translation>
            <numerusform>%n Eintrag der Datei ist nicht lesbar:</numerusform>
            <numerusform>%n Einträge der Datei sind nicht lesbar:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n davon stehen nicht in der Datei.</source>
        <translation>
            <numerusform>%n davon steht nicht in der Datei.</numerusform>
            <numerusform>%n davon stehen nicht in der Datei.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>„%1“ ist eine leere Liste. Die %n Einträge dieses Kalenders dennoch durch sie ersetzen?</source>
        <translation>
            <numerusform>„%1“ ist eine leere Liste. Den einen Eintrag dieses Kalenders dennoch durch sie ersetzen?</numerusform>
            <numerusform>„%1“ ist eine leere Liste. Die %n Einträge dieses Kalenders dennoch durch sie ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Die %n Einträge dieses Kalenders durch die aus „%1“ ersetzen?</source>
        <translation>
            <numerusform>Den einen Eintrag dieses Kalenders durch die aus „%1“ ersetzen?</numerusform>
            <numerusform>Die %n Einträge dieses Kalenders durch die aus „%1“ ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>„%1“ ist eine leere Liste. Ihre %n Einträge dennoch durch sie ersetzen?</source>
        <translation>
            <numerusform>„%1“ ist eine leere Liste. Ihren %n Eintrag dennoch durch sie ersetzen?</numerusform>
            <numerusform>„%1“ ist eine leere Liste. Ihre %n Einträge dennoch durch sie ersetzen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ihre %n Einträge durch die aus „%1“ ersetzen?</source>
        <translation>
            <numerusform>Ihren %n Eintrag durch die aus „%1“ ersetzen?</numerusform>
            <numerusform>Ihre %n Einträge durch die aus „%1“ ersetzen?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvCalendarEventListWidget</name>
    <message numerus="yes">
        <source>Die %n Einträge dieses Kalenders verschwinden. Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie sie wieder.</source>
        <translation>
            <numerusform>Der eine Eintrag dieses Kalenders verschwindet. Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie ihn wieder.</numerusform>
            <numerusform>Die %n Einträge dieses Kalenders verschwinden. Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie sie wieder.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvCalendarEventTransferDialog</name>
    <message numerus="yes">
        <source>%n Ihrer Einträge fehlen in diesem Kalender oder stehen dort anders. Was angekreuzt ist, kommt hinein; Ihre eigenen bleiben, wie sie sind.</source>
        <translation>
            <numerusform>%n Ihrer Einträge fehlt in diesem Kalender oder steht dort anders. Was angekreuzt ist, kommt hinein; Ihre eigenen bleiben, wie sie sind.</numerusform>
            <numerusform>%n Ihrer Einträge fehlen in diesem Kalender oder stehen dort anders. Was angekreuzt ist, kommt hinein; Ihre eigenen bleiben, wie sie sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge dieses Kalenders fehlen in Ihren eigenen oder stehen dort anders. Was angekreuzt ist, kommt hinein; der Kalender bleibt, wie er ist.</source>
        <translation>
            <numerusform>%n Eintrag dieses Kalenders fehlt in Ihren eigenen oder steht dort anders. Was angekreuzt ist, kommt hinein; der Kalender bleibt, wie er ist.</numerusform>
            <numerusform>%n Einträge dieses Kalenders fehlen in Ihren eigenen oder stehen dort anders. Was angekreuzt ist, kommt hinein; der Kalender bleibt, wie er ist.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvCardIntake</name>
    <message numerus="yes">
        <source>%n Visitenkarten haben kein Datum.</source>
        <translation>
            <numerusform>%n Visitenkarte hat kein Datum.</numerusform>
            <numerusform>%n Visitenkarten haben kein Datum.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvDiskAccessRequest</name>
    <message numerus="yes">
        <source>… und %n weitere Fotos.</source>
        <translation>
            <numerusform>… und %n weiteres Foto.</numerusform>
            <numerusform>… und %n weitere Fotos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntriesInput</name>
    <message numerus="yes">
        <source>%1: %n weitere ausgelassen</source>
        <translation>
            <numerusform>%1: %n weiterer ausgelassen</numerusform>
            <numerusform>%1: %n weitere ausgelassen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntryFileImport</name>
    <message numerus="yes">
        <source>%n Dateien ließen sich nicht lesen.</source>
        <translation>
            <numerusform>%n Datei ließ sich nicht lesen.</numerusform>
            <numerusform>%n Dateien ließen sich nicht lesen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntryList</name>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 von %n Einträgen</source>
        <translation>
            <numerusform>%1 von %n Eintrag</numerusform>
            <numerusform>%1 von %n Einträgen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ausgewählt</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntryShiftDialog</name>
    <message numerus="yes">
        <source>%n Einträge verschieben</source>
        <translation>
            <numerusform>%n Eintrag verschieben</numerusform>
            <numerusform>%n Einträge verschieben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvEntryTableDialog</name>
    <message numerus="yes">
        <source>%n Einträge am Anfang der Datei</source>
        <translation>
            <numerusform>%n Eintrag am Anfang der Datei</numerusform>
            <numerusform>%n Einträge am Anfang der Datei</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Zeilen werden ausgelassen:</source>
        <translation>
            <numerusform>%n Zeile wird ausgelassen:</numerusform>
            <numerusform>%n Zeilen werden ausgelassen:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvExportDialog</name>
    <message numerus="yes">
        <source>Schon vorhanden und ersetzt werden: %n Dateien.</source>
        <translation>
            <numerusform>Schon vorhanden und ersetzt wird: %n Datei.</numerusform>
            <numerusform>Schon vorhanden und ersetzt werden: %n Dateien.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvExportFlow</name>
    <message numerus="yes">
        <source>Export abgebrochen; fertig sind %n Dateien</source>
        <translation>
            <numerusform>Export abgebrochen; fertig ist %n Datei</numerusform>
            <numerusform>Export abgebrochen; fertig sind %n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Dateien in %1</source>
        <translation>
            <numerusform>%n Datei in %1</numerusform>
            <numerusform>%n Dateien in %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoCalendar</name>
    <message numerus="yes">
        <source>%n Fotos haben auf den Seiten keinen Platz gefunden</source>
        <translation>
            <numerusform>Ein Foto hat auf den Seiten keinen Platz gefunden</numerusform>
            <numerusform>%n Fotos haben auf den Seiten keinen Platz gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Rahmen bleiben leer; mehr Fotos oder ein Thema mit weniger Bildern je Seite füllen sie</source>
        <translation>
            <numerusform>Ein Rahmen bleibt leer; mehr Fotos oder ein Thema mit weniger Bildern je Seite füllen ihn</numerusform>
            <numerusform>%n Rahmen bleiben leer; mehr Fotos oder ein Thema mit weniger Bildern je Seite füllen sie</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoFlow</name>
    <message numerus="yes">
        <source>%n Fotos verteilt.</source>
        <translation>
            <numerusform>%n Foto verteilt.</numerusform>
            <numerusform>%n Fotos verteilt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos hinzugefügt.</source>
        <translation>
            <numerusform>%n Foto hinzugefügt.</numerusform>
            <numerusform>%n Fotos hinzugefügt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoPanel</name>
    <message numerus="yes">
        <source>%n Fotos</source>
        <translation>
            <numerusform>1 Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoPoolIntake</name>
    <message numerus="yes">
        <source>… und %n weitere</source>
        <translation>
            <numerusform>… und %n weiteres</numerusform>
            <numerusform>… und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Dateien sind keine Fotos.</source>
        <translation>
            <numerusform>%n Datei ist kein Foto.</numerusform>
            <numerusform>%n Dateien sind keine Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos waren schon da.</source>
        <translation>
            <numerusform>%n Foto war schon da.</numerusform>
            <numerusform>%n Fotos waren schon da.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoTray</name>
    <message numerus="yes">
        <source>%1 von %n Fotos auf den Seiten</source>
        <translation>
            <numerusform>%1 von %n Foto auf den Seiten</numerusform>
            <numerusform>%1 von %n Fotos auf den Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos sind auf Seiten und bleiben.</source>
        <translation>
            <numerusform>%n Foto ist auf einer Seite und bleibt.</numerusform>
            <numerusform>%n Fotos sind auf Seiten und bleiben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvFotoTrayModel</name>
    <message numerus="yes">
        <source>%1, %n-mal auf den Seiten</source>
        <translation>
            <numerusform>%1, einmal auf den Seiten</numerusform>
            <numerusform>%1, %n-mal auf den Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvGroupsDialog</name>
    <message numerus="yes">
        <source>%n Einträge gehören zu ihr. Sie bleiben im Kalender und verlieren nur diese Gruppe.</source>
        <translation>
            <numerusform>%n Eintrag gehört zu ihr. Er bleibt im Kalender und verliert nur diese Gruppe.</numerusform>
            <numerusform>%n Einträge gehören zu ihr. Sie bleiben im Kalender und verlieren nur diese Gruppe.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvHolidayTableReader</name>
    <message numerus="yes">
        <source> (und %n weitere Fehler in dieser Datei)</source>
        <translation>
            <numerusform> (und %n weiterer Fehler in dieser Datei)</numerusform>
            <numerusform> (und %n weitere Fehler in dieser Datei)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvICalendar</name>
    <message numerus="yes">
        <source>%n Zeilen sind nicht zu lesen, dies ist die erste</source>
        <translation>
            <numerusform>%n Zeile ist nicht zu lesen</numerusform>
            <numerusform>%n Zeilen sind nicht zu lesen, dies ist die erste</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvImportReport</name>
    <message numerus="yes">
        <source>%n Geburtstage importiert.</source>
        <translation>
            <numerusform>%n Geburtstag importiert.</numerusform>
            <numerusform>%n Geburtstage importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Alle %n Geburtstage waren schon da.</source>
        <translation>
            <numerusform>Der Geburtstag war schon da.</numerusform>
            <numerusform>Alle %n Geburtstage waren schon da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n waren schon da.</source>
        <translation>
            <numerusform>%n war schon da.</numerusform>
            <numerusform>%n waren schon da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Visitenkarten haben keinen Geburtstag.</source>
        <translation>
            <numerusform>%n Visitenkarte hat keinen Geburtstag.</numerusform>
            <numerusform>%n Visitenkarten haben keinen Geburtstag.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Visitenkarten mit Geburtstag haben keinen Namen.</source>
        <translation>
            <numerusform>%n Visitenkarte mit Geburtstag hat keinen Namen.</numerusform>
            <numerusform>%n Visitenkarten mit Geburtstag haben keinen Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Geburtstage stehen im Kalender, sind aber noch nicht gespeichert.</source>
        <translation>
            <numerusform>%n Geburtstag steht im Kalender, ist aber noch nicht gespeichert.</numerusform>
            <numerusform>%n Geburtstage stehen im Kalender, sind aber noch nicht gespeichert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvInspector</name>
    <message numerus="yes">
        <source>%n Rahmen</source>
        <translation>
            <numerusform>%n Rahmen</numerusform>
            <numerusform>%n Rahmen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvMissingFotos</name>
    <message numerus="yes">
        <source>%n Fotos sind nicht da oder lassen sich nicht lesen:</source>
        <translation>
            <numerusform>%n Foto ist nicht da oder lässt sich nicht lesen:</numerusform>
            <numerusform>%n Fotos sind nicht da oder lassen sich nicht lesen:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos gefunden</source>
        <translation>
            <numerusform>%n Foto gefunden</numerusform>
            <numerusform>%n Fotos gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos liegen nicht in diesem Ordner. Über Datei &gt; Fehlende Fotos suchen können Sie einen anderen zeigen.</source>
        <translation>
            <numerusform>%n Foto liegt nicht in diesem Ordner. Über Datei &gt; Fehlende Fotos suchen können Sie einen anderen zeigen.</numerusform>
            <numerusform>%n Fotos liegen nicht in diesem Ordner. Über Datei &gt; Fehlende Fotos suchen können Sie einen anderen zeigen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvNewCalendarDialog</name>
    <message numerus="yes">
        <source>„%1“ und %n weitere</source>
        <translation>
            <numerusform>„%1“ und %n weiteres</numerusform>
            <numerusform>„%1“ und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvPrintFindingList</name>
    <message numerus="yes">
        <source>%n Stellen; ein Dreieck steht vor denen, die jeder sieht.</source>
        <translation>
            <numerusform>Eine Stelle; ein Dreieck steht vor denen, die jeder sieht.</numerusform>
            <numerusform>%n Stellen; ein Dreieck steht vor denen, die jeder sieht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvProjectEntries</name>
    <message numerus="yes">
        <source>Der Kalender hat jetzt seine eigenen Einträge: %n aus Ihren Einträgen stehen darin. Was Sie in anderen Kalendern ändern, ändert hier nichts mehr.</source>
        <translation>
            <numerusform>Der Kalender hat jetzt seine eigenen Einträge: %n aus Ihren Einträgen steht darin. Was Sie in anderen Kalendern ändern, ändert hier nichts mehr.</numerusform>
            <numerusform>Der Kalender hat jetzt seine eigenen Einträge: %n aus Ihren Einträgen stehen darin. Was Sie in anderen Kalendern ändern, ändert hier nichts mehr.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvRenderEntries</name>
    <message numerus="yes">
        <source>%1: %n weitere nicht gedruckt; --report json nennt alle</source>
        <translation>
            <numerusform>%1: %n weiterer nicht gedruckt; --report json nennt alle</numerusform>
            <numerusform>%1: %n weitere nicht gedruckt; --report json nennt alle</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvRenderReport</name>
    <message numerus="yes">
        <source>%n weitere Fotos werden grob; --report json nennt alle</source>
        <translation>
            <numerusform>%n weiteres Foto wird grob; --report json nennt alle</numerusform>
            <numerusform>%n weitere Fotos werden grob; --report json nennt alle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Fotos mit weniger als %1 Pixeln je Zoll; --report json nennt sie</source>
        <translation>
            <numerusform>%n Foto mit weniger als %1 Pixeln je Zoll; --report json nennt es</numerusform>
            <numerusform>%n Fotos mit weniger als %1 Pixeln je Zoll; --report json nennt sie</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvRestoreEntriesDialog</name>
    <message numerus="yes">
        <source>%n Einträge</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvSheetPlan</name>
    <message numerus="yes">
        <source>%n Blätter (%1), </source>
        <translation>
            <numerusform>%n Blatt (%1), </numerusform>
            <numerusform>%n Blätter (%1), </numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvStudioStatusBar</name>
    <message numerus="yes">
        <source>%n Texte ohne Platz</source>
        <translation>
            <numerusform>%n Text ohne Platz</numerusform>
            <numerusform>%n Texte ohne Platz</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Hinweise zum Druck</source>
        <translation>
            <numerusform>%n Hinweis zum Druck</numerusform>
            <numerusform>%n Hinweise zum Druck</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MvTemplatesCommand</name>
    <message numerus="yes">
        <source>%n Fotos</source>
        <translation>
            <numerusform>1 Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
</context>
</TS>
