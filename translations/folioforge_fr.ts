<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>À propos de Folioforge</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>Icône de Folioforge</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
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
        <translation>Folioforge est un logiciel libre de Vesprin sous licence Apache, version 2.0.

Il s’appuie, avec gratitude, sur le travail d’autres :
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
        <translation>Cliquez sur « OK » pour choisir un autre dossier.</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>Les mots de passe ne peuvent pas être identiques.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>Veuillez choisir un dossier de sortie pour les documents créés.</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>Le dossier de sortie choisi n’existe pas ou n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>Veuillez saisir le mot de passe utilisateur.</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>Veuillez saisir le mot de passe propriétaire.</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>Veuillez saisir le nom du fichier de sortie.</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>Le dossier de sortie choisi n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>Ce nom de fichier existe déjà dans le dossier de sortie. Veuillez en saisir un autre.</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Text files</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Fichiers PDF</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>Fichiers texte, images et fichiers PDF</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>Trier par nom</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>Trier par nom</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>Trier par taille</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>Trier par taille</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>Trier par date de création</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>Trier par date de modification</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>A&amp;perçu</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>A&amp;ssistance</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>&amp;Page du produit</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>Rechercher une mise à jour…</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>À p&amp;ropos de Folioforge</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>Ajouter des fichiers de tout type à la fin de la liste</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>Ajouter les fichiers texte et images d’un dossier ; ses PDF et sous-dossiers sont laissés de côté</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>Ajouter des images</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>Ajouter des fichiers texte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>Ajouter des fichiers PDF</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>Supprimer de la liste les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>Supprimer les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>Supprimer tous les fichiers de la liste</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>Les fichiers à convertir, dans leur ordre</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>Dossier de &amp;sortie :</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>Le dossier qui reçoit les documents PDF</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>Choisir un autre dossier de sortie</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Parcourir pour le dossier de sortie</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>Afficher le dossier de sortie dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Ouvrir le dossier de sortie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>Faire un seul PDF de tous les fichiers, dans l’ordre de la liste</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>Fusionner en un seul PDF</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>Fusio&amp;nner en un seul PDF</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>N&amp;om :</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>Nom du PDF fusionné ; .pdf est ajouté s’il manque</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>Nom du PDF fusionné</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>Créer les documents PDF</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Conversion…</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>Avancement du traitement</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Afficher les options</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>Afficher le panneau des options</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>Afficher les options</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>Masquer le panneau des options</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>Masquer les options</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>Propriétés du document</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>T&amp;itre :</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>Titre des documents PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>A&amp;uteur :</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>Auteur des documents PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>Su&amp;jet :</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>Sujet des documents PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>Mots-&amp;clés :</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>Mots-clés des documents PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>Taille de page et marges des images</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>Réglages de page pour les images</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>Taille de page et marges des fichiers texte</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>Réglages de page pour le texte</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>Mots de passe et droits</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>Réglages de sécurité</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>Chaque page a la taille de son image et des marges</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>Page à la taille de l’image</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>L’image est ajustée et centrée</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>Page de cette taille :</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur :</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>Largeur de page personnalisée, en points</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>Largeur de page personnalisée</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>&amp;Hauteur :</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>Hauteur de page personnalisée, en points</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>Hauteur de page personnalisée</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>Marges (points)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Gauche :</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>Marge de gauche, en points</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>D&amp;roite :</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>Marge de droite, en points</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Hau&amp;t :</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>Marge du haut, en points</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge haut</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Bas :</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>Marge du bas, en points</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Marge bas</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>Pages de 842 × 1191 points</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3, 842 × 1191 points</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>Pages de 595 × 842 points</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4, 595 × 842 points</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>Pages de 420 × 595 points</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5, 420 × 595 points</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>Pages de la taille indiquée ci-dessous</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>Demander ce mot de passe à l’ouverture du PDF</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>Mot de passe utilisateur (ouverture)</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>Mot de &amp;passe utilisateur (ouverture)</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>Mot de passe pour ouvrir le PDF</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Mot de passe utilisateur</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>Demander ce mot de passe pour modifier les droits du PDF</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>Mot de passe propriétaire (droits)</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>Mot de passe proprié&amp;taire (droits)</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>Mot de passe pour modifier les droits du PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Mot de passe propriétaire</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>Cocher pour refuser l’impression aux lecteurs sans le mot de passe propriétaire</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>Refuser l’impression</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>Refuse&amp;r l’impression</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>Cocher pour refuser la copie du texte et des images aux lecteurs sans le mot de passe propriétaire</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>Refuser la copie</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>Refuser &amp;la copie</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>Co&amp;mpression :</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>Les réglages sont pris en compte dès leur saisie</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>How strongly photos are reduced:
None: pictures stay as they are
150m, mild: photos at 150 pixels per inch
96m, medium: photos at 96 pixels per inch
72l, strong: photos at 72 pixels per inch</source>
        <translation>Degré de réduction des photos :
Aucune : les images restent telles quelles
150m, légère : photos à 150 pixels par pouce
96m, moyenne : photos à 96 pixels par pouce
72l, forte : photos à 72 pixels par pouce</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m, légère : pour imprimer</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m, moyenne : pour l’écran</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l, forte : pour le courriel</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>Couper les lignes entre les mots ; garder lignes vides, tabulations et texte de droite à gauche</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>Présentation lisible</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>&amp;Présentation lisible</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>Marge de page non valide dans les réglages des pages de texte.</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>Marge de page non valide dans les réglages des pages d’image.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>Les marges dépassent la largeur de la page. Veuillez modifier les réglages des pages de texte.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>Les marges dépassent la hauteur de la page. Veuillez modifier les réglages des pages de texte.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>Les marges dépassent la largeur de la page. Veuillez modifier les réglages des pages d’image.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>Les marges dépassent la hauteur de la page. Veuillez modifier les réglages des pages d’image.</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>Le mot de passe contient un demi-caractère</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>Le mot de passe mêle des caractères écrits de droite à gauche à d’autres d’une façon impossible dans un mot de passe</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>Le mot de passe contient un caractère impossible dans un mot de passe</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>Le mot de passe ne contient aucun caractère visible</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>Le mot de passe dépasse %1 octets</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>Un nom de fichier ne peut pas contenir de barre oblique</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>non compressé : %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>Un problème est survenu avec ces documents PDF :</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>Impossible d’importer les fichiers suivants. Ils sont chiffrés ou ne sont pas des fichiers PDF normaux :</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>En attente…</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>Conversion…</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>Création des documents PDF</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>Création des documents PDF…</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progression du traitement</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>Déposez des fichiers ici, ou ajoutez-les avec les boutons ci-dessus</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>Ajouter des fichiers de tout type</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>Ajouter les fichiers d’un dossier</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
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
        <translation>%1 pt = %2 po</translation>
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
        <translation>Menu contextuel</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ajouter des dossiers</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>Ajouter des images</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>Ajouter des fichiers texte</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>Ajouter des fichiers PDF</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>Masquer les options</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Afficher les options</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>Le dossier de sortie n’existe pas. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>Sélectionnez un fichier pour voir ses pages</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>%1 fichier(s) sur %2 ajouté(s), compression</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>%1 fichier(s) sur %2 ajouté(s)</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>%1 sur %2 fait(s), compression</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 sur %2 fait(s)</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>Afficher le mot de passe utilisateur</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>Afficher le mot de passe propriétaire</translation>
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
        <translation>Le PDF demande un mot de passe</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>Le PDF ne peut pas être lu</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>La page ne peut pas être affichée</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>L’affichage de la page prend trop de temps</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>Dessin de la page…</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>Le PDF n’est plus là</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>Page %1 sur plus de %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>Fermer l’aperçu</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
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
        <translation>%1 créé, 1 page, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>%1 créé, %n page, %2</numerusform>
            <numerusform>%1 créé, %n pages, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>1 PDF créé</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>%n PDF créé</numerusform>
            <numerusform>%n PDF créés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>1 fichier n’a pas pu être ajouté</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>%n fichier n’a pas pu être ajouté</numerusform>
            <numerusform>%n fichiers n’ont pas pu être ajoutés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>1 n’a pas pu l’être</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>%n n’a pas pu l’être</numerusform>
            <numerusform>%n n’ont pas pu l’être</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>Le PDF n’a pas pu être créé</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>Aucun PDF n’a pu être créé</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>Ouvrir le PDF</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>Ouvrir le dossier des documents PDF</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>Sélectionner les fichiers qui ne sont dans aucun PDF</translation>
    </message>
</context>
</TS>
