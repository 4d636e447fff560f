<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>&amp;Actions</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Ajouter un fichier...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Ouvrir le dossier du fichier d’&amp;entrée</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Ouvrir le dossier du fichier de &amp;sortie</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Chiffrer</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Déchiffrer</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>&amp;Arrêter le chiffrement/déchiffrement</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>&amp;Effacer les données saisies</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Algorithme par défaut...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>&amp;Informations sur les algorithmes...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>&amp;Raccourcis clavier...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>recommandé</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>Étudié publiquement depuis plus de vingt ans&#xa0;: aucune attaque réalisable n’est connue.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>sceau nécessaire</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Scellez le fichier, ou n’utilisez son mot de passe pour aucun autre&#xa0;: sans sceau, tous les fichiers chiffrés avec un même mot de passe partagent le même flux de clé, et deux d’entre eux suffisent à se révéler l’un l’autre.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>blocs courts</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>Ses blocs ne comptent que 64&#xa0;bits&#xa0;: plusieurs gigaoctets chiffrés avec une même clé trahissent une partie de leur contenu (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>obsolète</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>Interdit pour le chiffrement depuis 2016 (NIST SP 800-131A)&#xa0;: ses deux clés sont moins sûres que leur longueur ne le laisse croire, et ses blocs sont courts.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>Interdit pour le chiffrement depuis 2024 (NIST SP 800-131A Rev. 2)&#xa0;: ses blocs ne comptent que 64&#xa0;bits (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>clé courte</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>Sa clé ne compte que 80&#xa0;bits, et il n’est plus autorisé pour le chiffrement (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>clés faibles</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>Chaque clé en a trois autres qui produisent le même résultat, et des clés apparentées permettent de le casser (Kelsey, Schneier et Wagner, 1996 et 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>attaques connues</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Des attaques connues demandent moins de travail que d’essayer toutes les clés (Isobe, 2011&#xa0;; Dinur, Dunkelman et Shamir, 2012), et ses blocs ne comptent que 64&#xa0;bits.</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>Algorithme</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>Bits de clé</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Bits de bloc</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>Les paramètres ne sont pas définis</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Taille de la clé&#xa0;:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>Taille de l’IV&#xa0;:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Taille de bloc obligatoire&#xa0;:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Mode de chiffrement&#xa0;:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Chiffrement par flot</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Ordre des octets&#xa0;:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>Little-endian</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Fonction de hachage pour calculer la clé à partir du mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>La longueur du hachage est différente de celle de la clé. Le hachage sera donc tronqué de %1 à %2&#xa0;octets.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Nom de l’algorithme&#xa0;:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, clé de %2&#xa0;bits</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, blocs de %1&#xa0;bits</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Chiffre et déchiffre des fichiers un par un avec l’algorithme symétrique de votre choix.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Version de Qt&#xa0;:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Version de Crypto++&#xa0;:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Licence&#xa0;:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>Consultez la documentation fournie avec le programme.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
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
        <translation>Journal</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>Niveau du journa&amp;l&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Utiliser un f&amp;ichier journal</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Fi&amp;chier journal&#xa0;:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Voir le fichier journal</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Niveau du journal</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>Les messages les moins importants qui sont consignés. OFF ne consigne rien.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Écrit dans le fichier ci-dessous ce que fait le programme, jusqu’au niveau indiqué ci-dessus. Les mots de passe et les clés n’y figurent jamais.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Fichier journal</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Informations sur les algorithmes</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Paramètres des algorithmes sélectionnés</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Sélectionnez un ou plusieurs algorithmes pour voir leurs paramètres.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>Fi&amp;ltre&#xa0;:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>N’affiche que les algorithmes dont l’une des colonnes contient ce texte.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Nom, bits ou remarque</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>&amp;Recommandés d’abord</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Algorithmes</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Effacer le filtre</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Déchiffrer avec %1</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>Objet occupé</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>Flux de données non défini</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Nom de fichier non défini</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Échec de l’ouverture du fichier</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>Impossible d’obtenir la taille du fichier</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>Échec de la lecture du fichier</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>Échec de la lecture du flux de données</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Nom du fichier d’entrée non défini</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>Fichier d’entrée introuvable</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Nom du fichier de sortie non défini</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>Fichier de sortie introuvable</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Le fichier de sortie porte le même nom que le fichier d’entrée</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>L’opération a été arrêtée</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>Échec du calcul du hachage des données</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Données corrompues</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>Le moteur cryptographique n’est pas initialisé</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>Le fichier est endommagé ou a été modifié</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Ajouter le programme au menu conte&amp;xtuel</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Ajouter le programme au menu «&#xa0;Envo&amp;yer vers&#xa0;»</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>Algorithme et langue</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>Choisir l’algorit&amp;hme par défaut au démarrage</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>Al&amp;gorithme par défaut&#xa0;:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Mot de passe et clé</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Afficher le &amp;mot de passe</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>Exiger la con&amp;firmation du mot de passe</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>Saisir la clé et l’&amp;IV en mode avancé</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>&amp;Sceller les fichiers chiffrés</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Propose le sceau à chaque chiffrement&#xa0;: deviner le mot de passe devient lent et coûteux, et toute modification ultérieure du fichier est révélée au déchiffrement.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Utiliser un sel</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Afficher la &amp;boîte de confirmation</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>&amp;Remplacer le fichier de sortie</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>Nommer au&amp;tomatiquement le fichier de sortie</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>Utilis&amp;er le dossier de sortie par défaut</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>&amp;Dossier de sortie par défaut&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Par&amp;courir...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Choisir le dossier de sortie par défaut</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>Tou&amp;jours supprimer le fichier d’entrée une fois chiffré</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>C&amp;onfirmer la suppression du fichier d’entrée après le chiffrement</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Touches de raccourci&#xa0;:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Touches de raccourci</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Ajoute Chiffrer et Déchiffrer au menu que les gestionnaires de fichiers affichent pour un fichier.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Ajoute le programme aux destinations vers lesquelles les gestionnaires de fichiers proposent d’envoyer un fichier.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Sélectionne l’algorithme ci-dessous à chaque démarrage du programme.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Algorithme par défaut</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>Affiche les mots de passe en clair pendant la saisie.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Propose, lorsque le mot de passe est demandé, de saisir à la place la clé et le vecteur d’initialisation en hexadécimal.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Propose un sel à chaque chiffrement&#xa0;: des fichiers identiques deviennent différents une fois chiffrés avec un algorithme par blocs.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>Option conservée avec les autres, mais aucune confirmation n’est demandée pour l’instant.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Propose de supprimer un fichier qui porte déjà le nom du fichier de sortie&#xa0;; sans cette option, ce fichier est conservé et rien n’est écrit.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Propose le nom du fichier de sortie selon les règles de l’onglet «&#xa0;Noms de fichiers&#xa0;».</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Place les fichiers de sortie dans le dossier ci-dessous plutôt qu’à côté de leurs fichiers d’entrée.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Dossier de sortie par défaut</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Supprime le fichier d’entrée une fois sa copie chiffrée écrite sur le disque. Il n’est pas placé dans la corbeille.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>Fichier d’e&amp;ntrée&#xa0;:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>Fichier de &amp;sortie&#xa0;:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>Fichier à chiffrer ou à déchiffrer</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>Fichier à écrire</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Choisir le fichier d’entrée</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Choisir le fichier de sortie</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Chiffrer</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Déchiffrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Écrire un fichier chiffré&#xa0;; le fichier d’entrée reste inchangé</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Écrire le fichier d’origine déchiffré&#xa0;; le fichier d’entrée reste inchangé</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Mettre fin au traitement&#xa0;; rien d’inachevé ne subsiste</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Déposez des fichiers ici</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>ou cliquez pour choisir</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Ajouter un fichier à chiffrer/déchiffrer</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Définir le fichier de sortie</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Extension de fichier</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Suffixe</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Préfixe</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemple</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>&amp;Paramètres généraux</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Noms de fichiers</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vancé</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>Les options ont été appliquées.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Dossier de sortie par défaut</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>La langue change avec OK ou Appliquer.</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>Impossible de lire le fichier journal&#xa0;: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Fichier journal</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Nom du fichier chiffré</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Ajouter une e&amp;xtension&#xa0;:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>Ajouter un &amp;suffixe&#xa0;:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>Ajouter un pré&amp;fixe&#xa0;:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Ajouter la &amp;date</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>&amp;Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Nom du fichier déchiffré</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>Ajouter une ex&amp;tension&#xa0;:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Ajouter un s&amp;uffixe&#xa0;:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Ajouter un p&amp;réfixe&#xa0;:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>A&amp;jouter la date</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>Exe&amp;mple&#xa0;:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Affiche la valeur par défaut de chaque option, sauf la langue. Rien ne change avant OK ou Appliquer.</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Générer un mot de passe</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Composé de&#xa0;:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Composé de</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Mot de passe généré</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Robustesse du mot de passe</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>&amp;Générer un autre</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>&amp;Utiliser ce mot de passe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Mots aléatoires</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Caractères aléatoires</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copie le mot de passe dans le presse-papiers, d’où il est retiré au bout de %Ln&#xa0;seconde.</numerusform>
            <numerusform>Copie le mot de passe dans le presse-papiers, d’où il est retiré au bout de %Ln&#xa0;secondes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Le générateur aléatoire du système a échoué.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln&#xa0;bit.</numerusform>
            <numerusform>%Ln&#xa0;bits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>Conservez-le là où vous le retrouverez&#xa0;: sans lui, le fichier ne peut pas être déchiffré.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>Le mot de passe est dans le presse-papiers pour %Ln&#xa0;seconde.</numerusform>
            <numerusform>Le mot de passe est dans le presse-papiers pour %Ln&#xa0;secondes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Examen des fichiers...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Le système de fichiers ne répond pas.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Il semble déjà chiffré.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>Voulez-vous vraiment supprimer les fichiers d’entrée après le chiffrement&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Suppression des fichiers d’entrée</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln&#xa0;fichier</numerusform>
            <numerusform>%Ln&#xa0;fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Ajouter des fichiers...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Choisir d’autres fichiers pour la liste</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Retirer tous les fichiers de la liste&#xa0;; les fichiers eux-mêmes sont conservés</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>Fichiers à chiffrer ou à déchiffrer</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Suppr retire de la liste les fichiers sélectionnés.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln&#xa0;fichier, %1</numerusform>
            <numerusform>%Ln&#xa0;fichiers, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>En cours, %1&#xa0;%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignoré</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>Ce fichier de sortie est celui d’un autre fichier de la liste.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Chiffrer à nouveau</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Ce fichier semble déjà chiffré</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>Sur %1&#xa0;fichiers, %Ln semble déjà chiffré.</numerusform>
            <numerusform>Sur %1&#xa0;fichiers, %Ln semblent déjà chiffrés.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>Ce qui est chiffré deux fois doit être déchiffré deux fois.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Les ignorer</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>A&amp;lgorithme&#xa0;:</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algorithme</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>Sélectionner un algorithme</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Sélectionner l’algorithme de chiffrement/déchiffrement</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>&amp;Utiliser comme algorithme par défaut</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>Algorithme&#xa0;: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>Sélectionne cet algorithme à chaque démarrage du programme, sauf indication contraire dans les options.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>&amp;Vecteur d’initialisation (IV) (format HEX)&#xa0;:</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Vecteur d’initialisation</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>C&amp;lé (format HEX)&#xa0;:</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Générer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Sceller le fichier</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Révèle au déchiffrement toute modification ultérieure du fichier, et comprend un sel.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Utiliser un sel</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>&amp;Remplacer le fichier de sortie</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>Octets saisis&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Afficher les options simples</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Clé et IV de chiffrement</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Clé et IV de déchiffrement</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Retenez le nom de l’algorithme de chiffrement, la clé et l’IV. 
Ces données seront nécessaires pour déchiffrer le fichier. 
Algorithme cryptographique sélectionné&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Saisissez la clé et l’IV pour déchiffrer le fichier. 
Algorithme cryptographique sélectionné&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>C&amp;lé, longueur&#xa0;: %1&#xa0;octets (format HEX)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>&amp;Vecteur d’initialisation (IV), longueur&#xa0;: %1&#xa0;octets (format HEX)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Le générateur aléatoire du système a échoué.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Copiez ou enregistrez la clé et l’IV&#xa0;: sans eux, le fichier ne peut pas être déchiffré.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Remplit les deux champs avec des octets aléatoires.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Écrit la clé et l’IV, sans protection, dans un fichier que vous seul pouvez lire.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>C&amp;harger...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Lit une clé et un IV enregistrés ici.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Rend différents des fichiers identiques une fois chiffrés avec un algorithme par blocs.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Supprime un fichier qui porte déjà le nom du fichier de sortie&#xa0;; sans cette option, ce fichier est conservé et rien n’est écrit.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Demande un mot de passe au lieu de la clé et du vecteur d’initialisation.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copie la clé et l’IV dans le presse-papiers, d’où ils sont retirés au bout de %Ln&#xa0;seconde.</numerusform>
            <numerusform>Copie la clé et l’IV dans le presse-papiers, d’où ils sont retirés au bout de %Ln&#xa0;secondes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>Remplacer la clé et l’IV présents dans les champs&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>La clé et l’IV sont dans le presse-papiers pour %Ln&#xa0;seconde.</numerusform>
            <numerusform>La clé et l’IV sont dans le presse-papiers pour %Ln&#xa0;secondes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>C&amp;onfirmer le mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>&amp;Afficher le mot de passe</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Sceller le fichier</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Rend lent et coûteux de deviner le mot de passe, révèle au déchiffrement toute modification ultérieure du fichier, et comprend un sel.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Utiliser un sel</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>&amp;Remplacer le fichier de sortie</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Afficher les options avancées</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Mot de passe de chiffrement</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Mot de passe de déchiffrement</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Retenez le nom de l’algorithme de chiffrement et le mot de passe. 
Ces données seront nécessaires pour déchiffrer le fichier. 
Algorithme cryptographique sélectionné&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Saisissez le mot de passe pour déchiffrer le fichier. 
Algorithme cryptographique sélectionné&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Verr. Maj est activé.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Longueur du mot de passe&#xa0;: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Longueur du mot de passe&#xa0;: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>Les mots de passe ne correspondent pas.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Robustesse du mot de passe</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>&amp;Générer...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Propose un mot de passe composé de mots ou de caractères aléatoires.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Rend différents des fichiers identiques une fois chiffrés avec un algorithme par blocs. Le mot de passe n’en devient pas plus difficile à deviner.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Supprime un fichier qui porte déjà le nom du fichier de sortie&#xa0;; sans cette option, ce fichier est conservé et rien n’est écrit.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Demande la clé et le vecteur d’initialisation en hexadécimal au lieu d’un mot de passe.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>Remplacer le mot de passe présent dans le champ&#xa0;?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Relire le texte (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Voici la liste des raccourcis clavier de %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Seul un fichier de cet ordinateur peut être déposé ici.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>Le fichier déposé est introuvable.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Seul un fichier peut être chiffré ou déchiffré, pas un dossier ni un périphérique.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>Un seul des fichiers déposés a été retenu.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>Fichier chiffré&#xa0;: %1 sur %Ln</numerusform>
            <numerusform>Fichiers chiffrés&#xa0;: %1 sur %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>Fichier déchiffré&#xa0;: %1 sur %Ln</numerusform>
            <numerusform>Fichiers déchiffrés&#xa0;: %1 sur %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln&#xa0;échec</numerusform>
            <numerusform>%Ln&#xa0;échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln&#xa0;ignoré</numerusform>
            <numerusform>%Ln&#xa0;ignorés</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Opération arrêtée. %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Les dossiers et les périphériques sont ignorés&#xa0;: seuls des fichiers peuvent être chiffrés ou déchiffrés.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>Introuvables et ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>Fichiers d’entrée supprimés après leur chiffrement, conformément à vos options&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Conservés&#xa0;: %1, voir la liste.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IV vide.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>IV non valide&#xa0;: caractères hexadécimaux incorrects.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Taille d’IV non valide (octets saisis&#xa0;: %1).</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Clé vide.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Clé non valide&#xa0;: caractères hexadécimaux incorrects.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Taille de clé non valide (octets saisis&#xa0;: %1).</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>Le fichier d’entrée a été conservé&#xa0;: c’est un lien symbolique.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>Le fichier d’entrée a été conservé&#xa0;: il porte un autre nom (lien physique).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>Le fichier d’entrée a été conservé&#xa0;: il a été modifié depuis son chiffrement.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>Le fichier d’entrée a été conservé&#xa0;: le fichier de sortie ne correspond pas à ce qui a été écrit.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>Le fichier d’entrée a été conservé.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>Voulez-vous vraiment supprimer le fichier d’entrée après le chiffrement&#xa0;?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Suppression du fichier d’entrée</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>L’algorithme de chiffrement n’est pas défini.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Sélectionner le fichier à chiffrer</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>Le fichier à chiffrer n’est pas défini.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>Le fichier à chiffrer est introuvable.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>Échec de la préparation du moteur de chiffrement.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>Échec du démarrage du chiffrement.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>Le chiffrement du fichier a été annulé</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>Le fichier a été chiffré avec succès</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>Échec du chiffrement du fichier.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>L’algorithme de déchiffrement n’est pas défini.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Sélectionner le fichier à déchiffrer</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>Le fichier à déchiffrer n’est pas défini.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>Le fichier à déchiffrer est introuvable.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>Échec de la préparation du moteur de déchiffrement.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>Échec du démarrage du déchiffrement.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Déchiffrement</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>Le déchiffrement du fichier a été annulé</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>Le fichier a été déchiffré avec succès</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>Échec du déchiffrement du fichier.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>Le fichier de sortie a été supprimé.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>Il est scellé.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Il était scellé et n’a pas été modifié.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Vérifiez le mot de passe et l’algorithme.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Vérifiez la clé, l’IV et l’algorithme.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>Le mot de passe et l’algorithme sont corrects. Essayez une autre copie du fichier.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>La clé, l’IV et l’algorithme sont corrects. Essayez une autre copie du fichier.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>Le fichier d’entrée n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>Le fichier d’entrée a été supprimé une fois le chiffrement réussi, conformément à vos options</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Ce fichier a été chiffré avec %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>Un chiffrement/déchiffrement est déjà en cours.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>L’entrée n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Définir le fichier de sortie</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>Le fichier de sortie n’est pas défini.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>Le dossier de sortie est introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Le fichier de sortie porte le même nom que le fichier d’entrée</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>La sortie n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Taille d’IV non valide (octets saisis&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Taille de clé non valide (octets saisis&#xa0;: %1)</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>Le fichier de sortie existe déjà. L’option «&#xa0;Remplacer le fichier de sortie&#xa0;» n’est pas activée.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Le système de fichiers ne répond pas.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Mot de passe non défini</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>Le fichier d’entrée %1 n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>Le fichier de sortie %1 n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>Le fichier %1 n’a pas pu être traité.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>Le fichier d’entrée %1 n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>L’ancien fichier de sortie %1 n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>Le fichier de sortie %1 n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>Le fichier de sortie %1 n’a pas pu être enregistré.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>La clé et l’IV n’ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>La clé et l’IV ont été chargés.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>La clé et l’IV ont été enregistrés pour %1. L’algorithme sélectionné est %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Enregistrer la clé et l’IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>Clé et IV %1.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>le disque ne répond pas</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>La clé et l’IV ont été enregistrés. Vous seul pouvez lire le fichier.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Charger la clé et l’IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>Le fichier ne contient pas de clé ni d’IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>Le dossier de sortie par défaut doit être un chemin absolu.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>Aucun dossier de sortie par défaut n’est indiqué&#xa0;: les fichiers sont placés à côté de leur fichier d’entrée.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>Les fichiers chiffrés prendraient le nom de leur fichier d’entrée.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>Les fichiers déchiffrés prendraient le nom de leur fichier d’entrée.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>Les noms de fichiers deviendraient trop longs pour un système de fichiers.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>Une extension qui contient un point ne permet pas de reconnaître les fichiers.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows et la plupart des clés USB n’acceptent pas les noms contenant l’un des caractères %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>Les options ne peuvent pas être enregistrées dans %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>Il n’existe pas de traduction pour la langue choisie.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>Impossible de charger la traduction&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>Rien n’est écrit dans le fichier journal&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>Le mot de passe contient un saut de ligne.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>Le mot de passe contient une tabulation.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>Le mot de passe contient un caractère de contrôle.</translation>
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
        <translation>Calcul de la clé à partir du mot de passe</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>En attente de l’enregistrement du fichier sur le disque</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>Traité&#xa0;: %1&#xa0;%</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>Traité&#xa0;: 0,000&#xa0;%.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Temps restant&#xa0;: %1&#xa0;h %2&#xa0;min %3&#xa0;s</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Temps restant&#xa0;: %1&#xa0;min %2&#xa0;s</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Temps restant&#xa0;: %1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 en %2&#xa0;s, %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 en moins d’une seconde</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Chiffrer avec Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Déchiffrer avec Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Ouvrir avec Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quillet n’est plus à l’emplacement %1. Lancez-le une fois depuis son nouvel emplacement pour réparer cette entrée du menu, ou supprimez l’entrée&#xa0;:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Chiffrer les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Déchiffrer les fichiers sélectionnés</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Ouvrir les fichiers sélectionnés dans la fenêtre de Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Ajouter un fichier à chiffrer/déchiffrer</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Ouvrir le dossier du fichier d’entrée</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Ouvrir le dossier du fichier de sortie</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Démarrer le chiffrement</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Démarrer le déchiffrement</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Arrêter le chiffrement/déchiffrement</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Effacer les données saisies</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Robustesse du mot de passe&#xa0;: très faible, deviné immédiatement.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Robustesse du mot de passe&#xa0;: faible, deviné en quelques heures.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Robustesse du mot de passe&#xa0;: moyenne, deviné en moins d’un an.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Robustesse du mot de passe&#xa0;: élevée.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Robustesse du mot de passe&#xa0;: très élevée.</translation>
    </message>
</context>
</TS>
