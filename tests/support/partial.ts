<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="eo" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Brightness</source>
        <translation>Heleco</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished">Kontrasto</translation>
    </message>
    <message>
        <source>Follow Setting</source>
        <translation type="vanished">Sekvado</translation>
    </message>
    <message>
        <source>LANGUAGE_SHORTCUTKEY</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
