<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
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
        <translation>Storbritannia (England og Wales)</translation>
    </message>
    <message>
        <source>United Kingdom (Northern Ireland)</source>
        <translation>Storbritannia (Nord-Irland)</translation>
    </message>
    <message>
        <source>United Kingdom (Scotland)</source>
        <translation>Storbritannia (Skottland)</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Østerrike</translation>
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
        <translation>Sveits</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalendere (*.cal);;Alle filer (*)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>endring av %1</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Navnet er tomt.</translation>
    </message>
    <message>
        <source>Choose a type.</source>
        <translation>Velg en type.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The choice could not be stored in %1.</source>
        <translation>Valget kunne ikke lagres i %1.</translation>
    </message>
    <message>
        <source>the text has characters that can&apos;t be stored</source>
        <translation>teksten har tegn som ikke kan lagres</translation>
    </message>
    <message>
        <source>a text of more than 65535 bytes can&apos;t be stored</source>
        <translation>en tekst på mer enn 65535 byte kan ikke lagres</translation>
    </message>
    <message>
        <source>a date-time lies outside the years 100 to 9999</source>
        <translation>et tidspunkt ligger utenfor årene 100 til 9999</translation>
    </message>
    <message>
        <source>a date lies outside the years 100 to 9999</source>
        <translation>en dato ligger utenfor årene 100 til 9999</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, linje %2: %3</translation>
    </message>
    <message>
        <source>the number %1 does not fit %2 bits</source>
        <translation>tallet %1 får ikke plass i %2 bit</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number from 0 to %3</source>
        <translation>%1: &quot;%2&quot; er ikke et tall fra 0 til %3</translation>
    </message>
    <message>
        <source>%1: the range &quot;%2&quot; ends before it begins</source>
        <translation>%1: intervallet &quot;%2&quot; slutter før det begynner</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not red,green,blue</source>
        <translation>%1: &quot;%2&quot; er ikke rød,grønn,blå</translation>
    </message>
    <message>
        <source>a rule has six fields (tag | categories | areas | text colour | background | fade), this line has %1</source>
        <translation>en regel har seks felt (tagg | kategorier | områder | tekstfarge | bakgrunn | toning), denne linjen har %1</translation>
    </message>
    <message>
        <source>fade</source>
        <translation>toning</translation>
    </message>
    <message>
        <source>tag: it is empty; &quot;*&quot; stands for every tag</source>
        <translation>tagg: feltet er tomt; &quot;*&quot; står for alle tagger</translation>
    </message>
    <message>
        <source>tag: it must not hold &quot;|&quot;</source>
        <translation>tagg: feltet kan ikke inneholde &quot;|&quot;</translation>
    </message>
    <message>
        <source>tag: it must not begin with &quot;#&quot;; write &quot;?&quot; for it</source>
        <translation>tagg: feltet kan ikke begynne med &quot;#&quot;; skriv &quot;?&quot; i stedet</translation>
    </message>
    <message>
        <source>text colour</source>
        <translation>tekstfarge</translation>
    </message>
    <message>
        <source>background</source>
        <translation>bakgrunn</translation>
    </message>
    <message>
        <source>fade: it is not a number from 0 to 255</source>
        <translation>toning: ikke et tall fra 0 til 255</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>kategorier</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>områder</translation>
    </message>
    <message>
        <source>a date lies outside the calendar&apos;s years 2000 to 2039</source>
        <translation>en dato ligger utenfor kalenderens år 2000 til 2039</translation>
    </message>
    <message>
        <source>period %1 of day type %2 goes from minute %3 to minute %4</source>
        <translation>periode %1 for dagtype %2 går fra minutt %3 til minutt %4</translation>
    </message>
    <message>
        <source>the active flag of day type %1 is %2</source>
        <translation>aktivflagget for dagtype %1 er %2</translation>
    </message>
    <message>
        <source>the group flag of day type %1 is %2</source>
        <translation>gruppeflagget for dagtype %1 er %2</translation>
    </message>
    <message>
        <source>the number of periods of day type %1 is %2</source>
        <translation>antall perioder for dagtype %1 er %2</translation>
    </message>
    <message>
        <source>it ends within the %2 periods of day type %1</source>
        <translation>den slutter midt i de %2 periodene for dagtype %1</translation>
    </message>
    <message>
        <source>the row of day type %1 is %2</source>
        <translation>raden for dagtype %1 er %2</translation>
    </message>
    <message>
        <source>it has %1 bytes, and a schedule at least 186</source>
        <translation>den har %1 byte, et tidsprogram har minst 186</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>slutten mangler</translation>
    </message>
    <message>
        <source>the calendar flag is %1</source>
        <translation>kalenderflagget er %1</translation>
    </message>
    <message>
        <source>it goes on behind the schedule&apos;s %1 bytes</source>
        <translation>den fortsetter etter tidsprogrammets %1 byte</translation>
    </message>
    <message>
        <source>it has %1 bytes in place of 29220</source>
        <translation>den har %1 byte i stedet for 29220</translation>
    </message>
    <message>
        <source>the value of %1 is %2, not one of 0 to 23</source>
        <translation>verdien for %1 er %2, ikke en av 0 til 23</translation>
    </message>
    <message>
        <source>%1 is not a time schedule: %2.</source>
        <translation>%1 er ikke et tidsprogram: %2.</translation>
    </message>
    <message>
        <source>%1 is not a calendar: %2.</source>
        <translation>%1 er ikke en kalender: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 8, 0830 or 16:30.</source>
        <translation>&quot;%1&quot; er ikke et klokkeslett som 8, 0830 eller 16:30.</translation>
    </message>
    <message>
        <source>The time is missing.</source>
        <translation>Klokkeslettet mangler.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 59 minutes.</source>
        <translation>&quot;%1&quot; har mer enn 59 minutter.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies behind 24:00.</source>
        <translation>&quot;%1&quot; ligger etter 24:00.</translation>
    </message>
    <message>
        <source>a file of %1 bytes is no definition</source>
        <translation>en fil på %1 byte er ingen definisjon</translation>
    </message>
    <message>
        <source>all numbers for new files are taken</source>
        <translation>alle numre for nye filer er opptatt</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; (version %3 -&gt; %4)</source>
        <translation>%1 &apos;%2&apos; (versjon %3 -&gt; %4)</translation>
    </message>
    <message>
        <source>%1 Err:%2</source>
        <translation>%1 Feil: %2</translation>
    </message>
    <message>
        <source>the file ends too early, at its byte %1</source>
        <translation>filen slutter for tidlig, ved byte %1</translation>
    </message>
    <message>
        <source>It has the same number as %1; rename one of them.</source>
        <translation>Den har samme nummer som %1; gi en av dem nytt navn.</translation>
    </message>
    <message>
        <source>The file has %1 bytes: it is empty.</source>
        <translation>Filen har %1 byte: den er tom.</translation>
    </message>
    <message>
        <source>The file is damaged: it ends too early or holds a value that is none.</source>
        <translation>Filen er skadet: den slutter for tidlig eller har en ugyldig verdi.</translation>
    </message>
    <message>
        <source>The file&apos;s version is %1, not one of %2 to %3.</source>
        <translation>Filens versjon er %1, ikke en av %2 til %3.</translation>
    </message>
    <message>
        <source>the profile has no time schedule</source>
        <translation>profilen har ikke noe tidsprogram</translation>
    </message>
    <message>
        <source>the type id &quot;%1&quot; is not a whole number from 0 to 32767</source>
        <translation>typens nummer &quot;%1&quot; er ikke et heltall fra 0 til 32767</translation>
    </message>
    <message>
        <source>the settings file &quot;%1&quot; is not the plain name of a file of the application folder</source>
        <translation>innstillingsfilen &quot;%1&quot; er ikke bare navnet på en fil i programmets mappe</translation>
    </message>
    <message>
        <source>a line has three or four fields (id; kind; name; settings file), this one has %1</source>
        <translation>en linje har tre eller fire felt (nummer; slag; navn; innstillingsfil), denne har %1</translation>
    </message>
    <message>
        <source>the kind is empty</source>
        <translation>slaget er tomt</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>navnet er tomt</translation>
    </message>
    <message>
        <source>the type id %1 stands on an earlier line too</source>
        <translation>typens nummer %1 står også på en tidligere linje</translation>
    </message>
    <message>
        <source>the table is full: it has room for %1 types</source>
        <translation>tabellen er full: den har plass til %1 typer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; er ikke en verdi av typen %2</translation>
    </message>
    <message>
        <source>a value has the unknown type code %1</source>
        <translation>en verdi har den ukjente typekoden %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>tom</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>whole number (16 bits)</source>
        <translation>heltall (16 bit)</translation>
    </message>
    <message>
        <source>whole number (32 bits)</source>
        <translation>heltall (32 bit)</translation>
    </message>
    <message>
        <source>number (single)</source>
        <translation>tall (enkel presisjon)</translation>
    </message>
    <message>
        <source>number (double)</source>
        <translation>tall (dobbel presisjon)</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>valuta</translation>
    </message>
    <message>
        <source>date</source>
        <translation>dato</translation>
    </message>
    <message>
        <source>text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>ja eller nei</translation>
    </message>
    <message>
        <source>whole number (8 bits)</source>
        <translation>heltall (8 bit)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>ukjent</translation>
    </message>
    <message>
        <source>no ordinary file</source>
        <translation>ikke en vanlig fil</translation>
    </message>
    <message>
        <source>larger than 64 MB</source>
        <translation>større enn 64 MB</translation>
    </message>
    <message>
        <source>%1: a link that another user made is not followed</source>
        <translation>%1: en lenke som en annen bruker har opprettet, følges ikke</translation>
    </message>
    <message>
        <source>%1: leads in a circle</source>
        <translation>%1: går i ring</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>filen eller mappen finnes ikke</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>finnes allerede</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>disken er full</translation>
    </message>
    <message>
        <source>the access rights don&apos;t allow it</source>
        <translation>tilgangsrettighetene tillater det ikke</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>disken er skrivebeskyttet</translation>
    </message>
    <message>
        <source>a part of the path is not a folder</source>
        <translation>en del av banen er ikke en mappe</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>er en mappe</translation>
    </message>
    <message>
        <source>the disk has failed</source>
        <translation>diskfeil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day such as 2026-12-24, or 12-24 for every year</source>
        <translation>&quot;%1&quot; er ikke en dag som 2026-12-24, eller 12-24 for hvert år</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies outside the years %2 to %3</source>
        <translation>&quot;%1&quot; ligger utenfor årene %2 til %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day of the calendar</source>
        <translation>&quot;%1&quot; er ikke en dag i kalenderen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: give both days a year, or none of them</source>
        <translation>&quot;%1&quot;: gi begge dagene et årstall, eller ingen av dem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins</source>
        <translation>&quot;%1&quot; slutter før det begynner</translation>
    </message>
    <message>
        <source>a holiday has two fields (day | name), this line has %1</source>
        <translation>en helligdag har to felt (dag | navn), denne linjen har %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no last day</source>
        <translation>&quot;%1&quot; har ingen siste dag</translation>
    </message>
    <message>
        <source>the name must not hold &quot;|&quot;</source>
        <translation>navnet kan ikke inneholde &quot;|&quot;</translation>
    </message>
</context>
<context>
    <name>cDayTypeImages</name>
    <message>
        <source>Star</source>
        <translation>Stjerne</translation>
    </message>
    <message>
        <source>Half day</source>
        <translation>Halv dag</translation>
    </message>
    <message>
        <source>Fir tree</source>
        <translation>Grantre</translation>
    </message>
    <message>
        <source>Egg</source>
        <translation>Egg</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flagg</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Måne</translation>
    </message>
    <message>
        <source>Snowflake</source>
        <translation>Snøfnugg</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Hjerte</translation>
    </message>
    <message>
        <source>Suitcase</source>
        <translation>Koffert</translation>
    </message>
    <message>
        <source>Wrench</source>
        <translation>Skiftenøkkel</translation>
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
        <translation>Bjelle</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Nøkkel</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Klokke</translation>
    </message>
    <message>
        <source>Music note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Cup</source>
        <translation>Kopp</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Blad</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Hus</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>Rakett</translation>
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
        <translation>Spesiell dagtype %1</translation>
    </message>
    <message>
        <source>No special day type</source>
        <translation>Ingen spesiell dagtype</translation>
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
        <translation>Opprett en ny</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopier</translation>
    </message>
    <message>
        <source>Make a copy of the chosen one</source>
        <translation>Kopier den valgte</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Slett</translation>
    </message>
    <message>
        <source>Delete the chosen one</source>
        <translation>Slett den valgte</translation>
    </message>
    <message>
        <source>Sa&amp;ve this</source>
        <translation>&amp;Lagre denne</translation>
    </message>
    <message>
        <source>Save the chosen one; Ctrl+S saves all</source>
        <translation>Lagre den valgte; Ctrl+S lagrer alle</translation>
    </message>
    <message>
        <source>R&amp;evert</source>
        <translation>&amp;Tilbakestill</translation>
    </message>
    <message>
        <source>Give up the changes of the chosen one</source>
        <translation>Forkast endringene i den valgte</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation>Søk i listen</translation>
    </message>
</context>
<context>
    <name>cDialogPrompts</name>
    <message>
        <source>%1 has changes. Save them?</source>
        <translation>%1 har endringer. Vil du lagre dem?</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Behold min</translation>
    </message>
    <message>
        <source>&amp;Take theirs</source>
        <translation>&amp;Ta den andre</translation>
    </message>
    <message>
        <source>&amp;Show both</source>
        <translation>&amp;Vis begge</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Lagre som</translation>
    </message>
    <message>
        <source>&amp;Write again</source>
        <translation>&amp;Skriv på nytt</translation>
    </message>
    <message>
        <source>&amp;Remove here</source>
        <translation>&amp;Fjern her</translation>
    </message>
    <message>
        <source>Another program has changed the file of &quot;%1&quot; since it was read here. Keep your version, take the one in the file, or show both?</source>
        <translation>Et annet program har endret filen til &quot;%1&quot; siden den ble lest her. Vil du beholde din versjon, ta den i filen eller vise begge?</translation>
    </message>
    <message>
        <source>Another program has removed the file of &quot;%1&quot;. Write it again, or remove it here too?</source>
        <translation>Et annet program har fjernet filen til &quot;%1&quot;. Vil du skrive den på nytt eller fjerne den her også?</translation>
    </message>
</context>
<context>
    <name>vigrel::cActiveDayView</name>
    <message>
        <source>No&amp;w</source>
        <translation>N&amp;å</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>Dat&amp;o:</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>T&amp;id:</translation>
    </message>
    <message>
        <source>Day type: %1, by the calendar</source>
        <translation>Dagtype: %1, etter kalenderen</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar gives %2, which the schedule doesn&apos;t use</source>
        <translation>Dagtype: %1, etter ukedagen: kalenderen angir %2, som tidsprogrammet ikke bruker</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar says nothing of the date</source>
        <translation>Dagtype: %1, etter ukedagen: kalenderen sier ingenting om datoen</translation>
    </message>
    <message>
        <source>%1: active until %2</source>
        <translation>%1: aktiv til %2</translation>
    </message>
    <message>
        <source>%1: not active until %2</source>
        <translation>%1: ikke aktiv til %2</translation>
    </message>
    <message>
        <source>In a group with: %1</source>
        <translation>I gruppe med: %1</translation>
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
        <translation>Tidsprogrammet bruker ikke denne dagtypen: ingenting er aktivt.</translation>
    </message>
    <message>
        <source>The profile doesn&apos;t use its schedule.</source>
        <translation>Profilen bruker ikke tidsprogrammet sitt.</translation>
    </message>
    <message>
        <source>The day&apos;s 24 hours</source>
        <translation>Dagens 24 timer</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: no calendar is open</source>
        <translation>Dagtype: %1, etter ukedagen: ingen kalender er åpen</translation>
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
        <translation>Tekst som er taggen</translation>
    </message>
    <message>
        <source>Alarms of the station</source>
        <translation>Stasjonens alarmer</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tagg:</translation>
    </message>
    <message>
        <source>The station has no alarms yet.</source>
        <translation>Stasjonen har ingen alarmer ennå.</translation>
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
        <translation>Vis &amp;dagens perioder</translation>
    </message>
    <message>
        <source>Choose a day type and paint it over the days with the left mouse button.</source>
        <translation>Velg en dagtype og mal den over dagene med venstre museknapp.</translation>
    </message>
    <message>
        <source>Previous month (Page Up)</source>
        <translation>Forrige måned (Page Up)</translation>
    </message>
    <message>
        <source>Next month (Page Down)</source>
        <translation>Neste måned (Page Down)</translation>
    </message>
    <message>
        <source>To&amp;day</source>
        <translation>&amp;I dag</translation>
    </message>
    <message>
        <source>The month of today (Home)</source>
        <translation>Denne måneden (Home)</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>År</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Måned</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Day &amp;type to paint</source>
        <translation>Dagtype som &amp;males</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>H&amp;elligdager</translation>
    </message>
    <message>
        <source>T&amp;ime schedule</source>
        <translation>&amp;Tidsprogram</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Give the year&apos;s &amp;holidays the chosen day type</source>
        <translation>Gi årets helligdager &amp;den valgte dagtypen</translation>
    </message>
    <message>
        <source>Give &amp;all years&apos; holidays the chosen day type</source>
        <translation>Gi alle års &amp;helligdager den valgte dagtypen</translation>
    </message>
    <message>
        <source>&amp;Clear the year</source>
        <translation>&amp;Tøm året</translation>
    </message>
    <message>
        <source>Arrow keys choose a day, Space paints the day type</source>
        <translation>Piltastene velger dag, mellomrom maler dagtypen</translation>
    </message>
    <message>
        <source>painting days</source>
        <translation>maling av dager</translation>
    </message>
    <message>
        <source>painting holidays</source>
        <translation>maling av helligdager</translation>
    </message>
    <message>
        <source>Painted holidays: %1 (%2)</source>
        <translation>Malte helligdager: %1 (%2)</translation>
    </message>
    <message>
        <source>clearing a year</source>
        <translation>tømming av et år</translation>
    </message>
    <message>
        <source>clearing the calendar</source>
        <translation>tømming av kalenderen</translation>
    </message>
    <message>
        <source>Cop&amp;y the year to the next</source>
        <translation>&amp;Kopier året til det neste</translation>
    </message>
    <message>
        <source>copying a year</source>
        <translation>kopiering av et år</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>&amp;År</translation>
    </message>
    <message>
        <source>The whole year on one page</source>
        <translation>Hele året på én side</translation>
    </message>
    <message>
        <source>There are no holidays: choose their country, or write your own.</source>
        <translation>Det finnes ingen helligdager: velg landet deres, eller skriv egne.</translation>
    </message>
    <message>
        <source>%1 is the last year of a calendar: there is none to copy it to.</source>
        <translation>%1 er det siste året i en kalender: det finnes ikke noe å kopiere det til.</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourPreview</name>
    <message>
        <source>Tags to try</source>
        <translation>Tagger som prøves</translation>
    </message>
    <message>
        <source>Tags to try, one a line</source>
        <translation>Tagger som prøves, én per linje</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvisning</translation>
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
        <translation>Annenhver rad</translation>
    </message>
    <message>
        <source>Flashing</source>
        <translation>Blinkende</translation>
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
        <translation>Vanskelig å lese, regel og laveste kontrast (%1 er lesbart): %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarmer</translation>
    </message>
    <message>
        <source>Typed tags</source>
        <translation>Skrevne tagger</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesEditor</name>
    <message>
        <source>&amp;Add rule</source>
        <translation>&amp;Legg til regel</translation>
    </message>
    <message>
        <source>&amp;Delete rule</source>
        <translation>&amp;Slett regel</translation>
    </message>
    <message>
        <source>&amp;Move up</source>
        <translation>&amp;Flytt opp</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>Flytt &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Choose colour...</source>
        <translation>&amp;Velg farge...</translation>
    </message>
    <message>
        <source>Colour rules, tried from the first to the last</source>
        <translation>Fargeregler, prøves fra den første til den siste</translation>
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
        <translation>Områder</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Tekstfarge</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrunn</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Toning</translation>
    </message>
    <message>
        <source>A pattern: &quot;?&quot; is one character, &quot;*&quot; any run; case counts</source>
        <translation>Et mønster: &quot;?&quot; er ett tegn, &quot;*&quot; et vilkårlig antall; det skilles mellom store og små bokstaver</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 255, such as 5;7-9, or * for all</source>
        <translation>Tall og intervaller fra 0 til 255, f.eks. 5;7-9, eller * for alle</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 999, such as 5;7-9, or * for all</source>
        <translation>Tall og intervaller fra 0 til 999, f.eks. 5;7-9, eller * for alle</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 255,255,255</source>
        <translation>Rødt, grønt og blått fra 0 til 255, f.eks. 255,255,255</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 200,0,0</source>
        <translation>Rødt, grønt og blått fra 0 til 255, f.eks. 200,0,0</translation>
    </message>
    <message>
        <source>By how much every other row is darker, from 0 to 255</source>
        <translation>Hvor mye mørkere annenhver rad er, fra 0 til 255</translation>
    </message>
    <message>
        <source>Change rule</source>
        <translation>endring av regel</translation>
    </message>
    <message>
        <source>Add rule</source>
        <translation>tillegg av regel</translation>
    </message>
    <message>
        <source>Delete rule</source>
        <translation>sletting av regel</translation>
    </message>
    <message>
        <source>Move rule</source>
        <translation>flytting av regel</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farge</translation>
    </message>
    <message>
        <source>Gives the text of these rules the nearest colour that can be read</source>
        <translation>Gir teksten i disse reglene den nærmeste lesbare fargen</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>The least of text and ground: 4.5 is readable, 21 black on white</source>
        <translation>Den minste av tekst og bunn: 4,5 er lesbar, 21 svart på hvitt</translation>
    </message>
    <message>
        <source>making texts readable</source>
        <translation>lesbare tekster</translation>
    </message>
    <message>
        <source>Readable te&amp;xt colours</source>
        <translation>Lesbare te&amp;kstfarger</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesPage</name>
    <message>
        <source>Colour rules</source>
        <translation>Fargeregler</translation>
    </message>
    <message>
        <source>Colour rules (*.txt);;All files (*)</source>
        <translation>Fargeregler (*.txt);;Alle filer (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionList</name>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Søk (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>%1 i alt</translation>
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
        <translation>Ikke lagret ennå</translation>
    </message>
    <message>
        <source>Can&apos;t be saved: %1</source>
        <translation>Kan ikke lagres: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Another program has changed the file meanwhile.</source>
        <translation>Et annet program har endret filen i mellomtiden.</translation>
    </message>
    <message>
        <source>Another program has removed the file.</source>
        <translation>Et annet program har fjernet filen.</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionPage</name>
    <message>
        <source>adding &quot;%1&quot;</source>
        <translation>tillegg av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>copying &quot;%1&quot;</source>
        <translation>kopiering av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>Et annet program har endret filen siden den ble lest.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>sletting av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; er slettet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not deleted.</source>
        <translation>&quot;%1&quot; ble ikke slettet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved.

%2</source>
        <translation>&quot;%1&quot; kan ikke lagres.

%2</translation>
    </message>
    <message>
        <source>removing &quot;%1&quot;</source>
        <translation>fjerning av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The file of &quot;%1&quot; can&apos;t be read.</source>
        <translation>Filen til &quot;%1&quot; kan ikke leses.</translation>
    </message>
    <message>
        <source>showing both</source>
        <translation>visning av begge</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved.</source>
        <translation>&quot;%1&quot; ble ikke lagret.</translation>
    </message>
    <message>
        <source>Saved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; er lagret</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Lagret: %1</translation>
    </message>
    <message>
        <source>giving up the changes of &quot;%1&quot;</source>
        <translation>forkastede endringer i &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as its file has it</source>
        <translation>&quot;%1&quot; er som i sin fil</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is back without its file. Save it anew.</source>
        <translation>&quot;%1&quot; er tilbake uten sin fil. Lagre den på nytt.</translation>
    </message>
    <message>
        <source>taking over the changes of other programs</source>
        <translation>overtakelse av andre programmers endringer</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>overtakelse av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed &quot;%1&quot;</source>
        <translation>Et annet program har endret &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has removed &quot;%1&quot;</source>
        <translation>Et annet program har fjernet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Changed or removed by other programs: %1</source>
        <translation>Endret eller fjernet av andre programmer: %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionsWindow</name>
    <message>
        <source>Open pages</source>
        <translation>Åpne sider</translation>
    </message>
    <message>
        <source>Schedule %1</source>
        <translation>Tidsprogram %1</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Kalender %1</translation>
    </message>
    <message>
        <source>Vigrel Definitions</source>
        <translation>Vigrel definisjoner</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fil</translation>
    </message>
    <message>
        <source>&amp;New schedule</source>
        <translation>Nytt &amp;tidsprogram</translation>
    </message>
    <message>
        <source>New &amp;calendar</source>
        <translation>&amp;Ny kalender</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Å&amp;pne...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Åpn&amp;e nylige</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>L&amp;agre</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Lagre &amp;som...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Lukk</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>A&amp;vslutt</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ingen ennå</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Rediger</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Angre</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gjør om</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Angre %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Gjør om %1</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Vis</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Next page</source>
        <translation>&amp;Neste side</translation>
    </message>
    <message>
        <source>&amp;Previous page</source>
        <translation>&amp;Forrige side</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Stasjon</translation>
    </message>
    <message>
        <source>&amp;Receivers</source>
        <translation>&amp;Mottakere</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profiler</translation>
    </message>
    <message>
        <source>&amp;Colour rules</source>
        <translation>&amp;Fargeregler</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjelp</translation>
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

Alarmmottakerens tidsprogrammer, kalendere, mottakere, profiler og fargeregler.
Programmets mappe: %3</translation>
    </message>
    <message>
        <source>What do you want to edit?</source>
        <translation>Hva vil du redigere?</translation>
    </message>
    <message>
        <source>Ne&amp;w schedule</source>
        <translation>N&amp;ytt tidsprogram</translation>
    </message>
    <message>
        <source>New c&amp;alendar</source>
        <translation>&amp;Ny kalender</translation>
    </message>
    <message>
        <source>&amp;Receivers of the station</source>
        <translation>Stasjonens &amp;mottakere</translation>
    </message>
    <message>
        <source>&amp;Profiles of the station</source>
        <translation>St&amp;asjonens profiler</translation>
    </message>
    <message>
        <source>&amp;Colour rules of the station</source>
        <translation>S&amp;tasjonens fargeregler</translation>
    </message>
    <message>
        <source>%1 can&apos;t be printed.

%2</source>
        <translation>%1 kan ikke skrives ut.

%2</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 ble ikke skrevet ut.</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF-filer (*.pdf);;Alle filer (*)</translation>
    </message>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Filen ble ikke lagret.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 er lagret</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Skriv &amp;ut...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Lagre som P&amp;DF...</translation>
    </message>
    <message>
        <source>Schedules, calendars, lists of the station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;All files (*)</source>
        <translation>Tidsprogrammer, kalendere, stasjonens lister (*.sch *.cal ColourRules.txt OwnHolidays.txt);;Alle filer (*)</translation>
    </message>
    <message>
        <source>&amp;As large as the window</source>
        <translation>&amp;Så stor som vinduet</translation>
    </message>
    <message>
        <source>Own &amp;holidays</source>
        <translation>&amp;Egne helligdager</translation>
    </message>
    <message>
        <source>Own holi&amp;days of the station</source>
        <translation>Stasjonens egne he&amp;lligdager</translation>
    </message>
</context>
<context>
    <name>vigrel::cFileDocument</name>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Filen ble ikke lagret.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 er lagret</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>overtakelse av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is read again: another program has changed it</source>
        <translation>%1 er lest på nytt: et annet program har endret den</translation>
    </message>
    <message>
        <source>opening &quot;%1&quot;</source>
        <translation>åpning av &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>vigrel::cFilePage</name>
    <message>
        <source>%1 can&apos;t be saved.

%2</source>
        <translation>%1 kan ikke lagres.

%2</translation>
    </message>
</context>
<context>
    <name>vigrel::cLineProblemsLabel</name>
    <message>
        <source>Some lines were not understood. They stay in the file:
%1</source>
        <translation>Noen linjer ble ikke forstått. De blir stående i filen:
%1</translation>
    </message>
</context>
<context>
    <name>vigrel::cNoteBar</name>
    <message>
        <source>What happened to files</source>
        <translation>Hva som skjedde med filer</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Files brought up to a new version: %1.</source>
        <translation>Filer som er oppdatert til ny versjon: %1.</translation>
    </message>
    <message>
        <source>Files of an older version that could not be written anew: %1. They stay as they are.</source>
        <translation>Filer av eldre versjon som ikke kunne skrives på nytt: %1. De forblir som de er.</translation>
    </message>
    <message>
        <source>What could not be read: %1.</source>
        <translation>Kunne ikke leses: %1.</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysEditor</name>
    <message>
        <source>&amp;Add holiday</source>
        <translation>&amp;Legg til helligdag</translation>
    </message>
    <message>
        <source>&amp;Delete holiday</source>
        <translation>Sl&amp;ett helligdag</translation>
    </message>
    <message>
        <source>A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the country&apos;s holidays.</source>
        <translation>En dag skrives 2026-12-24, eller 12-24 for hvert år. Kalendere markerer disse dagene ved siden av landets helligdager.</translation>
    </message>
    <message>
        <source>Own holidays</source>
        <translation>Egne helligdager</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Første dag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Siste dag</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Hvert år</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Helligdag</translation>
    </message>
    <message>
        <source>changing a holiday</source>
        <translation>endring av helligdag</translation>
    </message>
    <message>
        <source>Company holiday</source>
        <translation>Bedriftens fridag</translation>
    </message>
    <message>
        <source>adding a holiday</source>
        <translation>tillegg av helligdag</translation>
    </message>
    <message>
        <source>deleting a holiday</source>
        <translation>sletting av helligdag</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysPage</name>
    <message>
        <source>Own holidays</source>
        <translation>Egne helligdager</translation>
    </message>
    <message>
        <source>Own holidays (*.txt);;All files (*)</source>
        <translation>Egne helligdager (*.txt);;Alle filer (*)</translation>
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
        <translation>En annen kalender...</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Denne profilen</translation>
    </message>
    <message>
        <source>A new calendar</source>
        <translation>En ny kalender</translation>
    </message>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalendere (*.cal);;Alle filer (*)</translation>
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
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Betingelser</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Mottakere</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Tidsprogram</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Ekstern</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systemer</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Navn:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>En&amp;abled: the profile takes part</source>
        <translation>&amp;Aktiv: profilen deltar</translation>
    </message>
    <message>
        <source>States:</source>
        <translation>Tilstander:</translation>
    </message>
    <message>
        <source>State %1</source>
        <translation>Tilstand %1</translation>
    </message>
    <message>
        <source>&amp;Off duty behaviour:</source>
        <translation>&amp;Oppførsel utenfor vakt:</translation>
    </message>
    <message>
        <source>Off duty behaviour</source>
        <translation>Oppførsel utenfor vakt</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>ikke lagret ennå</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, lagret %2</translation>
    </message>
    <message>
        <source>Condition &amp;%1:</source>
        <translation>Betingelse &amp;%1:</translation>
    </message>
    <message>
        <source>Condition %1</source>
        <translation>Betingelse %1</translation>
    </message>
    <message>
        <source>Parallel: all at once</source>
        <translation>Parallelt: alle samtidig</translation>
    </message>
    <message>
        <source>Parallel receivers</source>
        <translation>Parallelle mottakere</translation>
    </message>
    <message>
        <source>Sequential: one after the other</source>
        <translation>Sekvensielt: én etter én</translation>
    </message>
    <message>
        <source>Sequential receivers</source>
        <translation>Sekvensielle mottakere</translation>
    </message>
    <message>
        <source>&amp;Use this time schedule</source>
        <translation>&amp;Bruk dette tidsprogrammet</translation>
    </message>
    <message>
        <source>the periods in the calendar</source>
        <translation>periodene i kalenderen</translation>
    </message>
    <message>
        <source>Use an external &amp;tag</source>
        <translation>Bruk &amp;en ekstern tagg</translation>
    </message>
    <message>
        <source>Tag &amp;name:</source>
        <translation>&amp;Taggens navn:</translation>
    </message>
    <message>
        <source>Tag name</source>
        <translation>Taggens navn</translation>
    </message>
    <message>
        <source>&amp;Ignore this tag in other profiles</source>
        <translation>Ignorer &amp;denne taggen i andre profiler</translation>
    </message>
    <message>
        <source>Use an external fi&amp;le</source>
        <translation>&amp;Bruk en ekstern fil</translation>
    </message>
    <message>
        <source>File &amp;path:</source>
        <translation>Fi&amp;lbane:</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Filbane</translation>
    </message>
    <message>
        <source>Te&amp;xt in the file:</source>
        <translation>Tekst &amp;i filen:</translation>
    </message>
    <message>
        <source>Text in the file</source>
        <translation>Tekst i filen</translation>
    </message>
    <message>
        <source>&amp;Only alarms of these systems:</source>
        <translation>&amp;Bare alarmer fra disse systemene:</translation>
    </message>
    <message>
        <source>System %1</source>
        <translation>System %1</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>systemer</translation>
    </message>
    <message>
        <source>Active when?</source>
        <translation>Når aktiv?</translation>
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
        <translation>Betingelser</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot; and its file?</source>
        <translation>Vil du slette profilen &quot;%1&quot; og filen?</translation>
    </message>
    <message>
        <source>There are no profiles yet. A profile says which alarms go to which receivers, and when.</source>
        <translation>Det finnes ingen profiler ennå. En profil sier hvilke alarmer som går til hvilke mottakere, og når.</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverForm</name>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Navn:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>En&amp;abled: alarms go to this receiver</source>
        <translation>&amp;Aktiv: alarmer går til denne mottakeren</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type:</translation>
    </message>
    <message>
        <source>Parallel numbers</source>
        <translation>Parallelle numre</translation>
    </message>
    <message>
        <source>&amp;Parallel numbers:</source>
        <translation>&amp;Parallelle numre:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fil:</translation>
    </message>
    <message>
        <source>(choose a type)</source>
        <translation>(velg en type)</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>ikke lagret ennå</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, lagret %2</translation>
    </message>
    <message>
        <source>Setting %1</source>
        <translation>Innstilling %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverPicker</name>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Opp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>No other saved receiver</source>
        <translation>Ingen annen lagret mottaker</translation>
    </message>
    <message>
        <source>(not a receiver: %1)</source>
        <translation>(ingen mottaker: %1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>(missing receiver %1)</source>
        <translation>(mottaker %1 mangler)</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiversPage</name>
    <message>
        <source>Receivers</source>
        <translation>Mottakere</translation>
    </message>
    <message>
        <source>New receiver</source>
        <translation>Ny mottaker</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Delete the receiver &quot;%1&quot; and its file?</source>
        <translation>Vil du slette mottakeren &quot;%1&quot; og filen?</translation>
    </message>
    <message>
        <source>These profiles send alarms to it:
%1</source>
        <translation>Disse profilene sender alarmer til den:
%1</translation>
    </message>
    <message>
        <source>There are no receivers yet. A receiver is one place that alarms can go to.</source>
        <translation>Det finnes ingen mottakere ennå. En mottaker er ett sted som alarmer kan gå til.</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleEditor</name>
    <message>
        <source>Day &amp;names in the rows</source>
        <translation>&amp;Dagnavn i radene</translation>
    </message>
    <message>
        <source>Special &amp;day types</source>
        <translation>S&amp;pesielle dagtyper</translation>
    </message>
    <message>
        <source>I&amp;mage of the day type</source>
        <translation>Dagtypens &amp;bilde</translation>
    </message>
    <message>
        <source>Drag in a row to make a period, drag its ends to change it. The right mouse button opens the menu.</source>
        <translation>Dra i en rad for å lage en periode, dra i endene for å endre den. Høyre museknapp åpner menyen.</translation>
    </message>
    <message>
        <source>Selected period</source>
        <translation>Valgt periode</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Tid under pekeren</translation>
    </message>
    <message>
        <source>A time of day, such as 8, 0830 or 16:30</source>
        <translation>Et klokkeslett, f.eks. 8, 0830 eller 16:30</translation>
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
        <translation>Peker ved</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Rows for the day types that a calendar gives to dates</source>
        <translation>Rader for dagtypene som en kalender gir datoer</translation>
    </message>
    <message>
        <source>Day types in use</source>
        <translation>Dagtyper i bruk</translation>
    </message>
    <message>
        <source>Not taken over: %1</source>
        <translation>Ikke overtatt: %1</translation>
    </message>
    <message>
        <source>No day chosen</source>
        <translation>Ingen dag valgt</translation>
    </message>
    <message>
        <source>%1, changed together with %2</source>
        <translation>%1, endres sammen med %2</translation>
    </message>
    <message>
        <source>&amp;Copy the day</source>
        <translation>&amp;Kopier dagen</translation>
    </message>
    <message>
        <source>&amp;Paste into the day</source>
        <translation>&amp;Lim inn i dagen</translation>
    </message>
    <message>
        <source>&amp;Delete the period</source>
        <translation>&amp;Slett perioden</translation>
    </message>
    <message>
        <source>&amp;Whole day</source>
        <translation>&amp;Hele dagen</translation>
    </message>
    <message>
        <source>&amp;Invert the day</source>
        <translation>&amp;Inverter dagen</translation>
    </message>
    <message>
        <source>&amp;Grouped</source>
        <translation>G&amp;ruppert</translation>
    </message>
    <message>
        <source>Monday to &amp;Friday grouped</source>
        <translation>&amp;Mandag til fredag gruppert</translation>
    </message>
    <message>
        <source>Re&amp;name the day type...</source>
        <translation>Gi &amp;dagtypen nytt navn...</translation>
    </message>
    <message>
        <source>deleting a period</source>
        <translation>sletting av en periode</translation>
    </message>
    <message>
        <source>pasting a day</source>
        <translation>innliming av en dag</translation>
    </message>
    <message>
        <source>the whole day</source>
        <translation>hele dagen</translation>
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
        <translation>gruppering av mandag til fredag</translation>
    </message>
    <message>
        <source>typing times</source>
        <translation>inntasting av tider</translation>
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
        <translation>spesielle dagtyper</translation>
    </message>
    <message>
        <source>adding a row</source>
        <translation>tillegg av en rad</translation>
    </message>
    <message>
        <source>removing a row</source>
        <translation>fjerning av en rad</translation>
    </message>
    <message>
        <source>Choose a special day type: only those have names and images of your own.</source>
        <translation>Velg en spesiell dagtype: bare de har egne navn og bilder.</translation>
    </message>
    <message>
        <source>Name of the day type</source>
        <translation>Dagtypens navn</translation>
    </message>
    <message>
        <source>dragging a period</source>
        <translation>draing av en periode</translation>
    </message>
    <message>
        <source>moving an end</source>
        <translation>flytting av en ende</translation>
    </message>
    <message>
        <source>a new period</source>
        <translation>ny periode</translation>
    </message>
    <message>
        <source>The day has no gap for another period.</source>
        <translation>Dagen har ikke plass til flere perioder.</translation>
    </message>
    <message>
        <source>renaming a day type</source>
        <translation>nytt navn på en dagtype</translation>
    </message>
    <message>
        <source>choosing an image</source>
        <translation>valg av et bilde</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleFrame</name>
    <message>
        <source>Time schedule</source>
        <translation>Tidsprogram</translation>
    </message>
    <message>
        <source>Arrow keys choose a day and a period, Insert makes a period, Delete removes one</source>
        <translation>Piltastene velger dag og periode, Insert lager en periode, Delete fjerner en</translation>
    </message>
    <message>
        <source>Rows of the time schedule</source>
        <translation>Tidsprogrammets rader</translation>
    </message>
</context>
<context>
    <name>vigrel::cSchedulePage</name>
    <message>
        <source>Time schedules (*.sch);;All files (*)</source>
        <translation>Tidsprogrammer (*.sch);;Alle filer (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cSettingEdit</name>
    <message>
        <source>whole number, -32768 to 32767</source>
        <translation>heltall, -32768 til 32767</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>heltall</translation>
    </message>
    <message>
        <source>whole number, 0 to 255</source>
        <translation>heltall, 0 til 255</translation>
    </message>
    <message>
        <source>number</source>
        <translation>tall</translation>
    </message>
    <message>
        <source>number, at most 4 decimals</source>
        <translation>tall, høyst 4 desimaler</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>The number is missing.</source>
        <translation>Tallet mangler.</translation>
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
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ingen</translation>
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
        <translation>Bare bokstaver og tegn fra vesteuropeiske språk kan lagres.</translation>
    </message>
</context>
</TS>
