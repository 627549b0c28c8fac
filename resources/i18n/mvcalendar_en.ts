<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
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
    <name>MvCalendarEventFile</name>
    <message numerus="yes">
        <source>%1: %n Foto(s) liegen außerhalb der erlaubten Ordner und werden nicht geladen, zuerst %2</source>
        <translation>
            <numerusform>%1: %n photo lies outside the permitted folders and is not loaded: %2</numerusform>
            <numerusform>%1: %n photos lie outside the permitted folders and are not loaded, the first being %2</numerusform>
        </translation>
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
    <name>MvCalendarEventRegistry</name>
    <message>
        <source>%1 ist nicht vollständig lesbar und ließ sich nicht beiseitelegen. Es wurde nichts überschrieben.</source>
        <translation>%1 cannot be read completely and could not be put aside. Nothing was overwritten.</translation>
    </message>
    <message>
        <source>%1 von %2 Einträgen mit Geburtstagen importiert</source>
        <translation>%1 of %2 entries with birthdays imported</translation>
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
    <name>MvCalendariumRenderer</name>
    <message>
        <source>%1 %2</source>
        <comment>%1 = Monat, %2 = Jahr. Englische Version wahrscheinlich: &apos;%2 %1&apos;</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>MvCalendariumRendererHolidays</name>
    <message>
        <source>d.M</source>
        <comment>Format of Days: d means day, M means Month, yy means Jear</comment>
        <translation>d.M</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1/%2: %3</source>
        <translation>%1/%2: %3</translation>
    </message>
    <message>
        <source>%1-%2: %3</source>
        <translation>%1-%2: %3</translation>
    </message>
</context>
<context>
    <name>MvCalendariumRendererOneDayPerRow</name>
    <message>
        <source>%1 %2</source>
        <comment>flip 1 and 2 to write &apos;1 KW&apos; instead of &apos;KW 1&apos; </comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>MvCalendariumRendererYear</name>
    <message>
        <source>Schuljahr %1</source>
        <translation>Schuljahr %1</translation>
    </message>
</context>
<context>
    <name>MvCalendariumRendererYearOnly</name>
    <message>
        <source>Schuljahr </source>
        <translation>Schuljahr </translation>
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
        <source>Rückgabewerte: 0 fertig; 1 etwas ließ sich nicht lesen oder schreiben; 2 der Aufruf war falsch.</source>
        <translation>Exit codes: 0 done; 1 something could not be read or written; 2 the call was wrong.</translation>
    </message>
    <message>
        <source>Optionen:</source>
        <translation>Options:</translation>
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
    <name>MvFileNamePattern</name>
    <message>
        <source>%1: unbekannter Platzhalter; erlaubt sind %m (Monat), %y (Jahr), %n (Seite) und %% (Prozentzeichen)</source>
        <translation>%1: unknown placeholder; allowed are %m (month), %y (year), %n (page) and %% (percent sign)</translation>
    </message>
    <message>
        <source>%1: bei %2 Seiten braucht der Dateiname einen Platzhalter, der sie unterscheidet: %n (Seite), %m (Monat) oder %y-%m</source>
        <translation>%1: with %2 pages the file name needs a placeholder that tells them apart: %n (page), %m (month) or %y-%m</translation>
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
</context>
<context>
    <name>MvNearMiss</name>
    <message>
        <source> – meinten Sie „%1“?</source>
        <translation> – did you mean “%1”?</translation>
    </message>
</context>
<context>
    <name>MvOutputTarget</name>
    <message>
        <source>%1: die Endung muss .pdf, .png oder .svg sein</source>
        <translation>%1: the name must end in .pdf, .png or .svg</translation>
    </message>
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
    <name>MvPdfBoxes</name>
    <message>
        <source>Die Zwischendatei ist unvollständig</source>
        <translation>The intermediate file is incomplete</translation>
    </message>
</context>
<context>
    <name>MvPdfExporter</name>
    <message>
        <source>Die Seiten lassen sich nicht zeichnen</source>
        <translation>The pages cannot be drawn</translation>
    </message>
    <message>
        <source>Seite %1 lässt sich nicht anlegen</source>
        <translation>Page %1 cannot be created</translation>
    </message>
</context>
<context>
    <name>MvPngExporter</name>
    <message>
        <source>%1 Punkte je Zoll gehen nicht; erlaubt sind %2 bis %3</source>
        <translation>%1 dots per inch are not possible; allowed are %2 to %3</translation>
    </message>
    <message>
        <source>Die Seite wäre %1 × %2 Bildpunkte groß; erlaubt sind %3 je Seite</source>
        <translation>The page would be %1 × %2 pixels large; allowed are %3 per page</translation>
    </message>
    <message>
        <source>Der Speicher reicht nicht für eine Seite</source>
        <translation>There is not enough memory for a page</translation>
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
</context>
<context>
    <name>MvRenderCommand</name>
    <message>
        <source>--%1 „%2“: erlaubt sind %3</source>
        <translation>--%1 “%2”: allowed are %3</translation>
    </message>
    <message>
        <source>Kalender %1</source>
        <translation>Calendar %1</translation>
    </message>
    <message>
        <source>Kalender %1 bis %2</source>
        <translation>Calendar %1 to %2</translation>
    </message>
    <message>
        <source>druckt einen Kalender in Dateien</source>
        <translation>prints a calendar into files</translation>
    </message>
    <message>
        <source>Januar bis Dezember dieses Jahres (das kommende)</source>
        <translation>January to December of this year (the coming one)</translation>
    </message>
    <message>
        <source>erster Monat, statt --year</source>
        <translation>first month, instead of --year</translation>
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
        <source>Spalten einer Tagesliste, mit Kommas getrennt, statt der des Layouts</source>
        <translation>columns of a list of days, separated by commas, instead of those of the layout</translation>
    </message>
    <message>
        <source>Schriftfamilie statt der des Layouts</source>
        <translation>font family instead of that of the layout</translation>
    </message>
    <message>
        <source>A0 bis A6 oder Breite und Höhe in Millimetern, 300x200 (A4)</source>
        <translation>A0 to A6, or width and height in millimetres, 300x200 (A4)</translation>
    </message>
    <message>
        <source>Querformat (so bei A0 bis A6)</source>
        <translation>landscape (as A0 to A6 are)</translation>
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
        <source>persönliche Einträge aus dieser Datei</source>
        <translation>personal entries from this file</translation>
    </message>
    <message>
        <source>die eigenen persönlichen Einträge</source>
        <translation>your own personal entries</translation>
    </message>
    <message>
        <source>Titel der Dateien (Kalender 2027)</source>
        <translation>title of the files (Calendar 2027)</translation>
    </message>
    <message>
        <source>Verfasser im PDF</source>
        <translation>author in the PDF</translation>
    </message>
    <message>
        <source>Punkte je Zoll der PNG-Dateien (300)</source>
        <translation>dots per inch of the PNG files (300)</translation>
    </message>
    <message>
        <source>json: gibt statt der Dateinamen ein JSON-Objekt aus, das Dateien und Texte ohne Platz nennt</source>
        <translation>json: instead of the file names, prints a JSON object that names files and texts without room</translation>
    </message>
    <message>
        <source>-o: .pdf, oder .png und .svg je Seite; %m Monat, %y Jahr, %n Seite; mehrfach erlaubt</source>
        <translation>-o: .pdf, or .png and .svg for each page; %m month, %y year, %n page; may be repeated</translation>
    </message>
    <message>
        <source>es fehlt -o DATEI; erlaubt sind Namen auf .pdf, .png oder .svg</source>
        <translation>-o FILE is missing; allowed are names that end in .pdf, .png or .svg</translation>
    </message>
    <message>
        <source>--page „%1“: erlaubt sind %2 oder Breite und Höhe in Millimetern wie 300x200 (20 bis 3000)</source>
        <translation>--page “%1”: allowed are %2, or width and height in millimetres such as 300x200 (20 to 3000)</translation>
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
        <source>%1: keine Einträge gefunden</source>
        <translation>%1: no entries found</translation>
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
        <source>JAHR</source>
        <translation>YEAR</translation>
    </message>
    <message>
        <source>JAHR-MONAT</source>
        <translation>YEAR-MONTH</translation>
    </message>
    <message>
        <source>ZAHL</source>
        <translation>NUMBER</translation>
    </message>
    <message>
        <source>NAMEN</source>
        <translation>NAMES</translation>
    </message>
    <message>
        <source>FAMILIE</source>
        <translation>FAMILY</translation>
    </message>
    <message>
        <source>DATEI</source>
        <translation>FILE</translation>
    </message>
</context>
<context>
    <name>MvRenderReport</name>
    <message>
        <source>Texte ohne Platz: %1, der erste am %2; --report json nennt alle</source>
        <translation>texts without room: %1, the first on %2; --report json names all</translation>
    </message>
</context>
<context>
    <name>MvSafeFileWriter</name>
    <message>
        <source>%1 konnte nicht gespeichert werden: %2</source>
        <translation>%1 could not be saved: %2</translation>
    </message>
    <message>
        <source>Die bisherige Fassung ist nicht lesbar.</source>
        <translation>The previous version cannot be read.</translation>
    </message>
    <message>
        <source>Von der bisherigen Fassung lässt sich keine Sicherung anlegen.</source>
        <translation>No backup of the previous version can be made.</translation>
    </message>
    <message>
        <source>Die bisherige Fassung liegt in %1.</source>
        <translation>The previous version is in %1.</translation>
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
</context>
<context>
    <name>MvSchemaListCommand</name>
    <message>
        <source>zählt die Layouts auf</source>
        <translation>lists the layouts</translation>
    </message>
    <message>
        <source>zählt die Farbschemata auf</source>
        <translation>lists the colour schemes</translation>
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
</context>
<context>
    <name>MvXMLLoader</name>
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
        <source>Die Datei gibt es nicht.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Die Datei darf nicht gelesen werden.</source>
        <translation>The file may not be read.</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>This is not a regular file.</translation>
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
</context>
</TS>
