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
jemalloc, BSD licence
ICU, Unicode License
PDFium, BSD licence</source>
        <translation>Folioforge est un logiciel libre de Vesprin sous licence Apache, version 2.0.

Il s’appuie, avec gratitude, sur le travail d’autres&#xa0;:
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
        <translation>Cliquez sur «&#xa0;OK&#xa0;» pour choisir un autre dossier.</translation>
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
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>Un PDF d’archive ne peut pas avoir de mots de passe.</translation>
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
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
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
        <translation>Ajouter les fichiers texte et images d’un dossier&#x202f;; ses PDF et sous-dossiers sont laissés de côté</translation>
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
        <translation>Dossier de &amp;sortie&#xa0;:</translation>
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
        <translation>N&amp;om&#xa0;:</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>Nom du PDF fusionné&#x202f;; .pdf est ajouté s’il manque</translation>
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
        <translation>T&amp;itre&#xa0;:</translation>
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
        <translation>A&amp;uteur&#xa0;:</translation>
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
        <translation>Su&amp;jet&#xa0;:</translation>
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
        <translation>Mots-&amp;clés&#xa0;:</translation>
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
        <translation>Page de cette taille&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
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
        <translation>&amp;Hauteur&#xa0;:</translation>
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
        <translation>&amp;Gauche&#xa0;:</translation>
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
        <translation>D&amp;roite&#xa0;:</translation>
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
        <translation>Hau&amp;t&#xa0;:</translation>
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
        <translation>&amp;Bas&#xa0;:</translation>
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
        <translation>Co&amp;mpression&#xa0;:</translation>
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
        <translation>Degré de réduction des photos&#xa0;:
Aucune&#xa0;: les images restent telles quelles
150m, légère&#xa0;: photos à 150 pixels par pouce
96m, moyenne&#xa0;: photos à 96 pixels par pouce
72l, forte&#xa0;: photos à 72 pixels par pouce</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m, légère&#xa0;: pour imprimer</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m, moyenne&#xa0;: pour l’écran</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l, forte&#xa0;: pour le courriel</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>Couper les lignes entre les mots&#x202f;; garder lignes vides, tabulations et texte de droite à gauche</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>Présentation lisible</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>&amp;Présentation lisible</translation>
    </message>
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>Comparer chaque page à son fichier avant que le PDF reçoive son nom</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>Vérifier chaque page</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>Créer des documents PDF/A, qui gardent leur aspect pendant des décennies</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>Archive (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>Créer des documents PDF/UA, que les lecteurs d’écran peuvent lire à voix haute</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>Accessible (balisé)</translation>
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
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>La conversion a été interrompue</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>%1 est une liste de propriétés binaire&#x202f;; seul le XML peut être lu</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>%1 n’est pas une liste de propriétés valide</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>Il manque au fichier de filtre %1 une valeur valide pour «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>Le PDF n’est pas balisé en entier, car ceux-ci ne le sont pas&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>Il n’y a aucune page à écrire</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>Son PDF existe déjà et n’est pas plus ancien</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>Son PDF prendrait la place d’un fichier source, %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>La mémoire est insuffisante</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>Ce type de fichier n’est pas reconnu</translation>
    </message>
    <message>
        <source>1 PDF</source>
        <translation>1 PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs</source>
        <translation>
            <numerusform>%n PDF</numerusform>
            <numerusform>%n PDF</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 dossier</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>1 fichier d’un autre type</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>%n fichier d’un autre type</numerusform>
            <numerusform>%n fichiers d’autres types</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Laissé de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>Le contenu du dossier ne peut pas être listé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>Le document est chiffré</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>Le texte dépasse 2 Go</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>Le texte est lu comme %1, par supposition</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>Le texte n’est pas de l’UTF-8 valide&#x202f;; sa page reste vide</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>Impossible de créer un fichier dans %1</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>Impossible d’écrire un fichier dans %1</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>Impossible de relire un fichier dans %1</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>Impossible d’enregistrer un fichier sur le disque dans %1</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>Impossible de donner son nom à un fichier dans %1</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>Le système de fichiers ne peut pas garantir l’écriture des fichiers sur le disque</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>Impossible de lire le fichier</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>Le fichier se termine trop tôt</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>Le fichier %1 a été modifié pendant sa conversion</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>Le fichier %1 s’est terminé trop tôt</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>Impossible de créer un fichier temporaire</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>Impossible d’écrire un fichier temporaire</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>Impossible de lire un fichier temporaire</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>L’image est faite pour les écrans HDR, et un PDF montre sa luminosité autrement</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Les données compressées sont endommagées</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>Le fichier n’est pas une image bitmap</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>L’image bitmap est d’un genre inconnu</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>L’image bitmap a plus de couleurs que ses pixels ne peuvent en désigner</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>Les pixels absents du fichier ont sa première couleur</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>Le fichier EXR ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>Le fichier EXR n’a aucun canal de couleur ou de luminosité</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>Le fichier EXR est endommagé&#xa0;: aucune de ses lignes ne peut être lue</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>Le fichier GIF est endommagé</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>Le fichier ne contient aucune image</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>Le fichier HEIC ou AVIF ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>Le système n’accorde pas le fil d’exécution que demandent les fichiers HEIC et AVIF</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>Le fichier HEIC ou AVIF est endommagé</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>Ses images animées sont laissées de côté</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>Le fichier d’icône est tronqué ou endommagé&#xa0;: la partie manquante contient peut-être une image plus grande</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>Les pixels de l’icône sont d’un genre inconnu</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>L’image de l’icône est d’un genre inconnu</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>Le fichier d’icône ne contient aucune image lisible</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>%1 des %2 images de l’icône ne peuvent pas être lues</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>Le fichier JPEG se termine avant le début de son image</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>Le fichier JPEG a %1 composantes de couleur, ce qu’aucun PDF ne peut montrer</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>Le fichier JPEG est d’un genre qu’aucun PDF ne peut contenir (sans perte, hiérarchique ou plus de 8 bits)</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>Le fichier JPEG 2000 est endommagé</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>Le fichier JPEG 2000 ne contient aucune image</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>L’image est tronquée&#xa0;: %1&#xa0;% de ses tuiles n’ont pas pu être lues</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>L’image est tronquée&#xa0;: %1&#xa0;% de ses données n’ont pas pu être lues</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>Le fichier JPEG 2000 est tronqué</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>Le fichier JPEG est endommagé&#xa0;: aucune de ses lignes n’a pu être lue</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>Le fichier JPEG XL est endommagé</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>Le fichier JPEG XL a %1 canaux en plus de ses couleurs, ce qui est trop</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>Le fichier JPEG XL contient des encres, qui ne peuvent pas être lues</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>Ce programme a été construit sans les moyens de lire les fichiers %1</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>Ce programme a été construit sans les moyens de décoder le JPEG 2000</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>Le fichier PNG est endommagé</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>Le fichier PNG ne contient aucune image</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>Le fichier PNG n’a pas de palette</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>La compression du fichier Photoshop est inconnue</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>Le fichier Photoshop ne contient que ses calques&#xa0;: enregistrez-le avec la compatibilité maximale, qui ajoute l’image qu’ils forment</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>Le fichier Photoshop n’a pas de palette</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>Le mode de couleur du fichier Photoshop est inconnu</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>Le fichier Photoshop est endommagé</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>Le fichier n’est pas une image TGA lisible</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>Le fichier annonce une page de plus, qui ne peut pas être lue</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>sa forme n’est pas prise en charge</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>il n’a aucun pixel</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>il est plus grand que toute image</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>son répertoire est endommagé</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>Le fichier TIFF est endommagé</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>Le fichier TIFF ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>Le fichier TIFF n’a pas de palette</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>Le fichier TIFF ne peut pas être lu&#xa0;: sa compression n’est pas prise en charge</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>Le fichier WebP est endommagé</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>Le fichier WebP est trop grand</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>L’animation est trop grande (%1 x %2 pixels)</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>Le fichier n’est pas une image d’un format connu</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>La mémoire est insuffisante pour l’image</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>L’image n’a aucun pixel</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>L’image est trop grande (%1 x %2 pixels)</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>1 page de plus est laissée de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>%n page de plus est laissée de côté</numerusform>
            <numerusform>%n pages de plus sont laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>1 image de l’animation est laissée de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>%n image de l’animation est laissée de côté</numerusform>
            <numerusform>%n images de l’animation sont laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>1 partie de plus est laissée de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>%n partie de plus est laissée de côté</numerusform>
            <numerusform>%n parties de plus sont laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>1 image de plus est laissée de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>%n image de plus est laissée de côté</numerusform>
            <numerusform>%n images de plus sont laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>Laissée de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>Cette page et les suivantes sont laissées de côté, car elles sont trop grandes ensemble</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>Page %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>L’image est tronquée&#xa0;: %1&#xa0;% de ses lignes n’ont pas pu être lues</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>L’image est tronquée&#xa0;: ses détails les plus fins n’ont pas pu être lus</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>L’image est tronquée&#xa0;: des parties n’ont pas pu être lues</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>L’image est tronquée&#xa0;: sa transparence n’a pas pu être lue</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>L’image est endommagée&#xa0;: des parties peuvent sembler fausses</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>Le fichier est trop court pour l’image que décrit son en-tête</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>Les lignes de l’image sont endommagées</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>L’image a moins de lignes que son en-tête n’en annonce</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>SOURCE_DATE_EPOCH vaut «&#xa0;%1&#xa0;», et non les secondes de 1970 à une date avant l’an 10000</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>1 balise de structure</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>%n balise de structure</numerusform>
            <numerusform>%n balises de structure</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>1 pièce jointe</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>%n pièce jointe</numerusform>
            <numerusform>%n pièces jointes</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>un porte-documents</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>un formulaire XFA</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>des scripts du document</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>des modèles de page</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>des fils d’articles</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>d’autres réglages des calques</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>une adresse de base des liens</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>des droits d’utilisation</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>la langue</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>des métadonnées</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>1 autre propriété du document</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>%n autre propriété du document</numerusform>
            <numerusform>%n autres propriétés du document</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>des conditions de sortie</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>1 signature</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>%n signature</numerusform>
            <numerusform>%n signatures</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 lien</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n lien</numerusform>
            <numerusform>%n liens</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>1 annotation</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>%n annotation</numerusform>
            <numerusform>%n annotations</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>1 signet</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>%n signet</numerusform>
            <numerusform>%n signets</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>des étiquettes de page</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>1 champ</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>%n champ</numerusform>
            <numerusform>%n champs</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 calque</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n calque</numerusform>
            <numerusform>%n calques</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>1 destination nommée</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>%n destination nommée</numerusform>
            <numerusform>%n destinations nommées</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>d’autres noms</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>1 autre entrée du catalogue</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>%n autre entrée du catalogue</numerusform>
            <numerusform>%n autres entrées du catalogue</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>1 nom changé</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>%n nom changé</numerusform>
            <numerusform>%n noms changés</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>La police %1 ne peut pas être incorporée</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>Il y a 1 page, et «&#xa0;%1&#xa0;» en désigne d’autres</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>Il y a %n page, et «&#xa0;%1&#xa0;» en désigne d’autres</numerusform>
            <numerusform>Il y a %n pages, et «&#xa0;%1&#xa0;» en désigne d’autres</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>1 signature est laissée de côté, car elle ne vaut que pour le fichier d’origine</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>%n signature est laissée de côté, car elle ne vaut que pour le fichier d’origine</numerusform>
            <numerusform>%n signatures sont laissées de côté, car elles ne valent que pour le fichier d’origine</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>1 balise de structure est endommagée et laissée de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>%n balise de structure est endommagée et laissée de côté</numerusform>
            <numerusform>%n balises de structure sont endommagées et laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>Non repris, car lié à des pages laissées de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>Le document n’a aucune page</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>1 champ de formulaire est renommé, car un autre document en a un du même nom&#xa0;: «&#xa0;%1&#xa0;» est maintenant «&#xa0;%2&#xa0;»&#x202f;; les scripts restent tels quels</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>%n champ de formulaire est renommé, car un autre document en a un du même nom, comme «&#xa0;%1&#xa0;» en «&#xa0;%2&#xa0;»&#x202f;; les scripts restent tels quels</numerusform>
            <numerusform>%n champs de formulaire sont renommés, car un autre document en a des mêmes noms, comme «&#xa0;%1&#xa0;» en «&#xa0;%2&#xa0;»&#x202f;; les scripts restent tels quels</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>Non repris&#xa0;: %1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>il fait maintenant partie d’un autre</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>il était endommagé</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>certaines de ses balises de structure sont endommagées</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>cette norme interdit le chiffrement</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>cette norme interdit les informations du document, qui sont écrites</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>cette norme exige un titre, et aucun n’est donné</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>Le document ne déclare plus qu’il est %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>Certains de ses signets manquent dans le document lui-même</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>Certains de ses champs de formulaire manquent dans le document lui-même</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>L’arbre des pages se contient lui-même</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>Le document n’a pas d’arbre des pages</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>Le document annonce %1 pages, et %2 ont été trouvées</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>Le document n’annonce pas ses pages, et %1 ont été trouvées</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>%1 pages sur %2 ont pu être lues, la page %3 est la première qui manque</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>%1 pages sur %2 ont pu être lues</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>Ce qui figure à la page %1 est endommagé et peut être incomplet</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>Le document est endommagé et a été réparé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>Le document est endommagé et a été réparé à %n endroit, le premier&#xa0;: %1</numerusform>
            <numerusform>Le document est endommagé et a été réparé à %n endroits, le premier&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>Ce n’est pas un fichier PDF</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>Le document est chiffré, et ses droits ne permettent pas de reprendre ses pages&#x202f;; son mot de passe propriétaire le permettrait</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>Le document est chiffré, et aucun des mots de passe ne l’ouvre</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>C’est un formulaire XFA dynamique, dont seul un programme pour ces formulaires produit les pages</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>Le document est trop endommagé pour être réparé</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>Le document est endommagé&#xa0;: sa fin et sa table des objets manquent</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>Le document est endommagé&#xa0;: il n’a pas de catalogue</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>page %1 (%2)</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>Les lecteurs ne sont pas tenus d’afficher les pages hors de 3 à 14&#x202f;400 unités&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>Le document est protégé, et le PDF qui en est fait a, à la place, la protection demandée</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>Le document est protégé, et le PDF qui en est fait ne l’est pas</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>son en-tête manque</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>la longueur d’un flux est fausse</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>un flux est tronqué</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>sa table des objets est endommagée</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>un objet n’est pas là où l’indique la table des objets</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>il n’a pas de catalogue</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>les données d’un flux sont endommagées</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>un objet est mal formé</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1 (objet %2)</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Le document est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>Le document est endommagé</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>La police %1 ne peut pas être lue</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>Le texte a trop de formes de lettres différentes</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>usage privé</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>non attribué</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>1 caractère n’existe dans aucune police et s’affiche comme un carré&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n caractère n’existe dans aucune police et s’affiche comme un carré&#xa0;: %1</numerusform>
            <numerusform>%n caractères n’existent dans aucune police et s’affichent comme des carrés&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>1 caractère est partagé entre deux lignes et s’affiche comme des carrés</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n caractère est partagé entre deux lignes et s’affiche comme des carrés</numerusform>
            <numerusform>%n caractères sont partagés entre deux lignes et s’affichent comme des carrés</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>Les règles de coupure des lignes ne peuvent pas être chargées&#xa0;: %1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>L’en-tête ou le pied de page a plus de lignes que sa marge</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>Le texte n’est pas du %1 valide</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>Les octets n’indiquent pas l’encodage du texte</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>Il n’y a aucune police pour écrire du texte</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>Les fichiers HEIC et AVIF sont lus par libheif %1, qui ne peut pas être chargé&#xa0;: %2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>Ce programme a été construit sans les moyens de lire les fichiers HEIC et AVIF</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>ses couleurs sont d’un genre que seul JPEG 2000 connaît</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>L’image est en partie transparente, et elle est posée sur du blanc</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>L’image a 16 bits par couleur, et elle est gardée avec 8</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>son profil de couleurs est de la version %1</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>il ne déclare pas qu’il est PDF/A</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>il déclare qu’il est %1, et non %2</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>Il ne peut pas entrer dans un document qui est %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>Le PDF ne déclare pas qu’il est %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>ses couleurs sont des encres sans profil, et aucun n’est donné</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>une page a %1 x %2 unités, hors de %3 à %4</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>il est protégé, ce que la norme interdit</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>ses couleurs sont faites pour un autre genre d’appareil que celles des documents précédents</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>Le PDF déclare qu’il est %1 parce que ce document le déclare&#xa0;; que ce soit vrai n’est pas vérifié</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>Ses couleurs sans profil sont montrées comme celles des documents précédents</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>Un document pour les archives ne peut pas être chiffré</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Le fichier a changé</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>Certaines pages du PDF ne sont pas conformes à leur source</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>Tout y est dans le PDF, mais disposé autrement</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>Le PDF a %1 pages au lieu de %2</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>La page %1 du PDF réduit n’est pas celle du PDF&#xa0;: %2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>Le PDF est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>Le PDF a moins de pages que les fichiers</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>Les lecteurs afficheraient autrement les champs de formulaire du PDF</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>elle n’est pas une page de la source</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>une police est endommagée</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>elle ne vient d’aucun des fichiers</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>elle n’a pas d’image, ou en a plusieurs</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>son image est tournée autrement</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>ses caractères ne sont pas ceux du texte</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>le texte continue et le PDF non</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>son contenu n’est pas celui de la source</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>ses polices ou ses images ne sont pas celles de la source</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>ses liens, annotations ou champs ne sont pas ceux de la source</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>sa taille ou sa rotation n’est pas celle de la source</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 n’est pas comme dans la source</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>les octets de son image ne sont pas ceux du fichier</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>les pixels de son image ne sont pas ceux du fichier</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>son image a une autre taille</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>son image serait lue autrement</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>l’opacité de son image est autre</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>son image est ailleurs</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>Le PDF sur le disque n’est pas ce qui a été écrit</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>La page %1 du PDF n’est pas conforme à sa source&#xa0;: %2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>le contenu d’une page est illisible</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>son texte est ailleurs</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>son en-tête ou son pied de page est autre</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>elle montre ce qui n’est pas dans le texte</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>elle a une autre taille</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>elle a des annotations que personne n’a faites</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>elle montre plus que l’image</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>L’image n’a pas de description&#x202f;; le nom de son fichier en tient lieu</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>Il n’a pas de balises de structure, que PDF/UA exige</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>Il n’est pas vérifié si ses balises sont celles que PDF/UA exige</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>Une propriété du document est plus longue que %1 ne le permet</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>Le document est trop grand pour PDF/A</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>Les fichiers JPEG XL sont lus par libjxl %1, qui ne peut pas être chargé&#xa0;: %2</translation>
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
        <translation>non compressé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>Un problème est survenu avec ces documents PDF&#xa0;:</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>Impossible d’importer les fichiers suivants. Ils sont chiffrés ou ne sont pas des fichiers PDF normaux&#xa0;:</translation>
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
        <translation>Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir&#xa0;: %1</translation>
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
    <message>
        <source>%1, every page checked</source>
        <translation>%1, chaque page vérifiée</translation>
    </message>
</context>
</TS>
