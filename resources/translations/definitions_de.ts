<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Country</name>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dänemark</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norwegen</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Schweden</translation>
    </message>
    <message>
        <source>United Kingdom (England and Wales)</source>
        <translation>Großbritannien (England und Wales)</translation>
    </message>
    <message>
        <source>United Kingdom (Northern Ireland)</source>
        <translation>Großbritannien (Nordirland)</translation>
    </message>
    <message>
        <source>United Kingdom (Scotland)</source>
        <translation>Großbritannien (Schottland)</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Österreich</translation>
    </message>
    <message>
        <source>Germany (Baden-Wuerttemberg)</source>
        <translation>Deutschland (Baden-Württemberg)</translation>
    </message>
    <message>
        <source>Germany (Bavaria)</source>
        <translation>Deutschland (Bayern)</translation>
    </message>
    <message>
        <source>Germany (Berlin)</source>
        <translation>Deutschland (Berlin)</translation>
    </message>
    <message>
        <source>Germany (Brandenburg)</source>
        <translation>Deutschland (Brandenburg)</translation>
    </message>
    <message>
        <source>Germany (Bremen)</source>
        <translation>Deutschland (Bremen)</translation>
    </message>
    <message>
        <source>Germany (Hamburg)</source>
        <translation>Deutschland (Hamburg)</translation>
    </message>
    <message>
        <source>Germany (Hesse)</source>
        <translation>Deutschland (Hessen)</translation>
    </message>
    <message>
        <source>Germany (Mecklenburg-Western Pomerania)</source>
        <translation>Deutschland (Mecklenburg-Vorpommern)</translation>
    </message>
    <message>
        <source>Germany (Lower Saxony)</source>
        <translation>Deutschland (Niedersachsen)</translation>
    </message>
    <message>
        <source>Germany (North Rhine-Westphalia)</source>
        <translation>Deutschland (Nordrhein-Westfalen)</translation>
    </message>
    <message>
        <source>Germany (Rhineland-Palatinate)</source>
        <translation>Deutschland (Rheinland-Pfalz)</translation>
    </message>
    <message>
        <source>Germany (Saarland)</source>
        <translation>Deutschland (Saarland)</translation>
    </message>
    <message>
        <source>Germany (Saxony)</source>
        <translation>Deutschland (Sachsen)</translation>
    </message>
    <message>
        <source>Germany (Saxony-Anhalt)</source>
        <translation>Deutschland (Sachsen-Anhalt)</translation>
    </message>
    <message>
        <source>Germany (Schleswig-Holstein)</source>
        <translation>Deutschland (Schleswig-Holstein)</translation>
    </message>
    <message>
        <source>Germany (Thuringia)</source>
        <translation>Deutschland (Thüringen)</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Schweiz</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalender (*.cal);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>Ändern von „%1“</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>Choose a type.</source>
        <translation>Wählen Sie einen Typ.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The choice could not be stored in %1.</source>
        <translation>Die Wahl konnte nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>the text has characters that can&apos;t be stored</source>
        <translation>der Text hat Zeichen, die nicht gespeichert werden können</translation>
    </message>
    <message>
        <source>a text of more than 65535 bytes can&apos;t be stored</source>
        <translation>ein Text von mehr als 65535 Byte kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>a date-time lies outside the years 100 to 9999</source>
        <translation>ein Zeitpunkt liegt außerhalb der Jahre 100 bis 9999</translation>
    </message>
    <message>
        <source>a date lies outside the years 100 to 9999</source>
        <translation>ein Datum liegt außerhalb der Jahre 100 bis 9999</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>the number %1 does not fit %2 bits</source>
        <translation>die Zahl %1 passt nicht in %2 Bit</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number from 0 to %3</source>
        <translation>%1: „%2“ ist keine Zahl von 0 bis %3</translation>
    </message>
    <message>
        <source>%1: the range &quot;%2&quot; ends before it begins</source>
        <translation>%1: Der Bereich „%2“ endet vor seinem Anfang</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not red,green,blue</source>
        <translation>%1: „%2“ ist nicht Rot,Grün,Blau</translation>
    </message>
    <message>
        <source>a rule has six fields (tag | categories | areas | text colour | background | fade), this line has %1</source>
        <translation>eine Regel hat sechs Felder (Variable | Kategorien | Bereiche | Textfarbe | Hintergrund | Abtönung), diese Zeile hat %1</translation>
    </message>
    <message>
        <source>fade</source>
        <translation>Abtönung</translation>
    </message>
    <message>
        <source>tag: it is empty; &quot;*&quot; stands for every tag</source>
        <translation>Variable: Das Feld ist leer; „*“ steht für jede Variable</translation>
    </message>
    <message>
        <source>tag: it must not hold &quot;|&quot;</source>
        <translation>Variable: Das Feld darf kein „|“ enthalten</translation>
    </message>
    <message>
        <source>tag: it must not begin with &quot;#&quot;; write &quot;?&quot; for it</source>
        <translation>Variable: Das Feld darf nicht mit „#“ beginnen; schreiben Sie dafür „?“</translation>
    </message>
    <message>
        <source>text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>fade: it is not a number from 0 to 255</source>
        <translation>Abtönung: keine Zahl von 0 bis 255</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>a date lies outside the calendar&apos;s years 2000 to 2039</source>
        <translation>ein Datum liegt außerhalb der Jahre 2000 bis 2039 des Kalenders</translation>
    </message>
    <message>
        <source>period %1 of day type %2 goes from minute %3 to minute %4</source>
        <translation>Zeitraum %1 des Tagestyps %2 geht von Minute %3 bis Minute %4</translation>
    </message>
    <message>
        <source>the active flag of day type %1 is %2</source>
        <translation>der Aktiv-Merker des Tagestyps %1 ist %2</translation>
    </message>
    <message>
        <source>the group flag of day type %1 is %2</source>
        <translation>der Gruppen-Merker des Tagestyps %1 ist %2</translation>
    </message>
    <message>
        <source>the number of periods of day type %1 is %2</source>
        <translation>die Anzahl der Zeiträume des Tagestyps %1 ist %2</translation>
    </message>
    <message>
        <source>it ends within the %2 periods of day type %1</source>
        <translation>sie endet inmitten der %2 Zeiträume des Tagestyps %1</translation>
    </message>
    <message>
        <source>the row of day type %1 is %2</source>
        <translation>die Zeile des Tagestyps %1 ist %2</translation>
    </message>
    <message>
        <source>it has %1 bytes, and a schedule at least 186</source>
        <translation>sie hat %1 Byte, ein Zeitprogramm hat mindestens 186</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>ihr Ende fehlt</translation>
    </message>
    <message>
        <source>the calendar flag is %1</source>
        <translation>der Kalender-Merker ist %1</translation>
    </message>
    <message>
        <source>it goes on behind the schedule&apos;s %1 bytes</source>
        <translation>sie geht hinter den %1 Byte des Zeitprogramms weiter</translation>
    </message>
    <message>
        <source>it has %1 bytes in place of 29220</source>
        <translation>sie hat %1 Byte anstelle von 29220</translation>
    </message>
    <message>
        <source>the value of %1 is %2, not one of 0 to 23</source>
        <translation>der Wert von %1 ist %2, keiner von 0 bis 23</translation>
    </message>
    <message>
        <source>%1 is not a time schedule: %2.</source>
        <translation>Die Datei %1 ist kein Zeitprogramm: %2.</translation>
    </message>
    <message>
        <source>%1 is not a calendar: %2.</source>
        <translation>Die Datei %1 ist kein Kalender: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 8, 0830 or 16:30.</source>
        <translation>„%1“ ist keine Uhrzeit wie 8, 0830 oder 16:30.</translation>
    </message>
    <message>
        <source>The time is missing.</source>
        <translation>Die Uhrzeit fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 59 minutes.</source>
        <translation>„%1“ hat mehr als 59 Minuten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies behind 24:00.</source>
        <translation>„%1“ liegt nach 24:00.</translation>
    </message>
    <message>
        <source>a file of %1 bytes is no definition</source>
        <translation>eine Datei von %1 Byte ist keine Definition</translation>
    </message>
    <message>
        <source>all numbers for new files are taken</source>
        <translation>alle Nummern für neue Dateien sind vergeben</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; (version %3 -&gt; %4)</source>
        <translation>%1 &apos;%2&apos; (Version %3 -&gt; %4)</translation>
    </message>
    <message>
        <source>%1 Err:%2</source>
        <translation>%1 Fehler: %2</translation>
    </message>
    <message>
        <source>the file ends too early, at its byte %1</source>
        <translation>die Datei endet zu früh, bei Byte %1</translation>
    </message>
    <message>
        <source>It has the same number as %1; rename one of them.</source>
        <translation>Sie hat dieselbe Nummer wie %1; benennen Sie eine davon um.</translation>
    </message>
    <message>
        <source>The file has %1 bytes: it is empty.</source>
        <translation>Die Datei hat %1 Byte: Sie ist leer.</translation>
    </message>
    <message>
        <source>The file is damaged: it ends too early or holds a value that is none.</source>
        <translation>Die Datei ist beschädigt: Sie endet zu früh oder enthält einen ungültigen Wert.</translation>
    </message>
    <message>
        <source>The file&apos;s version is %1, not one of %2 to %3.</source>
        <translation>Die Version der Datei ist %1, keine von %2 bis %3.</translation>
    </message>
    <message>
        <source>the profile has no time schedule</source>
        <translation>das Profil hat kein Zeitprogramm</translation>
    </message>
    <message>
        <source>the type id &quot;%1&quot; is not a whole number from 0 to 32767</source>
        <translation>die Typnummer „%1“ ist keine ganze Zahl von 0 bis 32767</translation>
    </message>
    <message>
        <source>the settings file &quot;%1&quot; is not the plain name of a file of the application folder</source>
        <translation>die Einstellungsdatei „%1“ ist nicht nur der Name einer Datei im Programmordner</translation>
    </message>
    <message>
        <source>a line has three or four fields (id; kind; name; settings file), this one has %1</source>
        <translation>eine Zeile hat drei oder vier Felder (Nummer; Art; Name; Einstellungsdatei), diese hat %1</translation>
    </message>
    <message>
        <source>the kind is empty</source>
        <translation>die Art ist leer</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>the type id %1 stands on an earlier line too</source>
        <translation>die Typnummer %1 steht schon in einer früheren Zeile</translation>
    </message>
    <message>
        <source>the table is full: it has room for %1 types</source>
        <translation>die Tabelle ist voll: Sie fasst %1 Typen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>„%1“ ist kein Wert des Typs %2</translation>
    </message>
    <message>
        <source>a value has the unknown type code %1</source>
        <translation>ein Wert hat die unbekannte Typkennzahl %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>null</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>whole number (16 bits)</source>
        <translation>ganze Zahl (16 Bit)</translation>
    </message>
    <message>
        <source>whole number (32 bits)</source>
        <translation>ganze Zahl (32 Bit)</translation>
    </message>
    <message>
        <source>number (single)</source>
        <translation>Zahl (einfache Genauigkeit)</translation>
    </message>
    <message>
        <source>number (double)</source>
        <translation>Zahl (doppelte Genauigkeit)</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>Ja oder Nein</translation>
    </message>
    <message>
        <source>whole number (8 bits)</source>
        <translation>ganze Zahl (8 Bit)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>no ordinary file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>larger than 64 MB</source>
        <translation>größer als 64 MB</translation>
    </message>
    <message>
        <source>%1: a link that another user made is not followed</source>
        <translation>%1: Einem Link, den ein anderer Benutzer angelegt hat, wird nicht gefolgt</translation>
    </message>
    <message>
        <source>%1: leads in a circle</source>
        <translation>%1: führt im Kreis</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>die Datei oder der Ordner fehlt</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>ist schon vorhanden</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>die Festplatte ist voll</translation>
    </message>
    <message>
        <source>the access rights don&apos;t allow it</source>
        <translation>die Zugriffsrechte erlauben es nicht</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>die Festplatte ist schreibgeschützt</translation>
    </message>
    <message>
        <source>a part of the path is not a folder</source>
        <translation>ein Teil des Pfades ist kein Ordner</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>the disk has failed</source>
        <translation>die Festplatte hat einen Fehler</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day such as 2026-12-24, or 12-24 for every year</source>
        <translation>„%1“ ist kein Tag wie 2026-12-24, oder 12-24 für jedes Jahr</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies outside the years %2 to %3</source>
        <translation>„%1“ liegt außerhalb der Jahre %2 bis %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day of the calendar</source>
        <translation>„%1“ ist kein Tag des Kalenders</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: give both days a year, or none of them</source>
        <translation>„%1“: geben Sie beiden Tagen ein Jahr oder keinem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins</source>
        <translation>„%1“ endet, bevor es beginnt</translation>
    </message>
    <message>
        <source>a holiday has two fields (day | name), this line has %1</source>
        <translation>ein Feiertag hat zwei Felder (Tag | Name), diese Zeile hat %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no last day</source>
        <translation>„%1“ hat keinen letzten Tag</translation>
    </message>
    <message>
        <source>the name must not hold &quot;|&quot;</source>
        <translation>der Name darf kein „|“ enthalten</translation>
    </message>
</context>
<context>
    <name>cDayTypeImages</name>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Half day</source>
        <translation>Halber Tag</translation>
    </message>
    <message>
        <source>Fir tree</source>
        <translation>Tannenbaum</translation>
    </message>
    <message>
        <source>Egg</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flagge</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Mond</translation>
    </message>
    <message>
        <source>Snowflake</source>
        <translation>Schneeflocke</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>Suitcase</source>
        <translation>Koffer</translation>
    </message>
    <message>
        <source>Wrench</source>
        <translation>Schraubenschlüssel</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Buch</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>Regenschirm</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Glocke</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Music note</source>
        <translation>Musiknote</translation>
    </message>
    <message>
        <source>Cup</source>
        <translation>Tasse</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Haus</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>Rakete</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
</context>
<context>
    <name>cDayTypeNames</name>
    <message>
        <source>Special day type %1</source>
        <translation>Sondertagestyp %1</translation>
    </message>
    <message>
        <source>No special day type</source>
        <translation>Kein Sondertagestyp</translation>
    </message>
</context>
<context>
    <name>cDefinitionActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Make a new one</source>
        <translation>Einen neuen Eintrag anlegen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Make a copy of the chosen one</source>
        <translation>Den gewählten Eintrag kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the chosen one</source>
        <translation>Den gewählten Eintrag löschen</translation>
    </message>
    <message>
        <source>Sa&amp;ve this</source>
        <translation>&amp;Diesen speichern</translation>
    </message>
    <message>
        <source>Save the chosen one; Ctrl+S saves all</source>
        <translation>Den gewählten Eintrag speichern; Strg+S speichert alle</translation>
    </message>
    <message>
        <source>R&amp;evert</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Give up the changes of the chosen one</source>
        <translation>Die Änderungen des gewählten Eintrags verwerfen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation>In der Liste suchen</translation>
    </message>
</context>
<context>
    <name>cDialogPrompts</name>
    <message>
        <source>%1 has changes. Save them?</source>
        <translation>%1 enthält Änderungen. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Meine behalten</translation>
    </message>
    <message>
        <source>&amp;Take theirs</source>
        <translation>&amp;Andere übernehmen</translation>
    </message>
    <message>
        <source>&amp;Show both</source>
        <translation>&amp;Beide zeigen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Write again</source>
        <translation>&amp;Neu schreiben</translation>
    </message>
    <message>
        <source>&amp;Remove here</source>
        <translation>&amp;Hier entfernen</translation>
    </message>
    <message>
        <source>Another program has changed the file of &quot;%1&quot; since it was read here. Keep your version, take the one in the file, or show both?</source>
        <translation>Ein anderes Programm hat die Datei von „%1“ geändert, seit sie hier gelesen wurde. Möchten Sie Ihre Fassung behalten, die der Datei übernehmen oder beide zeigen?</translation>
    </message>
    <message>
        <source>Another program has removed the file of &quot;%1&quot;. Write it again, or remove it here too?</source>
        <translation>Ein anderes Programm hat die Datei von „%1“ entfernt. Möchten Sie sie neu schreiben oder den Eintrag auch hier entfernen?</translation>
    </message>
</context>
<context>
    <name>vigrel::cActiveDayView</name>
    <message>
        <source>No&amp;w</source>
        <translation>J&amp;etzt</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>Dat&amp;um:</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>Uhr&amp;zeit:</translation>
    </message>
    <message>
        <source>Day type: %1, by the calendar</source>
        <translation>Tagestyp: %1, nach dem Kalender</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar gives %2, which the schedule doesn&apos;t use</source>
        <translation>Tagestyp: %1, nach dem Wochentag: der Kalender nennt %2, und den benutzt das Zeitprogramm nicht</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar says nothing of the date</source>
        <translation>Tagestyp: %1, nach dem Wochentag: der Kalender sagt nichts über das Datum</translation>
    </message>
    <message>
        <source>%1: active until %2</source>
        <translation>%1: aktiv bis %2</translation>
    </message>
    <message>
        <source>%1: not active until %2</source>
        <translation>%1: nicht aktiv bis %2</translation>
    </message>
    <message>
        <source>In a group with: %1</source>
        <translation>In einer Gruppe mit: %1</translation>
    </message>
    <message>
        <source>Periods: %1</source>
        <translation>Zeiträume: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>The schedule doesn&apos;t use this day type: nothing is active.</source>
        <translation>Das Zeitprogramm benutzt diesen Tagestyp nicht: Nichts ist aktiv.</translation>
    </message>
    <message>
        <source>The profile doesn&apos;t use its schedule.</source>
        <translation>Das Profil benutzt sein Zeitprogramm nicht.</translation>
    </message>
    <message>
        <source>The day&apos;s 24 hours</source>
        <translation>Die 24 Stunden des Tages</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: no calendar is open</source>
        <translation>Tagestyp: %1, nach dem Wochentag: kein Kalender ist geöffnet</translation>
    </message>
</context>
<context>
    <name>vigrel::cAlarmPreview</name>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Text that is the tag</source>
        <translation>Text, der die Variable ist</translation>
    </message>
    <message>
        <source>Alarms of the station</source>
        <translation>Alarme der Station</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Variable:</translation>
    </message>
    <message>
        <source>The station has no alarms yet.</source>
        <translation>Die Station hat noch keine Alarme.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>vigrel::cCalendarEditor</name>
    <message>
        <source>Show the day&apos;s &amp;periods</source>
        <translation>Ze&amp;iträume des Tages zeigen</translation>
    </message>
    <message>
        <source>Choose a day type and paint it over the days with the left mouse button.</source>
        <translation>Wählen Sie einen Tagestyp und übermalen Sie damit die Tage mit der linken Maustaste.</translation>
    </message>
    <message>
        <source>Previous month (Page Up)</source>
        <translation>Voriger Monat (Bild auf)</translation>
    </message>
    <message>
        <source>Next month (Page Down)</source>
        <translation>Nächster Monat (Bild ab)</translation>
    </message>
    <message>
        <source>To&amp;day</source>
        <translation>H&amp;eute</translation>
    </message>
    <message>
        <source>The month of today (Home)</source>
        <translation>Aktueller Monat (Pos1)</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Day &amp;type to paint</source>
        <translation>&amp;Tagestyp zum Malen</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>&amp;Feiertage</translation>
    </message>
    <message>
        <source>T&amp;ime schedule</source>
        <translation>&amp;Zeitprogramm</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Give the year&apos;s &amp;holidays the chosen day type</source>
        <translation>Feiertagen &amp;des Jahres den gewählten Tagestyp geben</translation>
    </message>
    <message>
        <source>Give &amp;all years&apos; holidays the chosen day type</source>
        <translation>&amp;Feiertagen aller Jahre den gewählten Tagestyp geben</translation>
    </message>
    <message>
        <source>&amp;Clear the year</source>
        <translation>&amp;Jahr leeren</translation>
    </message>
    <message>
        <source>Arrow keys choose a day, Space paints the day type</source>
        <translation>Pfeiltasten wählen einen Tag, die Leertaste malt den Tagestyp</translation>
    </message>
    <message>
        <source>painting days</source>
        <translation>Malen von Tagen</translation>
    </message>
    <message>
        <source>painting holidays</source>
        <translation>Malen von Feiertagen</translation>
    </message>
    <message>
        <source>Painted holidays: %1 (%2)</source>
        <translation>Gemalte Feiertage: %1 (%2)</translation>
    </message>
    <message>
        <source>clearing a year</source>
        <translation>Leeren eines Jahres</translation>
    </message>
    <message>
        <source>clearing the calendar</source>
        <translation>Leeren des Kalenders</translation>
    </message>
    <message>
        <source>Cop&amp;y the year to the next</source>
        <translation>Jahr ins &amp;nächste kopieren</translation>
    </message>
    <message>
        <source>copying a year</source>
        <translation>Kopieren eines Jahres</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>Jah&amp;r</translation>
    </message>
    <message>
        <source>The whole year on one page</source>
        <translation>Das ganze Jahr auf einer Seite</translation>
    </message>
    <message>
        <source>There are no holidays: choose their country, or write your own.</source>
        <translation>Es gibt keine Feiertage: wählen Sie ihr Land, oder schreiben Sie eigene.</translation>
    </message>
    <message>
        <source>%1 is the last year of a calendar: there is none to copy it to.</source>
        <translation>%1 ist das letzte Jahr eines Kalenders: Es gibt keines, in das es kopiert werden könnte.</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourPreview</name>
    <message>
        <source>Tags to try</source>
        <translation>Variablen zum Ausprobieren</translation>
    </message>
    <message>
        <source>Tags to try, one a line</source>
        <translation>Variablen zum Ausprobieren, eine je Zeile</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Every other row</source>
        <translation>Jede zweite Zeile</translation>
    </message>
    <message>
        <source>Flashing</source>
        <translation>Blinkend</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Kategorie:</translation>
    </message>
    <message>
        <source>Are&amp;a:</source>
        <translation>B&amp;ereich:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Hard to read, by rule and least contrast (%1 is readable): %2</source>
        <translation>Schwer lesbar, Regel und geringster Kontrast (%1 ist lesbar): %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Typed tags</source>
        <translation>Getippte Variablen</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesEditor</name>
    <message>
        <source>&amp;Add rule</source>
        <translation>Regel &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete rule</source>
        <translation>Regel &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Move up</source>
        <translation>&amp;Nach oben</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Choose colour...</source>
        <translation>&amp;Farbe wählen...</translation>
    </message>
    <message>
        <source>Colour rules, tried from the first to the last</source>
        <translation>Farbregeln, von der ersten bis zur letzten geprüft</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Abtönung</translation>
    </message>
    <message>
        <source>A pattern: &quot;?&quot; is one character, &quot;*&quot; any run; case counts</source>
        <translation>Ein Muster: „?“ ist ein Zeichen, „*“ beliebig viele; Groß- und Kleinschreibung zählt</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 255, such as 5;7-9, or * for all</source>
        <translation>Zahlen und Bereiche von 0 bis 255, etwa 5;7-9, oder * für alle</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 999, such as 5;7-9, or * for all</source>
        <translation>Zahlen und Bereiche von 0 bis 999, etwa 5;7-9, oder * für alle</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 255,255,255</source>
        <translation>Rot, Grün und Blau von 0 bis 255, etwa 255,255,255</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 200,0,0</source>
        <translation>Rot, Grün und Blau von 0 bis 255, etwa 200,0,0</translation>
    </message>
    <message>
        <source>By how much every other row is darker, from 0 to 255</source>
        <translation>Um wie viel jede zweite Zeile dunkler ist, von 0 bis 255</translation>
    </message>
    <message>
        <source>Change rule</source>
        <translation>Ändern einer Regel</translation>
    </message>
    <message>
        <source>Add rule</source>
        <translation>Hinzufügen einer Regel</translation>
    </message>
    <message>
        <source>Delete rule</source>
        <translation>Löschen einer Regel</translation>
    </message>
    <message>
        <source>Move rule</source>
        <translation>Verschieben einer Regel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Gives the text of these rules the nearest colour that can be read</source>
        <translation>Gibt dem Text dieser Regeln die nächste lesbare Farbe</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>The least of text and ground: 4.5 is readable, 21 black on white</source>
        <translation>Der kleinste von Text und Grund: 4,5 ist lesbar, 21 Schwarz auf Weiß</translation>
    </message>
    <message>
        <source>making texts readable</source>
        <translation>Lesbarmachen von Texten</translation>
    </message>
    <message>
        <source>Readable te&amp;xt colours</source>
        <translation>Lesbare Te&amp;xtfarben</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesPage</name>
    <message>
        <source>Colour rules</source>
        <translation>Farbregeln</translation>
    </message>
    <message>
        <source>Colour rules (*.txt);;All files (*)</source>
        <translation>Farbregeln (*.txt);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionList</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 insgesamt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionModel</name>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Can&apos;t be saved: %1</source>
        <translation>Kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Another program has changed the file meanwhile.</source>
        <translation>Ein anderes Programm hat die Datei inzwischen geändert.</translation>
    </message>
    <message>
        <source>Another program has removed the file.</source>
        <translation>Ein anderes Programm hat die Datei entfernt.</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionPage</name>
    <message>
        <source>adding &quot;%1&quot;</source>
        <translation>Anlegen von „%1“</translation>
    </message>
    <message>
        <source>copying &quot;%1&quot;</source>
        <translation>Kopieren von „%1“</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>Ein anderes Programm hat die Datei seit dem Lesen geändert.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>Löschen von „%1“</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>„%1“ wurde gelöscht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not deleted.</source>
        <translation>„%1“ wurde nicht gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved.

%2</source>
        <translation>„%1“ kann nicht gespeichert werden.

%2</translation>
    </message>
    <message>
        <source>removing &quot;%1&quot;</source>
        <translation>Entfernen von „%1“</translation>
    </message>
    <message>
        <source>The file of &quot;%1&quot; can&apos;t be read.</source>
        <translation>Die Datei von „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>showing both</source>
        <translation>Zeigen beider Fassungen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved.</source>
        <translation>„%1“ wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Saved &quot;%1&quot;</source>
        <translation>„%1“ wurde gespeichert</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>giving up the changes of &quot;%1&quot;</source>
        <translation>Verwerfen der Änderungen von „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as its file has it</source>
        <translation>„%1“ entspricht wieder der Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is back without its file. Save it anew.</source>
        <translation>„%1“ ist wieder da, aber ohne Datei. Speichern Sie den Eintrag neu.</translation>
    </message>
    <message>
        <source>taking over the changes of other programs</source>
        <translation>Übernehmen der Änderungen anderer Programme</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>Übernehmen von „%1“</translation>
    </message>
    <message>
        <source>Another program has changed &quot;%1&quot;</source>
        <translation>Ein anderes Programm hat „%1“ geändert</translation>
    </message>
    <message>
        <source>Another program has removed &quot;%1&quot;</source>
        <translation>Ein anderes Programm hat „%1“ entfernt</translation>
    </message>
    <message>
        <source>Changed or removed by other programs: %1</source>
        <translation>Von anderen Programmen geändert oder entfernt: %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionsWindow</name>
    <message>
        <source>Open pages</source>
        <translation>Offene Seiten</translation>
    </message>
    <message>
        <source>Schedule %1</source>
        <translation>Zeitprogramm %1</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Kalender %1</translation>
    </message>
    <message>
        <source>Vigrel Definitions</source>
        <translation>Vigrel Definitionen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New schedule</source>
        <translation>N&amp;eues Zeitprogramm</translation>
    </message>
    <message>
        <source>New &amp;calendar</source>
        <translation>&amp;Neuer Kalender</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Next page</source>
        <translation>&amp;Nächste Seite</translation>
    </message>
    <message>
        <source>&amp;Previous page</source>
        <translation>&amp;Vorige Seite</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Station</translation>
    </message>
    <message>
        <source>&amp;Receivers</source>
        <translation>&amp;Empfänger</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profile</translation>
    </message>
    <message>
        <source>&amp;Colour rules</source>
        <translation>&amp;Farbregeln</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>%1 %2

Schedules, calendars, receivers, profiles and colour rules of the alarm receiver.
Application folder: %3</source>
        <translation>%1 %2

Zeitprogramme, Kalender, Empfänger, Profile und Farbregeln des Alarmempfängers.
Programmordner: %3</translation>
    </message>
    <message>
        <source>What do you want to edit?</source>
        <translation>Was möchten Sie bearbeiten?</translation>
    </message>
    <message>
        <source>Ne&amp;w schedule</source>
        <translation>Neues &amp;Zeitprogramm</translation>
    </message>
    <message>
        <source>New c&amp;alendar</source>
        <translation>&amp;Neuer Kalender</translation>
    </message>
    <message>
        <source>&amp;Receivers of the station</source>
        <translation>&amp;Empfänger der Station</translation>
    </message>
    <message>
        <source>&amp;Profiles of the station</source>
        <translation>&amp;Profile der Station</translation>
    </message>
    <message>
        <source>&amp;Colour rules of the station</source>
        <translation>Fa&amp;rbregeln der Station</translation>
    </message>
    <message>
        <source>%1 can&apos;t be printed.

%2</source>
        <translation>%1 kann nicht gedruckt werden.

%2</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF-Dateien (*.pdf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Die Datei wurde nicht gespeichert.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 wurde gespeichert</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>Schedules, calendars, lists of the station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;All files (*)</source>
        <translation>Zeitprogramme, Kalender, Listen der Station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;As large as the window</source>
        <translation>&amp;So groß wie das Fenster</translation>
    </message>
    <message>
        <source>Own &amp;holidays</source>
        <translation>Ei&amp;gene Feiertage</translation>
    </message>
    <message>
        <source>Own holi&amp;days of the station</source>
        <translation>Eigene Feier&amp;tage der Station</translation>
    </message>
</context>
<context>
    <name>vigrel::cFileDocument</name>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Die Datei wurde nicht gespeichert.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 wurde gespeichert</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>Übernehmen von „%1“</translation>
    </message>
    <message>
        <source>%1 is read again: another program has changed it</source>
        <translation>%1 wurde neu gelesen: Ein anderes Programm hat die Datei geändert</translation>
    </message>
    <message>
        <source>opening &quot;%1&quot;</source>
        <translation>Öffnen von „%1“</translation>
    </message>
</context>
<context>
    <name>vigrel::cFilePage</name>
    <message>
        <source>%1 can&apos;t be saved.

%2</source>
        <translation>%1 kann nicht gespeichert werden.

%2</translation>
    </message>
</context>
<context>
    <name>vigrel::cLineProblemsLabel</name>
    <message>
        <source>Some lines were not understood. They stay in the file:
%1</source>
        <translation>Einige Zeilen wurden nicht verstanden. Sie bleiben in der Datei:
%1</translation>
    </message>
</context>
<context>
    <name>vigrel::cNoteBar</name>
    <message>
        <source>What happened to files</source>
        <translation>Was mit Dateien geschehen ist</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Files brought up to a new version: %1.</source>
        <translation>Auf die neue Version gebrachte Dateien: %1.</translation>
    </message>
    <message>
        <source>Files of an older version that could not be written anew: %1. They stay as they are.</source>
        <translation>Dateien einer älteren Version, die nicht neu geschrieben werden konnten: %1. Sie bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>What could not be read: %1.</source>
        <translation>Nicht lesbar: %1.</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysEditor</name>
    <message>
        <source>&amp;Add holiday</source>
        <translation>Feiertag &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete holiday</source>
        <translation>Feiertag &amp;löschen</translation>
    </message>
    <message>
        <source>A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the country&apos;s holidays.</source>
        <translation>Ein Tag wird 2026-12-24 geschrieben, oder 12-24 für jedes Jahr. Kalender markieren diese Tage neben den Feiertagen des Landes.</translation>
    </message>
    <message>
        <source>Own holidays</source>
        <translation>Eigene Feiertage</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Jedes Jahr</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Feiertag</translation>
    </message>
    <message>
        <source>changing a holiday</source>
        <translation>Ändern eines Feiertags</translation>
    </message>
    <message>
        <source>Company holiday</source>
        <translation>Betriebsfeiertag</translation>
    </message>
    <message>
        <source>adding a holiday</source>
        <translation>Hinzufügen eines Feiertags</translation>
    </message>
    <message>
        <source>deleting a holiday</source>
        <translation>Löschen eines Feiertags</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysPage</name>
    <message>
        <source>Own holidays</source>
        <translation>Eigene Feiertage</translation>
    </message>
    <message>
        <source>Own holidays (*.txt);;All files (*)</source>
        <translation>Eigene Feiertage (*.txt);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfileCalendar</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Another calendar...</source>
        <translation>Anderer Kalender...</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Dieses Profil</translation>
    </message>
    <message>
        <source>A new calendar</source>
        <translation>Ein neuer Kalender</translation>
    </message>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalender (*.cal);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfileForm</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitprogramm</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Extern</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>En&amp;abled: the profile takes part</source>
        <translation>Aktiv: das &amp;Profil nimmt teil</translation>
    </message>
    <message>
        <source>States:</source>
        <translation>Zustände:</translation>
    </message>
    <message>
        <source>State %1</source>
        <translation>Zustand %1</translation>
    </message>
    <message>
        <source>&amp;Off duty behaviour:</source>
        <translation>&amp;Verhalten außer Dienst:</translation>
    </message>
    <message>
        <source>Off duty behaviour</source>
        <translation>Verhalten außer Dienst</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, gespeichert %2</translation>
    </message>
    <message>
        <source>Condition &amp;%1:</source>
        <translation>Bedingung &amp;%1:</translation>
    </message>
    <message>
        <source>Condition %1</source>
        <translation>Bedingung %1</translation>
    </message>
    <message>
        <source>Parallel: all at once</source>
        <translation>Parallel: alle gleichzeitig</translation>
    </message>
    <message>
        <source>Parallel receivers</source>
        <translation>Parallele Empfänger</translation>
    </message>
    <message>
        <source>Sequential: one after the other</source>
        <translation>Sequenziell: einer nach dem anderen</translation>
    </message>
    <message>
        <source>Sequential receivers</source>
        <translation>Sequenzielle Empfänger</translation>
    </message>
    <message>
        <source>&amp;Use this time schedule</source>
        <translation>Dieses &amp;Zeitprogramm verwenden</translation>
    </message>
    <message>
        <source>the periods in the calendar</source>
        <translation>Zeiträume im Kalender</translation>
    </message>
    <message>
        <source>Use an external &amp;tag</source>
        <translation>Externe &amp;Variable verwenden</translation>
    </message>
    <message>
        <source>Tag &amp;name:</source>
        <translation>&amp;Name der Variablen:</translation>
    </message>
    <message>
        <source>Tag name</source>
        <translation>Name der Variablen</translation>
    </message>
    <message>
        <source>&amp;Ignore this tag in other profiles</source>
        <translation>Diese Variable in anderen &amp;Profilen ignorieren</translation>
    </message>
    <message>
        <source>Use an external fi&amp;le</source>
        <translation>&amp;Externe Datei verwenden</translation>
    </message>
    <message>
        <source>File &amp;path:</source>
        <translation>Da&amp;teipfad:</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>Te&amp;xt in the file:</source>
        <translation>Text &amp;in der Datei:</translation>
    </message>
    <message>
        <source>Text in the file</source>
        <translation>Text in der Datei</translation>
    </message>
    <message>
        <source>&amp;Only alarms of these systems:</source>
        <translation>&amp;Nur Alarme dieser Systeme:</translation>
    </message>
    <message>
        <source>System %1</source>
        <translation>System %1</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Active when?</source>
        <translation>Wann aktiv?</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot; and its file?</source>
        <translation>Möchten Sie das Profil „%1“ und seine Datei löschen?</translation>
    </message>
    <message>
        <source>There are no profiles yet. A profile says which alarms go to which receivers, and when.</source>
        <translation>Es gibt noch keine Profile. Ein Profil sagt, welche Alarme an welche Empfänger gehen, und wann.</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverForm</name>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>En&amp;abled: alarms go to this receiver</source>
        <translation>Aktiv: Alarme &amp;gehen an diesen Empfänger</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>Parallel numbers</source>
        <translation>Parallele Nummern</translation>
    </message>
    <message>
        <source>&amp;Parallel numbers:</source>
        <translation>&amp;Parallele Nummern:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>(choose a type)</source>
        <translation>(Typ wählen)</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, gespeichert %2</translation>
    </message>
    <message>
        <source>Setting %1</source>
        <translation>Einstellung %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverPicker</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>No other saved receiver</source>
        <translation>Kein weiterer gespeicherter Empfänger</translation>
    </message>
    <message>
        <source>(not a receiver: %1)</source>
        <translation>(kein Empfänger: %1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>(missing receiver %1)</source>
        <translation>(Empfänger %1 fehlt)</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiversPage</name>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>New receiver</source>
        <translation>Neuer Empfänger</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Delete the receiver &quot;%1&quot; and its file?</source>
        <translation>Möchten Sie den Empfänger „%1“ und seine Datei löschen?</translation>
    </message>
    <message>
        <source>These profiles send alarms to it:
%1</source>
        <translation>Diese Profile senden Alarme an ihn:
%1</translation>
    </message>
    <message>
        <source>There are no receivers yet. A receiver is one place that alarms can go to.</source>
        <translation>Es gibt noch keine Empfänger. Ein Empfänger ist ein Ziel, an das Alarme gehen können.</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleEditor</name>
    <message>
        <source>Day &amp;names in the rows</source>
        <translation>&amp;Tagesnamen in den Zeilen</translation>
    </message>
    <message>
        <source>Special &amp;day types</source>
        <translation>S&amp;ondertagestypen</translation>
    </message>
    <message>
        <source>I&amp;mage of the day type</source>
        <translation>&amp;Bild des Tagestyps</translation>
    </message>
    <message>
        <source>Drag in a row to make a period, drag its ends to change it. The right mouse button opens the menu.</source>
        <translation>Ziehen Sie in einer Zeile, um einen Zeitraum anzulegen, und an seinen Enden, um ihn zu ändern. Die rechte Maustaste öffnet das Menü.</translation>
    </message>
    <message>
        <source>Selected period</source>
        <translation>Gewählter Zeitraum</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Zeit unter dem Zeiger</translation>
    </message>
    <message>
        <source>A time of day, such as 8, 0830 or 16:30</source>
        <translation>Eine Uhrzeit, etwa 8, 0830 oder 16:30</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>Be&amp;ginn</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>Pointer at</source>
        <translation>Zeiger bei</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Rows for the day types that a calendar gives to dates</source>
        <translation>Zeilen für die Tagestypen, die ein Kalender den Tagen gibt</translation>
    </message>
    <message>
        <source>Day types in use</source>
        <translation>Verwendete Tagestypen</translation>
    </message>
    <message>
        <source>Not taken over: %1</source>
        <translation>Nicht übernommen: %1</translation>
    </message>
    <message>
        <source>No day chosen</source>
        <translation>Kein Tag gewählt</translation>
    </message>
    <message>
        <source>%1, changed together with %2</source>
        <translation>%1, wird zusammen mit %2 geändert</translation>
    </message>
    <message>
        <source>&amp;Copy the day</source>
        <translation>Tag &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste into the day</source>
        <translation>&amp;In den Tag einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete the period</source>
        <translation>&amp;Zeitraum löschen</translation>
    </message>
    <message>
        <source>&amp;Whole day</source>
        <translation>Ganzer &amp;Tag</translation>
    </message>
    <message>
        <source>&amp;Invert the day</source>
        <translation>Tag &amp;umkehren</translation>
    </message>
    <message>
        <source>&amp;Grouped</source>
        <translation>&amp;Gruppiert</translation>
    </message>
    <message>
        <source>Monday to &amp;Friday grouped</source>
        <translation>&amp;Montag bis Freitag gruppiert</translation>
    </message>
    <message>
        <source>Re&amp;name the day type...</source>
        <translation>T&amp;agestyp umbenennen...</translation>
    </message>
    <message>
        <source>deleting a period</source>
        <translation>Löschen eines Zeitraums</translation>
    </message>
    <message>
        <source>pasting a day</source>
        <translation>Einfügen eines Tages</translation>
    </message>
    <message>
        <source>the whole day</source>
        <translation>ganzer Tag</translation>
    </message>
    <message>
        <source>inverting a day</source>
        <translation>Umkehren eines Tages</translation>
    </message>
    <message>
        <source>grouping a day</source>
        <translation>Gruppieren eines Tages</translation>
    </message>
    <message>
        <source>grouping Monday to Friday</source>
        <translation>Gruppieren von Montag bis Freitag</translation>
    </message>
    <message>
        <source>typing times</source>
        <translation>Eingabe von Zeiten</translation>
    </message>
    <message>
        <source>Start: %1</source>
        <translation>Beginn: %1</translation>
    </message>
    <message>
        <source>Stop: %1</source>
        <translation>Ende: %1</translation>
    </message>
    <message>
        <source>special day types</source>
        <translation>Sondertagestypen</translation>
    </message>
    <message>
        <source>adding a row</source>
        <translation>Hinzufügen einer Zeile</translation>
    </message>
    <message>
        <source>removing a row</source>
        <translation>Entfernen einer Zeile</translation>
    </message>
    <message>
        <source>Choose a special day type: only those have names and images of your own.</source>
        <translation>Wählen Sie einen Sondertagestyp: Nur diese haben eigene Namen und Bilder.</translation>
    </message>
    <message>
        <source>Name of the day type</source>
        <translation>Name des Tagestyps</translation>
    </message>
    <message>
        <source>dragging a period</source>
        <translation>Ziehen eines Zeitraums</translation>
    </message>
    <message>
        <source>moving an end</source>
        <translation>Verschieben eines Endes</translation>
    </message>
    <message>
        <source>a new period</source>
        <translation>neuer Zeitraum</translation>
    </message>
    <message>
        <source>The day has no gap for another period.</source>
        <translation>Der Tag hat keine Lücke für einen weiteren Zeitraum.</translation>
    </message>
    <message>
        <source>renaming a day type</source>
        <translation>Umbenennen eines Tagestyps</translation>
    </message>
    <message>
        <source>choosing an image</source>
        <translation>Wahl eines Bildes</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleFrame</name>
    <message>
        <source>Time schedule</source>
        <translation>Zeitprogramm</translation>
    </message>
    <message>
        <source>Arrow keys choose a day and a period, Insert makes a period, Delete removes one</source>
        <translation>Pfeiltasten wählen Tag und Zeitraum, Einfg legt einen Zeitraum an, Entf löscht ihn</translation>
    </message>
    <message>
        <source>Rows of the time schedule</source>
        <translation>Zeilen des Zeitprogramms</translation>
    </message>
</context>
<context>
    <name>vigrel::cSchedulePage</name>
    <message>
        <source>Time schedules (*.sch);;All files (*)</source>
        <translation>Zeitprogramme (*.sch);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cSettingEdit</name>
    <message>
        <source>whole number, -32768 to 32767</source>
        <translation>ganze Zahl, -32768 bis 32767</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>whole number, 0 to 255</source>
        <translation>ganze Zahl, 0 bis 255</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>number, at most 4 decimals</source>
        <translation>Zahl, bis 4 Nachkommastellen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>The number is missing.</source>
        <translation>Die Zahl fehlt.</translation>
    </message>
</context>
<context>
    <name>vigrel::cSystemGrid</name>
    <message>
        <source>System %1</source>
        <translation>System %1</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>A&amp;lle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
</context>
<context>
    <name>vigrel::cTableEditor</name>
    <message>
        <source>Row %1, %2: %3</source>
        <translation>Zeile %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>vigrel::cTextEdit</name>
    <message>
        <source>Only letters and signs of Western European languages can be stored.</source>
        <translation>Nur Buchstaben und Zeichen westeuropäischer Sprachen können gespeichert werden.</translation>
    </message>
</context>
</TS>
