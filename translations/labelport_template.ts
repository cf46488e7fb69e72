<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Label</source>
        <comment>Dialog to open a file.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Legacy Files %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenOffice File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvanta File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legacy Tavrel File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open file &quot;%1&quot; (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Datasource key</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <comment>Datasource key</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors reading symbol items.
Please update legacy Tavrel to its latest version and re-save file.</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported barcode symbols.</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datasource not connected.</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid canvas file version (%1 != %2) in</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Error</source>
        <comment>Error message title.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors reading items.</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: Import issues.</source>
        <comment>Error message title.</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>:
	Original font size: %1.</source>
        <comment>Content of error message.</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::InputList</name>
    <message>
        <source>The list of files is no list of file names.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::Progress</name>
    <message>
        <source>%1 files/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::Publish</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists and was not made by labelport, or may have been changed since; it is left as it is (--force overwrites it)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>another of the given files has the same name, so both would become %1; import them into different folders with --output-dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal in the output folder cannot be written, so --resume will do some files again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The processes that import files cannot be started, or end at once. A larger --memory-limit may help.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Nothing can be written to the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::WorkerDeath</name>
    <message>
        <source>the file needed more than %1 MiB of memory (--memory-limit)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file took more than %1 seconds without getting on (--timeout)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its import was killed twice, perhaps because the machine had no memory left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its import crashed twice (%1); please report the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its import ended in disorder, twice; please report the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its import ended twice by itself (status %1); please report the file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ArchiveReports</name>
    <message>
        <source>The report %1 cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::CommandLine</name>
    <message>
        <source>Show this text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; tells more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::FormatsCommand</name>
    <message>
        <source>binary canvas files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2000016 to 2000024; newer ones are read as 2000024</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XML labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenDocument texts and drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all, as packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>labels saved by LabelPort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read (import, inspect):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>versions: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written (import --to):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells which files are read, in which versions, and what can be written.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell it as JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It takes no files.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>The folder %1 cannot be searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped. The same command with --resume goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no label to import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;labelport import --help&quot; tells more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 files did not come over whole.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Standard input cannot be kept for the import: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is longer than any label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of files %1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, label; several with commas (default: png).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to write to; made when it is missing (default: the current one). It gets the subfolders of a folder that is imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dots per inch of pictures, 10 to 2400 (default: 300).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range as 3-12 or 3-, or all (default: the first). A series of pictures is numbered; a PDF has a page for each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite files that LabelPort did not make.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read every file as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever its name. Standard input needs it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import what a file lists as well, a name on each line or between NULs; - reads the list from standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list&apos;s names stand between NULs, as find -print0 writes them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Named and listed files below this folder keep their subfolders in the output folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files to import at the same time (default: one for each processor core).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give a file up that does not get on for so long; 0 waits for ever (default: 60).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give a file up that needs more memory than so much; 0 sets no limit (default: 4096).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out what an earlier command with the same options did, if neither the file nor its outputs have changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K/N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, so that N machines can share an archive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End with status 3 when a label did not come over whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On standard error, tell what failed and nothing else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be written; --to takes: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--records takes a number, a range as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--shard takes a part and their number, as 3/8, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A report is written to a file whose name ends in .json or .html, not to &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--memory-limit takes 0 or at least %1 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file to import was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input has no name, so --reader must say what it is: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg), opens saved ones (*.label),
and writes what they show. A folder is searched with its subfolders for files of these
names. What was written is listed on standard output, in the order of the files&apos; names.

Examples:
  labelport import shelf.odg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import - --reader opendocument

Exit status: 0 everything was imported, 1 something failed, 2 wrong usage, 3 something
was lost (with --fail-on-loss), 130 stopped by a signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportTeller</name>
    <message>
        <source>warning: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 files were imported, %3 had been done before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files were passed over: only names that end in %2 are taken from folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 files failed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Tells what one label holds, what of it comes over and what does not. Writes nothing.

Examples:
  labelport inspect shelf.odg
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to look into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell it as JSON, as reports have it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the file as tavrel, orvanta or opendocument, whatever its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the process that opens it cannot be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It takes one file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>&quot;%1&quot; is no reader; --reader takes: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message>
        <source>it has only %1 records, none with the number %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; name a part of them with --records</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::Main</name>
    <message>
        <source>What is it to do? &quot;labelport --help&quot; tells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; &quot;labelport --help&quot; tells what is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: labelport COMMAND [ARGUMENT...]

Opens legacy label templates: *.cnv and *.roc, *.qmtx, *.odt and *.odg, and labels saved by
LabelPort: *.label. Each command tells more with --help.

Commands:
  import FILE...   import labels, or folders of them, and write what they show
  inspect FILE     tell what a label holds, and what of it comes over
  report merge     put the reports of several imports together
  formats          tell what is read and what can be written
  trace FILE       print every call that an import makes on its host, as JSON lines

  --help           show this text
  --version        show the version

Examples:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport inspect shelf.odg
  labelport trace shelf.odg

Exit status: 0 all went well, 1 something failed, 2 wrong usage, 3 something was lost
(import --fail-on-loss), 130 stopped by a signal.
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ReportCommand</name>
    <message>
        <source>Makes one report of the JSON reports of several commands, as one command over all
files would have written it.

Examples:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do: put reports together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report that an import wrote as JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports can be put together: &quot;report merge&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It takes the reports to put together, and --to says where the whole goes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Actions</name>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a saved label or a legacy one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports a legacy label and saves it beside the old file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the label under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the label as a picture, a drawing or a document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the label, or a series of its records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects no item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the label larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the label smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Whole Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the whole label, and keeps it whole when the window changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;True Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the label in the size in which it is printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the selected items as large as they fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows or hides the rulers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Millimeters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows lengths in millimeters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;ches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows lengths in inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Like the &amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the colors of the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark text on light windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light text on dark windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the keyboard on the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the list of items and puts the keyboard on it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the properties of an item and puts the keyboard on them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the data sources and puts the keyboard on them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the issues and puts the keyboard on them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the first record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the record before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the record after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the last record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the keyboard on the record&apos;s number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what program this is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label. The arrow keys move the selected items.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the file in a dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> dpi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution in dots per inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;solution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One document of %1 pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files: %2 and so on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” exists already. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::DialogImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::IssueListModel</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::IssuesPanel</name>
    <message>
        <source>Issues of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to report.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ItemDescription</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flipped left to right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flipped top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thinnest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sixth of the shorter side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End, to the right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End, down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark at the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>data source %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ItemPanel</name>
    <message>
        <source>Items of the label</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ItemTableModel</name>
    <message>
        <source>cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
    <message>
        <source>The label could not be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1

The label is still open. Save it in another folder with “Save As”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::MainWindow</name>
    <message>
        <source>LabelPort Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LabelPort Workbench %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens legacy label templates, shows them, keeps them and hands them on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A window holds one label: only the first file was opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::MoveItems</name>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::OutputCommands</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped after %1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label could not be exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing was stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pages were given to the printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::OutputJob</name>
    <message>
        <source>The printer did not take the pages. See that it is switched on and connected, or print into a PDF file with “Export”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>All labels (*.label *.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved labels (*.label)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legacy labels (*.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes that are not saved will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Imported Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label was imported. It can replace that file, be saved under another name, or be saved later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Other Name…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LabelPort Workbench</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::PropertyModel</name>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::PropertyPanel</name>
    <message>
        <source>Properties of the selected item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::RecordChooser</name>
    <message>
        <source>The one &amp;shown (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::RuledCanvas</name>
    <message>
        <source>Change between millimeters and inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the rulers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Ruler</name>
    <message>
        <source>Horizontal ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ShortcutsDialog</name>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys; further with Shift, a little with Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space and left button, or middle button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::SourcePanel</name>
    <message>
        <source>Data sources of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of the record that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::SourceTableModel</name>
    <message>
        <source>Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2, step %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::StatusLine</name>
    <message>
        <source>Record %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::StyleNames</name>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formatted text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pentagon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexagon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Octagon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>solid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dashes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dash, dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dash, dot, dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>round</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pointed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rounded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, densest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, very dense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, dense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, half</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, very light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen, lightest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>horizontal lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertical lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rising lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>falling lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>diagonal grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>small arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>double arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dimension stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>width and height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>justified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>middle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::WelcomePage</name>
    <message>
        <source>Drop a label here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved labels (*.label) and legacy ones: binary canvas files (*.cnv, *.roc), XML labels (*.qmtx), OpenDocument texts and drawings (*.odt, *.odg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open a Label…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import a Legacy Label…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::WindowPanels</name>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes a picture of the window as PNG as soon as it is there, and ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a window holds one label, but %1 were named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::Census</name>
    <message>
        <source>The file cannot be opened to count its objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large to count its objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package has no readable part %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no list of items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file goes on with something unknown, which may hold more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file ends in the middle of a record: it may have held more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no binary label of a known version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::HtmlCard</name>
    <message>
        <source>no picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>took too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Came over whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the import said</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did not come over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Came over changed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
    <message>
        <source>%1 of %2 files came over whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole: nothing lost, nothing changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed in their looks, nothing lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of %1 objects in these files, %2 came over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In %1 files the objects could not be counted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was lost or changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can be done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>took too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>most problems first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>most objects lost first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>worst status first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort and filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Migration report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>en</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file fits the search.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::Inspect</name>
    <message>
        <source>kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items (millimetres):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page: %1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Came over whole:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Came over changed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did not come over:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the import said:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::ItemLosses</name>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::KindNames</name>
    <message>
        <source>picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>formatted text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>barcode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rounded rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>diamond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pentagon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hexagon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>octagon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the document in its own program, ungroup the objects, save, and import again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save each page as a document of its own and import those.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy them from the master page to the page itself and import again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw them as plain lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert them to a picture or to plain shapes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace each by a text and a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert them to a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace each by a text, if it is to be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Embedded objects, such as charts and formulas, were left out; an empty box is in their place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects inside texts, text boxes or other objects were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anchor them to the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only its texts, text boxes and pictures are taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the label into a drawing instead of a text document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and objects in tables were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put them into text boxes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the bullets or numbers off, so that the list becomes plain paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the section and keep its content.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy them into the document itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the hyperlinks and keep their texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace each by its text, or by a data source after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of texts were left out, because their kind is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare the texts with the old label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of shapes were left out: they do not begin with a plain paragraph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn them into plain paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put their texts into text boxes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing, unless somebody needs them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects were left out, because their kind is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with the old label and draw them anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects were left out, because their kind of control is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file lists objects more than once; all but the first list were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the file in its own program and save it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If a picture is missing, put it in after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures are missing: they are damaged, too large or of an unknown format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save them as PNG and put them in after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector drawings are missing: they cannot be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert them to PNG and put them in after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols are missing: neither the file nor the symbol databases have a drawing of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the label with the newest version of its own program, which stores the drawings, or add them to the symbol databases.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes were left out, because their type is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another type, and put them in after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was read from an unknown record on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged or of a newer version: look for another copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file ends in the middle: its last object is incomplete, and more may be missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for another copy of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy its content into a drawing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something was left out, because it is larger than anything on a real label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the label smaller, or its pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects of the file are not on the label, and the import has not said why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with the old label, and tell the makers of this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import had more to say than was kept: there may be losses that are not listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import this file alone and look at the label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the nearest shape after the import, or put them in as a symbol.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show what was last in them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind them to a data source after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label was linked to a database file, and is no longer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect the data after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words are bound to a data source: they show its value alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the other words into texts of their own, or into the data source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn: their type does not allow their content.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the content or choose another type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan the old label and choose the right type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items lie wholly outside the page: they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move them onto the page, or delete them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items reach beyond the edge of the page: that part is not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with the old label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes, positions or fonts are larger than anything on a real label, and were limited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document measures in millimetres: the label is ten times larger than the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print at a tenth of the size, or save the document with centimetres or inches as its unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page: they were read as if they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the document with one unit throughout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the size of the page after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects without a position on the page were put where the text runs, or into the corner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned lines and slanted or scaled objects lost that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts that are not on this machine were replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the fonts and import again, if the looks matter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretched texts are not stretched any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a font size that fits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the color after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split such a text into paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradients, hatchings and pictures that fill objects were simplified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a fill after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadows, transparency, cropping and other effects were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import has something to say about this label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read it, and compare with the old label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes that have no counterpart became rectangles or ellipses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text: they show what they showed when the document was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is measured in a unit that is not known: its numbers were read as inches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the document with centimetres or inches as its unit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of the page is not that of the file: it gives none, or that of another page came first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in its corner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the texts after the import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text runs down one page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The report %1 has an entry that describes no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 stands in the reports more than once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report %1 has changed meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::ReportReader</name>
    <message>
        <source>The report %1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no report of LabelPort: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not begin as one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no list of files, or is of a version that is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not name its format</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>The report %1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>%1 objects came over; how many the file holds is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 objects came over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost; something was changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>Usage: labelport-trace FILE (see labelport-trace --help)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not imported; the trace tells how far it came</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write to standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write the trace: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports a legacy label into a host that records, and prints every call on it
as JSON Lines, then what has become of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label to import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one file at a time, please</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::BarcodeEncoder</name>
    <message>
        <source>%1: the content has a length that this kind of barcode does not take%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content does not suit this kind of barcode%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content ends in a wrong check digit%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content does not go together with the barcode&apos;s settings%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content is too much for the memory%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content cannot be encoded%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for the barcode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content needs a linear part, a &quot;|&quot; and a second part.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content is too long for any barcode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the content gives no bars at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label asks for a kind of barcode that is not known (number %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::FailureWords</name>
    <message>
        <source>The file is no binary label, or one of a version that cannot be read: it says version %1, but 2000016 is the oldest that can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large for a label: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is damaged: its part %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no label or a damaged one: it is not well-formed XML at line %1, column %2 (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its outermost element is not &quot;qmtx&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no label, or a damaged one: its first item is of an unknown kind (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no OpenDocument file, or a damaged one: it has no readable part styles.xml.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: it has no readable part content.xml.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds nothing that can be put on a label.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>fields::FieldProblem</name>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is longer than %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a group of fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number in range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a width and a height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a known type of item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a set of properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::FileCheck</name>
    <message>
        <source>No file was named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but by its name it is a binary label. If it is an OpenDocument file, rename it so that its only dot is that of &quot;.odt&quot; or &quot;.odg&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is XML, but by its name it is a binary label. If it is an XML label, rename it so that its only dot is that of &quot;.qmtx&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::IssueWords</name>
    <message>
        <source>An object of the kind &quot;%1&quot; was left out: the kind is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out of the label: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file goes on with a record of an unknown kind (%1): nothing was read from there on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LabelFile</name>
    <message>
        <source>The label cannot be saved as %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its pictures are too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than any label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: its data sources do not fit together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a saved label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: version is not a positive whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label was saved by a newer version of the program: its format is %1, and this version knows formats up to %2. Update the program to open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: label is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: its content has changed since it was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a saved label, or it is damaged: after %1 bytes it cannot be read any further.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: it holds more than any label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label file is damaged: its pictures are too large.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LabelImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PageExport</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is longer than %1 points, the most that a PDF document can have.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PageImage</name>
    <message>
        <source>The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots per inch. The largest picture is %6 pixels along a side and %7 million in all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Up to %1 dots per inch are possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The resolution must be above 0 dots per inch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 by %2 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no table of symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::Symbologies</name>
    <message>
        <source>barcode kind %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EAN with check digit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPC-A with check digit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPC-E with check digit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
