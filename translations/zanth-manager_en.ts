<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DocumentGuard</name>
    <message numerus="yes">
        <source>%1 byte(s)</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::FindBar</name>
    <message numerus="yes">
        <source>%n match(es)</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::ProblemCount</name>
    <message numerus="yes">
        <source>%Ln &amp;problem(s)</source>
        <translation>
            <numerusform>%Ln &amp;problem</numerusform>
            <numerusform>%Ln &amp;problems</numerusform>
        </translation>
    </message>
</context>
</TS>
