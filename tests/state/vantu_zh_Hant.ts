<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hant" sourcelanguage="en_US">
<context>
    <name>Sample</name>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
</context>
</TS>
