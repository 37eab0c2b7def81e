<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Åpne</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Lagre</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Vis </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&quot;%1&quot; er skrivebeskyttet.
Vil du slette den likevel?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Vil du slette &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste over steder og bokmerker</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Fil&amp;navn:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Ny mappe</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Overordnet mappe</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Ny mappe</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Søk i:</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Opprett en ny mappe</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Filtype:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Finn mappe</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Vis &amp;skjulte filer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Lagre som</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Fant ikke mappen.
Kontroller mappens navn.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidestolpe</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listevisning</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Velg</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Slett</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle filer (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle filer (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Gi nytt navn</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Mappen kunne ikke slettes.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 finnes allerede.
Vil du erstatte den?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Frem</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Gå frem</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Gå til overordnet mappe</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Nylige steder</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gå tilbake</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Bytt til detaljvisning</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Opprett ny mappe</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detaljvisning</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fant ikke filen.
Kontroller filens navn.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Bytt til listevisning</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Slag</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Datamaskin</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Endret</translation>
    </message>
    <message>
        <source>%1 byte(s)</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Navnet &quot;%1&quot; kan ikke brukes.&lt;/b&gt;&lt;p&gt;Prøv et annet navn, med færre tegn eller uten skilletegn.</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ugyldig filnavn</translation>
    </message>
</context>
<context>
    <name>QFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Stasjon</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Ukjent</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Stasjon</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Ukjent</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-fil</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Mappe</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Rød:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Metning:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>&amp;Lyshet:</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>N&amp;yanse:</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Velg farge</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>Legg &amp;til egne farger</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>Bl&amp;å:</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Hent farge fra skjermen</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Pekeren ved %1, %2
Trykk Esc for å avbryte</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Grønn:</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>Gr&amp;unnfarger</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Egne farger</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>Al&amp;fakanal:</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>Steg &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Steg opp</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Merk alt</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Øverst</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rull ned</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Rull hit</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rull til venstre</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nederst</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Side opp</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Side til høyre</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rull opp</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rull til høyre</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Venstre kant</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Side ned</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Side til venstre</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Høyre kant</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Up</source>
        <translation>Opp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Venstre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Høyre</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellomrom</translation>
    </message>
</context>
</TS>
