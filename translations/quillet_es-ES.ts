<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>A&amp;cciones</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Añadir archivo...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Abrir la carpeta del archivo de &amp;entrada</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Abrir la carpeta del archivo de sa&amp;lida</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Cifrar</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Descifrar</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>De&amp;tener el cifrado/descifrado</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>&amp;Borrar los datos introducidos</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opciones...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Algoritmo predeterminado...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>&amp;Información sobre los algoritmos...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>A&amp;tajos de teclado...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>recomendado</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>Examinado públicamente durante más de veinte años: no se conoce ningún ataque viable.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>requiere sello</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Selle el archivo o no use su contraseña para ningún otro: sin sello, todos los archivos con una misma contraseña comparten el flujo de clave, y dos de ellos se revelan mutuamente.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>bloques cortos</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>Sus bloques tienen solo 64 bits, de modo que muchos gigabytes cifrados con una misma clave revelan partes de su contenido (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>obsoleto</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>No se permite para cifrar desde 2016 (NIST SP 800-131A): sus dos claves son más débiles de lo que indica su longitud, y sus bloques son cortos.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>No se permite para cifrar desde 2024 (NIST SP 800-131A Rev. 2): sus bloques tienen solo 64 bits (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>clave corta</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>Su clave tiene solo 80 bits y ya no se permite para cifrar (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>claves débiles</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>Cada clave tiene otras tres que hacen lo mismo, y las claves relacionadas permiten romperlo (Kelsey, Schneier y Wagner, 1996 y 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>ataques conocidos</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Los ataques contra él requieren menos trabajo que probar sus claves (Isobe, 2011; Dinur, Dunkelman y Shamir, 2012), y sus bloques tienen solo 64 bits.</translation>
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
        <translation>Clave (bits)</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Bloque (bits)</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>Los parámetros no están definidos</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Tamaño de la clave:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>Tamaño del IV:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Tamaño de bloque obligatorio:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Modo de cifrado:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Cifrado de flujo</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Orden de los bytes:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>Little-endian</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Función hash para calcular la clave a partir de la contraseña:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>La longitud del hash no es igual a la de la clave. Por ello, el hash se truncará de %1 a %2 bytes.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Nombre del algoritmo:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, clave de %2 bits</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, bloques de %1 bits</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Cifra y descifra archivos individuales con el algoritmo simétrico que se elija.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Versión de Qt:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Versión de Crypto++:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Licencia:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>Consulte la documentación que acompaña al programa.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>Niv&amp;el de registro:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Usar archiv&amp;o de registro</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Archivo de reg&amp;istro:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Ver el archivo de registro</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Nivel de registro</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>Los mensajes menos importantes que se registran. Con OFF no se registra nada.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Escribe lo que hace el programa, hasta el nivel indicado arriba, en el archivo indicado abajo. Nunca se escriben contraseñas ni claves.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Archivo de registro</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Información sobre los algoritmos</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Parámetros de los algoritmos seleccionados</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Seleccione uno o más algoritmos para ver sus parámetros.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
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
        <translation>Muestra solo los algoritmos que contienen este texto en alguna de sus columnas.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Nombre, bits u observación</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>&amp;Recomendados primero</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Algoritmos</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Borrar el filtro</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Descifrar con %1</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>Objeto ocupado</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>Flujo de datos no definido</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Nombre de archivo no definido</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>No se pudo obtener el tamaño del archivo</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>No se pudo leer el archivo</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>No se pudo leer el flujo de datos</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Nombre del archivo de entrada no definido</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>Archivo de entrada no encontrado</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Nombre del archivo de salida no definido</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>Archivo de salida no encontrado</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>El archivo de salida tiene el mismo nombre que el de entrada</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>La operación se ha detenido</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>No se pudo calcular el hash de los datos</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Datos dañados</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>El motor criptográfico no está inicializado</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>El archivo está dañado o se ha modificado</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Integrar el programa en el menú conte&amp;xtual del escritorio</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Añadir el programa al menú «&amp;Enviar a»</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>Algoritmo e idioma</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>Fi&amp;jar el algoritmo predeterminado al iniciar el programa</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>Algoritmo pre&amp;determinado:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Contraseña y clave</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Mostrar la contrase&amp;ña</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>Pedir &amp;que se confirme la contraseña</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>Modo avan&amp;zado para introducir la clave y el IV</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>Se&amp;llar los archivos cifrados</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Propone el sello cada vez que se cifra un archivo: hace que adivinar la contraseña sea lento y costoso, y revela al descifrar cualquier cambio posterior del archivo.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Usa&amp;r sal</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Mostrar el diálogo de con&amp;firmación</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>So&amp;brescribir el archivo de salida</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>Generar aut&amp;omáticamente el nombre del archivo de salida</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>&amp;Usar la carpeta de salida predeterminada</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>Carpe&amp;ta de salida predeterminada:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Exa&amp;minar...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Elegir la carpeta de salida predeterminada</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>Eliminar automáticamente el arc&amp;hivo de entrada tras cifrarlo</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>Pedir confirmación ante&amp;s de eliminar el archivo de entrada</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Atajos de teclado:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Atajo de teclado</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Añade «Cifrar» y «Descifrar» al menú que los gestores de archivos muestran para un archivo.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Añade el programa a los destinos a los que los gestores de archivos permiten enviar un archivo.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Selecciona el algoritmo indicado abajo cada vez que se inicia el programa.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Algoritmo predeterminado</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>Muestra las contraseñas como texto legible mientras se escriben.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Ofrece, donde se pide la contraseña, introducir en su lugar la clave y el vector de inicialización en hexadecimal.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Propone una sal cada vez que se cifra un archivo: hace que archivos iguales sean distintos una vez cifrados con un cifrado de bloques.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>Se guarda con las demás opciones, pero por ahora no se pregunta nada.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Propone eliminar el archivo que ya tenga el nombre del archivo de salida; sin esto, dicho archivo se conserva y no se escribe nada.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Propone el nombre del archivo de salida según las reglas de «Nombres de archivo».</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Guarda los archivos de salida en la carpeta indicada abajo, en lugar de junto a sus archivos de entrada.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Carpeta de salida predeterminada</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Elimina el archivo de entrada una vez que su copia cifrada se ha escrito en el disco. No va a la papelera.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>Archivo de &amp;entrada:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>Archivo de &amp;salida:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>Archivo para cifrar o descifrar</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>Archivo que se escribirá</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Elegir el archivo de entrada</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Elegir el archivo de salida</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Cifrar</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Descifrar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Escribir un archivo cifrado; el de entrada queda como está</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Escribir el archivo que se cifró; el de entrada queda como está</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Terminar el trabajo; no queda nada a medio hacer</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Suelte archivos aquí</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>o haga clic para elegirlos</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Añadir archivo para cifrar/descifrar</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definir el archivo de salida</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Extensión de archivo</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Sufijo</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Prefijo</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Ejemplo</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Nombres de archivo</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vanzado</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;plicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>Se han aplicado las opciones.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Carpeta de salida predeterminada</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>El idioma cambia con «Aceptar» o «Aplicar».</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>No se puede leer el archivo de registro: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Archivo de registro</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Nombre del archivo cifrado</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Añadir e&amp;xtensión:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>Añadir &amp;sufijo:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>Añadir pre&amp;fijo:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Añadir fec&amp;ha</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>Ejemp&amp;lo:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Nombre del archivo descifrado</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>Añadir ex&amp;tensión:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Añadir s&amp;ufijo:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Añadir p&amp;refijo:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>Aña&amp;dir fecha</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>E&amp;jemplo:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar valores</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Muestra el valor predeterminado de todas las opciones salvo el idioma. Nada cambia antes de pulsar «Aceptar» o «Aplicar».</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Generar una contraseña</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Formada por:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Formada por</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>Can&amp;tidad:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Contraseña generada</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Fortaleza de la contraseña</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>&amp;Generar otra</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>&amp;Usar esta contraseña</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Palabras aleatorias</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Caracteres aleatorios</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copia la contraseña en el portapapeles, del que se elimina pasado %Ln segundo.</numerusform>
            <numerusform>Copia la contraseña en el portapapeles, del que se elimina pasados %Ln segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>El generador de números aleatorios del sistema ha fallado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln bit.</numerusform>
            <numerusform>%Ln bits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>Guárdela donde pueda encontrarla: sin ella no se puede descifrar el archivo.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>La contraseña estará en el portapapeles durante %Ln segundo.</numerusform>
            <numerusform>La contraseña estará en el portapapeles durante %Ln segundos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Examinando los archivos...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>El sistema de archivos no responde.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Parece que ya está cifrado.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>¿Seguro que desea eliminar los archivos de entrada después de cifrarlos?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Eliminar los archivos de entrada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Añadir archivos...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Elegir más archivos para la lista</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Quitar todos los archivos de la lista; los archivos en sí se conservan</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>Archivos para cifrar o descifrar</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Supr quita de la lista los archivos seleccionados.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln archivo, %1</numerusform>
            <numerusform>%Ln archivos, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>En curso, %1&#xa0;%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>El archivo de salida pertenece a otro archivo de la lista.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Cifrar de nuevo</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Parece que este archivo ya está cifrado</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>De %1 archivos, parece que %Ln ya está cifrado.</numerusform>
            <numerusform>De %1 archivos, parece que %Ln ya están cifrados.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>Lo que se cifra dos veces debe descifrarse dos veces.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Omitirlos</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>Al&amp;goritmo:</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>Seleccione un algoritmo</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Seleccionar el algoritmo para cifrar/descifrar el archivo</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>&amp;Usar como algoritmo predeterminado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>Algoritmo: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>Selecciona este algoritmo cada vez que se inicia el programa, salvo que las opciones indiquen otra cosa.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>Vector de &amp;inicialización (IV) (formato HEX):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Vector de inicialización</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>C&amp;lave (formato HEX):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Generar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>Guar&amp;dar...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Sellar el archivo</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Revela al descifrar cualquier cambio posterior del archivo, e incluye una sal.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usar sal</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>S&amp;obrescribir el archivo de salida</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>%1 de %2 bytes introducidos</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Mostrar opciones sencillas</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Clave e IV para cifrar</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Clave e IV para descifrar</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Recuerde el nombre del algoritmo de cifrado, la clave y el IV. 
Estos datos serán necesarios para descifrar el archivo. 
Algoritmo criptográfico seleccionado: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Introduzca la clave y el IV para descifrar el archivo. 
Algoritmo criptográfico seleccionado: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>C&amp;lave, longitud: %1 bytes (formato HEX)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>Vector de &amp;inicialización (IV), longitud: %1 bytes (formato HEX)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>El generador de números aleatorios del sistema ha fallado.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Copie o guarde la clave y el IV: sin ellos no se puede descifrar el archivo.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicación</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Llena ambos campos con bytes aleatorios.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Escribe la clave y el IV, sin protección, en un archivo que solo puede leer su cuenta de usuario.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>Carga&amp;r...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Lee una clave y un IV que se guardaron aquí.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Hace que archivos iguales sean distintos una vez cifrados con un cifrado de bloques.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Elimina el archivo que ya tenga el nombre del archivo de salida; sin esto, dicho archivo se conserva y no se escribe nada.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Pide una contraseña en lugar de la clave y el vector de inicialización.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Copia la clave y el IV en el portapapeles, del que se eliminan pasado %Ln segundo.</numerusform>
            <numerusform>Copia la clave y el IV en el portapapeles, del que se eliminan pasados %Ln segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>¿Reemplazar la clave y el IV que hay en los campos?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>La clave y el IV estarán en el portapapeles durante %Ln segundo.</numerusform>
            <numerusform>La clave y el IV estarán en el portapapeles durante %Ln segundos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>Con&amp;firmar la contraseña:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirmar la contraseña</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>&amp;Mostrar la contraseña</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Sellar el archivo</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Hace que adivinar la contraseña sea lento y costoso, revela al descifrar cualquier cambio posterior del archivo e incluye una sal.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usar sal</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>So&amp;brescribir el archivo de salida</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Mostrar opciones avanzadas</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Contraseña para cifrar</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Contraseña para descifrar</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Recuerde el nombre del algoritmo de cifrado y la contraseña. 
Estos datos serán necesarios para descifrar el archivo. 
Algoritmo criptográfico seleccionado: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Introduzca la contraseña para descifrar el archivo. 
Algoritmo criptográfico seleccionado: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Bloq Mayús está activado.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Longitud de la contraseña: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Longitud de la contraseña: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>Las contraseñas no coinciden.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicación</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Fortaleza de la contraseña</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>&amp;Generar...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Propone una contraseña de palabras o caracteres aleatorios.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Hace que archivos iguales sean distintos una vez cifrados con un cifrado de bloques. No hace que la contraseña sea más difícil de adivinar.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Elimina el archivo que ya tenga el nombre del archivo de salida; sin esto, dicho archivo se conserva y no se escribe nada.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Pide la clave y el vector de inicialización en hexadecimal en lugar de una contraseña.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Ocultar la contraseña</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>¿Reemplazar la contraseña que hay en el campo?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Leer el texto de nuevo (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Esta es la lista de los atajos de teclado de %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Aquí solo se pueden soltar archivos de este equipo.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>No se encuentra el archivo que se ha soltado.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Solo se puede cifrar o descifrar un único archivo, no una carpeta ni un dispositivo.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>Solo se ha tomado uno de los archivos soltados.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%1 de %Ln archivo cifrado</numerusform>
            <numerusform>%1 de %Ln archivos cifrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%1 de %Ln archivo descifrado</numerusform>
            <numerusform>%1 de %Ln archivos descifrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln fallido</numerusform>
            <numerusform>%Ln fallidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln omitido</numerusform>
            <numerusform>%Ln omitidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Detenido: %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Las carpetas y los dispositivos se omiten: solo se pueden cifrar o descifrar archivos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>No se encuentra «%1».</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>No encontrados y omitidos: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>Archivos de entrada eliminados tras cifrarlos, según sus opciones: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Conservados: %1, véase la lista.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IV vacío.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>IV no válido: contiene caracteres no hexadecimales.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Tamaño del IV no válido: %1 bytes introducidos.</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Clave vacía.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Clave no válida: contiene caracteres no hexadecimales.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Tamaño de la clave no válido: %1 bytes introducidos.</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>Se ha conservado el archivo de entrada: es un enlace simbólico.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>Se ha conservado el archivo de entrada: tiene otro nombre (enlace duro).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>Se ha conservado el archivo de entrada: ha cambiado desde que se cifró.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>Se ha conservado el archivo de entrada: el archivo de salida no es lo que se escribió.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>Se ha conservado el archivo de entrada.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>¿Seguro que desea eliminar el archivo de entrada después de cifrarlo?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Eliminar el archivo de entrada</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>Algoritmo de cifrado no definido.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Seleccionar archivo para cifrar</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>Archivo para cifrar no definido.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>Archivo para cifrar no encontrado.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>No se pudo preparar el motor de cifrado.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>No se pudo iniciar el cifrado.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Cifrando</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>Se ha cancelado el cifrado del archivo</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>El archivo se ha cifrado correctamente</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>No se pudo cifrar el archivo.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>Algoritmo de descifrado no definido.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Seleccionar archivo para descifrar</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>Archivo para descifrar no definido.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>Archivo para descifrar no encontrado.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>No se pudo preparar el motor de descifrado.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>No se pudo iniciar el descifrado.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Descifrando</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>Se ha cancelado el descifrado del archivo</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>El archivo se ha descifrado correctamente</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>No se pudo descifrar el archivo.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>Se ha eliminado el archivo de salida.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>Está sellado.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Estaba sellado y no ha cambiado.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Compruebe la contraseña y el algoritmo.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Compruebe la clave, el IV y el algoritmo.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>La contraseña y el algoritmo son correctos. Pruebe con otra copia del archivo.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>La clave, el IV y el algoritmo son correctos. Pruebe con otra copia del archivo.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>No se pudo eliminar el archivo de entrada.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>Se ha eliminado el archivo de entrada tras cifrarlo correctamente, según sus opciones</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir la carpeta</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Este archivo se cifró con %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>Ya hay un cifrado o descifrado en curso.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>La entrada no es un archivo normal.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definir el archivo de salida</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>Archivo de salida no definido.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>No se encuentra la carpeta de salida: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>El archivo de salida tiene el mismo nombre que el de entrada</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>La salida no es un archivo normal.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Tamaño del IV no válido. %1 bytes introducidos</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Tamaño de la clave no válido. %1 bytes introducidos</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>El archivo de salida ya existe. No está seleccionado «Sobrescribir el archivo de salida».</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>El sistema de archivos no responde.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Contraseña no definida</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>No se pudo leer el archivo de entrada %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>No se pudo escribir el archivo de salida %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>No se pudo procesar el archivo %1.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>No se pudo abrir el archivo de entrada %1.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>No se pudo eliminar el archivo de salida anterior %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>No se pudo crear el archivo de salida %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>No se pudo guardar el archivo de salida %1.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>Archivos de texto</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>No se pudieron guardar la clave y el IV: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>Se han cargado la clave y el IV.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>La clave y el IV se guardaron para %1. El algoritmo seleccionado es %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Guardar la clave y el IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1 clave e IV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>el disco no responde</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>Se han guardado la clave y el IV. Solo su cuenta de usuario puede leer el archivo.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Cargar la clave y el IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>El archivo no contiene una clave y un IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>La carpeta de salida predeterminada debe ser una ruta absoluta.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>No se ha indicado una carpeta de salida predeterminada: los archivos se guardan junto al de entrada.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>Los archivos cifrados tendrían los nombres de sus archivos de entrada.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>Los archivos descifrados tendrían los nombres de sus archivos de entrada.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>Los nombres de archivo serían más largos de lo que admite un sistema de archivos.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>Los archivos no se reconocen por una extensión que contenga un punto.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows y la mayoría de las memorias USB no admiten nombres con alguno de estos caracteres: %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>No se pueden guardar las opciones en %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>No hay traducción para el idioma elegido.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>No se puede cargar la traducción: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>No se escribe nada en el archivo de registro: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>La contraseña contiene un salto de línea.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>La contraseña contiene un tabulador.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>La contraseña contiene un carácter de control.</translation>
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
        <translation>Calculando la clave a partir de la contraseña</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>Esperando a que el disco guarde el archivo</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>%1&#xa0;% procesado</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>0,000&#xa0;% procesado.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Tiempo restante: %1 h %2 min %3 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Tiempo restante: %1 min %2 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Tiempo restante: %1 s</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 en %2 s, %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 en menos de un segundo</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Cifrar con Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Descifrar con Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Abrir con Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Quillet ya no está en %1. Inícielo una vez desde su nueva ubicación para reparar esta entrada del menú, o elimine la entrada:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Cifrar los archivos seleccionados</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Descifrar los archivos seleccionados</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Abrir los archivos seleccionados en la ventana de Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Añadir archivo para cifrar/descifrar</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Abrir la carpeta del archivo de entrada</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Abrir la carpeta del archivo de salida</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Iniciar el cifrado</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Iniciar el descifrado</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Detener el cifrado/descifrado</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Borrar los datos introducidos</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Fortaleza de la contraseña: muy débil, se adivina al instante.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Fortaleza de la contraseña: débil, se adivina en unas horas.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Fortaleza de la contraseña: aceptable, se adivina en menos de un año.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Fortaleza de la contraseña: fuerte.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Fortaleza de la contraseña: muy fuerte.</translation>
    </message>
</context>
</TS>
