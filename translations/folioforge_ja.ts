<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutWnd</name>
    <message>
        <source>About Folioforge</source>
        <translation>Folioforge について</translation>
    </message>
    <message>
        <source>Icon of Folioforge</source>
        <translation>Folioforge のアイコン</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
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
        <translation>Folioforge は Vesprin のフリーソフトウェアで、Apache License, Version 2.0 で提供されています。

以下の成果に支えられています。感謝いたします:
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
        <translation>バージョン %1</translation>
    </message>
</context>
<context>
    <name>Checks</name>
    <message>
        <source>Click &quot;OK&quot; to select another folder.</source>
        <translation>「OK」をクリックして別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The passwords can not be the same.</source>
        <translation>2 つのパスワードを同じにすることはできません。</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Please select an output folder to store the output documents.</source>
        <translation>作成した文書を保存する出力フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Selected output folder does not exist or is not writable.</source>
        <translation>選択した出力フォルダーは存在しないか、書き込みできません。</translation>
    </message>
    <message>
        <source>Please input user password.</source>
        <translation>ユーザーパスワードを入力してください。</translation>
    </message>
    <message>
        <source>Please input owner password.</source>
        <translation>所有者パスワードを入力してください。</translation>
    </message>
    <message>
        <source>Please input output file name.</source>
        <translation>出力ファイル名を入力してください。</translation>
    </message>
    <message>
        <source>Selected output folder is not writable.</source>
        <translation>選択した出力フォルダーには書き込みできません。</translation>
    </message>
    <message>
        <source>File name already exists in output folder, please input another name.</source>
        <translation>このファイル名は出力フォルダーに既に存在します。別の名前を入力してください。</translation>
    </message>
</context>
<context>
    <name>EntryCells</name>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n ページ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Text files</source>
        <translation>テキストファイル</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF ファイル</translation>
    </message>
    <message>
        <source>Text files, images and PDF files</source>
        <translation>テキスト、画像、PDF ファイル</translation>
    </message>
</context>
<context>
    <name>ListCommands</name>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Sort By Name</source>
        <translation>名前順に並べ替え</translation>
    </message>
    <message>
        <source>Resort By Name</source>
        <translation>名前順に並べ替え</translation>
    </message>
    <message>
        <source>Sort By Size</source>
        <translation>サイズ順に並べ替え</translation>
    </message>
    <message>
        <source>Resort By Size</source>
        <translation>サイズ順に並べ替え</translation>
    </message>
    <message>
        <source>Sort By Data Created</source>
        <translation>作成日順に並べ替え</translation>
    </message>
    <message>
        <source>Sort By Data Modified</source>
        <translation>更新日順に並べ替え</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>サポート(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>製品ページ(&amp;P)</translation>
    </message>
    <message>
        <source>Check for Update...</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>A&amp;bout Folioforge</source>
        <translation>Folioforge について(&amp;B)</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Add files of any kind, at the end of the list</source>
        <translation>あらゆる種類のファイルを一覧の末尾に追加します</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Add the text and image files of a folder; PDFs and folders in it are left out</source>
        <translation>フォルダー内のテキストと画像を追加します（PDF とサブフォルダーは除く）</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Add images</source>
        <translation>画像を追加</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Add text files</source>
        <translation>テキストファイルを追加</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Add PDF files</source>
        <translation>PDF ファイルを追加</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Remove the selected files from the list</source>
        <translation>選択したファイルを一覧から削除します</translation>
    </message>
    <message>
        <source>Remove selected files</source>
        <translation>選択したファイルを削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove all files from the list</source>
        <translation>一覧からすべてのファイルを削除します</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>一覧をクリア</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The files to convert, in their order</source>
        <translation>変換するファイル（順番どおり）</translation>
    </message>
    <message>
        <source>&amp;Output folder:</source>
        <translation>出力フォルダー(&amp;O):</translation>
    </message>
    <message>
        <source>The folder that receives the PDF documents</source>
        <translation>PDF 文書を保存するフォルダー</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>Choose another output folder</source>
        <translation>別の出力フォルダーを選択します</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>参照して出力フォルダーを選択</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>Show the output folder in the file browser</source>
        <translation>出力フォルダーをファイルマネージャーで表示します</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>出力フォルダーを開く</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Make one PDF of all files, in the order of the list</source>
        <translation>すべてのファイルから一覧の順に 1 つの PDF を作成します</translation>
    </message>
    <message>
        <source>Merge into one PDF</source>
        <translation>1 つの PDF に結合</translation>
    </message>
    <message>
        <source>&amp;Merge into one PDF</source>
        <translation>1 つの PDF に結合(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Name of the merged PDF; .pdf is added where it is missing</source>
        <translation>結合した PDF の名前（.pdf がなければ追加されます）</translation>
    </message>
    <message>
        <source>Name of the merged PDF</source>
        <translation>結合した PDF の名前</translation>
    </message>
    <message>
        <source>Make the PDF documents</source>
        <translation>PDF 文書を作成します</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>変換中…</translation>
    </message>
    <message>
        <source>How far the run is</source>
        <translation>処理の進行状況</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>オプションを表示</translation>
    </message>
    <message>
        <source>Show the options panel</source>
        <translation>オプションパネルを表示します</translation>
    </message>
    <message>
        <source>Show options</source>
        <translation>オプションを表示</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Hide the options panel</source>
        <translation>オプションパネルを隠します</translation>
    </message>
    <message>
        <source>Hide options</source>
        <translation>オプションを隠す</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Document properties</source>
        <translation>文書のプロパティ</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>タイトル(&amp;I):</translation>
    </message>
    <message>
        <source>Title of the PDF documents</source>
        <translation>PDF 文書のタイトル</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <translation>作成者(&amp;A):</translation>
    </message>
    <message>
        <source>Author of the PDF documents</source>
        <translation>PDF 文書の作成者</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Sub&amp;ject:</source>
        <translation>件名(&amp;J):</translation>
    </message>
    <message>
        <source>Subject of the PDF documents</source>
        <translation>PDF 文書の件名</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>件名</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>キーワード(&amp;K):</translation>
    </message>
    <message>
        <source>Keywords of the PDF documents</source>
        <translation>PDF 文書のキーワード</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Page size and margins for images</source>
        <translation>画像のページサイズと余白</translation>
    </message>
    <message>
        <source>Image page settings</source>
        <translation>画像のページ設定</translation>
    </message>
    <message>
        <source>Page size and margins for text files</source>
        <translation>テキストファイルのページサイズと余白</translation>
    </message>
    <message>
        <source>Text page settings</source>
        <translation>テキストのページ設定</translation>
    </message>
    <message>
        <source>Passwords and rights</source>
        <translation>パスワードと権限</translation>
    </message>
    <message>
        <source>Security settings</source>
        <translation>セキュリティ設定</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>Each page is as large as its image and the margins</source>
        <translation>各ページは画像と余白を合わせた大きさになります</translation>
    </message>
    <message>
        <source>Page follows the image</source>
        <translation>ページを画像に合わせる</translation>
    </message>
    <message>
        <source>The image is scaled to fit and centred</source>
        <translation>画像はページに合わせて拡大・縮小され、中央に配置されます</translation>
    </message>
    <message>
        <source>Page of this size:</source>
        <translation>ページサイズを指定:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>Custom page width, in points</source>
        <translation>カスタムページの幅（ポイント）</translation>
    </message>
    <message>
        <source>Custom page width</source>
        <translation>カスタムページの幅</translation>
    </message>
    <message>
        <source>Hei&amp;ght:</source>
        <translation>高さ(&amp;G):</translation>
    </message>
    <message>
        <source>Custom page height, in points</source>
        <translation>カスタムページの高さ（ポイント）</translation>
    </message>
    <message>
        <source>Custom page height</source>
        <translation>カスタムページの高さ</translation>
    </message>
    <message>
        <source>Margins (points)</source>
        <translation>余白（ポイント）</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L):</translation>
    </message>
    <message>
        <source>Left margin, in points</source>
        <translation>左余白（ポイント）</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>左余白</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>右(&amp;R):</translation>
    </message>
    <message>
        <source>Right margin, in points</source>
        <translation>右余白（ポイント）</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>右余白</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T):</translation>
    </message>
    <message>
        <source>Top margin, in points</source>
        <translation>上余白（ポイント）</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>上余白</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>下(&amp;B):</translation>
    </message>
    <message>
        <source>Bottom margin, in points</source>
        <translation>下余白（ポイント）</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>下余白</translation>
    </message>
    <message>
        <source>Pages of 842 × 1191 points</source>
        <translation>842 × 1191 ポイントのページ</translation>
    </message>
    <message>
        <source>A3, 842 × 1191 points</source>
        <translation>A3、842 × 1191 ポイント</translation>
    </message>
    <message>
        <source>Pages of 595 × 842 points</source>
        <translation>595 × 842 ポイントのページ</translation>
    </message>
    <message>
        <source>A4, 595 × 842 points</source>
        <translation>A4、595 × 842 ポイント</translation>
    </message>
    <message>
        <source>Pages of 420 × 595 points</source>
        <translation>420 × 595 ポイントのページ</translation>
    </message>
    <message>
        <source>A5, 420 × 595 points</source>
        <translation>A5、420 × 595 ポイント</translation>
    </message>
    <message>
        <source>Pages of the size given below</source>
        <translation>下で指定したサイズのページ</translation>
    </message>
    <message>
        <source>Ask for this password when the PDF is opened</source>
        <translation>PDF を開くときにこのパスワードを求めます</translation>
    </message>
    <message>
        <source>User password, to open the PDF</source>
        <translation>PDF を開くユーザーパスワード</translation>
    </message>
    <message>
        <source>&amp;User password, to open the PDF</source>
        <translation>PDF を開くユーザーパスワード(&amp;U)</translation>
    </message>
    <message>
        <source>Password to open the PDF</source>
        <translation>PDF を開くためのパスワード</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>ユーザーパスワード</translation>
    </message>
    <message>
        <source>Ask for this password when the rights of the PDF are changed</source>
        <translation>PDF の権限を変更するときにこのパスワードを求めます</translation>
    </message>
    <message>
        <source>Owner password, to change rights</source>
        <translation>権限を変更する所有者パスワード</translation>
    </message>
    <message>
        <source>O&amp;wner password, to change rights</source>
        <translation>権限を変更する所有者パスワード(&amp;W)</translation>
    </message>
    <message>
        <source>Password to change the rights of the PDF</source>
        <translation>PDF の権限を変更するためのパスワード</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>所有者パスワード</translation>
    </message>
    <message>
        <source>Tick to refuse printing to readers without the owner password</source>
        <translation>オンにすると、所有者パスワードのない閲覧者の印刷を禁止します</translation>
    </message>
    <message>
        <source>Refuse printing</source>
        <translation>印刷を禁止</translation>
    </message>
    <message>
        <source>Refuse &amp;printing</source>
        <translation>印刷を禁止(&amp;P)</translation>
    </message>
    <message>
        <source>Tick to refuse copying text and pictures to readers without the owner password</source>
        <translation>オンにすると、所有者パスワードのない閲覧者のテキストと画像のコピーを禁止します</translation>
    </message>
    <message>
        <source>Refuse copying</source>
        <translation>コピーを禁止</translation>
    </message>
    <message>
        <source>Refuse cop&amp;ying</source>
        <translation>コピーを禁止(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Compress:</source>
        <translation>圧縮(&amp;C):</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Settings hold as soon as they are entered</source>
        <translation>設定は入力した時点で有効になります</translation>
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
        <translation>写真をどの程度縮小するか:
なし: 画像はそのまま
150m、弱: 写真を 150 ピクセル/インチに
96m、中: 写真を 96 ピクセル/インチに
72l、強: 写真を 72 ピクセル/インチに</translation>
    </message>
    <message>
        <source>150m, mild: good for printing</source>
        <translation>150m、弱: 印刷向け</translation>
    </message>
    <message>
        <source>96m, medium: good for screens</source>
        <translation>96m、中: 画面表示向け</translation>
    </message>
    <message>
        <source>72l, strong: good for mail</source>
        <translation>72l、強: メール向け</translation>
    </message>
    <message>
        <source>Break lines between words; keep blank lines, tabs and right-to-left text</source>
        <translation>単語の間で改行し、空行、タブ、右から左への文字列を保ちます</translation>
    </message>
    <message>
        <source>Readable layout</source>
        <translation>読みやすいレイアウト</translation>
    </message>
    <message>
        <source>Rea&amp;dable layout</source>
        <translation>読みやすいレイアウト(&amp;D)</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Invalid page margin value in text output setting.</source>
        <translation>テキスト出力設定の余白の値が無効です。</translation>
    </message>
    <message>
        <source>Invalid page margin value in image output setting.</source>
        <translation>画像出力設定の余白の値が無効です。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your text output setting.</source>
        <translation>余白の値がページの幅を超えています。テキスト出力設定を変更してください。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your text output setting.</source>
        <translation>余白の値がページの高さを超えています。テキスト出力設定を変更してください。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page width, please modify your image output setting.</source>
        <translation>余白の値がページの幅を超えています。画像出力設定を変更してください。</translation>
    </message>
    <message>
        <source>The value of page margin is larger than page height, please modify your image output setting.</source>
        <translation>余白の値がページの高さを超えています。画像出力設定を変更してください。</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>The password contains half a character</source>
        <translation>パスワードに不完全な文字が含まれています</translation>
    </message>
    <message>
        <source>The password mixes characters written from right to left with others in a way that passwords cannot have</source>
        <translation>パスワードで、右から左に書く文字とほかの文字が使用できない形で混在しています</translation>
    </message>
    <message>
        <source>The password contains a character that passwords cannot have</source>
        <translation>パスワードに使用できない文字が含まれています</translation>
    </message>
    <message>
        <source>The password contains no visible character</source>
        <translation>パスワードに目に見える文字がありません</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes</source>
        <translation>パスワードが %1 バイトを超えています</translation>
    </message>
</context>
<context>
    <name>Run</name>
    <message>
        <source>A file name cannot hold a slash</source>
        <translation>ファイル名にスラッシュは使用できません</translation>
    </message>
    <message>
        <source>not compressed: %1</source>
        <translation>圧縮されませんでした: %1</translation>
    </message>
    <message>
        <source>Something went wrong with these PDF documents:</source>
        <translation>次の PDF 文書で問題が発生しました:</translation>
    </message>
</context>
<context>
    <name>SourceFiles</name>
    <message>
        <source>Fail to import following files. They are encrypted or not normal PDF files:</source>
        <translation>次のファイルを読み込めませんでした。暗号化されているか、正常な PDF ファイルではありません:</translation>
    </message>
</context>
<context>
    <name>States</name>
    <message>
        <source>Waiting...</source>
        <translation>待機中…</translation>
    </message>
    <message>
        <source>Converting...</source>
        <translation>変換中…</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
</context>
<context>
    <name>folioforge::BusySheet</name>
    <message>
        <source>Creating PDF documents</source>
        <translation>PDF 文書を作成中</translation>
    </message>
    <message>
        <source>Creating PDF documents…</source>
        <translation>PDF 文書を作成中…</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>処理の進行状況</translation>
    </message>
</context>
<context>
    <name>folioforge::EmptyHint</name>
    <message>
        <source>Drop files here, or add them with the buttons above</source>
        <translation>ここにファイルをドロップするか、上のボタンで追加してください</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Add files of any kind</source>
        <translation>あらゆる種類のファイルを追加します</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Add the files of a folder</source>
        <translation>フォルダー内のファイルを追加します</translation>
    </message>
</context>
<context>
    <name>folioforge::FilesArray</name>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>出力先</translation>
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
        <translation>%1 pt = %2 インチ</translation>
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
        <translation>コンテキストメニュー</translation>
    </message>
</context>
<context>
    <name>folioforge::ListHistory</name>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直し: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
</context>
<context>
    <name>folioforge::MainWndCtrl</name>
    <message>
        <source>Add Files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Add Images</source>
        <translation>画像を追加</translation>
    </message>
    <message>
        <source>Add Text Files</source>
        <translation>テキストファイルを追加</translation>
    </message>
    <message>
        <source>Add PDF Files</source>
        <translation>PDF ファイルを追加</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Hide Options</source>
        <translation>オプションを隠す</translation>
    </message>
    <message>
        <source>Show Options</source>
        <translation>オプションを表示</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Output folder does not exist, please select another one.</source>
        <translation>出力フォルダーが存在しません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Select a file to see its pages</source>
        <translation>ファイルを選択するとページが表示されます</translation>
    </message>
    <message>
        <source>%1 of %2 files added, compressing</source>
        <translation>%2 ファイル中 %1 件を追加、圧縮中</translation>
    </message>
    <message>
        <source>%1 of %2 files added</source>
        <translation>%2 ファイル中 %1 件を追加</translation>
    </message>
    <message>
        <source>%1 of %2 done, compressing</source>
        <translation>%2 件中 %1 件完了、圧縮中</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%2 件中 %1 件完了</translation>
    </message>
    <message>
        <source>Show the user password</source>
        <translation>ユーザーパスワードを表示</translation>
    </message>
    <message>
        <source>Show the owner password</source>
        <translation>所有者パスワードを表示</translation>
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
        <translation>PDF にはパスワードが必要です</translation>
    </message>
    <message>
        <source>The PDF cannot be read</source>
        <translation>PDF を読み取れません</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>ページを表示できません</translation>
    </message>
    <message>
        <source>The page takes too long to be shown</source>
        <translation>ページの表示に時間がかかりすぎています</translation>
    </message>
</context>
<context>
    <name>folioforge::PasswordEye</name>
    <message>
        <source>Hide the password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>パスワードを表示</translation>
    </message>
</context>
<context>
    <name>folioforge::Preview</name>
    <message>
        <source>Drawing the page…</source>
        <translation>ページを描画中…</translation>
    </message>
    <message>
        <source>The PDF is no longer there</source>
        <translation>PDF はもうありません</translation>
    </message>
</context>
<context>
    <name>folioforge::PreviewPanel</name>
    <message>
        <source>Page %1 of more than %2</source>
        <translation>%1 ページ（%2 ページ以上）</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Close the preview</source>
        <translation>プレビューを閉じる</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>page, file</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>folioforge::RunAnswer</name>
    <message>
        <source>%1 made, 1 page, %2</source>
        <translation>%1 を作成しました（1 ページ、%2）</translation>
    </message>
    <message numerus="yes">
        <source>%1 made, %n pages, %2</source>
        <translation>
            <numerusform>%1 を作成しました（%n ページ、%2）</numerusform>
        </translation>
    </message>
    <message>
        <source>1 PDF made</source>
        <translation>PDF を 1 件作成しました</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs made</source>
        <translation>
            <numerusform>PDF を %n 件作成しました</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file could not be added</source>
        <translation>1 ファイルを追加できませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be added</source>
        <translation>
            <numerusform>%n ファイルを追加できませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>1 could not be</source>
        <comment>PDF, made</comment>
        <translation>1 件は作成できませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n could not be</source>
        <comment>PDFs, made</comment>
        <translation>
            <numerusform>%n 件は作成できませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be made</source>
        <translation>PDF を作成できませんでした</translation>
    </message>
    <message>
        <source>No PDF could be made</source>
        <translation>PDF を 1 件も作成できませんでした</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>what was made, what was not</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>PDF を開きます</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Open the folder of the PDF documents</source>
        <translation>PDF 文書のフォルダーを開きます</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Select the files that are in no PDF</source>
        <translation>どの PDF にも含まれていないファイルを選択します</translation>
    </message>
</context>
</TS>
