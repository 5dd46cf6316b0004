<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>Über Folioforge</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>Symbol von Folioforge</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Folioforge is free software of Vesprin under the Apache License, Version 2.0.

It stands on the work of others, with thanks:
Qt 6, GNU Lesser General Public License 3
qpdf, Apache License 2.0
HarfBuzz, MIT licence
FreeType, FreeType License
fontconfig, MIT licence
libjpeg-turbo, IJG and BSD licences
LibTIFF, libtiff licence
giflib, MIT licence
OpenJPEG, BSD licence
OpenEXR, BSD licence
libwebp, BSD licence
libheif, GNU Lesser General Public License 3
libjxl, BSD licence
libdeflate, MIT licence
jemalloc, BSD licence
ICU, Unicode License
PDFium, BSD licence</source>
        <translation>Folioforge ist freie Software von Vesprin unter der Apache-Lizenz, Version 2.0.

Es baut mit Dank auf der Arbeit anderer auf:
Qt 6, GNU Lesser General Public License 3
qpdf, Apache License 2.0
HarfBuzz, MIT licence
FreeType, FreeType License
fontconfig, MIT licence
libjpeg-turbo, IJG and BSD licences
LibTIFF, libtiff licence
giflib, MIT licence
OpenJPEG, BSD licence
OpenEXR, BSD licence
libwebp, BSD licence
libheif, GNU Lesser General Public License 3
libjxl, BSD licence
libdeflate, MIT licence
jemalloc, BSD licence
ICU, Unicode License
PDFium, BSD licence</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>Checks</name>
    <message>
        <source>Click &quot;OK&quot; to select another folder.</source>
        <translation>Klicken Sie auf „OK“, um einen anderen Ordner auszuwählen.</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>Die Kennwörter dürfen nicht gleich sein.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>Bitte wählen Sie einen Ausgabeordner für die erstellten Dokumente.</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>Der gewählte Ausgabeordner existiert nicht oder ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>Bitte geben Sie das Benutzerkennwort ein.</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>Bitte geben Sie das Besitzerkennwort ein.</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>Bitte geben Sie den Namen der Ausgabedatei ein.</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>Der gewählte Ausgabeordner ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>Der Dateiname ist im Ausgabeordner schon vorhanden. Bitte geben Sie einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>Eine PDF für Archive kann keine Kennwörter haben.</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>Textdateien, Bilder und PDF-Dateien</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>Nach Namen sortieren</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>Nach Namen sortieren</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>Nach Größe sortieren</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>Nach Größe sortieren</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>Nach Erstelldatum sortieren</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>Nach Änderungsdatum sortieren</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Dateien &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Support</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>&amp;Produktseite</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>Nach Aktualisierung suchen …</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>Ü&amp;ber Folioforge</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>Dateien jeder Art am Ende der Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>Text- und Bilddateien eines Ordners hinzufügen; PDFs und Ordner darin bleiben weg</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>Textdateien hinzufügen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>PDF-Dateien hinzufügen</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>Ausgewählte Dateien aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>Ausgewählte Dateien entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>Alle Dateien aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>Die umzuwandelnden Dateien in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>Aus&amp;gabeordner:</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>Der Ordner, in den die PDF-Dokumente kommen</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>Einen anderen Ausgabeordner wählen</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Ausgabeordner auswählen</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>Den Ausgabeordner im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Ausgabeordner öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>Aus allen Dateien eine PDF machen, in der Reihenfolge der Liste</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>Zu einer PDF zusammenfügen</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>&amp;Zu einer PDF zusammenfügen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>Name der zusammengefügten PDF; .pdf wird ergänzt, wo es fehlt</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>Name der zusammengefügten PDF</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>Die PDF-Dokumente erstellen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Wird umgewandelt …</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>Wie weit der Vorgang ist</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Optionen zeigen</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>Den Optionenbereich zeigen</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>Optionen zeigen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>Den Optionenbereich ausblenden</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>Optionen ausblenden</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>Dokumenteigenschaften</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>Titel der PDF-Dokumente</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>Auto&amp;r:</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>Autor der PDF-Dokumente</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>B&amp;etreff:</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>Betreff der PDF-Dokumente</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>Stich&amp;wörter:</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>Stichwörter der PDF-Dokumente</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>Seitengröße und Ränder für Bilder</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>Seiteneinstellungen für Bilder</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>Seitengröße und Ränder für Textdateien</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>Seiteneinstellungen für Text</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>Kennwörter und Rechte</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>Sicherheitseinstellungen</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>Jede Seite ist so groß wie ihr Bild und die Ränder</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>Seite wie das Bild</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>Das Bild wird eingepasst und zentriert</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>Seite dieser Größe:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>Bre&amp;ite:</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>Eigene Seitenbreite in Punkt</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>Breite der eigenen Seite</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>H&amp;öhe:</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>Eigene Seitenhöhe in Punkt</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>Höhe der eigenen Seite</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>Ränder (Punkt)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>Linker Rand in Punkt</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Rand links</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>Re&amp;chts:</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>Rechter Rand in Punkt</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rand rechts</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>Oberer Rand in Punkt</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Rand oben</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Unten:</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>Unterer Rand in Punkt</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Rand unten</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>Seiten von 842 × 1191 Punkt</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3, 842 × 1191 Punkt</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>Seiten von 595 × 842 Punkt</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4, 595 × 842 Punkt</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>Seiten von 420 × 595 Punkt</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5, 420 × 595 Punkt</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>Seiten der unten angegebenen Größe</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>Dieses Kennwort beim Öffnen der PDF abfragen</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>Benutzerkennwort zum Öffnen der PDF</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>Ben&amp;utzerkennwort zum Öffnen der PDF</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>Kennwort zum Öffnen der PDF</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Benutzerkennwort</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>Dieses Kennwort abfragen, wenn Rechte der PDF geändert werden</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>Besitzerkennwort zum Ändern von Rechten</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>Besitzerkennwort zu&amp;m Ändern von Rechten</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>Kennwort zum Ändern der Rechte der PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Besitzerkennwort</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>Ankreuzen, um Lesern ohne Besitzerkennwort das Drucken zu verweigern</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>Drucken verweigern</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>Drucken &amp;verweigern</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>Ankreuzen, um Lesern ohne Besitzerkennwort das Kopieren von Text und Bildern zu verweigern</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>Kopieren verweigern</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>Ko&amp;pieren verweigern</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>&amp;Kompression:</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>Einstellungen gelten, sobald sie eingegeben sind</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>How strongly photos are reduced:
None: pictures stay as they are
150m, mild: photos at 150 pixels per inch
96m, medium: photos at 96 pixels per inch
72l, strong: photos at 72 pixels per inch</source>
        <translation>Wie stark Fotos verkleinert werden:
Keine: Bilder bleiben, wie sie sind
150m, leicht: Fotos mit 150 Pixeln pro Zoll
96m, mittel: Fotos mit 96 Pixeln pro Zoll
72l, stark: Fotos mit 72 Pixeln pro Zoll</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m, leicht: zum Drucken</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m, mittel: für Bildschirme</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l, stark: für E-Mail</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>Zeilen zwischen Wörtern umbrechen; Leerzeilen, Tabulatoren und Text von rechts nach links erhalten</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>Lesbares Layout</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>Lesbares La&amp;yout</translation>
    </message>
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>Jede Seite mit ihrer Datei vergleichen, bevor die PDF ihren Namen bekommt</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>Jede Seite prüfen</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>PDF/A-Dokumente erstellen, die jahrzehntelang gleich aussehen</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>Archiv (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>PDF/UA-Dokumente erstellen, die Bildschirmleser vorlesen können</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>Barrierefrei (getaggt)</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>Ungültiger Seitenrand in den Einstellungen für Textseiten.</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>Ungültiger Seitenrand in den Einstellungen für Bildseiten.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>Die Seitenränder sind größer als die Seitenbreite. Bitte ändern Sie die Einstellungen für Textseiten.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>Die Seitenränder sind größer als die Seitenhöhe. Bitte ändern Sie die Einstellungen für Textseiten.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>Die Seitenränder sind größer als die Seitenbreite. Bitte ändern Sie die Einstellungen für Bildseiten.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>Die Seitenränder sind größer als die Seitenhöhe. Bitte ändern Sie die Einstellungen für Bildseiten.</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>Das Kennwort enthält ein halbes Zeichen</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>Das Kennwort mischt von rechts nach links geschriebene Zeichen mit anderen auf eine Weise, die in Kennwörtern nicht möglich ist</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>Das Kennwort enthält ein Zeichen, das in Kennwörtern nicht möglich ist</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>Das Kennwort enthält kein sichtbares Zeichen</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>Das Kennwort ist länger als %1 Bytes</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>Die Umwandlung wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>%1 ist eine binäre Property-Liste; nur XML kann gelesen werden</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>%1 ist keine gültige Property-Liste</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>Der Filterdatei %1 fehlt ein gültiger Wert für „%2“</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>Nicht die ganze PDF hat Struktur-Tags, denn diese haben keine: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>Es gibt keine Seite zu schreiben</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>Ihre PDF ist da und nicht älter</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>Ihre PDF würde eine Eingabedatei ersetzen: %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>Der Speicher reicht nicht aus</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>Der Dateityp ist nicht bekannt</translation>
    </message>
    <message>
        <source>1 PDF</source>
        <translation>1 PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs</source>
        <translation>
            <numerusform>%n PDF</numerusform>
            <numerusform>%n PDFs</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>1 Datei eines anderen Typs</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>%n Datei eines anderen Typs</numerusform>
            <numerusform>%n Dateien anderer Typen</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>Der Ordner kann nicht aufgelistet werden: %1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>Das Dokument ist verschlüsselt</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>Der Text ist größer als 2 GB</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>Der Text wird als %1 gelesen, das ist geraten</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>Der Text ist kein gültiges UTF-8; seine Seite bleibt leer</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>Die Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>In %1 kann keine Datei angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>In %1 kann keine Datei geschrieben werden</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>In %1 kann eine Datei nicht zurückgelesen werden</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>In %1 kann eine Datei nicht auf den Datenträger gesichert werden</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>In %1 kann eine Datei ihren Namen nicht bekommen</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>Das Dateisystem kann Dateien nicht auf den Datenträger sichern</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>Die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>Die Datei endet zu früh</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>Die Datei %1 wurde während der Umwandlung geändert</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>Die Datei %1 endete zu früh</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>Eine temporäre Datei kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>Eine temporäre Datei kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>Eine temporäre Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>Das Bild ist für HDR-Bildschirme gemacht, und eine PDF zeigt seine Helligkeit anders</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Die komprimierten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>Die Datei ist keine Bitmap</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>Die Bitmap ist von unbekannter Art</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>Die Bitmap hat mehr Farben, als ihre Pixel benennen können</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>Pixel, die in der Datei fehlen, haben ihre erste Farbe</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>Die EXR-Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>Die EXR-Datei hat keine Kanäle für Farbe oder Helligkeit</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>Die EXR-Datei ist beschädigt: Keine ihrer Zeilen kann gelesen werden</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>Die GIF-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>Die Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>Die HEIC- oder AVIF-Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>Das System gewährt keinen Thread, den HEIC- und AVIF-Dateien brauchen</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>Die HEIC- oder AVIF-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>Die bewegten Bilder der Datei sind ausgelassen</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>Die Symboldatei ist abgeschnitten oder beschädigt: Im fehlenden Teil gibt es vielleicht ein größeres Bild</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>Die Pixel des Symbols sind von unbekannter Art</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>Das Bild des Symbols ist von unbekannter Art</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>Die Symboldatei enthält kein lesbares Bild</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>%1 der %2 Bilder des Symbols können nicht gelesen werden</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>Die JPEG-Datei endet, bevor ihr Bild beginnt</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>Die JPEG-Datei hat %1 Farbkomponenten, und das ist keine Farbe, die eine PDF zeigen kann</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>Die JPEG-Datei ist von einer Art, die keine PDF enthalten kann (verlustfrei, hierarchisch oder mehr als 8 Bit)</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>Die JPEG-2000-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>Die JPEG-2000-Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>Das Bild ist abgeschnitten: %1 % seiner Kacheln konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>Das Bild ist abgeschnitten: %1 % seiner Daten konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>Die JPEG-2000-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>Die JPEG-Datei ist beschädigt: Keine ihrer Zeilen konnte gelesen werden</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>Die JPEG-XL-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>Die JPEG-XL-Datei hat %1 Kanäle neben ihren Farben, und das sind zu viele</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>Die JPEG-XL-Datei enthält Druckfarben, die nicht gelesen werden können</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>Dieses Programm wurde ohne die Mittel gebaut, Dateien der Art %1 zu lesen</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>Dieses Programm wurde ohne die Mittel gebaut, JPEG 2000 zu dekodieren</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>Die PNG-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>Die PNG-Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>Die PNG-Datei hat keine Farbtabelle</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>Die Kompression der Photoshop-Datei ist unbekannt</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>Die Photoshop-Datei enthält nur ihre Ebenen: Sichern Sie sie mit maximierter Kompatibilität, die das Gesamtbild hinzufügt</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>Die Photoshop-Datei hat keine Farbtabelle</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>Der Farbmodus der Photoshop-Datei ist unbekannt</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>Die Photoshop-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>Die Datei ist kein lesbares TGA-Bild</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>Die Datei nennt eine weitere Seite, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>Ihre Form wird nicht unterstützt</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>Sie hat keine Pixel</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>Sie ist größer als jedes Bild</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>Ihr Verzeichnis ist beschädigt</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>Der Inhalt ist abgeschnitten</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>Die TIFF-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>Die TIFF-Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>Die TIFF-Datei hat keine Farbtabelle</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>Die TIFF-Datei kann nicht gelesen werden: Ihre Kompression wird nicht unterstützt</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>Die WebP-Datei ist beschädigt</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>Die WebP-Datei ist zu groß</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>Die Animation ist zu groß (%1 x %2 Pixel)</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>Die Datei ist kein Bild eines bekannten Formats</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>Der Speicher reicht für das Bild nicht aus</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>Das Bild hat keine Pixel</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>Das Bild ist zu groß (%1 x %2 Pixel)</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>1 weitere Seite ist ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>%n weitere Seite ist ausgelassen</numerusform>
            <numerusform>%n weitere Seiten sind ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>1 weiteres Einzelbild ist ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>%n weiteres Einzelbild ist ausgelassen</numerusform>
            <numerusform>%n weitere Einzelbilder sind ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>1 weiterer Teil ist ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>%n weiterer Teil ist ausgelassen</numerusform>
            <numerusform>%n weitere Teile sind ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>1 weiteres Bild ist ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>%n weiteres Bild ist ausgelassen</numerusform>
            <numerusform>%n weitere Bilder sind ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>Diese und die folgenden sind ausgelassen, da sie zusammen zu groß sind</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>Das Bild ist abgeschnitten: %1 % seiner Zeilen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>Das Bild ist abgeschnitten: Seine feineren Einzelheiten konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>Das Bild ist abgeschnitten: Teile davon konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>Das Bild ist abgeschnitten: Seine Transparenz konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>Das Bild ist beschädigt: Teile davon sehen vielleicht falsch aus</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>Die Datei ist zu kurz für das Bild, das ihr Kopf beschreibt</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>Die Zeilen des Bildes sind beschädigt</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>Das Bild hat weniger Zeilen, als sein Kopf angibt</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>SOURCE_DATE_EPOCH ist „%1“ und nicht die Sekunden von 1970 bis zu einem Datum vor dem Jahr 10000</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>1 Struktur-Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>%n Struktur-Tag</numerusform>
            <numerusform>%n Struktur-Tags</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>1 Anhang</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>%n Anhang</numerusform>
            <numerusform>%n Anhänge</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>ein Portfolio</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>ein XFA-Formular</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>Skripte des Dokuments</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>Seitenvorlagen</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>Artikelfolgen</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>weitere Einstellungen der Ebenen</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>eine Basisadresse der Links</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>Nutzungsrechte</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>die Sprache</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>1 weitere Dokumenteigenschaft</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>%n weitere Dokumenteigenschaft</numerusform>
            <numerusform>%n weitere Dokumenteigenschaften</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>Ausgabebedingungen</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>1 Signatur</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>%n Signatur</numerusform>
            <numerusform>%n Signaturen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 Link</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n Link</numerusform>
            <numerusform>%n Links</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>1 Anmerkung</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>%n Anmerkung</numerusform>
            <numerusform>%n Anmerkungen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>1 Lesezeichen</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>%n Lesezeichen</numerusform>
            <numerusform>%n Lesezeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>Seitenbezeichnungen</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>1 Feld</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>%n Feld</numerusform>
            <numerusform>%n Felder</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 Ebene</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n Ebene</numerusform>
            <numerusform>%n Ebenen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>1 benanntes Ziel</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>%n benanntes Ziel</numerusform>
            <numerusform>%n benannte Ziele</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>weitere Namen</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>1 weiterer Katalogeintrag</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>%n weiterer Katalogeintrag</numerusform>
            <numerusform>%n weitere Katalogeinträge</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>1 umbenannter Name</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>%n umbenannter Name</numerusform>
            <numerusform>%n umbenannte Namen</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>Die Schrift %1 kann nicht eingebettet werden</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>Es gibt 1 Seite, und „%1“ nennt andere</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>Es gibt %n Seite, und „%1“ nennt andere</numerusform>
            <numerusform>Es gibt %n Seiten, und „%1“ nennt andere</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>1 Signatur ist ausgelassen, da sie nur für die ursprüngliche Datei gilt</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>%n Signatur ist ausgelassen, da sie nur für die ursprüngliche Datei gilt</numerusform>
            <numerusform>%n Signaturen sind ausgelassen, da sie nur für die ursprüngliche Datei gelten</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>1 Struktur-Tag ist beschädigt und ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>%n Struktur-Tag ist beschädigt und ausgelassen</numerusform>
            <numerusform>%n Struktur-Tags sind beschädigt und ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>Nicht übernommen, da es zu ausgelassenen Seiten gehört: %1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>Das Dokument hat keine Seiten</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>1 Formularfeld ist umbenannt, da ein anderes Dokument eines seines Namens hat: „%1“ heißt jetzt „%2“; Skripte bleiben, wie sie sind</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>%n Formularfeld ist umbenannt, da ein anderes Dokument eines seines Namens hat, etwa „%1“ in „%2“; Skripte bleiben, wie sie sind</numerusform>
            <numerusform>%n Formularfelder sind umbenannt, da ein anderes Dokument Felder ihrer Namen hat, etwa „%1“ in „%2“; Skripte bleiben, wie sie sind</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>Nicht übernommen: %1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>Es ist jetzt Teil eines anderen</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>Es war beschädigt</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>Einige seiner Struktur-Tags sind beschädigt</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>Dieser Standard verbietet Verschlüsselung</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>Dieser Standard verbietet die Dokumentinformationen, die geschrieben werden</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>Dieser Standard verlangt einen Titel, und keiner ist angegeben</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>Das Dokument gibt nicht mehr an, dass es %1 ist: %2</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>Einige seiner Lesezeichen fehlen schon im Dokument selbst</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>Einige seiner Formularfelder fehlen schon im Dokument selbst</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>Der Seitenbaum enthält sich selbst</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>Das Dokument hat keinen Seitenbaum</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>Das Dokument gibt %1 Seiten an, und %2 wurden gefunden</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>Das Dokument gibt seine Seiten nicht an, und %1 wurden gefunden</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>%1 von %2 Seiten konnten gelesen werden, Seite %3 ist die erste, die fehlt</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>%1 von %2 Seiten konnten gelesen werden</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>Was auf Seite %1 steht, ist beschädigt und vielleicht unvollständig</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>Das Dokument ist beschädigt und wurde repariert: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>Das Dokument ist beschädigt und wurde an %n Stelle repariert, die erste: %1</numerusform>
            <numerusform>Das Dokument ist beschädigt und wurde an %n Stellen repariert, die erste: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>Dies ist keine PDF-Datei</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>Das Dokument ist verschlüsselt, und seine Rechte erlauben nicht, seine Seiten zu entnehmen; mit seinem Besitzerkennwort ginge es</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>Das Dokument ist verschlüsselt, und keines der Kennwörter öffnet es</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>Es ist ein dynamisches XFA-Formular, dessen Seiten nur ein Programm für solche Formulare erzeugt</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>Das Dokument ist zu stark beschädigt, um repariert zu werden</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>Das Dokument ist beschädigt: Sein Schlussteil und seine Objekttabelle fehlen</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>Das Dokument ist beschädigt: Es hat keinen Katalog</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>Seite %1 (%2)</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>Programme müssen Seiten außerhalb von 3 bis 14.400 Einheiten nicht zeigen: %1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>Das Dokument ist geschützt, und die daraus erstellte PDF hat stattdessen den gewünschten Schutz</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>Das Dokument ist geschützt, und die daraus erstellte PDF ist es nicht</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>Sein Kopf fehlt</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>Die Länge eines Datenstroms ist falsch</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>Ein Datenstrom ist abgeschnitten</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>Seine Objekttabelle ist beschädigt</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>Ein Objekt ist nicht da, wo die Objekttabelle es angibt</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>Es hat keinen Katalog</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>Die Daten eines Datenstroms sind beschädigt</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>Ein Objekt ist fehlerhaft aufgebaut</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1 (Objekt %2)</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Das Dokument ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>Das Dokument ist beschädigt</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>Die Schrift %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>Der Text hat zu viele verschiedene Buchstabenformen</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>privater Bereich</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>nicht vergeben</translation>
    </message>
    <message>
        <source>other</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>1 Zeichen gibt es in keiner Schrift; es erscheint als Kästchen: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n Zeichen gibt es in keiner Schrift; es erscheint als Kästchen: %1</numerusform>
            <numerusform>%n Zeichen gibt es in keiner Schrift; sie erscheinen als Kästchen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>1 Zeichen ist auf zwei Zeilen verteilt und erscheint als Kästchen</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n Zeichen ist auf zwei Zeilen verteilt und erscheint als Kästchen</numerusform>
            <numerusform>%n Zeichen sind auf zwei Zeilen verteilt und erscheinen als Kästchen</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>Die Regeln für den Zeilenumbruch können nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>Die Kopf- oder Fußzeile hat mehr Zeilen als ihr Rand</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>Der Text ist kein gültiges %1</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>Die Bytes verraten nicht, wie der Text kodiert ist</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>Es gibt keine Schrift, um Text zu schreiben</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>HEIC- und AVIF-Dateien werden mit libheif %1 gelesen, das nicht geladen werden kann: %2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>Dieses Programm wurde ohne die Mittel gebaut, HEIC- und AVIF-Dateien zu lesen</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>Seine Farben sind von einer Art, die nur JPEG 2000 kennt</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>Das Bild ist teilweise durchsichtig und wird auf Weiß gelegt</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>Das Bild hat 16 Bit je Farbe und wird mit 8 behalten</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>Sein Farbprofil ist von Version %1</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>Es gibt nicht an, dass es PDF/A ist</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>Es gibt an, dass es %1 ist, nicht %2</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>In ein Dokument, das %1 ist, kann es nicht aufgenommen werden: %2</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>Die PDF gibt nicht an, dass sie %1 ist: %2</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>Seine Farben sind Druckfarben ohne Profil, und keines ist angegeben</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>Eine Seite hat %1 x %2 Einheiten, außerhalb von %3 bis %4</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>Es ist geschützt, was der Standard verbietet</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>Seine Farben sind für eine andere Art von Gerät gedacht als die der Dokumente davor</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>Die PDF gibt an, dass sie %1 ist, weil dieses Dokument es angibt; ob das stimmt, wird nicht geprüft</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>Seine Farben ohne Profil werden wie die der Dokumente davor gezeigt</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>Ein Dokument für Archive kann nicht verschlüsselt werden</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Die Datei hat sich geändert</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>Nicht jede Seite der PDF entspricht ihrer Quelle</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>Alles davon steht in der PDF, aber anders angeordnet</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>Die PDF hat %1 Seiten statt %2</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>Seite %1 der verkleinerten PDF entspricht nicht der PDF: %2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>Die PDF ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>Die PDF hat weniger Seiten als die Dateien</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>Leseprogramme würden die Formularfelder der PDF anders darstellen</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>sie ist keine Seite der Quelle</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>eine Schrift ist beschädigt</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>sie gehört zu keiner der Dateien</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>sie hat kein Bild oder mehr als eines</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>ihr Bild ist anders gedreht</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>ihre Zeichen sind nicht die des Textes</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>der Text geht weiter und die PDF nicht</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>ihr Inhalt ist nicht der der Quelle</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>ihre Schriften oder Bilder sind nicht die der Quelle</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>ihre Links, Anmerkungen oder Felder sind nicht die der Quelle</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>ihre Größe oder Drehung ist nicht die der Quelle</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 ist nicht wie in der Quelle</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>die Bytes ihres Bildes sind nicht die der Datei</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>die Pixel ihres Bildes sind nicht die der Datei</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>ihr Bild hat eine andere Größe</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>ihr Bild würde anders gelesen</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>die Deckkraft ihres Bildes ist eine andere</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>ihr Bild steht anderswo</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>Die PDF auf dem Datenträger ist nicht, was geschrieben wurde</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>Seite %1 der PDF entspricht nicht ihrer Quelle: %2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>der Inhalt einer Seite ist nicht lesbar</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>ihr Text steht anderswo</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>ihre Kopf- oder Fußzeile ist eine andere</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>sie zeigt, was nicht im Text steht</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>sie hat eine andere Größe</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>sie hat Anmerkungen, die niemand gemacht hat</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>sie zeigt mehr als das Bild</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>Es gibt keine Beschreibung des Bildes; der Name seiner Datei steht dafür</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>Es hat keine Struktur-Tags, die PDF/UA verlangt</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>Ob seine Tags dem entsprechen, was PDF/UA verlangt, wird nicht geprüft</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>Eine Eigenschaft des Dokuments ist länger, als %1 erlaubt</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>Das Dokument ist zu groß für PDF/A</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>JPEG-XL-Dateien werden mit libjxl %1 gelesen, das nicht geladen werden kann: %2</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>Ein Dateiname kann keinen Schrägstrich enthalten</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>nicht komprimiert: %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>Bei diesen PDF-Dokumenten ist etwas schiefgegangen:</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>Die folgenden Dateien konnten nicht hinzugefügt werden. Sie sind verschlüsselt oder keine normalen PDF-Dateien:</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>Wartet …</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>Wird umgewandelt …</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>PDF-Dokumente werden erstellt</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>PDF-Dokumente werden erstellt …</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Vorgangs</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>Dateien hierher ziehen oder mit den Schaltflächen oben hinzufügen</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>Dateien jeder Art hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>Die Dateien eines Ordners hinzufügen</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
</context>
<context>
    <name>folioforge::LengthHint</name>
    <message>
        <source>pt</source>
        <comment>points, behind a number</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>%1 pt = %2 in</source>
        <translation>%1 pt = %2 Zoll</translation>
    </message>
    <message>
        <source>%1 pt = %2 mm</source>
        <translation>%1 pt = %2 mm</translation>
    </message>
</context>
<context>
    <name>folioforge::ListCommands</name>
    <message>
        <source>Contextual Menu</source>
        <translation>Kontextmenü</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>Textdateien hinzufügen</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>PDF-Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>Optionen ausblenden</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Optionen zeigen</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>Der Ausgabeordner existiert nicht. Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>Wählen Sie eine Datei aus, um ihre Seiten zu sehen</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>%1 von %2 Dateien hinzugefügt, wird komprimiert</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>%1 von %2 Dateien hinzugefügt</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>%1 von %2 fertig, wird komprimiert</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 von %2 fertig</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>Benutzerkennwort anzeigen</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>Besitzerkennwort anzeigen</translation>
    </message>
</context>
<context>
    <name>folioforge::NoticeBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>folioforge::PageProcess</name>
    <message>
        <source>The PDF asks for a password</source>
        <translation>Die PDF verlangt ein Kennwort</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>Die PDF ist nicht lesbar</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>Die Seite kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>Die Seite braucht zu lange zum Anzeigen</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>Kennwort verbergen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Kennwort anzeigen</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>Seite wird gezeichnet …</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>Die PDF ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>Seite %1 von mehr als %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>Vorschau schließen</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>page, file</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>folioforge::RunAnswer</name>
    <message>
        <source>%1 made, 1 page, %2</source>
        <translation>%1 erstellt, 1 Seite, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>%1 erstellt, %n Seite, %2</numerusform>
            <numerusform>%1 erstellt, %n Seiten, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>1 PDF erstellt</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>%n PDF erstellt</numerusform>
            <numerusform>%n PDFs erstellt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>1 Datei konnte nicht hinzugefügt werden</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>%n Datei konnte nicht hinzugefügt werden</numerusform>
            <numerusform>%n Dateien konnten nicht hinzugefügt werden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>1 konnte nicht erstellt werden</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>%n konnte nicht erstellt werden</numerusform>
            <numerusform>%n konnten nicht erstellt werden</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>Die PDF konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>Keine PDF konnte erstellt werden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>Die PDF öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>Den Ordner der PDF-Dokumente öffnen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>Die Dateien auswählen, die in keiner PDF sind</translation>
    </message>
    <message>
        <source>%1, every page checked</source>
        <translation>%1, jede Seite geprüft</translation>
    </message>
</context>
</TS>
