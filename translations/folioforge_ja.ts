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
jemalloc, BSD licence
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
jemalloc, BSD licence
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
    <message>
        <source>A PDF for archives can not have passwords.</source>
        <translation>長期保存用の PDF にはパスワードを設定できません。</translation>
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
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
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
    <message>
        <source>Hold each page against its file before the PDF gets its name</source>
        <translation>PDF に名前を付ける前に、各ページを元のファイルと比べます</translation>
    </message>
    <message>
        <source>Check every page</source>
        <translation>すべてのページを確認</translation>
    </message>
    <message>
        <source>Make PDF/A documents, which look the same for decades</source>
        <translation>何十年後も同じように表示される PDF/A 文書を作成します</translation>
    </message>
    <message>
        <source>Archive (PDF/A)</source>
        <translation>長期保存 (PDF/A)</translation>
    </message>
    <message>
        <source>Make PDF/UA documents, which screen readers can read aloud</source>
        <translation>スクリーンリーダーで読み上げられる PDF/UA 文書を作成します</translation>
    </message>
    <message>
        <source>Accessible (tagged)</source>
        <translation>アクセシブル (タグ付き)</translation>
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
    <name>Reasons</name>
    <message>
        <source>The conversion was stopped</source>
        <translation>変換を中止しました</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is a binary property list; only XML can be read</source>
        <translation>%1 はバイナリのプロパティリストです。読み取れるのは XML だけです</translation>
    </message>
    <message>
        <source>%1 is no valid property list</source>
        <translation>%1 は有効なプロパティリストではありません</translation>
    </message>
    <message>
        <source>The filter file %1 lacks a valid value for &quot;%2&quot;</source>
        <translation>フィルターファイル %1 に「%2」の有効な値がありません</translation>
    </message>
    <message>
        <source>Not all of the PDF is tagged, as these are not: %1</source>
        <translation>次のファイルにタグがないため、PDF の一部にタグがありません: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no page to write</source>
        <translation>書き込むページがありません</translation>
    </message>
    <message>
        <source>Its PDF is there and not older</source>
        <translation>その PDF は既にあり、古くありません</translation>
    </message>
    <message>
        <source>Its PDF would take the place of an input, %1</source>
        <translation>その PDF は入力ファイル %1 を置き換えてしまいます</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>It is not a recognised type</source>
        <translation>認識できない種類のファイルです</translation>
    </message>
    <message>
        <source>1 PDF</source>
        <translation>PDF 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n PDFs</source>
        <translation>
            <numerusform>PDF %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>フォルダー 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>フォルダー %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of another type</source>
        <translation>ほかの種類のファイル 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n files of other types</source>
        <translation>
            <numerusform>ほかの種類のファイル %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>省かれたもの: %1</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>フォルダーの内容を一覧できません: %1</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>文書は暗号化されています</translation>
    </message>
    <message>
        <source>The text is larger than 2 GB</source>
        <translation>テキストが 2 GB を超えています</translation>
    </message>
    <message>
        <source>The text is read as %1, a guess</source>
        <translation>テキストは推測により %1 として読み取られます</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8; its page is left blank</source>
        <translation>テキストが正しい UTF-8 ではないため、そのページは空白になります</translation>
    </message>
    <message>
        <source>Cannot open the file</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>Cannot create a file in %1</source>
        <translation>%1 にファイルを作成できません</translation>
    </message>
    <message>
        <source>Cannot write a file in %1</source>
        <translation>%1 にファイルを書き込めません</translation>
    </message>
    <message>
        <source>Cannot read back a file in %1</source>
        <translation>%1 のファイルを読み返せません</translation>
    </message>
    <message>
        <source>Cannot flush a file in %1</source>
        <translation>%1 のファイルをディスクに確定できません</translation>
    </message>
    <message>
        <source>Cannot name a file in %1</source>
        <translation>%1 のファイルに名前を付けられません</translation>
    </message>
    <message>
        <source>The file system cannot flush files to the disk</source>
        <translation>ファイルシステムがファイルをディスクに確定できません</translation>
    </message>
    <message>
        <source>Cannot read the file</source>
        <translation>ファイルを読み取れません</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>The file ends too early</source>
        <translation>ファイルが途中で終わっています</translation>
    </message>
    <message>
        <source>The file %1 was changed while it was being converted</source>
        <translation>ファイル %1 は変換中に変更されました</translation>
    </message>
    <message>
        <source>The file %1 ended too early</source>
        <translation>ファイル %1 が途中で終わっていました</translation>
    </message>
    <message>
        <source>Cannot create a temporary file</source>
        <translation>一時ファイルを作成できません</translation>
    </message>
    <message>
        <source>Cannot write a temporary file</source>
        <translation>一時ファイルに書き込めません</translation>
    </message>
    <message>
        <source>Cannot read a temporary file</source>
        <translation>一時ファイルを読み取れません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The picture is made for HDR screens, and a PDF shows its brightness otherwise</source>
        <translation>画像は HDR 画面用で、PDF では明るさが異なって表示されます</translation>
    </message>
    <message>
        <source>The compressed data is damaged</source>
        <translation>圧縮データが壊れています</translation>
    </message>
    <message>
        <source>The file is no bitmap</source>
        <translation>ファイルはビットマップではありません</translation>
    </message>
    <message>
        <source>The bitmap is of an unknown kind</source>
        <translation>ビットマップの種類が不明です</translation>
    </message>
    <message>
        <source>The bitmap has more colours than its pixels can name</source>
        <translation>ビットマップの色が、画素で指定できる数より多くなっています</translation>
    </message>
    <message>
        <source>Pixels that the file leaves out have its first colour</source>
        <translation>ファイルで省かれている画素は最初の色になります</translation>
    </message>
    <message>
        <source>The EXR file cannot be read: %1</source>
        <translation>EXR ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>The EXR file has no channels of colour or brightness</source>
        <translation>EXR ファイルに色や明るさのチャンネルがありません</translation>
    </message>
    <message>
        <source>The EXR file is damaged: none of its rows can be read</source>
        <translation>EXR ファイルが壊れていて、どの行も読み取れません</translation>
    </message>
    <message>
        <source>The GIF file is damaged</source>
        <translation>GIF ファイルが壊れています</translation>
    </message>
    <message>
        <source>The file holds no image</source>
        <translation>ファイルに画像がありません</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file cannot be read: %1</source>
        <translation>HEIC または AVIF ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>The system grants no thread, which HEIC and AVIF files take</source>
        <translation>HEIC と AVIF ファイルに必要なスレッドをシステムが許可しません</translation>
    </message>
    <message>
        <source>The HEIC or AVIF file is damaged</source>
        <translation>HEIC または AVIF ファイルが壊れています</translation>
    </message>
    <message>
        <source>Its moving pictures are left out</source>
        <translation>動画部分は省かれます</translation>
    </message>
    <message>
        <source>The icon file is cut off or damaged: there may be a larger picture in the part that is missing</source>
        <translation>アイコンファイルが途切れているか壊れています。欠けた部分により大きな画像があるかもしれません</translation>
    </message>
    <message>
        <source>The icon&apos;s pixels are of an unknown kind</source>
        <translation>アイコンの画素の種類が不明です</translation>
    </message>
    <message>
        <source>The icon&apos;s picture is of an unknown kind</source>
        <translation>アイコンの画像の種類が不明です</translation>
    </message>
    <message>
        <source>The icon file holds no picture that can be read</source>
        <translation>アイコンファイルに読み取れる画像がありません</translation>
    </message>
    <message>
        <source>%1 of the icon&apos;s %2 pictures cannot be read</source>
        <translation>アイコンの画像 %2 件のうち %1 件を読み取れません</translation>
    </message>
    <message>
        <source>The JPEG file ends before its picture begins</source>
        <translation>JPEG ファイルが画像の始まる前に終わっています</translation>
    </message>
    <message>
        <source>The JPEG file has %1 colour components, which is no colour that a PDF can show</source>
        <translation>JPEG ファイルの色成分は %1 個で、PDF で表示できる色ではありません</translation>
    </message>
    <message>
        <source>The JPEG file is of a kind that no PDF can hold (lossless, hierarchical or more than 8 bits)</source>
        <translation>JPEG ファイルは PDF に入れられない種類です（可逆、階層型、または 8 ビット超）</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is damaged</source>
        <translation>JPEG 2000 ファイルが壊れています</translation>
    </message>
    <message>
        <source>The JPEG 2000 file holds no picture</source>
        <translation>JPEG 2000 ファイルに画像がありません</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its tiles could not be read</source>
        <translation>画像が途切れています。タイルの %1 % を読み取れませんでした</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its data could not be read</source>
        <translation>画像が途切れています。データの %1 % を読み取れませんでした</translation>
    </message>
    <message>
        <source>The JPEG 2000 file is cut off</source>
        <translation>JPEG 2000 ファイルが途切れています</translation>
    </message>
    <message>
        <source>The JPEG file is damaged: none of its rows could be read</source>
        <translation>JPEG ファイルが壊れていて、どの行も読み取れませんでした</translation>
    </message>
    <message>
        <source>The JPEG XL file is damaged</source>
        <translation>JPEG XL ファイルが壊れています</translation>
    </message>
    <message>
        <source>The JPEG XL file has %1 channels beside its colours, which are too many</source>
        <translation>JPEG XL ファイルに色のほかに %1 個のチャンネルがあり、多すぎます</translation>
    </message>
    <message>
        <source>The JPEG XL file stores inks, which cannot be read</source>
        <translation>JPEG XL ファイルにはインクが記録されていて、読み取れません</translation>
    </message>
    <message>
        <source>This program was built without the means to read %1 files</source>
        <translation>このプログラムは %1 ファイルを読み取る機能なしでビルドされています</translation>
    </message>
    <message>
        <source>This program was built without the means to decode JPEG 2000</source>
        <translation>このプログラムは JPEG 2000 をデコードする機能なしでビルドされています</translation>
    </message>
    <message>
        <source>The PNG file is damaged</source>
        <translation>PNG ファイルが壊れています</translation>
    </message>
    <message>
        <source>The PNG file holds no picture</source>
        <translation>PNG ファイルに画像がありません</translation>
    </message>
    <message>
        <source>The PNG file has no palette</source>
        <translation>PNG ファイルにパレットがありません</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s compression is unknown</source>
        <translation>Photoshop ファイルの圧縮方式が不明です</translation>
    </message>
    <message>
        <source>The Photoshop file holds its layers alone: save it with maximized compatibility, which adds the picture they make</source>
        <translation>Photoshop ファイルにはレイヤーしかありません。互換性を最大にして保存すると、合成画像が追加されます</translation>
    </message>
    <message>
        <source>The Photoshop file has no palette</source>
        <translation>Photoshop ファイルにパレットがありません</translation>
    </message>
    <message>
        <source>The Photoshop file&apos;s colour mode is unknown</source>
        <translation>Photoshop ファイルのカラーモードが不明です</translation>
    </message>
    <message>
        <source>The Photoshop file is damaged</source>
        <translation>Photoshop ファイルが壊れています</translation>
    </message>
    <message>
        <source>The file is no TGA image that can be read</source>
        <translation>ファイルは読み取れる TGA 画像ではありません</translation>
    </message>
    <message>
        <source>The file names a further page that cannot be read</source>
        <translation>ファイルには、読み取れないページがもう 1 つあります</translation>
    </message>
    <message>
        <source>its form is not supported</source>
        <translation>その形式には対応していません</translation>
    </message>
    <message>
        <source>it has no pixels</source>
        <translation>画素がありません</translation>
    </message>
    <message>
        <source>it is larger than any picture</source>
        <translation>あらゆる画像より大きくなっています</translation>
    </message>
    <message>
        <source>its directory is damaged</source>
        <translation>ディレクトリが壊れています</translation>
    </message>
    <message>
        <source>it is cut off</source>
        <translation>途切れています</translation>
    </message>
    <message>
        <source>The TIFF file is damaged</source>
        <translation>TIFF ファイルが壊れています</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: %1</source>
        <translation>TIFF ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>The TIFF file has no palette</source>
        <translation>TIFF ファイルにパレットがありません</translation>
    </message>
    <message>
        <source>The TIFF file cannot be read: its compression is not supported</source>
        <translation>TIFF ファイルを読み取れません: その圧縮方式には対応していません</translation>
    </message>
    <message>
        <source>The WebP file is damaged</source>
        <translation>WebP ファイルが壊れています</translation>
    </message>
    <message>
        <source>The WebP file is too large</source>
        <translation>WebP ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>The animation is too large (%1 x %2 pixels)</source>
        <translation>アニメーションが大きすぎます（%1 x %2 ピクセル）</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>The file is no image of a known format</source>
        <translation>ファイルは既知の形式の画像ではありません</translation>
    </message>
    <message>
        <source>There is not enough memory for the image</source>
        <translation>画像に必要なメモリが足りません</translation>
    </message>
    <message>
        <source>The image has no pixels</source>
        <translation>画像に画素がありません</translation>
    </message>
    <message>
        <source>The image is too large (%1 x %2 pixels)</source>
        <translation>画像が大きすぎます（%1 x %2 ピクセル）</translation>
    </message>
    <message>
        <source>1 further page is left out</source>
        <translation>ほかの 1 ページは省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n further pages are left out</source>
        <translation>
            <numerusform>ほかの %n ページは省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further frame is left out</source>
        <translation>ほかの 1 フレームは省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n further frames are left out</source>
        <translation>
            <numerusform>ほかの %n フレームは省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further part is left out</source>
        <translation>ほかの 1 パートは省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n further parts are left out</source>
        <translation>
            <numerusform>ほかの %n パートは省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further picture is left out</source>
        <translation>ほかの画像 1 件は省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n further pictures are left out</source>
        <translation>
            <numerusform>ほかの画像 %n 件は省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>It is left out: %1</source>
        <translation>省かれます: %1</translation>
    </message>
    <message>
        <source>It and those behind it are left out, since they are too large together</source>
        <translation>合計が大きすぎるため、これ以降は省かれます</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <translation>ページ %1: %2</translation>
    </message>
    <message>
        <source>The picture is cut off: %1 % of its rows could not be read</source>
        <translation>画像が途切れています。行の %1 % を読み取れませんでした</translation>
    </message>
    <message>
        <source>The picture is cut off: its finer details could not be read</source>
        <translation>画像が途切れています。細部を読み取れませんでした</translation>
    </message>
    <message>
        <source>The picture is cut off: parts of it could not be read</source>
        <translation>画像が途切れています。一部を読み取れませんでした</translation>
    </message>
    <message>
        <source>The picture is cut off: its transparency could not be read</source>
        <translation>画像が途切れています。透明度を読み取れませんでした</translation>
    </message>
    <message>
        <source>The picture is damaged: parts of it may look wrong</source>
        <translation>画像が壊れています。一部が正しく表示されないかもしれません</translation>
    </message>
    <message>
        <source>The file is too short for the image its header describes</source>
        <translation>ヘッダーに記された画像に対してファイルが短すぎます</translation>
    </message>
    <message>
        <source>The image&apos;s rows are damaged</source>
        <translation>画像の行が壊れています</translation>
    </message>
    <message>
        <source>The image has fewer rows than its header says</source>
        <translation>画像の行がヘッダーに記された数より少なくなっています</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH is &quot;%1&quot;, not the seconds from 1970 to a date before the year 10000</source>
        <translation>SOURCE_DATE_EPOCH は「%1」で、1970 年から 10000 年より前の日付までの秒数ではありません</translation>
    </message>
    <message>
        <source>1 structure tag</source>
        <translation>構造タグ 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags</source>
        <translation>
            <numerusform>構造タグ %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>1 attachment</source>
        <translation>添付ファイル 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n attachments</source>
        <translation>
            <numerusform>添付ファイル %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>a portfolio</source>
        <translation>ポートフォリオ</translation>
    </message>
    <message>
        <source>an XFA form</source>
        <translation>XFA フォーム</translation>
    </message>
    <message>
        <source>document scripts</source>
        <translation>文書のスクリプト</translation>
    </message>
    <message>
        <source>page templates</source>
        <translation>ページテンプレート</translation>
    </message>
    <message>
        <source>article threads</source>
        <translation>アーティクルスレッド</translation>
    </message>
    <message>
        <source>further layer settings</source>
        <translation>その他のレイヤー設定</translation>
    </message>
    <message>
        <source>a base address of links</source>
        <translation>リンクのベースアドレス</translation>
    </message>
    <message>
        <source>usage rights</source>
        <translation>使用権限</translation>
    </message>
    <message>
        <source>the language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>metadata</source>
        <translation>メタデータ</translation>
    </message>
    <message>
        <source>1 further document property</source>
        <translation>その他の文書プロパティ 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n further document properties</source>
        <translation>
            <numerusform>その他の文書プロパティ %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>output intents</source>
        <translation>出力インテント</translation>
    </message>
    <message>
        <source>1 signature</source>
        <translation>署名 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures</source>
        <translation>
            <numerusform>署名 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>リンク 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>リンク %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 annotation</source>
        <translation>注釈 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n annotations</source>
        <translation>
            <numerusform>注釈 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 bookmark</source>
        <translation>しおり 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n bookmarks</source>
        <translation>
            <numerusform>しおり %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>page labels</source>
        <translation>ページラベル</translation>
    </message>
    <message>
        <source>1 field</source>
        <translation>フィールド 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n fields</source>
        <translation>
            <numerusform>フィールド %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>レイヤー 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>レイヤー %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 named destination</source>
        <translation>名前付き移動先 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n named destinations</source>
        <translation>
            <numerusform>名前付き移動先 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>further names</source>
        <translation>その他の名前</translation>
    </message>
    <message>
        <source>1 further catalog entry</source>
        <translation>その他のカタログ項目 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n further catalog entries</source>
        <translation>
            <numerusform>その他のカタログ項目 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 renamed name</source>
        <translation>変更された名前 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n renamed names</source>
        <translation>
            <numerusform>変更された名前 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1 cannot be embedded</source>
        <translation>フォント %1 を埋め込めません</translation>
    </message>
    <message>
        <source>It has 1 page, and &quot;%1&quot; names others</source>
        <translation>1 ページしかなく、「%1」はほかのページを指しています</translation>
    </message>
    <message numerus="yes">
        <source>It has %n pages, and &quot;%1&quot; names others</source>
        <translation>
            <numerusform>%n ページしかなく、「%1」はほかのページを指しています</numerusform>
        </translation>
    </message>
    <message>
        <source>1 signature is left out, since it holds for the original file alone</source>
        <translation>元のファイルにだけ有効なため、署名 1 件は省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n signatures are left out, since they hold for the original file alone</source>
        <translation>
            <numerusform>元のファイルにだけ有効なため、署名 %n 件は省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>1 structure tag is damaged and left out</source>
        <translation>構造タグ 1 個は壊れているため省かれます</translation>
    </message>
    <message numerus="yes">
        <source>%n structure tags are damaged and left out</source>
        <translation>
            <numerusform>構造タグ %n 個は壊れているため省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over, as it belongs to pages that are left out: %1</source>
        <translation>省かれたページに属するため、引き継がれません: %1</translation>
    </message>
    <message>
        <source>The document has no pages</source>
        <translation>文書にページがありません</translation>
    </message>
    <message>
        <source>1 form field is renamed, since another document has one of its name: &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>別の文書に同じ名前のフィールドがあるため、フォームフィールド 1 件の名前を変更しました。「%1」は「%2」になりました。スクリプトはそのままです</translation>
    </message>
    <message numerus="yes">
        <source>%n form fields are renamed, since another document has fields of their names, such as &quot;%1&quot; is now &quot;%2&quot;; scripts are left as they are</source>
        <translation>
            <numerusform>別の文書に同じ名前のフィールドがあるため、フォームフィールド %n 件の名前を変更しました（例:「%1」を「%2」に）。スクリプトはそのままです</numerusform>
        </translation>
    </message>
    <message>
        <source>Not carried over: %1</source>
        <translation>引き継がれません: %1</translation>
    </message>
    <message>
        <source>it is a part of another one now</source>
        <translation>別の文書の一部になったため</translation>
    </message>
    <message>
        <source>it was damaged</source>
        <translation>壊れていたため</translation>
    </message>
    <message>
        <source>some of its structure tags are damaged</source>
        <translation>構造タグの一部が壊れているため</translation>
    </message>
    <message>
        <source>that forbids encryption</source>
        <translation>この規格は暗号化を禁じているため</translation>
    </message>
    <message>
        <source>that forbids the document information, which is written</source>
        <translation>この規格は、書き込まれる文書情報を禁じているため</translation>
    </message>
    <message>
        <source>that demands a title, and none is given</source>
        <translation>この規格はタイトルを求めていますが、指定がないため</translation>
    </message>
    <message>
        <source>The document no longer says that it is %1, since %2</source>
        <translation>文書は %1 であると示さなくなります（%2）</translation>
    </message>
    <message>
        <source>Some of its bookmarks are missing in the document itself</source>
        <translation>しおりの一部は、元の文書自体で欠けています</translation>
    </message>
    <message>
        <source>Some of its form fields are missing in the document itself</source>
        <translation>フォームフィールドの一部は、元の文書自体で欠けています</translation>
    </message>
    <message>
        <source>The page tree contains itself</source>
        <translation>ページツリーが自分自身を含んでいます</translation>
    </message>
    <message>
        <source>The document has no page tree</source>
        <translation>文書にページツリーがありません</translation>
    </message>
    <message>
        <source>The document states %1 pages, and %2 were found</source>
        <translation>文書は %1 ページと示していますが、%2 ページが見つかりました</translation>
    </message>
    <message>
        <source>The document does not state its pages, and %1 were found</source>
        <translation>文書はページ数を示していませんが、%1 ページが見つかりました</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read, page %3 is the first that is missing</source>
        <translation>%2 ページ中 %1 ページを読み取れました。ページ %3 が最初の欠落です</translation>
    </message>
    <message>
        <source>%1 of %2 pages could be read</source>
        <translation>%2 ページ中 %1 ページを読み取れました</translation>
    </message>
    <message>
        <source>What stands on page %1 is damaged and may lack something</source>
        <translation>ページ %1 の内容が壊れており、何かが欠けているかもしれません</translation>
    </message>
    <message>
        <source>The document is damaged and was repaired: %1</source>
        <translation>文書が壊れていたため修復しました: %1</translation>
    </message>
    <message numerus="yes">
        <source>The document is damaged and was repaired in %n places, the first: %1</source>
        <translation>
            <numerusform>文書が %n か所壊れていたため修復しました。最初の箇所: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a PDF file</source>
        <translation>PDF ファイルではありません</translation>
    </message>
    <message>
        <source>The document is encrypted, and its permissions do not let its pages be taken; its owner password would</source>
        <translation>文書は暗号化されており、その権限ではページを取り出せません。所有者パスワードがあれば取り出せます</translation>
    </message>
    <message>
        <source>The document is encrypted, and none of the passwords opens it</source>
        <translation>文書は暗号化されており、どのパスワードでも開けません</translation>
    </message>
    <message>
        <source>It is a dynamic XFA form, whose pages only a program for such forms makes</source>
        <translation>動的 XFA フォームです。そのページは専用のプログラムだけが作成できます</translation>
    </message>
    <message>
        <source>The document is too damaged to be repaired</source>
        <translation>文書の破損がひどく、修復できません</translation>
    </message>
    <message>
        <source>The document is damaged: its trailer and its table of objects are missing</source>
        <translation>文書が壊れています: トレーラーとオブジェクト表がありません</translation>
    </message>
    <message>
        <source>The document is damaged: it has no catalog</source>
        <translation>文書が壊れています: カタログがありません</translation>
    </message>
    <message>
        <source>page %1 (%2)</source>
        <translation>ページ %1（%2）</translation>
    </message>
    <message>
        <source>Readers need not show pages beyond 3 to 14,400 units: %1</source>
        <translation>3～14,400 単位の範囲外のページは表示されないことがあります: %1</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it has the protection that was asked for instead</source>
        <translation>文書は保護されており、作成される PDF には代わりに指定された保護が付きます</translation>
    </message>
    <message>
        <source>The document is protected, and the PDF made of it is not</source>
        <translation>文書は保護されていますが、作成される PDF は保護されません</translation>
    </message>
    <message>
        <source>its header is missing</source>
        <translation>ヘッダーがありません</translation>
    </message>
    <message>
        <source>the length of a stream is wrong</source>
        <translation>ストリームの長さが誤っています</translation>
    </message>
    <message>
        <source>a stream is cut off</source>
        <translation>ストリームが途切れています</translation>
    </message>
    <message>
        <source>its table of objects is damaged</source>
        <translation>オブジェクト表が壊れています</translation>
    </message>
    <message>
        <source>an object is not where the table of objects says</source>
        <translation>オブジェクトがオブジェクト表の示す場所にありません</translation>
    </message>
    <message>
        <source>it has no catalog</source>
        <translation>カタログがありません</translation>
    </message>
    <message>
        <source>the data of a stream is damaged</source>
        <translation>ストリームのデータが壊れています</translation>
    </message>
    <message>
        <source>an object is not well formed</source>
        <translation>オブジェクトの形式が正しくありません</translation>
    </message>
    <message>
        <source>%1 (object %2)</source>
        <translation>%1（オブジェクト %2）</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>文書が壊れています: %1</translation>
    </message>
    <message>
        <source>The document is damaged</source>
        <translation>文書が壊れています</translation>
    </message>
    <message>
        <source>the font %1 cannot be read</source>
        <translation>フォント %1 を読み取れません</translation>
    </message>
    <message>
        <source>The text has too many different forms of letters</source>
        <translation>テキストに含まれる文字の形の種類が多すぎます</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>私用領域</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>未割り当て</translation>
    </message>
    <message>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>1 character has no glyph in any font and is shown as a box: %1</source>
        <translation>1 文字がどのフォントにもなく、四角で表示されます: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n characters have no glyph in any font and are shown as boxes: %1</source>
        <translation>
            <numerusform>%n 文字がどのフォントにもなく、四角で表示されます: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 character is split between two rows and shown as boxes</source>
        <translation>1 文字が 2 行に分かれ、四角で表示されます</translation>
    </message>
    <message numerus="yes">
        <source>%n characters are split between two rows and shown as boxes</source>
        <translation>
            <numerusform>%n 文字が 2 行に分かれ、四角で表示されます</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules for the breaking of lines cannot be loaded: %1</source>
        <translation>改行の規則を読み込めません: %1</translation>
    </message>
    <message>
        <source>The header or the footer has more rows than its margin</source>
        <translation>ヘッダーまたはフッターの行が余白に収まりません</translation>
    </message>
    <message>
        <source>The text is not valid %1</source>
        <translation>テキストは正しい %1 ではありません</translation>
    </message>
    <message>
        <source>The bytes do not tell the encoding of the text</source>
        <translation>テキストの文字コードがバイト列から分かりません</translation>
    </message>
    <message>
        <source>There is no font to write text with</source>
        <translation>テキストを書くためのフォントがありません</translation>
    </message>
    <message>
        <source>HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2</source>
        <translation>HEIC と AVIF ファイルの読み取りに使う libheif %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>This program was built without the means to read HEIC and AVIF files</source>
        <translation>このプログラムは HEIC と AVIF ファイルを読み取る機能なしでビルドされています</translation>
    </message>
    <message>
        <source>its colours are of a kind that only JPEG 2000 knows</source>
        <translation>JPEG 2000 だけが知る種類の色であるため</translation>
    </message>
    <message>
        <source>The picture is partly transparent, and is laid on white</source>
        <translation>画像の一部が透明なため、白の上に重ねます</translation>
    </message>
    <message>
        <source>The picture has 16 bits a colour, and is kept with 8</source>
        <translation>画像は 1 色 16 ビットですが、8 ビットで保存します</translation>
    </message>
    <message>
        <source>its colour profile is of version %1</source>
        <translation>カラープロファイルのバージョンが %1 であるため</translation>
    </message>
    <message>
        <source>it does not say that it is PDF/A</source>
        <translation>PDF/A であると示していないため</translation>
    </message>
    <message>
        <source>it says that it is %1, not %2</source>
        <translation>%2 ではなく %1 であると示しているため</translation>
    </message>
    <message>
        <source>It cannot go into a document that is %1, since %2</source>
        <translation>%1 の文書には入れられません（%2）</translation>
    </message>
    <message>
        <source>The PDF does not say that it is %1, since %2</source>
        <translation>PDF は %1 であると示しません（%2）</translation>
    </message>
    <message>
        <source>its colours are inks without a profile, and none is given</source>
        <translation>プロファイルのないインクの色で、プロファイルが指定されていないため</translation>
    </message>
    <message>
        <source>a page has %1 x %2 units, beyond %3 to %4</source>
        <translation>ページの大きさ %1 x %2 が %3 から %4 の範囲にないため</translation>
    </message>
    <message>
        <source>it is protected, which the standard forbids</source>
        <translation>規格が禁じる保護がかけられているため</translation>
    </message>
    <message>
        <source>its colours are meant for another kind of device than those of the documents before it</source>
        <translation>色の対象機器の種類が前の文書と異なるため</translation>
    </message>
    <message>
        <source>The PDF says that it is %1 because this document says so; whether that is true is not checked</source>
        <translation>この文書が %1 であると示すため PDF もそう示しますが、正しいかどうかは確認していません</translation>
    </message>
    <message>
        <source>Its colours without a profile are shown as those of the documents before it</source>
        <translation>プロファイルのない色は前の文書の色として表示されます</translation>
    </message>
    <message>
        <source>A document for archives cannot be encrypted</source>
        <translation>保存用の文書は暗号化できません</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>ファイルが変更されました</translation>
    </message>
    <message>
        <source>Not every page of the PDF is its source</source>
        <translation>PDF の一部のページが元のものと一致しません</translation>
    </message>
    <message>
        <source>All of it is in the PDF, but laid out otherwise</source>
        <translation>すべて PDF にありますが、配置が違います</translation>
    </message>
    <message>
        <source>The PDF has %1 pages instead of %2</source>
        <translation>PDF のページ数が %2 ではなく %1 です</translation>
    </message>
    <message>
        <source>Page %1 of the smaller PDF is not that of the PDF: %2</source>
        <translation>小さくした PDF の %1 ページが元の PDF と一致しません: %2</translation>
    </message>
    <message>
        <source>The PDF is damaged: %1</source>
        <translation>PDF が壊れています: %1</translation>
    </message>
    <message>
        <source>The PDF has fewer pages than the files</source>
        <translation>PDF のページがファイルより少ないです</translation>
    </message>
    <message>
        <source>Readers would draw the form fields of the PDF otherwise</source>
        <translation>PDF のフォームフィールドの表示が変わってしまいます</translation>
    </message>
    <message>
        <source>it is no page of the source</source>
        <translation>元のページではありません</translation>
    </message>
    <message>
        <source>a font is damaged</source>
        <translation>フォントが壊れています</translation>
    </message>
    <message>
        <source>it is of none of the files</source>
        <translation>どのファイルのページでもありません</translation>
    </message>
    <message>
        <source>it has no picture, or more than one</source>
        <translation>画像がないか、複数あります</translation>
    </message>
    <message>
        <source>its picture is turned otherwise</source>
        <translation>画像の向きが違います</translation>
    </message>
    <message>
        <source>its characters are not those of the text</source>
        <translation>文字がテキストと違います</translation>
    </message>
    <message>
        <source>the text goes on and the PDF does not</source>
        <translation>テキストは続いていますが、PDF は終わっています</translation>
    </message>
    <message>
        <source>its contents are not those of the source</source>
        <translation>内容が元のものと違います</translation>
    </message>
    <message>
        <source>its fonts or pictures are not those of the source</source>
        <translation>フォントか画像が元のものと違います</translation>
    </message>
    <message>
        <source>its links, notes or fields are not those of the source</source>
        <translation>リンク、注釈、フィールドのいずれかが元のものと違います</translation>
    </message>
    <message>
        <source>its size or turn is not that of the source</source>
        <translation>大きさか向きが元のものと違います</translation>
    </message>
    <message>
        <source>%1 is not as in the source</source>
        <translation>%1 が元のものと違います</translation>
    </message>
    <message>
        <source>the bytes of its picture are not those of the file</source>
        <translation>画像のバイトがファイルと違います</translation>
    </message>
    <message>
        <source>the pixels of its picture are not those of the file</source>
        <translation>画像のピクセルがファイルと違います</translation>
    </message>
    <message>
        <source>its picture has another size</source>
        <translation>画像の大きさが違います</translation>
    </message>
    <message>
        <source>its picture would be read otherwise</source>
        <translation>画像の読まれ方が変わります</translation>
    </message>
    <message>
        <source>the opacity of its picture is another</source>
        <translation>画像の不透明度が違います</translation>
    </message>
    <message>
        <source>its picture stands elsewhere</source>
        <translation>画像の位置が違います</translation>
    </message>
    <message>
        <source>The PDF on the disk is not what was written</source>
        <translation>ディスク上の PDF が書き込んだ内容と違います</translation>
    </message>
    <message>
        <source>Page %1 of the PDF is not its source: %2</source>
        <translation>PDF の %1 ページが元のものと一致しません: %2</translation>
    </message>
    <message>
        <source>the contents of a page cannot be read</source>
        <translation>ページの内容を読み取れません</translation>
    </message>
    <message>
        <source>its text stands elsewhere</source>
        <translation>テキストの位置が違います</translation>
    </message>
    <message>
        <source>its header or footer is another</source>
        <translation>ヘッダーかフッターが違います</translation>
    </message>
    <message>
        <source>it shows what is not in the text</source>
        <translation>テキストにないものがあります</translation>
    </message>
    <message>
        <source>it has another size</source>
        <translation>大きさが違います</translation>
    </message>
    <message>
        <source>it has notes that nobody made</source>
        <translation>元にない注釈があります</translation>
    </message>
    <message>
        <source>it shows more than the picture</source>
        <translation>画像以外のものがあります</translation>
    </message>
    <message>
        <source>No description of the picture is given; its file&apos;s name stands for it</source>
        <translation>画像の説明がないため、ファイル名を説明の代わりにしました</translation>
    </message>
    <message>
        <source>It has no structure tags, which PDF/UA asks for</source>
        <translation>PDF/UA が求める構造タグがありません</translation>
    </message>
    <message>
        <source>Whether its tags are what PDF/UA asks for is not looked at</source>
        <translation>そのタグが PDF/UA の求めるものかどうかは確認していません</translation>
    </message>
    <message>
        <source>A property of the document is longer than %1 allows</source>
        <translation>文書のプロパティが %1 の許す長さを超えています</translation>
    </message>
    <message>
        <source>The document is too large for PDF/A</source>
        <translation>文書は PDF/A には大きすぎます</translation>
    </message>
    <message>
        <source>JPEG XL files are read by libjxl %1, which cannot be loaded: %2</source>
        <translation>JPEG XL ファイルの読み取りに使う libjxl %1 を読み込めません: %2</translation>
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
        <translation>%1 ページ（%2 ページを超える）</translation>
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
    <message>
        <source>%1, every page checked</source>
        <translation>%1、すべてのページを確認済み</translation>
    </message>
</context>
</TS>
