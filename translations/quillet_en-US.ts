<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>CPasswordGeneratorDialog</name>
    <message numerus="yes">
        <source>Puts the password on the clipboard, from where it is removed after %Ln seconds.</source>
        <translation>
            <numerusform>Puts the password on the clipboard, from where it is removed after %Ln second.</numerusform>
            <numerusform>Puts the password on the clipboard, from where it is removed after %Ln seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits.</source>
        <translation>
            <numerusform>%Ln bit.</numerusform>
            <numerusform>%Ln bits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password is on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>The password is on the clipboard for %Ln second.</numerusform>
            <numerusform>The password is on the clipboard for %Ln seconds.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueJob</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CQueueList</name>
    <message numerus="yes">
        <source>%Ln files, %1</source>
        <translation>
            <numerusform>%Ln file, %1</numerusform>
            <numerusform>%Ln files, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CRequestHost</name>
    <message numerus="yes">
        <source>Of %1 files, %Ln seem to be encrypted already.</source>
        <translation>
            <numerusform>Of %1 files, %Ln seems to be encrypted already.</numerusform>
            <numerusform>Of %1 files, %Ln seem to be encrypted already.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSetKeyAndIvDialog</name>
    <message numerus="yes">
        <source>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</source>
        <translation>
            <numerusform>Puts key and IV on the clipboard, from where they are removed after %Ln second.</numerusform>
            <numerusform>Puts key and IV on the clipboard, from where they are removed after %Ln seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key and IV are on the clipboard for %Ln seconds.</source>
        <translation>
            <numerusform>The key and IV are on the clipboard for %Ln second.</numerusform>
            <numerusform>The key and IV are on the clipboard for %Ln seconds.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CSubjectLabel</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileQueue</name>
    <message numerus="yes">
        <source>%1 of %Ln files encrypted</source>
        <translation>
            <numerusform>%1 of %Ln file encrypted</numerusform>
            <numerusform>%1 of %Ln files encrypted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln files decrypted</source>
        <translation>
            <numerusform>%1 of %Ln file decrypted</numerusform>
            <numerusform>%1 of %Ln files decrypted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln skipped</source>
        <comment>after &quot;9 of 11 files encrypted&quot;</comment>
        <translation>
            <numerusform>%Ln skipped</numerusform>
            <numerusform>%Ln skipped</numerusform>
        </translation>
    </message>
</context>
</TS>
