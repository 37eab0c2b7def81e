<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="en">
<context>
    <name>Country</name>
    <message>
        <source>Germany</source>
        <translation>Saksa</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Tanska</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Suomi</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norja</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Ruotsi</translation>
    </message>
    <message>
        <source>United Kingdom (England and Wales)</source>
        <translation>Iso-Britannia (Englanti ja Wales)</translation>
    </message>
    <message>
        <source>United Kingdom (Northern Ireland)</source>
        <translation>Iso-Britannia (Pohjois-Irlanti)</translation>
    </message>
    <message>
        <source>United Kingdom (Scotland)</source>
        <translation>Iso-Britannia (Skotlanti)</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Itävalta</translation>
    </message>
    <message>
        <source>Germany (Baden-Wuerttemberg)</source>
        <translation>Saksa (Baden-Württemberg)</translation>
    </message>
    <message>
        <source>Germany (Bavaria)</source>
        <translation>Saksa (Baijeri)</translation>
    </message>
    <message>
        <source>Germany (Berlin)</source>
        <translation>Saksa (Berliini)</translation>
    </message>
    <message>
        <source>Germany (Brandenburg)</source>
        <translation>Saksa (Brandenburg)</translation>
    </message>
    <message>
        <source>Germany (Bremen)</source>
        <translation>Saksa (Bremen)</translation>
    </message>
    <message>
        <source>Germany (Hamburg)</source>
        <translation>Saksa (Hampuri)</translation>
    </message>
    <message>
        <source>Germany (Hesse)</source>
        <translation>Saksa (Hessen)</translation>
    </message>
    <message>
        <source>Germany (Mecklenburg-Western Pomerania)</source>
        <translation>Saksa (Mecklenburg-Etu-Pommeri)</translation>
    </message>
    <message>
        <source>Germany (Lower Saxony)</source>
        <translation>Saksa (Ala-Saksi)</translation>
    </message>
    <message>
        <source>Germany (North Rhine-Westphalia)</source>
        <translation>Saksa (Nordrhein-Westfalen)</translation>
    </message>
    <message>
        <source>Germany (Rhineland-Palatinate)</source>
        <translation>Saksa (Rheinland-Pfalz)</translation>
    </message>
    <message>
        <source>Germany (Saarland)</source>
        <translation>Saksa (Saarland)</translation>
    </message>
    <message>
        <source>Germany (Saxony)</source>
        <translation>Saksa (Saksi)</translation>
    </message>
    <message>
        <source>Germany (Saxony-Anhalt)</source>
        <translation>Saksa (Saksi-Anhalt)</translation>
    </message>
    <message>
        <source>Germany (Schleswig-Holstein)</source>
        <translation>Saksa (Schleswig-Holstein)</translation>
    </message>
    <message>
        <source>Germany (Thuringia)</source>
        <translation>Saksa (Thüringen)</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Sveitsi</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalenterit (*.cal);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>changing %1</source>
        <translation>muutos: %1</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Nimi on tyhjä.</translation>
    </message>
    <message>
        <source>Choose a type.</source>
        <translation>Valitse tyyppi.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The choice could not be stored in %1.</source>
        <translation>Valintaa ei voitu tallentaa tiedostoon %1.</translation>
    </message>
    <message>
        <source>the text has characters that can&apos;t be stored</source>
        <translation>tekstissä on merkkejä, joita ei voida tallentaa</translation>
    </message>
    <message>
        <source>a text of more than 65535 bytes can&apos;t be stored</source>
        <translation>yli 65535 tavun tekstiä ei voida tallentaa</translation>
    </message>
    <message>
        <source>a date-time lies outside the years 100 to 9999</source>
        <translation>ajankohta ei ole vuosien 100–9999 sisällä</translation>
    </message>
    <message>
        <source>a date lies outside the years 100 to 9999</source>
        <translation>päivämäärä ei ole vuosien 100–9999 sisällä</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, rivi %2: %3</translation>
    </message>
    <message>
        <source>the number %1 does not fit %2 bits</source>
        <translation>luku %1 ei mahdu %2 bittiin</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a number from 0 to %3</source>
        <translation>%1: &quot;%2&quot; ei ole luku väliltä 0–%3</translation>
    </message>
    <message>
        <source>%1: the range &quot;%2&quot; ends before it begins</source>
        <translation>%1: alue &quot;%2&quot; päättyy ennen alkuaan</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not red,green,blue</source>
        <translation>%1: &quot;%2&quot; ei ole muotoa punainen,vihreä,sininen</translation>
    </message>
    <message>
        <source>a rule has six fields (tag | categories | areas | text colour | background | fade), this line has %1</source>
        <translation>säännössä on kuusi kenttää (tunnus | ryhmät | alueet | tekstin väri | tausta | sävytys), tällä rivillä niitä on %1</translation>
    </message>
    <message>
        <source>fade</source>
        <translation>sävytys</translation>
    </message>
    <message>
        <source>tag: it is empty; &quot;*&quot; stands for every tag</source>
        <translation>tunnus: kenttä on tyhjä; &quot;*&quot; tarkoittaa kaikkia tunnuksia</translation>
    </message>
    <message>
        <source>tag: it must not hold &quot;|&quot;</source>
        <translation>tunnus: kentässä ei saa olla merkkiä &quot;|&quot;</translation>
    </message>
    <message>
        <source>tag: it must not begin with &quot;#&quot;; write &quot;?&quot; for it</source>
        <translation>tunnus: kenttä ei saa alkaa merkillä &quot;#&quot;; kirjoita sen sijaan &quot;?&quot;</translation>
    </message>
    <message>
        <source>text colour</source>
        <translation>tekstin väri</translation>
    </message>
    <message>
        <source>background</source>
        <translation>tausta</translation>
    </message>
    <message>
        <source>fade: it is not a number from 0 to 255</source>
        <translation>sävytys: ei ole luku väliltä 0–255</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>ryhmät</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>alueet</translation>
    </message>
    <message>
        <source>a date lies outside the calendar&apos;s years 2000 to 2039</source>
        <translation>päivämäärä ei ole kalenterin vuosien 2000–2039 sisällä</translation>
    </message>
    <message>
        <source>period %1 of day type %2 goes from minute %3 to minute %4</source>
        <translation>päivätyypin %2 jakso %1 kulkee minuutista %3 minuuttiin %4</translation>
    </message>
    <message>
        <source>the active flag of day type %1 is %2</source>
        <translation>päivätyypin %1 käyttömerkintä on %2</translation>
    </message>
    <message>
        <source>the group flag of day type %1 is %2</source>
        <translation>päivätyypin %1 ryhmämerkintä on %2</translation>
    </message>
    <message>
        <source>the number of periods of day type %1 is %2</source>
        <translation>päivätyypin %1 jaksojen määrä on %2</translation>
    </message>
    <message>
        <source>it ends within the %2 periods of day type %1</source>
        <translation>se päättyy kesken päivätyypin %1 jaksojen, joita on %2</translation>
    </message>
    <message>
        <source>the row of day type %1 is %2</source>
        <translation>päivätyypin %1 rivi on %2</translation>
    </message>
    <message>
        <source>it has %1 bytes, and a schedule at least 186</source>
        <translation>siinä on %1 tavua, aikaohjelmassa vähintään 186</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>sen loppu puuttuu</translation>
    </message>
    <message>
        <source>the calendar flag is %1</source>
        <translation>kalenterimerkintä on %1</translation>
    </message>
    <message>
        <source>it goes on behind the schedule&apos;s %1 bytes</source>
        <translation>se jatkuu aikaohjelman %1 tavun jälkeen</translation>
    </message>
    <message>
        <source>it has %1 bytes in place of 29220</source>
        <translation>siinä on %1 tavua, pitäisi olla 29220</translation>
    </message>
    <message>
        <source>the value of %1 is %2, not one of 0 to 23</source>
        <translation>päivän %1 arvo on %2, ei väliltä 0–23</translation>
    </message>
    <message>
        <source>%1 is not a time schedule: %2.</source>
        <translation>Tiedosto %1 ei ole aikaohjelma: %2.</translation>
    </message>
    <message>
        <source>%1 is not a calendar: %2.</source>
        <translation>Tiedosto %1 ei ole kalenteri: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time such as 8, 0830 or 16:30.</source>
        <translation>&quot;%1&quot; ei ole kellonaika, kuten 8, 0830 tai 16:30.</translation>
    </message>
    <message>
        <source>The time is missing.</source>
        <translation>Kellonaika puuttuu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than 59 minutes.</source>
        <translation>Ajassa &quot;%1&quot; on yli 59 minuuttia.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies behind 24:00.</source>
        <translation>&quot;%1&quot; on klo 24:00 jälkeen.</translation>
    </message>
    <message>
        <source>a file of %1 bytes is no definition</source>
        <translation>%1 tavun tiedosto ei ole määrittely</translation>
    </message>
    <message>
        <source>all numbers for new files are taken</source>
        <translation>kaikki uusien tiedostojen numerot ovat käytössä</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; (version %3 -&gt; %4)</source>
        <translation>%1 &apos;%2&apos; (versio %3 -&gt; %4)</translation>
    </message>
    <message>
        <source>%1 Err:%2</source>
        <translation>%1 Virhe: %2</translation>
    </message>
    <message>
        <source>the file ends too early, at its byte %1</source>
        <translation>tiedosto päättyy liian aikaisin, tavuun %1</translation>
    </message>
    <message>
        <source>It has the same number as %1; rename one of them.</source>
        <translation>Sillä on sama numero kuin tiedostolla %1; nimeä toinen niistä uudelleen.</translation>
    </message>
    <message>
        <source>The file has %1 bytes: it is empty.</source>
        <translation>Tiedoston koko tavuina on %1: se on tyhjä.</translation>
    </message>
    <message>
        <source>The file is damaged: it ends too early or holds a value that is none.</source>
        <translation>Tiedosto on vioittunut: se päättyy liian aikaisin tai siinä on kelpaamaton arvo.</translation>
    </message>
    <message>
        <source>The file&apos;s version is %1, not one of %2 to %3.</source>
        <translation>Tiedoston versio on %1, ei väliltä %2–%3.</translation>
    </message>
    <message>
        <source>the profile has no time schedule</source>
        <translation>profiililla ei ole aikaohjelmaa</translation>
    </message>
    <message>
        <source>the type id &quot;%1&quot; is not a whole number from 0 to 32767</source>
        <translation>tyypin numero &quot;%1&quot; ei ole kokonaisluku väliltä 0–32767</translation>
    </message>
    <message>
        <source>the settings file &quot;%1&quot; is not the plain name of a file of the application folder</source>
        <translation>asetustiedosto &quot;%1&quot; ei ole pelkkä ohjelman kansiossa olevan tiedoston nimi</translation>
    </message>
    <message>
        <source>a line has three or four fields (id; kind; name; settings file), this one has %1</source>
        <translation>rivillä on kolme tai neljä kenttää (numero; laji; nimi; asetustiedosto), tällä niitä on %1</translation>
    </message>
    <message>
        <source>the kind is empty</source>
        <translation>laji on tyhjä</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>nimi on tyhjä</translation>
    </message>
    <message>
        <source>the type id %1 stands on an earlier line too</source>
        <translation>tyypin numero %1 on jo aiemmalla rivillä</translation>
    </message>
    <message>
        <source>the table is full: it has room for %1 types</source>
        <translation>taulukko on täynnä: enimmäismäärä on %1 tyyppiä</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; ei ole arvo, jonka tyyppi on %2</translation>
    </message>
    <message>
        <source>a value has the unknown type code %1</source>
        <translation>arvolla on tuntematon tyyppikoodi %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>tyhjä</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>whole number (16 bits)</source>
        <translation>kokonaisluku (16 bittiä)</translation>
    </message>
    <message>
        <source>whole number (32 bits)</source>
        <translation>kokonaisluku (32 bittiä)</translation>
    </message>
    <message>
        <source>number (single)</source>
        <translation>luku (yksinkertainen tarkkuus)</translation>
    </message>
    <message>
        <source>number (double)</source>
        <translation>luku (kaksinkertainen tarkkuus)</translation>
    </message>
    <message>
        <source>currency</source>
        <translation>valuutta</translation>
    </message>
    <message>
        <source>date</source>
        <translation>päivämäärä</translation>
    </message>
    <message>
        <source>text</source>
        <translation>teksti</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>kyllä tai ei</translation>
    </message>
    <message>
        <source>whole number (8 bits)</source>
        <translation>kokonaisluku (8 bittiä)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>tuntematon</translation>
    </message>
    <message>
        <source>no ordinary file</source>
        <translation>ei tavallinen tiedosto</translation>
    </message>
    <message>
        <source>larger than 64 MB</source>
        <translation>suurempi kuin 64 Mt</translation>
    </message>
    <message>
        <source>%1: a link that another user made is not followed</source>
        <translation>%1: toisen käyttäjän luomaa linkkiä ei seurata</translation>
    </message>
    <message>
        <source>%1: leads in a circle</source>
        <translation>%1: kiertää kehää</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>tiedostoa tai kansiota ei ole</translation>
    </message>
    <message>
        <source>it is there already</source>
        <translation>on jo olemassa</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>levy on täynnä</translation>
    </message>
    <message>
        <source>the access rights don&apos;t allow it</source>
        <translation>käyttöoikeudet eivät riitä</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>levy on kirjoitussuojattu</translation>
    </message>
    <message>
        <source>a part of the path is not a folder</source>
        <translation>osa polusta ei ole kansio</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>on kansio</translation>
    </message>
    <message>
        <source>the disk has failed</source>
        <translation>levyvirhe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day such as 2026-12-24, or 12-24 for every year</source>
        <translation>&quot;%1&quot; ei ole päivä kuten 2026-12-24, tai 12-24 joka vuodelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lies outside the years %2 to %3</source>
        <translation>&quot;%1&quot; ei ole vuosien %2–%3 sisällä</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no day of the calendar</source>
        <translation>&quot;%1&quot; ei ole kalenterin päivä</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: give both days a year, or none of them</source>
        <translation>&quot;%1&quot;: anna vuosi molemmille päiville tai ei kummallekaan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends before it begins</source>
        <translation>&quot;%1&quot; päättyy ennen kuin se alkaa</translation>
    </message>
    <message>
        <source>a holiday has two fields (day | name), this line has %1</source>
        <translation>pyhäpäivällä on kaksi kenttää (päivä | nimi), tällä rivillä on %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no last day</source>
        <translation>kohdasta &quot;%1&quot; puuttuu viimeinen päivä</translation>
    </message>
    <message>
        <source>the name must not hold &quot;|&quot;</source>
        <translation>nimessä ei saa olla merkkiä &quot;|&quot;</translation>
    </message>
</context>
<context>
    <name>cDayTypeImages</name>
    <message>
        <source>Star</source>
        <translation>Tähti</translation>
    </message>
    <message>
        <source>Half day</source>
        <translation>Puolipäivä</translation>
    </message>
    <message>
        <source>Fir tree</source>
        <translation>Kuusi</translation>
    </message>
    <message>
        <source>Egg</source>
        <translation>Muna</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Aurinko</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Lippu</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Kuu</translation>
    </message>
    <message>
        <source>Snowflake</source>
        <translation>Lumihiutale</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Sydän</translation>
    </message>
    <message>
        <source>Suitcase</source>
        <translation>Matkalaukku</translation>
    </message>
    <message>
        <source>Wrench</source>
        <translation>Jakoavain</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Kirja</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>Sateenvarjo</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Soittokello</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Avain</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Kello</translation>
    </message>
    <message>
        <source>Music note</source>
        <translation>Nuotti</translation>
    </message>
    <message>
        <source>Cup</source>
        <translation>Kuppi</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Lehti</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Talo</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>Raketti</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Timantti</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Risti</translation>
    </message>
</context>
<context>
    <name>cDayTypeNames</name>
    <message>
        <source>Special day type %1</source>
        <translation>Erityispäivä %1</translation>
    </message>
    <message>
        <source>No special day type</source>
        <translation>Ei erityispäivää</translation>
    </message>
</context>
<context>
    <name>cDefinitionActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Uusi</translation>
    </message>
    <message>
        <source>Make a new one</source>
        <translation>Luo uusi</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>Make a copy of the chosen one</source>
        <translation>Kopioi valittu</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Po&amp;ista</translation>
    </message>
    <message>
        <source>Delete the chosen one</source>
        <translation>Poista valittu</translation>
    </message>
    <message>
        <source>Sa&amp;ve this</source>
        <translation>T&amp;allenna tämä</translation>
    </message>
    <message>
        <source>Save the chosen one; Ctrl+S saves all</source>
        <translation>Tallenna valittu; Ctrl+S tallentaa kaikki</translation>
    </message>
    <message>
        <source>R&amp;evert</source>
        <translation>&amp;Palauta</translation>
    </message>
    <message>
        <source>Give up the changes of the chosen one</source>
        <translation>Hylkää valitun muutokset</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Etsi</translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation>Etsi luettelosta</translation>
    </message>
</context>
<context>
    <name>cDialogPrompts</name>
    <message>
        <source>%1 has changes. Save them?</source>
        <translation>Kohteessa %1 on muutoksia. Tallennetaanko ne?</translation>
    </message>
    <message>
        <source>&amp;Keep mine</source>
        <translation>&amp;Pidä oma</translation>
    </message>
    <message>
        <source>&amp;Take theirs</source>
        <translation>&amp;Ota toinen</translation>
    </message>
    <message>
        <source>&amp;Show both</source>
        <translation>&amp;Näytä molemmat</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Tallenna nimellä</translation>
    </message>
    <message>
        <source>&amp;Write again</source>
        <translation>&amp;Kirjoita uudelleen</translation>
    </message>
    <message>
        <source>&amp;Remove here</source>
        <translation>&amp;Poista täältä</translation>
    </message>
    <message>
        <source>Another program has changed the file of &quot;%1&quot; since it was read here. Keep your version, take the one in the file, or show both?</source>
        <translation>Toinen ohjelma on muuttanut kohteen &quot;%1&quot; tiedostoa sen jälkeen, kun se luettiin tässä. Pidetäänkö oma versio, otetaanko tiedoston versio vai näytetäänkö molemmat?</translation>
    </message>
    <message>
        <source>Another program has removed the file of &quot;%1&quot;. Write it again, or remove it here too?</source>
        <translation>Toinen ohjelma on poistanut kohteen &quot;%1&quot; tiedoston. Kirjoitetaanko se uudelleen vai poistetaanko kohde tästäkin?</translation>
    </message>
</context>
<context>
    <name>vigrel::cActiveDayView</name>
    <message>
        <source>No&amp;w</source>
        <translation>N&amp;yt</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Päivä:</translation>
    </message>
    <message>
        <source>T&amp;ime:</source>
        <translation>&amp;Kellonaika:</translation>
    </message>
    <message>
        <source>Day type: %1, by the calendar</source>
        <translation>Päivätyyppi: %1, kalenterin mukaan</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar gives %2, which the schedule doesn&apos;t use</source>
        <translation>Päivätyyppi: %1, viikonpäivän mukaan: kalenteri antaa %2, jota aikaohjelma ei käytä</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: the calendar says nothing of the date</source>
        <translation>Päivätyyppi: %1, viikonpäivän mukaan: kalenteri ei sano päivästä mitään</translation>
    </message>
    <message>
        <source>%1: active until %2</source>
        <translation>%1: voimassa, muuttuu %2</translation>
    </message>
    <message>
        <source>%1: not active until %2</source>
        <translation>%1: ei voimassa, muuttuu %2</translation>
    </message>
    <message>
        <source>In a group with: %1</source>
        <translation>Samassa ryhmässä: %1</translation>
    </message>
    <message>
        <source>Periods: %1</source>
        <translation>Jaksot: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ei mitään</translation>
    </message>
    <message>
        <source>The schedule doesn&apos;t use this day type: nothing is active.</source>
        <translation>Aikaohjelma ei käytä tätä päivätyyppiä: mikään ei ole voimassa.</translation>
    </message>
    <message>
        <source>The profile doesn&apos;t use its schedule.</source>
        <translation>Profiili ei käytä aikaohjelmaansa.</translation>
    </message>
    <message>
        <source>The day&apos;s 24 hours</source>
        <translation>Päivän 24 tuntia</translation>
    </message>
    <message>
        <source>Day type: %1, by the weekday: no calendar is open</source>
        <translation>Päivätyyppi: %1, viikonpäivän mukaan: mikään kalenteri ei ole auki</translation>
    </message>
</context>
<context>
    <name>vigrel::cAlarmPreview</name>
    <message>
        <source>Rule</source>
        <translation>Sääntö</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Text that is the tag</source>
        <translation>Teksti, joka on tunnus</translation>
    </message>
    <message>
        <source>Alarms of the station</source>
        <translation>Aseman hälytykset</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tunnus:</translation>
    </message>
    <message>
        <source>The station has no alarms yet.</source>
        <translation>Asemalla ei ole vielä hälytyksiä.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ei mitään</translation>
    </message>
</context>
<context>
    <name>vigrel::cCalendarEditor</name>
    <message>
        <source>Show the day&apos;s &amp;periods</source>
        <translation>Näytä päivän &amp;jaksot</translation>
    </message>
    <message>
        <source>Choose a day type and paint it over the days with the left mouse button.</source>
        <translation>Valitse päivätyyppi ja maalaa se päiville hiiren vasemmalla painikkeella.</translation>
    </message>
    <message>
        <source>Previous month (Page Up)</source>
        <translation>Edellinen kuukausi (Page Up)</translation>
    </message>
    <message>
        <source>Next month (Page Down)</source>
        <translation>Seuraava kuukausi (Page Down)</translation>
    </message>
    <message>
        <source>To&amp;day</source>
        <translation>T&amp;änään</translation>
    </message>
    <message>
        <source>The month of today (Home)</source>
        <translation>Kuluva kuukausi (Home)</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Vuosi</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Kuukausi</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalenteri</translation>
    </message>
    <message>
        <source>Day &amp;type to paint</source>
        <translation>Maa&amp;lattava päivätyyppi</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>&amp;Pyhäpäivät</translation>
    </message>
    <message>
        <source>T&amp;ime schedule</source>
        <translation>A&amp;ikaohjelma</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ei mitään</translation>
    </message>
    <message>
        <source>Give the year&apos;s &amp;holidays the chosen day type</source>
        <translation>&amp;Anna vuoden pyhäpäiville valittu päivätyyppi</translation>
    </message>
    <message>
        <source>Give &amp;all years&apos; holidays the chosen day type</source>
        <translation>Anna kaikkien vuosien &amp;pyhäpäiville valittu päivätyyppi</translation>
    </message>
    <message>
        <source>&amp;Clear the year</source>
        <translation>Tyhjennä &amp;vuosi</translation>
    </message>
    <message>
        <source>Arrow keys choose a day, Space paints the day type</source>
        <translation>Nuolinäppäimet valitsevat päivän, välilyönti maalaa päivätyypin</translation>
    </message>
    <message>
        <source>painting days</source>
        <translation>päivien maalaus</translation>
    </message>
    <message>
        <source>painting holidays</source>
        <translation>pyhäpäivien maalaus</translation>
    </message>
    <message>
        <source>Painted holidays: %1 (%2)</source>
        <translation>Maalattuja pyhäpäiviä: %1 (%2)</translation>
    </message>
    <message>
        <source>clearing a year</source>
        <translation>vuoden tyhjennys</translation>
    </message>
    <message>
        <source>clearing the calendar</source>
        <translation>kalenterin tyhjennys</translation>
    </message>
    <message>
        <source>Cop&amp;y the year to the next</source>
        <translation>K&amp;opioi vuosi seuraavaan</translation>
    </message>
    <message>
        <source>copying a year</source>
        <translation>vuoden kopiointi</translation>
    </message>
    <message>
        <source>Yea&amp;r</source>
        <translation>V&amp;uosi</translation>
    </message>
    <message>
        <source>The whole year on one page</source>
        <translation>Koko vuosi yhdellä sivulla</translation>
    </message>
    <message>
        <source>There are no holidays: choose their country, or write your own.</source>
        <translation>Pyhäpäiviä ei ole: valitse niiden maa tai kirjoita omia.</translation>
    </message>
    <message>
        <source>%1 is the last year of a calendar: there is none to copy it to.</source>
        <translation>%1 on kalenterin viimeinen vuosi: ei ole vuotta, johon sen voisi kopioida.</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourPreview</name>
    <message>
        <source>Tags to try</source>
        <translation>Kokeiltavat tunnukset</translation>
    </message>
    <message>
        <source>Tags to try, one a line</source>
        <translation>Kokeiltavat tunnukset, yksi riville</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Esikatselu</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tunnus</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Sääntö</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>Every other row</source>
        <translation>Joka toinen rivi</translation>
    </message>
    <message>
        <source>Flashing</source>
        <translation>Vilkkuva</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Ryhmä:</translation>
    </message>
    <message>
        <source>Are&amp;a:</source>
        <translation>A&amp;lue:</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Hard to read, by rule and least contrast (%1 is readable): %2</source>
        <translation>Vaikealukuinen, sääntö ja pienin kontrasti (%1 on luettava): %2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ei mitään</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Hälytykset</translation>
    </message>
    <message>
        <source>Typed tags</source>
        <translation>Kirjoitetut tunnukset</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesEditor</name>
    <message>
        <source>&amp;Add rule</source>
        <translation>&amp;Lisää sääntö</translation>
    </message>
    <message>
        <source>&amp;Delete rule</source>
        <translation>&amp;Poista sääntö</translation>
    </message>
    <message>
        <source>&amp;Move up</source>
        <translation>Siirrä &amp;ylös</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>&amp;Siirrä alas</translation>
    </message>
    <message>
        <source>&amp;Choose colour...</source>
        <translation>&amp;Valitse väri...</translation>
    </message>
    <message>
        <source>Colour rules, tried from the first to the last</source>
        <translation>Värisäännöt, kokeillaan ensimmäisestä viimeiseen</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tunnus</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Ryhmät</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Alueet</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Tekstin väri</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tausta</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Sävytys</translation>
    </message>
    <message>
        <source>A pattern: &quot;?&quot; is one character, &quot;*&quot; any run; case counts</source>
        <translation>Malli: &quot;?&quot; on yksi merkki, &quot;*&quot; mikä tahansa määrä; kirjainkoko merkitsee</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 255, such as 5;7-9, or * for all</source>
        <translation>Lukuja ja alueita väliltä 0–255, esimerkiksi 5;7-9, tai * kaikille</translation>
    </message>
    <message>
        <source>Numbers and ranges from 0 to 999, such as 5;7-9, or * for all</source>
        <translation>Lukuja ja alueita väliltä 0–999, esimerkiksi 5;7-9, tai * kaikille</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 255,255,255</source>
        <translation>Punainen, vihreä ja sininen väliltä 0–255, esimerkiksi 255,255,255</translation>
    </message>
    <message>
        <source>Red, green and blue from 0 to 255, such as 200,0,0</source>
        <translation>Punainen, vihreä ja sininen väliltä 0–255, esimerkiksi 200,0,0</translation>
    </message>
    <message>
        <source>By how much every other row is darker, from 0 to 255</source>
        <translation>Kuinka paljon tummempi joka toinen rivi on, 0–255</translation>
    </message>
    <message>
        <source>Change rule</source>
        <translation>säännön muutos</translation>
    </message>
    <message>
        <source>Add rule</source>
        <translation>säännön lisäys</translation>
    </message>
    <message>
        <source>Delete rule</source>
        <translation>säännön poisto</translation>
    </message>
    <message>
        <source>Move rule</source>
        <translation>säännön siirto</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Väri</translation>
    </message>
    <message>
        <source>Gives the text of these rules the nearest colour that can be read</source>
        <translation>Antaa näiden sääntöjen tekstille lähimmän luettavan värin</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrasti</translation>
    </message>
    <message>
        <source>The least of text and ground: 4.5 is readable, 21 black on white</source>
        <translation>Tekstin ja taustan pienin: 4,5 on luettava, 21 musta valkoisella</translation>
    </message>
    <message>
        <source>making texts readable</source>
        <translation>tekstien teko luettaviksi</translation>
    </message>
    <message>
        <source>Readable te&amp;xt colours</source>
        <translation>Luettavat tekst&amp;ivärit</translation>
    </message>
</context>
<context>
    <name>vigrel::cColourRulesPage</name>
    <message>
        <source>Colour rules</source>
        <translation>Värisäännöt</translation>
    </message>
    <message>
        <source>Colour rules (*.txt);;All files (*)</source>
        <translation>Värisäännöt (*.txt);;Kaikki tiedostot (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionList</name>
    <message>
        <source>Search</source>
        <translation>Haku</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Haku (Ctrl+F)</translation>
    </message>
    <message>
        <source>%1 in all</source>
        <translation>yhteensä %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionModel</name>
    <message>
        <source>Not saved yet</source>
        <translation>Ei vielä tallennettu</translation>
    </message>
    <message>
        <source>Can&apos;t be saved: %1</source>
        <translation>Ei voida tallentaa: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Another program has changed the file meanwhile.</source>
        <translation>Toinen ohjelma on sillä välin muuttanut tiedostoa.</translation>
    </message>
    <message>
        <source>Another program has removed the file.</source>
        <translation>Toinen ohjelma on poistanut tiedoston.</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionPage</name>
    <message>
        <source>adding &quot;%1&quot;</source>
        <translation>lisäys: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>copying &quot;%1&quot;</source>
        <translation>kopiointi: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>Toinen ohjelma on muuttanut tiedostoa lukemisen jälkeen.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>poisto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Deleted &quot;%1&quot;</source>
        <translation>&quot;%1&quot; poistettiin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not deleted.</source>
        <translation>&quot;%1&quot; jäi poistamatta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved.

%2</source>
        <translation>Kohdetta &quot;%1&quot; ei voida tallentaa.

%2</translation>
    </message>
    <message>
        <source>removing &quot;%1&quot;</source>
        <translation>poisto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The file of &quot;%1&quot; can&apos;t be read.</source>
        <translation>Kohteen &quot;%1&quot; tiedostoa ei voida lukea.</translation>
    </message>
    <message>
        <source>showing both</source>
        <translation>molempien näyttö</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved.</source>
        <translation>&quot;%1&quot; jäi tallentamatta.</translation>
    </message>
    <message>
        <source>Saved &quot;%1&quot;</source>
        <translation>&quot;%1&quot; tallennettiin</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Tallennettu: %1</translation>
    </message>
    <message>
        <source>giving up the changes of &quot;%1&quot;</source>
        <translation>muutosten hylkäys: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is as its file has it</source>
        <translation>&quot;%1&quot; on kuten tiedostossaan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is back without its file. Save it anew.</source>
        <translation>&quot;%1&quot; on palautettu ilman tiedostoaan. Tallenna se uudelleen.</translation>
    </message>
    <message>
        <source>taking over the changes of other programs</source>
        <translation>muiden ohjelmien muutosten käyttöönotto</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>käyttöönotto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has changed &quot;%1&quot;</source>
        <translation>Toinen ohjelma on muuttanut kohdetta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Another program has removed &quot;%1&quot;</source>
        <translation>Toinen ohjelma on poistanut kohteen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Changed or removed by other programs: %1</source>
        <translation>Muiden ohjelmien muuttamat tai poistamat: %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cDefinitionsWindow</name>
    <message>
        <source>Open pages</source>
        <translation>Avoimet sivut</translation>
    </message>
    <message>
        <source>Schedule %1</source>
        <translation>Aikaohjelma %1</translation>
    </message>
    <message>
        <source>Calendar %1</source>
        <translation>Kalenteri %1</translation>
    </message>
    <message>
        <source>Vigrel Definitions</source>
        <translation>Vigrel-määritykset</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tiedosto</translation>
    </message>
    <message>
        <source>&amp;New schedule</source>
        <translation>Uus&amp;i aikaohjelma</translation>
    </message>
    <message>
        <source>New &amp;calendar</source>
        <translation>&amp;Uusi kalenteri</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>A&amp;vaa...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Avaa viimeaikainen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Tallenna</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Tallenna &amp;nimellä...</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Sulje</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Lopeta</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ei vielä mitään</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Muokkaa</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Tee uudelleen</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Kumoa: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Tee uudelleen: %1</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Näytä</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Next page</source>
        <translation>&amp;Seuraava sivu</translation>
    </message>
    <message>
        <source>&amp;Previous page</source>
        <translation>&amp;Edellinen sivu</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Asema</translation>
    </message>
    <message>
        <source>&amp;Receivers</source>
        <translation>&amp;Vastaanottajat</translation>
    </message>
    <message>
        <source>&amp;Profiles</source>
        <translation>&amp;Profiilit</translation>
    </message>
    <message>
        <source>&amp;Colour rules</source>
        <translation>Vä&amp;risäännöt</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ohje</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Tietoja</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tietoja</translation>
    </message>
    <message>
        <source>%1 %2

Schedules, calendars, receivers, profiles and colour rules of the alarm receiver.
Application folder: %3</source>
        <translation>%1 %2

Hälytysvastaanottimen aikaohjelmat, kalenterit, vastaanottajat, profiilit ja värisäännöt.
Ohjelman kansio: %3</translation>
    </message>
    <message>
        <source>What do you want to edit?</source>
        <translation>Mitä haluat muokata?</translation>
    </message>
    <message>
        <source>Ne&amp;w schedule</source>
        <translation>Uus&amp;i aikaohjelma</translation>
    </message>
    <message>
        <source>New c&amp;alendar</source>
        <translation>&amp;Uusi kalenteri</translation>
    </message>
    <message>
        <source>&amp;Receivers of the station</source>
        <translation>A&amp;seman vastaanottajat</translation>
    </message>
    <message>
        <source>&amp;Profiles of the station</source>
        <translation>Aseman &amp;profiilit</translation>
    </message>
    <message>
        <source>&amp;Colour rules of the station</source>
        <translation>As&amp;eman värisäännöt</translation>
    </message>
    <message>
        <source>%1 can&apos;t be printed.

%2</source>
        <translation>Kohdetta %1 ei voida tulostaa.

%2</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>Kohdetta %1 ei tulostettu.</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF-tiedostot (*.pdf);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Tiedosto jäi tallentamatta.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 tallennettiin</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Tul&amp;osta...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Tallenna P&amp;DF-tiedostona...</translation>
    </message>
    <message>
        <source>Schedules, calendars, lists of the station (*.sch *.cal ColourRules.txt OwnHolidays.txt);;All files (*)</source>
        <translation>Aikaohjelmat, kalenterit, aseman luettelot (*.sch *.cal ColourRules.txt OwnHolidays.txt);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>&amp;As large as the window</source>
        <translation>&amp;Ikkunan kokoinen</translation>
    </message>
    <message>
        <source>Own &amp;holidays</source>
        <translation>&amp;Omat pyhäpäivät</translation>
    </message>
    <message>
        <source>Own holi&amp;days of the station</source>
        <translation>Aseman omat p&amp;yhäpäivät</translation>
    </message>
</context>
<context>
    <name>vigrel::cFileDocument</name>
    <message>
        <source>The file was not saved.
%1</source>
        <translation>Tiedosto jäi tallentamatta.
%1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 tallennettiin</translation>
    </message>
    <message>
        <source>taking over &quot;%1&quot;</source>
        <translation>käyttöönotto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is read again: another program has changed it</source>
        <translation>%1 luettiin uudelleen: toinen ohjelma on muuttanut sitä</translation>
    </message>
    <message>
        <source>opening &quot;%1&quot;</source>
        <translation>avaus: &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>vigrel::cFilePage</name>
    <message>
        <source>%1 can&apos;t be saved.

%2</source>
        <translation>Kohdetta %1 ei voida tallentaa.

%2</translation>
    </message>
</context>
<context>
    <name>vigrel::cLineProblemsLabel</name>
    <message>
        <source>Some lines were not understood. They stay in the file:
%1</source>
        <translation>Joitakin rivejä ei ymmärretty. Ne jäävät tiedostoon:
%1</translation>
    </message>
</context>
<context>
    <name>vigrel::cNoteBar</name>
    <message>
        <source>What happened to files</source>
        <translation>Mitä tiedostoille tapahtui</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Lisätiedot</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Files brought up to a new version: %1.</source>
        <translation>Uuteen versioon päivitettyjä tiedostoja: %1.</translation>
    </message>
    <message>
        <source>Files of an older version that could not be written anew: %1. They stay as they are.</source>
        <translation>Vanhemman version tiedostoja, joita ei voitu kirjoittaa uudelleen: %1. Ne pysyvät ennallaan.</translation>
    </message>
    <message>
        <source>What could not be read: %1.</source>
        <translation>Ei voitu lukea: %1.</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysEditor</name>
    <message>
        <source>&amp;Add holiday</source>
        <translation>&amp;Lisää pyhäpäivä</translation>
    </message>
    <message>
        <source>&amp;Delete holiday</source>
        <translation>&amp;Poista pyhäpäivä</translation>
    </message>
    <message>
        <source>A day is written 2026-12-24, or 12-24 for every year. Calendars mark these days beside the country&apos;s holidays.</source>
        <translation>Päivä kirjoitetaan 2026-12-24, tai 12-24 joka vuodelle. Kalenterit merkitsevät nämä päivät maan pyhäpäivien rinnalle.</translation>
    </message>
    <message>
        <source>Own holidays</source>
        <translation>Omat pyhäpäivät</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Ensimmäinen päivä</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Viimeinen päivä</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Joka vuosi</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Pyhäpäivä</translation>
    </message>
    <message>
        <source>changing a holiday</source>
        <translation>pyhäpäivän muutos</translation>
    </message>
    <message>
        <source>Company holiday</source>
        <translation>Yrityksen vapaapäivä</translation>
    </message>
    <message>
        <source>adding a holiday</source>
        <translation>pyhäpäivän lisäys</translation>
    </message>
    <message>
        <source>deleting a holiday</source>
        <translation>pyhäpäivän poisto</translation>
    </message>
</context>
<context>
    <name>vigrel::cOwnHolidaysPage</name>
    <message>
        <source>Own holidays</source>
        <translation>Omat pyhäpäivät</translation>
    </message>
    <message>
        <source>Own holidays (*.txt);;All files (*)</source>
        <translation>Omat pyhäpäivät (*.txt);;Kaikki tiedostot (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfileCalendar</name>
    <message>
        <source>Calendar</source>
        <translation>Kalenteri</translation>
    </message>
    <message>
        <source>Another calendar...</source>
        <translation>Toinen kalenteri...</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Tämä profiili</translation>
    </message>
    <message>
        <source>A new calendar</source>
        <translation>Uusi kalenteri</translation>
    </message>
    <message>
        <source>Calendars (*.cal);;All files (*)</source>
        <translation>Kalenterit (*.cal);;Kaikki tiedostot (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfileForm</name>
    <message>
        <source>Profile</source>
        <translation>Profiili</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Yleiset</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Ehdot</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Vastaanottajat</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Aikaohjelma</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalenteri</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Ulkoinen</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Järjestelmät</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>N&amp;imi:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>En&amp;abled: the profile takes part</source>
        <translation>&amp;Käytössä: profiili on mukana</translation>
    </message>
    <message>
        <source>States:</source>
        <translation>Tilat:</translation>
    </message>
    <message>
        <source>State %1</source>
        <translation>Tila %1</translation>
    </message>
    <message>
        <source>&amp;Off duty behaviour:</source>
        <translation>Toiminta &amp;vuoron ulkopuolella:</translation>
    </message>
    <message>
        <source>Off duty behaviour</source>
        <translation>Toiminta vuoron ulkopuolella</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Tiedosto:</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>ei vielä tallennettu</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, tallennettu %2</translation>
    </message>
    <message>
        <source>Condition &amp;%1:</source>
        <translation>Ehto &amp;%1:</translation>
    </message>
    <message>
        <source>Condition %1</source>
        <translation>Ehto %1</translation>
    </message>
    <message>
        <source>Parallel: all at once</source>
        <translation>Rinnakkain: kaikki yhtä aikaa</translation>
    </message>
    <message>
        <source>Parallel receivers</source>
        <translation>Rinnakkaiset vastaanottajat</translation>
    </message>
    <message>
        <source>Sequential: one after the other</source>
        <translation>Peräkkäin: yksi kerrallaan</translation>
    </message>
    <message>
        <source>Sequential receivers</source>
        <translation>Peräkkäiset vastaanottajat</translation>
    </message>
    <message>
        <source>&amp;Use this time schedule</source>
        <translation>&amp;Käytä tätä aikaohjelmaa</translation>
    </message>
    <message>
        <source>the periods in the calendar</source>
        <translation>kalenterin jaksot</translation>
    </message>
    <message>
        <source>Use an external &amp;tag</source>
        <translation>&amp;Käytä ulkoista tunnusta</translation>
    </message>
    <message>
        <source>Tag &amp;name:</source>
        <translation>T&amp;unnuksen nimi:</translation>
    </message>
    <message>
        <source>Tag name</source>
        <translation>Tunnuksen nimi</translation>
    </message>
    <message>
        <source>&amp;Ignore this tag in other profiles</source>
        <translation>O&amp;hita tämä tunnus muissa profiileissa</translation>
    </message>
    <message>
        <source>Use an external fi&amp;le</source>
        <translation>Kä&amp;ytä ulkoista tiedostoa</translation>
    </message>
    <message>
        <source>File &amp;path:</source>
        <translation>Tiedoston &amp;polku:</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Tiedoston polku</translation>
    </message>
    <message>
        <source>Te&amp;xt in the file:</source>
        <translation>T&amp;eksti tiedostossa:</translation>
    </message>
    <message>
        <source>Text in the file</source>
        <translation>Teksti tiedostossa</translation>
    </message>
    <message>
        <source>&amp;Only alarms of these systems:</source>
        <translation>&amp;Vain näiden järjestelmien hälytykset:</translation>
    </message>
    <message>
        <source>System %1</source>
        <translation>Järjestelmä %1</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>järjestelmät</translation>
    </message>
    <message>
        <source>Active when?</source>
        <translation>Milloin voimassa?</translation>
    </message>
</context>
<context>
    <name>vigrel::cProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiilit</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Uusi profiili</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>Ehdot</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot; and its file?</source>
        <translation>Poistetaanko profiili &quot;%1&quot; ja sen tiedosto?</translation>
    </message>
    <message>
        <source>There are no profiles yet. A profile says which alarms go to which receivers, and when.</source>
        <translation>Profiileja ei vielä ole. Profiili kertoo, mitkä hälytykset menevät millekin vastaanottajalle ja milloin.</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverForm</name>
    <message>
        <source>Na&amp;me:</source>
        <translation>N&amp;imi:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>En&amp;abled: alarms go to this receiver</source>
        <translation>&amp;Käytössä: hälytykset menevät tälle vastaanottajalle</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>T&amp;yyppi:</translation>
    </message>
    <message>
        <source>Parallel numbers</source>
        <translation>Rinnakkaiset numerot</translation>
    </message>
    <message>
        <source>&amp;Parallel numbers:</source>
        <translation>&amp;Rinnakkaiset numerot:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Tiedosto:</translation>
    </message>
    <message>
        <source>(choose a type)</source>
        <translation>(valitse tyyppi)</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>ei vielä tallennettu</translation>
    </message>
    <message>
        <source>%1, saved %2</source>
        <translation>%1, tallennettu %2</translation>
    </message>
    <message>
        <source>Setting %1</source>
        <translation>Asetus %1</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiverPicker</name>
    <message>
        <source>Add</source>
        <translation>Lisää</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Ylös</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Alas</translation>
    </message>
    <message>
        <source>No other saved receiver</source>
        <translation>Ei muita tallennettuja vastaanottajia</translation>
    </message>
    <message>
        <source>(not a receiver: %1)</source>
        <translation>(ei vastaanottaja: %1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>(missing receiver %1)</source>
        <translation>(vastaanottaja %1 puuttuu)</translation>
    </message>
</context>
<context>
    <name>vigrel::cReceiversPage</name>
    <message>
        <source>Receivers</source>
        <translation>Vastaanottajat</translation>
    </message>
    <message>
        <source>New receiver</source>
        <translation>Uusi vastaanottaja</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>Delete the receiver &quot;%1&quot; and its file?</source>
        <translation>Poistetaanko vastaanottaja &quot;%1&quot; ja sen tiedosto?</translation>
    </message>
    <message>
        <source>These profiles send alarms to it:
%1</source>
        <translation>Nämä profiilit lähettävät sille hälytyksiä:
%1</translation>
    </message>
    <message>
        <source>There are no receivers yet. A receiver is one place that alarms can go to.</source>
        <translation>Vastaanottajia ei vielä ole. Vastaanottaja on yksi paikka, johon hälytykset voivat mennä.</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleEditor</name>
    <message>
        <source>Day &amp;names in the rows</source>
        <translation>Päivien nimet &amp;riveillä</translation>
    </message>
    <message>
        <source>Special &amp;day types</source>
        <translation>&amp;Erityispäivät</translation>
    </message>
    <message>
        <source>I&amp;mage of the day type</source>
        <translation>Pä&amp;ivätyypin kuva</translation>
    </message>
    <message>
        <source>Drag in a row to make a period, drag its ends to change it. The right mouse button opens the menu.</source>
        <translation>Luo jakso vetämällä riviä pitkin, muuta sitä vetämällä sen päistä. Hiiren oikea painike avaa valikon.</translation>
    </message>
    <message>
        <source>Selected period</source>
        <translation>Valittu jakso</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Aika osoittimen kohdalla</translation>
    </message>
    <message>
        <source>A time of day, such as 8, 0830 or 16:30</source>
        <translation>Kellonaika, esimerkiksi 8, 0830 tai 16:30</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>A&amp;lku</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Lo&amp;ppu</translation>
    </message>
    <message>
        <source>Pointer at</source>
        <translation>Osoitin</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Rows for the day types that a calendar gives to dates</source>
        <translation>Rivit päivätyypeille, jotka kalenteri antaa päiville</translation>
    </message>
    <message>
        <source>Day types in use</source>
        <translation>Käytössä olevat päivätyypit</translation>
    </message>
    <message>
        <source>Not taken over: %1</source>
        <translation>Ei otettu käyttöön: %1</translation>
    </message>
    <message>
        <source>No day chosen</source>
        <translation>Ei valittua päivää</translation>
    </message>
    <message>
        <source>%1, changed together with %2</source>
        <translation>%1, muuttuu yhdessä: %2</translation>
    </message>
    <message>
        <source>&amp;Copy the day</source>
        <translation>Kopioi &amp;päivä</translation>
    </message>
    <message>
        <source>&amp;Paste into the day</source>
        <translation>&amp;Liitä päivään</translation>
    </message>
    <message>
        <source>&amp;Delete the period</source>
        <translation>Poista &amp;jakso</translation>
    </message>
    <message>
        <source>&amp;Whole day</source>
        <translation>K&amp;oko päivä</translation>
    </message>
    <message>
        <source>&amp;Invert the day</source>
        <translation>Kää&amp;nnä päivä</translation>
    </message>
    <message>
        <source>&amp;Grouped</source>
        <translation>&amp;Ryhmitelty</translation>
    </message>
    <message>
        <source>Monday to &amp;Friday grouped</source>
        <translation>&amp;Maanantai–perjantai ryhmitelty</translation>
    </message>
    <message>
        <source>Re&amp;name the day type...</source>
        <translation>Nimeä päivätyyppi &amp;uudelleen...</translation>
    </message>
    <message>
        <source>deleting a period</source>
        <translation>jakson poisto</translation>
    </message>
    <message>
        <source>pasting a day</source>
        <translation>päivän liittäminen</translation>
    </message>
    <message>
        <source>the whole day</source>
        <translation>koko päivä</translation>
    </message>
    <message>
        <source>inverting a day</source>
        <translation>päivän kääntö</translation>
    </message>
    <message>
        <source>grouping a day</source>
        <translation>päivän ryhmittely</translation>
    </message>
    <message>
        <source>grouping Monday to Friday</source>
        <translation>maanantain–perjantain ryhmittely</translation>
    </message>
    <message>
        <source>typing times</source>
        <translation>aikojen kirjoitus</translation>
    </message>
    <message>
        <source>Start: %1</source>
        <translation>Alku: %1</translation>
    </message>
    <message>
        <source>Stop: %1</source>
        <translation>Loppu: %1</translation>
    </message>
    <message>
        <source>special day types</source>
        <translation>erityispäivät</translation>
    </message>
    <message>
        <source>adding a row</source>
        <translation>rivin lisäys</translation>
    </message>
    <message>
        <source>removing a row</source>
        <translation>rivin poisto</translation>
    </message>
    <message>
        <source>Choose a special day type: only those have names and images of your own.</source>
        <translation>Valitse erityispäivä: vain niillä on omat nimet ja kuvat.</translation>
    </message>
    <message>
        <source>Name of the day type</source>
        <translation>Päivätyypin nimi</translation>
    </message>
    <message>
        <source>dragging a period</source>
        <translation>jakson veto</translation>
    </message>
    <message>
        <source>moving an end</source>
        <translation>pään siirto</translation>
    </message>
    <message>
        <source>a new period</source>
        <translation>uusi jakso</translation>
    </message>
    <message>
        <source>The day has no gap for another period.</source>
        <translation>Päivässä ei ole tilaa uudelle jaksolle.</translation>
    </message>
    <message>
        <source>renaming a day type</source>
        <translation>päivätyypin nimen vaihto</translation>
    </message>
    <message>
        <source>choosing an image</source>
        <translation>kuvan valinta</translation>
    </message>
</context>
<context>
    <name>vigrel::cScheduleFrame</name>
    <message>
        <source>Time schedule</source>
        <translation>Aikaohjelma</translation>
    </message>
    <message>
        <source>Arrow keys choose a day and a period, Insert makes a period, Delete removes one</source>
        <translation>Nuolinäppäimet valitsevat päivän ja jakson, Insert luo jakson, Delete poistaa jakson</translation>
    </message>
    <message>
        <source>Rows of the time schedule</source>
        <translation>Aikaohjelman rivit</translation>
    </message>
</context>
<context>
    <name>vigrel::cSchedulePage</name>
    <message>
        <source>Time schedules (*.sch);;All files (*)</source>
        <translation>Aikaohjelmat (*.sch);;Kaikki tiedostot (*)</translation>
    </message>
</context>
<context>
    <name>vigrel::cSettingEdit</name>
    <message>
        <source>whole number, -32768 to 32767</source>
        <translation>kokonaisluku, -32768–32767</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>kokonaisluku</translation>
    </message>
    <message>
        <source>whole number, 0 to 255</source>
        <translation>kokonaisluku, 0–255</translation>
    </message>
    <message>
        <source>number</source>
        <translation>luku</translation>
    </message>
    <message>
        <source>number, at most 4 decimals</source>
        <translation>luku, enintään 4 desimaalia</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>The number is missing.</source>
        <translation>Luku puuttuu.</translation>
    </message>
</context>
<context>
    <name>vigrel::cSystemGrid</name>
    <message>
        <source>System %1</source>
        <translation>Järjestelmä %1</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Kaikki</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ei mitään</translation>
    </message>
</context>
<context>
    <name>vigrel::cTableEditor</name>
    <message>
        <source>Row %1, %2: %3</source>
        <translation>Rivi %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>vigrel::cTextEdit</name>
    <message>
        <source>Only letters and signs of Western European languages can be stored.</source>
        <translation>Vain Länsi-Euroopan kielten kirjaimia ja merkkejä voidaan tallentaa.</translation>
    </message>
</context>
</TS>
