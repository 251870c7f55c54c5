<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>refdialer::PlanText</name>
    <message numerus="yes">
        <source>%1 of %2 used, %3 over, %n days left</source>
        <translation>
            <numerusform>%1 of %2 used, %3 over, %n day left</numerusform>
            <numerusform>%1 of %2 used, %3 over, %n days left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 used, %n days left, %3 a day</source>
        <translation>
            <numerusform>%1 of %2 used, %n day left, %3 a day</numerusform>
            <numerusform>%1 of %2 used, %n days left, %3 a day</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 used, %n days left</source>
        <translation>
            <numerusform>%1 used, %n day left</numerusform>
            <numerusform>%1 used, %n days left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n days from %1</source>
        <translation>
            <numerusform>Every day from %1</numerusform>
            <numerusform>Every %n days from %1</numerusform>
        </translation>
    </message>
</context>
</TS>
