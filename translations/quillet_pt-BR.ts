<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>A&amp;ctions</source>
        <translation>Açõ&amp;es</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>&amp;Add file...</source>
        <translation>&amp;Adicionar arquivo...</translation>
    </message>
    <message>
        <source>Open folder with &amp;input file</source>
        <translation>Abrir a pasta do arquivo de &amp;entrada</translation>
    </message>
    <message>
        <source>Open folder with &amp;output file</source>
        <translation>Abrir a pasta do arquivo de &amp;saída</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>&amp;Encrypt</source>
        <translation>&amp;Criptografar</translation>
    </message>
    <message>
        <source>&amp;Decrypt</source>
        <translation>&amp;Descriptografar</translation>
    </message>
    <message>
        <source>&amp;Stop encryption/decryption</source>
        <translation>&amp;Parar a criptografia/descriptografia</translation>
    </message>
    <message>
        <source>&amp;Clear entered data</source>
        <translation>&amp;Limpar os dados inseridos</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Opções...</translation>
    </message>
    <message>
        <source>&amp;Default algorithm...</source>
        <translation>&amp;Algoritmo padrão...</translation>
    </message>
    <message>
        <source>&amp;Information about algorithms...</source>
        <translation>&amp;Informações sobre os algoritmos...</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts...</source>
        <translation>Atalhos de &amp;teclado...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Sobre...</translation>
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
        <translation>Examinado em público há mais de vinte anos: nenhum ataque viável na prática é conhecido.</translation>
    </message>
    <message>
        <source>seal needed</source>
        <translation>requer lacre</translation>
    </message>
    <message>
        <source>Seal the file, or use its password for no other: without a seal all files under one password share a key stream, and two of them reveal each other.</source>
        <translation>Lacre o arquivo ou não use a senha dele em nenhum outro: sem lacre, todos os arquivos com a mesma senha compartilham um fluxo de chave, e dois deles revelam um ao outro.</translation>
    </message>
    <message>
        <source>short blocks</source>
        <translation>blocos curtos</translation>
    </message>
    <message>
        <source>Its blocks have only 64 bits, so that many gigabytes under one key give away parts of their contents (Sweet32, CVE-2016-2183).</source>
        <translation>Seus blocos têm apenas 64 bits; por isso, muitos gigabytes com a mesma chave revelam partes de seu conteúdo (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>outdated</source>
        <translation>obsoleto</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2016 (NIST SP 800-131A): its two keys are weaker than they are long, and its blocks are short.</source>
        <translation>Não permitido para criptografia desde 2016 (NIST SP 800-131A): suas duas chaves são mais fracas do que seu tamanho indica, e seus blocos são curtos.</translation>
    </message>
    <message>
        <source>Not allowed for encryption since 2024 (NIST SP 800-131A Rev. 2): its blocks have only 64 bits (Sweet32, CVE-2016-2183).</source>
        <translation>Não permitido para criptografia desde 2024 (NIST SP 800-131A Rev. 2): seus blocos têm apenas 64 bits (Sweet32, CVE-2016-2183).</translation>
    </message>
    <message>
        <source>short key</source>
        <translation>chave curta</translation>
    </message>
    <message>
        <source>Its key has only 80 bits, and it is not allowed for encryption any more (NIST SP 800-131A).</source>
        <translation>Sua chave tem apenas 80 bits, e ele não é mais permitido para criptografia (NIST SP 800-131A).</translation>
    </message>
    <message>
        <source>weak keys</source>
        <translation>chaves fracas</translation>
    </message>
    <message>
        <source>Each key has three others that do the same, and related keys break it (Kelsey, Schneier and Wagner, 1996 and 1997).</source>
        <translation>Cada chave tem outras três equivalentes, e ataques com chaves relacionadas quebram o algoritmo (Kelsey, Schneier e Wagner, 1996 e 1997).</translation>
    </message>
    <message>
        <source>attacks known</source>
        <translation>ataques conhecidos</translation>
    </message>
    <message>
        <source>Attacks on it need less work than trying its keys (Isobe, 2011; Dinur, Dunkelman and Shamir, 2012), and its blocks have only 64 bits.</source>
        <translation>Os ataques conhecidos exigem menos trabalho do que testar todas as chaves (Isobe, 2011; Dinur, Dunkelman e Shamir, 2012), e seus blocos têm apenas 64 bits.</translation>
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
        <translation>Bits da chave</translation>
    </message>
    <message>
        <source>Block bits</source>
        <translation>Bits do bloco</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observação</translation>
    </message>
</context>
<context>
    <name>AlgInfoReport</name>
    <message>
        <source>The parameters are not defined</source>
        <translation>Os parâmetros não estão definidos</translation>
    </message>
    <message>
        <source>Key size:</source>
        <translation>Tamanho da chave:</translation>
    </message>
    <message>
        <source>IV size:</source>
        <translation>Tamanho do IV:</translation>
    </message>
    <message>
        <source>Mandatory block size:</source>
        <translation>Tamanho de bloco obrigatório:</translation>
    </message>
    <message>
        <source>Cipher mode:</source>
        <translation>Modo de operação:</translation>
    </message>
    <message>
        <source>Stream cipher</source>
        <translation>Cifra de fluxo</translation>
    </message>
    <message>
        <source>Endianness:</source>
        <translation>Ordem dos bytes:</translation>
    </message>
    <message>
        <source>Little-endian</source>
        <translation>Little-endian</translation>
    </message>
    <message>
        <source>Hash function to calculate a key via password:</source>
        <translation>Função de hash para calcular a chave a partir da senha:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecida</translation>
    </message>
    <message>
        <source>The length of the hash is not equal to the length of key. Therefore, the hash will be truncated from %1 to %2 bytes.</source>
        <translation>O tamanho do hash não é igual ao tamanho da chave. Por isso, o hash será truncado de %1 para %2 bytes.</translation>
    </message>
    <message>
        <source>Algorithm name:</source>
        <translation>Nome do algoritmo:</translation>
    </message>
</context>
<context>
    <name>AlgListFiller</name>
    <message>
        <source>%1, key %2 bits</source>
        <translation>%1, chave de %2 bits</translation>
    </message>
    <message>
        <source>, blocks of %1 bits</source>
        <translation>, blocos de %1 bits</translation>
    </message>
</context>
<context>
    <name>CAboutDialog</name>
    <message>
        <source>Encrypts and decrypts single files with a symmetric algorithm of your choice.</source>
        <translation>Criptografa e descriptografa arquivos individuais com um algoritmo simétrico à sua escolha.</translation>
    </message>
    <message>
        <source>Qt version:</source>
        <translation>Versão do Qt:</translation>
    </message>
    <message>
        <source>Crypto++ version:</source>
        <translation>Versão do Crypto++:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Licença:</translation>
    </message>
    <message>
        <source>See the documentation that comes with the program.</source>
        <translation>Consulte a documentação que acompanha o programa.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
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
        <translation>Níve&amp;l do log:</translation>
    </message>
    <message>
        <source>&amp;Use log file</source>
        <translation>Usar ar&amp;quivo de log</translation>
    </message>
    <message>
        <source>Log f&amp;ile:</source>
        <translation>Arquivo de l&amp;og:</translation>
    </message>
    <message>
        <source>View log file</source>
        <translation>Ver o arquivo de log</translation>
    </message>
    <message>
        <source>Logger level</source>
        <translation>Nível do log</translation>
    </message>
    <message>
        <source>The least important messages that are logged. OFF logs nothing.</source>
        <translation>As mensagens menos importantes que são registradas. OFF não registra nada.</translation>
    </message>
    <message>
        <source>Writes what the program does, up to the level above, into the file below. Passwords and keys are never written.</source>
        <translation>Grava o que o programa faz, até o nível acima, no arquivo abaixo. Senhas e chaves nunca são gravadas.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Arquivo de log</translation>
    </message>
</context>
<context>
    <name>CAlgInfoDialog</name>
    <message>
        <source>Information about algorithms</source>
        <translation>Informações sobre os algoritmos</translation>
    </message>
    <message>
        <source>Parameters of the selected algorithms</source>
        <translation>Parâmetros dos algoritmos selecionados</translation>
    </message>
    <message>
        <source>Select one or more algorithms to see their parameters.</source>
        <translation>Selecione um ou mais algoritmos para ver seus parâmetros.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>CAlgList</name>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
</context>
<context>
    <name>CAlgListFrame</name>
    <message>
        <source>&amp;Filter:</source>
        <translation>F&amp;iltro:</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Shows only the algorithms with this text in one of their columns.</source>
        <translation>Mostra apenas os algoritmos com este texto em uma de suas colunas.</translation>
    </message>
    <message>
        <source>Name, bits or remark</source>
        <translation>Nome, bits ou observação</translation>
    </message>
    <message>
        <source>&amp;Recommended first</source>
        <translation>&amp;Recomendados primeiro</translation>
    </message>
    <message>
        <source>Algorithms</source>
        <translation>Algoritmos</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Limpar o filtro</translation>
    </message>
</context>
<context>
    <name>CAlgorithmOffer</name>
    <message>
        <source>Decrypt with %1</source>
        <translation>Descriptografar com %1</translation>
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
        <translation>Fluxo de dados não definido</translation>
    </message>
    <message>
        <source>File name not defined</source>
        <translation>Nome do arquivo não definido</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Arquivo não encontrado</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Falha ao abrir o arquivo</translation>
    </message>
    <message>
        <source>Get file size failed</source>
        <translation>Falha ao obter o tamanho do arquivo</translation>
    </message>
    <message>
        <source>Reading file failed</source>
        <translation>Falha ao ler o arquivo</translation>
    </message>
    <message>
        <source>Reading data stream failed</source>
        <translation>Falha ao ler o fluxo de dados</translation>
    </message>
    <message>
        <source>Input file name not defined</source>
        <translation>Nome do arquivo de entrada não definido</translation>
    </message>
    <message>
        <source>Input file not found</source>
        <translation>Arquivo de entrada não encontrado</translation>
    </message>
    <message>
        <source>Output file name not defined</source>
        <translation>Nome do arquivo de saída não definido</translation>
    </message>
    <message>
        <source>Output file not found</source>
        <translation>Arquivo de saída não encontrado</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>O nome do arquivo de saída é igual ao do arquivo de entrada</translation>
    </message>
    <message>
        <source>Operation was stopped</source>
        <translation>A operação foi interrompida</translation>
    </message>
    <message>
        <source>Failed to calculate data hash</source>
        <translation>Falha ao calcular o hash dos dados</translation>
    </message>
    <message>
        <source>Corrupted data</source>
        <translation>Dados corrompidos</translation>
    </message>
    <message>
        <source>Cryptographic engine is not initialized</source>
        <translation>O mecanismo criptográfico não foi inicializado</translation>
    </message>
    <message>
        <source>The file is damaged or has been changed</source>
        <translation>O arquivo está danificado ou foi alterado</translation>
    </message>
</context>
<context>
    <name>CGeneralOptionsFrame</name>
    <message>
        <source>Desktop</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>Integrate the program to shell conte&amp;xt menu</source>
        <translation>Integrar o programa ao menu de conte&amp;xto</translation>
    </message>
    <message>
        <source>Add the programm into &quot;&amp;Send To&quot; menu</source>
        <translation>Adicionar o programa ao menu &quot;&amp;Enviar para&quot;</translation>
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
        <translation>&amp;Usar o algoritmo padrão ao iniciar o programa</translation>
    </message>
    <message>
        <source>&amp;Default algorithm:</source>
        <translation>Algorit&amp;mo padrão:</translation>
    </message>
    <message>
        <source>Password and key</source>
        <translation>Senha e chave</translation>
    </message>
    <message>
        <source>Sho&amp;w password</source>
        <translation>Mostrar a sen&amp;ha</translation>
    </message>
    <message>
        <source>Re&amp;quire confirm password</source>
        <translation>Exigir con&amp;firmação da senha</translation>
    </message>
    <message>
        <source>Use advanced mode to enter &amp;key and IV</source>
        <translation>Usar o modo a&amp;vançado para chave e IV</translation>
    </message>
    <message>
        <source>Seal encrypted f&amp;iles</source>
        <translation>&amp;Lacrar arquivos criptografados</translation>
    </message>
    <message>
        <source>Proposes the seal whenever a file is encrypted: it makes guessing the password slow and costly, and reveals any later change of the file when that is decrypted.</source>
        <translation>Sugere o lacre sempre que um arquivo é criptografado: ele torna lento e caro adivinhar a senha e revela qualquer alteração posterior do arquivo quando ele é descriptografado.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>Usar &amp;sal</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Show confir&amp;m dialog</source>
        <translation>Mostrar &amp;janela de confirmação</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>So&amp;brescrever o arquivo de saída</translation>
    </message>
    <message>
        <source>Autoge&amp;nerate output file name</source>
        <translation>Gerar au&amp;tomaticamente o nome de saída</translation>
    </message>
    <message>
        <source>Use default out&amp;put folder</source>
        <translation>Usar a &amp;pasta de saída padrão</translation>
    </message>
    <message>
        <source>Default ou&amp;tput folder:</source>
        <translation>Pasta &amp;de saída padrão:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pr&amp;ocurar...</translation>
    </message>
    <message>
        <source>Choose the default output folder</source>
        <translation>Escolher a pasta de saída padrão</translation>
    </message>
    <message>
        <source>Auto d&amp;elete input file after encryption</source>
        <translation>Excluir o ar&amp;quivo de entrada após criptografar</translation>
    </message>
    <message>
        <source>Show confirm dialog to delete input file after encr&amp;yption</source>
        <translation>Confi&amp;rmar a exclusão do arquivo de entrada após criptografar</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Shortcut keys:</source>
        <translation>Teclas de atalho:</translation>
    </message>
    <message>
        <source>Shortcut keys</source>
        <translation>Teclas de atalho</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>Tecla de atalho</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Adds Encrypt and Decrypt to the menu that file managers show for a file.</source>
        <translation>Adiciona Criptografar e Descriptografar ao menu que os gerenciadores de arquivos mostram para um arquivo.</translation>
    </message>
    <message>
        <source>Adds the program to the places that file managers offer to send a file to.</source>
        <translation>Adiciona o programa aos locais para os quais os gerenciadores de arquivos oferecem enviar um arquivo.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Selects the algorithm below whenever the program starts.</source>
        <translation>Seleciona o algoritmo abaixo sempre que o programa é iniciado.</translation>
    </message>
    <message>
        <source>Default algorithm</source>
        <translation>Algoritmo padrão</translation>
    </message>
    <message>
        <source>Shows passwords in clear text when they are typed.</source>
        <translation>Mostra as senhas em texto legível enquanto são digitadas.</translation>
    </message>
    <message>
        <source>Offers, where the password is asked for, to enter key and initialization vector in hexadecimal instead.</source>
        <translation>Oferece, onde a senha é solicitada, a opção de inserir a chave e o vetor de inicialização em hexadecimal.</translation>
    </message>
    <message>
        <source>Proposes a salt whenever a file is encrypted: it makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Sugere um sal sempre que um arquivo é criptografado: com ele, arquivos iguais ficam diferentes depois de criptografados com uma cifra de bloco.</translation>
    </message>
    <message>
        <source>Is kept with the other options, but nothing asks yet.</source>
        <translation>É mantida com as outras opções, mas por enquanto nada é perguntado.</translation>
    </message>
    <message>
        <source>Proposes to remove a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Sugere remover um arquivo que já tenha o nome do arquivo de saída; sem isso, esse arquivo permanece e nada é gravado.</translation>
    </message>
    <message>
        <source>Proposes the name of the output file by the rules under &quot;File names&quot;.</source>
        <translation>Sugere o nome do arquivo de saída de acordo com as regras em &quot;Nomes de arquivos&quot;.</translation>
    </message>
    <message>
        <source>Puts output files into the folder below instead of beside their input files.</source>
        <translation>Coloca os arquivos de saída na pasta abaixo, e não junto aos arquivos de entrada.</translation>
    </message>
    <message>
        <source>Default output folder</source>
        <translation>Pasta de saída padrão</translation>
    </message>
    <message>
        <source>Deletes the input file once its encrypted copy has been written to the disk. It does not go to the trash.</source>
        <translation>Exclui o arquivo de entrada assim que sua cópia criptografada tiver sido gravada no disco. Ele não vai para a lixeira.</translation>
    </message>
</context>
<context>
    <name>CJobFrame</name>
    <message>
        <source>&amp;Input file:</source>
        <translation>Arquivo de e&amp;ntrada:</translation>
    </message>
    <message>
        <source>Out&amp;put file:</source>
        <translation>Arquivo de &amp;saída:</translation>
    </message>
    <message>
        <source>File to encrypt or decrypt</source>
        <translation>Arquivo a criptografar ou descriptografar</translation>
    </message>
    <message>
        <source>File to write</source>
        <translation>Arquivo a gravar</translation>
    </message>
    <message>
        <source>Choose the input file</source>
        <translation>Escolher o arquivo de entrada</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Escolher o arquivo de saída</translation>
    </message>
    <message>
        <source>Encrypt</source>
        <translation>Criptografar</translation>
    </message>
    <message>
        <source>Decrypt</source>
        <translation>Descriptografar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Write an encrypted file; the input stays as it is</source>
        <translation>Grava um arquivo criptografado; a entrada permanece como está</translation>
    </message>
    <message>
        <source>Write the file that was encrypted; the input stays as it is</source>
        <translation>Grava o arquivo que foi criptografado; a entrada permanece como está</translation>
    </message>
    <message>
        <source>End the work; nothing half done is left behind</source>
        <translation>Encerra o trabalho; nada fica pela metade</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Solte arquivos aqui</translation>
    </message>
    <message>
        <source>or click to choose</source>
        <translation>ou clique para escolher</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Adicionar arquivo para criptografar/descriptografar</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definir o arquivo de saída</translation>
    </message>
</context>
<context>
    <name>CNamingOptionsFrame</name>
    <message>
        <source>File extension</source>
        <translation>Extensão de arquivo</translation>
    </message>
    <message>
        <source>Suffix</source>
        <translation>Sufixo</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Prefixo</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemplo</translation>
    </message>
</context>
<context>
    <name>COptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>&amp;General settings</source>
        <translation>&amp;Geral</translation>
    </message>
    <message>
        <source>&amp;File names</source>
        <translation>&amp;Nomes de arquivos</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>Avan&amp;çado</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>The options were applied.</source>
        <translation>As opções foram aplicadas.</translation>
    </message>
    <message>
        <source>Default output directory</source>
        <translation>Pasta de saída padrão</translation>
    </message>
    <message>
        <source>The language changes with OK or Apply.</source>
        <translation>O idioma muda com OK ou Aplicar.</translation>
    </message>
    <message>
        <source>The log file can&apos;t be read: %1</source>
        <translation>Não é possível ler o arquivo de log: %1</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Arquivo de log</translation>
    </message>
    <message>
        <source>Name of encrypted file</source>
        <translation>Nome do arquivo criptografado</translation>
    </message>
    <message>
        <source>Add f&amp;ile extension:</source>
        <translation>Adicionar &amp;extensão:</translation>
    </message>
    <message>
        <source>Add &amp;suffix:</source>
        <translation>Adicionar &amp;sufixo:</translation>
    </message>
    <message>
        <source>Add &amp;prefix:</source>
        <translation>Adicionar &amp;prefixo:</translation>
    </message>
    <message>
        <source>Add dat&amp;e</source>
        <translation>Adicionar &amp;data</translation>
    </message>
    <message>
        <source>Samp&amp;le:</source>
        <translation>E&amp;xemplo:</translation>
    </message>
    <message>
        <source>Name of decrypted file</source>
        <translation>Nome do arquivo descriptografado</translation>
    </message>
    <message>
        <source>Add file ex&amp;tension:</source>
        <translation>Adicionar ex&amp;tensão:</translation>
    </message>
    <message>
        <source>Add s&amp;uffix:</source>
        <translation>Adicionar s&amp;ufixo:</translation>
    </message>
    <message>
        <source>Add p&amp;refix:</source>
        <translation>Adicionar p&amp;refixo:</translation>
    </message>
    <message>
        <source>Add &amp;date</source>
        <translation>Ad&amp;icionar data</translation>
    </message>
    <message>
        <source>Sa&amp;mple:</source>
        <translation>Exe&amp;mplo:</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Shows the default of every option but the language. Nothing changes before OK or Apply.</source>
        <translation>Mostra o padrão de todas as opções, exceto o idioma. Nada muda antes de OK ou Aplicar.</translation>
    </message>
</context>
<context>
    <name>CPasswordGeneratorDialog</name>
    <message>
        <source>Generate a password</source>
        <translation>Gerar uma senha</translation>
    </message>
    <message>
        <source>&amp;Made of:</source>
        <translation>&amp;Composta de:</translation>
    </message>
    <message>
        <source>Made of</source>
        <translation>Composta de</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Quantidade:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Quantidade</translation>
    </message>
    <message>
        <source>Generated password</source>
        <translation>Senha gerada</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Força da senha</translation>
    </message>
    <message>
        <source>&amp;Generate another</source>
        <translation>&amp;Gerar outra</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>&amp;Use this password</source>
        <translation>&amp;Usar esta senha</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Random words</source>
        <translation>Palavras aleatórias</translation>
    </message>
    <message>
        <source>Random characters</source>
        <translation>Caracteres aleatórios</translation>
    </message>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Coloca a senha na área de transferência, de onde é removida após %Ln segundo.</numerusform>
            <numerusform>Coloca a senha na área de transferência, de onde é removida após %Ln segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>O gerador de números aleatórios do sistema falhou.</translation>
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
        <translation>Guarde-a onde possa encontrá-la: sem ela, não é possível descriptografar o arquivo.</translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>A senha ficará na área de transferência por %Ln segundo.</numerusform>
            <numerusform>A senha ficará na área de transferência por %Ln segundos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CProgressBarFrame</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message>
        <source>Looking at the files...</source>
        <translation>Verificando os arquivos...</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>O sistema de arquivos não responde.</translation>
    </message>
    <message>
        <source>It seems to be encrypted already.</source>
        <translation>Parece já estar criptografado.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input files after encryption?</source>
        <translation>Excluir os arquivos de entrada após a criptografia?</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the input files</source>
        <translation>Exclusão dos arquivos de entrada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln arquivo</numerusform>
            <numerusform>%Ln arquivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message>
        <source>Add files...</source>
        <translation>Adicionar arquivos...</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>Choose more files for the list</source>
        <translation>Escolher mais arquivos para a lista</translation>
    </message>
    <message>
        <source>Take all files out of the list; the files themselves stay</source>
        <translation>Retirar todos os arquivos da lista; os arquivos em si permanecem</translation>
    </message>
    <message>
        <source>Files to encrypt or decrypt</source>
        <translation>Arquivos a criptografar ou descriptografar</translation>
    </message>
    <message>
        <source>Delete takes the selected files out of the list.</source>
        <translation>Delete retira da lista os arquivos selecionados.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln arquivo, %1</numerusform>
            <numerusform>%Ln arquivos, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueModel</name>
    <message>
        <source>Running, %1%</source>
        <translation>Em andamento, %1%</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorado</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
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
        <translation>A saída pertence a outro arquivo da lista.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrompido</translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message>
        <source>Encrypt again</source>
        <translation>Criptografar novamente</translation>
    </message>
    <message>
        <source>This file seems to be encrypted already</source>
        <translation>Este arquivo parece já estar criptografado</translation>
    </message>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>De %1 arquivos, %Ln parece já estar criptografado.</numerusform>
            <numerusform>De %1 arquivos, %Ln parecem já estar criptografados.</numerusform>
        </translation>
    </message>
    <message>
        <source>What is encrypted twice must be decrypted twice.</source>
        <translation>O que é criptografado duas vezes precisa ser descriptografado duas vezes.</translation>
    </message>
    <message>
        <source>Leave them out</source>
        <translation>Deixar de fora</translation>
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
        <translation>Selecionar um algoritmo</translation>
    </message>
</context>
<context>
    <name>CSetAlgDialog</name>
    <message>
        <source>Select algorithm to encrypt/decrypt file</source>
        <translation>Selecionar o algoritmo para criptografar/descriptografar o arquivo</translation>
    </message>
    <message>
        <source>&amp;Use as default algorithm</source>
        <translation>&amp;Usar como algoritmo padrão</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Seleciona este algoritmo sempre que o programa é iniciado, a menos que as opções indiquem outro.</translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message>
        <source>&amp;Initialization vector (IV) (HEX format):</source>
        <translation>&amp;Vetor de inicialização (IV) (formato HEX):</translation>
    </message>
    <message>
        <source>Initialization vector</source>
        <translation>Vetor de inicialização</translation>
    </message>
    <message>
        <source>&amp;Key (HEX format):</source>
        <translation>C&amp;have (formato HEX):</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Gerar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Salvar...</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Lacrar o arquivo</translation>
    </message>
    <message>
        <source>Reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Revela qualquer alteração posterior do arquivo quando ele é descriptografado e inclui um sal.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usar sal</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>So&amp;brescrever o arquivo de saída</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 of %2 bytes entered</source>
        <translation>%1 de %2 bytes inseridos</translation>
    </message>
    <message>
        <source>Show simple options</source>
        <translation>Mostrar opções simples</translation>
    </message>
    <message>
        <source>Key and IV to encrypt</source>
        <translation>Chave e IV para criptografar</translation>
    </message>
    <message>
        <source>Key and IV to decrypt</source>
        <translation>Chave e IV para descriptografar</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm, key and IV. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Lembre-se do nome do algoritmo de criptografia, da chave e do IV. 
Esses dados serão necessários para descriptografar o arquivo. 
Algoritmo criptográfico selecionado: %1.</translation>
    </message>
    <message>
        <source>Enter the key and IV to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Insira a chave e o IV para descriptografar o arquivo. 
Algoritmo criptográfico selecionado: %1.</translation>
    </message>
    <message>
        <source>&amp;Key, length: %1 bytes (HEX format)</source>
        <translation>C&amp;have, tamanho: %1 bytes (formato HEX)</translation>
    </message>
    <message>
        <source>&amp;Initialization vector (IV), length: %1 bytes (HEX format)</source>
        <translation>&amp;Vetor de inicialização (IV), tamanho: %1 bytes (formato HEX)</translation>
    </message>
    <message>
        <source>The system&apos;s random generator failed.</source>
        <translation>O gerador de números aleatórios do sistema falhou.</translation>
    </message>
    <message>
        <source>Copy or save the key and IV: without them the file cannot be decrypted.</source>
        <translation>Copie ou salve a chave e o IV: sem eles, não é possível descriptografar o arquivo.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicação</translation>
    </message>
    <message>
        <source>Fills both fields with random bytes.</source>
        <translation>Preenche os dois campos com bytes aleatórios.</translation>
    </message>
    <message>
        <source>Writes the key and IV, unprotected, into a file that only you can read.</source>
        <translation>Grava a chave e o IV, sem proteção, em um arquivo que só você pode ler.</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>Ca&amp;rregar...</translation>
    </message>
    <message>
        <source>Reads a key and IV that were saved here.</source>
        <translation>Lê uma chave e um IV que foram salvos aqui.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher.</source>
        <translation>Faz com que arquivos iguais fiquem diferentes depois de criptografados com uma cifra de bloco.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Remove um arquivo que já tenha o nome do arquivo de saída; sem isso, esse arquivo permanece e nada é gravado.</translation>
    </message>
    <message>
        <source>Asks for a password instead of the key and the initialization vector.</source>
        <translation>Solicita uma senha em vez da chave e do vetor de inicialização.</translation>
    </message>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Coloca a chave e o IV na área de transferência, de onde são removidos após %Ln segundo.</numerusform>
            <numerusform>Coloca a chave e o IV na área de transferência, de onde são removidos após %Ln segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace the key and IV that stand in the fields?</source>
        <translation>Substituir a chave e o IV que estão nos campos?</translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>A chave e o IV ficarão na área de transferência por %Ln segundo.</numerusform>
            <numerusform>A chave e o IV ficarão na área de transferência por %Ln segundos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetPasswordDialog</name>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>C&amp;onfirm password:</source>
        <translation>C&amp;onfirmar senha:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Confirmar senha</translation>
    </message>
    <message>
        <source>&amp;Show password</source>
        <translation>&amp;Mostrar a senha</translation>
    </message>
    <message>
        <source>S&amp;eal the file</source>
        <translation>&amp;Lacrar o arquivo</translation>
    </message>
    <message>
        <source>Makes guessing the password slow and costly, reveals any later change of the file when that is decrypted, and includes a salt.</source>
        <translation>Torna lento e caro adivinhar a senha, revela qualquer alteração posterior do arquivo quando ele é descriptografado e inclui um sal.</translation>
    </message>
    <message>
        <source>&amp;Use salt</source>
        <translation>&amp;Usar sal</translation>
    </message>
    <message>
        <source>&amp;Rewrite output file</source>
        <translation>So&amp;brescrever o arquivo de saída</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show advanced options</source>
        <translation>Mostrar opções avançadas</translation>
    </message>
    <message>
        <source>Password to encrypt</source>
        <translation>Senha para criptografar</translation>
    </message>
    <message>
        <source>Password to decrypt</source>
        <translation>Senha para descriptografar</translation>
    </message>
    <message>
        <source>Remember the name of the encryption algorithm and password. <byte value="xd"/>
These data will be needed to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Lembre-se do nome do algoritmo de criptografia e da senha. 
Esses dados serão necessários para descriptografar o arquivo. 
Algoritmo criptográfico selecionado: %1.</translation>
    </message>
    <message>
        <source>Enter the password to decrypt the file. <byte value="xd"/>
Selected cryptographic algorithm: %1.</source>
        <translation>Insira a senha para descriptografar o arquivo. 
Algoritmo criptográfico selecionado: %1.</translation>
    </message>
    <message>
        <source>Caps Lock is on.</source>
        <translation>O Caps Lock está ativado.</translation>
    </message>
    <message>
        <source>Password length: %1</source>
        <translation>Tamanho da senha: %1</translation>
    </message>
    <message>
        <source>Password length: %1/%2</source>
        <translation>Tamanho da senha: %1/%2</translation>
    </message>
    <message>
        <source>The passwords do not match.</source>
        <translation>As senhas não coincidem.</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explicação</translation>
    </message>
    <message>
        <source>Password strength</source>
        <translation>Força da senha</translation>
    </message>
    <message>
        <source>&amp;Generate...</source>
        <translation>&amp;Gerar...</translation>
    </message>
    <message>
        <source>Proposes a password of random words or characters.</source>
        <translation>Sugere uma senha de palavras ou caracteres aleatórios.</translation>
    </message>
    <message>
        <source>Makes equal files differ once they are encrypted with a block cipher. It does not make guessing the password harder.</source>
        <translation>Faz com que arquivos iguais fiquem diferentes depois de criptografados com uma cifra de bloco. Não torna mais difícil adivinhar a senha.</translation>
    </message>
    <message>
        <source>Removes a file that already has the output file&apos;s name; without this such a file stays and nothing is written.</source>
        <translation>Remove um arquivo que já tenha o nome do arquivo de saída; sem isso, esse arquivo permanece e nada é gravado.</translation>
    </message>
    <message>
        <source>Asks for the key and the initialization vector in hexadecimal instead of a password.</source>
        <translation>Solicita a chave e o vetor de inicialização em hexadecimal em vez de uma senha.</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Ocultar a senha</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar a senha</translation>
    </message>
    <message>
        <source>Replace the password that stands in the field?</source>
        <translation>Substituir a senha que está no campo?</translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
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
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>Read the text again (F5)</source>
        <translation>Ler o texto novamente (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>CkeyboardShortcutInfoDialog</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>This is a list of keyboard shortcuts in %1.</source>
        <translation>Lista de atalhos de teclado do %1.</translation>
    </message>
</context>
<context>
    <name>DroppedFile</name>
    <message>
        <source>Only a file on this computer can be dropped here.</source>
        <translation>Só é possível soltar aqui um arquivo deste computador.</translation>
    </message>
    <message>
        <source>The dropped file is not found.</source>
        <translation>O arquivo solto não foi encontrado.</translation>
    </message>
    <message>
        <source>Only a single file can be encrypted or decrypted, not a folder or a device.</source>
        <translation>Só é possível criptografar ou descriptografar um arquivo individual, não uma pasta ou um dispositivo.</translation>
    </message>
    <message>
        <source>Only one of the dropped files was taken.</source>
        <translation>Apenas um dos arquivos soltos foi aceito.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%1 de %Ln arquivo criptografado</numerusform>
            <numerusform>%1 de %Ln arquivos criptografados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%1 de %Ln arquivo descriptografado</numerusform>
            <numerusform>%1 de %Ln arquivos descriptografados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln falhou</numerusform>
            <numerusform>%Ln falharam</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln ignorado</numerusform>
            <numerusform>%Ln ignorados</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Interrompido: %1</translation>
    </message>
    <message>
        <source>Folders and devices are left out: only files can be encrypted or decrypted.</source>
        <translation>Pastas e dispositivos são deixados de fora: só é possível criptografar ou descriptografar arquivos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not found.</source>
        <translation>&quot;%1&quot; não foi encontrado.</translation>
    </message>
    <message>
        <source>Not found, and left out: %1</source>
        <translation>Não encontrados e deixados de fora: %1</translation>
    </message>
    <message>
        <source>Input files deleted after their encryption, according to your options: %1.</source>
        <translation>Arquivos de entrada excluídos após a criptografia, conforme suas opções: %1.</translation>
    </message>
    <message>
        <source>Kept: %1, see the list.</source>
        <translation>Mantidos: %1, veja a lista.</translation>
    </message>
</context>
<context>
    <name>HexCheck</name>
    <message>
        <source>Empty IV.</source>
        <translation>IV vazio.</translation>
    </message>
    <message>
        <source>Invalid IV: invalid hexadecimal characters.</source>
        <translation>IV inválido: caracteres hexadecimais inválidos.</translation>
    </message>
    <message>
        <source>Invalid IV size: entered %1 bytes.</source>
        <translation>Tamanho de IV inválido: %1 bytes inseridos.</translation>
    </message>
    <message>
        <source>Empty key.</source>
        <translation>Chave vazia.</translation>
    </message>
    <message>
        <source>Invalid key: invalid hexadecimal characters.</source>
        <translation>Chave inválida: caracteres hexadecimais inválidos.</translation>
    </message>
    <message>
        <source>Invalid key size: entered %1 bytes.</source>
        <translation>Tamanho de chave inválido: %1 bytes inseridos.</translation>
    </message>
</context>
<context>
    <name>InputRemoval</name>
    <message>
        <source>The input file has been kept: it is a symbolic link.</source>
        <translation>O arquivo de entrada foi mantido: é um link simbólico.</translation>
    </message>
    <message>
        <source>The input file has been kept: it has another name (hard link).</source>
        <translation>O arquivo de entrada foi mantido: ele tem outro nome (link físico).</translation>
    </message>
    <message>
        <source>The input file has been kept: it has changed since it was encrypted.</source>
        <translation>O arquivo de entrada foi mantido: ele mudou desde que foi criptografado.</translation>
    </message>
    <message>
        <source>The input file has been kept: the output file is not what was written.</source>
        <translation>O arquivo de entrada foi mantido: o arquivo de saída não corresponde ao que foi gravado.</translation>
    </message>
    <message>
        <source>The input file has been kept.</source>
        <translation>O arquivo de entrada foi mantido.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the input file after encryption?</source>
        <translation>Excluir o arquivo de entrada após a criptografia?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Deleting the input file</source>
        <translation>Exclusão do arquivo de entrada</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>Encryption algorithm is not defined.</source>
        <translation>O algoritmo de criptografia não está definido.</translation>
    </message>
    <message>
        <source>Select file to encrypt</source>
        <translation>Selecionar arquivo para criptografar</translation>
    </message>
    <message>
        <source>File to encrypt is not defined.</source>
        <translation>O arquivo a criptografar não está definido.</translation>
    </message>
    <message>
        <source>File to encrypt is not found.</source>
        <translation>O arquivo a criptografar não foi encontrado.</translation>
    </message>
    <message>
        <source>Failed to prepare encryption engine.</source>
        <translation>Falha ao preparar o mecanismo de criptografia.</translation>
    </message>
    <message>
        <source>Failed to start the encryption.</source>
        <translation>Falha ao iniciar a criptografia.</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Criptografando</translation>
    </message>
    <message>
        <source>File encryption was canceled</source>
        <translation>A criptografia do arquivo foi cancelada</translation>
    </message>
    <message>
        <source>File was encrypted successfully</source>
        <translation>O arquivo foi criptografado com sucesso</translation>
    </message>
    <message>
        <source>Failed to encrypt file.</source>
        <translation>Falha ao criptografar o arquivo.</translation>
    </message>
    <message>
        <source>Decryption algorithm is not defined.</source>
        <translation>O algoritmo de descriptografia não está definido.</translation>
    </message>
    <message>
        <source>Select file to decrypt</source>
        <translation>Selecionar arquivo para descriptografar</translation>
    </message>
    <message>
        <source>File to decrypt is not defined.</source>
        <translation>O arquivo a descriptografar não está definido.</translation>
    </message>
    <message>
        <source>File to decrypt is not found.</source>
        <translation>O arquivo a descriptografar não foi encontrado.</translation>
    </message>
    <message>
        <source>Failed to prepare decryption engine.</source>
        <translation>Falha ao preparar o mecanismo de descriptografia.</translation>
    </message>
    <message>
        <source>Failed to start the decryption.</source>
        <translation>Falha ao iniciar a descriptografia.</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Descriptografando</translation>
    </message>
    <message>
        <source>File decryption was canceled</source>
        <translation>A descriptografia do arquivo foi cancelada</translation>
    </message>
    <message>
        <source>File was decrypted successfully</source>
        <translation>O arquivo foi descriptografado com sucesso</translation>
    </message>
    <message>
        <source>Failed to decrypt file.</source>
        <translation>Falha ao descriptografar o arquivo.</translation>
    </message>
</context>
<context>
    <name>JobReport</name>
    <message>
        <source>Output file has been deleted.</source>
        <translation>O arquivo de saída foi excluído.</translation>
    </message>
    <message>
        <source>It is sealed.</source>
        <extracomment>Follows &quot;File was encrypted successfully. &quot; or &quot;File was decrypted successfully. &quot;</extracomment>
        <translation>Ele está lacrado.</translation>
    </message>
    <message>
        <source>It was sealed and is unchanged.</source>
        <translation>Ele estava lacrado e não foi alterado.</translation>
    </message>
    <message>
        <source>Check the password and the algorithm.</source>
        <translation>Verifique a senha e o algoritmo.</translation>
    </message>
    <message>
        <source>Check the key, the IV and the algorithm.</source>
        <translation>Verifique a chave, o IV e o algoritmo.</translation>
    </message>
    <message>
        <source>The password and the algorithm are right. Try another copy of the file.</source>
        <translation>A senha e o algoritmo estão corretos. Tente outra cópia do arquivo.</translation>
    </message>
    <message>
        <source>The key, the IV and the algorithm are right. Try another copy of the file.</source>
        <translation>A chave, o IV e o algoritmo estão corretos. Tente outra cópia do arquivo.</translation>
    </message>
    <message>
        <source>The input file could not be deleted.</source>
        <translation>Não foi possível excluir o arquivo de entrada.</translation>
    </message>
    <message>
        <source>Input file has been deleted after the successfully encryption according to your options</source>
        <translation>O arquivo de entrada foi excluído após a criptografia bem-sucedida, conforme suas opções</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>This file was encrypted with %1.</source>
        <translation>Este arquivo foi criptografado com %1.</translation>
    </message>
</context>
<context>
    <name>JobRequest</name>
    <message>
        <source>Encryption/Decryption already running.</source>
        <translation>A criptografia/descriptografia já está em andamento.</translation>
    </message>
    <message>
        <source>The input is not a regular file.</source>
        <translation>A entrada não é um arquivo comum.</translation>
    </message>
    <message>
        <source>Define output file</source>
        <translation>Definir o arquivo de saída</translation>
    </message>
    <message>
        <source>Output file is not defined.</source>
        <translation>O arquivo de saída não está definido.</translation>
    </message>
    <message>
        <source>The output folder is not found: %1</source>
        <translation>A pasta de saída não foi encontrada: %1</translation>
    </message>
    <message>
        <source>Output file name matches the name of the input file</source>
        <translation>O nome do arquivo de saída é igual ao do arquivo de entrada</translation>
    </message>
    <message>
        <source>The output is not a regular file.</source>
        <translation>A saída não é um arquivo comum.</translation>
    </message>
    <message>
        <source>Invalid IV size. Entered %1 bytes</source>
        <translation>Tamanho de IV inválido. %1 bytes inseridos</translation>
    </message>
    <message>
        <source>Invalid key size. Entered %1 bytes</source>
        <translation>Tamanho de chave inválido. %1 bytes inseridos</translation>
    </message>
    <message>
        <source>Output file already exists! A &apos;not rewrite&apos; option has been selected.</source>
        <translation>O arquivo de saída já existe e não foi permitido sobrescrevê-lo.</translation>
    </message>
    <message>
        <source>The file system does not answer.</source>
        <translation>O sistema de arquivos não responde.</translation>
    </message>
    <message>
        <source>Password not defined</source>
        <translation>Senha não definida</translation>
    </message>
</context>
<context>
    <name>JobStep</name>
    <message>
        <source>The input file %1 could not be read.</source>
        <translation>Não foi possível ler o arquivo de entrada %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be written.</source>
        <translation>Não foi possível gravar o arquivo de saída %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be processed.</source>
        <translation>Não foi possível processar o arquivo %1.</translation>
    </message>
    <message>
        <source>The input file %1 could not be opened.</source>
        <translation>Não foi possível abrir o arquivo de entrada %1.</translation>
    </message>
    <message>
        <source>The former output file %1 could not be removed.</source>
        <translation>Não foi possível remover o arquivo de saída anterior %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be created.</source>
        <translation>Não foi possível criar o arquivo de saída %1.</translation>
    </message>
    <message>
        <source>The output file %1 could not be stored.</source>
        <translation>Não foi possível armazenar o arquivo de saída %1.</translation>
    </message>
</context>
<context>
    <name>KeyFileDialogs</name>
    <message>
        <source>Text files</source>
        <translation>Arquivos de texto</translation>
    </message>
    <message>
        <source>The key and IV could not be saved: %1</source>
        <translation>Não foi possível salvar a chave e o IV: %1</translation>
    </message>
    <message>
        <source>The key and IV were loaded.</source>
        <translation>A chave e o IV foram carregados.</translation>
    </message>
    <message>
        <source>The key and IV were saved for %1. The selected algorithm is %2.</source>
        <translation>A chave e o IV foram salvos para %1. O algoritmo selecionado é %2.</translation>
    </message>
    <message>
        <source>Save key and IV</source>
        <translation>Salvar a chave e o IV</translation>
    </message>
    <message>
        <source>%1 key and IV.txt</source>
        <translation>%1 chave e IV.txt</translation>
    </message>
    <message>
        <source>no answer from the disk</source>
        <translation>sem resposta do disco</translation>
    </message>
    <message>
        <source>The key and IV were saved. Only you can read the file.</source>
        <translation>A chave e o IV foram salvos. Só você pode ler o arquivo.</translation>
    </message>
    <message>
        <source>Load key and IV</source>
        <translation>Carregar a chave e o IV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Não é possível ler o arquivo.</translation>
    </message>
    <message>
        <source>The file holds no key and IV.</source>
        <translation>O arquivo não contém chave e IV.</translation>
    </message>
</context>
<context>
    <name>NamingWarning</name>
    <message>
        <source>The default output folder must be an absolute path.</source>
        <translation>A pasta de saída padrão precisa ser um caminho absoluto.</translation>
    </message>
    <message>
        <source>No default output folder is given: files go beside their input.</source>
        <translation>Nenhuma pasta de saída padrão foi indicada: os arquivos ficam junto à sua entrada.</translation>
    </message>
    <message>
        <source>Encrypted files would get the names of their input files.</source>
        <translation>Os arquivos criptografados receberiam os nomes de seus arquivos de entrada.</translation>
    </message>
    <message>
        <source>Decrypted files would get the names of their input files.</source>
        <translation>Os arquivos descriptografados receberiam os nomes de seus arquivos de entrada.</translation>
    </message>
    <message>
        <source>File names would become longer than a file system takes.</source>
        <translation>Os nomes ficariam mais longos do que um sistema de arquivos aceita.</translation>
    </message>
    <message>
        <source>Files are not recognised by an extension with a dot inside.</source>
        <translation>Arquivos não são reconhecidos por uma extensão que contém um ponto.</translation>
    </message>
    <message>
        <source>Windows and most memory sticks take no names with one of %1</source>
        <translation>O Windows e a maioria dos pen drives não aceitam nomes com um destes caracteres: %1</translation>
    </message>
</context>
<context>
    <name>OptionsHandler</name>
    <message>
        <source>The options can&apos;t be saved in %1.</source>
        <translation>Não é possível salvar as opções em %1.</translation>
    </message>
    <message>
        <source>There is no translation for the chosen language.</source>
        <translation>Não há tradução para o idioma escolhido.</translation>
    </message>
    <message>
        <source>The translation can&apos;t be loaded: %1</source>
        <translation>Não é possível carregar a tradução: %1</translation>
    </message>
    <message>
        <source>Nothing is written to the log file: %1</source>
        <translation>Nada é gravado no arquivo de log: %1</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>The password contains a line break.</source>
        <translation>A senha contém uma quebra de linha.</translation>
    </message>
    <message>
        <source>The password contains a tab.</source>
        <translation>A senha contém uma tabulação.</translation>
    </message>
    <message>
        <source>The password contains a control character.</source>
        <translation>A senha contém um caractere de controle.</translation>
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
        <translation>Gerando a chave a partir da senha</translation>
    </message>
    <message>
        <source>Waiting until the disk has stored the file</source>
        <translation>Aguardando o disco armazenar o arquivo</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is &quot;Encrypting&quot; or &quot;Decrypting&quot;, %2 a speed</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1% processed</source>
        <translation>%1% processado</translation>
    </message>
    <message>
        <source>0.000% processed.</source>
        <translation>0,000% processado.</translation>
    </message>
    <message>
        <source>Remaining time: %1 hours %2 minutes %3 seconds</source>
        <translation>Tempo restante: %1 h %2 min %3 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 minutes %2 seconds</source>
        <translation>Tempo restante: %1 min %2 s</translation>
    </message>
    <message>
        <source>Remaining time: %1 seconds</source>
        <translation>Tempo restante: %1 s</translation>
    </message>
    <message>
        <source>%1 in %2 seconds, %3</source>
        <extracomment>%1 is a size, %2 a number of seconds, %3 a speed</extracomment>
        <translation>%1 em %2 s, %3</translation>
    </message>
    <message>
        <source>%1 in less than a second</source>
        <translation>%1 em menos de um segundo</translation>
    </message>
</context>
<context>
    <name>ShellIntegration</name>
    <message>
        <source>Encrypt with Quillet</source>
        <translation>Criptografar com o Quillet</translation>
    </message>
    <message>
        <source>Decrypt with Quillet</source>
        <translation>Descriptografar com o Quillet</translation>
    </message>
    <message>
        <source>Open with Quillet</source>
        <translation>Abrir com o Quillet</translation>
    </message>
    <message>
        <source>Quillet is not at %1 any more. Start it once from its new place to mend this entry of the menu, or delete the entry:</source>
        <translation>O Quillet não está mais em %1. Inicie-o uma vez a partir do novo local para corrigir este item do menu ou exclua o item:</translation>
    </message>
    <message>
        <source>Encrypt the selected files</source>
        <translation>Criptografar os arquivos selecionados</translation>
    </message>
    <message>
        <source>Decrypt the selected files</source>
        <translation>Descriptografar os arquivos selecionados</translation>
    </message>
    <message>
        <source>Open the selected files in Quillet&apos;s window</source>
        <translation>Abrir os arquivos selecionados na janela do Quillet</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Add file to encrypt/decrypt</source>
        <translation>Adicionar arquivo para criptografar/descriptografar</translation>
    </message>
    <message>
        <source>Open folder with input file</source>
        <translation>Abrir a pasta do arquivo de entrada</translation>
    </message>
    <message>
        <source>Open folder with output file</source>
        <translation>Abrir a pasta do arquivo de saída</translation>
    </message>
    <message>
        <source>Start encryption</source>
        <translation>Iniciar a criptografia</translation>
    </message>
    <message>
        <source>Start decryption</source>
        <translation>Iniciar a descriptografia</translation>
    </message>
    <message>
        <source>Stop encryption/decryption</source>
        <translation>Parar a criptografia/descriptografia</translation>
    </message>
    <message>
        <source>Clear entered data</source>
        <translation>Limpar os dados inseridos</translation>
    </message>
</context>
<context>
    <name>StrengthTexts</name>
    <message>
        <source>Password strength: very weak, guessed at once.</source>
        <translation>Força da senha: muito fraca, adivinhada na hora.</translation>
    </message>
    <message>
        <source>Password strength: weak, guessed within hours.</source>
        <translation>Força da senha: fraca, adivinhada em poucas horas.</translation>
    </message>
    <message>
        <source>Password strength: fair, guessed within a year.</source>
        <translation>Força da senha: razoável, adivinhada em até um ano.</translation>
    </message>
    <message>
        <source>Password strength: strong.</source>
        <translation>Força da senha: forte.</translation>
    </message>
    <message>
        <source>Password strength: very strong.</source>
        <translation>Força da senha: muito forte.</translation>
    </message>
</context>
</TS>
