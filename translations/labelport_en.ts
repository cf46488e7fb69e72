<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>archive::WorkerEnd</name>
    <message numerus="yes">
        <source>The file made no progress for %n second(s); see --timeout.</source>
        <translation>
            <numerusform>The file made no progress for %n second; see --timeout.</numerusform>
            <numerusform>The file made no progress for %n seconds; see --timeout.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::ImportReporter</name>
    <message numerus="yes">
        <source>%n file(s) imported.</source>
        <translation>
            <numerusform>%n file imported.</numerusform>
            <numerusform>%n files imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) had been imported before.</source>
        <translation>
            <numerusform>%n file had been imported before.</numerusform>
            <numerusform>%n files had been imported before.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) failed.</source>
        <translation>
            <numerusform>%n file failed.</numerusform>
            <numerusform>%n files failed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ignored %n other file(s).</source>
        <translation>
            <numerusform>Ignored %n other file.</numerusform>
            <numerusform>Ignored %n other files.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message numerus="yes">
        <source>The label has only %n record(s); record %1 does not exist.</source>
        <translation>
            <numerusform>The label has only %n record; record %1 does not exist.</numerusform>
            <numerusform>The label has only %n records; record %1 does not exist.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::Issues</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::Main</name>
    <message numerus="yes">
        <source>A window shows one label, but %n files were given.</source>
        <translation>
            <numerusform>A window shows one label, but %n files were given.</numerusform>
            <numerusform>A window shows one label, but %n files were given.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::OutputCommands</name>
    <message numerus="yes">
        <source>%n page(s) given to printer %1</source>
        <translation>
            <numerusform>%n page given to printer %1</numerusform>
            <numerusform>%n pages given to printer %1</numerusform>
        </translation>
    </message>
</context>
</TS>
