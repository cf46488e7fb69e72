<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QDomParser</name>
    <message>
        <source>Unexpected token</source>
        <translation>Unerwartetes Token</translation>
    </message>
    <message>
        <source>Multiple DTD sections are not allowed</source>
        <translation>Mehrere DTD-Abschnitte sind nicht zulässig</translation>
    </message>
</context>
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
Aktualisieren Sie das alte Tavrel auf die neueste Version und speichern Sie die Datei neu.</translation>
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
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>archive::PreparedList</name>
    <message>
        <source>it was written by another version of labelport</source>
        <translation>sie wurde von einer anderen Version von labelport geschrieben</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>sie ist beschädigt oder unvollständig</translation>
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
        <source>a folder of that name exists</source>
        <translation>ein Ordner dieses Namens ist vorhanden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and it was not written by labelport or has been edited since. Use --force to overwrite it.</source>
        <translation>„%1“ ist vorhanden und wurde entweder nicht von labelport geschrieben oder danach bearbeitet. Mit --force wird die Datei überschrieben.</translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden: %2.</translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>Another input has the same name; both would become &quot;%1&quot;. Keep their subfolders with --base, or use different --output-dir folders.</source>
        <translation>Eine andere Eingabedatei hat denselben Namen; beide würden zu „%1“. Behalten Sie die Unterordner mit --base bei, oder verwenden Sie verschiedene Ordner für --output-dir.</translation>
    </message>
    <message>
        <source>Cannot write the journal in the output folder; --resume will import some files again.</source>
        <translation>Das Journal im Ausgabeordner kann nicht geschrieben werden; --resume wird einige Dateien noch einmal importieren.</translation>
    </message>
    <message>
        <source>Cannot start the worker processes, or they exit at once. Try a larger --memory-limit.</source>
        <translation>Die Arbeitsprozesse können nicht gestartet werden oder beenden sich sofort. Versuchen Sie es mit einem größeren Wert für --memory-limit.</translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Cannot write to &quot;%1&quot;: %2.</source>
        <translation>In „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>a file of that name exists</source>
        <translation>eine Datei dieses Namens ist vorhanden</translation>
    </message>
</context>
<context>
    <name>archive::WorkerEnd</name>
    <message>
        <source>The file needs more than %1 MiB of memory; see --memory-limit.</source>
        <translation>Die Datei benötigt mehr als %1 MiB Speicher; siehe --memory-limit.</translation>
    </message>
    <message numerus="yes">
        <source>The file made no progress for %n second(s); see --timeout.</source>
        <translation>
            <numerusform>Bei der Datei gab es %n Sekunde lang keinen Fortschritt; siehe --timeout.</numerusform>
            <numerusform>Bei der Datei gab es %n Sekunden lang keinen Fortschritt; siehe --timeout.</numerusform>
        </translation>
    </message>
    <message>
        <source>The worker process was killed twice; perhaps the machine is out of memory.</source>
        <translation>Der Arbeitsprozess wurde zweimal zwangsweise beendet; möglicherweise reicht der Speicher des Rechners nicht aus.</translation>
    </message>
    <message>
        <source>The import crashed twice (%1). If a larger --memory-limit does not help, please report the file.</source>
        <translation>Der Import ist zweimal abgestürzt (%1). Wenn ein größerer Wert für --memory-limit nicht hilft, melden Sie bitte die Datei.</translation>
    </message>
    <message>
        <source>The worker process sent an invalid reply twice; please report the file.</source>
        <translation>Der Arbeitsprozess hat zweimal eine ungültige Antwort gesendet; bitte melden Sie die Datei.</translation>
    </message>
    <message>
        <source>The worker process exited twice with status %1; please report the file.</source>
        <translation>Der Arbeitsprozess hat sich zweimal mit dem Status %1 beendet; bitte melden Sie die Datei.</translation>
    </message>
    <message>
        <source>The import was stopped twice because it tried something that its sandbox forbids. Do not trust the file, and please report it.</source>
        <translation>Der Import wurde zweimal abgebrochen, weil er etwas versucht hat, was seine Sandbox verbietet. Vertrauen Sie der Datei nicht und melden Sie das Problem bitte.</translation>
    </message>
</context>
<context>
    <name>cli::ExistingOutput</name>
    <message>
        <source>A report is a file that ends in .json or .html, not &quot;%1&quot;.</source>
        <translation>Ein Bericht ist eine Datei, die auf .json oder .html endet, nicht „%1“.</translation>
    </message>
    <message>
        <source>The name of a report must be valid UTF-8: &quot;%1&quot;.</source>
        <translation>Der Name eines Berichts muss gültiges UTF-8 sein: „%1“.</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>der Ordner „%1“ ist nicht vorhanden</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not writable</source>
        <translation>in den Ordner „%1“ kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists and is not a report of labelport. Use --force to overwrite it.</source>
        <translation>„%1“ ist vorhanden und kein Bericht von labelport. Mit --force wird die Datei überschrieben.</translation>
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
        <source>labels saved by LabelPort</source>
        <translation>von LabelPort gespeicherte Etiketten</translation>
    </message>
    <message>
        <source>Read (import, inspect):</source>
        <translation>Eingabeformate (import, inspect):</translation>
    </message>
    <message>
        <source>versions: %1</source>
        <translation>Versionen: %1</translation>
    </message>
    <message>
        <source>Written (import --to):</source>
        <translation>Ausgabeformate (import --to):</translation>
    </message>
    <message>
        <source>all versions (zipped)</source>
        <translation>alle (gezippt)</translation>
    </message>
    <message>
        <source>formats takes no files.</source>
        <translation>formats erwartet keine Dateien.</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 und 2</translation>
    </message>
    <message>
        <source>%1 × %2 labels of %3 × %4 mm</source>
        <translation>%1 × %2 Etiketten zu %3 × %4 mm</translation>
    </message>
    <message>
        <source>Sheets (--sheet):</source>
        <translation>Bögen (--sheet):</translation>
    </message>
    <message>
        <source>plain paper, with as many labels as fit</source>
        <translation>Papier mit so vielen Etiketten, wie darauf passen</translation>
    </message>
    <message>
        <source>Sandbox in which files are read, on this system: %1.</source>
        <translation>Sandbox, in der Dateien auf diesem System gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>Stopped. Repeat the command with --resume to continue.</source>
        <translation>Abgebrochen. Wiederholen Sie den Befehl mit --resume, um fortzufahren.</translation>
    </message>
    <message>
        <source>No labels to import.</source>
        <translation>Keine Etiketten zum Importieren.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Ein temporärer Ordner kann nicht angelegt werden: %1.</translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Cannot read the list of files &quot;%1&quot;: %2.</source>
        <translation>Die Dateiliste „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list of file names.</source>
        <translation>„%1“ ist keine Liste von Dateinamen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;: it excludes other files, --base, --shard and --null.</source>
        <translation>„%1“ wurde von „labelport list“ geschrieben: Andere Dateien, --base, --shard und --null sind damit nicht möglich.</translation>
    </message>
    <message>
        <source>Cannot search folder &quot;%1&quot;: %2.</source>
        <translation>Ordner „%1“ kann nicht durchsucht werden: %2.</translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation>Die Standardeingabe kann ein Etikett oder eine Dateiliste sein, aber nicht beides.</translation>
    </message>
    <message>
        <source>--%1 expects a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation>--%1 erwartet eine ganze Zahl von %2 bis %3, nicht „%4“.</translation>
    </message>
    <message>
        <source>Unknown target &quot;%1&quot;. Supported targets: %2.</source>
        <translation>Unbekanntes Ziel „%1“. Unterstützte Ziele: %2.</translation>
    </message>
    <message>
        <source>--records expects a number, a range such as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation>--records erwartet eine Zahl, einen Bereich wie 3-12 oder 3- oder all, nicht „%1“.</translation>
    </message>
    <message>
        <source>--shard expects the number of a part and of all parts, such as 3/8, not &quot;%1&quot;.</source>
        <translation>--shard erwartet die Nummer eines Teils und die Anzahl aller Teile, zum Beispiel 3/8, nicht „%1“.</translation>
    </message>
    <message>
        <source>--memory-limit expects 0 or at least %1 MiB.</source>
        <translation>--memory-limit erwartet 0 oder mindestens %1 MiB.</translation>
    </message>
    <message>
        <source>No file to import.</source>
        <translation>Keine Datei zum Importieren angegeben.</translation>
    </message>
    <message>
        <source>--files-from can be given only once.</source>
        <translation>--files-from kann nur einmal angegeben werden.</translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation>--null hat ohne --files-from keine Wirkung.</translation>
    </message>
    <message>
        <source>--base has no effect without --files-from or a named file in a subfolder of that folder.</source>
        <translation>--base hat keine Wirkung ohne --files-from oder eine angegebene Datei in einem Unterordner dieses Ordners.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends in none of the targets&apos; suffixes; specify one with --to: %2.</source>
        <translation>„%1“ hat keine Endung eines Ausgabeziels; geben Sie eines mit --to an: %2.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between the last two targets: &quot;pdf or zpl&quot;</extracomment>
        <translation> oder </translation>
    </message>
    <message>
        <source>--%1 expects one of %2 for the target %3, not &quot;%4&quot;.</source>
        <translation>--%1 erwartet für das Ziel %3 einen der Werte %2, nicht „%4“.</translation>
    </message>
    <message>
        <source>--%1 has no effect without --to %2.</source>
        <translation>--%1 hat ohne --to %2 keine Wirkung.</translation>
    </message>
    <message>
        <source>--output and --%1 exclude each other.</source>
        <translation>--output und --%1 schließen einander aus.</translation>
    </message>
    <message>
        <source>--output needs a file name, one input file and one target.</source>
        <translation>--output braucht einen Dateinamen, eine Eingabedatei und ein Ziel.</translation>
    </message>
    <message>
        <source>--json and --print0 exclude each other.</source>
        <translation>--json und --print0 schließen einander aus.</translation>
    </message>
    <message>
        <source>Unknown sheet &quot;%1&quot;. &quot;labelport formats&quot; lists the sheets.</source>
        <translation>Unbekannter Bogen „%1“. „labelport formats“ listet die Bögen auf.</translation>
    </message>
    <message>
        <source>--%1 has no effect without --sheet.</source>
        <translation>--%1 hat ohne --sheet keine Wirkung.</translation>
    </message>
    <message>
        <source>--output - cannot be used with --to glabels, which may write a second file.</source>
        <translation>--output - ist mit --to glabels nicht möglich, da eine zweite Datei geschrieben werden kann.</translation>
    </message>
    <message>
        <source>--%1 and --output - both write to standard output. Use only one of them.</source>
        <translation>--%1 und --output - schreiben beide auf die Standardausgabe. Verwenden Sie nur eines davon.</translation>
    </message>
</context>
<context>
    <name>cli::ImportReporter</name>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) imported.</source>
        <translation>
            <numerusform>%n Datei importiert.</numerusform>
            <numerusform>%n Dateien importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) had been imported before.</source>
        <translation>
            <numerusform>%n Datei war bereits importiert.</numerusform>
            <numerusform>%n Dateien waren bereits importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ignored %n other file(s).</source>
        <translation>
            <numerusform>%n andere Datei ignoriert.</numerusform>
            <numerusform>%n andere Dateien ignoriert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) failed.</source>
        <translation>
            <numerusform>%n Datei fehlgeschlagen.</numerusform>
            <numerusform>%n Dateien fehlgeschlagen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>Page %1 could not be imported.</source>
        <translation>Seite %1 konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>This system has no complete sandbox, which --require-sandbox demands. It has: %1.</source>
        <translation>Dieses System hat keine vollständige Sandbox, die --require-sandbox verlangt. Vorhanden: %1.</translation>
    </message>
    <message>
        <source>Only the first %1 pages were imported; the document has more.</source>
        <translation>Nur die ersten %1 Seiten wurden importiert; das Dokument hat mehr.</translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Cannot start the worker process.</source>
        <translation>Der Arbeitsprozess kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>inspect needs exactly one file.</source>
        <translation>inspect erwartet genau eine Datei.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Ein temporärer Ordner kann nicht angelegt werden: %1.</translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
        <translation>Unbekannter Reader „%1“. Unterstützte Reader: %2.</translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message numerus="yes">
        <source>The label has only %n record(s); record %1 does not exist.</source>
        <translation>
            <numerusform>Das Etikett hat nur %n Datensatz; Datensatz %1 ist nicht vorhanden.</numerusform>
            <numerusform>Das Etikett hat nur %n Datensätze; Datensatz %1 ist nicht vorhanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; select a range with --records.</source>
        <translation>%1 Datensätze sind mehr als die %2, die ein Befehl schreibt; wählen Sie mit --records einen Bereich.</translation>
    </message>
</context>
<context>
    <name>cli::ListCommand</name>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and is not a list of labelport.</source>
        <translation>„%1“ existiert und ist keine Liste von labelport.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>No file to list.</source>
        <translation>Keine Datei zum Auflisten.</translation>
    </message>
    <message>
        <source>Specify the folder of the lists with --to.</source>
        <translation>Den Ordner der Listen mit --to angeben.</translation>
    </message>
    <message>
        <source>A label from standard input cannot be listed.</source>
        <translation>Ein Etikett von der Standardeingabe kann nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation>--null hat ohne --files-from keine Wirkung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;.</source>
        <translation>„%1“ wurde von „labelport list“ geschrieben.</translation>
    </message>
    <message>
        <source>No labels to list.</source>
        <translation>Keine Etiketten zum Auflisten.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) listed.</source>
        <translation>
            <numerusform>%n Datei aufgelistet.</numerusform>
            <numerusform>%n Dateien aufgelistet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::LossSummary</name>
    <message>
        <source>Labels imported completely: %1, with changes: %2, with losses: %3, failed: %4.</source>
        <translation>Vollständig importierte Etiketten: %1, mit Änderungen: %2, mit Verlusten: %3, fehlgeschlagen: %4.</translation>
    </message>
    <message>
        <source>All details: %1</source>
        <translation>Alle Einzelheiten: %1</translation>
    </message>
    <message>
        <source>All details: add --report report.html, or run labelport inspect on a file.</source>
        <translation>Alle Einzelheiten: mit --report report.html, oder rufen Sie labelport inspect für eine Datei auf.</translation>
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
        <translation>Aufruf: labelport BEFEHL [ARGUMENT...]

Importiert alte Etikettenvorlagen (*.cnv und *.roc, *.qmtx, *.odt und *.odg) und öffnet von
LabelPort gespeicherte Etiketten (*.label). Hilfe zu einem Befehl: labelport BEFEHL --help

Befehle:
</translation>
    </message>
    <message>
        <source>No command given. See &quot;labelport --help&quot;.</source>
        <translation>Kein Befehl angegeben. Siehe „labelport --help“.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unbekannter Befehl „%1“.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Hilfe: %1</translation>
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
        <translation>
  --help           diese Hilfe anzeigen
  --version        die Version anzeigen

Beispiele:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport print asset.label --printer zebra --records 1-40
  labelport inspect shelf.odg
  labelport records asset.qmtx --to records.csv
  labelport trace shelf.odg

Exit-Status: 0 Erfolg, 1 eine Datei ist fehlgeschlagen, 2 falscher Aufruf, 3 ein Etikett wurde
nicht vollständig importiert (import --fail-on-loss), 130 durch ein Signal abgebrochen.
</translation>
    </message>
</context>
<context>
    <name>cli::Options</name>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Abort a file after this many seconds without progress; 0 for no limit (default: 60).</source>
        <translation>Eine Datei nach so vielen Sekunden ohne Fortschritt abbrechen; 0 für unbegrenzt (Vorgabe: 60).</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>Abort a file that uses more memory than this; 0 for no limit (default: 4096).</source>
        <translation>Eine Datei abbrechen, die mehr Speicher als angegeben belegt; 0 für unbegrenzt (Vorgabe: 4096).</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Read files as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever their names. Default: by the suffix, or else by the content.</source>
        <translation>Dateien unabhängig von ihrem Namen als tavrel (*.cnv, *.roc), orvanta (*.qmtx) oder opendocument (*.odt, *.odg) lesen. Vorgabe: nach der Dateiendung, sonst nach dem Inhalt.</translation>
    </message>
    <message>
        <source>targets</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder to write to; created if missing (default: the current folder). Subfolders of an imported folder are kept.</source>
        <translation>Ordner für die Ausgabe; wird bei Bedarf angelegt (Vorgabe: der aktuelle Ordner). Die Unterordner eines importierten Ordners bleiben erhalten.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Overwrite files that labelport did not write, and edited labels.</source>
        <translation>Dateien überschreiben, die labelport nicht geschrieben hat, sowie bearbeitete Etiketten.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Names in the list are separated by NUL, as find -print0 writes them.</source>
        <translation>Die Namen in der Liste sind durch NUL getrennt, wie find -print0 sie ausgibt.</translation>
    </message>
    <message>
        <source>Named and listed files below this folder keep their subfolders in the output folder.</source>
        <translation>Angegebene und aufgelistete Dateien in diesem Ordner behalten im Ausgabeordner ihre Unterordner.</translation>
    </message>
    <message>
        <source>Files to import at the same time (default: one for each processor core).</source>
        <translation>Anzahl der gleichzeitig importierten Dateien (Vorgabe: eine je Prozessorkern).</translation>
    </message>
    <message>
        <source>Skip files that an earlier command with the same options imported, if they and their outputs are unchanged.</source>
        <translation>Dateien überspringen, die ein früherer Befehl mit denselben Optionen importiert hat, wenn sie und ihre Ausgaben unverändert sind.</translation>
    </message>
    <message>
        <source>K/N</source>
        <translation>K/N</translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, to share an archive among N machines.</source>
        <translation>Den K-ten von N Teilen der Dateien importieren, um ein Archiv auf N Rechner zu verteilen.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation>Einen Bericht über alle Dateien schreiben, als .json oder .html; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Exit with status 3 if a label was not imported completely.</source>
        <translation>Mit Status 3 beenden, wenn ein Etikett nicht vollständig importiert wurde.</translation>
    </message>
    <message>
        <source>End each file name on standard output with NUL instead of a line break.</source>
        <translation>Jeden Dateinamen auf der Standardausgabe mit NUL statt mit einem Zeilenumbruch abschließen.</translation>
    </message>
    <message>
        <source>Report only errors on standard error.</source>
        <translation>Auf der Standardfehlerausgabe nur Fehler melden.</translation>
    </message>
    <message>
        <source>Print JSON, as in reports.</source>
        <translation>JSON ausgeben, wie in Berichten.</translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation>Bericht, der geschrieben wird, als .json oder .html; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Overwrite files that are not reports of labelport.</source>
        <translation>Dateien überschreiben, die keine Berichte von labelport sind.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>JSON ausgeben.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Shows what one label contains, and what of it is imported. Writes no files.

Examples:
  labelport inspect shelf.odg
  labelport inspect - --reader orvanta &lt; shelf.xml
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation>Zeigt, was ein Etikett enthält und was davon importiert wird. Schreibt keine Dateien.

Beispiele:
  labelport inspect shelf.odg
  labelport inspect - --reader orvanta &lt; shelf.xml
  labelport inspect shelf.odg --json | jq .lost</translation>
    </message>
    <message>
        <source>Merges the JSON reports of several imports into the report that one import of all files
would have written.

Examples:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</source>
        <translation>Führt die JSON-Berichte mehrerer Importe zu dem Bericht zusammen, den ein einziger Import
aller Dateien geschrieben hätte.

Beispiele:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.</source>
        <translation>Importiert ein altes Etikett in einen aufzeichnenden Host und gibt jeden Aufruf des Hosts als
JSON Lines aus, danach den Endzustand der Objekte.</translation>
    </message>
    <message>
        <source>import labels, or folders of labels</source>
        <translation>Etiketten oder Ordner mit Etiketten importieren</translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation>Etikett oder Ordner mit Etiketten, die importiert werden; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>show what a label contains</source>
        <translation>den Inhalt eines Etiketts anzeigen</translation>
    </message>
    <message>
        <source>Label to inspect; - is standard input.</source>
        <translation>Etikett, das untersucht wird; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>merge the reports of several imports</source>
        <translation>die Berichte mehrerer Importe zusammenführen</translation>
    </message>
    <message>
        <source>JSON reports to merge.</source>
        <translation>JSON-Berichte, die zusammengeführt werden.</translation>
    </message>
    <message>
        <source>list supported formats</source>
        <translation>unterstützte Formate auflisten</translation>
    </message>
    <message>
        <source>print every call that an import makes on its host</source>
        <translation>jeden Aufruf ausgeben, den ein Import an seinem Host vornimmt</translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation>Etikett, das importiert wird; - ist die Standardeingabe.</translation>
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
        <translation>Importiert alte Etiketten (*.cnv, *.roc, *.qmtx, *.odt, *.odg), öffnet gespeicherte (*.label)
und schreibt sie als Bilder, Zeichnungen, Dokumente oder gespeicherte Etiketten. Ein Ordner wird
mit Unterordnern nach Dateien mit diesen Endungen durchsucht. Die geschriebenen Dateien werden
auf der Standardausgabe aufgelistet, in der Reihenfolge der Namen der Eingabedateien.

Beispiele:
  labelport import shelf.odg
  labelport import shelf.odg -o label.svg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import asset.label --to pdf --records 1-40 --sheet L7160 --first-position 5
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import -

Exit-Status: 0 alle Dateien importiert, 1 eine Datei ist fehlgeschlagen, 2 falscher Aufruf,
3 ein Etikett wurde unvollständig importiert (mit --fail-on-loss), 130 Abbruch durch ein Signal.</translation>
    </message>
    <message>
        <source>Prints labels through CUPS, each on paper of its own size, or on sheets. All labels of the
same paper are one job of the printer. If a label cannot be printed, nothing is. The
identifiers of the jobs are listed on standard output.

Examples:
  labelport print asset.label --printer zebra --records 1-40 --copies 2
  labelport print new/*.label --sheet L7160 --first-position 5

Exit status: 0 printed, 1 a label or the printer failed, 2 wrong usage.</source>
        <translation>Druckt Etiketten über CUPS, jedes auf Papier seiner Größe, oder auf Bögen. Alle Etiketten mit
demselben Papier sind ein Druckauftrag. Kann ein Etikett nicht gedruckt werden, wird nichts
gedruckt. Die Kennungen der Aufträge werden auf der Standardausgabe aufgelistet.

Beispiele:
  labelport print asset.label --printer zebra --records 1-40 --copies 2
  labelport print new/*.label --sheet L7160 --first-position 5

Exit-Status: 0 gedruckt, 1 ein Etikett oder der Drucker ist fehlgeschlagen, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Lists what each item shows that is bound to a data source (a counter, a list, a date), as
a CSV table: a line for each record, a column for each item.

Examples:
  labelport records asset.qmtx --to records.csv
  labelport records asset.label --records 1-50 | column -t -s ,</source>
        <translation>Listet auf, was jedes Objekt anzeigt, das mit einer Datenquelle (Zähler, Liste, Datum) verbunden
ist, als CSV-Tabelle: eine Zeile je Datensatz, eine Spalte je Objekt.

Beispiele:
  labelport records asset.qmtx --to records.csv
  labelport records asset.label --records 1-50 | column -t -s ,</translation>
    </message>
    <message>
        <source>Lists the formats that labelport reads, with their versions, the formats that it writes, and the
sheets for --sheet.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation>Listet die Formate auf, die labelport liest, mit ihren Versionen, die Formate, die es schreibt, und
die Bögen für --sheet.

Beispiele:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</translation>
    </message>
    <message>
        <source>Import nothing unless the files are read in a complete sandbox; see &quot;labelport formats&quot;.</source>
        <translation>Nur importieren, wenn die Dateien in einer vollständigen Sandbox gelesen werden; siehe „labelport formats“.</translation>
    </message>
    <message>
        <source>Put the labels on sheets: L7160, 5160 and others, or A4, Letter and other plain paper; see labelport formats. Default: paper of the label&apos;s size.</source>
        <translation>Etiketten auf Bögen drucken: L7160, 5160 und andere, oder A4, Letter und anderes Papier; siehe labelport formats. Vorgabe: Papier in der Größe des Etiketts.</translation>
    </message>
    <message>
        <source>First free label of the first sheet, counted from 1 along the rows (default: 1).</source>
        <translation>Erstes freies Etikett des ersten Bogens, zeilenweise ab 1 gezählt (Vorgabe: 1).</translation>
    </message>
    <message>
        <source>Copies of each record, one after the other, in documents, printer files and prints (default: 1).</source>
        <translation>Exemplare jedes Datensatzes, nacheinander, in Dokumenten, Druckerdateien und Drucken (Vorgabe: 1).</translation>
    </message>
    <message>
        <source>Print marks on the edges of sheets that show where to cut.</source>
        <translation>Schnittmarken an den Rändern der Bögen drucken.</translation>
    </message>
    <message>
        <source>Import OpenDocument files without repairing them first.</source>
        <translation>OpenDocument-Dateien importieren, ohne sie vorher zu reparieren.</translation>
    </message>
    <message>
        <source>File to write the only input to; - is standard output. Without --to, its suffix selects the target.</source>
        <translation>Datei, in die die einzige Eingabe geschrieben wird; - ist die Standardausgabe. Ohne --to bestimmt ihre Endung das Ziel.</translation>
    </message>
    <message>
        <source>Resolution of pictures in dots per inch, 10 to 2400; of a label printer 203, 300 or 600 (default: 300).</source>
        <translation>Auflösung von Bildern in Punkten pro Zoll, 10 bis 2400; eines Etikettendruckers 203, 300 oder 600 (Vorgabe: 300).</translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range such as 3-12 or 3-, or all (default: the first). Pictures of a range are numbered; a PDF has one page and a printer file one label for each record.</source>
        <translation>Datensätze der Datenquellen des Etiketts: eine Zahl, ein Bereich wie 3-12 oder 3- oder all (Vorgabe: der erste). Die Bilder eines Bereichs werden nummeriert; ein PDF hat eine Seite und eine Druckerdatei ein Etikett je Datensatz.</translation>
    </message>
    <message>
        <source>Let the label printer draw barcodes and lines where it can, and advance counters. Otherwise labels are pictures and exact.</source>
        <translation>Barcodes und Linien soweit möglich vom Drucker zeichnen und Zähler von ihm weiterzählen lassen. Sonst sind Etiketten Bilder und genau.</translation>
    </message>
    <message>
        <source>Print an event in JSON for each file, instead of the names of the files written.</source>
        <translation>Für jede Datei ein Ereignis in JSON ausgeben, statt der Namen der geschriebenen Dateien.</translation>
    </message>
    <message>
        <source>Printer to use; lpstat -e lists all (default: the default printer).</source>
        <translation>Drucker; lpstat -e listet alle auf (Vorgabe: der Standarddrucker).</translation>
    </message>
    <message>
        <source>Records of the labels&apos; data sources: a number, a range such as 3-12 or 3-, or all (default: the first).</source>
        <translation>Datensätze der Datenquellen der Etiketten: eine Zahl, ein Bereich wie 3-12 oder 3- oder all (Vorgabe: der erste).</translation>
    </message>
    <message>
        <source>CSV file to write; - is standard output (default: -).</source>
        <translation>Zu schreibende CSV-Datei; - ist die Standardausgabe (Vorgabe: -).</translation>
    </message>
    <message>
        <source>Records to list: a number, a range such as 3-12 or 3-, or all (default: all).</source>
        <translation>Datensätze: eine Zahl, ein Bereich wie 3-12 oder 3- oder all (Vorgabe: all).</translation>
    </message>
    <message>
        <source>Overwrite an existing file.</source>
        <translation>Eine vorhandene Datei überschreiben.</translation>
    </message>
    <message>
        <source>print labels</source>
        <translation>Etiketten drucken</translation>
    </message>
    <message>
        <source>Label to print; - is standard input.</source>
        <translation>Zu druckendes Etikett; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>list what bound items show</source>
        <translation>auflisten, was verbundene Objekte anzeigen</translation>
    </message>
    <message>
        <source>Label to read; - is standard input.</source>
        <translation>Zu lesendes Etikett; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, zpl, csv, label, glabels; several with commas (default: png).</source>
        <translation>Was geschrieben wird: png, svg, pdf, zpl, csv, label, glabels; mehrere mit Kommas (Voreinstellung: png).</translation>
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
        <translation>Listet die Etiketten eines großen Archivs einmal auf, als mehrere Listen, die Maschinen unabhängig
importieren: „labelport import --files-from LISTE“ liest weder die Ordner des Archivs noch die
anderen Listen. Die Namen der Ausgaben gelten für das ganze Archiv. Die Listen heißen 1.jsonl,
2.jsonl und so weiter; ihre Namen werden auf der Standardausgabe aufgelistet.

Beispiele:
  labelport list archive --shards 100 --to lists
  labelport import --files-from lists/17.jsonl --to label --output-dir new --resume

Exit-Status: 0 Erfolg, 1 ein Ordner oder eine Liste ist fehlgeschlagen, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Also take the files named in this list, one name on each line or separated by NUL; - is standard input.</source>
        <translation>Auch die Dateien dieser Liste nehmen, ein Name je Zeile oder durch NUL getrennt; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Folder to write the lists to; created if missing. Lists of an earlier command are replaced.</source>
        <translation>Ordner für die Listen; wird bei Bedarf angelegt. Listen eines früheren Befehls werden ersetzt.</translation>
    </message>
    <message>
        <source>Number of lists, up to 100000 (default: 1).</source>
        <translation>Anzahl der Listen, bis 100000 (Voreinstellung: 1).</translation>
    </message>
    <message>
        <source>Folder that the labels will be imported to, if it is in the archive: it is not searched.</source>
        <translation>Ordner, in den die Etiketten importiert werden, falls er im Archiv liegt: Er wird nicht durchsucht.</translation>
    </message>
    <message>
        <source>list the labels of an archive for several machines</source>
        <translation>die Etiketten eines Archivs für mehrere Maschinen auflisten</translation>
    </message>
    <message>
        <source>Label or folder of labels to list.</source>
        <translation>Etikett oder Ordner mit Etiketten, die aufgelistet werden.</translation>
    </message>
</context>
<context>
    <name>cli::PrintCommand</name>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Ein temporärer Ordner kann nicht angelegt werden: %1.</translation>
    </message>
    <message>
        <source>Cannot print: %1</source>
        <translation>Drucken nicht möglich: %1</translation>
    </message>
    <message>
        <source>No file to print.</source>
        <translation>Keine Datei zum Drucken.</translation>
    </message>
    <message>
        <source>Standard input can be given only once.</source>
        <translation>Die Standardeingabe kann nur einmal angegeben werden.</translation>
    </message>
</context>
<context>
    <name>cli::RecordsCommand</name>
    <message>
        <source>records needs exactly one file.</source>
        <translation>records braucht genau eine Datei.</translation>
    </message>
    <message>
        <source>--to needs a file name.</source>
        <translation>--to braucht einen Dateinamen.</translation>
    </message>
</context>
<context>
    <name>cli::ReportCommand</name>
    <message>
        <source>No command given: labelport report merge REPORT.json... --to FILE</source>
        <translation>Kein Befehl angegeben: labelport report merge BERICHT.json... --to DATEI</translation>
    </message>
    <message>
        <source>Unknown command &quot;report %1&quot;.</source>
        <translation>Unbekannter Befehl „report %1“.</translation>
    </message>
    <message>
        <source>Specify the reports to merge, and the output file with --to.</source>
        <translation>Geben Sie die Berichte an, die zusammengeführt werden, und mit --to die Ausgabedatei.</translation>
    </message>
</context>
<context>
    <name>cli::TraceCommand</name>
    <message>
        <source>Cannot run &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht ausgeführt werden: %2.</translation>
    </message>
</context>
<context>
    <name>console::CommandLine</name>
    <message>
        <source>Unknown option &quot;%1&quot;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Help: %1 --help</source>
        <translation>Hilfe: %1 --help</translation>
    </message>
    <message>
        <source>Did you mean &quot;%1&quot;?</source>
        <translation>Meinten Sie „%1“?</translation>
    </message>
</context>
<context>
    <name>console::Output</name>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>console::StandardInput</name>
    <message>
        <source>Cannot copy standard input to a temporary file: %1.</source>
        <translation>Die Standardeingabe kann nicht in eine temporäre Datei kopiert werden: %1.</translation>
    </message>
    <message>
        <source>Cannot read standard input: %1.</source>
        <translation>Die Standardeingabe kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>Standard input is longer than any label.</source>
        <translation>Die Standardeingabe ist zu lang für ein Etikett.</translation>
    </message>
</context>
<context>
    <name>exporting::ExportFile</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>exporting::ExportFindings</name>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation>%1: genau</translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation>%1: wurde zu einem Bild. %2</translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation>%1: vereinfacht. %2</translation>
    </message>
</context>
<context>
    <name>exporting::Glabels</name>
    <message>
        <source>Only the first records are in the CSV file.</source>
        <translation>Nur die ersten Datensätze sind in der CSV-Datei.</translation>
    </message>
    <message>
        <source>gLabels has no such shape.</source>
        <translation>gLabels kennt diese Form nicht.</translation>
    </message>
    <message>
        <source>gLabels has no gradients and no hatches.</source>
        <translation>gLabels kennt weder Farbverläufe noch Schraffuren.</translation>
    </message>
    <message>
        <source>gLabels has no dashed lines.</source>
        <translation>gLabels kennt keine gestrichelten Linien.</translation>
    </message>
    <message>
        <source>gLabels has no round or beveled corners.</source>
        <translation>gLabels kennt keine runden oder abgeschrägten Ecken.</translation>
    </message>
    <message>
        <source>gLabels has no arrows.</source>
        <translation>gLabels kennt keine Pfeile.</translation>
    </message>
    <message>
        <source>gLabels has no round line ends.</source>
        <translation>gLabels kennt keine runden Linienenden.</translation>
    </message>
    <message>
        <source>A large picture was scaled down.</source>
        <translation>Ein großes Bild wurde verkleinert.</translation>
    </message>
    <message>
        <source>gLabels has no such text format.</source>
        <translation>gLabels kennt dieses Textformat nicht.</translation>
    </message>
    <message>
        <source>The content cannot be encoded.</source>
        <translation>Der Inhalt kann nicht kodiert werden.</translation>
    </message>
    <message>
        <source>gLabels does not encode this barcode.</source>
        <translation>gLabels kodiert diesen Barcode nicht.</translation>
    </message>
    <message>
        <source>gLabels cannot encode some of the records.</source>
        <translation>gLabels kann einige der Datensätze nicht kodieren.</translation>
    </message>
    <message>
        <source>It shows the first record only.</source>
        <translation>Es zeigt nur den ersten Datensatz.</translation>
    </message>
    <message>
        <source>A text from a data source is not underlined.</source>
        <translation>Ein Text aus einer Datenquelle ist nicht unterstrichen.</translation>
    </message>
    <message>
        <source>Justified text is aligned left.</source>
        <translation>Blocksatz ist linksbündig.</translation>
    </message>
    <message>
        <source>gLabels knows only installed fonts: &quot;%1&quot; became &quot;%2&quot;.</source>
        <translation>gLabels kennt nur installierte Schriften: „%1“ wurde zu „%2“.</translation>
    </message>
    <message>
        <source>gLabels 3 distorts text at such angles.</source>
        <translation>gLabels 3 verzerrt Text bei solchen Winkeln.</translation>
    </message>
    <message>
        <source>A text in several formats became a text for each line, format or word.</source>
        <translation>Ein Text in mehreren Formaten wurde zu einem Text je Zeile, Format oder Wort.</translation>
    </message>
</context>
<context>
    <name>exporting::Targets</name>
    <message>
        <source>Re&amp;solution</source>
        <translation>Auf&amp;lösung</translation>
    </message>
    <message>
        <source>resolution in dots per inch</source>
        <translation>Auflösung in Punkten pro Zoll</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>dpi</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplare</translation>
    </message>
    <message>
        <source>copies of each record</source>
        <translation>Exemplare jedes Datensatzes</translation>
    </message>
    <message>
        <source>&amp;Sheet</source>
        <translation>&amp;Bogen</translation>
    </message>
    <message>
        <source>sheet of labels, or paper</source>
        <translation>Etikettenbogen oder Papier</translation>
    </message>
    <message>
        <source>First &amp;label</source>
        <translation>Erstes &amp;Etikett</translation>
    </message>
    <message>
        <source>first free label of the first sheet</source>
        <translation>erstes freies Etikett des ersten Bogens</translation>
    </message>
    <message>
        <source>C&amp;rop marks</source>
        <translation>S&amp;chnittmarken</translation>
    </message>
    <message>
        <source>marks on sheets that show where to cut</source>
        <translation>Marken auf Bögen, die zeigen, wo geschnitten wird</translation>
    </message>
    <message>
        <source>&amp;Printer resolution</source>
        <translation>&amp;Druckerauflösung</translation>
    </message>
    <message>
        <source>resolution of the label printer</source>
        <translation>Auflösung des Etikettendruckers</translation>
    </message>
    <message>
        <source>&amp;Barcodes, lines and counters by the printer</source>
        <translation>&amp;Barcodes, Linien und Zähler vom Drucker</translation>
    </message>
    <message>
        <source>let the printer draw barcodes and lines, and advance counters</source>
        <translation>den Drucker Barcodes und Linien zeichnen und Zähler weiterzählen lassen</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>PNG-Bilder</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message>
        <source>SVG drawings</source>
        <translation>SVG-Zeichnungen</translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation>Vektorzeichnung</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF-Dokument</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF-Dokumente</translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation>Dokument, eine Seite je Datensatz</translation>
    </message>
    <message>
        <source>ZPL for label printers</source>
        <translation>ZPL für Etikettendrucker</translation>
    </message>
    <message>
        <source>Printer files</source>
        <translation>Druckerdateien</translation>
    </message>
    <message>
        <source>commands for a label printer, a label for each record</source>
        <translation>Befehle für einen Etikettendrucker, ein Etikett je Datensatz</translation>
    </message>
    <message>
        <source>CSV table of records</source>
        <translation>CSV-Tabelle der Datensätze</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV-Tabellen</translation>
    </message>
    <message>
        <source>table of what bound items show, a line for each record</source>
        <translation>Tabelle dessen, was verbundene Objekte anzeigen, eine Zeile je Datensatz</translation>
    </message>
    <message>
        <source>LabelPort label</source>
        <translation>LabelPort-Etikett</translation>
    </message>
    <message>
        <source>LabelPort labels</source>
        <translation>LabelPort-Etiketten</translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation>gespeichertes Etikett, kann wieder geöffnet und bearbeitet werden</translation>
    </message>
    <message>
        <source>gLabels label</source>
        <translation>gLabels-Etikett</translation>
    </message>
    <message>
        <source>gLabels labels</source>
        <translation>gLabels-Etiketten</translation>
    </message>
    <message>
        <source>label for gLabels, with its records in a CSV file</source>
        <translation>Etikett für gLabels, mit seinen Datensätzen in einer CSV-Datei</translation>
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
        <translation>ein bekannter Objekttyp</translation>
    </message>
    <message>
        <source>a set of properties</source>
        <translation>ein Satz von Eigenschaften</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>a known status</source>
        <translation>ein bekannter Status</translation>
    </message>
    <message>
        <source>a list of whole numbers</source>
        <translation>eine Liste ganzer Zahlen</translation>
    </message>
    <message>
        <source>a list of rectangles</source>
        <translation>eine Liste von Rechtecken</translation>
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
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation>Die Datei ist beschädigt, daher können ihre Objekte nicht gezählt werden: %1.</translation>
    </message>
    <message>
        <source>The file continues with unknown data, which may contain more objects.</source>
        <translation>Die Datei setzt sich mit unbekannten Daten fort, die weitere Objekte enthalten können.</translation>
    </message>
    <message>
        <source>The file is truncated: it may have contained more objects.</source>
        <translation>Die Datei ist abgeschnitten: Sie kann weitere Objekte enthalten haben.</translation>
    </message>
    <message>
        <source>The file is not a binary label of a supported version.</source>
        <translation>Die Datei ist kein binäres Etikett einer unterstützten Version.</translation>
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
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation>Datenquellen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Imported completely</source>
        <translation>Vollständig importiert</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Written files</source>
        <translation>Geschriebene Dateien</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nicht importiert</translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation>Mit Änderungen importiert</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Repariert</translation>
    </message>
    <message>
        <source>Show a larger picture</source>
        <translation>Größeres Bild anzeigen</translation>
    </message>
    <message>
        <source>The document&apos;s own picture of %1</source>
        <translation>Vorschau des Dokuments %1</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation>%1: genau</translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation>%1: wurde zu einem Bild. %2</translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation>%1: vereinfacht. %2</translation>
    </message>
    <message>
        <source>In gLabels</source>
        <translation>In gLabels</translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
    <message>
        <source>What was lost or changed</source>
        <translation>Verluste und Änderungen</translation>
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
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>What can be done</source>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>as imported</source>
        <translation>in der Reihenfolge des Imports</translation>
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
        <source>worst status first</source>
        <translation>der schlechteste Status zuerst</translation>
    </message>
    <message>
        <source>Sort and filter</source>
        <translation>Sortieren und filtern</translation>
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
        <translation>Reader</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 angezeigt</translation>
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
        <source>Imported %1 of %2 objects in these files.</source>
        <translation>%1 von %2 Objekten in diesen Dateien importiert.</translation>
    </message>
    <message>
        <source>Files whose objects could not be counted: %1.</source>
        <translation>Dateien, deren Objekte nicht gezählt werden konnten: %1.</translation>
    </message>
    <message>
        <source>most lost objects first</source>
        <translation>die meisten verlorenen Objekte zuerst</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Nichts ging verloren oder wurde verändert.</translation>
    </message>
    <message>
        <source>No matching files.</source>
        <translation>Keine passenden Dateien.</translation>
    </message>
    <message>
        <source>%1 of %2 files imported completely</source>
        <translation>%1 von %2 Dateien vollständig importiert</translation>
    </message>
    <message>
        <source>Files that were read without a complete sandbox: %1.</source>
        <translation>Dateien, die ohne vollständige Sandbox gelesen wurden: %1.</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>abgestürzt</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>Zeit überschritten</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>zu wenig Speicher</translation>
    </message>
    <message>
        <source>Larger picture</source>
        <translation>Größeres Bild</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open in the LabelPort workbench</source>
        <translation>In labelport-workbench öffnen</translation>
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
        <source>Page: %1 × %2 mm</source>
        <translation>Seite: %1 × %2 mm</translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation>Datenquellen:</translation>
    </message>
    <message>
        <source>Items (millimeters):</source>
        <translation>Objekte (Millimeter):</translation>
    </message>
    <message>
        <source>Imported completely:</source>
        <translation>Vollständig importiert:</translation>
    </message>
    <message>
        <source>Imported with changes:</source>
        <translation>Mit Änderungen importiert:</translation>
    </message>
    <message>
        <source>Not imported:</source>
        <translation>Nicht importiert:</translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation>Warnungen:</translation>
    </message>
    <message>
        <source>Sandbox: %1</source>
        <translation>Sandbox: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Repaired:</source>
        <translation>Repariert:</translation>
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
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation>Objekte in Gruppen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation>Objekte auf der zweiten Seite und den folgenden wurden weggelassen: Ein Etikett hat eine Seite.</translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation>Objekte des Seitenhintergrunds (der Masterseite) wurden weggelassen.</translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation>Verbinder zwischen Objekten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation>Kurven, freie Polygone und Linienzüge wurden weggelassen.</translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation>Legenden wurden weggelassen.</translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation>Dreidimensionale Objekte wurden weggelassen.</translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
        <translation>Formularfelder wurden weggelassen.</translation>
    </message>
    <message>
        <source>Embedded objects, such as charts and formulas, were left out; an empty box is in their place.</source>
        <translation>Eingebettete Objekte wie Diagramme und Formeln wurden weggelassen; an ihrer Stelle steht ein leerer Rahmen.</translation>
    </message>
    <message>
        <source>Objects inside texts, text boxes or other objects were left out.</source>
        <translation>Objekte in Texten, Textfeldern oder anderen Objekten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Texts and objects in tables were left out.</source>
        <translation>Texte und Objekte in Tabellen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation>Texte in Listen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation>Texte und Objekte in Bereichen oder Verzeichnissen wurden weggelassen.</translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation>Texte und Objekte der Kopf- oder Fußzeile wurden weggelassen.</translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation>Texte von Hyperlinks wurden weggelassen.</translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation>Felder in Texten, etwa Seitenzahlen und Namen, wurden weggelassen.</translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation>Fußnoten und Endnoten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation>Kommentare wurden weggelassen; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation>Animationen wurden weggelassen; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation>Bildrahmen ohne Bild wurden weggelassen.</translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation>Barcodes eines Typs ohne bekanntes Gegenstück wurden zu Code 39.</translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation>Farbige Texte haben ihre Farbe verloren.</translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation>Zeilenumbrüche, Tabulatoren oder mehrfache Leerzeichen in Texten wurden verworfen.</translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation>Formate von Zeichen und Absätzen, etwa Hochstellung oder Zeilenabstand, wurden verworfen.</translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only texts, text boxes and pictures are imported.</source>
        <translation>Formen eines Textdokuments wurden weggelassen: Nur Texte, Textfelder und Bilder werden importiert.</translation>
    </message>
    <message>
        <source>Parts of texts were left out because their type is unknown.</source>
        <translation>Teile von Texten wurden weggelassen, weil ihr Typ unbekannt ist.</translation>
    </message>
    <message>
        <source>Texts of shapes were left out because they do not begin with a plain paragraph.</source>
        <translation>Texte von Formen wurden weggelassen, weil sie nicht mit einem einfachen Absatz beginnen.</translation>
    </message>
    <message>
        <source>Objects were left out because their type is unknown.</source>
        <translation>Objekte wurden weggelassen, weil ihr Typ unbekannt ist.</translation>
    </message>
    <message>
        <source>Controls were left out because their type is unknown.</source>
        <translation>Formularfelder wurden weggelassen, weil ihr Typ unbekannt ist.</translation>
    </message>
    <message>
        <source>The file has several lists of objects; all but the first were left out.</source>
        <translation>Die Datei hat mehrere Objektlisten; alle außer der ersten wurden weggelassen.</translation>
    </message>
    <message>
        <source>Pictures were left out because they are damaged, too large or of an unsupported format.</source>
        <translation>Bilder wurden weggelassen, weil sie beschädigt oder zu groß sind oder ihr Format nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>Vector drawings were left out because they cannot be converted.</source>
        <translation>Vektorzeichnungen wurden weggelassen, weil sie nicht umgewandelt werden können.</translation>
    </message>
    <message>
        <source>Symbols were left out because neither the file nor the symbol databases contain their drawings.</source>
        <translation>Symbole wurden weggelassen, weil weder die Datei noch die Symboldatenbanken ihre Zeichnungen enthalten.</translation>
    </message>
    <message>
        <source>Barcodes were left out because their type is not supported.</source>
        <translation>Barcodes wurden weggelassen, weil ihr Typ nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The file continues with an unknown record; the rest was not read.</source>
        <translation>Die Datei setzt sich mit einem unbekannten Eintrag fort; der Rest wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>The file is truncated: its last object is incomplete, and more may be missing.</source>
        <translation>Die Datei ist abgeschnitten: Ihr letztes Objekt ist unvollständig, und weitere können fehlen.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported.</source>
        <translation>Das Dokument ist weder ein Text noch eine Zeichnung; es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Content was left out because it exceeds the limits for labels.</source>
        <translation>Inhalt wurde weggelassen, weil er die Grenzen für Etiketten überschreitet.</translation>
    </message>
    <message>
        <source>Objects of the file are missing on the label, without a reported reason.</source>
        <translation>Objekte der Datei fehlen auf dem Etikett, ohne dass ein Grund gemeldet wurde.</translation>
    </message>
    <message>
        <source>Unsupported shapes became rectangles or ellipses.</source>
        <translation>Nicht unterstützte Formen wurden zu Rechtecken oder Ellipsen.</translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show their last value.</source>
        <translation>Objekte sind nicht mehr mit ihrer Datenquelle verbunden: Sie zeigen ihren letzten Wert.</translation>
    </message>
    <message>
        <source>The label is no longer linked to its database file.</source>
        <translation>Das Etikett ist nicht mehr mit seiner Datenbankdatei verknüpft.</translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words show only the value of the data source.</source>
        <translation>Texte mit einem Platzhalter zwischen anderen Wörtern zeigen nur den Wert der Datenquelle.</translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text with the value that they had when the document was saved.</source>
        <translation>Felder wie Datum, Uhrzeit und Seitenzahl wurden zu einfachem Text mit dem Wert, den sie beim Speichern des Dokuments hatten.</translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn because their content is invalid for their type.</source>
        <translation>Barcodes können nicht gezeichnet werden, weil ihr Inhalt für ihren Typ ungültig ist.</translation>
    </message>
    <message>
        <source>Items are completely outside the page: they are not printed.</source>
        <translation>Objekte liegen vollständig außerhalb der Seite: Sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Items extend beyond the edge of the page: that part is not printed.</source>
        <translation>Objekte ragen über den Seitenrand hinaus: Dieser Teil wird nicht gedruckt.</translation>
    </message>
    <message>
        <source>Sizes, positions or fonts exceed the limits for labels and were reduced.</source>
        <translation>Größen, Positionen oder Schriften überschreiten die Grenzen für Etiketten und wurden verkleinert.</translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page, but were read as if they were.</source>
        <translation>Längen haben nicht die Einheit der Seite, wurden aber so gelesen.</translation>
    </message>
    <message>
        <source>Objects without a position on the page were placed in the text flow or in the corner.</source>
        <translation>Objekte ohne Position auf der Seite wurden in den Textfluss oder in die Ecke gesetzt.</translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in the corner.</source>
        <translation>Die Seitenränder wurden verworfen: Der Text beginnt in der Ecke.</translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text is on one page.</source>
        <translation>Seitenumbrüche wurden verworfen: Der gesamte Text steht auf einer Seite.</translation>
    </message>
    <message>
        <source>Rotation of lines, and skewing and scaling of objects, were dropped.</source>
        <translation>Die Drehung von Linien sowie die Neigung und Skalierung von Objekten wurden verworfen.</translation>
    </message>
    <message>
        <source>Fonts that are not installed were replaced.</source>
        <translation>Nicht installierte Schriften wurden ersetzt.</translation>
    </message>
    <message>
        <source>Stretched texts are no longer stretched.</source>
        <translation>Gestreckte Texte sind nicht mehr gestreckt.</translation>
    </message>
    <message>
        <source>The import reported a problem with this label.</source>
        <translation>Der Import hat ein Problem mit diesem Etikett gemeldet.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written.</source>
        <translation>Wenn das Dokument wie geschrieben importiert wurde, importieren Sie es ohne --as-written.</translation>
    </message>
    <message>
        <source>Texts of lines and dimension lines were left out.</source>
        <translation>Texte von Linien und Maßlinien wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Add the symbols to the symbol databases and import again.</source>
        <translation>Fügen Sie die Symbole den Symboldatenbanken hinzu und importieren Sie erneut.</translation>
    </message>
    <message>
        <source>The log was cut, or the label is too large to compare: there may be losses that are not listed.</source>
        <translation>Das Protokoll wurde gekürzt, oder das Etikett ist zu groß für den Vergleich: Möglicherweise sind nicht alle Verluste aufgeführt.</translation>
    </message>
    <message>
        <source>Bind the items to a data source in labelport-workbench.</source>
        <translation>Verbinden Sie die Objekte in labelport-workbench mit einer Datenquelle.</translation>
    </message>
    <message>
        <source>Correct the content or the type in labelport-workbench under Properties.</source>
        <translation>Korrigieren Sie Inhalt oder Typ in labelport-workbench unter „Eigenschaften“.</translation>
    </message>
    <message>
        <source>Choose the type in labelport-workbench under Properties.</source>
        <translation>Wählen Sie den Typ in labelport-workbench unter „Eigenschaften“.</translation>
    </message>
    <message>
        <source>Move the items onto the page in labelport-workbench.</source>
        <translation>Verschieben Sie die Objekte in labelport-workbench auf die Seite.</translation>
    </message>
    <message>
        <source>The document uses millimeters: the label is a hundred times larger than the paper. Fonts and lines did not grow with it, so that texts are hardly visible.</source>
        <translation>Das Dokument verwendet Millimeter: Das Etikett ist hundertmal so groß wie das Papier. Schriften und Linien sind nicht mitgewachsen, sodass Texte kaum zu sehen sind.</translation>
    </message>
    <message>
        <source>The unit of the page is not supported: its lengths were read as inches, so that points become 72 times too large. Fonts and lines did not grow with them, so that texts are hardly visible.</source>
        <translation>Die Einheit der Seite wird nicht unterstützt: Ihre Längen wurden als Zoll gelesen, sodass Punkte 72-mal zu groß werden. Schriften und Linien sind nicht mitgewachsen, sodass Texte kaum zu sehen sind.</translation>
    </message>
    <message>
        <source>Install the fonts and import again, or choose another font in labelport-workbench under Properties.</source>
        <translation>Installieren Sie die Schriften und importieren Sie erneut, oder wählen Sie in labelport-workbench unter „Eigenschaften“ eine andere Schrift.</translation>
    </message>
    <message>
        <source>Set the font size in labelport-workbench under Properties.</source>
        <translation>Setzen Sie die Schriftgröße in labelport-workbench unter „Eigenschaften“.</translation>
    </message>
    <message>
        <source>Texts differ from the document: words run together, or line breaks or words are missing.</source>
        <translation>Texte weichen vom Dokument ab: Wörter sind zusammengezogen, oder Zeilenumbrüche oder Wörter fehlen.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or correct the text in labelport-workbench under Properties.</source>
        <translation>Wenn das Dokument wie geschrieben importiert wurde, importieren Sie es ohne --as-written. Oder korrigieren Sie den Text in labelport-workbench unter „Eigenschaften“.</translation>
    </message>
    <message>
        <source>Texts can hardly be read: their color is too similar to what is under them.</source>
        <translation>Texte sind kaum lesbar: Ihre Farbe ist dem Untergrund zu ähnlich.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or set the color in labelport-workbench under Properties.</source>
        <translation>Wenn das Dokument wie geschrieben importiert wurde, importieren Sie es ohne --as-written. Oder setzen Sie die Farbe in labelport-workbench unter „Eigenschaften“.</translation>
    </message>
    <message>
        <source>Texts are printed over each other.</source>
        <translation>Texte überlagern einander.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the texts in labelport-workbench.</source>
        <translation>Wenn das Dokument wie geschrieben importiert wurde, importieren Sie es ohne --as-written. Oder verschieben Sie die Texte in labelport-workbench.</translation>
    </message>
    <message>
        <source>Items are covered by others, which they are not in the document.</source>
        <translation>Objekte sind von anderen verdeckt, was sie im Dokument nicht sind.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the items in labelport-workbench.</source>
        <translation>Wenn das Dokument wie geschrieben importiert wurde, importieren Sie es ohne --as-written. Oder verschieben Sie die Objekte in labelport-workbench.</translation>
    </message>
    <message>
        <source>Items have another place or size than in the document, by more than 1 mm.</source>
        <translation>Objekte haben eine andere Position oder Größe als im Dokument, um mehr als 1 mm.</translation>
    </message>
    <message>
        <source>Mirrored shapes are no longer mirrored.</source>
        <translation>Gespiegelte Formen sind nicht mehr gespiegelt.</translation>
    </message>
    <message>
        <source>Items cannot be seen, because they have the color of what is under them.</source>
        <translation>Objekte sind nicht zu sehen, weil sie die Farbe des Untergrunds haben.</translation>
    </message>
    <message>
        <source>Choose another fill in labelport-workbench under Properties.</source>
        <translation>Wählen Sie in labelport-workbench unter „Eigenschaften“ eine andere Füllung.</translation>
    </message>
    <message>
        <source>Boxes are filled that are not filled in the document.</source>
        <translation>Rahmen sind gefüllt, die im Dokument nicht gefüllt sind.</translation>
    </message>
    <message>
        <source>Lines are more than a quarter thinner or thicker than in the document.</source>
        <translation>Linien sind um mehr als ein Viertel dünner oder dicker als im Dokument.</translation>
    </message>
    <message>
        <source>Transparent fills and lines became opaque.</source>
        <translation>Transparente Füllungen und Linien wurden deckend.</translation>
    </message>
    <message>
        <source>Pictures and patterns that fill objects were replaced by a color.</source>
        <translation>Bilder und Muster, die Objekte füllen, wurden durch eine Farbe ersetzt.</translation>
    </message>
    <message>
        <source>Pages were left out, because the document has too many or they cannot be imported.</source>
        <translation>Seiten wurden weggelassen, weil das Dokument zu viele hat oder sie nicht importiert werden können.</translation>
    </message>
    <message>
        <source>Texts along a curve became straight.</source>
        <translation>Texte entlang einer Kurve wurden gerade.</translation>
    </message>
    <message>
        <source>Numbers of headings were left out.</source>
        <translation>Nummern von Überschriften wurden weggelassen.</translation>
    </message>
    <message>
        <source>Add the numbers in labelport-workbench under Properties.</source>
        <translation>Fügen Sie die Nummern in labelport-workbench unter „Eigenschaften“ hinzu.</translation>
    </message>
    <message>
        <source>Fills of objects, such as gradients and hatchings, were simplified or dropped.</source>
        <translation>Füllungen von Objekten wie Verläufe und Schraffuren wurden vereinfacht oder weggelassen.</translation>
    </message>
    <message>
        <source>The size of the page was assumed: the file defines none, or several.</source>
        <translation>Die Größe der Seite wurde angenommen: Die Datei legt keine oder mehrere fest.</translation>
    </message>
    <message>
        <source>Looks of texts were dropped, such as shadow, outline, borders, rotation, kinds of underlines, drop caps, tab stops, fixed line heights, numbers of lines, picture bullets, marks of changes, pictures below texts and grounds of sections.</source>
        <translation>Aussehen von Texten ging verloren, zum Beispiel Schatten, Kontur, Rahmen, Drehung, Arten von Unterstreichungen, Initialen, Tabstopps, feste Zeilenhöhen, Zeilennummern, Bilder als Aufzählungszeichen, Änderungsmarken, Bilder unter Texten und Hintergründe von Abschnitten.</translation>
    </message>
    <message>
        <source>Lines beside objects break elsewhere than in the document; objects there may have moved.</source>
        <translation>Zeilen neben Objekten brechen an anderen Stellen um als im Dokument; Objekte dort können verschoben sein.</translation>
    </message>
    <message>
        <source>Columns, linked text boxes, endnotes, and tables in headers, footers and cells follow each other in one column.</source>
        <translation>Spalten, verkettete Textrahmen, Endnoten und Tabellen in Kopfzeilen, Fußzeilen und Zellen folgen aufeinander in einer Spalte.</translation>
    </message>
    <message>
        <source>Borders of cells have other lines than in the document, or are missing in tables within tables.</source>
        <translation>Rahmen von Zellen haben andere Linien als im Dokument oder fehlen in Tabellen innerhalb von Tabellen.</translation>
    </message>
    <message>
        <source>Embedded documents and charts were drawn again from their content: sizes, fonts and details may differ.</source>
        <translation>Eingebettete Dokumente und Diagramme wurden aus ihrem Inhalt neu gezeichnet: Größen, Schriften und Einzelheiten können abweichen.</translation>
    </message>
    <message>
        <source>Shadows, transparency of pictures, cropping, borders that differ by side and other effects were dropped.</source>
        <translation>Schatten, Transparenz von Bildern, Zuschnitt, Rahmen, die sich je Seite unterscheiden, und andere Effekte gingen verloren.</translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The reports contain the file &quot;%1&quot; more than once.</source>
        <translation>Die Berichte enthalten die Datei „%1“ mehr als einmal.</translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; has changed during the merge.</source>
        <translation>Der Bericht „%1“ wurde während des Zusammenführens geändert.</translation>
    </message>
</context>
<context>
    <name>migration::ReportLines</name>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a report of LabelPort: %2.</source>
        <translation>„%1“ ist kein Bericht von LabelPort: %2.</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>das Ende fehlt</translation>
    </message>
    <message>
        <source>line %1 does not name the format, or an unsupported version of it</source>
        <translation>Zeile %1 nennt das Format nicht oder eine nicht unterstützte Version davon</translation>
    </message>
    <message>
        <source>line %1 does not describe a file</source>
        <translation>Zeile %1 beschreibt keine Datei</translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>Cannot write the report &quot;%1&quot;: %2.</source>
        <translation>Der Bericht „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>Not imported: %1</source>
        <translation>Nicht importiert: %1</translation>
    </message>
    <message>
        <source>Objects imported: %1 (the number of objects in the file is unknown).</source>
        <translation>Importierte Objekte: %1 (die Anzahl der Objekte in der Datei ist unbekannt).</translation>
    </message>
    <message>
        <source>Imported %1 of %2 objects.</source>
        <translation>%1 von %2 Objekten importiert.</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Nichts ging verloren oder wurde verändert.</translation>
    </message>
    <message>
        <source>imported completely</source>
        <translation>vollständig importiert</translation>
    </message>
    <message>
        <source>imported with changes</source>
        <translation>mit Änderungen importiert</translation>
    </message>
    <message>
        <source>The content is complete; looks changed.</source>
        <translation>Der Inhalt ist vollständig; das Aussehen hat sich geändert.</translation>
    </message>
    <message>
        <source>imported with losses</source>
        <translation>mit Verlusten importiert</translation>
    </message>
    <message>
        <source>Content was lost or changed.</source>
        <translation>Inhalt ging verloren oder hat sich geändert.</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>printing::PrintDocument</name>
    <message>
        <source>%1 labels in %2 copies are more than the %3 of one document.</source>
        <translation>%1 Etiketten in %2 Exemplaren sind mehr als die %3 eines Dokuments.</translation>
    </message>
    <message>
        <source>Sheet &quot;%1&quot; has no position %2; its positions are 1 to %3.</source>
        <translation>Bogen „%1“ hat keine Position %2; seine Positionen sind 1 bis %3.</translation>
    </message>
</context>
<context>
    <name>printing::PrintQueue</name>
    <message>
        <source>Cannot run &quot;%1&quot;. Install the client commands of CUPS.</source>
        <translation>„%1“ kann nicht ausgeführt werden. Installieren Sie die Client-Befehle von CUPS.</translation>
    </message>
    <message>
        <source>The print server does not reply.</source>
        <translation>Der Druckserver antwortet nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed.</source>
        <translation>„%1“ ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>printing::Sheet</name>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>The sides of the paper must be from 1 to %1 mm.</source>
        <translation>Die Seiten des Papiers müssen zwischen 1 und %1 mm lang sein.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and columns.</source>
        <translation>Ein Bogen hat 1 bis %1 Zeilen und Spalten.</translation>
    </message>
    <message>
        <source>The sides of a label must be at least 1 mm.</source>
        <translation>Die Seiten eines Etiketts müssen mindestens 1 mm lang sein.</translation>
    </message>
    <message>
        <source>The labels of the sheet overlap.</source>
        <translation>Die Etiketten des Bogens überlappen einander.</translation>
    </message>
    <message>
        <source>The labels of the sheet exceed the paper.</source>
        <translation>Die Etiketten des Bogens ragen über das Papier hinaus.</translation>
    </message>
    <message>
        <source>The label is %1; the labels of sheet &quot;%2&quot; are only %3.</source>
        <translation>Das Etikett hat %1; die Etiketten des Bogens „%2“ haben nur %3.</translation>
    </message>
</context>
<context>
    <name>repair</name>
    <message>
        <source>The document could not be repaired: it was imported as it is written.</source>
        <translation>Das Dokument konnte nicht repariert werden: Es wurde importiert, wie es geschrieben ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n length(s) converted to inches</source>
        <translation>
            <numerusform>%n Länge in Zoll umgerechnet</numerusform>
            <numerusform>%n Längen in Zoll umgerechnet</numerusform>
        </translation>
    </message>
    <message>
        <source>Page size taken from the master page</source>
        <translation>Seitengröße von der Vorlagenseite übernommen</translation>
    </message>
    <message>
        <source>Text laid out with its margins, spacing, pictures and tables</source>
        <translation>Text mit seinen Rändern, Abständen, Bildern und Tabellen gesetzt</translation>
    </message>
    <message numerus="yes">
        <source>%n further page(s) imported as separate labels</source>
        <translation>
            <numerusform>%n weitere Seite als eigenes Etikett importiert</numerusform>
            <numerusform>%n weitere Seiten als eigene Etiketten importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) of the master page copied to the page</source>
        <translation>
            <numerusform>%n Objekt der Vorlagenseite auf die Seite übernommen</numerusform>
            <numerusform>%n Objekte der Vorlagenseite auf die Seite übernommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) dissolved</source>
        <translation>
            <numerusform>%n Gruppe aufgelöst</numerusform>
            <numerusform>%n Gruppen aufgelöst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) replaced by boxes with text</source>
        <translation>
            <numerusform>%n Tabelle durch Rahmen mit Text ersetzt</numerusform>
            <numerusform>%n Tabellen durch Rahmen mit Text ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) replaced by boxes with lines</source>
        <translation>
            <numerusform>%n Legende durch Rahmen mit Linien ersetzt</numerusform>
            <numerusform>%n Legenden durch Rahmen mit Linien ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dimension line(s) replaced by lines and text</source>
        <translation>
            <numerusform>%n Maßlinie durch Linien und Text ersetzt</numerusform>
            <numerusform>%n Maßlinien durch Linien und Text ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) on lines moved into text boxes</source>
        <translation>
            <numerusform>%n Text auf Linien in Textrahmen übernommen</numerusform>
            <numerusform>%n Texte auf Linien in Textrahmen übernommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connector(s) replaced by lines or drawings</source>
        <translation>
            <numerusform>%n Verbinder durch Linien oder Zeichnungen ersetzt</numerusform>
            <numerusform>%n Verbinder durch Linien oder Zeichnungen ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n freeform shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n Freiform durch eine Zeichnung ersetzt</numerusform>
            <numerusform>%n Freiformen durch Zeichnungen ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsupported shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n nicht unterstützte Form durch eine Zeichnung ersetzt</numerusform>
            <numerusform>%n nicht unterstützte Formen durch Zeichnungen ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) reduced to a readable picture</source>
        <translation>
            <numerusform>%n Rahmen auf ein lesbares Bild beschränkt</numerusform>
            <numerusform>%n Rahmen auf ein lesbares Bild beschränkt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) mirrored</source>
        <translation>
            <numerusform>%n Bild gespiegelt</numerusform>
            <numerusform>%n Bilder gespiegelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Position of %n rotated object(s) corrected</source>
        <translation>
            <numerusform>Position von %n gedrehten Objekt korrigiert</numerusform>
            <numerusform>Position von %n gedrehten Objekten korrigiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stacking order of %n object(s) kept</source>
        <translation>
            <numerusform>Stapelreihenfolge von %n Objekt beibehalten</numerusform>
            <numerusform>Stapelreihenfolge von %n Objekten beibehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n space(s) or line break(s) between words kept</source>
        <translation>
            <numerusform>%n Leerzeichen oder Zeilenumbruch zwischen Wörtern beibehalten</numerusform>
            <numerusform>%n Leerzeichen oder Zeilenumbrüche zwischen Wörtern beibehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) or link(s) replaced by text</source>
        <translation>
            <numerusform>%n Feld oder Link durch Text ersetzt</numerusform>
            <numerusform>%n Felder oder Links durch Text ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s) replaced by paragraphs</source>
        <translation>
            <numerusform>%n Liste durch Absätze ersetzt</numerusform>
            <numerusform>%n Listen durch Absätze ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n section(s) dissolved</source>
        <translation>
            <numerusform>%n Bereich aufgelöst</numerusform>
            <numerusform>%n Bereiche aufgelöst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) appended to the text</source>
        <translation>
            <numerusform>%n Anmerkung an den Text angehängt</numerusform>
            <numerusform>%n Anmerkungen an den Text angehängt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n embedded document(s) replaced by their content</source>
        <translation>
            <numerusform>%n eingebettetes Dokument durch seinen Inhalt ersetzt</numerusform>
            <numerusform>%n eingebettete Dokumente durch ihren Inhalt ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n form control(s) replaced by boxes with their text</source>
        <translation>
            <numerusform>%n Formularfeld durch einen Rahmen mit seinem Text ersetzt</numerusform>
            <numerusform>%n Formularfelder durch Rahmen mit ihrem Text ersetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n heading(s) numbered</source>
        <translation>
            <numerusform>%n Überschrift nummeriert</numerusform>
            <numerusform>%n Überschriften nummeriert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chart(s) drawn again from their values</source>
        <translation>
            <numerusform>%n Diagramm aus seinen Werten neu gezeichnet</numerusform>
            <numerusform>%n Diagramme aus ihren Werten neu gezeichnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A4 or margins of 2 cm assumed for %n page layout(s) without them</source>
        <translation>
            <numerusform>A4 oder Ränder von 2 cm für %n Seitenlayout ohne diese Angaben angenommen</numerusform>
            <numerusform>A4 oder Ränder von 2 cm für %n Seitenlayouts ohne diese Angaben angenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) left out that the document does not print</source>
        <translation>
            <numerusform>%n Objekt weggelassen, das das Dokument nicht druckt</numerusform>
            <numerusform>%n Objekte weggelassen, die das Dokument nicht druckt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sandbox::Confinement</name>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>system calls</source>
        <translation>Systemaufrufe</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came.</source>
        <translation>„%1“ wurde nicht importiert. Die Aufzeichnung zeigt, wie weit der Import kam.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came; --reader selects another reader.</source>
        <translation>„%1“ wurde nicht importiert. Die Aufzeichnung zeigt, wie weit der Import kam; --reader wählt einen anderen Reader.</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
        <translation>Importiert ein altes Etikett in einen aufzeichnenden Host und gibt jeden Aufruf des Hosts als
JSON Lines aus, danach den Endzustand der Objekte.

Exit-Status: 0 importiert, 1 nicht importiert, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Read the file as tavrel, orvanta or opendocument, whatever its name.</source>
        <translation>Die Datei unabhängig von ihrem Namen als tavrel, orvanta oder opendocument lesen.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation>Etikett, das importiert wird; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>trace needs exactly one file.</source>
        <translation>trace erwartet genau eine Datei.</translation>
    </message>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
        <translation>Unbekannter Reader „%1“. Unterstützte Reader: %2.</translation>
    </message>
</context>
<context>
    <name>window::Actions</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
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
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
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
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>Selects no item</source>
        <translation>Hebt die Auswahl auf</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Shows the label larger</source>
        <translation>Zeigt das Etikett größer an</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Shows the label smaller</source>
        <translation>Zeigt das Etikett kleiner an</translation>
    </message>
    <message>
        <source>&amp;Whole Label</source>
        <translation>Ganzes &amp;Etikett</translation>
    </message>
    <message>
        <source>Shows the whole label, and keeps it whole when the window changes</source>
        <translation>Zeigt das ganze Etikett an, auch wenn sich die Fenstergröße ändert</translation>
    </message>
    <message>
        <source>&amp;True Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Auf &amp;Auswahl zoomen</translation>
    </message>
    <message>
        <source>Shows the selected items as large as they fit</source>
        <translation>Zeigt die ausgewählten Objekte so groß wie möglich an</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Shows or hides the rulers</source>
        <translation>Blendet die Lineale ein oder aus</translation>
    </message>
    <message>
        <source>&amp;Millimeters</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>Shows lengths in millimeters</source>
        <translation>Zeigt Längen in Millimetern an</translation>
    </message>
    <message>
        <source>In&amp;ches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>Shows lengths in inches</source>
        <translation>Zeigt Längen in Zoll an</translation>
    </message>
    <message>
        <source>Like the &amp;System</source>
        <translation>Wie im &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Dark text on light windows</source>
        <translation>Dunkler Text auf hellem Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Light text on dark windows</source>
        <translation>Heller Text auf dunklem Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Zeichenfläche</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Objekte</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation>&amp;Datenquellen</translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
        <translation>&amp;Probleme</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Erster</translation>
    </message>
    <message>
        <source>Shows the first record</source>
        <translation>Zeigt den ersten Datensatz an</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorheriger</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächster</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Letzter</translation>
    </message>
    <message>
        <source>Shows the last record</source>
        <translation>Zeigt den letzten Datensatz an</translation>
    </message>
    <message>
        <source>&amp;Go to…</source>
        <translation>&amp;Gehe zu…</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
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
    <message>
        <source>Opens a saved label, or imports a legacy one</source>
        <translation>Öffnet ein gespeichertes Etikett oder importiert ein altes</translation>
    </message>
    <message>
        <source>Open &amp;Folder…</source>
        <translation>&amp;Ordner öffnen…</translation>
    </message>
    <message>
        <source>Lists the labels of a folder with their states</source>
        <translation>Listet die Etiketten eines Ordners mit ihrem Zustand auf</translation>
    </message>
    <message>
        <source>Pre&amp;vious Label</source>
        <translation>Vor&amp;heriges Etikett</translation>
    </message>
    <message>
        <source>Opens the previous label of the folder</source>
        <translation>Öffnet das vorherige Etikett des Ordners</translation>
    </message>
    <message>
        <source>&amp;Next Label</source>
        <translation>&amp;Nächstes Etikett</translation>
    </message>
    <message>
        <source>Opens the next label of the folder</source>
        <translation>Öffnet das nächste Etikett des Ordners</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Au&amp;sschneiden</translation>
    </message>
    <message>
        <source>Copies the selected items and deletes them</source>
        <translation>Kopiert die ausgewählten Objekte und löscht sie</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected items to the clipboard</source>
        <translation>Kopiert die ausgewählten Objekte in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>Adds the items of the clipboard to the label</source>
        <translation>Fügt die Objekte der Zwischenablage in das Etikett ein</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Adds a copy of each selected item</source>
        <translation>Fügt eine Kopie jedes ausgewählten Objekts hinzu</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the selected items</source>
        <translation>Löscht die ausgewählten Objekte</translation>
    </message>
    <message>
        <source>Edit Te&amp;xt</source>
        <translation>Te&amp;xt bearbeiten</translation>
    </message>
    <message>
        <source>Edits the text of the selected item on the canvas</source>
        <translation>Bearbeitet den Text des ausgewählten Objekts auf der Zeichenfläche</translation>
    </message>
    <message>
        <source>To Fr&amp;ont</source>
        <translation>Ganz nach &amp;vorn</translation>
    </message>
    <message>
        <source>Puts the selected items above all others</source>
        <translation>Legt die ausgewählten Objekte über alle anderen</translation>
    </message>
    <message>
        <source>&amp;Raise</source>
        <translation>Nach v&amp;orn</translation>
    </message>
    <message>
        <source>Puts the selected items above the next item</source>
        <translation>Legt die ausgewählten Objekte über das nächste</translation>
    </message>
    <message>
        <source>&amp;Lower</source>
        <translation>Nach h&amp;inten</translation>
    </message>
    <message>
        <source>Puts the selected items below the next item</source>
        <translation>Legt die ausgewählten Objekte unter das nächste</translation>
    </message>
    <message>
        <source>To Bac&amp;k</source>
        <translation>Ganz nach &amp;hinten</translation>
    </message>
    <message>
        <source>Puts the selected items below all others</source>
        <translation>Legt die ausgewählten Objekte unter alle anderen</translation>
    </message>
    <message>
        <source>Align Le&amp;ft Edges</source>
        <translation>&amp;Linke Kanten ausrichten</translation>
    </message>
    <message>
        <source>Aligns the left edges of the selected items; a single item is aligned to the page</source>
        <translation>Richtet die linken Kanten der ausgewählten Objekte aus; ein einzelnes Objekt wird an der Seite ausgerichtet</translation>
    </message>
    <message>
        <source>Align &amp;Centers</source>
        <translation>&amp;Mitten ausrichten</translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a vertical line</source>
        <translation>Richtet die Mitten der ausgewählten Objekte an einer senkrechten Linie aus</translation>
    </message>
    <message>
        <source>Align Ri&amp;ght Edges</source>
        <translation>&amp;Rechte Kanten ausrichten</translation>
    </message>
    <message>
        <source>Aligns the right edges of the selected items</source>
        <translation>Richtet die rechten Kanten der ausgewählten Objekte aus</translation>
    </message>
    <message>
        <source>Align &amp;Top Edges</source>
        <translation>&amp;Obere Kanten ausrichten</translation>
    </message>
    <message>
        <source>Aligns the top edges of the selected items</source>
        <translation>Richtet die oberen Kanten der ausgewählten Objekte aus</translation>
    </message>
    <message>
        <source>Align &amp;Middles</source>
        <translation>M&amp;itten waagerecht ausrichten</translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a horizontal line</source>
        <translation>Richtet die Mitten der ausgewählten Objekte an einer waagerechten Linie aus</translation>
    </message>
    <message>
        <source>Align &amp;Bottom Edges</source>
        <translation>&amp;Untere Kanten ausrichten</translation>
    </message>
    <message>
        <source>Aligns the bottom edges of the selected items</source>
        <translation>Richtet die unteren Kanten der ausgewählten Objekte aus</translation>
    </message>
    <message>
        <source>Distribute &amp;Horizontally</source>
        <translation>&amp;Waagerecht verteilen</translation>
    </message>
    <message>
        <source>Makes the horizontal gaps between the selected items equal</source>
        <translation>Macht die waagerechten Abstände zwischen den ausgewählten Objekten gleich</translation>
    </message>
    <message>
        <source>Distribute &amp;Vertically</source>
        <translation>&amp;Senkrecht verteilen</translation>
    </message>
    <message>
        <source>Makes the vertical gaps between the selected items equal</source>
        <translation>Macht die senkrechten Abstände zwischen den ausgewählten Objekten gleich</translation>
    </message>
    <message>
        <source>&amp;Labels</source>
        <translation>Eti&amp;ketten</translation>
    </message>
    <message>
        <source>Shows the labels of the folder and moves keyboard focus to them</source>
        <translation>Zeigt die Etiketten des Ordners und setzt den Tastaturfokus darauf</translation>
    </message>
    <message>
        <source>&amp;Original</source>
        <translation>Origina&amp;l</translation>
    </message>
    <message>
        <source>Shows the document&apos;s own preview next to the label, with a slider</source>
        <translation>Zeigt die Vorschau des Dokuments neben dem Etikett, mit einem Schieberegler</translation>
    </message>
    <message>
        <source>&amp;Connect CSV File…</source>
        <translation>&amp;CSV-Datei verbinden…</translation>
    </message>
    <message>
        <source>Shows columns of a CSV file in items of the label</source>
        <translation>Zeigt Spalten einer CSV-Datei in Objekten des Etiketts</translation>
    </message>
    <message>
        <source>&amp;Edit Data Source…</source>
        <translation>Daten&amp;quelle bearbeiten…</translation>
    </message>
    <message>
        <source>Changes the counter, date, list or file that is selected in the panel</source>
        <translation>Ändert Zähler, Datum, Liste oder Datei, die in der Liste ausgewählt sind</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Shows the manual of this window</source>
        <translation>Zeigt das Handbuch dieses Fensters</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation>&amp;Anordnen</translation>
    </message>
    <message>
        <source>Open as &amp;Written</source>
        <translation>Ohne &amp;Reparatur öffnen</translation>
    </message>
    <message>
        <source>Shows the imported document without repairs</source>
        <translation>Zeigt das importierte Dokument ohne Reparaturen</translation>
    </message>
    <message>
        <source>Show in &amp;Selected Items</source>
        <translation>In &amp;ausgewählten Objekten zeigen</translation>
    </message>
    <message>
        <source>Lets the selected texts and barcodes show the data source of the panel</source>
        <translation>Lässt die ausgewählten Texte und Barcodes die Datenquelle des Bereichs zeigen</translation>
    </message>
    <message>
        <source>New Co&amp;unter…</source>
        <translation>Neuer &amp;Zähler…</translation>
    </message>
    <message>
        <source>Adds a counter and shows it in the selected items</source>
        <translation>Fügt einen Zähler hinzu und zeigt ihn in den ausgewählten Objekten</translation>
    </message>
    <message>
        <source>New &amp;Date and Time…</source>
        <translation>Neues &amp;Datum mit Uhrzeit…</translation>
    </message>
    <message>
        <source>Adds the date and the time of printing and shows them in the selected items</source>
        <translation>Fügt Datum und Uhrzeit des Drucks hinzu und zeigt sie in den ausgewählten Objekten</translation>
    </message>
    <message>
        <source>New List of &amp;Texts…</source>
        <translation>Neue Liste von &amp;Texten…</translation>
    </message>
    <message>
        <source>Adds a text for each record and shows it in the selected items</source>
        <translation>Fügt für jeden Datensatz einen Text hinzu und zeigt ihn in den ausgewählten Objekten</translation>
    </message>
    <message>
        <source>Closes the window</source>
        <translation>Schließt das Fenster</translation>
    </message>
    <message>
        <source>Undoes the last change</source>
        <translation>Macht die letzte Änderung rückgängig</translation>
    </message>
    <message>
        <source>Redoes the last undone change</source>
        <translation>Stellt die letzte rückgängig gemachte Änderung wieder her</translation>
    </message>
    <message>
        <source>Shows the label in its printed size</source>
        <translation>Zeigt das Etikett in Druckgröße</translation>
    </message>
    <message>
        <source>Uses the colors of the desktop</source>
        <translation>Verwendet die Farben der Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Moves keyboard focus to the canvas</source>
        <translation>Setzt den Tastaturfokus auf die Zeichenfläche</translation>
    </message>
    <message>
        <source>Shows the list of items and moves keyboard focus to it</source>
        <translation>Zeigt die Objektliste und setzt den Tastaturfokus darauf</translation>
    </message>
    <message>
        <source>Shows the properties of an item and moves keyboard focus to them</source>
        <translation>Zeigt die Eigenschaften eines Objekts und setzt den Tastaturfokus darauf</translation>
    </message>
    <message>
        <source>Shows the data sources and moves keyboard focus to them</source>
        <translation>Zeigt die Datenquellen und setzt den Tastaturfokus darauf</translation>
    </message>
    <message>
        <source>Shows the issues and moves keyboard focus to them</source>
        <translation>Zeigt die Probleme und setzt den Tastaturfokus darauf</translation>
    </message>
    <message>
        <source>Shows the previous record</source>
        <translation>Zeigt den vorigen Datensatz</translation>
    </message>
    <message>
        <source>Shows the next record</source>
        <translation>Zeigt den nächsten Datensatz</translation>
    </message>
    <message>
        <source>Moves keyboard focus to the record number</source>
        <translation>Setzt den Tastaturfokus auf die Datensatznummer</translation>
    </message>
    <message>
        <source>Lists the keys of all commands</source>
        <translation>Listet die Tasten aller Befehle auf</translation>
    </message>
    <message>
        <source>Shows the version of the program</source>
        <translation>Zeigt die Version des Programms</translation>
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
    <message>
        <source>The item has no text.</source>
        <translation>Das Objekt hat keinen Text.</translation>
    </message>
    <message>
        <source>Change Text</source>
        <translation>Text ändern</translation>
    </message>
    <message>
        <source>The item shows a data source; its own text is shown only without one.</source>
        <translation>Das Objekt zeigt eine Datenquelle; sein eigener Text erscheint nur ohne eine solche.</translation>
    </message>
</context>
<context>
    <name>window::ChangePage</name>
    <message>
        <source>Change Page</source>
        <translation>Seite ändern</translation>
    </message>
</context>
<context>
    <name>window::ComparisonPanel</name>
    <message>
        <source>The original document has no preview.</source>
        <translation>Das Originaldokument hat keine Vorschau.</translation>
    </message>
    <message>
        <source>Share of the original</source>
        <translation>Anteil des Originals</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
</context>
<context>
    <name>window::ComparisonView</name>
    <message>
        <source>Original and label</source>
        <translation>Original und Etikett</translation>
    </message>
</context>
<context>
    <name>window::Corrections</name>
    <message>
        <source>Replace Font</source>
        <translation>Schrift ersetzen</translation>
    </message>
    <message>
        <source>Font for all texts in %1:</source>
        <translation>Schrift für alle Texte in %1:</translation>
    </message>
    <message>
        <source>Set Color</source>
        <translation>Farbe setzen</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Rescale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Size of the paper:</source>
        <translation>Papiergröße:</translation>
    </message>
    <message>
        <source>Bind to Data Source</source>
        <translation>Mit Datenquelle verbinden</translation>
    </message>
    <message>
        <source>Data source:</source>
        <translation>Datenquelle:</translation>
    </message>
    <message>
        <source>&amp;Delete Items</source>
        <translation>Objekte &amp;löschen</translation>
    </message>
    <message>
        <source>Replace F&amp;ont…</source>
        <translation>S&amp;chrift ersetzen…</translation>
    </message>
    <message>
        <source>Set &amp;Color…</source>
        <translation>&amp;Farbe setzen…</translation>
    </message>
    <message>
        <source>Re&amp;scale…</source>
        <translation>S&amp;kalieren…</translation>
    </message>
    <message>
        <source>&amp;Bind to Data Source…</source>
        <translation>Mit Daten&amp;quelle verbinden…</translation>
    </message>
    <message>
        <source>Delete Items</source>
        <translation>Objekte löschen</translation>
    </message>
</context>
<context>
    <name>window::CsvDialog</name>
    <message>
        <source>The first line &amp;names the columns</source>
        <translation>Die erste Zeile &amp;benennt die Spalten</translation>
    </message>
    <message>
        <source>Items and their columns</source>
        <translation>Objekte und ihre Spalten</translation>
    </message>
    <message>
        <source>Records of the file</source>
        <translation>Datensätze der Datei</translation>
    </message>
    <message>
        <source>Connect CSV File</source>
        <translation>CSV-Datei verbinden</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Items of the label</source>
        <translation>&amp;Objekte des Etiketts</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Datensätze</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Erkennen</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>UTF-16</source>
        <translation>UTF-16</translation>
    </message>
    <message>
        <source>Windows-1252</source>
        <translation>Windows-1252</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Zeichencodierung</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Auswählen…</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Trennzeichen</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>&amp;Zeichencodierung</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>CSV-Dateien (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Shows column</source>
        <translation>Zeigt Spalte</translation>
    </message>
    <message>
        <source>– not from this file –</source>
        <translation>– nicht aus dieser Datei –</translation>
    </message>
</context>
<context>
    <name>window::EditActions</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Verteilen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>The clipboard contains no items of a label.</source>
        <translation>Die Zwischenablage enthält keine Objekte eines Etiketts.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Read-only items were not deleted.</source>
        <translation>Schreibgeschützte Objekte wurden nicht gelöscht.</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Export Label</source>
        <translation>Etikett exportieren</translation>
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
        <translation>Öffnet einen Dialog zur Auswahl der Datei</translation>
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
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
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
        <translation>„%1“ ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>One file of %1 records.</source>
        <translation>Eine Datei mit %1 Datensätzen.</translation>
    </message>
    <message>
        <source>One file. The records are in a table next to it.</source>
        <translation>Eine Datei. Die Datensätze stehen in einer Tabelle daneben.</translation>
    </message>
</context>
<context>
    <name>window::ImportProcess</name>
    <message>
        <source>Cannot start the program “%1”: %2.</source>
        <translation>Das Programm „%1“ kann nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Ein temporärer Ordner kann nicht angelegt werden: %1.</translation>
    </message>
    <message>
        <source>The import ended without a result.</source>
        <translation>Der Import endete ohne Ergebnis.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>„%1“ wird importiert …</translation>
    </message>
    <message>
        <source>The import was canceled.</source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>window::Issues</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiteres</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nicht importiert</translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation>Mit Änderungen importiert</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Repariert</translation>
    </message>
</context>
<context>
    <name>window::IssuesPanel</name>
    <message>
        <source>Issues of the label</source>
        <translation>Probleme des Etiketts</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Nichts ging verloren oder wurde verändert.</translation>
    </message>
    <message>
        <source>No label is open.</source>
        <translation>Es ist kein Etikett geöffnet.</translation>
    </message>
    <message>
        <source>Issue</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>What you can do</source>
        <translation>Was Sie tun können</translation>
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
        <translation>Position</translation>
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
        <translation>Horizontal gespiegelt</translation>
    </message>
    <message>
        <source>Flipped top to bottom</source>
        <translation>Vertikal gespiegelt</translation>
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
        <translation>Haarlinie</translation>
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
        <source>Mark at the start</source>
        <translation>Markierung am Anfang</translation>
    </message>
    <message>
        <source>Mark at the end</source>
        <translation>Markierung am Ende</translation>
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
        <translation>Standardschrift</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht festgelegt</translation>
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
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
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
        <translation>Symbolhintergrund</translation>
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
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Text below the bars</source>
        <translation>Text unter den Balken</translation>
    </message>
    <message>
        <source>Blank margins</source>
        <translation>Leere Ränder</translation>
    </message>
    <message>
        <source>Bearer bars</source>
        <translation>Trägerbalken</translation>
    </message>
    <message>
        <source>Check digit or columns</source>
        <translation>Prüfziffer oder Spalten</translation>
    </message>
    <message>
        <source>Symbol size</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>Error correction</source>
        <translation>Fehlerkorrektur</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Seitenhöhe</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Page color</source>
        <translation>Seitenfarbe</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>unknown (%1)</source>
        <translation>unbekannt (%1)</translation>
    </message>
    <message>
        <source>different values</source>
        <translation>verschiedene Werte</translation>
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
    <name>window::LabelListPanel</name>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>Filter by state</source>
        <translation>Nach Zustand filtern</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>Alle Zustände</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>By state</source>
        <translation>Nach Zustand</translation>
    </message>
    <message>
        <source>Labels of the folder</source>
        <translation>Etiketten des Ordners</translation>
    </message>
    <message>
        <source>%1 of %2 labels</source>
        <translation>%1 von %2 Etiketten</translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1

The label is still open. Save it in another folder with “Save As”.</source>
        <translation>%1

Das Etikett ist noch geöffnet. Speichern Sie es mit „Speichern unter“ in einem anderen Ordner.</translation>
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
    <name>window::LabelStates</name>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>With losses</source>
        <translation>Mit Verlusten</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Bearbeitet</translation>
    </message>
</context>
<context>
    <name>window::Locks</name>
    <message>
        <source>%1 is read-only. To move it, clear “Read-only” in its properties.</source>
        <translation>%1 ist schreibgeschützt. Um es zu verschieben, deaktivieren Sie „Schreibgeschützt“ in seinen Eigenschaften.</translation>
    </message>
    <message>
        <source>%1 belongs to the background. To move it, clear “Background” in its properties.</source>
        <translation>%1 gehört zum Hintergrund. Um es zu verschieben, deaktivieren Sie „Hintergrund“ in seinen Eigenschaften.</translation>
    </message>
    <message>
        <source>%1 is locked. To move it, set “Movable” in its properties.</source>
        <translation>%1 ist gesperrt. Um es zu verschieben, aktivieren Sie „Beweglich“ in seinen Eigenschaften.</translation>
    </message>
</context>
<context>
    <name>window::Main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation>Öffnet alte Etikettenvorlagen, zeigt sie an, speichert, exportiert und druckt sie.</translation>
    </message>
    <message>
        <source>Writes a picture of the window to a PNG file, and exits.</source>
        <translation>Schreibt ein Bild des Fensters in eine PNG-Datei und beendet das Programm.</translation>
    </message>
    <message numerus="yes">
        <source>A window shows one label, but %n files were given.</source>
        <translation>
            <numerusform>Ein Fenster zeigt ein Etikett, es wurde aber %n Datei angegeben.</numerusform>
            <numerusform>Ein Fenster zeigt ein Etikett, es wurden aber %n Dateien angegeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Cannot show a window: there is no display. Set DISPLAY or WAYLAND_DISPLAY, or use --screenshot.</source>
        <translation>Es kann kein Fenster angezeigt werden: Es gibt keinen Bildschirm. Setzen Sie DISPLAY oder WAYLAND_DISPLAY, oder verwenden Sie --screenshot.</translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg; or a folder of labels.</source>
        <translation>Zu öffnendes Etikett: *.label, *.cnv, *.roc, *.qmtx, *.odt oder *.odg; oder ein Ordner mit Etiketten.</translation>
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
        <translation>Ein Fenster zeigt ein Etikett: Nur die erste Datei wurde geöffnet.</translation>
    </message>
    <message>
        <source>There are no labels in “%1”.</source>
        <translation>In „%1“ sind keine Etiketten.</translation>
    </message>
    <message>
        <source>Cannot open “%1”: %2</source>
        <translation>„%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>To show the data source, select texts or barcodes, then “Show in Selected Items”.</source>
        <translation>Um die Datenquelle zu zeigen, Texte oder Barcodes auswählen, dann „In ausgewählten Objekten zeigen“.</translation>
    </message>
    <message>
        <source>“%1” contains too many files; the list of labels is not complete.</source>
        <translation>„%1“ enthält zu viele Dateien; die Liste der Etiketten ist nicht vollständig.</translation>
    </message>
    <message>
        <source>Opens legacy label templates; corrects, saves, exports and prints them.</source>
        <translation>Öffnet alte Etikettenvorlagen; korrigiert, speichert, exportiert und druckt sie.</translation>
    </message>
</context>
<context>
    <name>window::ManualDialog</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
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
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
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
        <source>Print to PDF</source>
        <translation>Als PDF drucken</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Ein temporärer Ordner kann nicht angelegt werden: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) given to printer %1</source>
        <translation>
            <numerusform>%n Seite an Drucker %1 übergeben</numerusform>
            <numerusform>%n Seiten an Drucker %1 übergeben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n file(s)</source>
        <translation>
            <numerusform>Nach %n Datei angehalten</numerusform>
            <numerusform>Nach %n Dateien angehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written</source>
        <translation>
            <numerusform>%n Datei geschrieben</numerusform>
            <numerusform>%n Dateien geschrieben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PagePreview</name>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
</context>
<context>
    <name>window::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>PDF file</source>
        <translation>PDF-Datei</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Pr&amp;inter</source>
        <translation>&amp;Drucker</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplare</translation>
    </message>
    <message>
        <source>Labels to print</source>
        <translation>Zu druckende Etiketten</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Adds labels of other files to the print</source>
        <translation>Fügt Etiketten anderer Dateien zum Druck hinzu</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Add Labels</source>
        <translation>Etiketten hinzufügen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Labels (%1);;All files (*)</source>
        <translation>Etiketten (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 – the preview shows its first labels only</source>
        <translation>%1 – die Vorschau zeigt nur die ersten Etiketten</translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>Saved labels (*.label)</source>
        <translation>Gespeicherte Etiketten (*.label)</translation>
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
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Changes that are not saved will be lost.</source>
        <translation>Nicht gespeicherte Änderungen gehen verloren.</translation>
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
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>All labels (%1)</source>
        <translation>Alle Etiketten (%1)</translation>
    </message>
    <message>
        <source>Legacy labels (%1)</source>
        <translation>Alte Etiketten (%1)</translation>
    </message>
</context>
<context>
    <name>window::PropertyDelegate</name>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Ctrl+Enter ends editing, Esc cancels it</source>
        <translation>Strg+Eingabe beendet die Bearbeitung, Esc bricht sie ab</translation>
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
        <source>Properties of the selected items</source>
        <translation>Eigenschaften der ausgewählten Objekte</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>window::RecordChooser</name>
    <message>
        <source>The one &amp;shown (%1)</source>
        <translation>An&amp;gezeigter Datensatz (%1)</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>A run of records</source>
        <translation>Ein Bereich von Datensätzen</translation>
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
    <name>window::ReplacementFile</name>
    <message>
        <source>Replace Picture</source>
        <translation>Bild ersetzen</translation>
    </message>
    <message>
        <source>Cannot use &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;All files (*)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Replace Symbol</source>
        <translation>Symbol ersetzen</translation>
    </message>
    <message>
        <source>Drawings (*.svg);;All files (*)</source>
        <translation>Zeichnungen (*.svg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file is not an SVG drawing, or it is too large.</source>
        <translation>Die Datei ist keine SVG-Zeichnung, oder sie ist zu groß.</translation>
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
    <name>window::SelectionTool</name>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
</context>
<context>
    <name>window::SheetEditor</name>
    <message>
        <source>%1 – %2 × %3 labels of %4 × %5 mm</source>
        <translation>%1 – %2 × %3 Etiketten zu %4 × %5 mm</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Width of a label</source>
        <translation>Breite eines Etiketts</translation>
    </message>
    <message>
        <source>Height of a label</source>
        <translation>Höhe eines Etiketts</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Gap between columns</source>
        <translation>Abstand der Spalten</translation>
    </message>
    <message>
        <source>Gap between rows</source>
        <translation>Abstand der Zeilen</translation>
    </message>
    <message>
        <source>First free position</source>
        <translation>Erste freie Position</translation>
    </message>
    <message>
        <source>Crop &amp;marks</source>
        <translation>S&amp;chnittmarken</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apier</translation>
    </message>
    <message>
        <source>The label&apos;s own size (%1 × %2 mm)</source>
        <translation>Die Größe des Etiketts (%1 × %2 mm)</translation>
    </message>
    <message>
        <source>%1, as many labels as fit</source>
        <translation>%1, so viele Etiketten wie möglich</translation>
    </message>
    <message>
        <source>Sheet with the measures below</source>
        <translation>Bogen mit den Maßen unten</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Columns, rows</source>
        <translation>Spalten, Zeilen</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Left, top margin</source>
        <translation>Linker, oberer Rand</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Abstände</translation>
    </message>
    <message>
        <source>&amp;First free position</source>
        <translation>&amp;Erste freie Position</translation>
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
        <translation>Pfeiltasten; mit Umschalt in größeren, mit Strg in kleineren Schritten</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Am Mauszeiger zoomen</translation>
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
    <name>window::SourceCommands</name>
    <message>
        <source>Connect CSV File</source>
        <translation>CSV-Datei verbinden</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>CSV-Dateien (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Edit Data Source</source>
        <translation>Datenquelle bearbeiten</translation>
    </message>
    <message>
        <source>Add Data Source</source>
        <translation>Datenquelle hinzufügen</translation>
    </message>
    <message>
        <source>Show Data Source</source>
        <translation>Datenquelle zeigen</translation>
    </message>
</context>
<context>
    <name>window::SourceDialog</name>
    <message>
        <source>Shows</source>
        <translation>Zeigt</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Anfang</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>S&amp;tep</source>
        <translation>Schritt&amp;weite</translation>
    </message>
    <message>
        <source>&amp;Digits, with zeros in front</source>
        <translation>&amp;Stellen, mit führenden Nullen</translation>
    </message>
    <message>
        <source>Text &amp;before</source>
        <translation>Text da&amp;vor</translation>
    </message>
    <message>
        <source>Text &amp;after</source>
        <translation>Text da&amp;nach</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Uhrzeit</translation>
    </message>
    <message>
        <source>List of Texts</source>
        <translation>Liste von Texten</translation>
    </message>
    <message>
        <source>Texts, one on each line</source>
        <translation>Texte, einer je Zeile</translation>
    </message>
    <message>
        <source>&amp;Texts</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>One text on each line; \n is a line break in a text.</source>
        <translation>Ein Text je Zeile; \n ist ein Zeilenumbruch in einem Text.</translation>
    </message>
    <message>
        <source>%1 (%2 records)</source>
        <translation>%1 (%2 Datensätze)</translation>
    </message>
</context>
<context>
    <name>window::SourcePanel</name>
    <message>
        <source>Data sources of the label</source>
        <translation>Datenquellen des Etiketts</translation>
    </message>
    <message>
        <source>Number of the record that is shown</source>
        <translation>Nummer des angezeigten Datensatzes</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Record &amp;number</source>
        <translation>Datensatz&amp;nummer</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Datenquelle</translation>
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
        <translation>Aktueller Wert</translation>
    </message>
    <message>
        <source>CSV file</source>
        <translation>CSV-Datei</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom in percent of the printed size</source>
        <translation>Zoom in Prozent der gedruckten Größe</translation>
    </message>
    <message>
        <source>Whole label</source>
        <translation>Ganzes Etikett</translation>
    </message>
</context>
<context>
    <name>window::StyleNames</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>durchgehend</translation>
    </message>
    <message>
        <source>dashes</source>
        <translation>gestrichelt</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>gepunktet</translation>
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
        <translation>abgeschrägt</translation>
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
        <translation>Ziehen Sie ein Etikett hierher</translation>
    </message>
    <message>
        <source>Saved labels (*.label) and legacy ones: binary canvas files (*.cnv, *.roc), XML labels (*.qmtx), OpenDocument texts and drawings (*.odt, *.odg)</source>
        <translation>Gespeicherte Etiketten (*.label) und alte: binäre Canvas-Dateien (*.cnv, *.roc), XML-Etiketten (*.qmtx), OpenDocument-Texte und -Zeichnungen (*.odt, *.odg)</translation>
    </message>
    <message>
        <source>&amp;Open a Label…</source>
        <translation>Etikett &amp;öffnen…</translation>
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
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
</context>
<context>
    <name>window::WindowPicture</name>
    <message>
        <source>Cannot write &quot;%1&quot;.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>workbench::BarcodeEncoder</name>
    <message>
        <source>%1: the content has a length that this kind of barcode does not take%2.</source>
        <translation>%1: Die Länge des Inhalts ist bei dieser Barcodeart nicht zulässig%2.</translation>
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
        <source>%1: the content does not fit the barcode&apos;s settings%2.</source>
        <translation>%1: Der Inhalt ist nicht mit den Einstellungen des Barcodes vereinbar%2.</translation>
    </message>
    <message>
        <source>%1: the content is too much for the memory%2.</source>
        <translation>%1: Für den Inhalt reicht der Speicher nicht aus%2.</translation>
    </message>
    <message>
        <source>%1: the content cannot be encoded%2.</source>
        <translation>%1: Der Inhalt kann nicht kodiert werden%2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the barcode.</source>
        <translation>Für den Barcode reicht der Speicher nicht aus.</translation>
    </message>
    <message>
        <source>%1: the content needs a linear part, a &quot;|&quot; and a second part.</source>
        <translation>%1: Der Inhalt muss aus einem linearen Teil, einem „|“ und einem zweiten Teil bestehen.</translation>
    </message>
    <message>
        <source>%1: the content is too long for any barcode.</source>
        <translation>%1: Der Inhalt ist zu lang für einen Barcode.</translation>
    </message>
    <message>
        <source>%1: the content gives no bars at all.</source>
        <translation>%1: Der Inhalt ergibt keine Striche.</translation>
    </message>
    <message>
        <source>The label has an unknown kind of barcode (number %1).</source>
        <translation>Das Etikett verwendet eine unbekannte Barcodeart (Nummer %1).</translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation>%1: Es ist kein Inhalt zum Kodieren vorhanden.</translation>
    </message>
</context>
<context>
    <name>workbench::CsvTable</name>
    <message>
        <source>Line %1 has more than %2 columns.</source>
        <translation>Zeile %1 hat mehr als %2 Spalten.</translation>
    </message>
    <message>
        <source>Line %1 has text after a closing quotation mark.</source>
        <translation>Zeile %1 hat Text nach einem schließenden Anführungszeichen.</translation>
    </message>
    <message>
        <source>The quotation mark that begins in line %1 is not closed.</source>
        <translation>Das Anführungszeichen, das in Zeile %1 beginnt, wird nicht geschlossen.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Line %1 has %2 fields; the first line has %3.</source>
        <translation>Zeile %1 hat %2 Felder; die erste Zeile hat %3.</translation>
    </message>
    <message>
        <source>The file has more than %1 cells.</source>
        <translation>Die Datei hat mehr als %1 Zellen.</translation>
    </message>
    <message>
        <source>The file has more than %1 bytes.</source>
        <translation>Die Datei hat mehr als %1 Byte.</translation>
    </message>
    <message>
        <source>The file is not a text in this encoding.</source>
        <translation>Die Datei ist kein Text in dieser Codierung.</translation>
    </message>
    <message>
        <source>The file has no records.</source>
        <translation>Die Datei hat keine Datensätze.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::FailureText</name>
    <message>
        <source>Not a binary label, or one of an unsupported version: the file has version %1, the oldest supported version is 2000016.</source>
        <translation>Kein binäres Etikett oder eines in einer nicht unterstützten Version: Die Datei hat die Version %1, die älteste unterstützte Version ist 2000016.</translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the first object has the unknown type %1.</source>
        <translation>Kein Etikett oder ein beschädigtes: Das erste Objekt hat den unbekannten Typ %1.</translation>
    </message>
    <message>
        <source>Cannot open the file.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The document is damaged: %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation>Das Dokument ist beschädigt: %1 ist in Zeile %2, Spalte %3 nicht wohlgeformt (%4).</translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the XML is not well-formed at line %2, column %3 (%4).</source>
        <translation>Kein Etikett oder ein beschädigtes: Das XML ist in Zeile %2, Spalte %3 nicht wohlgeformt (%4).</translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its root element is not &quot;qmtx&quot;.</source>
        <translation>Die Datei ist XML, aber kein Etikett: Ihr Wurzelelement ist nicht „qmtx“.</translation>
    </message>
    <message>
        <source>Not an OpenDocument file, or a damaged one: styles.xml is missing or unreadable.</source>
        <translation>Keine OpenDocument-Datei oder eine beschädigte: styles.xml fehlt oder ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: content.xml is missing or unreadable.</source>
        <translation>Die OpenDocument-Datei ist beschädigt: content.xml fehlt oder ist nicht lesbar.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>The file is too large for a label.</source>
        <translation>Die Datei ist zu groß für ein Etikett.</translation>
    </message>
    <message>
        <source>The file has too many objects for a label.</source>
        <translation>Die Datei hat zu viele Objekte für ein Etikett.</translation>
    </message>
    <message>
        <source>The file contains nothing to put on a label.</source>
        <translation>Die Datei enthält nichts, was auf ein Etikett gesetzt werden kann.</translation>
    </message>
</context>
<context>
    <name>workbench::FileCheck</name>
    <message>
        <source>No file was named.</source>
        <translation>Es wurde keine Datei angegeben.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Das ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine reguläre Datei.</translation>
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
        <source>The link points to a file that does not exist.</source>
        <translation>Die Verknüpfung zeigt auf eine Datei, die nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but it was read as &quot;%1&quot;. If it is an OpenDocument file, rename it so that it ends in &quot;.odt&quot; or &quot;.odg&quot;, or use --reader %2.</source>
        <translation>Die Datei ist ein Zip-Paket wie OpenDocument-Dateien, wurde aber als „%1“ gelesen. Wenn sie eine OpenDocument-Datei ist, benennen Sie sie so um, dass sie auf „.odt“ oder „.odg“ endet, oder verwenden Sie --reader %2.</translation>
    </message>
    <message>
        <source>The file is XML, but it was read as &quot;%1&quot;. If it is an XML label, rename it so that it ends in &quot;.qmtx&quot;, or use --reader %2.</source>
        <translation>Die Datei ist XML, wurde aber als „%1“ gelesen. Wenn sie ein XML-Etikett ist, benennen Sie sie so um, dass sie auf „.qmtx“ endet, oder verwenden Sie --reader %2.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Open it in an office program, save it without a password, and import it again.</source>
        <translation>Das Dokument ist durch ein Kennwort geschützt. Öffnen Sie es in einem Office-Programm, speichern Sie es ohne Kennwort, und importieren Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>workbench::IssueText</name>
    <message>
        <source>Left out an object of the unknown type &quot;%1&quot;.</source>
        <translation>Ein Objekt des unbekannten Typs „%1“ wurde weggelassen.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported from it.</source>
        <translation>Das Dokument ist weder ein Text noch eine Zeichnung; daraus wurde nichts importiert.</translation>
    </message>
    <message>
        <source>The file continues with an object of the unknown type %1; the rest was not read.</source>
        <translation>Die Datei setzt sich mit einem Objekt des unbekannten Typs %1 fort; der Rest wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>Left out symbols: neither the file nor the symbol databases contain their drawings.</source>
        <translation>Symbole wurden weggelassen: Weder die Datei noch die Symboldatenbanken enthalten ihre Zeichnungen.</translation>
    </message>
    <message>
        <source>Left out barcodes of unsupported types.</source>
        <translation>Barcodes nicht unterstützter Typen wurden weggelassen.</translation>
    </message>
    <message>
        <source>The database is no longer connected; the label shows its last values.</source>
        <translation>Die Datenbank ist nicht mehr verbunden; das Etikett zeigt ihre letzten Werte.</translation>
    </message>
    <message>
        <source>Left out an object that the program could not create.</source>
        <translation>Ein Objekt, das vom Programm nicht erstellt werden konnte, wurde weggelassen.</translation>
    </message>
    <message>
        <source>Left out a data source that the program could not create.</source>
        <translation>Eine Datenquelle, die vom Programm nicht erstellt werden konnte, wurde weggelassen.</translation>
    </message>
    <message>
        <source>Left out a picture that is too large.</source>
        <translation>Ein zu großes Bild wurde weggelassen.</translation>
    </message>
    <message>
        <source>Left out a picture of an unsupported format.</source>
        <translation>Ein Bild in einem nicht unterstützten Format wurde weggelassen.</translation>
    </message>
    <message>
        <source>Left out a picture that is damaged or too large.</source>
        <translation>Ein beschädigtes oder zu großes Bild wurde weggelassen.</translation>
    </message>
    <message>
        <source>Left out a text that is too long.</source>
        <translation>Ein zu langer Text wurde weggelassen.</translation>
    </message>
    <message>
        <source>The file has too many objects; the rest was not read.</source>
        <translation>Die Datei hat zu viele Objekte; der Rest wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>Further texts were stretched; they are not listed.</source>
        <translation>Weitere Texte waren gestreckt; sie werden nicht aufgeführt.</translation>
    </message>
    <message>
        <source>A file in the package is missing, damaged or too large.</source>
        <translation>Eine Datei im Paket fehlt, ist beschädigt oder zu groß.</translation>
    </message>
    <message>
        <source>Left out a drawing that cannot be converted.</source>
        <translation>Eine Zeichnung, die nicht umgewandelt werden kann, wurde weggelassen.</translation>
    </message>
    <message>
        <source>Text &quot;%1&quot; was stretched; its font size was %2 pt.</source>
        <translation>Der Text „%1“ war gestreckt; seine Schriftgröße war %2 pt.</translation>
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
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is larger than any label</source>
        <translation>sie ist zu groß für ein Etikett</translation>
    </message>
    <message>
        <source>The label file is damaged: its data sources do not fit together.</source>
        <translation>Die Etikettendatei ist beschädigt: Ihre Datenquellen passen nicht zueinander.</translation>
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
        <translation>Die Datei ist kein gespeichertes Etikett oder beschädigt: Nach %1 Bytes kann sie nicht weiter gelesen werden.</translation>
    </message>
    <message>
        <source>The label file is damaged: %1.</source>
        <translation>Die Etikettendatei ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>The label file is damaged: it holds more than any label.</source>
        <translation>Die Etikettendatei ist beschädigt: Sie enthält zu viele Daten für ein Etikett.</translation>
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
        <translation>Für diese Datei reicht der Speicher nicht aus.</translation>
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
        <translation>Die Seite ist länger als %1 Punkt, die Höchstlänge in einem PDF-Dokument.</translation>
    </message>
</context>
<context>
    <name>workbench::PageImage</name>
    <message>
        <source>The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots per inch. The largest picture is %6 pixels along a side and %7 million in all.</source>
        <translation>Die Seite misst %1 mal %2 Punkt; das ergibt bei %5 dpi ein Bild von %3 mal %4 Pixeln. Ein Bild darf höchstens %6 Pixel je Seite und insgesamt %7 Millionen Pixel haben.</translation>
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
        <translation>Für ein Bild von %1 mal %2 Pixeln reicht der Speicher nicht aus.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::ShapeKinds</name>
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
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>the file does not exist</source>
        <translation>die Datei ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it has no table of symbols</source>
        <translation>sie enthält keine Symboltabelle</translation>
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
