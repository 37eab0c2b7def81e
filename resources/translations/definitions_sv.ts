<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>Country</name>
    <message>
        <source>Germany</source>
        <translation>Tyskland</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Danmark</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finland</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norge</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Sverige</translation>
    </message>
    <message>
        <source>United Kingdom (England and Wales)</source>
        <translation>Storbritannien (England och Wales)</translation>
    </message>
    <message>
        <source>United Kingdom (Northern Ireland)</source>
        <translation>Storbritannien (Nordirland)</translation>
    </message>
    <message>
        <source>United Kingdom (Scotland)</source>
        <translation>Storbritannien (Skottland)</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Österrike</translation>
    </message>
    <message>
        <source>Germany (Baden-Wuerttemberg)</source>
        <translation>Tyskland (Baden-Württemberg)</translation>
    </message>
    <message>
        <source>Germany (Bavaria)</source>
        <translation>Tyskland (Bayern)</translation>
    </message>
    <message>
        <source>Germany (Berlin)</source>
        <translation>Tyskland (Berlin)</translation>
    </message>
    <message>
        <source>Germany (Brandenburg)</source>
        <translation>Tyskland (Brandenburg)</translation>
    </message>
    <message>
        <source>Germany (Bremen)</source>
        <translation>Tyskland (Bremen)</translation>
    </message>
    <message>
        <source>Germany (Hamburg)</source>
        <translation>Tyskland (Hamburg)</translation>
    </message>
    <message>
        <source>Germany (Hesse)</source>
        <translation>Tyskland (Hessen)</translation>
    </message>
    <message>
        <source>Germany (Mecklenburg-Western Pomerania)</source>
        <translation>Tyskland (Mecklenburg-Vorpommern)</translation>
    </message>
    <message>
        <source>Germany (Lower Saxony)</source>
        <translation>Tyskland (Niedersachsen)</translation>
    </message>
    <message>
        <source>Germany (North Rhine-Westphalia)</source>
        <translation>Tyskland (Nordrhein-Westfalen)</translation>
    </message>
    <message>
        <source>Germany (Rhineland-Palatinate)</source>
        <translation>Tyskland (Rheinland-Pfalz)</translation>
    </message>
    <message>
        <source>Germany (Saarland)</source>
        <translation>Tyskland (Saarland)</translation>
    </message>
    <message>
        <source>Germany (Saxony)</source>
        <translation>Tyskland (Sachsen)</translation>
    </message>
    <message>
        <source>Germany (Saxony-Anhalt)</source>
        <translation>Tyskland (Sachsen-Anhalt)</translation>
    </message>
    <message>
        <source>Germany (Schleswig-Holstein)</source>
        <translation>Tyskland (Schleswig-Holstein)</translation>
    </message>
    <message>
        <source>Germany (Thuringia)</source>
        <translation>Tyskland (Thüringen)</translation>
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
        <translation>Kalendrar (*.cal);;Alla filer (*)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>ändring av %1</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Namnet är tomt.</translation>
    </message>
    <message>
        <source>Choose a type.</source>
        <translation>Välj en typ.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The choice could not be stored in %1.</source>
        <translation>Valet kunde inte sparas i %1.</translation>
    </message>
    <message>
        <source>the text has characters that can&apos;t be stored</source>
        <translation>texten har tecken som inte kan sparas</translation>
    </message>
    <message>
        <source>a text of more than 65535 bytes can&apos;t be stored</source>
        <translation>en text på mer än 65535 byte kan inte sparas</translation>
    </message>
    <message>
        <source>a date-time lies outside the years 100 to 9999</source>
        <translation>en tidpunkt ligger utanför åren 100 till 9999</translation>
    </message>
    <message>
        <source>a date lies outside the years 100 to 9999</source>
        <translation>ett datum ligger utanför åren 100 till 9999</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, rad %2: %3</translation>
    </message>
    <message>
        <source>the number %1 does not fit %2 bits</source>
        <translation>talet %1 ryms inte i %2 bitar</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number from 0 to %3</source>
        <translation>%1: &quot;%2&quot; är inte ett tal från 0 till %3</translation>
    </message>
    <message>
        <source>%1: the range &quot;%2&quot; ends before it begins</source>
        <translation>%1: intervallet &quot;%2&quot; slutar innan det börjar</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not red,green,blue</source>
        <translation>%1: &quot;%2&quot; är inte röd,grön,blå</translation>
    </message>
    <message>
        <source>a rule has six fields (tag | categories | areas | text colour | background | fade), this line has %1</source>
        <translation>en regel har sex fält (tagg | kategorier | områden | textfärg | bakgrund | toning), denna rad har %1</translation>
    </message>
    <message>
        <source>fade</source>
        <translation>toning</translation>
    </message>
    <message>
        <source>tag: it is empty; &quot;*&quot; stands for every tag</source>
        <translation>tagg: fältet är tomt; &quot;*&quot; står för alla taggar</translation>
    </message>
    <message>
        <source>tag: it must not hold &quot;|&quot;</source>
        <translation>tagg: fältet får inte innehålla &quot;|&quot;</translation>
    </message>
    <message>
        <source>tag: it must not begin with &quot;#&quot;; write &quot;?&quot; for it</source>
        <translation>tagg: fältet får inte börja med &quot;#&quot;; skriv &quot;?&quot; i stället</translation>
    </message>
    <message>
        <source>text colour</source>
        <translation>textfärg</translation>
    </message>
    <message>
        <source>background</source>
        <translation>bakgrund</translation>
    </message>
    <message>
        <source>fade: it is not a number from 0 to 255</source>
        <translation>toning: inte ett tal från 0 till 255</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>kategorier</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>områden</translation>
    </message>
    <message>
        <source>a date lies outside the calendar&apos;s years 2000 to 2039</source>
        <translation>ett datum ligger utanför kalenderns år 2000 till 2039</translation>
    </message>
    <message>
        <source>period %1 of day type %2 goes from minute %3 to minute %4</source>
        <translation>period %1 för dagtyp %2 går från minut %3 till minut %4</translation>
    </message>
    <message>
        <source>the active flag of day type %1 is %2</source>
        <translation>aktivflaggan för dagtyp %1 är %2</translation>
    </message>
    <message>
        <source>the group flag of day type %1 is %2</source>
        <translation>gruppflaggan för dagtyp %1 är %2</translation>
    </message>
    <message>
        <source>the number of periods of day type %1 is %2</source>
        <translation>antalet perioder för dagtyp %1 är %2</translation>
    </message>
    <message>
        <source>it ends within the %2 periods of day type %1</source>
        <translation>den slutar mitt i de %2 perioderna för dagtyp %1</translation>
    </message>
    <message>
        <source>the row of day type %1 is %2</source>
        <translation>raden för dagtyp %1 är %2</translation>
    </message>
    <message>
        <source>it has %1 bytes, and a schedule at least 186</source>
        <translation>den har %1 byte, ett tidsschema har minst 186</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>slutet saknas</translation>
    </message>
    <message>
        <source>the calendar flag is %1</source>
        <translation>kalenderflaggan är %1</translation>
    </message>
    <message>
        <source>it goes on behind the schedule&apos;s %1 bytes</source>
        <translation>den fortsätter efter tidsschemats %1 byte</translation>
    </message>
    <message>
        <source>it has %1 bytes in place of 29220</source>
        <translation>den har %1 byte i stället för 29220</translation>
    </message>
    <message>
        <source>the value of %1 is %2, not one of 0 to 23</source>
        <translation>värdet för %1 är %2, inte ett av 0 till 23</translation>
    </message>
    <message>
        <source>%1 is not a time schedule: %2.</source>
        <translation>%1 är inte ett tidsschema: %2.</translation>
    </message>
    <message>
        <source>%1 is not a calendar: %2.</source>
        <translation>%1 är inte en kalender: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 8, 0830 or 16:30.</source>
        <translation>&quot;%1&quot; är inte ett klockslag som 8, 0830 eller 16:30.</translation>
    </message>
    <message>
        <source>The time is missing.</source>
        <translation>Klockslaget saknas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 59 minutes.</source>
        <translation>&quot;%1&quot; har mer än 59 minuter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies behind 24:00.</source>
        <translation>&quot;%1&quot; ligger efter 24:00.</translation>
    </message>
    <message>
        <source>a file of %1 bytes is no definition</source>
        <translation>en fil på %1 byte är ingen definition</translation>
    </message>
    <message>
        <source>all numbers for new files are taken</source>
        <translation>alla nummer för nya filer är upptagna</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; (version %3 -&gt; %4)</source>
        <translation>%1 &apos;%2&apos; (version %3 -&gt; %4)</translation>
    </message>
    <message>
        <source>%1 Err:%2</source>
        <translation>%1 Fel: %2</translation>
    </message>
    <message>
        <source>the file ends too early, at its byte %1</source>
        <translation>filen slutar för tidigt, vid byte %1</translation>
    </message>
    <message>
        <source>It has the same number as %1; rename one of them.</source>
        <translation>Den har samma nummer som %1; byt namn på en av dem.</translation>
    </message>
    <message>
        <source>The file has %1 bytes: it is empty.</source>
        <translation>Filen har %1 byte: den är tom.</translation>
    </message>
    <message>
        <source>The file is damaged: it ends too early or holds a value that is none.</source>
        <translation>Filen är skadad: den slutar för tidigt eller har ett ogiltigt värde.</translation>
    </message>
    <message>
        <source>The file&apos;s version is %1, not one of %2 to %3.</source>
        <translation>Filens version är %1, inte en av %2 till %3.</translation>
    </message>
    <message>
        <source>the profile has no time schedule</source>
        <translation>profilen har inget tidsschema</translation>
    </message>
    <message>
        <source>the type id &quot;%1&quot; is not a whole number from 0 to 32767</source>
        <translation>typens nummer &quot;%1&quot; är inte ett heltal från 0 till 32767</translation>
    </message>
    <message>
        <source>the settings file &quot;%1&quot; is not the plain name of a file of the application folder</source>
        <translation>inställningsfilen &quot;%1&quot; är inte enbart namnet på en fil i programmets mapp</translation>
    </message>
    <message>
        <source>a line has three or four fields (id; kind; name; settings file), this one has %1</source>
        <translation>en rad har tre eller fyra fält (nummer; slag; namn; inställningsfil), denna har %1</translation>
    </message>
    <message>
        <source>the kind is empty</source>
        <translation>slaget är tomt</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>namnet är tomt</translation>
    </message>
    <message>
        <source>the type id %1 stands on an earlier line too</source>
        <translation>typens nummer %1 står också på en tidigare rad</translation>
    </message>
    <message>
        <source>the table is full: it has room for %1 types</source>
        <translation>tabellen är full: den rymmer %1 typer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; är inget värde av typen %2</translation>
    </message>
    <message>
        <source>a value has the unknown type code %1</source>
        <translation>ett värde har den okända typkoden %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>tomt</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>whole number (16 bits)</source>
        <translation>heltal (16 bitar)</translation>
    </message>
    <message>
        <source>whole number (32 bits)</source>
        <translation>heltal (32 bitar)</translation>
    </message>
    <message>
        <source>number (single)</source>
        <translation>tal (enkel precision)</translation>
    </message>
    <message>
        <source>number (double)</source>
        <translation>tal (dubbel precision)</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>valuta</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>ja eller nej</translation>
    </message>
    <message>
        <source>whole number (8 bits)</source>
        <translation>heltal (8 bitar)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>okänd</translation>
    </message>
    <message>
        <source>no ordinary file</source>
        <translation>inte en vanlig fil</translation>
    </message>
    <message>
        <source>larger than 64 MB</source>
        <translation>större än 64 MB</translation>
    </message>
    <message>
        <source>%1: a link that another user made is not followed</source>
        <translation>%1: en länk som en annan användare har skapat följs inte</translation>
    </message>
    <message>
        <source>%1: leads in a circle</source>
        <translation>%1: leder i cirkel</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>filen eller mappen finns inte</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>finns redan</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>disken är full</translation>
    </message>
    <message>
        <source>the access rights don&apos;t allow it</source>
        <translation>behörighet saknas</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>disken är skrivskyddad</translation>
    </message>
    <message>
        <source>a part of the path is not a folder</source>
        <translation>en del av sökvägen är inte en mapp</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>är en mapp</translation>
    </message>
    <message>
        <source>the disk has failed</source>
        <translation>diskfel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day such as 2026-12-24, or 12-24 for every year</source>
        <translation>&quot;%1&quot; är ingen dag som 2026-12-24, eller 12-24 för varje år</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies outside the years %2 to %3</source>
        <translation>&quot;%1&quot; ligger utanför åren %2 till %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day of the calendar</source>
        <translation>&quot;%1&quot; är ingen dag i kalendern</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: give both days a year, or none of them</source>
        <translation>&quot;%1&quot;: ge båda dagarna ett årtal, eller ingen av dem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins</source>
        <translation>&quot;%1&quot; slutar innan det börjar</translation>
    </message>
    <message>
        <source>a holiday has two fields (day | name), this line has %1</source>
        <translation>en helgdag har två fält (dag | namn), den här raden har %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no last day</source>
        <translation>&quot;%1&quot; har ingen sista dag</translation>
    </message>
    <message>
        <source>the name must not hold &quot;|&quot;</source>
        <translation>namnet får inte innehålla &quot;|&quot;</translation>
    </message>
</context>
<context>
    <name>cDayTypeImages</name>
    <message>
        <source>Star</source>
        <translation>Stjärna</translation>
    </message>
    <message>
        <source>Half day</source>
        <translation>Halvdag</translation>
    </message>
    <message>
        <source>Fir tree</source>
        <translation>Gran</translation>
    </message>
    <message>
        <source>Egg</source>
        <translation>Ägg</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flagga</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Måne</translation>
    </message>
    <message>
        <source>Snowflake</source>
        <translation>Snöflinga</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Hjärta</translation>
    </message>
    <message>
        <source>Suitcase</source>
        <translation>Resväska</translation>
    </message>
    <message>
        <source>Wrench</source>
        <translation>Skiftnyckel</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Bok</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>Paraply</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Ringklocka</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Nyckel</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Ur</translation>
    </message>
    <message>
        <source>Music note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Cup</source>
        <translation>Kopp</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Löv</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Hus</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>Raket</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kors</translation>
    </message>
</context>
<context>
    <name>cDayTypeNames</name>
    <message>
        <source>Special day type %1</source>
        <translation>Särskild dagtyp %1</translation>
    </message>
    <message>
        <source>No special day type</source>
        <translation>Ingen särskild dagtyp</translation>
    </message>
</context>
<context>
    <name>cDefinitionActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Ny</translation>
    </message>
    <message>
        <source>Make a new one</source>
        <translation>Skapa en ny</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>Make a copy of the chosen one</source>
        <translation>Kopiera den valda</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Delete the chosen one</source>
        <translation>Ta bort den valda</translation>
    </message>
    <message>
        <source>Sa&amp;ve this</source>
        <translation>&amp;Spara denna</translation>
    </message>
    <message>
        <source>Save the chosen one; Ctrl+S saves all</source>
        <translation>Spara den valda; Ctrl+S sparar alla</translation>
    </message>
    <message>
        <source>R&amp;evert</source>
        <translation>Åt&amp;erställ</translation>
    </message>
    <message>
        <source>Give up the changes of the chosen one</source>
        <translation>Överge ändringarna i den valda</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation>Sök i listan</translation>
    </message>
</context>
<context>
    <name>cDialogPrompts</name>
    <message>
        <source>%1 has changes. Save them?</source>
        <translation>%1 har ändringar. Vill du spara dem?</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Behåll min</translation>
    </message>
    <message>
        <source>&amp;Take theirs</source>
        <translation>&amp;Ta den andra</translation>
    </message>
    <message>
        <source>&amp;Show both</source>
        <translation>&amp;Visa båda</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Spara som</translation>
    </message>
    <message>
        <source>&amp;Write again</source>
        <translation>&amp;Skriv igen</translation>
    </message>
    <message>
        <source>&amp;Remove here</source>
        <translation>&amp;Ta bort här</translation>
    </message>
    <message>
        <source>Another program has changed the file of &quot;%1&quot; since it was read here. Keep your version, take the one in the file, or show both?</source>
        <translation>Ett annat program har ändrat filen till &quot;%1&quot; sedan den lästes här. Vill du behålla din version, ta den som finns i filen eller visa båda?</translation>
    </message>
    <message>
        <source>Another program has removed the file of &quot;%1&quot;. Write it again, or remove it here too?</source>
        <translation>Ett annat program har tagit bort filen till &quot;%1&quot;. Vill du skriva den igen eller ta bort den här också?</translation>
    </message>
</context>
<context>
    <name>vigrel::cActiveDayView</name>
    <message>
        <source>No&amp;w</source>
        <translation>N&amp;u</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>Datu&amp;m:</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>T&amp;id:</translation>
    </message>
    <message>
        <source>Day type: %1, by the calendar</source>
        <translation>Dagtyp: %1, enligt kalendern</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar gives %2, which the schedule doesn&apos;t use</source>
        <translation>Dagtyp: %1, enligt veckodagen: kalendern anger %2, som schemat inte använder</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar says nothing of the date</source>
        <translation>Dagtyp: %1, enligt veckodagen: kalendern säger inget om datumet</translation>
    </message>
    <message>
        <source>%1: active until %2</source>
        <translation>%1: aktiv till %2</translation>
    </message>
    <message>
        <source>%1: not active until %2</source>
        <translation>%1: inte aktiv till %2</translation>
    </message>
    <message>
        <source>In a group with: %1</source>
        <translation>I grupp med: %1</translation>
    </message>
    <message>
        <source>Periods: %1</source>
        <translation>Perioder: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>The schedule doesn&apos;t use this day type: nothing is active.</source>
        <translation>Schemat använder inte denna dagtyp: inget är aktivt.</translation>
    </message>
    <message>
        <source>The profile doesn&apos;t use its schedule.</source>
        <translation>Profilen använder inte sitt schema.</translation>
    </message>
    <message>
        <source>The day&apos;s 24 hours</source>
        <translation>Dagens 24 timmar</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: no calendar is open</source>
        <translation>Dagtyp: %1, enligt veckodagen: ingen kalender är öppen</translation>
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
        <translation>Tid</translation>
    </message>
    <message>
        <source>Text that is the tag</source>
        <translation>Text som är taggen</translation>
    </message>
    <message>
        <source>Alarms of the station</source>
        <translation>Stationens larm</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tagg:</translation>
    </message>
    <message>
        <source>The station has no alarms yet.</source>
        <translation>Stationen har inga larm ännu.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
</context>
<context>
    <name>vigrel::cCalendarEditor</name>
    <message>
        <source>Show the day&apos;s &amp;periods</source>
        <translation>Visa &amp;dagens perioder</translation>
    </message>
    <message>
        <source>Choose a day type and paint it over the days with the left mouse button.</source>
        <translation>Välj en dagtyp och måla den över dagarna med vänster musknapp.</translation>
    </message>
    <message>
        <source>Previous month (Page Up)</source>
        <translation>Föregående månad (Page Up)</translation>
    </message>
    <message>
        <source>Next month (Page Down)</source>
        <translation>Nästa månad (Page Down)</translation>
    </message>
    <message>
        <source>To&amp;day</source>
        <translation>&amp;Idag</translation>
    </message>
    <message>
        <source>The month of today (Home)</source>
        <translation>Den här månaden (Home)</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>År</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Månad</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Day &amp;type to paint</source>
        <translation>Dagtyp att &amp;måla</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>H&amp;elgdagar</translation>
    </message>
    <message>
        <source>T&amp;ime schedule</source>
        <translation>&amp;Tidsschema</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Inget</translation>
    </message>
    <message>
        <source>Give the year&apos;s &amp;holidays the chosen day type</source>
        <translation>Ge årets &amp;helgdagar den valda dagtypen</translation>
    </message>
    <message>
        <source>Give &amp;all years&apos; holidays the chosen day type</source>
        <translation>Ge &amp;alla års helgdagar den valda dagtypen</translation>
    </message>
    <message>
        <source>&amp;Clear the year</source>
        <translation>&amp;Töm året</translation>
    </message>
    <message>
        <source>Arrow keys choose a day, Space paints the day type</source>
        <translation>Piltangenterna väljer dag, blanksteg målar dagtypen</translation>
    </message>
    <message>
        <source>painting days</source>
        <translation>målning av dagar</translation>
    </message>
    <message>
        <source>painting holidays</source>
        <translation>målning av helgdagar</translation>
    </message>
    <message>
        <source>Painted holidays: %1 (%2)</source>
        <translation>Målade helgdagar: %1 (%2)</translation>
    </message>
    <message>
        <source>clearing a year</source>
        <translation>tömning av ett år</translation>
    </message>
    <message>
        <source>clearing the calendar</source>
        <translation>tömning av kalendern</translation>
    </message>
    <message>
        <source>Cop&amp;y the year to the next</source>
        <translation>&amp;Kopiera året till nästa</translation>
    </message>
    <message>
        <source>copying a year</source>
        <translation>kopiering av ett år</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>&amp;År</translation>
    </message>
    <message>
        <source>The whole year on one page</source>
        <translation>Hela året på en sida</translation>
    </message>
    <message>
        <source>There are no holidays: choose their country, or write your own.</source>
        <translation>Det finns inga helgdagar: välj deras land eller skriv egna.</translation>
    </message>
    <message>
        <source>%1 is the last year of a calendar: there is none to copy it to.</source>
        <translation>%1 är det sista året i en kalender: det finns inget att kopiera det till.</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourPreview</name>
    <message>
        <source>Tags to try</source>
        <translation>Taggar att pröva</translation>
    </message>
    <message>
        <source>Tags to try, one a line</source>
        <translation>Taggar att pröva, en per rad</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tagg</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Rad</translation>
    </message>
    <message>
        <source>Every other row</source>
        <translation>Varannan rad</translation>
    </message>
    <message>
        <source>Flashing</source>
        <translation>Blinkande</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Kategori:</translation>
    </message>
    <message>
        <source>Are&amp;a:</source>
        <translation>&amp;Område:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Hard to read, by rule and least contrast (%1 is readable): %2</source>
        <translation>Svårläst, regel och lägsta kontrast (%1 är läsbart): %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Larm</translation>
    </message>
    <message>
        <source>Typed tags</source>
        <translation>Skrivna taggar</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesEditor</name>
    <message>
        <source>&amp;Add rule</source>
        <translation>&amp;Lägg till regel</translation>
    </message>
    <message>
        <source>&amp;Delete rule</source>
        <translation>&amp;Ta bort regel</translation>
    </message>
    <message>
        <source>&amp;Move up</source>
        <translation>&amp;Flytta upp</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>Flytta &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Choose colour...</source>
        <translation>&amp;Välj färg...</translation>
    </message>
    <message>
        <source>Colour rules, tried from the first to the last</source>
        <translation>Färgregler, prövas från den första till den sista</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tagg</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorier</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Områden</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfärg</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Toning</translation>
    </message>
    <message>
        <source>A pattern: &quot;?&quot; is one character, &quot;*&quot; any run; case counts</source>
        <translation>Ett mönster: &quot;?&quot; är ett tecken, &quot;*&quot; valfritt antal; skiftläget räknas</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 255, such as 5;7-9, or * for all</source>
        <translation>Tal och intervall från 0 till 255, till exempel 5;7-9, eller * för alla</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 999, such as 5;7-9, or * for all</source>
        <translation>Tal och intervall från 0 till 999, till exempel 5;7-9, eller * för alla</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 255,255,255</source>
        <translation>Rött, grönt och blått från 0 till 255, till exempel 255,255,255</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 200,0,0</source>
        <translation>Rött, grönt och blått från 0 till 255, till exempel 200,0,0</translation>
    </message>
    <message>
        <source>By how much every other row is darker, from 0 to 255</source>
        <translation>Hur mycket mörkare varannan rad är, från 0 till 255</translation>
    </message>
    <message>
        <source>Change rule</source>
        <translation>ändring av regel</translation>
    </message>
    <message>
        <source>Add rule</source>
        <translation>tillägg av regel</translation>
    </message>
    <message>
        <source>Delete rule</source>
        <translation>borttagning av regel</translation>
    </message>
    <message>
        <source>Move rule</source>
        <translation>flyttning av regel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Gives the text of these rules the nearest colour that can be read</source>
        <translation>Ger texten i dessa regler den närmaste läsbara färgen</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>The least of text and ground: 4.5 is readable, 21 black on white</source>
        <translation>Den minsta av text och botten: 4,5 är läsbar, 21 svart på vitt</translation>
    </message>
    <message>
        <source>making texts readable</source>
        <translation>läsbara texter</translation>
    </message>
    <message>
        <source>Readable te&amp;xt colours</source>
        <translation>Läsbara te&amp;xtfärger</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesPage</name>
    <message>
        <source>Colour rules</source>
        <translation>Färgregler</translation>
    </message>
    <message>
        <source>Colour rules (*.txt);;All files (*)</source>
        <translation>Färgregler (*.txt);;Alla filer (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionList</name>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Sök (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 totalt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionModel</name>
    <message>
        <source>Not saved yet</source>
        <translation>Inte sparad än</translation>
    </message>
    <message>
        <source>Can&apos;t be saved: %1</source>
        <translation>Kan inte sparas: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Another program has changed the file meanwhile.</source>
        <translation>Ett annat program har ändrat filen under tiden.</translation>
    </message>
    <message>
        <source>Another program has removed the file.</source>
        <translation>Ett annat program har tagit bort filen.</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionPage</name>
    <message>
        <source>adding &quot;%1&quot;</source>
        <translation>tillägg av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>copying &quot;%1&quot;</source>
        <translation>kopiering av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>Ett annat program har ändrat filen sedan den lästes.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>borttagning av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; har tagits bort</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not deleted.</source>
        <translation>&quot;%1&quot; togs inte bort.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved.

%2</source>
        <translation>&quot;%1&quot; kan inte sparas.

%2</translation>
    </message>
    <message>
        <source>removing &quot;%1&quot;</source>
        <translation>borttagning av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The file of &quot;%1&quot; can&apos;t be read.</source>
        <translation>Filen till &quot;%1&quot; kan inte läsas.</translation>
    </message>
    <message>
        <source>showing both</source>
        <translation>visning av båda</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved.</source>
        <translation>&quot;%1&quot; sparades inte.</translation>
    </message>
    <message>
        <source>Saved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; har sparats</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Sparade: %1</translation>
    </message>
    <message>
        <source>giving up the changes of &quot;%1&quot;</source>
        <translation>övergivna ändringar i &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as its file has it</source>
        <translation>&quot;%1&quot; är som i sin fil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is back without its file. Save it anew.</source>
        <translation>&quot;%1&quot; är tillbaka utan sin fil. Spara den på nytt.</translation>
    </message>
    <message>
        <source>taking over the changes of other programs</source>
        <translation>övertagande av andra programs ändringar</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>övertagande av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed &quot;%1&quot;</source>
        <translation>Ett annat program har ändrat &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has removed &quot;%1&quot;</source>
        <translation>Ett annat program har tagit bort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Changed or removed by other programs: %1</source>
        <translation>Ändrade eller borttagna av andra program: %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionsWindow</name>
    <message>
        <source>Open pages</source>
        <translation>Öppna sidor</translation>
    </message>
    <message>
        <source>Schedule %1</source>
        <translation>Tidsschema %1</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Kalender %1</translation>
    </message>
    <message>
        <source>Vigrel Definitions</source>
        <translation>Vigrel definitioner</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>&amp;New schedule</source>
        <translation>N&amp;ytt tidsschema</translation>
    </message>
    <message>
        <source>New &amp;calendar</source>
        <translation>&amp;Ny kalender</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ppna...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Öppna t&amp;idigare</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Spa&amp;ra som...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;täng</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Inga än</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ån&amp;gra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Gör &amp;om</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>Ån&amp;gra %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>Gör &amp;om %1</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visa</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Next page</source>
        <translation>&amp;Nästa sida</translation>
    </message>
    <message>
        <source>&amp;Previous page</source>
        <translation>&amp;Föregående sida</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Station</translation>
    </message>
    <message>
        <source>&amp;Receivers</source>
        <translation>&amp;Mottagare</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profiler</translation>
    </message>
    <message>
        <source>&amp;Colour rules</source>
        <translation>&amp;Färgregler</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Om</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>%1 %2

Schedules, calendars, receivers, profiles and colour rules of the alarm receiver.
Application folder: %3</source>
        <translation>%1 %2

Larmmottagarens tidsscheman, kalendrar, mottagare, profiler och färgregler.
Programmets mapp: %3</translation>
    </message>
    <message>
        <source>What do you want to edit?</source>
        <translation>Vad vill du redigera?</translation>
    </message>
    <message>
        <source>Ne&amp;w schedule</source>
        <translation>N&amp;ytt tidsschema</translation>
    </message>
    <message>
        <source>New c&amp;alendar</source>
        <translation>&amp;Ny kalender</translation>
    </message>
    <message>
        <source>&amp;Receivers of the station</source>
        <translation>Stationens &amp;mottagare</translation>
    </message>
    <message>
        <source>&amp;Profiles of the station</source>
        <translation>S&amp;tationens profiler</translation>
    </message>
    <message>
        <source>&amp;Colour rules of the station</source>
        <translation>Stationens &amp;färgregler</translation>
    </message>
    <message>
        <source>%1 can&apos;t be printed.

%2</source>
        <translation>%1 kan inte skrivas ut.

%2</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 skrevs inte ut.</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF-filer (*.pdf);;Alla filer (*)</translation>
    </message>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Filen sparades inte.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 har sparats</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Skriv &amp;ut...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Spara som P&amp;DF...</translation>
    </message>
    <message>
        <source>Schedules, calendars, lists of the station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;All files (*)</source>
        <translation>Tidsscheman, kalendrar, stationens listor (*.sch *.cal ColourRules.txt OwnHolidays.txt);;Alla filer (*)</translation>
    </message>
    <message>
        <source>&amp;As large as the window</source>
        <translation>&amp;Så stor som fönstret</translation>
    </message>
    <message>
        <source>Own &amp;holidays</source>
        <translation>&amp;Egna helgdagar</translation>
    </message>
    <message>
        <source>Own holi&amp;days of the station</source>
        <translation>Stationens egna he&amp;lgdagar</translation>
    </message>
</context>
<context>
    <name>vigrel::cFileDocument</name>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Filen sparades inte.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 har sparats</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>övertagande av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is read again: another program has changed it</source>
        <translation>%1 har lästs på nytt: ett annat program har ändrat den</translation>
    </message>
    <message>
        <source>opening &quot;%1&quot;</source>
        <translation>öppning av &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>vigrel::cFilePage</name>
    <message>
        <source>%1 can&apos;t be saved.

%2</source>
        <translation>%1 kan inte sparas.

%2</translation>
    </message>
</context>
<context>
    <name>vigrel::cLineProblemsLabel</name>
    <message>
        <source>Some lines were not understood. They stay in the file:
%1</source>
        <translation>Några rader förstods inte. De står kvar i filen:
%1</translation>
    </message>
</context>
<context>
    <name>vigrel::cNoteBar</name>
    <message>
        <source>What happened to files</source>
        <translation>Vad som hände med filer</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Files brought up to a new version: %1.</source>
        <translation>Filer som förts upp till ny version: %1.</translation>
    </message>
    <message>
        <source>Files of an older version that could not be written anew: %1. They stay as they are.</source>
        <translation>Filer av äldre version som inte kunde skrivas på nytt: %1. De förblir som de är.</translation>
    </message>
    <message>
        <source>What could not be read: %1.</source>
        <translation>Kunde inte läsas: %1.</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysEditor</name>
    <message>
        <source>&amp;Add holiday</source>
        <translation>&amp;Lägg till helgdag</translation>
    </message>
    <message>
        <source>&amp;Delete holiday</source>
        <translation>&amp;Ta bort helgdag</translation>
    </message>
    <message>
        <source>A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the country&apos;s holidays.</source>
        <translation>En dag skrivs 2026-12-24, eller 12-24 för varje år. Kalendrar markerar dessa dagar vid sidan av landets helgdagar.</translation>
    </message>
    <message>
        <source>Own holidays</source>
        <translation>Egna helgdagar</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Första dag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Sista dag</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Varje år</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Helgdag</translation>
    </message>
    <message>
        <source>changing a holiday</source>
        <translation>ändring av helgdag</translation>
    </message>
    <message>
        <source>Company holiday</source>
        <translation>Företagets lediga dag</translation>
    </message>
    <message>
        <source>adding a holiday</source>
        <translation>tillägg av helgdag</translation>
    </message>
    <message>
        <source>deleting a holiday</source>
        <translation>borttagning av helgdag</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysPage</name>
    <message>
        <source>Own holidays</source>
        <translation>Egna helgdagar</translation>
    </message>
    <message>
        <source>Own holidays (*.txt);;All files (*)</source>
        <translation>Egna helgdagar (*.txt);;Alla filer (*)</translation>
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
        <translation>En annan kalender...</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Denna profil</translation>
    </message>
    <message>
        <source>A new calendar</source>
        <translation>En ny kalender</translation>
    </message>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalendrar (*.cal);;Alla filer (*)</translation>
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
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Villkor</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Tidsschema</translation>
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
        <translation>System</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Namn:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>En&amp;abled: the profile takes part</source>
        <translation>Aktiv: &amp;profilen deltar</translation>
    </message>
    <message>
        <source>States:</source>
        <translation>Tillstånd:</translation>
    </message>
    <message>
        <source>State %1</source>
        <translation>Tillstånd %1</translation>
    </message>
    <message>
        <source>&amp;Off duty behaviour:</source>
        <translation>&amp;Beteende utom tjänst:</translation>
    </message>
    <message>
        <source>Off duty behaviour</source>
        <translation>Beteende utom tjänst</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>inte sparad än</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, sparad %2</translation>
    </message>
    <message>
        <source>Condition &amp;%1:</source>
        <translation>Villkor &amp;%1:</translation>
    </message>
    <message>
        <source>Condition %1</source>
        <translation>Villkor %1</translation>
    </message>
    <message>
        <source>Parallel: all at once</source>
        <translation>Parallellt: alla samtidigt</translation>
    </message>
    <message>
        <source>Parallel receivers</source>
        <translation>Parallella mottagare</translation>
    </message>
    <message>
        <source>Sequential: one after the other</source>
        <translation>Sekventiellt: en efter en</translation>
    </message>
    <message>
        <source>Sequential receivers</source>
        <translation>Sekventiella mottagare</translation>
    </message>
    <message>
        <source>&amp;Use this time schedule</source>
        <translation>A&amp;nvänd detta tidsschema</translation>
    </message>
    <message>
        <source>the periods in the calendar</source>
        <translation>perioderna i kalendern</translation>
    </message>
    <message>
        <source>Use an external &amp;tag</source>
        <translation>Använd &amp;en extern tagg</translation>
    </message>
    <message>
        <source>Tag &amp;name:</source>
        <translation>&amp;Taggens namn:</translation>
    </message>
    <message>
        <source>Tag name</source>
        <translation>Taggens namn</translation>
    </message>
    <message>
        <source>&amp;Ignore this tag in other profiles</source>
        <translation>&amp;Bortse från denna tagg i andra profiler</translation>
    </message>
    <message>
        <source>Use an external fi&amp;le</source>
        <translation>Använd en extern &amp;fil</translation>
    </message>
    <message>
        <source>File &amp;path:</source>
        <translation>Fi&amp;lens sökväg:</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Filens sökväg</translation>
    </message>
    <message>
        <source>Te&amp;xt in the file:</source>
        <translation>Text &amp;i filen:</translation>
    </message>
    <message>
        <source>Text in the file</source>
        <translation>Text i filen</translation>
    </message>
    <message>
        <source>&amp;Only alarms of these systems:</source>
        <translation>&amp;Endast larm från dessa system:</translation>
    </message>
    <message>
        <source>System %1</source>
        <translation>System %1</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>system</translation>
    </message>
    <message>
        <source>Active when?</source>
        <translation>Aktiv när?</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Ny profil</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Villkor</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot; and its file?</source>
        <translation>Vill du ta bort profilen &quot;%1&quot; och dess fil?</translation>
    </message>
    <message>
        <source>There are no profiles yet. A profile says which alarms go to which receivers, and when.</source>
        <translation>Det finns inga profiler ännu. En profil säger vilka larm som går till vilka mottagare, och när.</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverForm</name>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Namn:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>En&amp;abled: alarms go to this receiver</source>
        <translation>Aktiv: &amp;larm går till denna mottagare</translation>
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
        <translation>Parallella nummer</translation>
    </message>
    <message>
        <source>&amp;Parallel numbers:</source>
        <translation>&amp;Parallella nummer:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>(choose a type)</source>
        <translation>(välj en typ)</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>inte sparad än</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, sparad %2</translation>
    </message>
    <message>
        <source>Setting %1</source>
        <translation>Inställning %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverPicker</name>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>No other saved receiver</source>
        <translation>Ingen annan sparad mottagare</translation>
    </message>
    <message>
        <source>(not a receiver: %1)</source>
        <translation>(ingen mottagare: %1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>(missing receiver %1)</source>
        <translation>(mottagare %1 saknas)</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiversPage</name>
    <message>
        <source>Receivers</source>
        <translation>Mottagare</translation>
    </message>
    <message>
        <source>New receiver</source>
        <translation>Ny mottagare</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Delete the receiver &quot;%1&quot; and its file?</source>
        <translation>Vill du ta bort mottagaren &quot;%1&quot; och dess fil?</translation>
    </message>
    <message>
        <source>These profiles send alarms to it:
%1</source>
        <translation>Dessa profiler skickar larm till den:
%1</translation>
    </message>
    <message>
        <source>There are no receivers yet. A receiver is one place that alarms can go to.</source>
        <translation>Det finns inga mottagare ännu. En mottagare är ett ställe som larm kan gå till.</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleEditor</name>
    <message>
        <source>Day &amp;names in the rows</source>
        <translation>&amp;Dagnamn i raderna</translation>
    </message>
    <message>
        <source>Special &amp;day types</source>
        <translation>Särs&amp;kilda dagtyper</translation>
    </message>
    <message>
        <source>I&amp;mage of the day type</source>
        <translation>D&amp;agtypens bild</translation>
    </message>
    <message>
        <source>Drag in a row to make a period, drag its ends to change it. The right mouse button opens the menu.</source>
        <translation>Dra i en rad för att skapa en period, dra i dess ändar för att ändra den. Höger musknapp öppnar menyn.</translation>
    </message>
    <message>
        <source>Selected period</source>
        <translation>Vald period</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Tid under pekaren</translation>
    </message>
    <message>
        <source>A time of day, such as 8, 0830 or 16:30</source>
        <translation>Ett klockslag, till exempel 8, 0830 eller 16:30</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>S&amp;tart</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>St&amp;opp</translation>
    </message>
    <message>
        <source>Pointer at</source>
        <translation>Pekaren vid</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Rows for the day types that a calendar gives to dates</source>
        <translation>Rader för de dagtyper som en kalender ger datum</translation>
    </message>
    <message>
        <source>Day types in use</source>
        <translation>Dagtyper som används</translation>
    </message>
    <message>
        <source>Not taken over: %1</source>
        <translation>Inte övertaget: %1</translation>
    </message>
    <message>
        <source>No day chosen</source>
        <translation>Ingen dag vald</translation>
    </message>
    <message>
        <source>%1, changed together with %2</source>
        <translation>%1, ändras tillsammans med %2</translation>
    </message>
    <message>
        <source>&amp;Copy the day</source>
        <translation>&amp;Kopiera dagen</translation>
    </message>
    <message>
        <source>&amp;Paste into the day</source>
        <translation>Klistra in i &amp;dagen</translation>
    </message>
    <message>
        <source>&amp;Delete the period</source>
        <translation>&amp;Ta bort perioden</translation>
    </message>
    <message>
        <source>&amp;Whole day</source>
        <translation>&amp;Hela dagen</translation>
    </message>
    <message>
        <source>&amp;Invert the day</source>
        <translation>&amp;Invertera dagen</translation>
    </message>
    <message>
        <source>&amp;Grouped</source>
        <translation>G&amp;rupperad</translation>
    </message>
    <message>
        <source>Monday to &amp;Friday grouped</source>
        <translation>&amp;Måndag till fredag grupperade</translation>
    </message>
    <message>
        <source>Re&amp;name the day type...</source>
        <translation>&amp;Byt namn på dagtypen...</translation>
    </message>
    <message>
        <source>deleting a period</source>
        <translation>borttagning av en period</translation>
    </message>
    <message>
        <source>pasting a day</source>
        <translation>inklistring av en dag</translation>
    </message>
    <message>
        <source>the whole day</source>
        <translation>hela dagen</translation>
    </message>
    <message>
        <source>inverting a day</source>
        <translation>invertering av en dag</translation>
    </message>
    <message>
        <source>grouping a day</source>
        <translation>gruppering av en dag</translation>
    </message>
    <message>
        <source>grouping Monday to Friday</source>
        <translation>gruppering av måndag till fredag</translation>
    </message>
    <message>
        <source>typing times</source>
        <translation>inskrivning av tider</translation>
    </message>
    <message>
        <source>Start: %1</source>
        <translation>Start: %1</translation>
    </message>
    <message>
        <source>Stop: %1</source>
        <translation>Stopp: %1</translation>
    </message>
    <message>
        <source>special day types</source>
        <translation>särskilda dagtyper</translation>
    </message>
    <message>
        <source>adding a row</source>
        <translation>tillägg av en rad</translation>
    </message>
    <message>
        <source>removing a row</source>
        <translation>borttagning av en rad</translation>
    </message>
    <message>
        <source>Choose a special day type: only those have names and images of your own.</source>
        <translation>Välj en särskild dagtyp: bara de har egna namn och bilder.</translation>
    </message>
    <message>
        <source>Name of the day type</source>
        <translation>Dagtypens namn</translation>
    </message>
    <message>
        <source>dragging a period</source>
        <translation>dragning av en period</translation>
    </message>
    <message>
        <source>moving an end</source>
        <translation>flyttning av en ände</translation>
    </message>
    <message>
        <source>a new period</source>
        <translation>ny period</translation>
    </message>
    <message>
        <source>The day has no gap for another period.</source>
        <translation>Dagen har ingen lucka för ytterligare en period.</translation>
    </message>
    <message>
        <source>renaming a day type</source>
        <translation>byte av en dagtyps namn</translation>
    </message>
    <message>
        <source>choosing an image</source>
        <translation>byte av en dagtyps bild</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleFrame</name>
    <message>
        <source>Time schedule</source>
        <translation>Tidsschema</translation>
    </message>
    <message>
        <source>Arrow keys choose a day and a period, Insert makes a period, Delete removes one</source>
        <translation>Piltangenterna väljer dag och period, Insert skapar en period, Delete tar bort en</translation>
    </message>
    <message>
        <source>Rows of the time schedule</source>
        <translation>Tidsschemats rader</translation>
    </message>
</context>
<context>
    <name>vigrel::cSchedulePage</name>
    <message>
        <source>Time schedules (*.sch);;All files (*)</source>
        <translation>Tidsscheman (*.sch);;Alla filer (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cSettingEdit</name>
    <message>
        <source>whole number, -32768 to 32767</source>
        <translation>heltal, -32768 till 32767</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>heltal</translation>
    </message>
    <message>
        <source>whole number, 0 to 255</source>
        <translation>heltal, 0 till 255</translation>
    </message>
    <message>
        <source>number</source>
        <translation>tal</translation>
    </message>
    <message>
        <source>number, at most 4 decimals</source>
        <translation>tal, högst 4 decimaler</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>The number is missing.</source>
        <translation>Talet saknas.</translation>
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
        <translation>A&amp;lla</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Inga</translation>
    </message>
</context>
<context>
    <name>vigrel::cTableEditor</name>
    <message>
        <source>Row %1, %2: %3</source>
        <translation>Rad %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>vigrel::cTextEdit</name>
    <message>
        <source>Only letters and signs of Western European languages can be stored.</source>
        <translation>Bara västeuropeiska språks bokstäver och tecken kan sparas.</translation>
    </message>
</context>
</TS>
