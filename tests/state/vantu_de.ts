<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>Sample</name>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
</context>
</TS>
