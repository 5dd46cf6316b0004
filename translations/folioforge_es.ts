<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>Acerca de Folioforge</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>Icono de Folioforge</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
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
        <translation>Folioforge es software libre de Vesprin bajo la licencia Apache, versión 2.0.

Se apoya, con agradecimiento, en el trabajo de otros:
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
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>Checks</name>
    <message>
        <source>Click &quot;OK&quot; to select another folder.</source>
        <translation>Haga clic en «Aceptar» para elegir otra carpeta.</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>Las contraseñas no pueden ser iguales.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>Elija una carpeta de salida para guardar los documentos creados.</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>La carpeta de salida elegida no existe o no se puede escribir en ella.</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>Escriba la contraseña de usuario.</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>Escriba la contraseña de propietario.</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>Escriba el nombre del archivo de salida.</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>No se puede escribir en la carpeta de salida elegida.</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>El nombre de archivo ya existe en la carpeta de salida. Escriba otro nombre.</translation>
    </message>
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>Un PDF para archivo no puede tener contraseñas.</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
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
        <translation>Archivos de texto</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Archivos PDF</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>Archivos de texto, imágenes y archivos PDF</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>Ordenar por nombre</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>Ordenar por nombre</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>Ordenar por tamaño</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>Ordenar por tamaño</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>Ordenar por fecha de creación</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>Ordenar por fecha de modificación</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Soporte</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>&amp;Página del producto</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>A&amp;cerca de Folioforge</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>Añadir archivos de cualquier tipo al final de la lista</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>Añadir los archivos de texto e imagen de una carpeta; los PDF y las carpetas que contiene se omiten</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>Añadir imágenes</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>Añadir archivos de texto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>Añadir archivos PDF</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>Quitar de la lista los archivos seleccionados</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>Quitar los archivos seleccionados</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>Quitar todos los archivos de la lista</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>Los archivos que se van a convertir, en su orden</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>Carpeta de &amp;salida:</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>La carpeta que recibe los documentos PDF</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>Elegir otra carpeta de salida</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Examinar para elegir la carpeta de salida</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>Mostrar la carpeta de salida en el gestor de archivos</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Abrir la carpeta de salida</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>Hacer un solo PDF con todos los archivos, en el orden de la lista</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>Combinar en un solo PDF</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>&amp;Combinar en un solo PDF</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>Nombre del PDF combinado; se añade .pdf si falta</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>Nombre del PDF combinado</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>Crear los documentos PDF</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Convirtiendo…</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>Avance del proceso</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Mostrar opciones</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>Mostrar el panel de opciones</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>Mostrar opciones</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>Ocultar el panel de opciones</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>Ocultar opciones</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>Propiedades del documento</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>Título de los documentos PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>Aut&amp;or:</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>Autor de los documentos PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>As&amp;unto:</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>Asunto de los documentos PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>&amp;Palabras clave:</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>Palabras clave de los documentos PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>Tamaño de página y márgenes para imágenes</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>Ajustes de página para imágenes</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>Tamaño de página y márgenes para archivos de texto</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>Ajustes de página para texto</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>Contraseñas y permisos</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>Ajustes de seguridad</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>Cada página es tan grande como su imagen y los márgenes</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>Página según la imagen</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>La imagen se ajusta y se centra</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>Página de este tamaño:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>Anc&amp;ho:</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>Ancho de página personalizado, en puntos</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>Ancho de página personalizado</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>A&amp;lto:</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>Alto de página personalizado, en puntos</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>Alto de página personalizado</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>Márgenes (puntos)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Izquierdo:</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>Margen izquierdo, en puntos</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Margen izquierdo</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Derecho:</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>Margen derecho, en puntos</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Margen derecho</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Supe&amp;rior:</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>Margen superior, en puntos</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margen superior</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>In&amp;ferior:</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>Margen inferior, en puntos</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Margen inferior</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>Páginas de 842 × 1191 puntos</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3, 842 × 1191 puntos</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>Páginas de 595 × 842 puntos</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4, 595 × 842 puntos</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>Páginas de 420 × 595 puntos</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5, 420 × 595 puntos</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>Páginas del tamaño indicado abajo</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>Pedir esta contraseña al abrir el PDF</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>Contraseña de usuario, para abrir</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>Contraseña de usuar&amp;io, para abrir</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>Contraseña para abrir el PDF</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Contraseña de usuario</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>Pedir esta contraseña al cambiar los permisos del PDF</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>Contraseña de propietario, para permisos</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>Contraseña de propieta&amp;rio, para permisos</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>Contraseña para cambiar los permisos del PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Contraseña de propietario</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>Marque para denegar la impresión a quien no tenga la contraseña de propietario</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>Denegar la impresión</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>&amp;Denegar la impresión</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>Marque para denegar la copia de texto e imágenes a quien no tenga la contraseña de propietario</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>Denegar la copia</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>Dene&amp;gar la copia</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>Co&amp;mpresión:</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>Los ajustes valen en cuanto se introducen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>How strongly photos are reduced:
None: pictures stay as they are
150m, mild: photos at 150 pixels per inch
96m, medium: photos at 96 pixels per inch
72l, strong: photos at 72 pixels per inch</source>
        <translation>Cuánto se reducen las fotos:
Ninguna: las imágenes quedan como están
150m, suave: fotos a 150 píxeles por pulgada
96m, media: fotos a 96 píxeles por pulgada
72l, fuerte: fotos a 72 píxeles por pulgada</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m, suave: para imprimir</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m, media: para pantallas</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l, fuerte: para el correo</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>Cortar las líneas entre palabras; conservar líneas vacías, tabulaciones y texto de derecha a izquierda</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>Disposición legible</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>Disposición le&amp;gible</translation>
    </message>
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>Comparar cada página con su archivo antes de que el PDF reciba su nombre</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>Comprobar cada página</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>Crear documentos PDF/A, que se ven igual durante décadas</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>Archivo (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>Crear documentos PDF/UA, que los lectores de pantalla pueden leer en voz alta</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>Accesible (etiquetado)</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>Margen de página no válido en los ajustes de página de texto.</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>Margen de página no válido en los ajustes de página de imagen.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>Los márgenes superan el ancho de la página. Modifique los ajustes de página de texto.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>Los márgenes superan el alto de la página. Modifique los ajustes de página de texto.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>Los márgenes superan el ancho de la página. Modifique los ajustes de página de imagen.</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>Los márgenes superan el alto de la página. Modifique los ajustes de página de imagen.</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>La contraseña contiene medio carácter</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>La contraseña mezcla caracteres que se escriben de derecha a izquierda con otros de un modo que las contraseñas no admiten</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>La contraseña contiene un carácter que las contraseñas no admiten</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>La contraseña no contiene ningún carácter visible</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>La contraseña ocupa más de %1 bytes</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>La conversión se interrumpió</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>%1 es una lista de propiedades binaria; solo se puede leer XML</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>%1 no es una lista de propiedades válida</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>Al archivo de filtro %1 le falta un valor válido para «%2»</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>No todo el PDF está etiquetado, porque estos no lo están: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>No hay ninguna página que escribir</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>Su PDF ya existe y no es más antiguo</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>Su PDF ocuparía el lugar de un archivo de entrada, %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>El tipo de archivo no se reconoce</translation>
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
        <translation>1 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n carpeta</numerusform>
            <numerusform>%n carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>1 archivo de otro tipo</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>%n archivo de otro tipo</numerusform>
            <numerusform>%n archivos de otros tipos</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Omitido: %1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>No se puede ver el contenido de la carpeta: %1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>El documento está cifrado</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>El texto supera los 2 GB</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>El texto se lee como %1, por suposición</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>El texto no es UTF-8 válido; su página queda en blanco</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>No se puede crear un archivo en %1</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>No se puede escribir un archivo en %1</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>No se puede releer un archivo en %1</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>No se puede guardar en el disco un archivo en %1</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>No se puede dar nombre a un archivo en %1</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>El sistema de archivos no puede asegurar los archivos en el disco</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>No se puede leer el archivo</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>El archivo termina demasiado pronto</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>El archivo %1 cambió mientras se convertía</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>El archivo %1 terminó demasiado pronto</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>No se puede crear un archivo temporal</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>No se puede escribir un archivo temporal</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>No se puede leer un archivo temporal</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>La imagen está hecha para pantallas HDR, y un PDF muestra su brillo de otra manera</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>Los datos comprimidos están dañados</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>El archivo no es un mapa de bits</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>El mapa de bits es de una clase desconocida</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>El mapa de bits tiene más colores de los que sus píxeles pueden nombrar</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>Los píxeles que faltan en el archivo tienen su primer color</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>El archivo EXR no se puede leer: %1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>El archivo EXR no tiene canales de color ni de brillo</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>El archivo EXR está dañado: no se puede leer ninguna de sus filas</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>El archivo GIF está dañado</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>El archivo no contiene ninguna imagen</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>El archivo HEIC o AVIF no se puede leer: %1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>El sistema no concede ningún hilo, y los archivos HEIC y AVIF lo necesitan</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>El archivo HEIC o AVIF está dañado</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>Sus imágenes en movimiento se omiten</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>El archivo de icono está cortado o dañado: en la parte que falta puede haber una imagen mayor</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>Los píxeles del icono son de una clase desconocida</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>La imagen del icono es de una clase desconocida</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>El archivo de icono no contiene ninguna imagen legible</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>%1 de las %2 imágenes del icono no se pueden leer</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>El archivo JPEG termina antes de que empiece su imagen</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>El archivo JPEG tiene %1 componentes de color, un color que un PDF no puede mostrar</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>El archivo JPEG es de una clase que ningún PDF puede contener (sin pérdida, jerárquico o de más de 8 bits)</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>El archivo JPEG 2000 está dañado</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>El archivo JPEG 2000 no contiene ninguna imagen</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>La imagen está cortada: no se pudo leer el %1 % de sus teselas</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>La imagen está cortada: no se pudo leer el %1 % de sus datos</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>El archivo JPEG 2000 está cortado</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>El archivo JPEG está dañado: no se pudo leer ninguna de sus filas</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>El archivo JPEG XL está dañado</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>El archivo JPEG XL tiene %1 canales además de sus colores, y son demasiados</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>El archivo JPEG XL guarda tintas, que no se pueden leer</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>Este programa se compiló sin los medios para leer archivos %1</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>Este programa se compiló sin los medios para descodificar JPEG 2000</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>El archivo PNG está dañado</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>El archivo PNG no contiene ninguna imagen</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>El archivo PNG no tiene paleta</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>La compresión del archivo de Photoshop es desconocida</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>El archivo de Photoshop contiene solo sus capas: guárdelo con la máxima compatibilidad, que añade la imagen que forman</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>El archivo de Photoshop no tiene paleta</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>El modo de color del archivo de Photoshop es desconocido</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>El archivo de Photoshop está dañado</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>El archivo no es una imagen TGA legible</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>El archivo nombra otra página que no se puede leer</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>su forma no es compatible</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>no tiene píxeles</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>es mayor que cualquier imagen</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>su directorio está dañado</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>El archivo TIFF está dañado</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>El archivo TIFF no se puede leer: %1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>El archivo TIFF no tiene paleta</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>El archivo TIFF no se puede leer: su compresión no es compatible</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>El archivo WebP está dañado</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>El archivo WebP es demasiado grande</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>La animación es demasiado grande (%1 x %2 píxeles)</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>El archivo no es una imagen de un formato conocido</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>No hay memoria suficiente para la imagen</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>La imagen no tiene píxeles</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>La imagen es demasiado grande (%1 x %2 píxeles)</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>Se omite 1 página más</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>Se omite %n página más</numerusform>
            <numerusform>Se omiten %n páginas más</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>Se omite 1 fotograma más</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>Se omite %n fotograma más</numerusform>
            <numerusform>Se omiten %n fotogramas más</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>Se omite 1 parte más</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>Se omite %n parte más</numerusform>
            <numerusform>Se omiten %n partes más</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>Se omite 1 imagen más</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>Se omite %n imagen más</numerusform>
            <numerusform>Se omiten %n imágenes más</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>Se omite: %1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>Esta y las siguientes se omiten, porque juntas son demasiado grandes</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>Página %1: %2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>La imagen está cortada: no se pudo leer el %1 % de sus filas</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>La imagen está cortada: no se pudieron leer sus detalles más finos</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>La imagen está cortada: no se pudieron leer partes de ella</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>La imagen está cortada: no se pudo leer su transparencia</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>La imagen está dañada: partes de ella pueden verse mal</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>El archivo es demasiado corto para la imagen que describe su cabecera</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>Las filas de la imagen están dañadas</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>La imagen tiene menos filas de las que dice su cabecera</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>SOURCE_DATE_EPOCH es «%1», y no los segundos desde 1970 hasta una fecha anterior al año 10000</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>1 etiqueta de estructura</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>%n etiqueta de estructura</numerusform>
            <numerusform>%n etiquetas de estructura</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>1 adjunto</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>%n adjunto</numerusform>
            <numerusform>%n adjuntos</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>una cartera</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>un formulario XFA</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>scripts del documento</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>plantillas de página</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>hilos de artículos</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>otros ajustes de las capas</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>una dirección base de los enlaces</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>derechos de uso</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>el idioma</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>metadatos</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>1 propiedad más del documento</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>%n propiedad más del documento</numerusform>
            <numerusform>%n propiedades más del documento</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>condiciones de salida</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>1 firma</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>%n firma</numerusform>
            <numerusform>%n firmas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 enlace</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n enlace</numerusform>
            <numerusform>%n enlaces</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>1 anotación</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>%n anotación</numerusform>
            <numerusform>%n anotaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>1 marcador</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>%n marcador</numerusform>
            <numerusform>%n marcadores</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>etiquetas de página</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>1 campo</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>%n campo</numerusform>
            <numerusform>%n campos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 capa</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n capa</numerusform>
            <numerusform>%n capas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>1 destino con nombre</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>%n destino con nombre</numerusform>
            <numerusform>%n destinos con nombre</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>otros nombres</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>1 entrada más del catálogo</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>%n entrada más del catálogo</numerusform>
            <numerusform>%n entradas más del catálogo</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>1 nombre cambiado</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>%n nombre cambiado</numerusform>
            <numerusform>%n nombres cambiados</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>La fuente %1 no se puede incrustar</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>Hay 1 página, y «%1» nombra otras</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>Hay %n página, y «%1» nombra otras</numerusform>
            <numerusform>Hay %n páginas, y «%1» nombra otras</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>Se omite 1 firma, porque solo vale para el archivo original</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>Se omite %n firma, porque solo vale para el archivo original</numerusform>
            <numerusform>Se omiten %n firmas, porque solo valen para el archivo original</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>1 etiqueta de estructura está dañada y se omite</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>%n etiqueta de estructura está dañada y se omite</numerusform>
            <numerusform>%n etiquetas de estructura están dañadas y se omiten</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>No se conserva, porque pertenece a páginas omitidas: %1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>El documento no tiene páginas</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>Se cambió el nombre de 1 campo de formulario, porque otro documento tiene uno igual: «%1» es ahora «%2»; los scripts quedan como están</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>Se cambió el nombre de %n campo de formulario, porque otro documento tiene uno igual, como «%1» por «%2»; los scripts quedan como están</numerusform>
            <numerusform>Se cambió el nombre de %n campos de formulario, porque otro documento tiene campos iguales, como «%1» por «%2»; los scripts quedan como están</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>No se conserva: %1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>ahora es parte de otro</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>estaba dañado</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>algunas de sus etiquetas de estructura están dañadas</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>esa norma prohíbe el cifrado</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>esa norma prohíbe la información del documento, que se escribe</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>esa norma exige un título, y no se ha dado ninguno</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>El documento ya no declara que es %1: %2</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>Algunos de sus marcadores faltan en el propio documento</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>Algunos de sus campos de formulario faltan en el propio documento</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>El árbol de páginas se contiene a sí mismo</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>El documento no tiene árbol de páginas</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>El documento declara %1 páginas, y se encontraron %2</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>El documento no declara sus páginas, y se encontraron %1</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>Se pudieron leer %1 de %2 páginas, la página %3 es la primera que falta</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>Se pudieron leer %1 de %2 páginas</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>Lo que hay en la página %1 está dañado y puede estar incompleto</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>El documento está dañado y se reparó: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>El documento está dañado y se reparó en %n lugar, el primero: %1</numerusform>
            <numerusform>El documento está dañado y se reparó en %n lugares, el primero: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>No es un archivo PDF</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>El documento está cifrado, y sus permisos no dejan tomar sus páginas; su contraseña de propietario lo permitiría</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>El documento está cifrado, y ninguna de las contraseñas lo abre</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>Es un formulario XFA dinámico, cuyas páginas solo crea un programa para esos formularios</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>El documento está demasiado dañado para repararlo</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>El documento está dañado: faltan su parte final y su tabla de objetos</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>El documento está dañado: no tiene catálogo</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>página %1 (%2)</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>Los lectores no tienen que mostrar páginas fuera de 3 a 14&#x202f;400 unidades: %1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>El documento está protegido, y el PDF creado con él tiene en su lugar la protección pedida</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>El documento está protegido, y el PDF creado con él no lo está</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>falta su cabecera</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>la longitud de un flujo es incorrecta</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>un flujo está cortado</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>su tabla de objetos está dañada</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>un objeto no está donde dice la tabla de objetos</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>no tiene catálogo</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>los datos de un flujo están dañados</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>un objeto está mal formado</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1 (objeto %2)</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>El documento está dañado: %1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>El documento está dañado</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>La fuente %1 no se puede leer</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>El texto tiene demasiadas formas distintas de letras</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>uso privado</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>sin asignar</translation>
    </message>
    <message>
        <source>other</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>1 carácter no está en ninguna fuente y se muestra como un recuadro: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n carácter no está en ninguna fuente y se muestra como un recuadro: %1</numerusform>
            <numerusform>%n caracteres no están en ninguna fuente y se muestran como recuadros: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>1 carácter queda dividido entre dos líneas y se muestra como recuadros</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n carácter queda dividido entre dos líneas y se muestra como recuadros</numerusform>
            <numerusform>%n caracteres quedan divididos entre dos líneas y se muestran como recuadros</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>No se pueden cargar las reglas para dividir las líneas: %1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>El encabezado o el pie de página tiene más líneas que su margen</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>El texto no es %1 válido</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>Los bytes no indican la codificación del texto</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>No hay ninguna fuente para escribir texto</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>Los archivos HEIC y AVIF se leen con libheif %1, que no se puede cargar: %2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>Este programa se compiló sin los medios para leer archivos HEIC y AVIF</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>sus colores son de un tipo que solo JPEG 2000 conoce</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>La imagen es en parte transparente y se pone sobre blanco</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>La imagen tiene 16 bits por color y se conserva con 8</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>su perfil de color es de la versión %1</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>no declara que es PDF/A</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>declara que es %1, no %2</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>No puede entrar en un documento que es %1: %2</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>El PDF no declara que es %1: %2</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>sus colores son tintas sin perfil, y no se ha dado ninguno</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>una página tiene %1 x %2 unidades, fuera de %3 a %4</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>está protegido, lo que la norma prohíbe</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>sus colores son para otro tipo de dispositivo que los de los documentos anteriores</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>El PDF declara que es %1 porque este documento lo declara; no se comprueba si es cierto</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>Sus colores sin perfil se muestran como los de los documentos anteriores</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>Un documento para archivos no puede cifrarse</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>El archivo ha cambiado</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>No todas las páginas del PDF son iguales a su origen</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>Todo está en el PDF, pero dispuesto de otro modo</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>El PDF tiene %1 páginas en lugar de %2</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>La página %1 del PDF reducido no es la del PDF: %2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>El PDF está dañado: %1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>El PDF tiene menos páginas que los archivos</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>Los lectores mostrarían de otro modo los campos de formulario del PDF</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>no es una página del origen</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>una fuente está dañada</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>no es de ninguno de los archivos</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>no tiene imagen, o tiene más de una</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>su imagen está girada de otro modo</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>sus caracteres no son los del texto</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>el texto continúa y el PDF no</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>su contenido no es el del origen</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>sus fuentes o imágenes no son las del origen</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>sus enlaces, notas o campos no son los del origen</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>su tamaño o su giro no es el del origen</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 no es como en el origen</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>los bytes de su imagen no son los del archivo</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>los píxeles de su imagen no son los del archivo</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>su imagen tiene otro tamaño</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>su imagen se leería de otro modo</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>la opacidad de su imagen es otra</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>su imagen está en otro lugar</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>El PDF del disco no es lo que se escribió</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>La página %1 del PDF no es igual a su origen: %2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>no se puede leer el contenido de una página</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>su texto está en otro lugar</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>su encabezado o su pie es otro</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>muestra lo que no está en el texto</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>tiene otro tamaño</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>tiene anotaciones que nadie hizo</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>muestra más que la imagen</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>No hay descripción de la imagen; el nombre de su archivo la sustituye</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>No tiene etiquetas de estructura, que PDF/UA exige</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>No se comprueba si sus etiquetas son las que exige PDF/UA</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>Una propiedad del documento es más larga de lo que permite %1</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>El documento es demasiado grande para PDF/A</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>Los archivos JPEG XL se leen con libjxl %1, que no se puede cargar: %2</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>Un nombre de archivo no puede contener una barra</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>sin comprimir: %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>Se produjo un problema con estos documentos PDF:</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>No se pudieron importar los siguientes archivos. Están cifrados o no son archivos PDF normales:</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>En espera…</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>Convirtiendo…</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>Creando documentos PDF</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>Creando documentos PDF…</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso del proceso</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>Suelte archivos aquí o añádalos con los botones de arriba</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>Añadir archivos de cualquier tipo</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>Añadir los archivos de una carpeta</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
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
        <translation>%1 pt = %2 in</translation>
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
        <translation>Menú contextual</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Añadir carpetas</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>Añadir imágenes</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>Añadir archivos de texto</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>Añadir archivos PDF</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>Ocultar opciones</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>Mostrar opciones</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>La carpeta de salida no existe. Elija otra.</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>Seleccione un archivo para ver sus páginas</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>%1 de %2 archivos añadidos, comprimiendo</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>%1 de %2 archivos añadidos</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>%1 de %2 hechos, comprimiendo</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 de %2 hechos</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>Mostrar la contraseña de usuario</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>Mostrar la contraseña de propietario</translation>
    </message>
</context>
<context>
    <name>folioforge::NoticeBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>folioforge::PageProcess</name>
    <message>
        <source>The PDF asks for a password</source>
        <translation>El PDF pide una contraseña</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>El PDF no se puede leer</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>La página no se puede mostrar</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>La página tarda demasiado en mostrarse</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar la contraseña</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>Dibujando la página…</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>El PDF ya no está</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>Página %1 de más de %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>Cerrar la vista previa</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
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
        <translation>%1 creado, 1 página, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>%1 creado, %n página, %2</numerusform>
            <numerusform>%1 creado, %n páginas, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>1 PDF creado</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>%n PDF creado</numerusform>
            <numerusform>%n PDF creados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>1 archivo no se pudo añadir</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>%n archivo no se pudo añadir</numerusform>
            <numerusform>%n archivos no se pudieron añadir</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>1 no se pudo crear</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>%n no se pudo crear</numerusform>
            <numerusform>%n no se pudieron crear</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>No se pudo crear el PDF</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>No se pudo crear ningún PDF</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>Abrir el PDF</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>Abrir la carpeta de los documentos PDF</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>Seleccionar los archivos que no están en ningún PDF</translation>
    </message>
    <message>
        <source>%1, every page checked</source>
        <translation>%1, todas las páginas comprobadas</translation>
    </message>
</context>
</TS>
