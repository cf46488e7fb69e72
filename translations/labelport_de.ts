<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Label</source>
        <comment>Dialog to open a file.</comment>
        <translation>Etikett importieren</translation>
    </message>
    <message>
        <source>All Legacy Files %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Alle alten Dateien %1</translation>
    </message>
    <message>
        <source>OpenOffice File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>OpenOffice-Datei %1</translation>
    </message>
    <message>
        <source>Orvanta File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Orvanta-Datei %1</translation>
    </message>
    <message>
        <source>Legacy Tavrel File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Alte Tavrel-Datei %1</translation>
    </message>
    <message>
        <source>Could not open file &quot;%1&quot; (%2).</source>
        <translation>Die Datei „%1“ konnte nicht geöffnet werden (%2).</translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Datasource key</comment>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>Datasource key</comment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Errors reading symbol items.
Please update legacy Tavrel to its latest version and re-save file.</source>
        <comment>Content of error message.</comment>
        <translation>Fehler beim Lesen von Symbolobjekten.
Bitte das alte Tavrel auf die neueste Version bringen und die Datei neu speichern.</translation>
    </message>
    <message>
        <source>Unsupported barcode symbols.</source>
        <comment>Content of error message.</comment>
        <translation>Nicht unterstützte Barcodes.</translation>
    </message>
    <message>
        <source>Datasource not connected.</source>
        <comment>Content of error message.</comment>
        <translation>Datenquelle nicht verbunden.</translation>
    </message>
    <message>
        <source>Invalid canvas file version (%1 != %2) in</source>
        <comment>Content of error message.</comment>
        <translation>Ungültige Version der Canvas-Datei (%1 != %2) in</translation>
    </message>
    <message>
        <source>Load Error</source>
        <comment>Error message title.</comment>
        <translation>Fehler beim Laden</translation>
    </message>
    <message>
        <source>Errors reading items.</source>
        <comment>Content of error message.</comment>
        <translation>Fehler beim Lesen von Objekten.</translation>
    </message>
    <message>
        <source>Warning: Import issues.</source>
        <comment>Error message title.</comment>
        <translation>Warnung: Probleme beim Import.</translation>
    </message>
    <message>
        <source>:
	Original font size: %1.</source>
        <comment>Content of error message.</comment>
        <translation>:
	Ursprüngliche Schriftgröße: %1.</translation>
    </message>
</context>
<context>
    <name>archive::InputList</name>
    <message>
        <source>The list of files is no list of file names.</source>
        <translation>Die Liste der Dateien ist keine Liste von Dateinamen.</translation>
    </message>
</context>
<context>
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>archive::Progress</name>
    <message>
        <source>%1 files/s</source>
        <translation>%1 Dateien/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>archive::Publish</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 exists and was not made by labelport, or may have been changed since; it is left as it is (--force overwrites it)</source>
        <translation>%1 gibt es schon und wurde nicht von labelport erstellt oder vielleicht seitdem verändert; es bleibt, wie es ist (--force überschreibt es)</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>der Ordner dafür kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>another of the given files has the same name, so both would become %1; import them into different folders with --output-dir</source>
        <translation>eine andere der angegebenen Dateien hat denselben Namen, beide würden also zu %1; importieren Sie sie mit --output-dir in verschiedene Ordner</translation>
    </message>
    <message>
        <source>The journal in the output folder cannot be written, so --resume will do some files again.</source>
        <translation>Das Protokoll im Ausgabeordner kann nicht geschrieben werden, daher wird --resume manche Dateien noch einmal bearbeiten.</translation>
    </message>
    <message>
        <source>The processes that import files cannot be started, or end at once. A larger --memory-limit may help.</source>
        <translation>Die Prozesse, die Dateien importieren, lassen sich nicht starten oder enden sofort. Ein größeres --memory-limit kann helfen.</translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Nothing can be written to the folder %1.</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>archive::WorkerDeath</name>
    <message>
        <source>the file needed more than %1 MiB of memory (--memory-limit)</source>
        <translation>die Datei brauchte mehr als %1 MiB Speicher (--memory-limit)</translation>
    </message>
    <message>
        <source>the file took more than %1 seconds without getting on (--timeout)</source>
        <translation>die Datei kam länger als %1 Sekunden nicht voran (--timeout)</translation>
    </message>
    <message>
        <source>its import was killed twice, perhaps because the machine had no memory left</source>
        <translation>der Import wurde zweimal abgebrochen, vielleicht weil der Rechner keinen Speicher mehr hatte</translation>
    </message>
    <message>
        <source>its import crashed twice (%1); please report the file</source>
        <translation>der Import ist zweimal abgestürzt (%1); bitte melden Sie die Datei</translation>
    </message>
    <message>
        <source>its import ended in disorder, twice; please report the file</source>
        <translation>der Import endete zweimal ungeordnet; bitte melden Sie die Datei</translation>
    </message>
    <message>
        <source>its import ended twice by itself (status %1); please report the file</source>
        <translation>der Import endete zweimal von selbst (Status %1); bitte melden Sie die Datei</translation>
    </message>
</context>
<context>
    <name>cli::ArchiveReports</name>
    <message>
        <source>The report %1 cannot be written.</source>
        <translation>Der Bericht %1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>cli::CommandLine</name>
    <message>
        <source>Show this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; tells more.</source>
        <translation>„%1 --help“ sagt mehr.</translation>
    </message>
</context>
<context>
    <name>cli::FormatsCommand</name>
    <message>
        <source>binary canvas files</source>
        <translation>binäre Canvas-Dateien</translation>
    </message>
    <message>
        <source>2000016 to 2000024; newer ones are read as 2000024</source>
        <translation>2000016 bis 2000024; neuere werden wie 2000024 gelesen</translation>
    </message>
    <message>
        <source>XML labels</source>
        <translation>XML-Etiketten</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>OpenDocument texts and drawings</source>
        <translation>OpenDocument-Texte und -Zeichnungen</translation>
    </message>
    <message>
        <source>all, as packages</source>
        <translation>alle, als Pakete</translation>
    </message>
    <message>
        <source>labels saved by LabelPort</source>
        <translation>von LabelPort gespeicherte Etiketten</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation>Vektorzeichnung</translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation>Dokument, eine Seite je Datensatz</translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation>gespeichertes Etikett, zum Öffnen und Bearbeiten</translation>
    </message>
    <message>
        <source>Read (import, inspect):</source>
        <translation>Gelesen werden (import, inspect):</translation>
    </message>
    <message>
        <source>versions: %1</source>
        <translation>Versionen: %1</translation>
    </message>
    <message>
        <source>Written (import --to):</source>
        <translation>Geschrieben werden (import --to):</translation>
    </message>
    <message>
        <source>Tells which files are read, in which versions, and what can be written.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation>Sagt, welche Dateien in welchen Versionen gelesen werden und was geschrieben werden kann.

Beispiele:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</translation>
    </message>
    <message>
        <source>Tell it as JSON.</source>
        <translation>Sagt es als JSON.</translation>
    </message>
    <message>
        <source>It takes no files.</source>
        <translation>Hier werden keine Dateien angegeben.</translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>The folder %1 cannot be searched.</source>
        <translation>Der Ordner %1 kann nicht durchsucht werden.</translation>
    </message>
    <message>
        <source>Stopped. The same command with --resume goes on.</source>
        <translation>Angehalten. Derselbe Befehl mit --resume macht weiter.</translation>
    </message>
    <message>
        <source>There is no label to import.</source>
        <translation>Es gibt kein Etikett zu importieren.</translation>
    </message>
    <message>
        <source>&quot;labelport import --help&quot; tells more.</source>
        <translation>„labelport import --help“ sagt mehr.</translation>
    </message>
    <message>
        <source>%1 of %2 files did not come over whole.</source>
        <translation>%1 von %2 Dateien wurden nicht vollständig übernommen.</translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Standard input cannot be kept for the import: %1.</source>
        <translation>Die Standardeingabe kann nicht für den Import aufbewahrt werden: %1.</translation>
    </message>
    <message>
        <source>it is longer than any label</source>
        <translation>sie ist länger als jedes Etikett</translation>
    </message>
    <message>
        <source>The list of files %1 cannot be read: %2.</source>
        <translation>Die Liste der Dateien %1 kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>targets</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, label; several with commas (default: png).</source>
        <translation>Was geschrieben wird: png, svg, pdf, label; mehrere mit Kommas (Vorgabe: png).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder to write to; made when it is missing (default: the current one). It gets the subfolders of a folder that is imported.</source>
        <translation>Ordner, in den geschrieben wird; er wird angelegt, wenn er fehlt (Vorgabe: der aktuelle). Er bekommt die Unterordner eines Ordners, der importiert wird.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Dots per inch of pictures, 10 to 2400 (default: 300).</source>
        <translation>Punkte pro Zoll von Bildern, 10 bis 2400 (Vorgabe: 300).</translation>
    </message>
    <message>
        <source>range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range as 3-12 or 3-, or all (default: the first). A series of pictures is numbered; a PDF has a page for each.</source>
        <translation>Datensätze der Datenquellen des Etiketts: eine Nummer, ein Bereich wie 3-12 oder 3-, oder all (Vorgabe: der erste). Eine Reihe von Bildern wird nummeriert; ein PDF hat für jeden eine Seite.</translation>
    </message>
    <message>
        <source>Overwrite files that LabelPort did not make.</source>
        <translation>Überschreibt auch Dateien, die LabelPort nicht erstellt hat.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Read every file as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever its name. Standard input needs it.</source>
        <translation>Liest jede Datei als tavrel (*.cnv, *.roc), orvanta (*.qmtx) oder opendocument (*.odt, *.odg), wie immer sie heißt. Die Standardeingabe braucht das.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Import what a file lists as well, a name on each line or between NULs; - reads the list from standard input.</source>
        <translation>Importiert auch, was eine Datei auflistet, ein Name je Zeile oder zwischen NUL-Zeichen; - liest die Liste von der Standardeingabe.</translation>
    </message>
    <message>
        <source>The list&apos;s names stand between NULs, as find -print0 writes them.</source>
        <translation>Die Namen der Liste stehen zwischen NUL-Zeichen, wie find -print0 sie schreibt.</translation>
    </message>
    <message>
        <source>Named and listed files below this folder keep their subfolders in the output folder.</source>
        <translation>Genannte und aufgelistete Dateien unter diesem Ordner behalten im Ausgabeordner ihre Unterordner.</translation>
    </message>
    <message>
        <source>Files to import at the same time (default: one for each processor core).</source>
        <translation>Dateien, die gleichzeitig importiert werden (Vorgabe: eine je Prozessorkern).</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Give a file up that does not get on for so long; 0 waits for ever (default: 60).</source>
        <translation>Gibt eine Datei auf, die so lange nicht vorankommt; 0 wartet für immer (Vorgabe: 60).</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>Give a file up that needs more memory than so much; 0 sets no limit (default: 4096).</source>
        <translation>Gibt eine Datei auf, die mehr Speicher braucht; 0 setzt keine Grenze (Vorgabe: 4096).</translation>
    </message>
    <message>
        <source>Leave out what an earlier command with the same options did, if neither the file nor its outputs have changed.</source>
        <translation>Lässt aus, was ein früherer Befehl mit denselben Optionen erledigt hat, wenn weder die Datei noch ihre Ausgaben sich geändert haben.</translation>
    </message>
    <message>
        <source>K/N</source>
        <translation>K/N</translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, so that N machines can share an archive.</source>
        <translation>Importiert den K-ten von N Teilen der Dateien, sodass sich N Rechner ein Archiv teilen können.</translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation>Schreibt einen Bericht über alle Dateien, als .json oder .html; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>End with status 3 when a label did not come over whole.</source>
        <translation>Endet mit Status 3, wenn ein Etikett nicht vollständig übernommen wurde.</translation>
    </message>
    <message>
        <source>On standard error, tell what failed and nothing else.</source>
        <translation>Sagt auf der Standardfehlerausgabe nur, was fehlgeschlagen ist.</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation>--%1 nimmt eine ganze Zahl von %2 bis %3, nicht „%4“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be written; --to takes: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden; --to nimmt: %2.</translation>
    </message>
    <message>
        <source>--records takes a number, a range as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation>--records nimmt eine Nummer, einen Bereich wie 3-12 oder 3-, oder all, nicht „%1“.</translation>
    </message>
    <message>
        <source>--shard takes a part and their number, as 3/8, not &quot;%1&quot;.</source>
        <translation>--shard nimmt einen Teil und deren Anzahl, wie 3/8, nicht „%1“.</translation>
    </message>
    <message>
        <source>A report is written to a file whose name ends in .json or .html, not to &quot;%1&quot;.</source>
        <translation>Ein Bericht wird in eine Datei geschrieben, deren Name auf .json oder .html endet, nicht in „%1“.</translation>
    </message>
    <message>
        <source>--memory-limit takes 0 or at least %1 MiB.</source>
        <translation>--memory-limit nimmt 0 oder mindestens %1 MiB.</translation>
    </message>
    <message>
        <source>No file to import was given.</source>
        <translation>Es wurde keine Datei zum Importieren angegeben.</translation>
    </message>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation>Die Standardeingabe kann ein Etikett oder eine Liste von Dateien sein, aber nicht beides.</translation>
    </message>
    <message>
        <source>Standard input has no name, so --reader must say what it is: %1.</source>
        <translation>Die Standardeingabe hat keinen Namen, also muss --reader sagen, was sie ist: %1.</translation>
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
        <translation>Importiert alte Etiketten (*.cnv, *.roc, *.qmtx, *.odt, *.odg), öffnet gespeicherte (*.label)
und schreibt, was sie zeigen. Ein Ordner wird mit seinen Unterordnern nach Dateien mit solchen
Namen durchsucht. Was geschrieben wurde, steht auf der Standardausgabe, nach Dateinamen geordnet.

Beispiele:
  labelport import shelf.odg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import - --reader opendocument

Exit-Status: 0 alles wurde importiert, 1 etwas schlug fehl, 2 falscher Aufruf, 3 etwas
ging verloren (mit --fail-on-loss), 130 durch ein Signal angehalten.</translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation>Etikett oder Ordner mit Etiketten; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
</context>
<context>
    <name>cli::ImportTeller</name>
    <message>
        <source>warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>%1 of %2 files were imported, %3 had been done before.</source>
        <translation>%1 von %2 Dateien wurden importiert, %3 waren schon erledigt.</translation>
    </message>
    <message>
        <source>%1 files were passed over: only names that end in %2 are taken from folders.</source>
        <translation>%1 Dateien wurden übergangen: Aus Ordnern werden nur Namen genommen, die auf %2 enden.</translation>
    </message>
    <message>
        <source>%1 of %2 files failed.</source>
        <translation>%1 von %2 Dateien schlugen fehl.</translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Tells what one label holds, what of it comes over and what does not. Writes nothing.

Examples:
  labelport inspect shelf.odg
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation>Sagt, was ein Etikett enthält, was davon herüberkommt und was nicht. Schreibt nichts.

Beispiele:
  labelport inspect shelf.odg
  labelport inspect shelf.odg --json | jq .lost</translation>
    </message>
    <message>
        <source>Label to look into.</source>
        <translation>Etikett, das angesehen wird.</translation>
    </message>
    <message>
        <source>Tell it as JSON, as reports have it.</source>
        <translation>Sagt es als JSON, wie es in Berichten steht.</translation>
    </message>
    <message>
        <source>Read the file as tavrel, orvanta or opendocument, whatever its name.</source>
        <translation>Liest die Datei als tavrel, orvanta oder opendocument, wie immer sie heißt.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>the process that opens it cannot be started</source>
        <translation>der Prozess, der sie öffnet, kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>It takes one file.</source>
        <translation>Hier wird eine Datei angegeben.</translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>&quot;%1&quot; is no reader; --reader takes: %2.</source>
        <translation>„%1“ ist kein Leser; --reader nimmt: %2.</translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message>
        <source>it has only %1 records, none with the number %2</source>
        <translation>es hat nur %1 Datensätze, keinen mit der Nummer %2</translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; name a part of them with --records</source>
        <translation>%1 Datensätze sind mehr als die %2, die ein Befehl schreibt; nennen Sie mit --records einen Teil davon</translation>
    </message>
</context>
<context>
    <name>cli::Main</name>
    <message>
        <source>What is it to do? &quot;labelport --help&quot; tells.</source>
        <translation>Was ist zu tun? „labelport --help“ sagt es.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; &quot;labelport --help&quot; tells what is.</source>
        <translation>„%1“ ist kein Befehl; „labelport --help“ sagt, welche es gibt.</translation>
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
        <translation>Aufruf: labelport BEFEHL [ARGUMENT...]

Öffnet alte Etikettenvorlagen: *.cnv und *.roc, *.qmtx, *.odt und *.odg, und von LabelPort
gespeicherte Etiketten: *.label. Jeder Befehl sagt mit --help mehr.

Befehle:
  import DATEI...  importiert Etiketten oder Ordner davon und schreibt, was sie zeigen
  inspect DATEI    sagt, was ein Etikett enthält und was davon herüberkommt
  report merge     fügt die Berichte mehrerer Importe zusammen
  formats          sagt, was gelesen wird und was geschrieben werden kann
  trace DATEI      gibt jeden Aufruf eines Imports an sein Gastprogramm als JSON-Zeile aus

  --help           zeigt diesen Text
  --version        zeigt die Version

Beispiele:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport inspect shelf.odg
  labelport trace shelf.odg

Exit-Status: 0 alles ging gut, 1 etwas schlug fehl, 2 falscher Aufruf, 3 etwas ging verloren
(import --fail-on-loss), 130 durch ein Signal angehalten.
</translation>
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
        <translation>Macht aus den JSON-Berichten mehrerer Befehle einen, wie ihn ein Befehl über alle
Dateien geschrieben hätte.

Beispiele:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</translation>
    </message>
    <message>
        <source>What to do: put reports together.</source>
        <translation>Was zu tun ist: Berichte zusammenfügen.</translation>
    </message>
    <message>
        <source>Report that an import wrote as JSON.</source>
        <translation>Bericht, den ein Import als JSON schrieb.</translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation>Bericht, der geschrieben wird, als .json oder .html; mehrmals möglich.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Reports can be put together: &quot;report merge&quot;.</source>
        <translation>Berichte können zusammengefügt werden: „report merge“.</translation>
    </message>
    <message>
        <source>It takes the reports to put together, and --to says where the whole goes.</source>
        <translation>Anzugeben sind die Berichte, die zusammengefügt werden, und mit --to, wohin das Ganze kommt.</translation>
    </message>
</context>
<context>
    <name>window::Actions</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>Opens a saved label or a legacy one</source>
        <translation>Öffnet ein gespeichertes oder ein altes Etikett</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Imports a legacy label and saves it beside the old file</source>
        <translation>Importiert ein altes Etikett und speichert es neben der alten Datei</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Saves the label</source>
        <translation>Speichert das Etikett</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Saves the label under another name</source>
        <translation>Speichert das Etikett unter einem anderen Namen</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Writes the label as a picture, a drawing or a document</source>
        <translation>Schreibt das Etikett als Bild, Zeichnung oder Dokument</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Prints the label, or a series of its records</source>
        <translation>Druckt das Etikett oder eine Reihe seiner Datensätze</translation>
    </message>
    <message>
        <source>&amp;Close Label</source>
        <translation>Etikett s&amp;chließen</translation>
    </message>
    <message>
        <source>Closes the label</source>
        <translation>Schließt das Etikett</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Nimmt die letzte Änderung zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation>Macht die Änderung noch einmal</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Selects all items</source>
        <translation>Wählt alle Objekte aus</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>Selects no item</source>
        <translation>Wählt kein Objekt aus</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Shows the label larger</source>
        <translation>Zeigt das Etikett größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Shows the label smaller</source>
        <translation>Zeigt das Etikett kleiner</translation>
    </message>
    <message>
        <source>&amp;Whole Label</source>
        <translation>Ganzes &amp;Etikett</translation>
    </message>
    <message>
        <source>Shows the whole label, and keeps it whole when the window changes</source>
        <translation>Zeigt das ganze Etikett, auch wenn das Fenster seine Größe ändert</translation>
    </message>
    <message>
        <source>&amp;True Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Shows the label in the size in which it is printed</source>
        <translation>Zeigt das Etikett in der Größe, in der es gedruckt wird</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Auf &amp;Auswahl zoomen</translation>
    </message>
    <message>
        <source>Shows the selected items as large as they fit</source>
        <translation>Zeigt die ausgewählten Objekte so groß, wie es geht</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Shows or hides the rulers</source>
        <translation>Zeigt oder verbirgt die Lineale</translation>
    </message>
    <message>
        <source>&amp;Millimeters</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>Shows lengths in millimeters</source>
        <translation>Zeigt Längen in Millimetern</translation>
    </message>
    <message>
        <source>In&amp;ches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>Shows lengths in inches</source>
        <translation>Zeigt Längen in Zoll</translation>
    </message>
    <message>
        <source>Like the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>Takes the colors of the desktop</source>
        <translation>Nimmt die Farben des Desktops</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Dark text on light windows</source>
        <translation>Dunkler Text auf hellen Fenstern</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Light text on dark windows</source>
        <translation>Heller Text auf dunklen Fenstern</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Zeichenfläche</translation>
    </message>
    <message>
        <source>Puts the keyboard on the canvas</source>
        <translation>Setzt die Tastatur auf die Zeichenfläche</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Objekte</translation>
    </message>
    <message>
        <source>Shows the list of items and puts the keyboard on it</source>
        <translation>Zeigt die Liste der Objekte und setzt die Tastatur darauf</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>Shows the properties of an item and puts the keyboard on them</source>
        <translation>Zeigt die Eigenschaften eines Objekts und setzt die Tastatur darauf</translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation>&amp;Datenquellen</translation>
    </message>
    <message>
        <source>Shows the data sources and puts the keyboard on them</source>
        <translation>Zeigt die Datenquellen und setzt die Tastatur darauf</translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
        <translation>&amp;Meldungen</translation>
    </message>
    <message>
        <source>Shows the issues and puts the keyboard on them</source>
        <translation>Zeigt die Meldungen und setzt die Tastatur darauf</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Erster</translation>
    </message>
    <message>
        <source>Shows the first record</source>
        <translation>Zeigt den ersten Datensatz</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorheriger</translation>
    </message>
    <message>
        <source>Shows the record before</source>
        <translation>Zeigt den Datensatz davor</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächster</translation>
    </message>
    <message>
        <source>Shows the record after</source>
        <translation>Zeigt den Datensatz danach</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Letzter</translation>
    </message>
    <message>
        <source>Shows the last record</source>
        <translation>Zeigt den letzten Datensatz</translation>
    </message>
    <message>
        <source>&amp;Go to…</source>
        <translation>&amp;Gehe zu…</translation>
    </message>
    <message>
        <source>Puts the keyboard on the record&apos;s number</source>
        <translation>Setzt die Tastatur auf die Nummer des Datensatzes</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Shows all keys</source>
        <translation>Zeigt alle Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>Shows what program this is</source>
        <translation>Sagt, welches Programm dies ist</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>Be&amp;reiche</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>Daten&amp;satz</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>window::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>The label. The arrow keys move the selected items.</source>
        <translation>Das Etikett. Die Pfeiltasten verschieben die ausgewählten Objekte.</translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>SVG-Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Export Label</source>
        <translation>Etikett exportieren</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Chooses the file in a dialog</source>
        <translation>Wählt die Datei in einem Dialog</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Resolution in dots per inch</source>
        <translation>Auflösung in Punkten pro Zoll</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>Date&amp;i</translation>
    </message>
    <message>
        <source>Re&amp;solution</source>
        <translation>Au&amp;flösung</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>One document of %1 pages.</source>
        <translation>Ein Dokument mit %1 Seiten.</translation>
    </message>
    <message>
        <source>%1 files: %2 and so on.</source>
        <translation>%1 Dateien: %2 und so weiter.</translation>
    </message>
    <message>
        <source>One file.</source>
        <translation>Eine Datei.</translation>
    </message>
    <message>
        <source>“%1” exists already. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>window::DialogImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Für diese Datei reicht der Speicher nicht.</translation>
    </message>
</context>
<context>
    <name>window::IssueListModel</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>The label</source>
        <translation>Das Etikett</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Betrifft</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Was es ist</translation>
    </message>
</context>
<context>
    <name>window::IssuesPanel</name>
    <message>
        <source>Issues of the label</source>
        <translation>Meldungen zum Etikett</translation>
    </message>
    <message>
        <source>There is nothing to report.</source>
        <translation>Es gibt nichts zu melden.</translation>
    </message>
</context>
<context>
    <name>window::ItemDescription</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Flipped left to right</source>
        <translation>Links und rechts vertauscht</translation>
    </message>
    <message>
        <source>Flipped top to bottom</source>
        <translation>Oben und unten vertauscht</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Movable</source>
        <translation>Beweglich</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>thinnest</source>
        <translation>so dünn wie möglich</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Linienart</translation>
    </message>
    <message>
        <source>Line ends</source>
        <translation>Linienenden</translation>
    </message>
    <message>
        <source>Line corners</source>
        <translation>Linienecken</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Fill pattern</source>
        <translation>Füllmuster</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Corner radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>a sixth of the shorter side</source>
        <translation>ein Sechstel der kürzeren Seite</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Enden</translation>
    </message>
    <message>
        <source>End, to the right</source>
        <translation>Ende, nach rechts</translation>
    </message>
    <message>
        <source>End, down</source>
        <translation>Ende, nach unten</translation>
    </message>
    <message>
        <source>Mark at the start</source>
        <translation>Zeichen am Anfang</translation>
    </message>
    <message>
        <source>Mark at the end</source>
        <translation>Zeichen am Ende</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Text box</source>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>Fixed sides</source>
        <translation>Feste Seiten</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Schriftfamilie</translation>
    </message>
    <message>
        <source>the default</source>
        <translation>die Standardschrift</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>Symbology</source>
        <translation>Symbologie</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Module width</source>
        <translation>Modulbreite</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture size</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Symbol color</source>
        <translation>Symbolfarbe</translation>
    </message>
    <message>
        <source>Symbol ground</source>
        <translation>Symbolgrund</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>Nummer %1</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>data source %1</source>
        <translation>Datenquelle %1</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 „%2“</translation>
    </message>
</context>
<context>
    <name>window::ItemPanel</name>
    <message>
        <source>Items of the label</source>
        <translation>Objekte des Etiketts</translation>
    </message>
</context>
<context>
    <name>window::ItemTableModel</name>
    <message>
        <source>cannot be shown</source>
        <translation>nicht darstellbar</translation>
    </message>
    <message>
        <source>background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>schreibgeschützt</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
    <message>
        <source>The label could not be imported.</source>
        <translation>Das Etikett konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1

The label is still open. Save it in another folder with “Save As”.</source>
        <translation>%1

Das Etikett ist noch offen. Mit „Speichern unter“ lässt es sich in einem anderen Ordner speichern.</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>window::MainWindow</name>
    <message>
        <source>LabelPort Workbench</source>
        <translation>LabelPort Workbench</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>LabelPort Workbench %1</source>
        <translation>LabelPort Workbench %1</translation>
    </message>
    <message>
        <source>Opens legacy label templates, shows them, keeps them and hands them on.</source>
        <translation>Öffnet alte Etikettenvorlagen, zeigt sie, bewahrt sie auf und gibt sie weiter.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>A window holds one label: only the first file was opened.</source>
        <translation>Ein Fenster fasst ein Etikett: Nur die erste Datei wurde geöffnet.</translation>
    </message>
</context>
<context>
    <name>window::MoveItems</name>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>window::OutputCommands</name>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stopped after %1 files</source>
        <translation>Nach %1 Dateien abgebrochen</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 files written</source>
        <translation>%1 Dateien geschrieben</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>The label could not be exported.</source>
        <translation>Das Etikett konnte nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The label could not be printed.</source>
        <translation>Das Etikett konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Printing was stopped</source>
        <translation>Der Druck wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1 pages were given to the printer</source>
        <translation>%1 Seiten wurden an den Drucker übergeben</translation>
    </message>
</context>
<context>
    <name>window::OutputJob</name>
    <message>
        <source>The printer did not take the pages. See that it is switched on and connected, or print into a PDF file with “Export”.</source>
        <translation>Der Drucker hat die Seiten nicht angenommen. Prüfen Sie, ob er eingeschaltet und angeschlossen ist, oder drucken Sie mit „Exportieren“ in eine PDF-Datei.</translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>All labels (*.label *.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation>Alle Etiketten (*.label *.cnv *.roc *.qmtx *.odt *.odg)</translation>
    </message>
    <message>
        <source>Saved labels (*.label)</source>
        <translation>Gespeicherte Etiketten (*.label)</translation>
    </message>
    <message>
        <source>Legacy labels (*.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation>Alte Etiketten (*.cnv *.roc *.qmtx *.odt *.odg)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Changes that are not saved will be lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message>
        <source>Save Imported Label</source>
        <translation>Importiertes Etikett speichern</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>The label was imported. It can replace that file, be saved under another name, or be saved later.</source>
        <translation>Das Etikett wurde importiert. Es kann die Datei ersetzen, unter einem anderen Namen oder später gespeichert werden.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>&amp;Other Name…</source>
        <translation>&amp;Anderer Name…</translation>
    </message>
    <message>
        <source>Save &amp;Later</source>
        <translation>&amp;Später speichern</translation>
    </message>
    <message>
        <source>Open Label</source>
        <translation>Etikett öffnen</translation>
    </message>
    <message>
        <source>Save Label</source>
        <translation>Etikett speichern</translation>
    </message>
    <message>
        <source>LabelPort Workbench</source>
        <translation>LabelPort Workbench</translation>
    </message>
</context>
<context>
    <name>window::PropertyModel</name>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>window::PropertyPanel</name>
    <message>
        <source>Properties of the selected item</source>
        <translation>Eigenschaften des ausgewählten Objekts</translation>
    </message>
</context>
<context>
    <name>window::RecordChooser</name>
    <message>
        <source>The one &amp;shown (%1)</source>
        <translation>Der an&amp;gezeigte (%1)</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>A run of records</source>
        <translation>Eine Folge von Datensätzen</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>window::RuledCanvas</name>
    <message>
        <source>Change between millimeters and inches</source>
        <translation>Zwischen Millimetern und Zoll wechseln</translation>
    </message>
    <message>
        <source>Unit of the rulers</source>
        <translation>Einheit der Lineale</translation>
    </message>
</context>
<context>
    <name>window::Ruler</name>
    <message>
        <source>Horizontal ruler</source>
        <translation>Waagerechtes Lineal</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Senkrechtes Lineal</translation>
    </message>
</context>
<context>
    <name>window::ShortcutsDialog</name>
    <message>
        <source>Canvas</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Move the selected items</source>
        <translation>Ausgewählte Objekte verschieben</translation>
    </message>
    <message>
        <source>Arrow keys; further with Shift, a little with Ctrl</source>
        <translation>Pfeiltasten; weiter mit Umschalt, ein wenig mit Strg</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoom am Mauszeiger</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Strg+Mausrad</translation>
    </message>
    <message>
        <source>Shift the view</source>
        <translation>Ansicht verschieben</translation>
    </message>
    <message>
        <source>Space and left button, or middle button</source>
        <translation>Leertaste und linke Maustaste oder mittlere Maustaste</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>window::SourcePanel</name>
    <message>
        <source>Data sources of the label</source>
        <translation>Datenquellen des Etiketts</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Datensatz</translation>
    </message>
    <message>
        <source>Number of the record that is shown</source>
        <translation>Nummer des angezeigten Datensatzes</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>window::SourceTableModel</name>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>List of texts</source>
        <translation>Liste von Texten</translation>
    </message>
    <message>
        <source>%1 to %2, step %3</source>
        <translation>%1 bis %2, Schritt %3</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Shows now</source>
        <translation>Zeigt jetzt</translation>
    </message>
</context>
<context>
    <name>window::StatusLine</name>
    <message>
        <source>Record %1 of %2</source>
        <translation>Datensatz %1 von %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>window::StyleNames</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Formatted text</source>
        <translation>Formatierter Text</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Pie</source>
        <translation>Kreissektor</translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation>Rechtwinkliges Dreieck</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Pentagon</source>
        <translation>Fünfeck</translation>
    </message>
    <message>
        <source>Hexagon</source>
        <translation>Sechseck</translation>
    </message>
    <message>
        <source>Octagon</source>
        <translation>Achteck</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>durchgezogen</translation>
    </message>
    <message>
        <source>dashes</source>
        <translation>Striche</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>dash, dot</source>
        <translation>Strich, Punkt</translation>
    </message>
    <message>
        <source>dash, dot, dot</source>
        <translation>Strich, Punkt, Punkt</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>flach</translation>
    </message>
    <message>
        <source>square</source>
        <translation>quadratisch</translation>
    </message>
    <message>
        <source>round</source>
        <translation>rund</translation>
    </message>
    <message>
        <source>pointed</source>
        <translation>spitz</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>abgerundet</translation>
    </message>
    <message>
        <source>screen, densest</source>
        <translation>Raster, am dichtesten</translation>
    </message>
    <message>
        <source>screen, very dense</source>
        <translation>Raster, sehr dicht</translation>
    </message>
    <message>
        <source>screen, dense</source>
        <translation>Raster, dicht</translation>
    </message>
    <message>
        <source>screen, half</source>
        <translation>Raster, halb</translation>
    </message>
    <message>
        <source>screen, light</source>
        <translation>Raster, hell</translation>
    </message>
    <message>
        <source>screen, very light</source>
        <translation>Raster, sehr hell</translation>
    </message>
    <message>
        <source>screen, lightest</source>
        <translation>Raster, am hellsten</translation>
    </message>
    <message>
        <source>horizontal lines</source>
        <translation>waagerechte Linien</translation>
    </message>
    <message>
        <source>vertical lines</source>
        <translation>senkrechte Linien</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>rising lines</source>
        <translation>steigende Linien</translation>
    </message>
    <message>
        <source>falling lines</source>
        <translation>fallende Linien</translation>
    </message>
    <message>
        <source>diagonal grid</source>
        <translation>schräges Gitter</translation>
    </message>
    <message>
        <source>gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>small arrow</source>
        <translation>kleiner Pfeil</translation>
    </message>
    <message>
        <source>double arrow</source>
        <translation>Doppelpfeil</translation>
    </message>
    <message>
        <source>dimension stroke</source>
        <translation>Maßstrich</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>width and height</source>
        <translation>Breite und Höhe</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>centered</source>
        <translation>zentriert</translation>
    </message>
    <message>
        <source>justified</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>Mitte</translation>
    </message>
</context>
<context>
    <name>window::WelcomePage</name>
    <message>
        <source>Drop a label here</source>
        <translation>Legen Sie hier ein Etikett ab</translation>
    </message>
    <message>
        <source>Saved labels (*.label) and legacy ones: binary canvas files (*.cnv, *.roc), XML labels (*.qmtx), OpenDocument texts and drawings (*.odt, *.odg)</source>
        <translation>Gespeicherte Etiketten (*.label) und alte: binäre Canvas-Dateien (*.cnv, *.roc), XML-Etiketten (*.qmtx), OpenDocument-Texte und -Zeichnungen (*.odt, *.odg)</translation>
    </message>
    <message>
        <source>&amp;Open a Label…</source>
        <translation>Etikett &amp;öffnen…</translation>
    </message>
    <message>
        <source>&amp;Import a Legacy Label…</source>
        <translation>Altes Etikett &amp;importieren…</translation>
    </message>
</context>
<context>
    <name>window::WindowPanels</name>
    <message>
        <source>Items</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Data Sources</source>
        <translation>Datenquellen</translation>
    </message>
    <message>
        <source>Issues</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation>Öffnet alte Etikettenvorlagen, zeigt, speichert, exportiert und druckt sie.</translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg.</source>
        <translation>Ein Etikett zum Öffnen: *.label, *.cnv, *.roc, *.qmtx, *.odt oder *.odg.</translation>
    </message>
    <message>
        <source>Writes a picture of the window as PNG as soon as it is there, and ends.</source>
        <translation>Schreibt ein Bild des Fensters als PNG, sobald es da ist, und endet.</translation>
    </message>
    <message>
        <source>a window holds one label, but %1 were named</source>
        <translation>ein Fenster fasst ein Etikett, es wurden aber %1 genannt</translation>
    </message>
    <message>
        <source>cannot write “%1”</source>
        <translation>„%1“ kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>migration::Census</name>
    <message>
        <source>The file cannot be opened to count its objects.</source>
        <translation>Die Datei kann nicht geöffnet werden, um ihre Objekte zu zählen.</translation>
    </message>
    <message>
        <source>The file is too large to count its objects.</source>
        <translation>Die Datei ist zu groß, um ihre Objekte zu zählen.</translation>
    </message>
    <message>
        <source>The package has no readable part %1.</source>
        <translation>Das Paket hat keinen lesbaren Teil %1.</translation>
    </message>
    <message>
        <source>The file has no list of items.</source>
        <translation>Die Datei hat keine Liste von Objekten.</translation>
    </message>
    <message>
        <source>The file goes on with something unknown, which may hold more.</source>
        <translation>Die Datei geht mit etwas Unbekanntem weiter, das noch mehr enthalten kann.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a record: it may have held more.</source>
        <translation>Die Datei endet mitten in einem Eintrag: Sie kann mehr enthalten haben.</translation>
    </message>
    <message>
        <source>The file is no binary label of a known version.</source>
        <translation>Die Datei ist kein binäres Etikett einer bekannten Version.</translation>
    </message>
    <message>
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation>Die Datei ist beschädigt, darum lassen sich ihre Objekte nicht zählen: %1.</translation>
    </message>
</context>
<context>
    <name>migration::HtmlCard</name>
    <message>
        <source>no picture</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>The label %1</source>
        <translation>Das Etikett %1</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>verändert</translation>
    </message>
    <message>
        <source>with losses</source>
        <translation>mit Verlusten</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>abgestürzt</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>dauerte zu lange</translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation>brauchte zu viel Speicher</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Came over whole</source>
        <translation>Vollständig übernommen</translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation>Datenquellen</translation>
    </message>
    <message>
        <source>What the import said</source>
        <translation>Was der Import sagte</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Did not come over</source>
        <translation>Nicht übernommen</translation>
    </message>
    <message>
        <source>Came over changed</source>
        <translation>Verändert übernommen</translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
    <message>
        <source>%1 of %2 files came over whole.</source>
        <translation>%1 von %2 Dateien wurden vollständig übernommen.</translation>
    </message>
    <message>
        <source>whole: nothing lost, nothing changed</source>
        <translation>vollständig: nichts verloren, nichts verändert</translation>
    </message>
    <message>
        <source>changed in their looks, nothing lost</source>
        <translation>im Aussehen verändert, nichts verloren</translation>
    </message>
    <message>
        <source>with losses</source>
        <translation>mit Verlusten</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>nicht importiert</translation>
    </message>
    <message>
        <source>Of %1 objects in these files, %2 came over.</source>
        <translation>Von %1 Objekten in diesen Dateien wurden %2 übernommen.</translation>
    </message>
    <message>
        <source>In %1 files the objects could not be counted.</source>
        <translation>In %1 Dateien ließen sich die Objekte nicht zählen.</translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation>Nichts ging verloren und nichts wurde verändert.</translation>
    </message>
    <message>
        <source>What was lost or changed</source>
        <translation>Was verloren ging oder verändert wurde</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>What can be done</source>
        <translation>Was man tun kann</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>verändert</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>importiert</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>abgestürzt</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>dauerte zu lange</translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation>brauchte zu viel Speicher</translation>
    </message>
    <message>
        <source>as imported</source>
        <translation>wie importiert</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>most problems first</source>
        <translation>die meisten Probleme zuerst</translation>
    </message>
    <message>
        <source>most objects lost first</source>
        <translation>die meisten verlorenen Objekte zuerst</translation>
    </message>
    <message>
        <source>worst status first</source>
        <translation>der schlechteste Status zuerst</translation>
    </message>
    <message>
        <source>Sort and filter</source>
        <translation>Ordnen und filtern</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Leser</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>Migration report</source>
        <translation>Migrationsbericht</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>No file fits the search.</source>
        <translation>Keine Datei passt zur Suche.</translation>
    </message>
</context>
<context>
    <name>migration::Inspect</name>
    <message>
        <source>kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Items (millimetres):</source>
        <translation>Objekte (Millimeter):</translation>
    </message>
    <message>
        <source>Page: %1 × %2 mm</source>
        <translation>Seite: %1 × %2 mm</translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation>Datenquellen:</translation>
    </message>
    <message>
        <source>Came over whole:</source>
        <translation>Vollständig übernommen:</translation>
    </message>
    <message>
        <source>Came over changed:</source>
        <translation>Verändert übernommen:</translation>
    </message>
    <message>
        <source>Did not come over:</source>
        <translation>Nicht übernommen:</translation>
    </message>
    <message>
        <source>What the import said:</source>
        <translation>Was der Import sagte:</translation>
    </message>
</context>
<context>
    <name>migration::ItemLosses</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>migration::KindNames</name>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>formatted text</source>
        <translation>formatierter Text</translation>
    </message>
    <message>
        <source>barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>rounded rectangle</source>
        <translation>abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>pie</source>
        <translation>Kreissektor</translation>
    </message>
    <message>
        <source>right triangle</source>
        <translation>rechtwinkliges Dreieck</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>diamond</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>pentagon</source>
        <translation>Fünfeck</translation>
    </message>
    <message>
        <source>hexagon</source>
        <translation>Sechseck</translation>
    </message>
    <message>
        <source>octagon</source>
        <translation>Achteck</translation>
    </message>
</context>
<context>
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation>Objekte in Gruppen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Open the document in its own program, ungroup the objects, save, and import again.</source>
        <translation>Öffnen Sie das Dokument in seinem eigenen Programm, lösen Sie die Gruppen auf, speichern und importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation>Objekte auf der zweiten Seite und den folgenden wurden weggelassen: Ein Etikett hat eine Seite.</translation>
    </message>
    <message>
        <source>Save each page as a document of its own and import those.</source>
        <translation>Speichern Sie jede Seite als eigenes Dokument und importieren Sie diese.</translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation>Objekte des Seitenhintergrunds (der Masterseite) wurden weggelassen.</translation>
    </message>
    <message>
        <source>Copy them from the master page to the page itself and import again.</source>
        <translation>Kopieren Sie sie von der Masterseite auf die Seite selbst und importieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation>Verbinder zwischen Objekten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Draw them as plain lines.</source>
        <translation>Zeichnen Sie sie als einfache Linien.</translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation>Kurven, freie Polygone und Linienzüge wurden weggelassen.</translation>
    </message>
    <message>
        <source>Convert them to a picture or to plain shapes.</source>
        <translation>Wandeln Sie sie in ein Bild oder in einfache Formen um.</translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation>Legenden wurden weggelassen.</translation>
    </message>
    <message>
        <source>Replace each by a text and a line.</source>
        <translation>Ersetzen Sie jede durch einen Text und eine Linie.</translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation>Dreidimensionale Objekte wurden weggelassen.</translation>
    </message>
    <message>
        <source>Convert them to a picture.</source>
        <translation>Wandeln Sie sie in ein Bild um.</translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
        <translation>Formularfelder wurden weggelassen.</translation>
    </message>
    <message>
        <source>Replace each by a text, if it is to be printed.</source>
        <translation>Ersetzen Sie jedes durch einen Text, wenn es gedruckt werden soll.</translation>
    </message>
    <message>
        <source>Embedded objects, such as charts and formulas, were left out; an empty box is in their place.</source>
        <translation>Eingebettete Objekte wie Diagramme und Formeln wurden weggelassen; an ihrer Stelle ist ein leerer Kasten.</translation>
    </message>
    <message>
        <source>Objects inside texts, text boxes or other objects were left out.</source>
        <translation>Objekte in Texten, Textfeldern oder anderen Objekten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Anchor them to the page.</source>
        <translation>Verankern Sie sie an der Seite.</translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only its texts, text boxes and pictures are taken.</source>
        <translation>Formen eines Textdokuments wurden weggelassen: Nur seine Texte, Textfelder und Bilder werden übernommen.</translation>
    </message>
    <message>
        <source>Put the label into a drawing instead of a text document.</source>
        <translation>Legen Sie das Etikett als Zeichnung statt als Textdokument an.</translation>
    </message>
    <message>
        <source>Texts and objects in tables were left out.</source>
        <translation>Texte und Objekte in Tabellen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Put them into text boxes.</source>
        <translation>Setzen Sie sie in Textfelder.</translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation>Texte in Listen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Turn the bullets or numbers off, so that the list becomes plain paragraphs.</source>
        <translation>Schalten Sie die Aufzählungszeichen oder Nummern aus, sodass die Liste zu einfachen Absätzen wird.</translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation>Texte und Objekte in Bereichen oder Verzeichnissen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Remove the section and keep its content.</source>
        <translation>Entfernen Sie den Bereich und behalten Sie seinen Inhalt.</translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation>Texte und Objekte der Kopf- oder Fußzeile wurden weggelassen.</translation>
    </message>
    <message>
        <source>Copy them into the document itself.</source>
        <translation>Kopieren Sie sie in das Dokument selbst.</translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation>Texte von Hyperlinks wurden weggelassen.</translation>
    </message>
    <message>
        <source>Remove the hyperlinks and keep their texts.</source>
        <translation>Entfernen Sie die Hyperlinks und behalten Sie ihre Texte.</translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation>Felder in Texten, etwa Seitenzahlen und Namen, wurden weggelassen.</translation>
    </message>
    <message>
        <source>Replace each by its text, or by a data source after the import.</source>
        <translation>Ersetzen Sie jedes durch seinen Text oder nach dem Import durch eine Datenquelle.</translation>
    </message>
    <message>
        <source>Parts of texts were left out, because their kind is not known.</source>
        <translation>Teile von Texten wurden weggelassen, weil ihre Art nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Compare the texts with the old label.</source>
        <translation>Vergleichen Sie die Texte mit dem alten Etikett.</translation>
    </message>
    <message>
        <source>Texts of shapes were left out: they do not begin with a plain paragraph.</source>
        <translation>Texte von Formen wurden weggelassen: Sie beginnen nicht mit einem einfachen Absatz.</translation>
    </message>
    <message>
        <source>Turn them into plain paragraphs.</source>
        <translation>Machen Sie einfache Absätze daraus.</translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation>Fußnoten und Endnoten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Put their texts into text boxes.</source>
        <translation>Setzen Sie ihre Texte in Textfelder.</translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation>Kommentare wurden weggelassen; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Nothing, unless somebody needs them.</source>
        <translation>Nichts, es sei denn, jemand braucht sie.</translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation>Animationen wurden weggelassen; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Nichts.</translation>
    </message>
    <message>
        <source>Objects were left out, because their kind is not known.</source>
        <translation>Objekte wurden weggelassen, weil ihre Art nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Compare with the old label and draw them anew.</source>
        <translation>Vergleichen Sie mit dem alten Etikett und zeichnen Sie sie neu.</translation>
    </message>
    <message>
        <source>Objects were left out, because their kind of control is not known.</source>
        <translation>Objekte wurden weggelassen, weil ihre Art von Steuerelement nicht bekannt ist.</translation>
    </message>
    <message>
        <source>The file lists objects more than once; all but the first list were left out.</source>
        <translation>Die Datei führt Objekte mehr als einmal auf; alle Listen außer der ersten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Open the file in its own program and save it again.</source>
        <translation>Öffnen Sie die Datei in ihrem eigenen Programm und speichern Sie sie neu.</translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation>Bildrahmen ohne Bild wurden weggelassen.</translation>
    </message>
    <message>
        <source>If a picture is missing, put it in after the import.</source>
        <translation>Wenn ein Bild fehlt, setzen Sie es nach dem Import ein.</translation>
    </message>
    <message>
        <source>Pictures are missing: they are damaged, too large or of an unknown format.</source>
        <translation>Bilder fehlen: Sie sind beschädigt, zu groß oder von unbekanntem Format.</translation>
    </message>
    <message>
        <source>Save them as PNG and put them in after the import.</source>
        <translation>Speichern Sie sie als PNG und setzen Sie sie nach dem Import ein.</translation>
    </message>
    <message>
        <source>Vector drawings are missing: they cannot be converted.</source>
        <translation>Vektorzeichnungen fehlen: Sie lassen sich nicht umwandeln.</translation>
    </message>
    <message>
        <source>Convert them to PNG and put them in after the import.</source>
        <translation>Wandeln Sie sie in PNG um und setzen Sie sie nach dem Import ein.</translation>
    </message>
    <message>
        <source>Symbols are missing: neither the file nor the symbol databases have a drawing of them.</source>
        <translation>Symbole fehlen: Weder die Datei noch die Symboldatenbanken haben eine Zeichnung von ihnen.</translation>
    </message>
    <message>
        <source>Save the label with the newest version of its own program, which stores the drawings, or add them to the symbol databases.</source>
        <translation>Speichern Sie das Etikett mit der neuesten Version seines eigenen Programms, die die Zeichnungen ablegt, oder nehmen Sie sie in die Symboldatenbanken auf.</translation>
    </message>
    <message>
        <source>Barcodes were left out, because their type is not supported.</source>
        <translation>Barcodes wurden weggelassen, weil ihr Typ nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>Choose another type, and put them in after the import.</source>
        <translation>Wählen Sie einen anderen Typ und setzen Sie sie nach dem Import ein.</translation>
    </message>
    <message>
        <source>Nothing was read from an unknown record on.</source>
        <translation>Ab einem unbekannten Eintrag wurde nichts mehr gelesen.</translation>
    </message>
    <message>
        <source>The file is damaged or of a newer version: look for another copy.</source>
        <translation>Die Datei ist beschädigt oder von einer neueren Version: Suchen Sie eine andere Kopie.</translation>
    </message>
    <message>
        <source>The file ends in the middle: its last object is incomplete, and more may be missing.</source>
        <translation>Die Datei endet mittendrin: Ihr letztes Objekt ist unvollständig, und es kann noch mehr fehlen.</translation>
    </message>
    <message>
        <source>Look for another copy of the file.</source>
        <translation>Suchen Sie eine andere Kopie der Datei.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation>Das Dokument ist weder ein Text noch eine Zeichnung: Es wurde nichts daraus übernommen.</translation>
    </message>
    <message>
        <source>Copy its content into a drawing.</source>
        <translation>Kopieren Sie seinen Inhalt in eine Zeichnung.</translation>
    </message>
    <message>
        <source>Something was left out, because it is larger than anything on a real label.</source>
        <translation>Etwas wurde weggelassen, weil es größer ist als alles auf einem echten Etikett.</translation>
    </message>
    <message>
        <source>Make the label smaller, or its pictures.</source>
        <translation>Verkleinern Sie das Etikett oder seine Bilder.</translation>
    </message>
    <message>
        <source>Objects of the file are not on the label, and the import has not said why.</source>
        <translation>Objekte der Datei sind nicht auf dem Etikett, und der Import hat nicht gesagt, warum.</translation>
    </message>
    <message>
        <source>Compare with the old label, and tell the makers of this program.</source>
        <translation>Vergleichen Sie mit dem alten Etikett und sagen Sie es denen, die dieses Programm machen.</translation>
    </message>
    <message>
        <source>The import had more to say than was kept: there may be losses that are not listed.</source>
        <translation>Der Import hatte mehr zu sagen, als behalten wurde: Es kann Verluste geben, die nicht aufgeführt sind.</translation>
    </message>
    <message>
        <source>Import this file alone and look at the label.</source>
        <translation>Importieren Sie diese Datei allein und sehen Sie sich das Etikett an.</translation>
    </message>
    <message>
        <source>Choose the nearest shape after the import, or put them in as a symbol.</source>
        <translation>Wählen Sie nach dem Import die ähnlichste Form oder setzen Sie sie als Symbol ein.</translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show what was last in them.</source>
        <translation>Objekte sind nicht mehr mit ihrer Datenquelle verbunden: Sie zeigen, was zuletzt darin stand.</translation>
    </message>
    <message>
        <source>Bind them to a data source after the import.</source>
        <translation>Verbinden Sie sie nach dem Import mit einer Datenquelle.</translation>
    </message>
    <message>
        <source>The label was linked to a database file, and is no longer.</source>
        <translation>Das Etikett war mit einer Datenbankdatei verknüpft und ist es nicht mehr.</translation>
    </message>
    <message>
        <source>Connect the data after the import.</source>
        <translation>Verbinden Sie die Daten nach dem Import.</translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words are bound to a data source: they show its value alone.</source>
        <translation>Texte mit einem Platzhalter zwischen anderen Wörtern sind mit einer Datenquelle verbunden: Sie zeigen nur deren Wert.</translation>
    </message>
    <message>
        <source>Put the other words into texts of their own, or into the data source.</source>
        <translation>Setzen Sie die anderen Wörter in eigene Texte oder in die Datenquelle.</translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn: their type does not allow their content.</source>
        <translation>Barcodes lassen sich nicht zeichnen: Ihr Typ erlaubt ihren Inhalt nicht.</translation>
    </message>
    <message>
        <source>Correct the content or choose another type.</source>
        <translation>Berichtigen Sie den Inhalt oder wählen Sie einen anderen Typ.</translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation>Barcodes eines Typs ohne bekanntes Gegenstück wurden zu Code 39.</translation>
    </message>
    <message>
        <source>Scan the old label and choose the right type.</source>
        <translation>Scannen Sie das alte Etikett und wählen Sie den richtigen Typ.</translation>
    </message>
    <message>
        <source>Items lie wholly outside the page: they are not printed.</source>
        <translation>Objekte liegen ganz außerhalb der Seite: Sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Move them onto the page, or delete them.</source>
        <translation>Verschieben Sie sie auf die Seite oder löschen Sie sie.</translation>
    </message>
    <message>
        <source>Items reach beyond the edge of the page: that part is not printed.</source>
        <translation>Objekte ragen über den Rand der Seite: Dieser Teil wird nicht gedruckt.</translation>
    </message>
    <message>
        <source>Compare with the old label.</source>
        <translation>Vergleichen Sie mit dem alten Etikett.</translation>
    </message>
    <message>
        <source>Sizes, positions or fonts are larger than anything on a real label, and were limited.</source>
        <translation>Größen, Positionen oder Schriften sind größer als alles auf einem echten Etikett und wurden begrenzt.</translation>
    </message>
    <message>
        <source>The document measures in millimetres: the label is ten times larger than the paper.</source>
        <translation>Das Dokument misst in Millimetern: Das Etikett ist zehnmal so groß wie das Papier.</translation>
    </message>
    <message>
        <source>Print at a tenth of the size, or save the document with centimetres or inches as its unit.</source>
        <translation>Drucken Sie in einem Zehntel der Größe oder speichern Sie das Dokument mit Zentimetern oder Zoll als Einheit.</translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page: they were read as if they were.</source>
        <translation>Längen sind nicht in der Einheit der Seite: Sie wurden gelesen, als wären sie es.</translation>
    </message>
    <message>
        <source>Save the document with one unit throughout.</source>
        <translation>Speichern Sie das Dokument durchgehend mit einer Einheit.</translation>
    </message>
    <message>
        <source>Set the size of the page after the import.</source>
        <translation>Stellen Sie die Seitengröße nach dem Import ein.</translation>
    </message>
    <message>
        <source>Objects without a position on the page were put where the text runs, or into the corner.</source>
        <translation>Objekte ohne Position auf der Seite kamen dorthin, wo der Text verläuft, oder in die Ecke.</translation>
    </message>
    <message>
        <source>Turned lines and slanted or scaled objects lost that.</source>
        <translation>Gedrehte Linien und geneigte oder skalierte Objekte haben das verloren.</translation>
    </message>
    <message>
        <source>Fonts that are not on this machine were replaced.</source>
        <translation>Schriften, die es auf diesem Rechner nicht gibt, wurden ersetzt.</translation>
    </message>
    <message>
        <source>Install the fonts and import again, if the looks matter.</source>
        <translation>Installieren Sie die Schriften und importieren Sie noch einmal, wenn es auf das Aussehen ankommt.</translation>
    </message>
    <message>
        <source>Stretched texts are not stretched any more.</source>
        <translation>Gestreckte Texte sind nicht mehr gestreckt.</translation>
    </message>
    <message>
        <source>Choose a font size that fits.</source>
        <translation>Wählen Sie eine passende Schriftgröße.</translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation>Farbige Texte haben ihre Farbe verloren.</translation>
    </message>
    <message>
        <source>Set the color after the import.</source>
        <translation>Stellen Sie die Farbe nach dem Import ein.</translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation>Zeilenumbrüche, Tabulatoren oder mehrfache Leerzeichen in Texten fielen weg.</translation>
    </message>
    <message>
        <source>Split such a text into paragraphs.</source>
        <translation>Teilen Sie einen solchen Text in Absätze auf.</translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation>Formate von Zeichen und Absätzen, etwa Hochstellung oder Zeilenabstand, fielen weg.</translation>
    </message>
    <message>
        <source>Gradients, hatchings and pictures that fill objects were simplified.</source>
        <translation>Verläufe, Schraffuren und Bilder, die Objekte füllen, wurden vereinfacht.</translation>
    </message>
    <message>
        <source>Choose a fill after the import.</source>
        <translation>Wählen Sie nach dem Import eine Füllung.</translation>
    </message>
    <message>
        <source>Shadows, transparency, cropping and other effects were dropped.</source>
        <translation>Schatten, Transparenz, Zuschnitt und andere Effekte fielen weg.</translation>
    </message>
    <message>
        <source>The import has something to say about this label.</source>
        <translation>Der Import hat zu diesem Etikett etwas zu sagen.</translation>
    </message>
    <message>
        <source>Read it, and compare with the old label.</source>
        <translation>Lesen Sie es und vergleichen Sie mit dem alten Etikett.</translation>
    </message>
    <message>
        <source>Shapes that have no counterpart became rectangles or ellipses.</source>
        <translation>Formen ohne Gegenstück wurden zu Rechtecken oder Ellipsen.</translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text: they show what they showed when the document was saved.</source>
        <translation>Felder wie Datum, Uhrzeit und Seitenzahl wurden zu einfachem Text: Sie zeigen, was sie beim Speichern des Dokuments zeigten.</translation>
    </message>
    <message>
        <source>The page is measured in a unit that is not known: its numbers were read as inches.</source>
        <translation>Die Seite ist in einer unbekannten Einheit gemessen: Ihre Zahlen wurden als Zoll gelesen.</translation>
    </message>
    <message>
        <source>Save the document with centimetres or inches as its unit.</source>
        <translation>Speichern Sie das Dokument mit Zentimetern oder Zoll als Einheit.</translation>
    </message>
    <message>
        <source>The size of the page is not that of the file: it gives none, or that of another page came first.</source>
        <translation>Die Seitengröße ist nicht die der Datei: Sie nennt keine, oder die einer anderen Seite stand zuerst.</translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in its corner.</source>
        <translation>Die Seitenränder sind weggefallen: Der Text beginnt in der Ecke der Seite.</translation>
    </message>
    <message>
        <source>Move the texts after the import.</source>
        <translation>Die Texte nach dem Import verschieben.</translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text runs down one page.</source>
        <translation>Seitenumbrüche sind weggefallen: Der ganze Text läuft auf einer Seite weiter.</translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The report %1 has an entry that describes no file.</source>
        <translation>Der Bericht %1 hat einen Eintrag, der keine Datei beschreibt.</translation>
    </message>
    <message>
        <source>The file %1 stands in the reports more than once.</source>
        <translation>Die Datei %1 steht mehr als einmal in den Berichten.</translation>
    </message>
    <message>
        <source>The report %1 has changed meanwhile.</source>
        <translation>Der Bericht %1 hat sich inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>migration::ReportReader</name>
    <message>
        <source>The report %1 cannot be read: %2.</source>
        <translation>Der Bericht %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is no report of LabelPort: %2.</source>
        <translation>%1 ist kein Bericht von LabelPort: %2.</translation>
    </message>
    <message>
        <source>it does not begin as one</source>
        <translation>er beginnt nicht wie einer</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>seine Liste von Dateien ist beschädigt</translation>
    </message>
    <message>
        <source>it has no list of files, or is of a version that is not known</source>
        <translation>er hat keine Liste von Dateien oder ist von einer Version, die nicht bekannt ist</translation>
    </message>
    <message>
        <source>it does not name its format</source>
        <translation>er nennt sein Format nicht</translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>The report %1 cannot be written: %2.</source>
        <translation>Der Bericht %1 kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>%1 objects came over; how many the file holds is not known.</source>
        <translation>%1 Objekte wurden übernommen; wie viele die Datei enthält, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%1 of %2 objects came over.</source>
        <translation>%1 von %2 Objekten wurden übernommen.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Nicht importiert: %1</translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation>Nichts ging verloren und nichts wurde verändert.</translation>
    </message>
    <message>
        <source>Nothing was lost; something was changed.</source>
        <translation>Nichts ging verloren; etwas wurde verändert.</translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>Usage: labelport-trace FILE (see labelport-trace --help)</source>
        <translation>Aufruf: labelport-trace DATEI (siehe labelport-trace --help)</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>%1 was not imported; the trace tells how far it came</source>
        <translation>%1 wurde nicht importiert; die Spur zeigt, wie weit es kam</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output</source>
        <translation>auf die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cannot write the trace: %1</source>
        <translation>die Spur kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Imports a legacy label into a host that records, and prints every call on it
as JSON Lines, then what has become of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
        <translation>Importiert ein altes Etikett in ein Gastprogramm, das mitschreibt, und gibt jeden Aufruf
als JSON-Zeile aus, danach, was aus den Objekten wurde.

Exit-Status: 0 importiert, 1 nicht importiert, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>The label to import.</source>
        <translation>Das Etikett, das importiert werden soll.</translation>
    </message>
    <message>
        <source>no file given</source>
        <translation>keine Datei angegeben</translation>
    </message>
    <message>
        <source>one file at a time, please</source>
        <translation>bitte nur eine Datei auf einmal</translation>
    </message>
</context>
<context>
    <name>workbench::BarcodeEncoder</name>
    <message>
        <source>%1: the content has a length that this kind of barcode does not take%2.</source>
        <translation>%1: Der Inhalt hat eine Länge, die diese Barcodeart nicht zulässt%2.</translation>
    </message>
    <message>
        <source>%1: the content does not suit this kind of barcode%2.</source>
        <translation>%1: Der Inhalt passt nicht zu dieser Barcodeart%2.</translation>
    </message>
    <message>
        <source>%1: the content ends in a wrong check digit%2.</source>
        <translation>%1: Der Inhalt endet mit einer falschen Prüfziffer%2.</translation>
    </message>
    <message>
        <source>%1: the content does not go together with the barcode&apos;s settings%2.</source>
        <translation>%1: Der Inhalt verträgt sich nicht mit den Einstellungen des Barcodes%2.</translation>
    </message>
    <message>
        <source>%1: the content is too much for the memory%2.</source>
        <translation>%1: Der Inhalt ist zu viel für den Speicher%2.</translation>
    </message>
    <message>
        <source>%1: the content cannot be encoded%2.</source>
        <translation>%1: Der Inhalt lässt sich nicht kodieren%2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the barcode.</source>
        <translation>Für den Barcode reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>%1: the content needs a linear part, a &quot;|&quot; and a second part.</source>
        <translation>%1: Der Inhalt braucht einen linearen Teil, ein „|“ und einen zweiten Teil.</translation>
    </message>
    <message>
        <source>%1: the content is too long for any barcode.</source>
        <translation>%1: Der Inhalt ist für jeden Barcode zu lang.</translation>
    </message>
    <message>
        <source>%1: the content gives no bars at all.</source>
        <translation>%1: Der Inhalt ergibt gar keine Striche.</translation>
    </message>
    <message>
        <source>The label asks for a kind of barcode that is not known (number %1).</source>
        <translation>Das Etikett verlangt eine Barcodeart, die nicht bekannt ist (Nummer %1).</translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation>%1: Es gibt keinen Inhalt zu kodieren.</translation>
    </message>
</context>
<context>
    <name>workbench::FailureWords</name>
    <message>
        <source>The file is no binary label, or one of a version that cannot be read: it says version %1, but 2000016 is the oldest that can.</source>
        <translation>Die Datei ist kein binäres Etikett oder eines in einer nicht lesbaren Version: Sie nennt Version %1, aber 2000016 ist die älteste lesbare.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file is too large for a label: %1.</source>
        <translation>Die Datei ist zu groß für ein Etikett: %1.</translation>
    </message>
    <message>
        <source>The document is damaged: its part %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation>Das Dokument ist beschädigt: Sein Teil %1 ist in Zeile %2, Spalte %3 nicht wohlgeformt (%4).</translation>
    </message>
    <message>
        <source>The file is no label or a damaged one: it is not well-formed XML at line %1, column %2 (%3).</source>
        <translation>Die Datei ist kein Etikett oder ein beschädigtes: Sie ist in Zeile %1, Spalte %2 kein wohlgeformtes XML (%3).</translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its outermost element is not &quot;qmtx&quot;.</source>
        <translation>Die Datei ist XML, aber kein Etikett: Ihr äußerstes Element ist nicht „qmtx“.</translation>
    </message>
    <message>
        <source>The file is no label, or a damaged one: its first item is of an unknown kind (%1).</source>
        <translation>Die Datei ist kein Etikett oder ein beschädigtes: Ihr erstes Objekt ist von unbekannter Art (%1).</translation>
    </message>
    <message>
        <source>The file is no OpenDocument file, or a damaged one: it has no readable part styles.xml.</source>
        <translation>Die Datei ist keine OpenDocument-Datei oder eine beschädigte: Sie hat keinen lesbaren Teil styles.xml.</translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: it has no readable part content.xml.</source>
        <translation>Die OpenDocument-Datei ist beschädigt: Sie hat keinen lesbaren Teil content.xml.</translation>
    </message>
    <message>
        <source>The file holds nothing that can be put on a label.</source>
        <translation>Die Datei enthält nichts, was auf ein Etikett gebracht werden kann.</translation>
    </message>
</context>
<context>
    <name>fields::FieldProblem</name>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 muss %2 sein</translation>
    </message>
    <message>
        <source>%1 is longer than %2</source>
        <translation>%1 ist länger als %2</translation>
    </message>
    <message>
        <source>a group of fields</source>
        <translation>eine Gruppe von Feldern</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a whole number in range</source>
        <translation>eine ganze Zahl im zulässigen Bereich</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a number or null</source>
        <translation>eine Zahl oder null</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>eine Liste von Texten</translation>
    </message>
    <message>
        <source>a color</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>a width and a height</source>
        <translation>eine Breite und eine Höhe</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>ein Punkt</translation>
    </message>
    <message>
        <source>data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>an alignment</source>
        <translation>eine Ausrichtung</translation>
    </message>
    <message>
        <source>a known type of item</source>
        <translation>eine bekannte Art von Objekt</translation>
    </message>
    <message>
        <source>a set of properties</source>
        <translation>ein Satz von Eigenschaften</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>ein Bild</translation>
    </message>
</context>
<context>
    <name>workbench::FileCheck</name>
    <message>
        <source>No file was named.</source>
        <translation>Es wurde keine Datei genannt.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Das ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Die Datei kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but by its name it is a binary label. If it is an OpenDocument file, rename it so that its only dot is that of &quot;.odt&quot; or &quot;.odg&quot;.</source>
        <translation>Die Datei ist ein Zip-Paket, wie OpenDocument-Dateien es sind, aber dem Namen nach ein binäres Etikett. Wenn sie eine OpenDocument-Datei ist, benennen Sie sie so um, dass ihr einziger Punkt der von „.odt“ oder „.odg“ ist.</translation>
    </message>
    <message>
        <source>The file is XML, but by its name it is a binary label. If it is an XML label, rename it so that its only dot is that of &quot;.qmtx&quot;.</source>
        <translation>Die Datei ist XML, aber dem Namen nach ein binäres Etikett. Wenn sie ein XML-Etikett ist, benennen Sie sie so um, dass ihr einziger Punkt der von „.qmtx“ ist.</translation>
    </message>
</context>
<context>
    <name>workbench::IssueWords</name>
    <message>
        <source>An object of the kind &quot;%1&quot; was left out: the kind is not known.</source>
        <translation>Ein Objekt der Art „%1“ wurde weggelassen: Die Art ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Left out of the label: %1</source>
        <translation>Auf dem Etikett weggelassen: %1</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation>Das Dokument ist weder ein Text noch eine Zeichnung: Es wurde nichts daraus übernommen.</translation>
    </message>
    <message>
        <source>The file goes on with a record of an unknown kind (%1): nothing was read from there on.</source>
        <translation>Die Datei geht mit einem Eintrag unbekannter Art weiter (%1): Von da an wurde nichts gelesen.</translation>
    </message>
</context>
<context>
    <name>workbench::LabelFile</name>
    <message>
        <source>The label cannot be saved as %1: %2.</source>
        <translation>Das Etikett kann nicht als %1 gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened: %2.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>it has more than %1 items</source>
        <translation>es hat mehr als %1 Objekte</translation>
    </message>
    <message>
        <source>its pictures are too large</source>
        <translation>seine Bilder sind zu groß</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>sie ist ein Ordner</translation>
    </message>
    <message>
        <source>it is larger than any label</source>
        <translation>sie ist größer als jedes Etikett</translation>
    </message>
    <message>
        <source>The label file is damaged: its data sources do not fit together.</source>
        <translation>Die Etikettendatei ist beschädigt: Ihre Datenquellen passen nicht zusammen.</translation>
    </message>
    <message>
        <source>The file is not a saved label.</source>
        <translation>Die Datei ist kein gespeichertes Etikett.</translation>
    </message>
    <message>
        <source>The label file is damaged: version is not a positive whole number.</source>
        <translation>Die Etikettendatei ist beschädigt: version ist keine positive ganze Zahl.</translation>
    </message>
    <message>
        <source>The label was saved by a newer version of the program: its format is %1, and this version knows formats up to %2. Update the program to open it.</source>
        <translation>Das Etikett wurde von einer neueren Version des Programms gespeichert: Sein Format ist %1, und diese Version kennt Formate bis %2. Aktualisieren Sie das Programm, um es zu öffnen.</translation>
    </message>
    <message>
        <source>The label file is damaged: label is missing.</source>
        <translation>Die Etikettendatei ist beschädigt: label fehlt.</translation>
    </message>
    <message>
        <source>The label file is damaged: its content has changed since it was saved.</source>
        <translation>Die Etikettendatei ist beschädigt: Ihr Inhalt wurde seit dem Speichern verändert.</translation>
    </message>
    <message>
        <source>The file is not a saved label, or it is damaged: after %1 bytes it cannot be read any further.</source>
        <translation>Die Datei ist kein gespeichertes Etikett, oder sie ist beschädigt: Nach %1 Bytes lässt sie sich nicht weiter lesen.</translation>
    </message>
    <message>
        <source>The label file is damaged: %1.</source>
        <translation>Die Etikettendatei ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The label file is damaged: it holds more than any label.</source>
        <translation>Die Etikettendatei ist beschädigt: Sie enthält mehr als jedes Etikett.</translation>
    </message>
    <message>
        <source>The label file is damaged: its pictures are too large.</source>
        <translation>Die Etikettendatei ist beschädigt: Ihre Bilder sind zu groß.</translation>
    </message>
</context>
<context>
    <name>workbench::LabelImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Für diese Datei reicht der Speicher nicht.</translation>
    </message>
</context>
<context>
    <name>workbench::PageExport</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The page is longer than %1 points, the most that a PDF document can have.</source>
        <translation>Die Seite ist länger als %1 Punkt; mehr fasst ein PDF-Dokument nicht.</translation>
    </message>
</context>
<context>
    <name>workbench::PageImage</name>
    <message>
        <source>The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots per inch. The largest picture is %6 pixels along a side and %7 million in all.</source>
        <translation>Die Seite misst %1 mal %2 Punkt, das ergibt bei %5 dpi ein Bild von %3 mal %4 Pixeln. Das größte Bild hat %6 Pixel je Seite und %7 Millionen im Ganzen.</translation>
    </message>
    <message>
        <source> Up to %1 dots per inch are possible.</source>
        <translation> Bis zu %1 dpi sind möglich.</translation>
    </message>
    <message>
        <source>The resolution must be above 0 dots per inch.</source>
        <translation>Die Auflösung muss größer als 0 dpi sein.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 by %2 pixels.</source>
        <translation>Für ein Bild von %1 mal %2 Pixeln reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it has no table of symbols</source>
        <translation>sie hat keine Tabelle mit Symbolen</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>workbench::Symbologies</name>
    <message>
        <source>barcode kind %1</source>
        <translation>Barcodeart %1</translation>
    </message>
    <message>
        <source>EAN with check digit</source>
        <translation>EAN mit Prüfziffer</translation>
    </message>
    <message>
        <source>UPC-A with check digit</source>
        <translation>UPC-A mit Prüfziffer</translation>
    </message>
    <message>
        <source>UPC-E with check digit</source>
        <translation>UPC-E mit Prüfziffer</translation>
    </message>
</context>
</TS>
