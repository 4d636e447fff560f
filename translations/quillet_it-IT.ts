<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>A&amp;zioni</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Aggiungi file...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Apri la cartella del file di &amp;input</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Apri la cartella del file di &amp;output</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Cifra</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Decifra</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>&amp;Interrompi la cifratura/decifratura</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>C&amp;ancella i dati inseriti</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opzioni...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Algoritmo predefinito...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>Informazioni sugli &amp;algoritmi...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>&amp;Scorciatoie da tastiera...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Informazioni su...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>consigliato</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>Esaminato pubblicamente da oltre vent&apos;anni: non è noto alcun attacco praticabile.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>sigillo necessario</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Sigillare il file, oppure non usare la sua password per nessun altro: senza sigillo tutti i file cifrati con la stessa password condividono lo stesso flusso di chiave e due di essi si rivelano a vicenda.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>blocchi corti</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>I suoi blocchi hanno solo 64 bit, perciò molti gigabyte cifrati con la stessa chiave rivelano parte del loro contenuto (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>obsoleto</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>Non ammesso per la cifratura dal 2016 (NIST SP 800-131A): le sue due chiavi sono più deboli di quanto la loro lunghezza faccia pensare e i suoi blocchi sono corti.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>Non ammesso per la cifratura dal 2024 (NIST SP 800-131A Rev. 2): i suoi blocchi hanno solo 64 bit (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>chiave corta</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>La sua chiave ha solo 80 bit e non è più ammesso per la cifratura (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>chiavi deboli</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>Ogni chiave ne ha altre tre equivalenti, e l&apos;uso di chiavi correlate consente di violarlo (Kelsey, Schneier e Wagner, 1996 e 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>attacchi noti</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Esistono attacchi che richiedono meno lavoro che provare tutte le chiavi (Isobe, 2011; Dinur, Dunkelman e Shamir, 2012), e i suoi blocchi hanno solo 64 bit.</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>Bit chiave</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Bit blocco</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>I parametri non sono definiti</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Dimensione della chiave:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>Dimensione dell&apos;IV:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Dimensione obbligatoria del blocco:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Modalità di cifratura:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Cifrario a flusso</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Ordine dei byte:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>Little-endian</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Funzione di hash per calcolare la chiave dalla password:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuta</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>La lunghezza dell&apos;hash è diversa da quella della chiave. Pertanto l&apos;hash sarà troncato da %1 a %2 byte.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Nome dell&apos;algoritmo:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, chiave di %2 bit</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, blocchi di %1 bit</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Cifra e decifra singoli file con un algoritmo simmetrico a scelta.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Versione di Qt:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Versione di Crypto++:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Licenza:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>Consultare la documentazione fornita con il programma.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>&amp;Livello di log:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Scri&amp;vi un file di log</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Per&amp;corso del log:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Mostra il file di log</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Livello di log</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>I messaggi meno importanti che vengono registrati. Con OFF non viene registrato nulla.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Scrive nel file indicato sotto ciò che fa il programma, fino al livello indicato sopra. Password e chiavi non vengono mai scritte.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>File di log</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Informazioni sugli algoritmi</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Parametri degli algoritmi selezionati</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Selezionare uno o più algoritmi per vederne i parametri.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>Mostra solo gli algoritmi che hanno questo testo in una delle colonne.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Nome, bit o nota</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>&amp;Prima i consigliati</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Algoritmi</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Azzera il filtro</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Decifra con %1</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>Oggetto occupato</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>Flusso di dati non definito</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Nome del file non definito</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>File non trovato</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Apertura del file non riuscita</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>Impossibile ottenere la dimensione del file</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>Lettura del file non riuscita</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>Lettura del flusso di dati non riuscita</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Nome del file di input non definito</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>File di input non trovato</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Nome del file di output non definito</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>File di output non trovato</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Il nome del file di output coincide con quello del file di input</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>L&apos;operazione è stata interrotta</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>Calcolo dell&apos;hash dei dati non riuscito</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Dati danneggiati</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>Il motore crittografico non è inizializzato</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>Il file è danneggiato o è stato modificato</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Rendi il programma disponi&amp;bile nel menu contestuale</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Aggiungi il programma al menu «In&amp;via a»</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>Algoritmo e lingua</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>Imposta l&apos;algoritmo predefinito &amp;quando si avvia il programma</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>Algoritmo pre&amp;definito:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Password e chiave</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Mostra la pass&amp;word</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>&amp;Richiedi la conferma della password</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>Inserisci chiave e IV in modalità avanzata (HE&amp;X)</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>&amp;Sigilla i file cifrati</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Propone il sigillo ogni volta che si cifra un file: rende lento e costoso indovinare la password e rivela, alla decifratura, ogni modifica successiva del file.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usa un salt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Mostra la &amp;finestra di conferma</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>S&amp;ovrascrivi il file di output</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>No&amp;me automatico del file di output</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>Usa la car&amp;tella di output predefinita</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>&amp;Cartella di output predefinita:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Sfogl&amp;ia...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Scegli la cartella di output predefinita</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>&amp;Elimina automaticamente il file di input dopo la cifratura</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>C&amp;hiedi conferma prima di eliminare il file di input dopo la cifratura</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Tasti di scelta rapida:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Tasti di scelta rapida</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Aggiunge Cifra e Decifra al menu che i gestori di file mostrano per un file.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Aggiunge il programma alle destinazioni a cui i gestori di file consentono di inviare un file.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Seleziona l&apos;algoritmo indicato sotto a ogni avvio del programma.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Algoritmo predefinito</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>Mostra le password in chiaro durante la digitazione.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Offre, dove viene chiesta la password, la possibilità di inserire invece la chiave e il vettore di inizializzazione in formato esadecimale.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Propone un salt ogni volta che si cifra un file: file uguali diventano diversi quando vengono cifrati con un cifrario a blocchi.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>Viene salvata con le altre opzioni, ma per ora non viene chiesta alcuna conferma.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Propone di rimuovere un file che ha già il nome del file di output; senza questa opzione tale file resta e non viene scritto nulla.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Propone il nome del file di output secondo le regole in «Nomi dei file».</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Mette i file di output nella cartella indicata sotto invece che accanto ai rispettivi file di input.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Cartella di output predefinita</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Elimina il file di input dopo che la sua copia cifrata è stata scritta sul disco. Il file non viene spostato nel cestino.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>File di &amp;input:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>File di o&amp;utput:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>File da cifrare o decifrare</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>File da scrivere</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Scegli il file di input</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Scegli il file di output</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Cifra</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Decifra</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Scrive un file cifrato; il file di input resta com&apos;è</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Scrive il file originale decifrato; il file di input resta com&apos;è</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Termina l&apos;operazione; non resta nulla di incompleto</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Trascinare qui i file</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>o fare clic per sceglierli</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Aggiungi un file da cifrare/decifrare</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definisci il file di output</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Estensione del file</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Suffisso</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Prefisso</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Esempio</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>Impostazioni &amp;generali</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Nomi dei file</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Avan&amp;zate</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ap&amp;plica</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>Le opzioni sono state applicate.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Cartella di output predefinita</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>La lingua cambia con OK o Applica.</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>Impossibile leggere il file di log: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>File di log</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Nome del file cifrato</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Aggiungi &amp;estensione:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>Aggiungi &amp;suffisso:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>Aggiungi p&amp;refisso:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Aggiungi &amp;data</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>Esempi&amp;o:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Nome del file decifrato</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>Aggiungi es&amp;tensione:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Aggiungi s&amp;uffisso:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Aggiungi pre&amp;fisso:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>Agg&amp;iungi data</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>Ese&amp;mpio:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Valori predefiniti</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Mostra il valore predefinito di ogni opzione tranne la lingua. Nulla cambia prima di OK o Applica.</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Genera una password</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Composta da:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Composta da</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numero:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Password generata</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Robustezza della password</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>&amp;Genera un&apos;altra</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pia</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>&amp;Usa questa password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Parole casuali</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Caratteri casuali</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copia la password negli appunti, da cui viene rimossa dopo %Ln secondo.</numerusform>
            <numerusform>Copia la password negli appunti, da cui viene rimossa dopo %Ln secondi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Il generatore casuale del sistema non ha funzionato.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln bit.</numerusform>
            <numerusform>%Ln bit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>Conservarla dove la si possa ritrovare: senza di essa il file non può essere decifrato.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>La password resta negli appunti per %Ln secondo.</numerusform>
            <numerusform>La password resta negli appunti per %Ln secondi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Esame dei file...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Il file system non risponde.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Sembra già cifrato.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>Eliminare davvero i file di input dopo la cifratura?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e un altro</numerusform>
            <numerusform>e altri %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Eliminazione dei file di input</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln file</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Aggiungi file...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Svuota elenco</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Scegli altri file per l&apos;elenco</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Toglie tutti i file dall&apos;elenco; i file stessi restano</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>File da cifrare o decifrare</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Canc toglie dall&apos;elenco i file selezionati.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln file, %1</numerusform>
            <numerusform>%Ln file, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>In corso, %1%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorato</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>Il file di output è quello di un altro file dell&apos;elenco.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Cifra di nuovo</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Questo file sembra già cifrato</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>Su %1 file, %Ln sembra già cifrato.</numerusform>
            <numerusform>Su %1 file, %Ln sembrano già cifrati.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>Ciò che viene cifrato due volte deve essere decifrato due volte.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Escludi</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>A&amp;lgoritmo:</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>Seleziona un algoritmo</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Seleziona l&apos;algoritmo per cifrare/decifrare il file</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>&amp;Usa come algoritmo predefinito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>Algoritmo: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>Seleziona questo algoritmo a ogni avvio del programma, salvo diversa indicazione nelle opzioni.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>&amp;Vettore di inizializzazione (IV) (formato HEX):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Vettore di inizializzazione</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>&amp;Chiave (formato HEX):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chiave</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Genera</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pia</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Salva...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>S&amp;igilla il file</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Rivela, alla decifratura, ogni modifica successiva del file e comprende un salt.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usa un salt</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>S&amp;ovrascrivi il file di output</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>Byte inseriti: %1 di %2</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Mostra opzioni semplici</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Chiave e IV per cifrare</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Chiave e IV per decifrare</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Ricordare il nome dell&apos;algoritmo di cifratura, la chiave e l&apos;IV. 
Questi dati serviranno per decifrare il file. 
Algoritmo crittografico selezionato: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Inserire la chiave e l&apos;IV per decifrare il file. 
Algoritmo crittografico selezionato: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>&amp;Chiave, lunghezza: %1 byte (formato HEX)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>&amp;Vettore di inizializzazione (IV), lunghezza: %1 byte (formato HEX)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Il generatore casuale del sistema non ha funzionato.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Copiare o salvare la chiave e l&apos;IV: senza di essi il file non può essere decifrato.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Spiegazione</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Riempie entrambi i campi con byte casuali.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Scrive la chiave e l&apos;IV, senza protezione, in un file che solo l&apos;utente attuale può leggere.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>Ca&amp;rica...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Legge una chiave e un IV salvati da qui.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Rende diversi i file uguali quando vengono cifrati con un cifrario a blocchi.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Rimuove un file che ha già il nome del file di output; senza questa opzione tale file resta e non viene scritto nulla.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Chiede una password invece della chiave e del vettore di inizializzazione.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copia la chiave e l&apos;IV negli appunti, da cui vengono rimossi dopo %Ln secondo.</numerusform>
            <numerusform>Copia la chiave e l&apos;IV negli appunti, da cui vengono rimossi dopo %Ln secondi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>Sostituire la chiave e l&apos;IV presenti nei campi?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>La chiave e l&apos;IV restano negli appunti per %Ln secondo.</numerusform>
            <numerusform>La chiave e l&apos;IV restano negli appunti per %Ln secondi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>C&amp;onferma password:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Conferma password</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>&amp;Mostra la password</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Sigilla il file</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Rende lento e costoso indovinare la password, rivela, alla decifratura, ogni modifica successiva del file e comprende un salt.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usa un salt</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>Sov&amp;rascrivi il file di output</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Mostra opzioni avanzate</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Password per cifrare</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Password per decifrare</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Ricordare il nome dell&apos;algoritmo di cifratura e la password. 
Questi dati serviranno per decifrare il file. 
Algoritmo crittografico selezionato: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Inserire la password per decifrare il file. 
Algoritmo crittografico selezionato: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Il blocco maiuscole è attivo.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Lunghezza della password: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Lunghezza della password: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>Le password non corrispondono.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Spiegazione</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Robustezza della password</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>&amp;Genera...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Propone una password di parole o caratteri casuali.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Rende diversi i file uguali quando vengono cifrati con un cifrario a blocchi. Non rende la password più difficile da indovinare.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Rimuove un file che ha già il nome del file di output; senza questa opzione tale file resta e non viene scritto nulla.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Chiede la chiave e il vettore di inizializzazione in formato esadecimale invece di una password.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Nascondi la password</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostra la password</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>Sostituire la password presente nel campo?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e un altro</numerusform>
            <numerusform>e altri %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ggiorna</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Legge di nuovo il testo (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Questo è l&apos;elenco delle scorciatoie da tastiera di %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Qui si può rilasciare solo un file di questo computer.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>Il file rilasciato non è stato trovato.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Si può cifrare o decifrare solo un singolo file, non una cartella o un dispositivo.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>È stato preso solo uno dei file rilasciati.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>File cifrati: %1 di %Ln</numerusform>
            <numerusform>File cifrati: %1 di %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>File decifrati: %1 di %Ln</numerusform>
            <numerusform>File decifrati: %1 di %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln non riuscito</numerusform>
            <numerusform>%Ln non riusciti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln ignorato</numerusform>
            <numerusform>%Ln ignorati</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Operazione interrotta. %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Cartelle e dispositivi sono esclusi: si possono cifrare o decifrare solo file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>«%1» non è stato trovato.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>Non trovati ed esclusi: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>File di input eliminati dopo la loro cifratura, in base alle opzioni: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Conservati: %1, vedere l&apos;elenco.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IV vuoto.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>IV non valido: caratteri esadecimali non validi.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Dimensione dell&apos;IV non valida: inseriti %1 byte.</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Chiave vuota.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Chiave non valida: caratteri esadecimali non validi.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Dimensione della chiave non valida: inseriti %1 byte.</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>Il file di input è stato conservato: è un collegamento simbolico.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>Il file di input è stato conservato: ha un altro nome (collegamento fisico).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>Il file di input è stato conservato: è cambiato da quando è stato cifrato.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>Il file di input è stato conservato: il file di output non corrisponde a ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>Il file di input è stato conservato.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>Eliminare davvero il file di input dopo la cifratura?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Eliminazione del file di input</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>L&apos;algoritmo di cifratura non è definito.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Seleziona il file da cifrare</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>Il file da cifrare non è definito.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>Il file da cifrare non è stato trovato.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>Preparazione del motore di cifratura non riuscita.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>Avvio della cifratura non riuscito.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Cifratura</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>La cifratura del file è stata annullata</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>Il file è stato cifrato correttamente</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>Cifratura del file non riuscita.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>L&apos;algoritmo di decifratura non è definito.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Seleziona il file da decifrare</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>Il file da decifrare non è definito.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>Il file da decifrare non è stato trovato.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>Preparazione del motore di decifratura non riuscita.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>Avvio della decifratura non riuscito.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Decifratura</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>La decifratura del file è stata annullata</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>Il file è stato decifrato correttamente</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>Decifratura del file non riuscita.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>Il file di output è stato eliminato.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>È sigillato.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Era sigillato e non è stato modificato.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Controllare la password e l&apos;algoritmo.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Controllare la chiave, l&apos;IV e l&apos;algoritmo.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>La password e l&apos;algoritmo sono corretti. Provare con un&apos;altra copia del file.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>La chiave, l&apos;IV e l&apos;algoritmo sono corretti. Provare con un&apos;altra copia del file.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>Impossibile eliminare il file di input.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>Il file di input è stato eliminato al termine della cifratura, in base alle opzioni</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Questo file è stato cifrato con %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>Una cifratura/decifratura è già in corso.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>L&apos;input non è un file normale.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definisci il file di output</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>Il file di output non è definito.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>La cartella di output non è stata trovata: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Il nome del file di output coincide con quello del file di input</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>L&apos;output non è un file normale.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Dimensione dell&apos;IV non valida. Inseriti %1 byte</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Dimensione della chiave non valida. Inseriti %1 byte</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>Il file di output esiste già. L&apos;opzione per sovrascriverlo non è selezionata.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Il file system non risponde.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Password non definita</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>Impossibile leggere il file di input %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>Impossibile scrivere il file di output %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>Impossibile elaborare il file %1.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>Impossibile aprire il file di input %1.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>Impossibile rimuovere il precedente file di output %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>Impossibile creare il file di output %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>Impossibile salvare il file di output %1.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>File di testo</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>Impossibile salvare la chiave e l&apos;IV: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>La chiave e l&apos;IV sono stati caricati.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>La chiave e l&apos;IV sono stati salvati per %1. L&apos;algoritmo selezionato è %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Salva la chiave e l&apos;IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>Chiave e IV %1.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>il disco non risponde</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>La chiave e l&apos;IV sono stati salvati. Solo l&apos;utente attuale può leggere il file.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Carica la chiave e l&apos;IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>Il file non contiene una chiave e un IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>La cartella di output predefinita deve essere un percorso assoluto.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>Nessuna cartella di output predefinita indicata: i file vengono messi accanto al rispettivo file di input.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>I file cifrati avrebbero gli stessi nomi dei rispettivi file di input.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>I file decifrati avrebbero gli stessi nomi dei rispettivi file di input.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>I nomi dei file diventerebbero troppo lunghi per un file system.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>Un&apos;estensione che contiene un punto non permette di riconoscere i file.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows e la maggior parte delle chiavette USB non accettano nomi con uno dei caratteri %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>Impossibile salvare le opzioni in %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>Non esiste una traduzione per la lingua scelta.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>Impossibile caricare la traduzione: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>Non viene scritto nulla nel file di log: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>La password contiene un&apos;interruzione di riga.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>La password contiene una tabulazione.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>La password contiene un carattere di controllo.</translation>
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
        <translation>Calcolo della chiave dalla password</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>In attesa che il disco abbia salvato il file</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>%1% elaborato</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>0,000% elaborato.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Tempo rimanente: %1 h %2 min %3 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Tempo rimanente: %1 min %2 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Tempo rimanente: %1 s</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 in %2 s, %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 in meno di un secondo</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Cifra con Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Decifra con Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Apri con Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quillet non si trova più in %1. Avviarlo una volta dalla nuova posizione per correggere questa voce del menu, oppure eliminare la voce:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Cifra i file selezionati</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Decifra i file selezionati</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Apri i file selezionati nella finestra di Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Aggiungi un file da cifrare/decifrare</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Apri la cartella del file di input</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Apri la cartella del file di output</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Avvia la cifratura</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Avvia la decifratura</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Interrompi la cifratura/decifratura</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Cancella i dati inseriti</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Robustezza della password: molto bassa, si indovina subito.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Robustezza della password: bassa, si indovina in poche ore.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Robustezza della password: media, si indovina entro un anno.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Robustezza della password: alta.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Robustezza della password: molto alta.</translation>
    </message>
</context>
</TS>
