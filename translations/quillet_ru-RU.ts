<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>&amp;Действия</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Параметры</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Добавить файл...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Открыть папку с &amp;входным файлом</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Открыть папку с в&amp;ыходным файлом</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Вы&amp;ход</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Зашифровать</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Расшифровать</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>&amp;Остановить шифрование/расшифровку</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>О&amp;чистить введённые данные</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Параметры...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Алгоритм по умолчанию...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>&amp;Сведения об алгоритмах...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Сочетания &amp;клавиш...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;О программе...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>рекомендуется</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>Открыто изучается более двадцати лет: практически осуществимые атаки неизвестны.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>нужно запечатать</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Запечатайте файл или используйте его пароль только для него: без этого все файлы с одним паролем шифруются одним и тем же ключевым потоком, и любые два из них раскрывают друг друга.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>короткие блоки</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>Длина блоков всего 64 бита, поэтому многие гигабайты под одним ключом частично выдают своё содержимое (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>устарел</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>Не допускается для шифрования с 2016 года (NIST SP 800-131A): два его ключа слабее, чем можно ожидать по их длине, а блоки короткие.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>Не допускается для шифрования с 2024 года (NIST SP 800-131A Rev. 2): длина блоков всего 64 бита (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>короткий ключ</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>Длина ключа всего 80 бит, и для шифрования он больше не допускается (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>слабые ключи</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>У каждого ключа есть три равносильных ему, а атаки на связанных ключах взламывают алгоритм (Kelsey, Schneier и Wagner, 1996 и 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>есть атаки</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Атаки на него требуют меньше работы, чем перебор ключей (Isobe, 2011; Dinur, Dunkelman и Shamir, 2012), а длина блоков всего 64 бита.</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>Алгоритм</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>Бит в ключе</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Бит в блоке</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>Параметры не определены</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Размер ключа:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>Размер IV:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Обязательный размер блока:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Режим шифрования:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Потоковый шифр</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Порядок байтов:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>От младшего к старшему</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Хеш-функция для вычисления ключа из пароля:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>Длина хеша не равна длине ключа. Поэтому хеш будет усечён с %1 до %2 байт.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Название алгоритма:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, %2-битный ключ</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, %1-битные блоки</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Шифрует и расшифровывает отдельные файлы выбранным симметричным алгоритмом.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Версия Qt:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Версия Crypto++:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Лицензия:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>См. документацию, которая поставляется с программой.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>Уровень &amp;журнала:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Записывать журна&amp;л в файл</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Файл жур&amp;нала:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Просмотреть файл журнала</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Уровень журнала</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>Наименее важные сообщения, которые попадают в журнал. При OFF не записывается ничего.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Записывает действия программы до указанного выше уровня в файл ниже. Пароли и ключи не записываются никогда.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Файл журнала</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Сведения об алгоритмах</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Параметры выбранных алгоритмов</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Выберите один или несколько алгоритмов, чтобы увидеть их параметры.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Столбцы</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Фильтр:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>Показывает только алгоритмы, у которых в одном из столбцов есть этот текст.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Название, биты или примечание</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>Сначала &amp;рекомендуемые</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Алгоритмы</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Очистить фильтр</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Расшифровать с помощью %1</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>Объект занят</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>Поток данных не задан</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Имя файла не задано</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Файл не найден</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>Не удалось узнать размер файла</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>Не удалось прочитать файл</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>Не удалось прочитать поток данных</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Имя входного файла не задано</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>Входной файл не найден</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Имя выходного файла не задано</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>Выходной файл не найден</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Имя выходного файла совпадает с именем входного</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>Операция остановлена</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>Не удалось вычислить хеш данных</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Данные повреждены</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>Криптографический модуль не инициализирован</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>Файл повреждён или был изменён</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Добавить программу в контекстное &amp;меню</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Добавить программ&amp;у в меню «Отправить»</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>Алгоритм и язык</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>&amp;Выбирать алгоритм по умолчанию при запуске</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>&amp;Алгоритм по умолчанию:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Пароль и ключ</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Показ&amp;ывать пароль</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>Тр&amp;ебовать подтверждение пароля</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>&amp;Расширенный режим: ввод ключа и IV</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>&amp;Запечатывать зашифрованные файлы</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Предлагает запечатывать каждый шифруемый файл: это делает подбор пароля медленным и дорогим, а при расшифровке выявляет любое изменение файла.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Использовать &amp;соль</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Запрашивать подтвер&amp;ждение</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>Перезаписывать вы&amp;ходной файл</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>&amp;Генерировать имя выходного файла</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>Использовать выходную папку по умолча&amp;нию</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>Выходная папка по умол&amp;чанию:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>О&amp;бзор...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Выберите выходную папку по умолчанию</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>Уда&amp;лять входной файл после шифрования</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>Запрашивать подтверждение при удалении входного &amp;файла</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Сочетания клавиш:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Сочетание клавиш</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Добавляет команды «Зашифровать» и «Расшифровать» в меню, которое файловые менеджеры показывают для файла.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Добавляет программу в список мест, куда файловые менеджеры предлагают отправить файл.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Выбирает указанный ниже алгоритм при каждом запуске программы.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Алгоритм по умолчанию</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>При вводе паролей показывает их открытым текстом.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Там, где запрашивается пароль, предлагает вместо него ввести ключ и вектор инициализации в шестнадцатеричном виде.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Предлагает соль для каждого шифруемого файла: благодаря ей одинаковые файлы после шифрования блочным шифром различаются.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>Сохраняется вместе с другими параметрами, но запрос пока нигде не появляется.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Предлагает удалить файл, имя которого совпадает с именем выходного файла; без этого такой файл остаётся и ничего не записывается.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Предлагает имя выходного файла по правилам из раздела «Имена файлов».</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Помещает выходные файлы в указанную ниже папку, а не рядом с входными файлами.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Выходная папка по умолчанию</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Удаляет входной файл, как только его зашифрованная копия записана на диск. В корзину он не попадает.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>&amp;Входной файл:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>В&amp;ыходной файл:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>Файл для шифрования или расшифровки</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>Файл для записи результата</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Выберите входной файл</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Выберите выходной файл</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Зашифровать</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Расшифровать</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Записать зашифрованный файл; входной файл останется без изменений</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Записать расшифрованный файл; входной файл останется без изменений</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Прервать работу; незавершённых файлов не останется</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Перетащите файлы сюда</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>или щёлкните, чтобы выбрать</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Добавить файл для шифрования/расшифровки</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Укажите выходной файл</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Расширение файла</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Суффикс</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Префикс</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Образец</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>&amp;Общие</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Имена файлов</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>&amp;Дополнительно</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>О&amp;К</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Применить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>Параметры применены.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Выходная папка по умолчанию</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>Язык изменится после нажатия «ОК» или «Применить».</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>Не удаётся прочитать файл журнала: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Файл журнала</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Имя зашифрованного файла</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Добавить &amp;расширение:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>Добавить &amp;суффикс:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>Добавить пр&amp;ефикс:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Добавить д&amp;ату</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>Обра&amp;зец:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Имя расшифрованного файла</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>До&amp;бавить расширение:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Добавить су&amp;ффикс:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Доба&amp;вить префикс:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>Добавить дат&amp;у</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>Образе&amp;ц:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Показывает значения по умолчанию для всех параметров, кроме языка. Ничего не меняется до нажатия «ОК» или «Применить».</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Генерация пароля</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Состав:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Состав</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Количество:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Сгенерированный пароль</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Надёжность пароля</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>С&amp;генерировать другой</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Ко&amp;пировать</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>&amp;Использовать этот пароль</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Случайные слова</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Случайные символы</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Помещает пароль в буфер обмена, откуда он будет удалён через %Ln секунду.</numerusform>
            <numerusform>Помещает пароль в буфер обмена, откуда он будет удалён через %Ln секунды.</numerusform>
            <numerusform>Помещает пароль в буфер обмена, откуда он будет удалён через %Ln секунд.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Сбой системного генератора случайных чисел.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln бит.</numerusform>
            <numerusform>%Ln бита.</numerusform>
            <numerusform>%Ln бит.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>Храните его там, где сможете найти: без него файл не расшифровать.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>Пароль будет находиться в буфере обмена %Ln секунду.</numerusform>
            <numerusform>Пароль будет находиться в буфере обмена %Ln секунды.</numerusform>
            <numerusform>Пароль будет находиться в буфере обмена %Ln секунд.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Проверка файлов...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Файловая система не отвечает.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Похоже, файл уже зашифрован.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>Удалить входные файлы после шифрования?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>и ещё %Ln файл</numerusform>
            <numerusform>и ещё %Ln файла</numerusform>
            <numerusform>и ещё %Ln файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Удаление входных файлов</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln файл</numerusform>
            <numerusform>%Ln файла</numerusform>
            <numerusform>%Ln файлов</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Добавить файлы...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Выбрать ещё файлы для списка</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Убрать все файлы из списка; сами файлы останутся на месте</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>Файлы для шифрования или расшифровки</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Клавиша Delete убирает выбранные файлы из списка.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln файл, %1</numerusform>
            <numerusform>%Ln файла, %1</numerusform>
            <numerusform>%Ln файлов, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>Выполняется, %1%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Пропущен</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидает</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>Выходной файл принадлежит другому файлу из списка.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Зашифровать ещё раз</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Похоже, этот файл уже зашифрован</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>Похоже, уже зашифрован %Ln файл (всего файлов: %1).</numerusform>
            <numerusform>Похоже, уже зашифрованы %Ln файла (всего файлов: %1).</numerusform>
            <numerusform>Похоже, уже зашифровано %Ln файлов (всего файлов: %1).</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>То, что зашифровано дважды, нужно и расшифровать дважды.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Пропустить их</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>&amp;Алгоритм:</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Алгоритм</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>Выбрать алгоритм</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Выбор алгоритма шифрования/расшифровки файла</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>&amp;Использовать по умолчанию</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>Алгоритм: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>Выбирает этот алгоритм при каждом запуске программы, если в параметрах не указано иное.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>&amp;Вектор инициализации (IV) (формат HEX):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Вектор инициализации</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>&amp;Ключ (формат HEX):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Ключ</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>С&amp;генерировать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Ко&amp;пировать</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Запечатать файл</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>При расшифровке выявляет любое изменение файла; включает в себя соль.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Использовать соль</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>Пе&amp;резаписать выходной файл</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>Введено: %1 из %2</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Показать простые параметры</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Ключ и IV для шифрования</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Ключ и IV для расшифровки</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Запомните название алгоритма шифрования, ключ и IV. 
Эти данные понадобятся для расшифровки файла. 
Выбранный криптографический алгоритм: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Введите ключ и IV, чтобы расшифровать файл. 
Выбранный криптографический алгоритм: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>&amp;Ключ, длина в байтах: %1 (формат HEX)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>&amp;Вектор инициализации (IV), длина в байтах: %1 (формат HEX)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>Сбой системного генератора случайных чисел.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Скопируйте или сохраните ключ и IV: без них файл не расшифровать.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Пояснение</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Заполняет оба поля случайными байтами.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Записывает ключ и IV без защиты в файл, который можете прочитать только вы.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>З&amp;агрузить...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Считывает ключ и IV, сохранённые в этом окне.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Благодаря соли одинаковые файлы после шифрования блочным шифром различаются.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Удаляет файл, имя которого совпадает с именем выходного файла; без этого такой файл остаётся и ничего не записывается.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Запрашивает пароль вместо ключа и вектора инициализации.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Помещает ключ и IV в буфер обмена, откуда они будут удалены через %Ln секунду.</numerusform>
            <numerusform>Помещает ключ и IV в буфер обмена, откуда они будут удалены через %Ln секунды.</numerusform>
            <numerusform>Помещает ключ и IV в буфер обмена, откуда они будут удалены через %Ln секунд.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>Заменить ключ и IV, указанные в полях?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>Ключ и IV будут находиться в буфере обмена %Ln секунду.</numerusform>
            <numerusform>Ключ и IV будут находиться в буфере обмена %Ln секунды.</numerusform>
            <numerusform>Ключ и IV будут находиться в буфере обмена %Ln секунд.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Пароль:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>Под&amp;тверждение пароля:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Подтверждение пароля</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>П&amp;оказывать пароль</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Запечатать файл</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Делает подбор пароля медленным и дорогим, при расшифровке выявляет любое изменение файла; включает в себя соль.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Использовать соль</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>Пе&amp;резаписать выходной файл</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Показать расширенные параметры</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Пароль для шифрования</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Пароль для расшифровки</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Запомните название алгоритма шифрования и пароль. 
Эти данные понадобятся для расшифровки файла. 
Выбранный криптографический алгоритм: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Введите пароль, чтобы расшифровать файл. 
Выбранный криптографический алгоритм: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>Включён режим Caps Lock.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Длина пароля: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Длина пароля: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>Пароли не совпадают.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Пояснение</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Надёжность пароля</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>С&amp;генерировать...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Предлагает пароль из случайных слов или символов.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Благодаря соли одинаковые файлы после шифрования блочным шифром различаются. Подбор пароля она не усложняет.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Удаляет файл, имя которого совпадает с именем выходного файла; без этого такой файл остаётся и ничего не записывается.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Запрашивает ключ и вектор инициализации в шестнадцатеричном виде вместо пароля.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Скрыть пароль</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>Заменить пароль, указанный в поле?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
            <numerusform>и ещё %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Прочитать текст заново (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Список сочетаний клавиш в %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Сюда можно перетащить только файл с этого компьютера.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>Перетащенный файл не найден.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Зашифровать или расшифровать можно только отдельный файл, но не папку и не устройство.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>Принят только один из перетащенных файлов.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Все файлы</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>Зашифровано файлов: %1 из %Ln</numerusform>
            <numerusform>Зашифровано файлов: %1 из %Ln</numerusform>
            <numerusform>Зашифровано файлов: %1 из %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>Расшифровано файлов: %1 из %Ln</numerusform>
            <numerusform>Расшифровано файлов: %1 из %Ln</numerusform>
            <numerusform>Расшифровано файлов: %1 из %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>с ошибкой: %Ln</numerusform>
            <numerusform>с ошибкой: %Ln</numerusform>
            <numerusform>с ошибкой: %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>пропущено: %Ln</numerusform>
            <numerusform>пропущено: %Ln</numerusform>
            <numerusform>пропущено: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Остановлено. %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Папки и устройства пропущены: зашифровать или расшифровать можно только файлы.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>Файл «%1» не найден.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>Не найдены и пропущены: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>Удалено входных файлов после шифрования согласно параметрам: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Не удалено: %1, см. список.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>Пустой IV.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>Недопустимый IV: неверные шестнадцатеричные символы.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Недопустимый размер IV (введено байтов: %1).</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Пустой ключ.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Недопустимый ключ: неверные шестнадцатеричные символы.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Недопустимый размер ключа (введено байтов: %1).</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>Входной файл не удалён: это символическая ссылка.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>Входной файл не удалён: у него есть другое имя (жёсткая ссылка).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>Входной файл не удалён: он изменился после шифрования.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>Входной файл не удалён: содержимое выходного файла не совпадает с записанным.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>Входной файл не удалён.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>Удалить входной файл после шифрования?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Удаление входного файла</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>Алгоритм шифрования не задан.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Выберите файл для шифрования</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>Файл для шифрования не задан.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>Файл для шифрования не найден.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>Не удалось подготовить модуль шифрования.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>Не удалось начать шифрование.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Шифрование</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>Шифрование файла отменено</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>Файл успешно зашифрован</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>Не удалось зашифровать файл.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>Алгоритм расшифровки не задан.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Выберите файл для расшифровки</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>Файл для расшифровки не задан.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>Файл для расшифровки не найден.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>Не удалось подготовить модуль расшифровки.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>Не удалось начать расшифровку.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Расшифровка</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>Расшифровка файла отменена</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>Файл успешно расшифрован</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>Не удалось расшифровать файл.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>Выходной файл удалён.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>Он запечатан.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Он был запечатан и не изменён.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Проверьте пароль и алгоритм.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Проверьте ключ, IV и алгоритм.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>Пароль и алгоритм верны. Попробуйте другую копию файла.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>Ключ, IV и алгоритм верны. Попробуйте другую копию файла.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>Не удалось удалить входной файл.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>Входной файл удалён после успешного шифрования согласно параметрам</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Этот файл зашифрован алгоритмом %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>Шифрование/расшифровка уже выполняется.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>Входной файл не является обычным файлом.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Укажите выходной файл</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>Выходной файл не задан.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>Выходная папка не найдена: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>Имя выходного файла совпадает с именем входного</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>Выходной файл не является обычным файлом.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Недопустимый размер IV. Введено байтов: %1</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Недопустимый размер ключа. Введено байтов: %1</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>Выходной файл уже существует, а его перезапись не включена.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>Файловая система не отвечает.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Пароль не задан</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>Не удалось прочитать входной файл %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>Не удалось записать выходной файл %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>Не удалось обработать файл %1.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>Не удалось открыть входной файл %1.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>Не удалось удалить прежний выходной файл %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>Не удалось создать выходной файл %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>Не удалось сохранить выходной файл %1.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>Текстовые файлы</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>Не удалось сохранить ключ и IV: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>Ключ и IV загружены.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>Ключ и IV были сохранены для %1. Выбран алгоритм %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Сохранить ключ и IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1, ключ и IV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>диск не отвечает</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>Ключ и IV сохранены. Прочитать файл можете только вы.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Загрузить ключ и IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Не удаётся прочитать файл.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>В файле нет ключа и IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>Выходная папка по умолчанию должна быть указана абсолютным путём.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>Выходная папка по умолчанию не указана: файлы помещаются рядом с входными.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>Зашифрованные файлы получили бы имена своих входных файлов.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>Расшифрованные файлы получили бы имена своих входных файлов.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>Имена файлов станут длиннее, чем допускает файловая система.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>Файлы не распознаются по расширению с точкой внутри.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>Windows и большинство флешек не допускают имён с символами %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>Не удаётся сохранить параметры в %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>Для выбранного языка нет перевода.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>Не удаётся загрузить перевод: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>В файл журнала ничего не записывается: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>Пароль содержит перевод строки.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>Пароль содержит знак табуляции.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>Пароль содержит управляющий символ.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%1/s</source>
        <extracomment>A speed, as in &quot;12 MiB/s&quot;</extracomment>
        <translation>%1/с</translation>
    </message>
    <message>
        <source>Making the key of the password</source>
        <translation>Вычисление ключа из пароля</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>Ожидание, пока диск сохранит файл</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>Обработано %1%</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>Обработано 0,000%.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Осталось: %1 ч %2 мин %3 с</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Осталось: %1 мин %2 с</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Осталось: %1 с</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 за %2 с, %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 менее чем за секунду</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Зашифровать с помощью Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Расшифровать с помощью Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Открыть в Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>Программа Quillet больше не находится в %1. Запустите её один раз с нового места, чтобы исправить этот пункт меню, или удалите его:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Зашифровать выбранные файлы</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Расшифровать выбранные файлы</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Открыть выбранные файлы в окне Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Добавить файл для шифрования/расшифровки</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Открыть папку с входным файлом</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Открыть папку с выходным файлом</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Начать шифрование</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Начать расшифровку</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Остановить шифрование/расшифровку</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Очистить введённые данные</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Надёжность пароля: очень низкая, подберут мгновенно.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Надёжность пароля: низкая, подберут за несколько часов.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Надёжность пароля: средняя, подберут в течение года.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Надёжность пароля: высокая.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Надёжность пароля: очень высокая.</translation>
    </message>
</context>
</TS>
