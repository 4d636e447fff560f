<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>&amp;Aktionen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Datei hinzufügen...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Ordner der &amp;Eingabedatei öffnen</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Ordner der &amp;Ausgabedatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Verschlüsseln</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Entschlüsseln</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>Ver-/Entschlüsselung &amp;abbrechen</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>Eingabefelder &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Standardalgorithmus...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>&amp;Informationen zu Algorithmen...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>&amp;Tastenkürzel...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>empfohlen</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>Seit mehr als zwanzig Jahren öffentlich untersucht: Kein praktisch durchführbarer Angriff ist bekannt.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>Siegel nötig</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Die Datei versiegeln oder ihr Passwort für keine andere verwenden: Ohne Siegel haben alle Dateien mit demselben Passwort denselben Schlüsselstrom, und zwei davon geben sich gegenseitig preis.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>kurze Blöcke</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>Seine Blöcke haben nur 64 Bit, sodass viele Gigabyte unter einem Schlüssel Teile ihres Inhalts preisgeben (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>Seit 2016 nicht mehr zur Verschlüsselung zugelassen (NIST SP 800-131A): Seine zwei Schlüssel sind schwächer, als ihre Länge vermuten lässt, und seine Blöcke sind kurz.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>Seit 2024 nicht mehr zur Verschlüsselung zugelassen (NIST SP 800-131A Rev. 2): Seine Blöcke haben nur 64 Bit (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>kurzer Schlüssel</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>Sein Schlüssel hat nur 80 Bit, und er ist nicht mehr zur Verschlüsselung zugelassen (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>schwache Schlüssel</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>Zu jedem Schlüssel gibt es drei weitere, die dasselbe bewirken, und verwandte Schlüssel brechen ihn (Kelsey, Schneier und Wagner, 1996 und 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>Angriffe bekannt</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Angriffe darauf erfordern weniger Aufwand als das Durchprobieren der Schlüssel (Isobe, 2011; Dinur, Dunkelman und Shamir, 2012), und seine Blöcke haben nur 64 Bit.</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>Algorithmus</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>Schlüssel (Bit)</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Block (Bit)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Anmerkung</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>Die Parameter sind nicht festgelegt</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Schlüssellänge:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>IV-Länge:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Vorgeschriebene Blockgröße:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Betriebsmodus:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Stromchiffre</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Byte-Reihenfolge:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>Little-Endian</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Hash-Funktion zur Berechnung des Schlüssels aus dem Passwort:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>Die Länge des Hash-Werts stimmt nicht mit der Schlüssellänge überein. Deshalb wird der Hash-Wert von %1 auf %2 Byte gekürzt.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Name des Algorithmus:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, Schlüssel mit %2 Bit</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, Blöcke mit %1 Bit</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Ver- und entschlüsselt einzelne Dateien mit einem symmetrischen Algorithmus nach Wahl.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Qt-Version:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Crypto++-Version:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Lizenz:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>Siehe die mit dem Programm gelieferte Dokumentation.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>Pro&amp;tokollstufe:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Protokolldatei &amp;verwenden</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Proto&amp;kolldatei:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Protokolldatei anzeigen</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Protokollstufe</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>Die unwichtigsten Meldungen, die noch protokolliert werden. Bei OFF wird nichts protokolliert.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Schreibt bis zur oben gewählten Stufe in die unten genannte Datei, was das Programm tut. Passwörter und Schlüssel werden nie geschrieben.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Protokolldatei</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Informationen zu Algorithmen</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Parameter der ausgewählten Algorithmen</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Einen oder mehrere Algorithmen auswählen, um ihre Parameter zu sehen.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>Zeigt nur die Algorithmen, bei denen dieser Text in einer der Spalten steht.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Name, Bit oder Anmerkung</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>&amp;Empfohlene zuerst</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Algorithmen</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Filter löschen</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Mit %1 entschlüsseln</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>Das Objekt ist belegt</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>Kein Datenstrom angegeben</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Kein Dateiname angegeben</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>Dateigröße konnte nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>Datei konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>Datenstrom konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Kein Name der Eingabedatei angegeben</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>Eingabedatei nicht gefunden</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Kein Name der Ausgabedatei angegeben</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>Ausgabedatei nicht gefunden</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Ausgabedatei und Eingabedatei haben denselben Namen</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>Der Vorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>Hash-Wert der Daten konnte nicht berechnet werden</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Beschädigte Daten</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>Das Verschlüsselungsmodul ist nicht initialisiert</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>Die Datei ist beschädigt oder wurde verändert</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Programm ins Konte&amp;xtmenü der Arbeitsumgebung einbinden</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Programm ins Menü „&amp;Senden an“ aufnehmen</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>Algorithmus und Sprache</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>B&amp;eim Programmstart den Standardalgorithmus einstellen</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>Standardalgorit&amp;hmus:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Passwort und Schlüssel</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Passwort an&amp;zeigen</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>Passwortbest&amp;ätigung verlangen</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>Schlüssel und &amp;IV im erweiterten Modus eingeben</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>&amp;Verschlüsselte Dateien versiegeln</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Schlägt bei jeder Verschlüsselung das Siegel vor: Es macht das Erraten des Passworts langsam und aufwendig und zeigt beim Entschlüsseln jede spätere Veränderung der Datei an.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Sa&amp;lt verwenden</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Bestätigungsdialog a&amp;nzeigen</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>A&amp;usgabedatei überschreiben</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>Na&amp;men der Ausgabedatei automatisch erzeugen</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>S&amp;tandard-Ausgabeordner verwenden</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>Standard-Aus&amp;gabeordner:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Dur&amp;chsuchen...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Standard-Ausgabeordner auswählen</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>Eingabedatei nach Verschlüsselung automatisch l&amp;öschen</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>Vor dem Löschen der Eingabedatei nach&amp;fragen</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Tastenkürzel:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Fügt dem Menü, das Dateimanager zu einer Datei anzeigen, „Verschlüsseln“ und „Entschlüsseln“ hinzu.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Nimmt das Programm in die Ziele auf, an die Dateimanager eine Datei senden können.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Wählt bei jedem Programmstart den unten angegebenen Algorithmus aus.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Standardalgorithmus</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>Zeigt Passwörter bei der Eingabe im Klartext an.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Bietet bei der Passwortabfrage an, stattdessen Schlüssel und Initialisierungsvektor hexadezimal einzugeben.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Schlägt bei jeder Verschlüsselung ein Salt vor: Damit unterscheiden sich gleiche Dateien, wenn sie mit einer Blockchiffre verschlüsselt sind.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>Wird mit den anderen Optionen gespeichert, doch bisher fragt nichts nach.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Schlägt vor, eine bereits vorhandene Datei mit dem Namen der Ausgabedatei zu entfernen; sonst bleibt sie erhalten, und es wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Schlägt den Namen der Ausgabedatei nach den Regeln unter „Dateinamen“ vor.</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Legt Ausgabedateien im unten angegebenen Ordner ab statt neben ihren Eingabedateien.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Standard-Ausgabeordner</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Löscht die Eingabedatei, sobald ihre verschlüsselte Kopie auf den Datenträger geschrieben ist. Sie kommt nicht in den Papierkorb.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>&amp;Eingabedatei:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>A&amp;usgabedatei:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>Datei zum Ver- oder Entschlüsseln</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>Zu schreibende Datei</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Eingabedatei auswählen</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Ausgabedatei auswählen</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Verschlüsseln</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Entschlüsseln</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Eine verschlüsselte Datei schreiben; die Eingabedatei bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Die ursprüngliche Datei schreiben; die Eingabedatei bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Den Vorgang beenden; nichts Halbfertiges bleibt zurück</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>oder zum Auswählen klicken</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Datei zum Ver-/Entschlüsseln hinzufügen</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Ausgabedatei festlegen</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Dateiendung</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Suffix</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Präfix</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Dateinamen</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>E&amp;rweitert</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>An&amp;wenden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>Die Optionen wurden angewendet.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Standard-Ausgabeordner</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>Die Sprache wechselt mit „OK“ oder „Anwenden“.</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>Die Protokolldatei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Protokolldatei</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Name der verschlüsselten Datei</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Date&amp;iendung hinzufügen:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>&amp;Suffix hinzufügen:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>&amp;Präfix hinzufügen:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Dat&amp;um hinzufügen</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>Beispie&amp;l:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Name der entschlüsselten Datei</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>Dateiendun&amp;g hinzufügen:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Suffi&amp;x hinzufügen:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Pr&amp;äfix hinzufügen:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>Datu&amp;m hinzufügen</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>B&amp;eispiel:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Zeigt den Standardwert jeder Option außer der Sprache an. Vor „OK“ oder „Anwenden“ ändert sich nichts.</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Passwort erzeugen</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Bestandteile:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Bestandteile</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Anzahl:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Erzeugtes Passwort</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Passwortstärke</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>&amp;Neues erzeugen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>Passwort &amp;verwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Zufällige Wörter</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Zufällige Zeichen</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Kopiert das Passwort in die Zwischenablage, aus der es nach %Ln Sekunde entfernt wird.</numerusform>
            <numerusform>Kopiert das Passwort in die Zwischenablage, aus der es nach %Ln Sekunden entfernt wird.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Der Zufallsgenerator des Systems hat versagt.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln Bit.</numerusform>
            <numerusform>%Ln Bit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>Das Passwort so aufbewahren, dass es wiederzufinden ist: Ohne es lässt sich die Datei nicht entschlüsseln.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>Das Passwort ist für %Ln Sekunde in der Zwischenablage.</numerusform>
            <numerusform>Das Passwort ist für %Ln Sekunden in der Zwischenablage.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Dateien werden geprüft...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Das Dateisystem antwortet nicht.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Scheint bereits verschlüsselt zu sein.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>Sollen die Eingabedateien nach der Verschlüsselung wirklich gelöscht werden?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Eingabedateien löschen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Dateien hinzufügen...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Weitere Dateien für die Liste auswählen</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Alle Dateien aus der Liste nehmen; die Dateien selbst bleiben erhalten</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>Dateien zum Ver- oder Entschlüsseln</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Entf nimmt die ausgewählten Dateien aus der Liste.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln Datei, %1</numerusform>
            <numerusform>%Ln Dateien, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>Läuft, %1&#xa0;%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>Die Ausgabedatei gehört zu einer anderen Datei der Liste.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Erneut verschlüsseln</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Diese Datei scheint bereits verschlüsselt zu sein</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>Von %1 Dateien scheint %Ln bereits verschlüsselt zu sein.</numerusform>
            <numerusform>Von %1 Dateien scheinen %Ln bereits verschlüsselt zu sein.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>Was zweimal verschlüsselt wird, muss auch zweimal entschlüsselt werden.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Auslassen</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>Al&amp;gorithmus:</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algorithmus</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>Algorithmus auswählen</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Algorithmus zum Ver-/Entschlüsseln der Datei auswählen</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>Als &amp;Standardalgorithmus verwenden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>Algorithmus: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>Wählt diesen Algorithmus bei jedem Programmstart aus, sofern die Optionen nichts anderes bestimmen.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>&amp;Initialisierungsvektor (IV) (HEX-Format):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Initialisierungsvektor</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>&amp;Schlüssel (HEX-Format):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Erzeugen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>S&amp;peichern...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>Datei &amp;versiegeln</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Zeigt beim Entschlüsseln jede spätere Veränderung der Datei an und umfasst auch ein Salt.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Salt ver&amp;wenden</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>&amp;Ausgabedatei überschreiben</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>%1 von %2 Byte eingegeben</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Einfache Optionen anzeigen</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Schlüssel und IV zum Verschlüsseln</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Schlüssel und IV zum Entschlüsseln</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Namen des Verschlüsselungsalgorithmus, Schlüssel und IV gut merken. 
Diese Angaben werden zum Entschlüsseln der Datei benötigt. 
Ausgewählter Verschlüsselungsalgorithmus: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Schlüssel und IV eingeben, um die Datei zu entschlüsseln. 
Ausgewählter Verschlüsselungsalgorithmus: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>&amp;Schlüssel, Länge: %1 Byte (HEX-Format)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>&amp;Initialisierungsvektor (IV), Länge: %1 Byte (HEX-Format)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Der Zufallsgenerator des Systems hat versagt.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Schlüssel und IV kopieren oder speichern: Ohne sie lässt sich die Datei nicht entschlüsseln.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erläuterung</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Füllt beide Felder mit Zufallsbytes.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Schreibt Schlüssel und IV ungeschützt in eine Datei, die nur das eigene Benutzerkonto lesen kann.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Liest einen Schlüssel und einen IV, die hier gespeichert wurden.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Damit unterscheiden sich gleiche Dateien, wenn sie mit einer Blockchiffre verschlüsselt sind.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Entfernt eine bereits vorhandene Datei mit dem Namen der Ausgabedatei; sonst bleibt sie erhalten, und es wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Fragt statt nach Schlüssel und Initialisierungsvektor nach einem Passwort.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Kopiert Schlüssel und IV in die Zwischenablage, aus der sie nach %Ln Sekunde entfernt werden.</numerusform>
            <numerusform>Kopiert Schlüssel und IV in die Zwischenablage, aus der sie nach %Ln Sekunden entfernt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>Schlüssel und IV in den Feldern ersetzen?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>Schlüssel und IV sind für %Ln Sekunde in der Zwischenablage.</numerusform>
            <numerusform>Schlüssel und IV sind für %Ln Sekunden in der Zwischenablage.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>Passwort &amp;bestätigen:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Passwort bestätigen</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>Passwort an&amp;zeigen</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>Datei &amp;versiegeln</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Macht das Erraten des Passworts langsam und aufwendig, zeigt beim Entschlüsseln jede spätere Veränderung der Datei an und umfasst auch ein Salt.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Salt ver&amp;wenden</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>&amp;Ausgabedatei überschreiben</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Erweiterte Optionen anzeigen</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Passwort zum Verschlüsseln</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Passwort zum Entschlüsseln</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Namen des Verschlüsselungsalgorithmus und Passwort gut merken. 
Diese Angaben werden zum Entschlüsseln der Datei benötigt. 
Ausgewählter Verschlüsselungsalgorithmus: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Passwort eingeben, um die Datei zu entschlüsseln. 
Ausgewählter Verschlüsselungsalgorithmus: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Die Feststelltaste ist eingeschaltet.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Passwortlänge: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Passwortlänge: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>Die Passwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erläuterung</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Passwortstärke</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>&amp;Erzeugen...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Schlägt ein Passwort aus zufälligen Wörtern oder Zeichen vor.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Damit unterscheiden sich gleiche Dateien, wenn sie mit einer Blockchiffre verschlüsselt sind. Das Erraten des Passworts wird dadurch nicht schwerer.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Entfernt eine bereits vorhandene Datei mit dem Namen der Ausgabedatei; sonst bleibt sie erhalten, und es wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Fragt statt nach einem Passwort nach Schlüssel und Initialisierungsvektor in hexadezimaler Form.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>Passwort im Feld ersetzen?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Den Text neu einlesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Dies ist eine Liste der Tastenkürzel in %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Nur Dateien auf diesem Computer können hier abgelegt werden.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>Die abgelegte Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Nur eine einzelne Datei kann ver- oder entschlüsselt werden, kein Ordner und kein Gerät.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>Nur eine der abgelegten Dateien wurde übernommen.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%1 von %Ln Datei verschlüsselt</numerusform>
            <numerusform>%1 von %Ln Dateien verschlüsselt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%1 von %Ln Datei entschlüsselt</numerusform>
            <numerusform>%1 von %Ln Dateien entschlüsselt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln übersprungen</numerusform>
            <numerusform>%Ln übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Ordner und Geräte werden ausgelassen: Nur Dateien können ver- oder entschlüsselt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>„%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>Nicht gefunden und ausgelassen: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>Gemäß den Optionen nach der Verschlüsselung gelöschte Eingabedateien: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Behalten: %1, siehe Liste.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>Der IV fehlt.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>Ungültiger IV: enthält Zeichen, die nicht hexadezimal sind.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Ungültige IV-Länge: %1 Byte eingegeben.</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Der Schlüssel fehlt.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Ungültiger Schlüssel: enthält Zeichen, die nicht hexadezimal sind.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Ungültige Schlüssellänge: %1 Byte eingegeben.</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>Die Eingabedatei wurde behalten: Sie ist eine symbolische Verknüpfung.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>Die Eingabedatei wurde behalten: Sie hat noch einen anderen Namen (harte Verknüpfung).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>Die Eingabedatei wurde behalten: Sie hat sich seit der Verschlüsselung geändert.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>Die Eingabedatei wurde behalten: Die Ausgabedatei entspricht nicht dem, was geschrieben wurde.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>Die Eingabedatei wurde behalten.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>Soll die Eingabedatei nach der Verschlüsselung wirklich gelöscht werden?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Eingabedatei löschen</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>Kein Verschlüsselungsalgorithmus angegeben.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Datei zum Verschlüsseln auswählen</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>Keine Datei zum Verschlüsseln angegeben.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>Die Datei zum Verschlüsseln wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>Das Verschlüsselungsmodul konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>Die Verschlüsselung konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Verschlüsselung läuft</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>Die Verschlüsselung der Datei wurde abgebrochen</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>Die Datei wurde erfolgreich verschlüsselt</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>Die Datei konnte nicht verschlüsselt werden.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>Kein Entschlüsselungsalgorithmus angegeben.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Datei zum Entschlüsseln auswählen</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>Keine Datei zum Entschlüsseln angegeben.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>Die Datei zum Entschlüsseln wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>Das Entschlüsselungsmodul konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>Die Entschlüsselung konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Entschlüsselung läuft</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>Die Entschlüsselung der Datei wurde abgebrochen</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>Die Datei wurde erfolgreich entschlüsselt</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>Die Datei konnte nicht entschlüsselt werden.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>Die Ausgabedatei wurde gelöscht.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>Sie ist versiegelt.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Sie war versiegelt und ist unverändert.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Passwort und Algorithmus prüfen.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Schlüssel, IV und Algorithmus prüfen.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>Passwort und Algorithmus sind richtig. Eine andere Kopie der Datei versuchen.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>Schlüssel, IV und Algorithmus sind richtig. Eine andere Kopie der Datei versuchen.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>Die Eingabedatei konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>Die Eingabedatei wurde gemäß den Optionen nach der erfolgreichen Verschlüsselung gelöscht</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Diese Datei wurde mit %1 verschlüsselt.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>Eine Ver- oder Entschlüsselung läuft bereits.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>Die Eingabe ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Ausgabedatei festlegen</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>Keine Ausgabedatei angegeben.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>Der Ausgabeordner wurde nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Ausgabedatei und Eingabedatei haben denselben Namen</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>Die Ausgabe ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Ungültige IV-Länge. %1 Byte eingegeben</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Ungültige Schlüssellänge. %1 Byte eingegeben</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>Die Ausgabedatei ist bereits vorhanden. „Ausgabedatei überschreiben“ ist nicht ausgewählt.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Das Dateisystem antwortet nicht.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Kein Passwort angegeben</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>Die Eingabedatei %1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>Die Ausgabedatei %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>Die Datei %1 konnte nicht verarbeitet werden.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>Die Eingabedatei %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>Die bisherige Ausgabedatei %1 konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>Die Ausgabedatei %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>Die Ausgabedatei %1 konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>Schlüssel und IV konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>Schlüssel und IV wurden geladen.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>Schlüssel und IV wurden für %1 gespeichert. Der ausgewählte Algorithmus ist %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Schlüssel und IV speichern</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1 Schlüssel und IV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>keine Antwort vom Datenträger</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>Schlüssel und IV wurden gespeichert. Nur das eigene Benutzerkonto kann die Datei lesen.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Schlüssel und IV laden</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>Die Datei enthält keinen Schlüssel und keinen IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>Der Standard-Ausgabeordner muss ein absoluter Pfad sein.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>Kein Standard-Ausgabeordner angegeben: Dateien kommen neben ihre Eingabedatei.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>Verschlüsselte Dateien bekämen die Namen ihrer Eingabedateien.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>Entschlüsselte Dateien bekämen die Namen ihrer Eingabedateien.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>Die Dateinamen würden länger, als ein Dateisystem zulässt.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>An einer Endung, die einen Punkt enthält, werden Dateien nicht erkannt.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows und die meisten USB-Sticks erlauben keine Namen mit einem dieser Zeichen: %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>Die Optionen können nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>Für die gewählte Sprache gibt es keine Übersetzung.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>Die Übersetzung kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>Nichts wird in die Protokolldatei geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>Das Passwort enthält einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>Das Passwort enthält ein Tabulatorzeichen.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>Das Passwort enthält ein Steuerzeichen.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%1/s</source>
        <extracomment>A speed, as in &quot;12 MiB/s&quot;</extracomment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Making the key of the password</source>
        <translation>Schlüssel wird aus dem Passwort berechnet</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>Warten, bis der Datenträger die Datei gespeichert hat</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 mit %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>%1&#xa0;% verarbeitet</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>0,000&#xa0;% verarbeitet.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Verbleibende Zeit: %1 Std. %2 Min. %3 Sek.</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Verbleibende Zeit: %1 Min. %2 Sek.</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Verbleibende Zeit: %1 Sek.</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 in %2 Sek., %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 in weniger als einer Sekunde</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Mit Quillet verschlüsseln</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Mit Quillet entschlüsseln</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Mit Quillet öffnen</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quillet ist nicht mehr unter %1 zu finden. Das Programm einmal von seinem neuen Ort aus starten, um diesen Menüeintrag zu reparieren, oder den Eintrag löschen:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Die ausgewählten Dateien verschlüsseln</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Die ausgewählten Dateien entschlüsseln</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Die ausgewählten Dateien im Fenster von Quillet öffnen</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Datei zum Ver-/Entschlüsseln hinzufügen</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Ordner der Eingabedatei öffnen</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Ordner der Ausgabedatei öffnen</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Verschlüsselung starten</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Entschlüsselung starten</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Ver-/Entschlüsselung abbrechen</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Eingabefelder leeren</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Passwortstärke: sehr schwach, sofort erraten.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Passwortstärke: schwach, in wenigen Stunden erraten.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Passwortstärke: mäßig, innerhalb eines Jahres erraten.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Passwortstärke: stark.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Passwortstärke: sehr stark.</translation>
    </message>
</context>
</TS>
