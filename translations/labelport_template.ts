<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QDomParser</name>
    <message>
        <source>Unexpected token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiple DTD sections are not allowed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::PreparedList</name>
    <message>
        <source>it was written by another version of labelport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
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
        <source>a folder of that name exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and it was not written by labelport or has been edited since. Use --force to overwrite it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>Another input has the same name; both would become &quot;%1&quot;. Keep their subfolders with --base, or use different --output-dir folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the journal in the output folder; --resume will import some files again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot start the worker processes, or they exit at once. Try a larger --memory-limit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Cannot write to &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file of that name exists</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>archive::WorkerEnd</name>
    <message>
        <source>The file needs more than %1 MiB of memory; see --memory-limit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The file made no progress for %n second(s); see --timeout.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The worker process was killed twice; perhaps the machine is out of memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import crashed twice (%1). If a larger --memory-limit does not help, please report the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The worker process sent an invalid reply twice; please report the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The worker process exited twice with status %1; please report the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import was stopped twice because it tried something that its sandbox forbids. Do not trust the file, and please report it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ExistingOutput</name>
    <message>
        <source>A report is a file that ends in .json or .html, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of a report must be valid UTF-8: &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not writable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists and is not a report of labelport. Use --force to overwrite it.</source>
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
        <source>labels saved by LabelPort</source>
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
        <source>all versions (zipped)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>formats takes no files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 labels of %3 × %4 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheets (--sheet):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plain paper, with as many labels as fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sandbox in which files are read, on this system: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>Stopped. Repeat the command with --resume to continue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No labels to import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Cannot read the list of files &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list of file names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;: it excludes other files, --base, --shard and --null.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot search folder &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 expects a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown target &quot;%1&quot;. Supported targets: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--records expects a number, a range such as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--shard expects the number of a part and of all parts, such as 3/8, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--memory-limit expects 0 or at least %1 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file to import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--files-from can be given only once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--base has no effect without --files-from or a named file in a subfolder of that folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends in none of the targets&apos; suffixes; specify one with --to: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between the last two targets: &quot;pdf or zpl&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 expects one of %2 for the target %3, not &quot;%4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 has no effect without --to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--output and --%1 exclude each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--output needs a file name, one input file and one target.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--json and --print0 exclude each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown sheet &quot;%1&quot;. &quot;labelport formats&quot; lists the sheets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 has no effect without --sheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--output - cannot be used with --to glabels, which may write a second file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 and --output - both write to standard output. Use only one of them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ImportReporter</name>
    <message>
        <source>Warning: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) imported.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) had been imported before.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ignored %n other file(s).</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) failed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 could not be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This system has no complete sandbox, which --require-sandbox demands. It has: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the first %1 pages were imported; the document has more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Cannot start the worker process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inspect needs exactly one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message numerus="yes">
        <source>The label has only %n record(s); record %1 does not exist.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; select a range with --records.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ListCommand</name>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and is not a list of labelport.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file to list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the folder of the lists with --to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label from standard input cannot be listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No labels to list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) listed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::LossSummary</name>
    <message>
        <source>Labels imported completely: %1, with changes: %2, with losses: %3, failed: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All details: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All details: add --report report.html, or run labelport inspect on a file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::Main</name>
    <message>
        <source>Usage: labelport COMMAND [ARGUMENT...]

Imports legacy label templates (*.cnv and *.roc, *.qmtx, *.odt and *.odg) and opens labels saved by
LabelPort (*.label). Help of a command: labelport COMMAND --help

Commands:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command given. See &quot;labelport --help&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
  --help           show this help
  --version        show the version

Examples:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport print asset.label --printer zebra --records 1-40
  labelport inspect shelf.odg
  labelport records asset.qmtx --to records.csv
  labelport trace shelf.odg

Exit status: 0 success, 1 a file failed, 2 wrong usage, 3 a label was not imported completely
(import --fail-on-loss), 130 stopped by a signal.
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::Options</name>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort a file after this many seconds without progress; 0 for no limit (default: 60).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort a file that uses more memory than this; 0 for no limit (default: 4096).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read files as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever their names. Default: by the suffix, or else by the content.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to write to; created if missing (default: the current folder). Subfolders of an imported folder are kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite files that labelport did not write, and edited labels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names in the list are separated by NUL, as find -print0 writes them.</source>
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
        <source>Skip files that an earlier command with the same options imported, if they and their outputs are unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K/N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, to share an archive among N machines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit with status 3 if a label was not imported completely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End each file name on standard output with NUL instead of a line break.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report only errors on standard error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print JSON, as in reports.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite files that are not reports of labelport.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what one label contains, and what of it is imported. Writes no files.

Examples:
  labelport inspect shelf.odg
  labelport inspect - --reader orvanta &lt; shelf.xml
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merges the JSON reports of several imports into the report that one import of all files
would have written.

Examples:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>import labels, or folders of labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show what a label contains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to inspect; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>merge the reports of several imports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON reports to merge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list supported formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print every call that an import makes on its host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg), opens saved labels (*.label),
and writes them as pictures, drawings, documents or saved labels. A folder is searched with
its subfolders for files with these suffixes. The files written are listed on standard
output, in the order of the names of the inputs.

Examples:
  labelport import shelf.odg
  labelport import shelf.odg -o label.svg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import asset.label --to pdf --records 1-40 --sheet L7160 --first-position 5
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import -

Exit status: 0 all files imported, 1 a file failed, 2 wrong usage, 3 a label was not
imported completely (with --fail-on-loss), 130 stopped by a signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints labels through CUPS, each on paper of its own size, or on sheets. All labels of the
same paper are one job of the printer. If a label cannot be printed, nothing is. The
identifiers of the jobs are listed on standard output.

Examples:
  labelport print asset.label --printer zebra --records 1-40 --copies 2
  labelport print new/*.label --sheet L7160 --first-position 5

Exit status: 0 printed, 1 a label or the printer failed, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists what each item shows that is bound to a data source (a counter, a list, a date), as
a CSV table: a line for each record, a column for each item.

Examples:
  labelport records asset.qmtx --to records.csv
  labelport records asset.label --records 1-50 | column -t -s ,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the formats that labelport reads, with their versions, the formats that it writes, and the
sheets for --sheet.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import nothing unless the files are read in a complete sandbox; see &quot;labelport formats&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the labels on sheets: L7160, 5160 and others, or A4, Letter and other plain paper; see labelport formats. Default: paper of the label&apos;s size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First free label of the first sheet, counted from 1 along the rows (default: 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies of each record, one after the other, in documents, printer files and prints (default: 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print marks on the edges of sheets that show where to cut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import OpenDocument files without repairing them first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to write the only input to; - is standard output. Without --to, its suffix selects the target.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution of pictures in dots per inch, 10 to 2400; of a label printer 203, 300 or 600 (default: 300).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range such as 3-12 or 3-, or all (default: the first). Pictures of a range are numbered; a PDF has one page and a printer file one label for each record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the label printer draw barcodes and lines where it can, and advance counters. Otherwise labels are pictures and exact.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print an event in JSON for each file, instead of the names of the files written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer to use; lpstat -e lists all (default: the default printer).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the labels&apos; data sources: a number, a range such as 3-12 or 3-, or all (default: the first).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV file to write; - is standard output (default: -).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records to list: a number, a range such as 3-12 or 3-, or all (default: all).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite an existing file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to print; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list what bound items show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to read; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, zpl, csv, label, glabels; several with commas (default: png).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the labels of a large archive once, as several lists that machines import on their own:
&quot;labelport import --files-from LIST&quot; reads neither the archive&apos;s folders nor the other lists.
Output names are chosen over the complete archive. The lists are named 1.jsonl, 2.jsonl and so
on; their names are listed on standard output.

Examples:
  labelport list archive --shards 100 --to lists
  labelport import --files-from lists/17.jsonl --to label --output-dir new --resume

Exit status: 0 success, 1 a folder or list failed, 2 wrong usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also take the files named in this list, one name on each line or separated by NUL; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to write the lists to; created if missing. Lists of an earlier command are replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of lists, up to 100000 (default: 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder that the labels will be imported to, if it is in the archive: it is not searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list the labels of an archive for several machines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label or folder of labels to list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::PrintCommand</name>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot print: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file to print.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input can be given only once.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::RecordsCommand</name>
    <message>
        <source>records needs exactly one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to needs a file name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::ReportCommand</name>
    <message>
        <source>No command given: labelport report merge REPORT.json... --to FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command &quot;report %1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the reports to merge, and the output file with --to.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cli::TraceCommand</name>
    <message>
        <source>Cannot run &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>console::CommandLine</name>
    <message>
        <source>Unknown option &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help: %1 --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you mean &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>console::Output</name>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>console::StandardInput</name>
    <message>
        <source>Cannot copy standard input to a temporary file: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read standard input: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input is longer than any label.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>exporting::ExportFile</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>exporting::ExportFindings</name>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>exporting::Glabels</name>
    <message>
        <source>Only the first records are in the CSV file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no such shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no gradients and no hatches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no dashed lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no round or beveled corners.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no arrows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no round line ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A large picture was scaled down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels has no such text format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The content cannot be encoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels does not encode this barcode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels cannot encode some of the records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It shows the first record only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text from a data source is not underlined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Justified text is aligned left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels knows only installed fonts: &quot;%1&quot; became &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels 3 distorts text at such angles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text in several formats became a text for each line, format or word.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>exporting::Targets</name>
    <message>
        <source>Re&amp;solution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resolution in dots per inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dpi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copies of each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sheet of labels, or paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First &amp;label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first free label of the first sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;rop marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>marks on sheets that show where to cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Printer resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resolution of the label printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Barcodes, lines and counters by the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>let the printer draw barcodes and lines, and advance counters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ZPL for label printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>commands for a label printer, a label for each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV table of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>table of what bound items show, a line for each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LabelPort label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LabelPort labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gLabels labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>label for gLabels, with its records in a CSV file</source>
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
    <message>
        <source>a known status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of whole numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of rectangles</source>
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
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file continues with unknown data, which may contain more objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is truncated: it may have contained more objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a binary label of a supported version.</source>
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
        <source>%1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported completely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a larger picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document&apos;s own picture of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In gLabels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
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
        <source>Imported %1 of %2 objects in these files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files whose objects could not be counted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>most lost objects first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 files imported completely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that were read without a complete sandbox: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crashed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in the LabelPort workbench</source>
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
        <source>Page: %1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items (millimeters):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported completely:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported with changes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not imported:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sandbox: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repaired:</source>
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
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
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
        <source>Texts and objects in tables were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only texts, text boxes and pictures are imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of texts were left out because their type is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of shapes were left out because they do not begin with a plain paragraph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects were left out because their type is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls were left out because their type is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has several lists of objects; all but the first were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures were left out because they are damaged, too large or of an unsupported format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vector drawings were left out because they cannot be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbols were left out because neither the file nor the symbol databases contain their drawings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes were left out because their type is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file continues with an unknown record; the rest was not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is truncated: its last object is incomplete, and more may be missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content was left out because it exceeds the limits for labels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects of the file are missing on the label, without a reported reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported shapes became rectangles or ellipses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show their last value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label is no longer linked to its database file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words show only the value of the data source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text with the value that they had when the document was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn because their content is invalid for their type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items are completely outside the page: they are not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items extend beyond the edge of the page: that part is not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes, positions or fonts exceed the limits for labels and were reduced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page, but were read as if they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects without a position on the page were placed in the text flow or in the corner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in the corner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text is on one page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation of lines, and skewing and scaling of objects, were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts that are not installed were replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretched texts are no longer stretched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import reported a problem with this label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of lines and dimension lines were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the symbols to the symbol databases and import again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log was cut, or the label is too large to compare: there may be losses that are not listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind the items to a data source in labelport-workbench.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct the content or the type in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the type in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the items onto the page in labelport-workbench.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document uses millimeters: the label is a hundred times larger than the paper. Fonts and lines did not grow with it, so that texts are hardly visible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit of the page is not supported: its lengths were read as inches, so that points become 72 times too large. Fonts and lines did not grow with them, so that texts are hardly visible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the fonts and import again, or choose another font in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the font size in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts differ from the document: words run together, or line breaks or words are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or correct the text in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts can hardly be read: their color is too similar to what is under them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or set the color in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts are printed over each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the texts in labelport-workbench.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items are covered by others, which they are not in the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the items in labelport-workbench.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items have another place or size than in the document, by more than 1 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrored shapes are no longer mirrored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items cannot be seen, because they have the color of what is under them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another fill in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boxes are filled that are not filled in the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines are more than a quarter thinner or thicker than in the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent fills and lines became opaque.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures and patterns that fill objects were replaced by a color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages were left out, because the document has too many or they cannot be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts along a curve became straight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers of headings were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the numbers in labelport-workbench under Properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills of objects, such as gradients and hatchings, were simplified or dropped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of the page was assumed: the file defines none, or several.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks of texts were dropped, such as shadow, outline, borders, rotation, kinds of underlines, drop caps, tab stops, fixed line heights, numbers of lines, picture bullets, marks of changes, pictures below texts and grounds of sections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines beside objects break elsewhere than in the document; objects there may have moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns, linked text boxes, endnotes, and tables in headers, footers and cells follow each other in one column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Borders of cells have other lines than in the document, or are missing in tables within tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Embedded documents and charts were drawn again from their content: sizes, fonts and details may differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shadows, transparency of pictures, cropping, borders that differ by side and other effects were dropped.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The reports contain the file &quot;%1&quot; more than once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; has changed during the merge.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::ReportLines</name>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a report of LabelPort: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 does not name the format, or an unsupported version of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 does not describe a file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>Cannot write the report &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>Not imported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects imported: %1 (the number of objects in the file is unknown).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1 of %2 objects.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>imported completely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>imported with changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The content is complete; looks changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>imported with losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content was lost or changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>printing::PrintDocument</name>
    <message>
        <source>%1 labels in %2 copies are more than the %3 of one document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet &quot;%1&quot; has no position %2; its positions are 1 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>printing::PrintQueue</name>
    <message>
        <source>Cannot run &quot;%1&quot;. Install the client commands of CUPS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server does not reply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>printing::Sheet</name>
    <message>
        <source>%1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sides of the paper must be from 1 to %1 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sides of a label must be at least 1 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The labels of the sheet overlap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The labels of the sheet exceed the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label is %1; the labels of sheet &quot;%2&quot; are only %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>repair</name>
    <message>
        <source>The document could not be repaired: it was imported as it is written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n length(s) converted to inches</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Page size taken from the master page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text laid out with its margins, spacing, pictures and tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n further page(s) imported as separate labels</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) of the master page copied to the page</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) dissolved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) replaced by boxes with text</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) replaced by boxes with lines</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dimension line(s) replaced by lines and text</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) on lines moved into text boxes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connector(s) replaced by lines or drawings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n freeform shape(s) replaced by drawings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsupported shape(s) replaced by drawings</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) reduced to a readable picture</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) mirrored</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Position of %n rotated object(s) corrected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stacking order of %n object(s) kept</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n space(s) or line break(s) between words kept</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) or link(s) replaced by text</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s) replaced by paragraphs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n section(s) dissolved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) appended to the text</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n embedded document(s) replaced by their content</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n form control(s) replaced by boxes with their text</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n heading(s) numbered</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chart(s) drawn again from their values</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A4 or margins of 2 cm assumed for %n page layout(s) without them</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) left out that the document does not print</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sandbox::Confinement</name>
    <message>
        <source>files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>system calls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came; --reader selects another reader.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
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
        <source>Show the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trace needs exactly one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
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
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
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
        <source>&amp;Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
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
        <source>&amp;Next</source>
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
        <source>&amp;Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
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
    <message>
        <source>Opens a saved label, or imports a legacy one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the labels of a folder with their states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the previous label of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the next label of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected items and deletes them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected items to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the items of the clipboard to the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a copy of each selected item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edits the text of the selected item on the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Fr&amp;ont</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected items above all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Raise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected items above the next item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected items below the next item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Bac&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected items below all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Le&amp;ft Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the left edges of the selected items; a single item is aligned to the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align &amp;Centers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a vertical line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Ri&amp;ght Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the right edges of the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align &amp;Top Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the top edges of the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align &amp;Middles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a horizontal line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align &amp;Bottom Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aligns the bottom edges of the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distribute &amp;Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the horizontal gaps between the selected items equal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distribute &amp;Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the vertical gaps between the selected items equal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the labels of the folder and moves keyboard focus to them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the document&apos;s own preview next to the label, with a slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Connect CSV File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows columns of a CSV file in items of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Data Source…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes the counter, date, list or file that is selected in the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the manual of this window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open as &amp;Written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the imported document without repairs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in &amp;Selected Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the selected texts and barcodes show the data source of the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Co&amp;unter…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a counter and shows it in the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Date and Time…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the date and the time of printing and shows them in the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New List of &amp;Texts…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a text for each record and shows it in the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undoes the last change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redoes the last undone change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the label in its printed size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses the colors of the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves keyboard focus to the canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the list of items and moves keyboard focus to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the properties of an item and moves keyboard focus to them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the data sources and moves keyboard focus to them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the issues and moves keyboard focus to them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the previous record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the next record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves keyboard focus to the record number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the keys of all commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the version of the program</source>
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
    <message>
        <source>The item has no text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item shows a data source; its own text is shown only without one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ChangePage</name>
    <message>
        <source>Change Page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ComparisonPanel</name>
    <message>
        <source>The original document has no preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ComparisonView</name>
    <message>
        <source>Original and label</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Corrections</name>
    <message>
        <source>Replace Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font for all texts in %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind to Data Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data source:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace F&amp;ont…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Color…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;scale…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bind to Data Source…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::CsvDialog</name>
    <message>
        <source>The first line &amp;names the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items and their columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect CSV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Items of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Separator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows-1252</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>– not from this file –</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::EditActions</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard contains no items of a label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only items were not deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>&amp;Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Label</source>
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
        <source>&amp;Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ile</source>
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
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One file of %1 records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One file. The records are in a table next to it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ImportProcess</name>
    <message>
        <source>Cannot start the program “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import ended without a result.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import was canceled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Issues</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repaired</source>
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
        <source>%1 (%2 times)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No label is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you can do</source>
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
        <source>Picture</source>
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
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text below the bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blank margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bearer bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check digit or columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>different values</source>
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
    <name>window::LabelListPanel</name>
    <message>
        <source>Filter by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels of the folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 labels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
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
    <name>window::LabelStates</name>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Locks</name>
    <message>
        <source>%1 is read-only. To move it, clear “Read-only” in its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to the background. To move it, clear “Background” in its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is locked. To move it, set “Movable” in its properties.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes a picture of the window to a PNG file, and exits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>A window shows one label, but %n files were given.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot show a window: there is no display. Set DISPLAY or WAYLAND_DISPLAY, or use --screenshot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg; or a folder of labels.</source>
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
    <message>
        <source>There are no labels in “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open “%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To show the data source, select texts or barcodes, then “Show in Selected Items”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” contains too many files; the list of labels is not complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens legacy label templates; corrects, saves, exports and prints them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::ManualDialog</name>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
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
        <source>Written: %1</source>
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
        <source>Print to PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) given to printer %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n file(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PagePreview</name>
    <message>
        <source>Preview of the page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;inter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds labels of other files to the print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels (%1);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – the preview shows its first labels only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>Saved labels (*.label)</source>
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
    <message>
        <source>Open Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All labels (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legacy labels (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::PropertyDelegate</name>
    <message>
        <source>pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Enter ends editing, Esc cancels it</source>
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
        <source>Properties of the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1</source>
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
    <name>window::ReplacementFile</name>
    <message>
        <source>Replace Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot use &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawings (*.svg);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not an SVG drawing, or it is too large.</source>
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
    <name>window::SelectionTool</name>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::SheetEditor</name>
    <message>
        <source>%1 – %2 × %3 labels of %4 × %5 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of a label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of a label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap between columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap between rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First free position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop &amp;marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label&apos;s own size (%1 × %2 mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, as many labels as fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet with the measures below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns, rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left, top margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First free position</source>
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
    <name>window::SourceCommands</name>
    <message>
        <source>Connect CSV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Data Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Data Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Data Source</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::SourceDialog</name>
    <message>
        <source>Shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Digits, with zeros in front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text &amp;before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text &amp;after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts, one on each line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One text on each line; \n is a line break in a text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 records)</source>
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
        <source>Number of the record that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record &amp;number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data source</source>
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
    <message>
        <source>CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
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
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in percent of the printed size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole label</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::StyleNames</name>
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
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>window::WindowPicture</name>
    <message>
        <source>Cannot write &quot;%1&quot;.</source>
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
        <source>%1: the content does not fit the barcode&apos;s settings%2.</source>
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
        <source>The label has an unknown kind of barcode (number %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::CsvTable</name>
    <message>
        <source>Line %1 has more than %2 columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 has text after a closing quotation mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quotation mark that begins in line %1 is not closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 has %2 fields; the first line has %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has more than %1 cells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has more than %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a text in this encoding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::FailureText</name>
    <message>
        <source>Not a binary label, or one of an unsupported version: the file has version %1, the oldest supported version is 2000016.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the first object has the unknown type %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is damaged: %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the XML is not well-formed at line %2, column %3 (%4).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its root element is not &quot;qmtx&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not an OpenDocument file, or a damaged one: styles.xml is missing or unreadable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: content.xml is missing or unreadable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too large for a label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has too many objects for a label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file contains nothing to put on a label.</source>
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
        <source>The file does not exist.</source>
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
        <source>The link points to a file that does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but it was read as &quot;%1&quot;. If it is an OpenDocument file, rename it so that it ends in &quot;.odt&quot; or &quot;.odg&quot;, or use --reader %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is XML, but it was read as &quot;%1&quot;. If it is an XML label, rename it so that it ends in &quot;.qmtx&quot;, or use --reader %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is protected by a password. Open it in an office program, save it without a password, and import it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::IssueText</name>
    <message>
        <source>Left out an object of the unknown type &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported from it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file continues with an object of the unknown type %1; the rest was not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out symbols: neither the file nor the symbol databases contain their drawings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out barcodes of unsupported types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database is no longer connected; the label shows its last values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out an object that the program could not create.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a data source that the program could not create.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a picture that is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a picture of an unsupported format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a picture that is damaged or too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a text that is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has too many objects; the rest was not read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further texts were stretched; they are not listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file in the package is missing, damaged or too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out a drawing that cannot be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text &quot;%1&quot; was stretched; its font size was %2 pt.</source>
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
    <name>workbench::ShapeKinds</name>
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
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>the file does not exist</source>
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
