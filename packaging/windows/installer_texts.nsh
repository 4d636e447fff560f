; The installer's own texts in the languages of the program; the others are NSIS's.
!macro Texts LANGUAGE START_MENU FILE_MENUS REMOVE_SETTINGS STILL_RUNS
  !insertmacro MUI_LANGUAGE "${LANGUAGE}"
  LangString StartMenu ${LANG_${LANGUAGE}} "${START_MENU}"
  LangString FileMenus ${LANG_${LANGUAGE}} "${FILE_MENUS}"
  LangString RemoveSettings ${LANG_${LANGUAGE}} "${REMOVE_SETTINGS}"
  LangString StillRuns ${LANG_${LANGUAGE}} "${STILL_RUNS}"
!macroend

!insertmacro Texts English "Start menu" "Context menu of files and Send to" "Remove Quillet's settings and its log, too?" "Quillet is running. Please close it first."
!insertmacro Texts German "Startmenü" "Kontextmenü von Dateien und Senden an" "Auch die Einstellungen und das Protokoll von Quillet entfernen?" "Quillet läuft noch. Bitte schließen Sie es zuerst."
!insertmacro Texts French "Menu Démarrer" "Menu contextuel des fichiers et Envoyer vers" "Supprimer aussi les paramètres et le journal de Quillet ?" "Quillet est en cours d’exécution. Veuillez d’abord le fermer."
!insertmacro Texts Spanish "Menú Inicio" "Menú contextual de los archivos y Enviar a" "¿Eliminar también la configuración y el registro de Quillet?" "Quillet se está ejecutando. Ciérrelo primero."
!insertmacro Texts Italian "Menu Start" "Menu contestuale dei file e Invia a" "Rimuovere anche le impostazioni e il registro di Quillet?" "Quillet è in esecuzione. Chiuderlo prima di continuare."
!insertmacro Texts PortugueseBR "Menu Iniciar" "Menu de contexto dos arquivos e Enviar para" "Remover também as configurações e o registro do Quillet?" "O Quillet está em execução. Feche-o primeiro."
!insertmacro Texts Russian "Меню «Пуск»" "Контекстное меню файлов и «Отправить»" "Удалить также настройки и журнал Quillet?" "Quillet запущен. Сначала закройте его."
!insertmacro Texts Japanese "スタート メニュー" "ファイルのコンテキスト メニューと「送る」" "Quillet の設定とログも削除しますか?" "Quillet が実行中です。先に終了してください。"
!insertmacro Texts SimpChinese "“开始”菜单" "文件右键菜单和“发送到”" "是否同时删除 Quillet 的设置和日志？" "Quillet 正在运行。请先将其关闭。"
!insertmacro Texts Arabic "قائمة ابدأ" "قائمة السياق للملفات و«إرسال إلى»" "هل تريد إزالة إعدادات Quillet وسجله أيضًا؟" "Quillet قيد التشغيل. يرجى إغلاقه أولاً."
