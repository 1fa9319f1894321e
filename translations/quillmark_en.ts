<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n channel</numerusform>
            <numerusform>%1, %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n not mitigated</numerusform>
            <numerusform>%n not mitigated</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n saved scan</numerusform>
            <numerusform>%n saved scans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n saved scan will be removed. This can’t be undone. Remove it? [y/N]</numerusform>
            <numerusform>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n cores</numerusform>
        </translation>
    </message>
</context>
</TS>
