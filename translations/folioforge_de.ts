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
</context>
</TS>
