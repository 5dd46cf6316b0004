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
        <translation>勾选后，没有所有者密码的读者不能复制文本和图片</translation>
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
无：图片保持原样
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
        <translation>第 %1 页，共 %2 页以上</translation>
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
</context>
</TS>
