<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_SA" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>ملف (&amp;F)</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>إجراءات (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>خيارات (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>شريط الأدوات</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>إضافة ملف (&amp;A)...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>فتح مجلد ملف الإدخال (&amp;I)</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>فتح مجلد ملف الإخراج (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إنهاء (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>تشفير (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>فك التشفير (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>إيقاف التشفير/فك التشفير (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>مسح البيانات المُدخلة (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>الخيارات (&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>الخوارزمية الافتراضية (&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>معلومات عن الخوارزميات (&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>اختصارات لوحة المفاتيح (&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>حول البرنامج (&amp;A)...</translation>
    </message>
</context>
<context>
    <name>AlgAdviceText</name>
    <message>
        <source>recommended</source>
        <translation>موصى بها</translation>
    </message>
    <message>
        <source>Examined in public for more than twenty years: no practical attack is known.</source>
        <translation>خضعت للفحص العلني أكثر من عشرين عامًا، ولا يُعرف أي هجوم عملي عليها.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>تحتاج إلى ختم</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>اختم الملف، أو لا تستخدم كلمة مروره لأي ملف آخر: فمن دون ختم تشترك كل الملفات ذات كلمة المرور الواحدة في تدفق مفاتيح واحد، وأي ملفين منها يكشف أحدهما الآخر.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>كتل قصيرة</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>لا يتجاوز طول كتلها 64 بت، ولذلك فإن تشفير غيغابايتات كثيرة بمفتاح واحد يكشف أجزاء من محتواها (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>قديمة</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>غير مسموح بها للتشفير منذ عام 2016 (NIST SP 800-131A): فمفتاحاها أضعف مما يوحي به طولهما، وكتلها قصيرة.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>غير مسموح بها للتشفير منذ عام 2024 (NIST SP 800-131A Rev. 2): لا يتجاوز طول كتلها 64 بت (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>مفتاح قصير</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>لا يتجاوز طول مفتاحها 80 بت، ولم يعد مسموحًا بها للتشفير (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>مفاتيح ضعيفة</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>لكل مفتاح ثلاثة مفاتيح أخرى تؤدي عمله نفسه، ويمكن كسرها بمفاتيح مترابطة (Kelsey وSchneier وWagner، 1996 و1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>هجمات معروفة</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>تتطلب مهاجمتها جهدًا أقل من تجربة مفاتيحها (Isobe، 2011؛ Dinur وDunkelman وShamir، 2012)، ولا يتجاوز طول كتلها 64 بت.</translation>
    </message>
</context>
<context>
    <name>AlgColumns</name>
    <message>
        <source>Algorithm</source>
        <translation>الخوارزمية</translation>
    </message>
    <message>
        <source>Key bits</source>
        <translation>بتات المفتاح</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>بتات الكتلة</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>ملاحظة</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>المعاملات غير محددة</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>حجم المفتاح:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>حجم متجه التهيئة:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>حجم الكتلة الإلزامي:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>نمط التشفير:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>تشفير تدفقي</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>ترتيب البايتات:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>الأصغر أولًا</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>دالة التجزئة لحساب المفتاح من كلمة المرور:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>طول التجزئة لا يساوي طول المفتاح، ولذلك ستُقتطع التجزئة من %1 إلى %2 بايت.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>اسم الخوارزمية:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>‏%1، المفتاح %2 بت</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>، الكتل %1 بت</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>يشفّر الملفات المفردة ويفك تشفيرها بخوارزمية متماثلة من اختيارك.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>إصدار Qt:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>إصدار Crypto++:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>الرخصة:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>راجع الوثائق المرفقة مع البرنامج.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>حول %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
</context>
<context>
    <name>CAdvancedOptionsFrame</name>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>&amp;Logger level:</source>
        <translation>مستوى التسجيل (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>استخدام ملف السجل (&amp;W)</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>ملف السجل (&amp;K):</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>عرض ملف السجل</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>مستوى التسجيل</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>أقل الرسائل أهمية مما يُسجَّل. مع OFF لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>يكتب ما يفعله البرنامج، حتى المستوى أعلاه، في الملف أدناه. لا تُكتب كلمات المرور والمفاتيح أبدًا.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ملف السجل</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>معلومات عن الخوارزميات</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>معاملات الخوارزميات المحددة</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>حدد خوارزمية واحدة أو أكثر لعرض معاملاتها.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>الأعمدة</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>تصفية (&amp;F):</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>تصفية</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>لا يعرض إلا الخوارزميات التي يحتوي أحد أعمدتها على هذا النص.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>الاسم أو البتات أو الملاحظة</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>الموصى بها أولًا (&amp;R)</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>الخوارزميات</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>مسح التصفية</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>فك التشفير باستخدام %1</translation>
    </message>
</context>
<context>
    <name>CErrMsg</name>
    <message>
        <source>Object busy</source>
        <translation>الكائن مشغول</translation>
    </message>
    <message>
        <source>Data stream not defined</source>
        <translation>تدفق البيانات غير محدد</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>اسم الملف غير محدد</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>لم يُعثر على الملف</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>تعذّر فتح الملف</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>تعذّرت معرفة حجم الملف</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>تعذّرت قراءة الملف</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>تعذّرت قراءة تدفق البيانات</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>اسم ملف الإدخال غير محدد</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>لم يُعثر على ملف الإدخال</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>اسم ملف الإخراج غير محدد</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>لم يُعثر على ملف الإخراج</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>اسم ملف الإخراج مطابق لاسم ملف الإدخال</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>تم إيقاف العملية</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>تعذّر حساب تجزئة البيانات</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>البيانات تالفة</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>لم تتم تهيئة محرك التشفير</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>الملف تالف أو تم تغييره</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>دمج البرنامج في القائمة السياقية للملفات (&amp;X)</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>إضافة البرنامج إلى قائمة «إرسال إلى» (&amp;S)</translation>
    </message>
    <message>
        <source>Algorithm and language</source>
        <translation>الخوارزمية واللغة</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>اللغة (&amp;L):</translation>
    </message>
    <message>
        <source>Set default algorit&amp;hm at starting of program</source>
        <translation>تحديد الخوارزمية الافتراضية عند بدء البرنامج (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>الخوارزمية الافتراضية (&amp;D):</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>كلمة المرور والمفتاح</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>إظهار كلمة المرور (&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>طلب تأكيد كلمة المرور (&amp;Q)</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>الوضع المتقدم لإدخال المفتاح ومتجه التهيئة (&amp;K)</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>ختم الملفات المشفّرة (&amp;I)</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>يقترح الختم عند تشفير أي ملف: فهو يجعل تخمين كلمة المرور بطيئًا ومكلفًا، ويكشف عند فك التشفير أي تغيير لاحق في الملف.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>استخدام ملح التشفير (&amp;U)</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>إظهار مربع حوار التأكيد (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>الكتابة فوق ملف الإخراج (&amp;R)</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>توليد اسم ملف الإخراج تلقائيًا (&amp;N)</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>استخدام مجلد الإخراج الافتراضي (&amp;P)</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>مجلد الإخراج الافتراضي (&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>اختيار مجلد الإخراج الافتراضي</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>حذف ملف الإدخال تلقائيًا بعد التشفير (&amp;E)</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>طلب تأكيد حذف ملف الإدخال بعد التشفير (&amp;Y)</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>مفاتيح الاختصار:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>مفتاح الاختصار</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>يضيف «تشفير» و«فك التشفير» إلى القائمة التي تعرضها مديرات الملفات للملف.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>يضيف البرنامج إلى الوجهات التي تعرض مديرات الملفات إرسال الملف إليها.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>يحدد الخوارزمية أدناه كلما بدأ البرنامج.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>الخوارزمية الافتراضية</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>يعرض كلمات المرور نصًا واضحًا عند كتابتها.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>يتيح، حيث تُطلب كلمة المرور، إدخال المفتاح ومتجه التهيئة بالنظام الست عشري بدلًا منها.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>يقترح ملح التشفير عند تشفير أي ملف: فهو يجعل الملفات المتطابقة تختلف بعد تشفيرها بتشفير كتلي.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>يُحفظ مع بقية الخيارات، لكن لا شيء يطلب التأكيد حتى الآن.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>يقترح إزالة أي ملف موجود يحمل اسم ملف الإخراج؛ ومن دونه يبقى ذلك الملف ولا يُكتب شيء.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>يقترح اسم ملف الإخراج وفق القواعد الواردة في «أسماء الملفات».</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>يضع ملفات الإخراج في المجلد أدناه بدلًا من وضعها بجانب ملفات الإدخال.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>مجلد الإخراج الافتراضي</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>يحذف ملف الإدخال بعد كتابة نسخته المشفّرة على القرص، ولا ينقله إلى سلة المهملات.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>ملف الإدخال (&amp;I):</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>ملف الإخراج (&amp;P):</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>الملف المراد تشفيره أو فك تشفيره</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>الملف المراد كتابته</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>اختيار ملف الإدخال</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>اختيار ملف الإخراج</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>تشفير</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>فك التشفير</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>كتابة ملف مشفّر، ويبقى ملف الإدخال كما هو</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>كتابة الملف الأصلي الذي شُفّر، ويبقى ملف الإدخال كما هو</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>إنهاء العمل دون ترك أي ناتج غير مكتمل</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>أفلت الملفات هنا</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>أو انقر للاختيار</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>إضافة ملف للتشفير/فك التشفير</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>تحديد ملف الإخراج</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>امتداد الملف</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>اللاحقة</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>البادئة</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>مثال</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>الإعدادات العامة (&amp;G)</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>أسماء الملفات (&amp;F)</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>متقدم (&amp;V)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>موافق (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>تطبيق (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>تم تطبيق الخيارات.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>مجلد الإخراج الافتراضي</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>تتغير اللغة عند النقر على «موافق» أو «تطبيق».</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>تتعذّر قراءة ملف السجل: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ملف السجل</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>اسم الملف المشفّر</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>إضافة امتداد الملف (&amp;I):</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>إضافة لاحقة (&amp;S):</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>إضافة بادئة (&amp;P):</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>إضافة التاريخ (&amp;E)</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>مثال (&amp;L):</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>اسم الملف بعد فك التشفير</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>إضافة امتداد الملف (&amp;T):</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>إضافة لاحقة (&amp;U):</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>إضافة بادئة (&amp;R):</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>إضافة التاريخ (&amp;D)</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>مثال (&amp;M):</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>استعادة الافتراضيات</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>يعرض القيمة الافتراضية لكل خيار باستثناء اللغة. لا يتغير شيء قبل النقر على «موافق» أو «تطبيق».</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>توليد كلمة مرور</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>مكوّنة من (&amp;M):</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>مكوّنة من</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>العدد (&amp;N):</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>العدد</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>كلمة المرور المولّدة</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>قوة كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>توليد أخرى (&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>استخدام كلمة المرور هذه (&amp;U)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>كلمات عشوائية</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>محارف عشوائية</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد %Ln ثانية.</numerusform>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد ثانية واحدة.</numerusform>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد ثانيتين.</numerusform>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد %Ln ثوانٍ.</numerusform>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد %Ln ثانية.</numerusform>
            <numerusform>ينسخ كلمة المرور إلى الحافظة، وتُزال منها بعد %Ln ثانية.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>تعطّل مولّد الأرقام العشوائية في النظام.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>‏%Ln بت.</numerusform>
            <numerusform>بت واحد.</numerusform>
            <numerusform>بتان.</numerusform>
            <numerusform>‏%Ln بتات.</numerusform>
            <numerusform>‏%Ln بتًا.</numerusform>
            <numerusform>‏%Ln بت.</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep it where you will find it: without it the file cannot be decrypted.</source>
        <translation>احفظها حيث يمكنك العثور عليها: فلا يمكن فك تشفير الملف من دونها.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة %Ln ثانية.</numerusform>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة ثانية واحدة.</numerusform>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة ثانيتين.</numerusform>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة %Ln ثوانٍ.</numerusform>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة %Ln ثانية.</numerusform>
            <numerusform>ستبقى كلمة المرور في الحافظة لمدة %Ln ثانية.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>جارٍ تفقّد الملفات...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>نظام الملفات لا يستجيب.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>يبدو أنه مشفّر بالفعل.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>‏%1 من %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>هل تريد بالتأكيد حذف ملفات الإدخال بعد التشفير؟</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ولا ملفات أخرى</numerusform>
            <numerusform>وملف آخر</numerusform>
            <numerusform>وملفان آخران</numerusform>
            <numerusform>و%Ln ملفات أخرى</numerusform>
            <numerusform>و%Ln ملفًا آخر</numerusform>
            <numerusform>و%Ln ملف آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>حذف ملفات الإدخال</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>لا توجد ملفات</numerusform>
            <numerusform>ملف واحد</numerusform>
            <numerusform>ملفان</numerusform>
            <numerusform>‏%Ln ملفات</numerusform>
            <numerusform>‏%Ln ملفًا</numerusform>
            <numerusform>‏%Ln ملف</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>إضافة ملفات...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>اختيار مزيد من الملفات للقائمة</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>إزالة كل الملفات من القائمة، وتبقى الملفات نفسها</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>الملفات المراد تشفيرها أو فك تشفيرها</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>يزيل المفتاح Delete الملفات المحددة من القائمة.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>لا توجد ملفات، %1</numerusform>
            <numerusform>ملف واحد، %1</numerusform>
            <numerusform>ملفان، %1</numerusform>
            <numerusform>‏%Ln ملفات، %1</numerusform>
            <numerusform>‏%Ln ملفًا، %1</numerusform>
            <numerusform>‏%Ln ملف، %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>قيد التنفيذ، %1٪</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>تم التخطي</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
</context>
<context>
    <name>CQueueRun</name>
    <message>
        <source>The output belongs to another file of the list.</source>
        <translation>ملف الإخراج يخص ملفًا آخر في القائمة.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>تم الإيقاف</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>التشفير مرة أخرى</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>يبدو أن هذا الملف مشفّر بالفعل</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>عدد الملفات %1، ولا يبدو أي منها مشفّرًا بالفعل.</numerusform>
            <numerusform>عدد الملفات %1، ويبدو أن ملفًا واحدًا منها مشفّر بالفعل.</numerusform>
            <numerusform>عدد الملفات %1، ويبدو أن ملفين منها مشفّران بالفعل.</numerusform>
            <numerusform>عدد الملفات %1، ويبدو أن %Ln ملفات منها مشفّرة بالفعل.</numerusform>
            <numerusform>عدد الملفات %1، ويبدو أن %Ln ملفًا منها مشفّرة بالفعل.</numerusform>
            <numerusform>عدد الملفات %1، ويبدو أن %Ln ملف منها مشفّرة بالفعل.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>ما يُشفّر مرتين يجب فك تشفيره مرتين.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>استبعادها</translation>
    </message>
</context>
<context>
    <name>CSelectAlgFrame</name>
    <message>
        <source>&amp;Algorithm:</source>
        <translation>الخوارزمية (&amp;A):</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>الخوارزمية</translation>
    </message>
    <message>
        <source>Select an algorithm</source>
        <translation>تحديد خوارزمية</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>تحديد خوارزمية تشفير الملف/فك تشفيره</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>استخدامها خوارزميةً افتراضية (&amp;U)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Algorithm: %1</source>
        <translation>الخوارزمية: %1</translation>
    </message>
    <message>
        <source>Selects this algorithm whenever the program starts, unless the options say otherwise.</source>
        <translation>يحدد هذه الخوارزمية كلما بدأ البرنامج، ما لم تنص الخيارات على غير ذلك.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>متجه التهيئة (IV) (بصيغة HEX) (&amp;I):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>متجه التهيئة</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>المفتاح (بصيغة HEX) (&amp;K):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>توليد (&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>حفظ (&amp;S)...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>ختم الملف (&amp;E)</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>يكشف عند فك التشفير أي تغيير لاحق في الملف، ويتضمن ملح التشفير.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>استخدام ملح التشفير (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>الكتابة فوق ملف الإخراج (&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>عدد البايتات المُدخلة: %1 من %2</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>إظهار الخيارات البسيطة</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>المفتاح ومتجه التهيئة للتشفير</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>المفتاح ومتجه التهيئة لفك التشفير</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>تذكّر اسم خوارزمية التشفير والمفتاح ومتجه التهيئة. 
ستحتاج إلى هذه البيانات لفك تشفير الملف. 
خوارزمية التشفير المحددة: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>أدخل المفتاح ومتجه التهيئة لفك تشفير الملف. 
خوارزمية التشفير المحددة: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>المفتاح، الطول: %1 بايت (بصيغة HEX) (&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>متجه التهيئة (IV)، الطول: %1 بايت (بصيغة HEX) (&amp;I)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>تعطّل مولّد الأرقام العشوائية في النظام.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>انسخ المفتاح ومتجه التهيئة أو احفظهما: فلا يمكن فك تشفير الملف من دونهما.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>شرح</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>يملأ الحقلين ببايتات عشوائية.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>يكتب المفتاح ومتجه التهيئة، دون حماية، في ملف لا يمكن لغيرك قراءته.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>تحميل (&amp;L)...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>يقرأ مفتاحًا ومتجه تهيئة سبق حفظهما هنا.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>يجعل الملفات المتطابقة تختلف بعد تشفيرها بتشفير كتلي.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>يزيل أي ملف موجود يحمل اسم ملف الإخراج؛ ومن دونه يبقى ذلك الملف ولا يُكتب شيء.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>يطلب كلمة مرور بدلًا من المفتاح ومتجه التهيئة.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد %Ln ثانية.</numerusform>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد ثانية واحدة.</numerusform>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد ثانيتين.</numerusform>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد %Ln ثوانٍ.</numerusform>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد %Ln ثانية.</numerusform>
            <numerusform>ينسخ المفتاح ومتجه التهيئة إلى الحافظة، ويُزالان منها بعد %Ln ثانية.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>هل تريد استبدال المفتاح ومتجه التهيئة الموجودين في الحقلين؟</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة %Ln ثانية.</numerusform>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة ثانية واحدة.</numerusform>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة ثانيتين.</numerusform>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة %Ln ثوانٍ.</numerusform>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة %Ln ثانية.</numerusform>
            <numerusform>سيبقى المفتاح ومتجه التهيئة في الحافظة لمدة %Ln ثانية.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>كلمة المرور (&amp;P):</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>تأكيد كلمة المرور (&amp;O):</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>تأكيد كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>إظهار كلمة المرور (&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>ختم الملف (&amp;E)</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>يجعل تخمين كلمة المرور بطيئًا ومكلفًا، ويكشف عند فك التشفير أي تغيير لاحق في الملف، ويتضمن ملح التشفير.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>استخدام ملح التشفير (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>الكتابة فوق ملف الإخراج (&amp;R)</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>إظهار الخيارات المتقدمة</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>كلمة المرور للتشفير</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>كلمة المرور لفك التشفير</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>تذكّر اسم خوارزمية التشفير وكلمة المرور. 
ستحتاج إلى هذه البيانات لفك تشفير الملف. 
خوارزمية التشفير المحددة: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>أدخل كلمة المرور لفك تشفير الملف. 
خوارزمية التشفير المحددة: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>مفتاح Caps Lock مفعّل.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>طول كلمة المرور: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>طول كلمة المرور: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>كلمتا المرور غير متطابقتين.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>شرح</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>قوة كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>توليد (&amp;G)...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>يقترح كلمة مرور من كلمات أو محارف عشوائية.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>يجعل الملفات المتطابقة تختلف بعد تشفيرها بتشفير كتلي. لكنه لا يجعل تخمين كلمة المرور أصعب.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>يزيل أي ملف موجود يحمل اسم ملف الإخراج؛ ومن دونه يبقى ذلك الملف ولا يُكتب شيء.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>يطلب المفتاح ومتجه التهيئة بالنظام الست عشري بدلًا من كلمة المرور.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>إخفاء كلمة المرور</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>هل تريد استبدال كلمة المرور الموجودة في الحقل؟</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ولا ملفات أخرى</numerusform>
            <numerusform>وملف آخر</numerusform>
            <numerusform>وملفان آخران</numerusform>
            <numerusform>و%Ln ملفات أخرى</numerusform>
            <numerusform>و%Ln ملفًا آخر</numerusform>
            <numerusform>و%Ln ملف آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CTextViewDialog</name>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>تحديث (&amp;R)</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>قراءة النص من جديد (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>هذه قائمة اختصارات لوحة المفاتيح في %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>لا يمكن هنا إفلات إلا ملف موجود على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>لم يُعثر على الملف الذي تم إفلاته.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>لا يمكن تشفير أو فك تشفير سوى ملف مفرد، لا مجلد ولا جهاز.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>لم يؤخذ سوى ملف واحد من الملفات التي تم إفلاتها.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>تم تشفير %1 من أصل %Ln ملف</numerusform>
            <numerusform>تم تشفير %1 من أصل ملف واحد</numerusform>
            <numerusform>تم تشفير %1 من أصل ملفين</numerusform>
            <numerusform>تم تشفير %1 من أصل %Ln ملفات</numerusform>
            <numerusform>تم تشفير %1 من أصل %Ln ملفًا</numerusform>
            <numerusform>تم تشفير %1 من أصل %Ln ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>تم فك تشفير %1 من أصل %Ln ملف</numerusform>
            <numerusform>تم فك تشفير %1 من أصل ملف واحد</numerusform>
            <numerusform>تم فك تشفير %1 من أصل ملفين</numerusform>
            <numerusform>تم فك تشفير %1 من أصل %Ln ملفات</numerusform>
            <numerusform>تم فك تشفير %1 من أصل %Ln ملفًا</numerusform>
            <numerusform>تم فك تشفير %1 من أصل %Ln ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>لم يفشل أي ملف</numerusform>
            <numerusform>فشل ملف واحد</numerusform>
            <numerusform>فشل ملفان</numerusform>
            <numerusform>فشل %Ln ملفات</numerusform>
            <numerusform>فشل %Ln ملفًا</numerusform>
            <numerusform>فشل %Ln ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>لم يُتخطَّ أي ملف</numerusform>
            <numerusform>تم تخطي ملف واحد</numerusform>
            <numerusform>تم تخطي ملفين</numerusform>
            <numerusform>تم تخطي %Ln ملفات</numerusform>
            <numerusform>تم تخطي %Ln ملفًا</numerusform>
            <numerusform>تم تخطي %Ln ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>تم الإيقاف: %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>استُبعدت المجلدات والأجهزة: لا يمكن تشفير أو فك تشفير سوى الملفات.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>لم يُعثر على &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>لم يُعثر عليها واستُبعدت: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>عدد ملفات الإدخال المحذوفة بعد تشفيرها، وفق خياراتك: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>الملفات التي لم تُحذف: %1، راجع القائمة.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>متجه التهيئة فارغ.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>متجه التهيئة غير صالح: محارف ست عشرية غير صالحة.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>حجم متجه التهيئة غير صالح: عدد البايتات المُدخلة %1.</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>المفتاح فارغ.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>المفتاح غير صالح: محارف ست عشرية غير صالحة.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>حجم المفتاح غير صالح: عدد البايتات المُدخلة %1.</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>تم الإبقاء على ملف الإدخال: إنه رابط رمزي.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>تم الإبقاء على ملف الإدخال: له اسم آخر (رابط صلب).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>تم الإبقاء على ملف الإدخال: لقد تغيّر منذ تشفيره.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>تم الإبقاء على ملف الإدخال: ملف الإخراج ليس كما كُتب.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>تم الإبقاء على ملف الإدخال.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>هل تريد بالتأكيد حذف ملف الإدخال بعد التشفير؟</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>حذف ملف الإدخال</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>خوارزمية التشفير غير محددة.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>تحديد الملف المراد تشفيره</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>الملف المراد تشفيره غير محدد.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>لم يُعثر على الملف المراد تشفيره.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>تعذّر إعداد محرك التشفير.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>تعذّر بدء التشفير.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>جارٍ التشفير</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>تم إلغاء تشفير الملف</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>تم تشفير الملف بنجاح</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>تعذّر تشفير الملف.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>خوارزمية فك التشفير غير محددة.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>تحديد الملف المراد فك تشفيره</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>الملف المراد فك تشفيره غير محدد.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>لم يُعثر على الملف المراد فك تشفيره.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>تعذّر إعداد محرك فك التشفير.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>تعذّر بدء فك التشفير.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>جارٍ فك التشفير</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>تم إلغاء فك تشفير الملف</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>تم فك تشفير الملف بنجاح</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>تعذّر فك تشفير الملف.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>تم حذف ملف الإخراج.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>وهو مختوم.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>وقد كان مختومًا ولم يتغيّر.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>تحقق من كلمة المرور والخوارزمية.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>تحقق من المفتاح ومتجه التهيئة والخوارزمية.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>كلمة المرور والخوارزمية صحيحتان. جرّب نسخة أخرى من الملف.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>المفتاح ومتجه التهيئة والخوارزمية صحيحة. جرّب نسخة أخرى من الملف.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>تعذّر حذف ملف الإدخال.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>تم حذف ملف الإدخال بعد نجاح التشفير وفق خياراتك</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>تم تشفير هذا الملف باستخدام %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>التشفير/فك التشفير قيد التنفيذ بالفعل.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>الإدخال ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>تحديد ملف الإخراج</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>ملف الإخراج غير محدد.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>لم يُعثر على مجلد الإخراج: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>اسم ملف الإخراج مطابق لاسم ملف الإدخال</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>الإخراج ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>حجم متجه التهيئة غير صالح. عدد البايتات المُدخلة: %1</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>حجم المفتاح غير صالح. عدد البايتات المُدخلة: %1</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>ملف الإخراج موجود بالفعل، وقد اختير عدم الكتابة فوقه.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>نظام الملفات لا يستجيب.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>كلمة المرور غير محددة</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>تعذّرت قراءة ملف الإدخال %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>تعذّرت كتابة ملف الإخراج %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>تعذّرت معالجة الملف %1.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>تعذّر فتح ملف الإدخال %1.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>تعذّرت إزالة ملف الإخراج السابق %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>تعذّر إنشاء ملف الإخراج %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>تعذّر حفظ ملف الإخراج %1.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>ملفات نصية</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>تعذّر حفظ المفتاح ومتجه التهيئة: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>تم تحميل المفتاح ومتجه التهيئة.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>حُفظ المفتاح ومتجه التهيئة للخوارزمية %1، أما الخوارزمية المحددة فهي %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>حفظ المفتاح ومتجه التهيئة</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>مفتاح %1 ومتجه التهيئة.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>القرص لا يستجيب</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>تم حفظ المفتاح ومتجه التهيئة. لا يمكن لغيرك قراءة الملف.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>تحميل المفتاح ومتجه التهيئة</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>تتعذّر قراءة الملف.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>لا يحتوي الملف على مفتاح ومتجه تهيئة.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>يجب أن يكون مجلد الإخراج الافتراضي مسارًا مطلقًا.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>لم يُحدد مجلد إخراج افتراضي: ستوضع الملفات بجانب ملفات الإدخال.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>ستأخذ الملفات المشفّرة أسماء ملفات الإدخال نفسها.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>ستأخذ الملفات بعد فك تشفيرها أسماء ملفات الإدخال نفسها.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>ستصبح أسماء الملفات أطول مما تقبله أنظمة الملفات.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>لا يمكن التعرّف على الملفات بامتداد يحتوي على نقطة.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>لا يقبل Windows ومعظم ذاكرات USB الأسماء التي تحتوي على أحد المحارف %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>يتعذّر حفظ الخيارات في %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>لا توجد ترجمة للغة المختارة.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>يتعذّر تحميل الترجمة: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>لا يُكتب شيء في ملف السجل: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>تحتوي كلمة المرور على فاصل أسطر.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>تحتوي كلمة المرور على علامة جدولة.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>تحتوي كلمة المرور على محرف تحكم.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%1/s</source>
        <extracomment>A speed, as in &quot;12 MiB/s&quot;</extracomment>
        <translation>‏%1/ث</translation>
    </message>
    <message>
        <source>Making the key of the password</source>
        <translation>جارٍ اشتقاق المفتاح من كلمة المرور</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>في انتظار أن يحفظ القرص الملف</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>‏%1 بسرعة %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>تمت معالجة %1٪</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>تمت معالجة ٠٫٠٠٠٪.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>الوقت المتبقي: %1 س %2 د %3 ث</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>الوقت المتبقي: %1 د %2 ث</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>الوقت المتبقي: %1 ث</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>‏%1 في %2 ث، %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>‏%1 في أقل من ثانية</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>تشفير باستخدام Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>فك التشفير باستخدام Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>فتح باستخدام Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>لم يعد Quillet موجودًا في %1. شغّله مرة واحدة من مكانه الجديد لإصلاح هذا العنصر من القائمة، أو احذف العنصر:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>تشفير الملفات المحددة</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>فك تشفير الملفات المحددة</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>فتح الملفات المحددة في نافذة Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>إضافة ملف للتشفير/فك التشفير</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>فتح مجلد ملف الإدخال</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>فتح مجلد ملف الإخراج</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>بدء التشفير</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>بدء فك التشفير</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>إيقاف التشفير/فك التشفير</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>مسح البيانات المُدخلة</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>قوة كلمة المرور: ضعيفة جدًا، تُخمَّن فورًا.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>قوة كلمة المرور: ضعيفة، تُخمَّن خلال ساعات.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>قوة كلمة المرور: متوسطة، تُخمَّن خلال عام.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>قوة كلمة المرور: قوية.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>قوة كلمة المرور: قوية جدًا.</translation>
    </message>
</context>
</TS>
