<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öppna</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Visa </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&quot;%1&quot; är skrivskyddad.
Vill du ta bort den ändå?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Vill du ta bort &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista över platser och bokmärken</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Fil&amp;namn:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Ny mapp</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Överordnad mapp</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Ny mapp</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Leta i:</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Skapa en ny mapp</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Filtyp:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Sök mapp</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Visa &amp;dolda filer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Spara som</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Mappen hittades inte.
Kontrollera mappens namn.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidofält</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listvy</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Välj</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Byt namn</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Mappen kunde inte tas bort.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mapp:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 finns redan.
Vill du ersätta den?</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Gå framåt</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Gå till överordnad mapp</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Senaste platser</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gå bakåt</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Byt till detaljvy</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Skapa ny mapp</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detaljvy</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Filen hittades inte.
Kontrollera filens namn.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Byt till listvy</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ändrad</translation>
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
        <translation>&lt;b&gt;Namnet &quot;%1&quot; kan inte användas.&lt;/b&gt;&lt;p&gt;Försök med ett annat namn, med färre tecken eller utan skiljetecken.</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ogiltigt filnamn</translation>
    </message>
</context>
<context>
    <name>QFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-fil</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Mapp</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Röd:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Mättnad:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>&amp;Ljushet:</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>N&amp;yans:</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Välj färg</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>Lägg &amp;till bland egna färger</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>Bl&amp;å:</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Hämta färg från skärmen</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Pekaren vid %1, %2
Tryck på Esc för att avbryta</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Grön:</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>Gr&amp;undfärger</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Egna färger</translation>
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
        <translation>&amp;Steg upp</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Markera allt</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Top</source>
        <translation>Överst</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rulla nedåt</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Rulla hit</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nederst</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sida upp</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sida åt höger</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rulla uppåt</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rulla åt höger</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vänsterkanten</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sida ned</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sida åt vänster</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Högerkanten</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellanslag</translation>
    </message>
</context>
</TS>
