<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_SA" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>outdated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>short key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View log file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%1/s</source>
        <extracomment>A speed, as in &quot;12 MiB/s&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the key of the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
