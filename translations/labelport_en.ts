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
    <name>cli::ListCommand</name>
    <message numerus="yes">
        <source>%n file(s) listed.</source>
        <translation>
            <numerusform>%n file listed.</numerusform>
            <numerusform>%n files listed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>repair</name>
    <message numerus="yes">
        <source>%n length(s) converted to inches</source>
        <translation>
            <numerusform>%n length converted to inches</numerusform>
            <numerusform>%n lengths converted to inches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n further page(s) imported as separate labels</source>
        <translation>
            <numerusform>%n further page imported as separate labels</numerusform>
            <numerusform>%n further pages imported as separate labels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) of the master page copied to the page</source>
        <translation>
            <numerusform>%n object of the master page copied to the page</numerusform>
            <numerusform>%n objects of the master page copied to the page</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) dissolved</source>
        <translation>
            <numerusform>%n group dissolved</numerusform>
            <numerusform>%n groups dissolved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) replaced by boxes with text</source>
        <translation>
            <numerusform>%n table replaced by boxes with text</numerusform>
            <numerusform>%n tables replaced by boxes with text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) replaced by boxes with lines</source>
        <translation>
            <numerusform>%n caption replaced by boxes with lines</numerusform>
            <numerusform>%n captions replaced by boxes with lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dimension line(s) replaced by lines and text</source>
        <translation>
            <numerusform>%n dimension line replaced by lines and text</numerusform>
            <numerusform>%n dimension lines replaced by lines and text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) on lines moved into text boxes</source>
        <translation>
            <numerusform>%n text on lines moved into text boxes</numerusform>
            <numerusform>%n texts on lines moved into text boxes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connector(s) replaced by lines or drawings</source>
        <translation>
            <numerusform>%n connector replaced by lines or drawings</numerusform>
            <numerusform>%n connectors replaced by lines or drawings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n freeform shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n freeform shape replaced by drawings</numerusform>
            <numerusform>%n freeform shapes replaced by drawings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsupported shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n unsupported shape replaced by drawings</numerusform>
            <numerusform>%n unsupported shapes replaced by drawings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) reduced to a readable picture</source>
        <translation>
            <numerusform>%n frame reduced to a readable picture</numerusform>
            <numerusform>%n frames reduced to a readable picture</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) mirrored</source>
        <translation>
            <numerusform>%n picture mirrored</numerusform>
            <numerusform>%n pictures mirrored</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Position of %n rotated object(s) corrected</source>
        <translation>
            <numerusform>Position of %n rotated object corrected</numerusform>
            <numerusform>Position of %n rotated objects corrected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stacking order of %n object(s) kept</source>
        <translation>
            <numerusform>Stacking order of %n object kept</numerusform>
            <numerusform>Stacking order of %n objects kept</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n space(s) or line break(s) between words kept</source>
        <translation>
            <numerusform>%n space or line break between words kept</numerusform>
            <numerusform>%n spaces or line breaks between words kept</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) or link(s) replaced by text</source>
        <translation>
            <numerusform>%n field or link replaced by text</numerusform>
            <numerusform>%n fields or links replaced by text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s) replaced by paragraphs</source>
        <translation>
            <numerusform>%n list replaced by paragraphs</numerusform>
            <numerusform>%n lists replaced by paragraphs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n section(s) dissolved</source>
        <translation>
            <numerusform>%n section dissolved</numerusform>
            <numerusform>%n sections dissolved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) appended to the text</source>
        <translation>
            <numerusform>%n note appended to the text</numerusform>
            <numerusform>%n notes appended to the text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n embedded document(s) replaced by their content</source>
        <translation>
            <numerusform>%n embedded document replaced by their content</numerusform>
            <numerusform>%n embedded documents replaced by their content</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n form control(s) replaced by boxes with their text</source>
        <translation>
            <numerusform>%n form control replaced by boxes with their text</numerusform>
            <numerusform>%n form controls replaced by boxes with their text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n heading(s) numbered</source>
        <translation>
            <numerusform>%n heading numbered</numerusform>
            <numerusform>%n headings numbered</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chart(s) drawn again from their values</source>
        <translation>
            <numerusform>%n chart drawn again from their values</numerusform>
            <numerusform>%n charts drawn again from their values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A4 or margins of 2 cm assumed for %n page layout(s) without them</source>
        <translation>
            <numerusform>A4 or margins of 2 cm assumed for %n page layout without them</numerusform>
            <numerusform>A4 or margins of 2 cm assumed for %n page layouts without them</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) left out that the document does not print</source>
        <translation>
            <numerusform>%n object left out that the document does not print</numerusform>
            <numerusform>%n objects left out that the document does not print</numerusform>
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
    <message numerus="yes">
        <source>Stopped after %n file(s)</source>
        <translation>
            <numerusform>Stopped after %n file</numerusform>
            <numerusform>Stopped after %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written</source>
        <translation>
            <numerusform>%n file written</numerusform>
            <numerusform>%n files written</numerusform>
        </translation>
    </message>
</context>
</TS>
