<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CErrMsg</name>
    <message>
        <location filename="CErrMsg.cpp" line="1"/>
        <source>File not found</source>
        <comment>disambiguation</comment>
        <translation>Datei nicht gefunden &amp; weg</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation type="unfinished">Unfertig</translation>
    </message>
    <message>
        <source>Object busy</source>
        <translation type="vanished">Verschwunden</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Bell<byte value="x7"/></source>
        <translation>Glocke<byte value="x7"/> von ${app}</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Weg</translation>
    </message>
</context>
</TS>
