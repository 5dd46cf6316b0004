<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>关于 Folioforge</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>Folioforge 的图标</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
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
        <translation>Folioforge 是 Vesprin 的自由软件，采用 Apache 许可证 2.0 版。

它建立在他人成果之上，谨致谢意：
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
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>Checks</name>
    <message>
        <source>Click &quot;OK&quot; to select another folder.</source>
        <translation>请点击“确定”选择其他文件夹。</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>两个密码不能相同。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>请选择用于存放输出文档的文件夹。</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>所选输出文件夹不存在或不可写入。</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>请输入用户密码。</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>请输入所有者密码。</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>请输入输出文件名。</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>所选输出文件夹不可写入。</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>输出文件夹中已存在该文件名，请输入其他名称。</translation>
    </message>
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>存档用的 PDF 不能有密码。</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>1 页</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n 页</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Text files</source>
        <translation>文本文件</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF 文件</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>文本文件、图像和 PDF 文件</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>按名称排序</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>按名称排序</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>按大小排序</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>按大小排序</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>按创建日期排序</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>按修改日期排序</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>支持(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>产品页面(&amp;P)</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>关于 Folioforge(&amp;B)</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>在列表末尾添加任意类型的文件</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>添加文件夹中的文本和图像文件；其中的 PDF 和子文件夹除外</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>添加图像</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>添加文本文件</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>添加 PDF 文件</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>从列表中移除所选文件</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>移除所选文件</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>从列表中移除所有文件</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>要转换的文件，按顺序排列</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>输出文件夹(&amp;O)：</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>存放 PDF 文档的文件夹</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>选择其他输出文件夹</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>浏览输出文件夹</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>在文件管理器中显示输出文件夹</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>打开输出文件夹</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>按列表顺序将所有文件制作成一个 PDF</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>合并为一个 PDF</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>合并为一个 PDF(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>合并后 PDF 的名称；缺少 .pdf 时自动添加</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>合并后 PDF 的名称</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>创建 PDF 文档</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>正在转换…</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>处理进度</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>显示选项</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>显示选项面板</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>显示选项</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>隐藏选项面板</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>隐藏选项</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>文档属性</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>标题(&amp;I)：</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>PDF 文档的标题</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>作者(&amp;A)：</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>PDF 文档的作者</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>主题(&amp;J)：</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>PDF 文档的主题</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>关键字(&amp;K)：</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>PDF 文档的关键字</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>图像的页面大小和页边距</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>图像页面设置</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>文本文件的页面大小和页边距</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>文本页面设置</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>密码和权限</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>安全设置</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>每页的大小为图像加页边距</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>页面跟随图像</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>图像将缩放以适合页面并居中</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>指定页面大小：</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>自定义页面宽度（点）</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>自定义页面宽度</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>高度(&amp;G)：</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>自定义页面高度（点）</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>自定义页面高度</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>页边距（点）</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L)：</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>左边距（点）</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>左边距</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>右(&amp;R)：</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>右边距（点）</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>右边距</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T)：</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>上边距（点）</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>上边距</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>下(&amp;B)：</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>下边距（点）</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>下边距</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>842 × 1191 点的页面</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3，842 × 1191 点</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>595 × 842 点的页面</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4，595 × 842 点</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>420 × 595 点的页面</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5，420 × 595 点</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>按下方给定大小的页面</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>打开 PDF 时要求输入此密码</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>用户密码，用于打开 PDF</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>用户密码，用于打开 PDF(&amp;U)</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>打开 PDF 的密码</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>用户密码</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>更改 PDF 权限时要求输入此密码</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>所有者密码，用于更改权限</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>所有者密码，用于更改权限(&amp;W)</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>更改 PDF 权限的密码</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>所有者密码</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>勾选后，没有所有者密码的读者不能打印</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>禁止打印</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>禁止打印(&amp;P)</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>勾选后，没有所有者密码的读者不能复制文本和图像</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>禁止复制</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>禁止复制(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>压缩(&amp;C)：</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>设置在输入后立即生效</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>How strongly photos are reduced:
None: pictures stay as they are
150m, mild: photos at 150 pixels per inch
96m, medium: photos at 96 pixels per inch
72l, strong: photos at 72 pixels per inch</source>
        <translation>照片的压缩程度：
无：图像保持原样
150m，轻度：照片为每英寸 150 像素
96m，中度：照片为每英寸 96 像素
72l，强：照片为每英寸 72 像素</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m，轻度：适合打印</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m，中度：适合屏幕</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l，强：适合邮件</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>在词与词之间换行；保留空行、制表符和从右到左的文字</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>易读排版</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>易读排版(&amp;D)</translation>
    </message>
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>在 PDF 获得文件名之前，将每一页与其文件核对</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>检查每一页</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>生成数十年后外观不变的 PDF/A 文档</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>存档 (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>生成屏幕阅读器可以朗读的 PDF/UA 文档</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>无障碍 (带标签)</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>文本输出设置中的页边距值无效。</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>图像输出设置中的页边距值无效。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>页边距大于页面宽度，请修改文本输出设置。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>页边距大于页面高度，请修改文本输出设置。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>页边距大于页面宽度，请修改图像输出设置。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>页边距大于页面高度，请修改图像输出设置。</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>密码中含有不完整的字符</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>密码以不允许的方式混用了从右到左书写的字符和其他字符</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>密码中含有不允许的字符</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>密码中没有可见字符</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>密码超过 %1 字节</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>转换已停止</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>%1 是二进制属性列表，只能读取 XML</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>%1 不是有效的属性列表</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>滤镜文件 %1 缺少“%2”的有效值</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>PDF 并未全部带有标签，因为以下文件没有标签：%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 以及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>没有可写入的页面</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>其 PDF 已存在且不是旧的</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>其 PDF 会取代输入文件 %1</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>无法识别该文件类型</translation>
    </message>
    <message>
        <source>1 PDF</source>
        <translation>1 个 PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs</source>
        <translation>
            <numerusform>%n 个 PDF</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 个文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>1 个其他类型的文件</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>%n 个其他类型的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>未采用：%1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>无法列出文件夹内容：%1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>文档已加密</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>文本超过 2 GB</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>文本按 %1 读取，这是猜测的结果</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>文本不是有效的 UTF-8，其页面将留空</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>无法在 %1 中创建文件</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>无法在 %1 中写入文件</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>无法回读 %1 中的文件</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>无法将 %1 中的文件落盘</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>无法为 %1 中的文件命名</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>文件系统无法将文件落盘</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>无法读取文件</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>文件过早结束</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>文件 %1 在转换过程中被更改</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>文件 %1 过早结束</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>无法创建临时文件</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>无法写入临时文件</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>无法读取临时文件</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>该图像为 HDR 屏幕制作，在 PDF 中显示的亮度会有所不同</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>压缩数据已损坏</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>文件不是位图</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>位图的种类未知</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>位图的颜色多于其像素所能表示的数量</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>文件省略的像素使用其第一种颜色</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>无法读取 EXR 文件：%1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>EXR 文件没有颜色或亮度通道</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>EXR 文件已损坏：其任何一行都无法读取</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>GIF 文件已损坏</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>文件中没有图像</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>无法读取 HEIC 或 AVIF 文件：%1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>系统未提供 HEIC 和 AVIF 文件所需的线程</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>HEIC 或 AVIF 文件已损坏</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>其中的动态图像未采用</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>图标文件不完整或已损坏：缺失的部分中可能有更大的图像</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>图标的像素种类未知</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>图标的图像种类未知</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>图标文件中没有可读取的图像</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>图标的 %2 个图像中有 %1 个无法读取</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>JPEG 文件在图像开始之前就结束了</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>JPEG 文件有 %1 个颜色分量，PDF 无法显示这种颜色</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>任何 PDF 都无法容纳这种 JPEG 文件（无损、分层或超过 8 位）</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>JPEG 2000 文件已损坏</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>JPEG 2000 文件中没有图像</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>图像不完整：%1 % 的图块无法读取</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>图像不完整：%1 % 的数据无法读取</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>JPEG 2000 文件不完整</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>JPEG 文件已损坏：其任何一行都无法读取</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>JPEG XL 文件已损坏</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>JPEG XL 文件除颜色外还有 %1 个通道，数量过多</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>JPEG XL 文件存储的是油墨，无法读取</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>本程序构建时不包含读取 %1 文件的功能</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>本程序构建时不包含解码 JPEG 2000 的功能</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>PNG 文件已损坏</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>PNG 文件中没有图像</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>PNG 文件没有调色板</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>Photoshop 文件的压缩方式未知</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>Photoshop 文件只有图层：请以最大兼容性保存，这样会加入合成的图像</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>Photoshop 文件没有调色板</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>Photoshop 文件的颜色模式未知</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>Photoshop 文件已损坏</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>文件不是可读取的 TGA 图像</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>文件中另有一页无法读取</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>不支持其形式</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>它没有像素</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>它比任何图像都大</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>其目录已损坏</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>它不完整</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>TIFF 文件已损坏</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>无法读取 TIFF 文件：%1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>TIFF 文件没有调色板</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>无法读取 TIFF 文件：不支持其压缩方式</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>WebP 文件已损坏</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>WebP 文件过大</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>动画过大（%1 x %2 像素）</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>文件不是已知格式的图像</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>内存不足以处理该图像</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>图像没有像素</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>图像过大（%1 x %2 像素）</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>另有 1 页未采用</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>另有 %n 页未采用</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>另有 1 帧未采用</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>另有 %n 帧未采用</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>另有 1 个部分未采用</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>另有 %n 个部分未采用</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>另有 1 个图像未采用</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>另有 %n 个图像未采用</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>未采用：%1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>此页及其后的页面未采用，因为合起来过大</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>第 %1 页：%2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>图像不完整：%1 % 的行无法读取</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>图像不完整：其细节无法读取</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>图像不完整：其中一部分无法读取</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>图像不完整：其透明度无法读取</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>图像已损坏：其中一部分可能显示不正确</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>对于文件头所描述的图像，文件过短</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>图像的行已损坏</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>图像的行数少于文件头所述</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>SOURCE_DATE_EPOCH 为“%1”，而不是从 1970 年到 10000 年之前某日期的秒数</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>1 个结构标签</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>%n 个结构标签</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>1 个附件</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>%n 个附件</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>作品集</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>XFA 表单</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>文档脚本</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>页面模板</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>文章线索</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>其他图层设置</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>链接的基准地址</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>使用权限</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>元数据</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>1 个其他文档属性</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>%n 个其他文档属性</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>输出方法</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>1 个签名</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>%n 个签名</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 个链接</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n 个链接</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>1 个注释</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>%n 个注释</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>1 个书签</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>%n 个书签</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>页面标签</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>1 个域</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>%n 个域</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 个图层</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n 个图层</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>1 个命名目标</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>%n 个命名目标</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>其他名称</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>1 个其他目录条目</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>%n 个其他目录条目</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>1 个更改的名称</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>%n 个更改的名称</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>无法嵌入字体 %1</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>它有 1 页，而“%1”指的是其他页</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>它有 %n 页，而“%1”指的是其他页</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>1 个签名未采用，因为它只对原文件有效</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>%n 个签名未采用，因为它们只对原文件有效</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>1 个结构标签已损坏，未采用</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>%n 个结构标签已损坏，未采用</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>未保留，因为属于未采用的页面：%1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>文档没有页面</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>1 个表单域已改名，因为另一个文档有同名的域：“%1”现为“%2”；脚本保持不变</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>%n 个表单域已改名，因为另一个文档有同名的域，例如“%1”现为“%2”；脚本保持不变</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>未保留：%1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>它现在是另一个文档的一部分</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>它已损坏</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>其部分结构标签已损坏</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>该标准禁止加密</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>该标准禁止写入的文档信息</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>该标准要求有标题，而没有给出</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>文档不再声明自己是 %1，因为%2</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>其部分书签在文档本身中就已缺失</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>其部分表单域在文档本身中就已缺失</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>页面树包含了自身</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>文档没有页面树</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>文档声明有 %1 页，而找到了 %2 页</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>文档没有声明页数，而找到了 %1 页</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>共 %2 页，可读取 %1 页，第 %3 页是缺失的第一页</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>共 %2 页，可读取 %1 页</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>第 %1 页的内容已损坏，可能有所缺失</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>文档已损坏并已修复：%1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>文档已损坏，修复了 %n 处，第一处：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>这不是 PDF 文件</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>文档已加密，其权限不允许提取页面；使用所有者密码则可以</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>文档已加密，所有密码都无法打开</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>这是动态 XFA 表单，只有专门的程序才能生成其页面</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>文档损坏严重，无法修复</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>文档已损坏：缺少尾部和对象表</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>文档已损坏：没有目录对象</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>第 %1 页（%2）</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>阅读器不一定会显示超出 3 至 14,400 单位的页面：%1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>文档受保护，而由它创建的 PDF 改用所要求的保护</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>文档受保护，而由它创建的 PDF 不受保护</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>缺少文件头</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>某个流的长度有误</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>某个流不完整</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>其对象表已损坏</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>某个对象不在对象表所述的位置</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>没有目录对象</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>某个流的数据已损坏</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>某个对象的格式不正确</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1（对象 %2）</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>文档已损坏：%1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>文档已损坏</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>无法读取字体 %1</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>文本中不同的字形过多</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>专用区</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>未分配</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>1 个字符在任何字体中都没有字形，显示为方框：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n 个字符在任何字体中都没有字形，显示为方框：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>1 个字符被拆到两行，显示为方框</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n 个字符被拆到两行，显示为方框</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>无法加载换行规则：%1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>页眉或页脚的行数超出其页边距</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>文本不是有效的 %1</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>无法从字节判断文本的编码</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>没有可用于书写文本的字体</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>HEIC 和 AVIF 文件由 libheif %1 读取，而它无法加载：%2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>本程序构建时不包含读取 HEIC 和 AVIF 文件的功能</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>它的颜色属于只有 JPEG 2000 才支持的类型</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>该图像部分透明，将置于白色背景上</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>该图像每种颜色 16 位，将以 8 位保存</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>它的颜色配置文件是第 %1 版</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>它没有声明自己是 PDF/A</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>它声明自己是 %1，而不是 %2</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>无法放入 %1 文档，因为%2</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>PDF 没有声明自己是 %1，因为%2</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>它的颜色是没有配置文件的油墨色，也没有给出配置文件</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>有一页为 %1 x %2 单位，超出 %3 到 %4</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>它受保护，而该标准禁止保护</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>它的颜色所针对的设备类型与前面的文档不同</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>PDF 声明自己是 %1，因为该文档如此声明；其真实性未经检查</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>它没有配置文件的颜色将按前面文档的颜色显示</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>用于存档的文档不能加密</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>文件已更改</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>PDF 中有页面与其来源不一致</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>全部内容都在 PDF 中，但排版不同</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>PDF 有 %1 页，而不是 %2 页</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>压缩后的 PDF 第 %1 页与原 PDF 不一致：%2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>PDF 已损坏：%1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>PDF 的页数少于文件的页数</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>阅读器会以不同方式显示 PDF 的表单字段</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>不是来源中的页面</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>字体已损坏</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>不属于任何一个文件</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>没有图片或有多张图片</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>图片的方向不同</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>字符与文本不同</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>文本还有内容，而 PDF 已结束</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>内容与来源不同</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>字体或图片与来源不同</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>链接、批注或字段与来源不同</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>尺寸或方向与来源不同</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 与来源不同</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>图片的字节与文件不同</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>图片的像素与文件不同</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>图片尺寸不同</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>图片会被读成别的样子</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>图片的不透明度不同</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>图片的位置不同</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>磁盘上的 PDF 与写入的内容不同</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>PDF 的第 %1 页与其来源不一致：%2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>无法读取页面的内容</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>文本的位置不同</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>页眉或页脚不同</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>显示了文本中没有的内容</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>尺寸不同</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>有来源中没有的批注</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>显示的不只是图片</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>没有给出图片的说明；以其文件名代替</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>它没有 PDF/UA 所要求的结构标签</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>不检查它的标签是否符合 PDF/UA 的要求</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>文档的某个属性超出了 %1 允许的长度</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>文档对 PDF/A 而言过大</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>JPEG XL 文件由 libjxl %1 读取，而它无法加载：%2</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>文件名不能包含斜杠</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>未压缩：%1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>以下 PDF 文档出现问题：</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>无法导入以下文件，它们已加密或不是正常的 PDF 文件：</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>等待中…</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>正在转换…</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>正在创建 PDF 文档</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>正在创建 PDF 文档…</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>处理进度</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>将文件拖放到此处，或使用上方的按钮添加</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>添加任意类型的文件</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>添加文件夹中的文件</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标</translation>
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
        <translation>%1 pt = %2 英寸</translation>
    </message>
    <message>
        <source>%1 pt = %2 mm</source>
        <translation>%1 pt = %2 毫米</translation>
    </message>
</context>
<context>
    <name>folioforge::ListCommands</name>
    <message>
        <source>Contextual Menu</source>
        <translation>上下文菜单</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>添加图像</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>添加文本文件</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>添加 PDF 文件</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>隐藏选项</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>显示选项</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>输出文件夹不存在，请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>选择一个文件以查看其页面</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>已添加 %1/%2 个文件，正在压缩</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>已添加 %1/%2 个文件</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>已完成 %1/%2，正在压缩</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>已完成 %1/%2</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>显示用户密码</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>显示所有者密码</translation>
    </message>
</context>
<context>
    <name>folioforge::NoticeBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>folioforge::PageProcess</name>
    <message>
        <source>The PDF asks for a password</source>
        <translation>该 PDF 需要密码</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>无法读取该 PDF</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>无法显示该页面</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>显示该页面耗时过长</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>隐藏密码</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>显示密码</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>正在绘制页面…</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>该 PDF 已不存在</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>第 %1 页，共超过 %2 页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>关闭预览</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>page, file</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>folioforge::RunAnswer</name>
    <message>
        <source>%1 made, 1 page, %2</source>
        <translation>已创建 %1，1 页，%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>已创建 %1，%n 页，%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>已创建 1 个 PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>已创建 %n 个 PDF</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>1 个文件未能添加</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>%n 个文件未能添加</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>1 个未能创建</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>%n 个未能创建</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>未能创建 PDF</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>未能创建任何 PDF</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>打开该 PDF</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>打开 PDF 文档所在的文件夹</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>选择未包含在任何 PDF 中的文件</translation>
    </message>
    <message>
        <source>%1, every page checked</source>
        <translation>%1，每一页均已检查</translation>
    </message>
</context>
</TS>
