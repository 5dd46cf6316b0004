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
</context>
</TS>
