<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>操作(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>添加文件(&amp;A)...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>打开输入文件所在文件夹(&amp;I)</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>打开输出文件所在文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>加密(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>解密(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>停止加密/解密(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>清除已输入的数据(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>选项(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>默认算法(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>算法信息(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>键盘快捷键(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>关于(&amp;A)...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>推荐</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>已公开接受二十多年的检验，尚无已知的实际攻击方法。</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>需要密封</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>请密封文件，或不要将其密码用于其他文件：如果不密封，使用同一密码的所有文件会共用一个密钥流，只要有两个文件就会相互泄露内容。</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>分组过短</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>分组只有 64 位，因此用同一密钥加密数 GB 的数据会泄露部分内容（Sweet32, CVE-2016-2183）。</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>已过时</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>自 2016 年起不再允许用于加密（NIST SP 800-131A）：两个密钥的实际强度低于其长度，且分组过短。</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>自 2024 年起不再允许用于加密（NIST SP 800-131A Rev. 2）：分组只有 64 位（Sweet32, CVE-2016-2183）。</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>密钥过短</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>密钥只有 80 位，已不再允许用于加密（NIST SP 800-131A）。</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>弱密钥</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>每个密钥都有另外三个作用相同的密钥，且可被相关密钥攻击破解（Kelsey、Schneier 和 Wagner，1996 年和 1997 年）。</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>存在已知攻击</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>已有攻击所需的工作量低于逐一尝试密钥（Isobe，2011 年；Dinur、Dunkelman 和 Shamir，2012 年），且分组只有 64 位。</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>算法</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>密钥位数</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>分组位数</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>参数未定义</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>密钥大小：</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>IV 大小：</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>强制分组大小：</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>工作模式：</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>流密码</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>字节序：</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>小端序</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>由密码计算密钥的哈希函数：</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>哈希长度与密钥长度不一致，因此哈希将从 %1 字节截断为 %2 字节。</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>算法名称：</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1，密钥 %2 位</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>，分组 %1 位</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>使用您选择的对称算法加密和解密单个文件。</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Qt 版本：</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Crypto++ 版本：</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>许可证：</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>请参阅随程序提供的文档。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>日志级别(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>使用日志文件(&amp;U)</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>日志文件(&amp;I)：</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>查看日志文件</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>日志级别</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>要记录的消息的最低重要级别。OFF 表示不记录任何内容。</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>将程序的操作写入下面的文件，详细程度由上面的级别决定。绝不会写入密码和密钥。</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>算法信息</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>所选算法的参数</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>选择一个或多个算法以查看其参数。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
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
        <translation>筛选(&amp;F)：</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>仅显示任意一列中包含此文本的算法。</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>名称、位数或备注</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>推荐的排在前面(&amp;R)</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>算法</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>清除筛选</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>使用 %1 解密</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>对象正忙</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>未指定数据流</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>未指定文件名</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>未找到文件</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>打开文件失败</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>获取文件大小失败</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>读取文件失败</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>读取数据流失败</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>未指定输入文件名</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>未找到输入文件</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>未指定输出文件名</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>未找到输出文件</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>输出文件名与输入文件名相同</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>操作已停止</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>计算数据哈希失败</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>数据已损坏</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>加密引擎未初始化</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>文件已损坏或被更改</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>将程序集成到右键菜单(&amp;X)</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>将程序添加到“发送到”菜单(&amp;S)</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>算法和语言</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>程序启动时设置默认算法(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>默认算法(&amp;D)：</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>密码和密钥</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>显示密码(&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>要求确认密码(&amp;Q)</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>使用高级模式输入密钥和 IV(&amp;K)</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>密封加密的文件(&amp;I)</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>加密文件时默认选中密封：密封会使猜测密码变得缓慢而昂贵，并能在解密时发现文件此后的任何更改。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>使用盐(&amp;U)</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>显示确认对话框(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>覆盖输出文件(&amp;R)</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>自动生成输出文件名(&amp;N)</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>使用默认输出文件夹(&amp;P)</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>默认输出文件夹(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>选择默认输出文件夹</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>加密后自动删除输入文件(&amp;E)</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>加密后删除输入文件前显示确认对话框(&amp;Y)</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>快捷键：</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>在文件管理器的文件菜单中添加“加密”和“解密”。</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>将本程序添加到文件管理器提供的文件发送目标中。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>每次启动程序时选择下面的算法。</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>默认算法</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>输入密码时以明文显示。</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>在要求输入密码时，可改为以十六进制输入密钥和初始化向量。</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>加密文件时默认选中使用盐：盐会使相同的文件在用分组密码加密后互不相同。</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>此选项会与其他选项一起保存，但目前还不会显示确认。</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>默认选中移除与输出文件同名的现有文件；如果不选中，现有文件将保留，且不写入任何内容。</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>按照“文件名”中的规则建议输出文件的名称。</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>将输出文件保存到下面的文件夹，而不是输入文件所在的位置。</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>默认输出文件夹</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>在加密副本写入磁盘后删除输入文件。文件不会移到回收站。</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>输入文件(&amp;I)：</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>输出文件(&amp;P)：</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>要加密或解密的文件</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>要写入的文件</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>选择输入文件</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>选择输出文件</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>解密</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>写入加密后的文件；输入文件保持不变</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>写入加密前的文件；输入文件保持不变</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>结束操作；不会留下未完成的内容</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>将文件拖放到此处</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>或点击选择</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>添加要加密/解密的文件</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>指定输出文件</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>文件扩展名</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>后缀</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>前缀</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>示例</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>常规设置(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>文件名(&amp;F)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>高级(&amp;V)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>选项已应用。</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>默认输出文件夹</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>点击“确定”或“应用”后，语言才会更改。</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>无法读取日志文件：%1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>加密文件的名称</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>添加文件扩展名(&amp;I)：</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>添加后缀(&amp;S)：</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>添加前缀(&amp;P)：</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>添加日期(&amp;E)</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>示例(&amp;L)：</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>解密文件的名称</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>添加文件扩展名(&amp;T)：</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>添加后缀(&amp;U)：</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>添加前缀(&amp;R)：</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>添加日期(&amp;D)</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>示例(&amp;M)：</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>显示除语言外所有选项的默认值。在点击“确定”或“应用”之前不会更改任何内容。</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>生成密码</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>组成(&amp;M)：</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>组成</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>数量(&amp;N)：</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>生成的密码</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>密码强度</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>重新生成(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>使用此密码(&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>随机单词</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>随机字符</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>将密码复制到剪贴板，%Ln 秒后将从剪贴板中移除。</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>系统的随机数生成器出错。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln 位。</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>请将密码保存在您能找到的地方：没有密码就无法解密文件。</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>密码将在剪贴板中保留 %Ln 秒。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>正在检查文件...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>文件系统没有响应。</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>此文件似乎已经加密。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>确定要在加密后删除输入文件吗？</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>以及另外 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>删除输入文件</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln 个文件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>添加文件...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>选择更多文件添加到列表</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>将所有文件移出列表；文件本身会保留</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>要加密或解密的文件</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>按 Delete 键可将所选文件移出列表。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln 个文件，%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>正在运行，%1%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>输出位置属于列表中的另一个文件。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>再次加密</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>此文件似乎已经加密</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>在 %1 个文件中，有 %Ln 个似乎已经加密。</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>加密两次的内容必须解密两次。</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>排除这些文件</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>算法(&amp;A)：</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>算法</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>选择算法</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>选择用于加密/解密文件的算法</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>用作默认算法(&amp;U)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>算法：%1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>每次启动程序时选择此算法，除非选项中另有设置。</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>初始化向量（IV，HEX 格式）(&amp;I)：</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>初始化向量</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>密钥（HEX 格式）(&amp;K)：</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>密钥</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>生成(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>密封文件(&amp;E)</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>能在解密时发现文件此后的任何更改，并且包含盐。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>使用盐(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>覆盖输出文件(&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>已输入 %1 字节，共 %2 字节</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>显示简单选项</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>用于加密的密钥和 IV</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>用于解密的密钥和 IV</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>请记住加密算法的名称、密钥和 IV。 
解密文件时需要这些数据。 
所选加密算法：%1。</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>请输入用于解密文件的密钥和 IV。 
所选加密算法：%1。</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>密钥，长度：%1 字节（HEX 格式）(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>初始化向量（IV），长度：%1 字节（HEX 格式）(&amp;I)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>系统的随机数生成器出错。</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>请复制或保存密钥和 IV：没有它们就无法解密文件。</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>用随机字节填充两个输入框。</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>将密钥和 IV 不加保护地写入只有您能读取的文件。</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>加载(&amp;L)...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>读取在此处保存的密钥和 IV。</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>使相同的文件在用分组密码加密后互不相同。</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>移除与输出文件同名的现有文件；如果不选中，现有文件将保留，且不写入任何内容。</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>改为输入密码，而不是密钥和初始化向量。</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>将密钥和 IV 复制到剪贴板，%Ln 秒后将从剪贴板中移除。</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>要替换输入框中的密钥和 IV 吗？</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>密钥和 IV 将在剪贴板中保留 %Ln 秒。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>确认密码(&amp;O)：</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>确认密码</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>显示密码(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>密封文件(&amp;E)</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>使猜测密码变得缓慢而昂贵，能在解密时发现文件此后的任何更改，并且包含盐。</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>使用盐(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>覆盖输出文件(&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>显示高级选项</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>用于加密的密码</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>用于解密的密码</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>请记住加密算法的名称和密码。 
解密文件时需要这些数据。 
所选加密算法：%1。</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>请输入用于解密文件的密码。 
所选加密算法：%1。</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>大写锁定（Caps Lock）已打开。</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>密码长度：%1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>密码长度：%1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>两次输入的密码不一致。</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>密码强度</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>生成(&amp;G)...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>建议一个由随机单词或字符组成的密码。</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>使相同的文件在用分组密码加密后互不相同。这不会增加猜测密码的难度。</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>移除与输出文件同名的现有文件；如果不选中，现有文件将保留，且不写入任何内容。</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>改为以十六进制输入密钥和初始化向量，而不是密码。</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>隐藏密码</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>要替换输入框中的密码吗？</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>以及另外 %Ln 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>重新读取文本（F5）</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>以下是 %1 的键盘快捷键列表。</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>只能将这台计算机上的文件拖放到此处。</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>未找到拖放的文件。</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>只能加密或解密单个文件，不能是文件夹或设备。</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>拖放的文件中只接受了一个。</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%Ln 个文件中有 %1 个已加密</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%Ln 个文件中有 %1 个已解密</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln 个失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln 个已跳过</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>文件夹和设备已排除：只能加密或解密文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>未找到“%1”。</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>未找到并已排除：%1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>已根据您的选项在加密后删除 %1 个输入文件。</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>保留了 %1 个文件，请查看列表。</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IV 为空。</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>IV 无效：包含无效的十六进制字符。</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>IV 大小无效：输入了 %1 字节。</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>密钥为空。</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>密钥无效：包含无效的十六进制字符。</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>密钥大小无效：输入了 %1 字节。</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>已保留输入文件：它是符号链接。</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>已保留输入文件：它还有另一个名称（硬链接）。</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>已保留输入文件：它在加密后已被更改。</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>已保留输入文件：输出文件与写入的内容不一致。</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>已保留输入文件。</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>确定要在加密后删除输入文件吗？</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>删除输入文件</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>未指定加密算法。</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>选择要加密的文件</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>未指定要加密的文件。</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>未找到要加密的文件。</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>准备加密引擎失败。</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>启动加密失败。</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>正在加密</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>文件加密已取消</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>文件加密成功</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>加密文件失败。</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>未指定解密算法。</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>选择要解密的文件</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>未指定要解密的文件。</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>未找到要解密的文件。</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>准备解密引擎失败。</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>启动解密失败。</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>正在解密</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>文件解密已取消</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>文件解密成功</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>解密文件失败。</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>输出文件已被删除。</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>文件已密封。</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>文件曾被密封，且未被更改。</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>请检查密码和算法。</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>请检查密钥、IV 和算法。</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>密码和算法正确。请尝试该文件的另一个副本。</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>密钥、IV 和算法正确。请尝试该文件的另一个副本。</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>无法删除输入文件。</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>已根据您的选项在加密成功后删除输入文件</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>此文件是用 %1 加密的。</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>加密/解密已在进行中。</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>输入不是普通文件。</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>指定输出文件</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>未指定输出文件。</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>未找到输出文件夹：%1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>输出文件名与输入文件名相同</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>输出不是普通文件。</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>IV 大小无效。输入了 %1 字节</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>密钥大小无效。输入了 %1 字节</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>输出文件已存在。已选择“不覆盖”选项。</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>文件系统没有响应。</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>未指定密码</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>无法读取输入文件 %1。</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>无法写入输出文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>无法处理文件 %1。</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>无法打开输入文件 %1。</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>无法移除原有的输出文件 %1。</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>无法创建输出文件 %1。</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>无法存储输出文件 %1。</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>文本文件</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>无法保存密钥和 IV：%1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>密钥和 IV 已加载。</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>此密钥和 IV 是为 %1 保存的，当前所选算法是 %2。</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>保存密钥和 IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1 密钥和 IV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>磁盘没有响应</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>密钥和 IV 已保存。只有您能读取该文件。</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>加载密钥和 IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取该文件。</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>该文件不包含密钥和 IV。</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>默认输出文件夹必须是绝对路径。</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>未指定默认输出文件夹：文件将保存在输入文件所在的位置。</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>加密后的文件将与输入文件同名。</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>解密后的文件将与输入文件同名。</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>文件名将超出文件系统允许的长度。</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>扩展名中间含有点时，将无法识别文件。</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows 和大多数 U 盘不允许名称中包含以下任一字符：%1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>无法将选项保存到 %1。</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>所选语言没有翻译。</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>无法加载翻译：%1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>未向日志文件写入任何内容：%1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>密码包含换行符。</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>密码包含制表符。</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>密码包含控制字符。</translation>
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
        <translation>正在由密码生成密钥</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>正在等待磁盘存储文件</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1，速度 %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>已处理 %1%</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>已处理 0.000%。</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>剩余时间：%1 小时 %2 分 %3 秒</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>剩余时间：%1 分 %2 秒</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>剩余时间：%1 秒</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%2 秒内处理 %1，%3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>不到一秒内处理 %1</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>使用 Quillet 加密</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>使用 Quillet 解密</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>使用 Quillet 打开</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quillet 已不在 %1。请从新位置启动一次以修复此菜单项，或删除该项：</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>加密所选文件</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>解密所选文件</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>在 Quillet 窗口中打开所选文件</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>添加要加密/解密的文件</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>打开输入文件所在文件夹</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>打开输出文件所在文件夹</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>开始加密</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>开始解密</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>停止加密/解密</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>清除已输入的数据</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>密码强度：非常弱，会立即被猜出。</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>密码强度：弱，数小时内会被猜出。</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>密码强度：一般，一年内会被猜出。</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>密码强度：强。</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>密码强度：非常强。</translation>
    </message>
</context>
</TS>
