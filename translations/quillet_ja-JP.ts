<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>操作(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>ファイルを追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>入力ファイルのフォルダーを開く(&amp;I)</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>出力ファイルのフォルダーを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>暗号化(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>復号(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>暗号化/復号を停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>入力内容をクリア(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>既定のアルゴリズム(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>アルゴリズムの情報(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>キーボードショートカット(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>このプログラムについて(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>推奨</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>20年以上にわたり公開の場で検証され、実用的な攻撃は知られていません。</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>封印が必要</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>ファイルを封印するか、そのパスワードをほかのファイルに使わないでください。封印しないと、同じパスワードのファイルはすべて同じ鍵ストリームを共有し、2つのファイルから互いの内容が明らかになります。</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>短いブロック</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>ブロックが64ビットしかないため、1つの鍵で何ギガバイトも暗号化すると、内容の一部が漏れます (Sweet32、CVE-2016-2183)。</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>旧式</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>2016年以降、暗号化への使用は認められていません (NIST SP 800-131A)。2つの鍵は長さに見合う強度がなく、ブロックも短いためです。</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>2024年以降、暗号化への使用は認められていません (NIST SP 800-131A Rev. 2)。ブロックが64ビットしかないためです (Sweet32、CVE-2016-2183)。</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>短い鍵</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>鍵が80ビットしかなく、暗号化への使用はもう認められていません (NIST SP 800-131A)。</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>弱い鍵</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>どの鍵にも同じ働きをする鍵がほかに3つあり、関連鍵を使った攻撃で破られます (Kelsey、Schneier、Wagner、1996年および1997年)。</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>既知の攻撃あり</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>鍵の総当たりより少ない計算量で済む攻撃があり (Isobe、2011年。Dinur、Dunkelman、Shamir、2012年)、ブロックも64ビットしかありません。</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>アルゴリズム</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>鍵ビット数</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>ブロックビット数</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備考</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>パラメーターが定義されていません</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>鍵のサイズ:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>IVのサイズ:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>必須のブロックサイズ:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>暗号利用モード:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>ストリーム暗号</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>エンディアン:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>リトルエンディアン</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>パスワードから鍵を計算するハッシュ関数:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>ハッシュの長さが鍵の長さと異なります。そのため、ハッシュは%1バイトから%2バイトに切り詰められます。</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>アルゴリズム名:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1、鍵 %2ビット</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>、ブロック %1ビット</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>選択した共通鍵暗号アルゴリズムで、ファイルを1つずつ暗号化および復号します。</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Qtのバージョン:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Crypto++のバージョン:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>ライセンス:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>プログラムに付属のドキュメントを参照してください。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>ログレベル(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>ログファイルを使用(&amp;U)</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>ログファイル(&amp;I):</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>ログファイルを表示</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>ログレベル</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>ログに記録するメッセージの最低の重要度です。OFFにすると何も記録しません。</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>プログラムの動作を、上のレベルに応じて下のファイルに書き込みます。パスワードと鍵は決して書き込まれません。</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ログファイル</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>アルゴリズムの情報</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>選択したアルゴリズムのパラメーター</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>アルゴリズムを1つ以上選択すると、パラメーターが表示されます。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>フィルター(&amp;F):</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>いずれかの列にこのテキストを含むアルゴリズムだけを表示します。</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>名前、ビット数、備考</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>推奨を先頭に表示(&amp;R)</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>アルゴリズム</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>フィルターをクリア</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>%1で復号</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>オブジェクトは使用中です</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>データストリームが指定されていません</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>ファイル名が指定されていません</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>ファイルサイズを取得できませんでした</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>ファイルを読み込めませんでした</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>データストリームを読み込めませんでした</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>入力ファイル名が指定されていません</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>入力ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>出力ファイル名が指定されていません</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>出力ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>出力ファイル名が入力ファイル名と同じです</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>操作は停止されました</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>データのハッシュを計算できませんでした</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>データが破損しています</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>暗号エンジンが初期化されていません</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>ファイルが破損しているか、変更されています</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>コンテキストメニューに組み込む(&amp;X)</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>「送る」メニューにプログラムを追加(&amp;S)</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>アルゴリズムと言語</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>プログラムの起動時に既定のアルゴリズムを設定(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>既定のアルゴリズム(&amp;D):</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>パスワードと鍵</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>パスワードを表示(&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>パスワードの確認入力を求める(&amp;Q)</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>詳細モードで鍵とIVを入力(&amp;K)</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>暗号化したファイルを封印(&amp;I)</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>ファイルを暗号化するとき、封印をあらかじめ選択しておきます。封印すると、パスワードの推測に多くの時間と費用がかかるようになり、あとからファイルが変更された場合は復号時にわかります。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>ソルトを使用(&amp;U)</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>確認ダイアログを表示(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>出力ファイルを上書き(&amp;R)</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>出力ファイル名を自動生成(&amp;N)</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>既定の出力フォルダーを使用(&amp;P)</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>既定の出力フォルダー(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>既定の出力フォルダーの選択</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>暗号化後に入力ファイルを自動削除(&amp;E)</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>暗号化後に入力ファイルを削除する前に確認する(&amp;Y)</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>ショートカットキー:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>ショートカットキー</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>ショートカットキー</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>ファイルマネージャーでファイルに対して表示されるメニューに、「暗号化」と「復号」を追加します。</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>ファイルマネージャーで選べるファイルの送り先に、このプログラムを追加します。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>プログラムの起動時に、常に下のアルゴリズムを選択します。</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>既定のアルゴリズム</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>入力中のパスワードをそのまま表示します。</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>パスワードの入力画面で、代わりに鍵と初期化ベクトルを16進数で入力できるようにします。</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>ファイルを暗号化するとき、ソルトの使用をあらかじめ選択しておきます。ソルトを使うと、同じ内容のファイルでも、ブロック暗号で暗号化した結果が異なるものになります。</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>ほかのオプションとともに保存されますが、確認はまだ行われません。</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>出力ファイルと同じ名前の既存ファイルを削除するよう、あらかじめ選択しておきます。選択しない場合、既存のファイルは残り、何も書き込まれません。</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>「ファイル名」の規則に従って出力ファイルの名前を提案します。</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>出力ファイルを、入力ファイルと同じ場所ではなく、下のフォルダーに保存します。</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>既定の出力フォルダー</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>暗号化したファイルがディスクに書き込まれたあと、入力ファイルを削除します。ごみ箱には移動しません。</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>入力ファイル(&amp;I):</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>出力ファイル(&amp;P):</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>暗号化または復号するファイル</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>書き込むファイル</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>入力ファイルの選択</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>出力ファイルの選択</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>復号</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>暗号化したファイルを書き込みます。入力ファイルはそのまま残ります</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>暗号化前のファイルを書き込みます。入力ファイルはそのまま残ります</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>作業を終了します。途中までの結果は残りません</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>ここにファイルをドロップ</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>またはクリックして選択</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>暗号化/復号するファイルの追加</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>出力ファイルの指定</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>ファイル拡張子</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>接尾辞</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>接頭辞</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>例</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>一般設定(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>ファイル名(&amp;F)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>詳細(&amp;V)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>オプションを適用しました。</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>既定の出力フォルダー</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>言語は「OK」または「適用」を押すと切り替わります。</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>ログファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ログファイル</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>暗号化したファイルの名前</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>拡張子を追加(&amp;I):</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>接尾辞を追加(&amp;S):</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>接頭辞を追加(&amp;P):</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>日付を追加(&amp;E)</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>例(&amp;L):</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>復号したファイルの名前</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>拡張子を追加(&amp;T):</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>接尾辞を追加(&amp;U):</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>接頭辞を追加(&amp;R):</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>日付を追加(&amp;D)</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>例(&amp;M):</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>言語以外のすべてのオプションを既定値で表示します。「OK」または「適用」を押すまで何も変更されません。</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>パスワードの生成</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>構成(&amp;M):</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>構成</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>個数(&amp;N):</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>個数</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>生成されたパスワード</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>パスワードの強度</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>別のものを生成(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>このパスワードを使用(&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>ランダムな単語</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>ランダムな文字</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>パスワードをクリップボードにコピーします。%Ln秒後にクリップボードから消去されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>システムの乱数生成器でエラーが発生しました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Lnビット。</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>あとで見つけられる場所に保管してください。パスワードがないと、ファイルを復号できません。</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>パスワードは%Ln秒間クリップボードに保持されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>ファイルを確認中...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>ファイルシステムが応答しません。</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>すでに暗号化されているようです。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>暗号化後に入力ファイルを削除してもよろしいですか?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ほか%Ln個</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>入力ファイルの削除</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln個のファイル</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>ファイルを追加...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>リストに追加するファイルを選択します</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>すべてのファイルをリストから外します。ファイル自体は残ります</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>暗号化または復号するファイル</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Deleteキーで、選択したファイルをリストから外します。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln個のファイル、%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>実行中、%1%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>出力先がリスト内の別のファイルのものです。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止しました</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>再度暗号化</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>このファイルはすでに暗号化されているようです</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>%1個のファイルのうち%Ln個は、すでに暗号化されているようです。</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>二重に暗号化したものは、2回復号する必要があります。</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>除外する</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>アルゴリズム(&amp;A):</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>アルゴリズム</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>アルゴリズムを選択</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>ファイルの暗号化/復号に使うアルゴリズムの選択</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>既定のアルゴリズムとして使用(&amp;U)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>アルゴリズム: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>オプションで別の指定がない限り、プログラムの起動時に常にこのアルゴリズムを選択します。</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>初期化ベクトル (IV、HEX形式)(&amp;I):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>初期化ベクトル</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>鍵 (HEX形式)(&amp;K):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>鍵</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>生成(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>ファイルを封印(&amp;E)</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>あとからファイルが変更された場合は復号時にわかります。ソルトも含まれます。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>ソルトを使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>出力ファイルを上書き(&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>%1/%2バイト入力済み</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>簡易オプションを表示</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>暗号化用の鍵とIV</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>復号用の鍵とIV</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>暗号化アルゴリズムの名前、鍵、IVを忘れないようにしてください。 
これらの情報はファイルの復号に必要です。 
選択した暗号アルゴリズム: %1。</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>ファイルを復号するための鍵とIVを入力してください。 
選択した暗号アルゴリズム: %1。</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>鍵、長さ: %1バイト (HEX形式)(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>初期化ベクトル (IV)、長さ: %1バイト (HEX形式)(&amp;I)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>システムの乱数生成器でエラーが発生しました。</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>鍵とIVをコピーまたは保存してください。これらがないと、ファイルを復号できません。</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>両方の欄にランダムなバイト列を入力します。</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>鍵とIVを保護せずに、自分だけが読めるファイルに書き込みます。</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>ここで保存した鍵とIVを読み込みます。</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>同じ内容のファイルでも、ブロック暗号で暗号化した結果が異なるものになります。</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>出力ファイルと同じ名前の既存ファイルを削除します。選択しない場合、既存のファイルは残り、何も書き込まれません。</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>鍵と初期化ベクトルの代わりに、パスワードを入力します。</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>鍵とIVをクリップボードにコピーします。%Ln秒後にクリップボードから消去されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>入力欄にある鍵とIVを置き換えますか?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>鍵とIVは%Ln秒間クリップボードに保持されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>パスワードの確認(&amp;O):</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>パスワードの確認</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>パスワードを表示(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>ファイルを封印(&amp;E)</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>パスワードの推測に多くの時間と費用がかかるようになり、あとからファイルが変更された場合は復号時にわかります。ソルトも含まれます。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>ソルトを使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>出力ファイルを上書き(&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>詳細オプションを表示</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>暗号化用のパスワード</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>復号用のパスワード</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>暗号化アルゴリズムの名前とパスワードを忘れないようにしてください。 
これらの情報はファイルの復号に必要です。 
選択した暗号アルゴリズム: %1。</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>ファイルを復号するためのパスワードを入力してください。 
選択した暗号アルゴリズム: %1。</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Caps Lockがオンになっています。</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>パスワードの長さ: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>パスワードの長さ: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>パスワードが一致しません。</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>パスワードの強度</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>生成(&amp;G)...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>ランダムな単語または文字からなるパスワードを提案します。</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>同じ内容のファイルでも、ブロック暗号で暗号化した結果が異なるものになります。パスワードの推測が難しくなるわけではありません。</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>出力ファイルと同じ名前の既存ファイルを削除します。選択しない場合、既存のファイルは残り、何も書き込まれません。</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>パスワードの代わりに、鍵と初期化ベクトルを16進数で入力します。</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>入力欄にあるパスワードを置き換えますか?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ほか%Ln個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>更新(&amp;R)</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>テキストを読み込み直します (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>%1のキーボードショートカットの一覧です。</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>ここにドロップできるのは、このコンピューター上のファイルだけです。</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>ドロップされたファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>暗号化または復号できるのは1つのファイルだけです。フォルダーやデバイスは対象外です。</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>ドロップされたファイルのうち1つだけを受け付けました。</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%Ln個のファイルのうち%1個を暗号化</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%Ln個のファイルのうち%1個を復号</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln個が失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln個をスキップ</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>停止しました: %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>フォルダーとデバイスは除外されます。暗号化または復号できるのはファイルだけです。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>見つからないため除外しました: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>オプションの設定に従い、暗号化後に%1個の入力ファイルを削除しました。</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>%1個は削除せずに残しました。リストを確認してください。</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IVが空です。</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>無効なIV: 16進数として無効な文字があります。</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>IVのサイズが無効です: 入力は%1バイトです。</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>鍵が空です。</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>無効な鍵: 16進数として無効な文字があります。</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>鍵のサイズが無効です: 入力は%1バイトです。</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>入力ファイルを残しました: シンボリックリンクです。</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>入力ファイルを残しました: 別の名前 (ハードリンク) があります。</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>入力ファイルを残しました: 暗号化のあとに変更されています。</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>入力ファイルを残しました: 出力ファイルが書き込んだ内容と異なります。</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>入力ファイルを残しました。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>暗号化後に入力ファイルを削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>入力ファイルの削除</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>暗号化アルゴリズムが指定されていません。</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>暗号化するファイルの選択</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>暗号化するファイルが指定されていません。</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>暗号化するファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>暗号化エンジンを準備できませんでした。</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>暗号化を開始できませんでした。</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>暗号化中</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>ファイルの暗号化は中止されました</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>ファイルを暗号化しました</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>ファイルを暗号化できませんでした。</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>復号アルゴリズムが指定されていません。</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>復号するファイルの選択</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>復号するファイルが指定されていません。</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>復号するファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>復号エンジンを準備できませんでした。</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>復号を開始できませんでした。</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>復号中</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>ファイルの復号は中止されました</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>ファイルを復号しました</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>ファイルを復号できませんでした。</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>出力ファイルは削除されました。</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>封印されています。</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>封印されており、変更されていません。</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>パスワードとアルゴリズムを確認してください。</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>鍵、IV、アルゴリズムを確認してください。</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>パスワードとアルゴリズムは正しいです。ファイルの別のコピーを試してください。</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>鍵、IV、アルゴリズムは正しいです。ファイルの別のコピーを試してください。</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>入力ファイルを削除できませんでした。</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>オプションの設定に従い、暗号化の成功後に入力ファイルを削除しました</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>このファイルは%1で暗号化されています。</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>暗号化/復号をすでに実行中です。</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>入力が通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>出力ファイルの指定</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>出力ファイルが指定されていません。</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>出力フォルダーが見つかりません: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>出力ファイル名が入力ファイル名と同じです</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>出力が通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>IVのサイズが無効です。入力は%1バイトです</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>鍵のサイズが無効です。入力は%1バイトです</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>出力ファイルはすでに存在します。「上書きしない」設定が選択されています。</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>ファイルシステムが応答しません。</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>パスワードが指定されていません</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>入力ファイル%1を読み込めませんでした。</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>出力ファイル%1に書き込めませんでした。</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>ファイル%1を処理できませんでした。</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>入力ファイル%1を開けませんでした。</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>以前の出力ファイル%1を削除できませんでした。</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>出力ファイル%1を作成できませんでした。</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>出力ファイル%1を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>テキストファイル</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>鍵とIVを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>鍵とIVを読み込みました。</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>この鍵とIVは%1用に保存されたものです。選択中のアルゴリズムは%2です。</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>鍵とIVの保存</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1の鍵とIV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>ディスクが応答しません</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>鍵とIVを保存しました。このファイルを読めるのは自分だけです。</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>鍵とIVの読み込み</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>このファイルに鍵とIVは含まれていません。</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>既定の出力フォルダーは絶対パスで指定してください。</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>既定の出力フォルダーが指定されていません。ファイルは入力ファイルと同じ場所に保存されます。</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>暗号化したファイルの名前が入力ファイルと同じになります。</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>復号したファイルの名前が入力ファイルと同じになります。</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>ファイル名がファイルシステムの上限より長くなります。</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>拡張子の途中にドットがあると、ファイルを識別できません。</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>WindowsやほとんどのUSBメモリーでは、次の文字を含む名前を使えません: %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>オプションを%1に保存できません。</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>選択した言語の翻訳がありません。</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>翻訳を読み込めません: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>ログファイルには何も書き込まれません: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>パスワードに改行が含まれています。</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>パスワードにタブが含まれています。</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>パスワードに制御文字が含まれています。</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%1/s</source>
        <extracomment>A speed, as in &quot;12 MiB/s&quot;</extracomment>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Making the key of the password</source>
        <translation>パスワードから鍵を生成中</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>ディスクへのファイルの保存を待機中</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>%1% 処理済み</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>0.000% 処理済み。</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>残り時間: %1時間%2分%3秒</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>残り時間: %1分%2秒</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>残り時間: %1秒</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1を%2秒で処理、%3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1を1秒未満で処理</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Quilletで暗号化</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Quilletで復号</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Quilletで開く</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quilletは%1にはもうありません。新しい場所から一度起動してメニューのこの項目を修復するか、次の項目を削除してください:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>選択したファイルを暗号化します</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>選択したファイルを復号します</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>選択したファイルをQuilletのウィンドウで開きます</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>暗号化/復号するファイルを追加</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>入力ファイルのフォルダーを開く</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>出力ファイルのフォルダーを開く</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>暗号化を開始</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>復号を開始</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>暗号化/復号を停止</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>入力内容をクリア</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>パスワードの強度: 非常に弱い。すぐに推測されます。</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>パスワードの強度: 弱い。数時間以内に推測されます。</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>パスワードの強度: 普通。1年以内に推測されます。</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>パスワードの強度: 強い。</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>パスワードの強度: 非常に強い。</translation>
    </message>
</context>
</TS>
