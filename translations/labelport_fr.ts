<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Import Label</source>
        <comment>Dialog to open a file.</comment>
        <translation>Importer une étiquette</translation>
    </message>
    <message>
        <source>All Legacy Files %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Tous les anciens fichiers %1</translation>
    </message>
    <message>
        <source>OpenOffice File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Fichier OpenOffice %1</translation>
    </message>
    <message>
        <source>Orvanta File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Fichier Orvanta %1</translation>
    </message>
    <message>
        <source>Legacy Tavrel File %1</source>
        <comment>Filter for Open File dialog</comment>
        <translation>Ancien fichier Tavrel %1</translation>
    </message>
    <message>
        <source>Could not open file &quot;%1&quot; (%2).</source>
        <translation>Impossible d’ouvrir le fichier «&#xa0;%1&#xa0;» (%2).</translation>
    </message>
    <message>
        <source>Record</source>
        <comment>Datasource key</comment>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>Datasource key</comment>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Errors reading symbol items.
Please update legacy Tavrel to its latest version and re-save file.</source>
        <comment>Content of error message.</comment>
        <translation>Erreurs lors de la lecture de symboles.
Mettez à jour l’ancien Tavrel vers sa dernière version et enregistrez de nouveau le fichier.</translation>
    </message>
    <message>
        <source>Unsupported barcode symbols.</source>
        <comment>Content of error message.</comment>
        <translation>Codes-barres non pris en charge.</translation>
    </message>
    <message>
        <source>Datasource not connected.</source>
        <comment>Content of error message.</comment>
        <translation>Source de données non connectée.</translation>
    </message>
    <message>
        <source>Invalid canvas file version (%1 != %2) in</source>
        <comment>Content of error message.</comment>
        <translation>Version de fichier canvas non valide (%1&#xa0;!= %2) dans</translation>
    </message>
    <message>
        <source>Load Error</source>
        <comment>Error message title.</comment>
        <translation>Erreur de chargement</translation>
    </message>
    <message>
        <source>Errors reading items.</source>
        <comment>Content of error message.</comment>
        <translation>Erreurs lors de la lecture d’objets.</translation>
    </message>
    <message>
        <source>Warning: Import issues.</source>
        <comment>Error message title.</comment>
        <translation>Avertissement&#xa0;: problèmes d’importation.</translation>
    </message>
    <message>
        <source>:
	Original font size: %1.</source>
        <comment>Content of error message.</comment>
        <translation>&#xa0;:
	Taille de police d’origine&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>archive::InputList</name>
    <message>
        <source>The list of files is no list of file names.</source>
        <translation>La liste de fichiers n’est pas une liste de noms de fichiers.</translation>
    </message>
</context>
<context>
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>archive::Progress</name>
    <message>
        <source>%1 files/s</source>
        <translation>%1 fichiers/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 en échec</translation>
    </message>
</context>
<context>
    <name>archive::Publish</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 exists and was not made by labelport, or may have been changed since; it is left as it is (--force overwrites it)</source>
        <translation>%1 existe et n’a pas été créé par labelport, ou a peut-être été modifié depuis&#xa0;; il est laissé tel quel (--force l’écrase)</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>son dossier ne peut pas être créé</translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>another of the given files has the same name, so both would become %1; import them into different folders with --output-dir</source>
        <translation>un autre des fichiers indiqués a le même nom, les deux deviendraient donc %1&#xa0;; importez-les dans des dossiers différents avec --output-dir</translation>
    </message>
    <message>
        <source>The journal in the output folder cannot be written, so --resume will do some files again.</source>
        <translation>Le journal du dossier de sortie ne peut pas être écrit&#xa0;; --resume refera donc certains fichiers.</translation>
    </message>
    <message>
        <source>The processes that import files cannot be started, or end at once. A larger --memory-limit may help.</source>
        <translation>Les processus qui importent les fichiers ne peuvent pas être démarrés ou se terminent aussitôt. Un --memory-limit plus grand peut aider.</translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Nothing can be written to the folder %1.</source>
        <translation>Rien ne peut être écrit dans le dossier %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
</context>
<context>
    <name>archive::WorkerDeath</name>
    <message>
        <source>the file needed more than %1 MiB of memory (--memory-limit)</source>
        <translation>le fichier a demandé plus de %1 MiB de mémoire (--memory-limit)</translation>
    </message>
    <message>
        <source>the file took more than %1 seconds without getting on (--timeout)</source>
        <translation>le fichier n’a pas avancé pendant plus de %1 secondes (--timeout)</translation>
    </message>
    <message>
        <source>its import was killed twice, perhaps because the machine had no memory left</source>
        <translation>son importation a été tuée deux fois, peut-être parce que la machine n’avait plus de mémoire</translation>
    </message>
    <message>
        <source>its import crashed twice (%1); please report the file</source>
        <translation>son importation a planté deux fois (%1)&#xa0;; merci de signaler le fichier</translation>
    </message>
    <message>
        <source>its import ended in disorder, twice; please report the file</source>
        <translation>son importation s’est terminée deux fois dans le désordre&#xa0;; merci de signaler le fichier</translation>
    </message>
    <message>
        <source>its import ended twice by itself (status %1); please report the file</source>
        <translation>son importation s’est terminée deux fois d’elle-même (code %1)&#xa0;; merci de signaler le fichier</translation>
    </message>
</context>
<context>
    <name>cli::ArchiveReports</name>
    <message>
        <source>The report %1 cannot be written.</source>
        <translation>Le rapport %1 ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>cli::CommandLine</name>
    <message>
        <source>Show this text.</source>
        <translation>Affiche ce texte.</translation>
    </message>
    <message>
        <source>&quot;%1 --help&quot; tells more.</source>
        <translation>«&#xa0;%1 --help&#xa0;» en dit plus.</translation>
    </message>
</context>
<context>
    <name>cli::FormatsCommand</name>
    <message>
        <source>binary canvas files</source>
        <translation>fichiers canvas binaires</translation>
    </message>
    <message>
        <source>2000016 to 2000024; newer ones are read as 2000024</source>
        <translation>2000016 à 2000024&#xa0;; les plus récentes sont lues comme 2000024</translation>
    </message>
    <message>
        <source>XML labels</source>
        <translation>étiquettes XML</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>OpenDocument texts and drawings</source>
        <translation>textes et dessins OpenDocument</translation>
    </message>
    <message>
        <source>all, as packages</source>
        <translation>toutes, en paquets</translation>
    </message>
    <message>
        <source>labels saved by LabelPort</source>
        <translation>étiquettes enregistrées par LabelPort</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>image</translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation>dessin vectoriel</translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation>document, une page par enregistrement</translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation>étiquette enregistrée, à rouvrir et modifier</translation>
    </message>
    <message>
        <source>Read (import, inspect):</source>
        <translation>Lus (import, inspect)&#xa0;:</translation>
    </message>
    <message>
        <source>versions: %1</source>
        <translation>versions&#xa0;: %1</translation>
    </message>
    <message>
        <source>Written (import --to):</source>
        <translation>Écrits (import --to)&#xa0;:</translation>
    </message>
    <message>
        <source>Tells which files are read, in which versions, and what can be written.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation>Indique quels fichiers sont lus, dans quelles versions, et ce qui peut être écrit.

Exemples&#xa0;:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</translation>
    </message>
    <message>
        <source>Tell it as JSON.</source>
        <translation>Le dit en JSON.</translation>
    </message>
    <message>
        <source>It takes no files.</source>
        <translation>Aucun fichier n’est attendu ici.</translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>The folder %1 cannot be searched.</source>
        <translation>Le dossier %1 ne peut pas être parcouru.</translation>
    </message>
    <message>
        <source>Stopped. The same command with --resume goes on.</source>
        <translation>Arrêté. La même commande avec --resume continue.</translation>
    </message>
    <message>
        <source>There is no label to import.</source>
        <translation>Il n’y a aucune étiquette à importer.</translation>
    </message>
    <message>
        <source>&quot;labelport import --help&quot; tells more.</source>
        <translation>«&#xa0;labelport import --help&#xa0;» en dit plus.</translation>
    </message>
    <message>
        <source>%1 of %2 files did not come over whole.</source>
        <translation>%1 fichiers sur %2 n’ont pas été repris en entier.</translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Standard input cannot be kept for the import: %1.</source>
        <translation>L’entrée standard ne peut pas être conservée pour l’importation&#xa0;: %1.</translation>
    </message>
    <message>
        <source>it is longer than any label</source>
        <translation>elle est plus longue que n’importe quelle étiquette</translation>
    </message>
    <message>
        <source>The list of files %1 cannot be read: %2.</source>
        <translation>La liste de fichiers %1 ne peut pas être lue&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>targets</source>
        <translation>cibles</translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, label; several with commas (default: png).</source>
        <translation>Ce qui est écrit&#xa0;: png, svg, pdf, label&#xa0;; plusieurs avec des virgules (par défaut&#xa0;: png).</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Folder to write to; made when it is missing (default: the current one). It gets the subfolders of a folder that is imported.</source>
        <translation>Dossier de sortie&#xa0;; créé s’il manque (par défaut&#xa0;: le dossier courant). Il reçoit les sous-dossiers d’un dossier importé.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Dots per inch of pictures, 10 to 2400 (default: 300).</source>
        <translation>Points par pouce des images, de 10 à 2400 (par défaut&#xa0;: 300).</translation>
    </message>
    <message>
        <source>range</source>
        <translation>plage</translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range as 3-12 or 3-, or all (default: the first). A series of pictures is numbered; a PDF has a page for each.</source>
        <translation>Enregistrements des sources de données de l’étiquette&#xa0;: un numéro, une plage comme 3-12 ou 3-, ou all (par défaut&#xa0;: le premier). Une série d’images est numérotée&#xa0;; un PDF a une page pour chacun.</translation>
    </message>
    <message>
        <source>Overwrite files that LabelPort did not make.</source>
        <translation>Écrase aussi les fichiers que LabelPort n’a pas créés.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Read every file as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever its name. Standard input needs it.</source>
        <translation>Lit chaque fichier comme tavrel (*.cnv, *.roc), orvanta (*.qmtx) ou opendocument (*.odt, *.odg), quel que soit son nom. L’entrée standard en a besoin.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Import what a file lists as well, a name on each line or between NULs; - reads the list from standard input.</source>
        <translation>Importe aussi ce qu’un fichier énumère, un nom par ligne ou entre des NUL&#xa0;; - lit la liste sur l’entrée standard.</translation>
    </message>
    <message>
        <source>The list&apos;s names stand between NULs, as find -print0 writes them.</source>
        <translation>Les noms de la liste sont séparés par des NUL, comme les écrit find -print0.</translation>
    </message>
    <message>
        <source>Named and listed files below this folder keep their subfolders in the output folder.</source>
        <translation>Les fichiers nommés ou énumérés sous ce dossier gardent leurs sous-dossiers dans le dossier de sortie.</translation>
    </message>
    <message>
        <source>Files to import at the same time (default: one for each processor core).</source>
        <translation>Fichiers à importer en même temps (par défaut&#xa0;: un par cœur de processeur).</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Give a file up that does not get on for so long; 0 waits for ever (default: 60).</source>
        <translation>Abandonne un fichier qui n’avance pas pendant cette durée&#xa0;; 0 attend indéfiniment (par défaut&#xa0;: 60).</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>Give a file up that needs more memory than so much; 0 sets no limit (default: 4096).</source>
        <translation>Abandonne un fichier qui demande plus de mémoire&#xa0;; 0 ne fixe aucune limite (par défaut&#xa0;: 4096).</translation>
    </message>
    <message>
        <source>Leave out what an earlier command with the same options did, if neither the file nor its outputs have changed.</source>
        <translation>Omet ce qu’une commande précédente avec les mêmes options a fait, si ni le fichier ni ses sorties n’ont changé.</translation>
    </message>
    <message>
        <source>K/N</source>
        <translation>K/N</translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, so that N machines can share an archive.</source>
        <translation>Importe la K-ième des N parts des fichiers, pour que N machines puissent se partager une archive.</translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation>Écrit un rapport sur tous les fichiers, en .json ou .html&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>End with status 3 when a label did not come over whole.</source>
        <translation>Se termine avec le code 3 si une étiquette n’a pas été reprise en entier.</translation>
    </message>
    <message>
        <source>On standard error, tell what failed and nothing else.</source>
        <translation>Ne dit sur la sortie d’erreur que ce qui a échoué.</translation>
    </message>
    <message>
        <source>--%1 takes a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation>--%1 prend un nombre entier de %2 à %3, et non «&#xa0;%4&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that can be written; --to takes: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;; --to prend&#xa0;: %2.</translation>
    </message>
    <message>
        <source>--records takes a number, a range as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation>--records prend un numéro, une plage comme 3-12 ou 3-, ou all, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--shard takes a part and their number, as 3/8, not &quot;%1&quot;.</source>
        <translation>--shard prend une part et leur nombre, comme 3/8, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A report is written to a file whose name ends in .json or .html, not to &quot;%1&quot;.</source>
        <translation>Un rapport est écrit dans un fichier dont le nom finit par .json ou .html, et non dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--memory-limit takes 0 or at least %1 MiB.</source>
        <translation>--memory-limit prend 0 ou au moins %1 MiB.</translation>
    </message>
    <message>
        <source>No file to import was given.</source>
        <translation>Aucun fichier à importer n’a été indiqué.</translation>
    </message>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation>L’entrée standard peut être une étiquette ou une liste de fichiers, mais pas les deux.</translation>
    </message>
    <message>
        <source>Standard input has no name, so --reader must say what it is: %1.</source>
        <translation>L’entrée standard n’a pas de nom, --reader doit donc dire ce que c’est&#xa0;: %1.</translation>
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
        <translation>Importe d’anciennes étiquettes (*.cnv, *.roc, *.qmtx, *.odt, *.odg), en ouvre d’enregistrées
(*.label) et écrit ce qu’elles montrent. Un dossier est parcouru avec ses sous-dossiers. Ce qui
a été écrit est énuméré sur la sortie standard, dans l’ordre des noms de fichiers.

Exemples&#xa0;:
  labelport import shelf.odg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import - --reader opendocument

Code de sortie&#xa0;: 0 tout a été importé, 1 quelque chose a échoué, 2 mauvaise utilisation,
3 quelque chose a été perdu (avec --fail-on-loss), 130 arrêté par un signal.</translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation>Étiquette ou dossier d’étiquettes à importer&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Affiche ce texte.</translation>
    </message>
</context>
<context>
    <name>cli::ImportTeller</name>
    <message>
        <source>warning: %1</source>
        <translation>avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of %2 files were imported, %3 had been done before.</source>
        <translation>%1 fichiers sur %2 ont été importés, %3 étaient déjà faits.</translation>
    </message>
    <message>
        <source>%1 files were passed over: only names that end in %2 are taken from folders.</source>
        <translation>%1 fichiers ont été laissés de côté&#xa0;: dans les dossiers, seuls les noms qui finissent par %2 sont pris.</translation>
    </message>
    <message>
        <source>%1 of %2 files failed.</source>
        <translation>%1 fichiers sur %2 ont échoué.</translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 fois)</translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Tells what one label holds, what of it comes over and what does not. Writes nothing.

Examples:
  labelport inspect shelf.odg
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation>Dit ce que contient une étiquette, ce qui en est repris et ce qui ne l’est pas. N’écrit rien.

Exemples&#xa0;:
  labelport inspect shelf.odg
  labelport inspect shelf.odg --json | jq .lost</translation>
    </message>
    <message>
        <source>Label to look into.</source>
        <translation>Étiquette à examiner.</translation>
    </message>
    <message>
        <source>Tell it as JSON, as reports have it.</source>
        <translation>Le dit en JSON, comme dans les rapports.</translation>
    </message>
    <message>
        <source>Read the file as tavrel, orvanta or opendocument, whatever its name.</source>
        <translation>Lit le fichier comme tavrel, orvanta ou opendocument, quel que soit son nom.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>the process that opens it cannot be started</source>
        <translation>le processus qui l’ouvre ne peut pas être démarré</translation>
    </message>
    <message>
        <source>It takes one file.</source>
        <translation>Un seul fichier est attendu.</translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>&quot;%1&quot; is no reader; --reader takes: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un lecteur&#xa0;; --reader accepte&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message>
        <source>it has only %1 records, none with the number %2</source>
        <translation>elle n’a que %1 enregistrements, aucun avec le numéro %2</translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; name a part of them with --records</source>
        <translation>%1 enregistrements, c’est plus que les %2 qu’une commande écrit&#xa0;; indiquez-en une partie avec --records</translation>
    </message>
</context>
<context>
    <name>cli::Main</name>
    <message>
        <source>What is it to do? &quot;labelport --help&quot; tells.</source>
        <translation>Que faut-il faire&#xa0;? «&#xa0;labelport --help&#xa0;» le dit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; &quot;labelport --help&quot; tells what is.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une commande&#xa0;; «&#xa0;labelport --help&#xa0;» dit lesquelles existent.</translation>
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
        <translation>Utilisation&#xa0;: labelport COMMANDE [ARGUMENT...]

Ouvre d’anciens modèles d’étiquettes&#xa0;: *.cnv et *.roc, *.qmtx, *.odt et *.odg, et des étiquettes
enregistrées par LabelPort&#xa0;: *.label. Chaque commande en dit plus avec --help.

Commandes&#xa0;:
  import FICHIER...  importe des étiquettes, ou des dossiers, et écrit ce qu’elles montrent
  inspect FICHIER    dit ce que contient une étiquette et ce qui en est repris
  report merge       réunit les rapports de plusieurs importations
  formats            dit ce qui est lu et ce qui peut être écrit
  trace FICHIER      affiche chaque appel d’une importation à son hôte, en JSON Lines

  --help             affiche ce texte
  --version          affiche la version

Exemples&#xa0;:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport inspect shelf.odg
  labelport trace shelf.odg

Code de sortie&#xa0;: 0 tout s’est bien passé, 1 quelque chose a échoué, 2 mauvaise utilisation,
3 quelque chose a été perdu (import --fail-on-loss), 130 arrêté par un signal.
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
        <translation>Réunit les rapports JSON de plusieurs commandes en un seul, comme une commande sur tous
les fichiers l’aurait écrit.

Exemples&#xa0;:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</translation>
    </message>
    <message>
        <source>What to do: put reports together.</source>
        <translation>Ce qu’il faut faire&#xa0;: réunir des rapports.</translation>
    </message>
    <message>
        <source>Report that an import wrote as JSON.</source>
        <translation>Rapport qu’une importation a écrit en JSON.</translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation>Rapport à écrire, en .json ou .html&#xa0;; peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Reports can be put together: &quot;report merge&quot;.</source>
        <translation>Les rapports peuvent être réunis&#xa0;: «&#xa0;report merge&#xa0;».</translation>
    </message>
    <message>
        <source>It takes the reports to put together, and --to says where the whole goes.</source>
        <translation>Il faut les rapports à réunir, et --to dit où va l’ensemble.</translation>
    </message>
</context>
<context>
    <name>window::Actions</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Opens a saved label or a legacy one</source>
        <translation>Ouvre une étiquette enregistrée ou ancienne</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>Imports a legacy label and saves it beside the old file</source>
        <translation>Importe une ancienne étiquette et l’enregistre à côté de l’ancien fichier</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Saves the label</source>
        <translation>Enregistre l’étiquette</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Saves the label under another name</source>
        <translation>Enregistre l’étiquette sous un autre nom</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>Writes the label as a picture, a drawing or a document</source>
        <translation>Écrit l’étiquette sous forme d’image, de dessin ou de document</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primer…</translation>
    </message>
    <message>
        <source>Prints the label, or a series of its records</source>
        <translation>Imprime l’étiquette ou une série de ses enregistrements</translation>
    </message>
    <message>
        <source>&amp;Close Label</source>
        <translation>&amp;Fermer l’étiquette</translation>
    </message>
    <message>
        <source>Closes the label</source>
        <translation>Ferme l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Quitte le programme</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Annule la dernière modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Makes the change again</source>
        <translation>Refait la modification</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Selects all items</source>
        <translation>Sélectionne tous les objets</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Selects no item</source>
        <translation>Ne sélectionne aucun objet</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Shows the label larger</source>
        <translation>Agrandit l’affichage de l’étiquette</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom arr&amp;ière</translation>
    </message>
    <message>
        <source>Shows the label smaller</source>
        <translation>Réduit l’affichage de l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Whole Label</source>
        <translation>Étiquette &amp;entière</translation>
    </message>
    <message>
        <source>Shows the whole label, and keeps it whole when the window changes</source>
        <translation>Montre l’étiquette entière, même si la fenêtre change de taille</translation>
    </message>
    <message>
        <source>&amp;True Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Shows the label in the size in which it is printed</source>
        <translation>Montre l’étiquette à la taille à laquelle elle est imprimée</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Zoom sur la &amp;sélection</translation>
    </message>
    <message>
        <source>Shows the selected items as large as they fit</source>
        <translation>Montre les objets sélectionnés aussi grands que possible</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Règles</translation>
    </message>
    <message>
        <source>Shows or hides the rulers</source>
        <translation>Affiche ou masque les règles</translation>
    </message>
    <message>
        <source>&amp;Millimeters</source>
        <translation>&amp;Millimètres</translation>
    </message>
    <message>
        <source>Shows lengths in millimeters</source>
        <translation>Affiche les longueurs en millimètres</translation>
    </message>
    <message>
        <source>In&amp;ches</source>
        <translation>&amp;Pouces</translation>
    </message>
    <message>
        <source>Shows lengths in inches</source>
        <translation>Affiche les longueurs en pouces</translation>
    </message>
    <message>
        <source>Like the &amp;System</source>
        <translation>Comme le &amp;système</translation>
    </message>
    <message>
        <source>Takes the colors of the desktop</source>
        <translation>Reprend les couleurs du bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>Dark text on light windows</source>
        <translation>Texte sombre sur fenêtres claires</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
    <message>
        <source>Light text on dark windows</source>
        <translation>Texte clair sur fenêtres sombres</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Canevas</translation>
    </message>
    <message>
        <source>Puts the keyboard on the canvas</source>
        <translation>Place le clavier sur le canevas</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Objets</translation>
    </message>
    <message>
        <source>Shows the list of items and puts the keyboard on it</source>
        <translation>Affiche la liste des objets et y place le clavier</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>Shows the properties of an item and puts the keyboard on them</source>
        <translation>Affiche les propriétés d’un objet et y place le clavier</translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation>&amp;Sources de données</translation>
    </message>
    <message>
        <source>Shows the data sources and puts the keyboard on them</source>
        <translation>Affiche les sources de données et y place le clavier</translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
        <translation>&amp;Messages</translation>
    </message>
    <message>
        <source>Shows the issues and puts the keyboard on them</source>
        <translation>Affiche les messages et y place le clavier</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Premier</translation>
    </message>
    <message>
        <source>Shows the first record</source>
        <translation>Affiche le premier enregistrement</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>Shows the record before</source>
        <translation>Affiche l’enregistrement précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Shows the record after</source>
        <translation>Affiche l’enregistrement suivant</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Dernier</translation>
    </message>
    <message>
        <source>Shows the last record</source>
        <translation>Affiche le dernier enregistrement</translation>
    </message>
    <message>
        <source>&amp;Go to…</source>
        <translation>&amp;Aller à…</translation>
    </message>
    <message>
        <source>Puts the keyboard on the record&apos;s number</source>
        <translation>Place le clavier sur le numéro de l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>Shows all keys</source>
        <translation>Affiche toutes les touches</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Shows what program this is</source>
        <translation>Dit quel est ce programme</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>E&amp;nregistrement</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
</context>
<context>
    <name>window::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>Canevas</translation>
    </message>
    <message>
        <source>The label. The arrow keys move the selected items.</source>
        <translation>L’étiquette. Les touches fléchées déplacent les objets sélectionnés.</translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>Dessins SVG (*.svg)</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>Images PNG (*.png)</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>Export Label</source>
        <translation>Exporter l’étiquette</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>Image PNG</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>Dessin SVG</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Document PDF</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Chooses the file in a dialog</source>
        <translation>Choisit le fichier dans une boîte de dialogue</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Resolution in dots per inch</source>
        <translation>Résolution en points par pouce</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>Fich&amp;ier</translation>
    </message>
    <message>
        <source>Re&amp;solution</source>
        <translation>&amp;Résolution</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>One document of %1 pages.</source>
        <translation>Un document de %1 pages.</translation>
    </message>
    <message>
        <source>%1 files: %2 and so on.</source>
        <translation>%1 fichiers&#xa0;: %2 et ainsi de suite.</translation>
    </message>
    <message>
        <source>One file.</source>
        <translation>Un fichier.</translation>
    </message>
    <message>
        <source>“%1” exists already. Replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>window::DialogImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>La mémoire ne suffit pas pour ce fichier.</translation>
    </message>
</context>
<context>
    <name>window::IssueListModel</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 fois)</translation>
    </message>
    <message>
        <source>The label</source>
        <translation>L’étiquette</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Concerne</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>De quoi il s’agit</translation>
    </message>
</context>
<context>
    <name>window::IssuesPanel</name>
    <message>
        <source>Issues of the label</source>
        <translation>Messages sur l’étiquette</translation>
    </message>
    <message>
        <source>There is nothing to report.</source>
        <translation>Il n’y a rien à signaler.</translation>
    </message>
</context>
<context>
    <name>window::ItemDescription</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Flipped left to right</source>
        <translation>Retourné de gauche à droite</translation>
    </message>
    <message>
        <source>Flipped top to bottom</source>
        <translation>Retourné de haut en bas</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Movable</source>
        <translation>Déplaçable</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Trait</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Couleur du trait</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Épaisseur du trait</translation>
    </message>
    <message>
        <source>thinnest</source>
        <translation>le plus fin possible</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Line style</source>
        <translation>Style du trait</translation>
    </message>
    <message>
        <source>Line ends</source>
        <translation>Extrémités du trait</translation>
    </message>
    <message>
        <source>Line corners</source>
        <translation>Angles du trait</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Rempli</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>Couleur de remplissage</translation>
    </message>
    <message>
        <source>Fill pattern</source>
        <translation>Motif de remplissage</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Coins</translation>
    </message>
    <message>
        <source>Corner radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>a sixth of the shorter side</source>
        <translation>un sixième du plus petit côté</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Extrémités</translation>
    </message>
    <message>
        <source>End, to the right</source>
        <translation>Extrémité, vers la droite</translation>
    </message>
    <message>
        <source>End, down</source>
        <translation>Extrémité, vers le bas</translation>
    </message>
    <message>
        <source>Mark at the start</source>
        <translation>Marque au début</translation>
    </message>
    <message>
        <source>Mark at the end</source>
        <translation>Marque à la fin</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Text box</source>
        <translation>Zone de texte</translation>
    </message>
    <message>
        <source>Fixed sides</source>
        <translation>Côtés fixes</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Font family</source>
        <translation>Famille de police</translation>
    </message>
    <message>
        <source>the default</source>
        <translation>la police par défaut</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non définie</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Code-barres</translation>
    </message>
    <message>
        <source>Symbology</source>
        <translation>Symbologie</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Module width</source>
        <translation>Largeur de module</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Picture size</source>
        <translation>Taille de l’image</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>pas d’image</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Symbol color</source>
        <translation>Couleur du symbole</translation>
    </message>
    <message>
        <source>Symbol ground</source>
        <translation>Fond du symbole</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Source de données</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numéro %1</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Champs</translation>
    </message>
    <message>
        <source>data source %1</source>
        <translation>source de données %1</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>window::ItemPanel</name>
    <message>
        <source>Items of the label</source>
        <translation>Objets de l’étiquette</translation>
    </message>
</context>
<context>
    <name>window::ItemTableModel</name>
    <message>
        <source>cannot be shown</source>
        <translation>ne peut être affiché</translation>
    </message>
    <message>
        <source>background</source>
        <translation>arrière-plan</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenu</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
    <message>
        <source>The label could not be imported.</source>
        <translation>L’étiquette n’a pas pu être importée.</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>%1

The label is still open. Save it in another folder with “Save As”.</source>
        <translation>%1

L’étiquette est toujours ouverte. Enregistrez-la dans un autre dossier avec «&#xa0;Enregistrer sous&#xa0;».</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistrée sous %1</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être ouvert.</translation>
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
        <translation>À propos</translation>
    </message>
    <message>
        <source>LabelPort Workbench %1</source>
        <translation>LabelPort Workbench %1</translation>
    </message>
    <message>
        <source>Opens legacy label templates, shows them, keeps them and hands them on.</source>
        <translation>Ouvre d’anciens modèles d’étiquettes, les montre, les conserve et les transmet.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvert &amp;récemment</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>A window holds one label: only the first file was opened.</source>
        <translation>Une fenêtre contient une seule étiquette&#xa0;: seul le premier fichier a été ouvert.</translation>
    </message>
</context>
<context>
    <name>window::MoveItems</name>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
</context>
<context>
    <name>window::OutputCommands</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stopped after %1 files</source>
        <translation>Arrêté après %1 fichiers</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 files written</source>
        <translation>%1 fichiers écrits</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>The label could not be exported.</source>
        <translation>L’étiquette n’a pas pu être exportée.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>The label could not be printed.</source>
        <translation>L’étiquette n’a pas pu être imprimée.</translation>
    </message>
    <message>
        <source>Printing was stopped</source>
        <translation>L’impression a été arrêtée</translation>
    </message>
    <message>
        <source>%1 pages were given to the printer</source>
        <translation>%1 pages ont été transmises à l’imprimante</translation>
    </message>
</context>
<context>
    <name>window::OutputJob</name>
    <message>
        <source>The printer did not take the pages. See that it is switched on and connected, or print into a PDF file with “Export”.</source>
        <translation>L’imprimante n’a pas accepté les pages. Vérifiez qu’elle est allumée et connectée, ou imprimez dans un fichier PDF avec «&#xa0;Exporter&#xa0;».</translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>All labels (*.label *.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation>Toutes les étiquettes (*.label *.cnv *.roc *.qmtx *.odt *.odg)</translation>
    </message>
    <message>
        <source>Saved labels (*.label)</source>
        <translation>Étiquettes enregistrées (*.label)</translation>
    </message>
    <message>
        <source>Legacy labels (*.cnv *.roc *.qmtx *.odt *.odg)</source>
        <translation>Anciennes étiquettes (*.cnv *.roc *.qmtx *.odt *.odg)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Enregistrer les modifications de «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Changes that are not saved will be lost.</source>
        <translation>Les modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>Save Imported Label</source>
        <translation>Enregistrer l’étiquette importée</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>The label was imported. It can replace that file, be saved under another name, or be saved later.</source>
        <translation>L’étiquette a été importée. Elle peut remplacer ce fichier, être enregistrée sous un autre nom ou plus tard.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Other Name…</source>
        <translation>&amp;Autre nom…</translation>
    </message>
    <message>
        <source>Save &amp;Later</source>
        <translation>Enregistrer plus &amp;tard</translation>
    </message>
    <message>
        <source>Open Label</source>
        <translation>Ouvrir une étiquette</translation>
    </message>
    <message>
        <source>Save Label</source>
        <translation>Enregistrer l’étiquette</translation>
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
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>window::PropertyPanel</name>
    <message>
        <source>Properties of the selected item</source>
        <translation>Propriétés de l’objet sélectionné</translation>
    </message>
</context>
<context>
    <name>window::RecordChooser</name>
    <message>
        <source>The one &amp;shown (%1)</source>
        <translation>Celui qui est a&amp;ffiché (%1)</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>A run of records</source>
        <translation>Une suite d’enregistrements</translation>
    </message>
    <message>
        <source>First record</source>
        <translation>Premier enregistrement</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Dernier enregistrement</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
</context>
<context>
    <name>window::RuledCanvas</name>
    <message>
        <source>Change between millimeters and inches</source>
        <translation>Passer des millimètres aux pouces et inversement</translation>
    </message>
    <message>
        <source>Unit of the rulers</source>
        <translation>Unité des règles</translation>
    </message>
</context>
<context>
    <name>window::Ruler</name>
    <message>
        <source>Horizontal ruler</source>
        <translation>Règle horizontale</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Règle verticale</translation>
    </message>
</context>
<context>
    <name>window::ShortcutsDialog</name>
    <message>
        <source>Canvas</source>
        <translation>Canevas</translation>
    </message>
    <message>
        <source>Move the selected items</source>
        <translation>Déplacer les objets sélectionnés</translation>
    </message>
    <message>
        <source>Arrow keys; further with Shift, a little with Ctrl</source>
        <translation>Touches fléchées&#xa0;; plus loin avec Maj, un peu avec Ctrl</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoom sous le pointeur</translation>
    </message>
    <message>
        <source>Ctrl+wheel</source>
        <translation>Ctrl+molette</translation>
    </message>
    <message>
        <source>Shift the view</source>
        <translation>Déplacer la vue</translation>
    </message>
    <message>
        <source>Space and left button, or middle button</source>
        <translation>Espace et bouton gauche, ou bouton du milieu</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
</context>
<context>
    <name>window::SourcePanel</name>
    <message>
        <source>Data sources of the label</source>
        <translation>Sources de données de l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>E&amp;nregistrement</translation>
    </message>
    <message>
        <source>Number of the record that is shown</source>
        <translation>Numéro de l’enregistrement affiché</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
</context>
<context>
    <name>window::SourceTableModel</name>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>List of texts</source>
        <translation>Liste de textes</translation>
    </message>
    <message>
        <source>%1 to %2, step %3</source>
        <translation>de %1 à %2, pas de %3</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Shows now</source>
        <translation>Affiche maintenant</translation>
    </message>
</context>
<context>
    <name>window::StatusLine</name>
    <message>
        <source>Record %1 of %2</source>
        <translation>Enregistrement %1 sur %2</translation>
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
        <translation>Image</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Formatted text</source>
        <translation>Texte mis en forme</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Code-barres</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Trait</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Rectangle arrondi</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Pie</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Right triangle</source>
        <translation>Triangle rectangle</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triangle</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Losange</translation>
    </message>
    <message>
        <source>Pentagon</source>
        <translation>Pentagone</translation>
    </message>
    <message>
        <source>Hexagon</source>
        <translation>Hexagone</translation>
    </message>
    <message>
        <source>Octagon</source>
        <translation>Octogone</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>plein</translation>
    </message>
    <message>
        <source>dashes</source>
        <translation>tirets</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>points</translation>
    </message>
    <message>
        <source>dash, dot</source>
        <translation>tiret, point</translation>
    </message>
    <message>
        <source>dash, dot, dot</source>
        <translation>tiret, point, point</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>plat</translation>
    </message>
    <message>
        <source>square</source>
        <translation>carré</translation>
    </message>
    <message>
        <source>round</source>
        <translation>rond</translation>
    </message>
    <message>
        <source>pointed</source>
        <translation>pointu</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>biseauté</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>arrondi</translation>
    </message>
    <message>
        <source>screen, densest</source>
        <translation>trame, la plus dense</translation>
    </message>
    <message>
        <source>screen, very dense</source>
        <translation>trame, très dense</translation>
    </message>
    <message>
        <source>screen, dense</source>
        <translation>trame, dense</translation>
    </message>
    <message>
        <source>screen, half</source>
        <translation>trame, moitié</translation>
    </message>
    <message>
        <source>screen, light</source>
        <translation>trame, claire</translation>
    </message>
    <message>
        <source>screen, very light</source>
        <translation>trame, très claire</translation>
    </message>
    <message>
        <source>screen, lightest</source>
        <translation>trame, la plus claire</translation>
    </message>
    <message>
        <source>horizontal lines</source>
        <translation>lignes horizontales</translation>
    </message>
    <message>
        <source>vertical lines</source>
        <translation>lignes verticales</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>grille</translation>
    </message>
    <message>
        <source>rising lines</source>
        <translation>lignes montantes</translation>
    </message>
    <message>
        <source>falling lines</source>
        <translation>lignes descendantes</translation>
    </message>
    <message>
        <source>diagonal grid</source>
        <translation>grille diagonale</translation>
    </message>
    <message>
        <source>gradient</source>
        <translation>dégradé</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>flèche</translation>
    </message>
    <message>
        <source>small arrow</source>
        <translation>petite flèche</translation>
    </message>
    <message>
        <source>double arrow</source>
        <translation>double flèche</translation>
    </message>
    <message>
        <source>dimension stroke</source>
        <translation>trait de cote</translation>
    </message>
    <message>
        <source>width</source>
        <translation>largeur</translation>
    </message>
    <message>
        <source>height</source>
        <translation>hauteur</translation>
    </message>
    <message>
        <source>width and height</source>
        <translation>largeur et hauteur</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <source>centered</source>
        <translation>centré</translation>
    </message>
    <message>
        <source>justified</source>
        <translation>justifié</translation>
    </message>
    <message>
        <source>top</source>
        <translation>en haut</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>en bas</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>au milieu</translation>
    </message>
</context>
<context>
    <name>window::WelcomePage</name>
    <message>
        <source>Drop a label here</source>
        <translation>Déposez une étiquette ici</translation>
    </message>
    <message>
        <source>Saved labels (*.label) and legacy ones: binary canvas files (*.cnv, *.roc), XML labels (*.qmtx), OpenDocument texts and drawings (*.odt, *.odg)</source>
        <translation>Étiquettes enregistrées (*.label) et anciennes&#xa0;: fichiers canvas binaires (*.cnv, *.roc), étiquettes XML (*.qmtx), textes et dessins OpenDocument (*.odt, *.odg)</translation>
    </message>
    <message>
        <source>&amp;Open a Label…</source>
        <translation>&amp;Ouvrir une étiquette…</translation>
    </message>
    <message>
        <source>&amp;Import a Legacy Label…</source>
        <translation>&amp;Importer une ancienne étiquette…</translation>
    </message>
</context>
<context>
    <name>window::WindowPanels</name>
    <message>
        <source>Items</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Data Sources</source>
        <translation>Sources de données</translation>
    </message>
    <message>
        <source>Issues</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation>Ouvre d’anciens modèles d’étiquettes, les montre, les enregistre, les exporte et les imprime.</translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg.</source>
        <translation>Une étiquette à ouvrir&#xa0;: *.label, *.cnv, *.roc, *.qmtx, *.odt ou *.odg.</translation>
    </message>
    <message>
        <source>Writes a picture of the window as PNG as soon as it is there, and ends.</source>
        <translation>Écrit une image PNG de la fenêtre dès qu’elle est là, puis se termine.</translation>
    </message>
    <message>
        <source>a window holds one label, but %1 were named</source>
        <translation>une fenêtre contient une seule étiquette, mais %1 ont été indiquées</translation>
    </message>
    <message>
        <source>cannot write “%1”</source>
        <translation>impossible d’écrire «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>migration::Census</name>
    <message>
        <source>The file cannot be opened to count its objects.</source>
        <translation>Le fichier ne peut pas être ouvert pour compter ses objets.</translation>
    </message>
    <message>
        <source>The file is too large to count its objects.</source>
        <translation>Le fichier est trop gros pour compter ses objets.</translation>
    </message>
    <message>
        <source>The package has no readable part %1.</source>
        <translation>L’archive n’a pas de partie %1 lisible.</translation>
    </message>
    <message>
        <source>The file has no list of items.</source>
        <translation>Le fichier n’a pas de liste d’objets.</translation>
    </message>
    <message>
        <source>The file goes on with something unknown, which may hold more.</source>
        <translation>Le fichier continue par quelque chose d’inconnu, qui peut en contenir davantage.</translation>
    </message>
    <message>
        <source>The file ends in the middle of a record: it may have held more.</source>
        <translation>Le fichier s’arrête au milieu d’un bloc&#xa0;: il a pu en contenir davantage.</translation>
    </message>
    <message>
        <source>The file is no binary label of a known version.</source>
        <translation>Le fichier n’est pas une étiquette binaire d’une version connue.</translation>
    </message>
    <message>
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation>Le fichier est endommagé, ses objets ne peuvent donc pas être comptés&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>migration::HtmlCard</name>
    <message>
        <source>no picture</source>
        <translation>pas d’image</translation>
    </message>
    <message>
        <source>The label %1</source>
        <translation>L’étiquette %1</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>entière</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifiée</translation>
    </message>
    <message>
        <source>with losses</source>
        <translation>avec pertes</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>plantage</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>a pris trop de temps</translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation>a demandé trop de mémoire</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>Came over whole</source>
        <translation>Repris en entier</translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation>Sources de données</translation>
    </message>
    <message>
        <source>What the import said</source>
        <translation>Ce que l’importation a dit</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Écrit</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Did not come over</source>
        <translation>Non repris</translation>
    </message>
    <message>
        <source>Came over changed</source>
        <translation>Repris avec des modifications</translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
    <message>
        <source>%1 of %2 files came over whole.</source>
        <translation>%1 fichiers sur %2 ont été repris en entier.</translation>
    </message>
    <message>
        <source>whole: nothing lost, nothing changed</source>
        <translation>entiers&#xa0;: rien de perdu, rien de modifié</translation>
    </message>
    <message>
        <source>changed in their looks, nothing lost</source>
        <translation>d’apparence modifiée, rien de perdu</translation>
    </message>
    <message>
        <source>with losses</source>
        <translation>avec pertes</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>non importés</translation>
    </message>
    <message>
        <source>Of %1 objects in these files, %2 came over.</source>
        <translation>Sur %1 objets dans ces fichiers, %2 ont été repris.</translation>
    </message>
    <message>
        <source>In %1 files the objects could not be counted.</source>
        <translation>Dans %1 fichiers, les objets n’ont pas pu être comptés.</translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation>Rien n’a été perdu et rien n’a été modifié.</translation>
    </message>
    <message>
        <source>What was lost or changed</source>
        <translation>Ce qui a été perdu ou modifié</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ce qui s’est passé</translation>
    </message>
    <message>
        <source>What can be done</source>
        <translation>Ce qu’on peut faire</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tous</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>entiers</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifiés</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>importés</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>plantage</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>a pris trop de temps</translation>
    </message>
    <message>
        <source>needed too much memory</source>
        <translation>a demandé trop de mémoire</translation>
    </message>
    <message>
        <source>as imported</source>
        <translation>ordre d’importation</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>most problems first</source>
        <translation>le plus de problèmes d’abord</translation>
    </message>
    <message>
        <source>most objects lost first</source>
        <translation>le plus d’objets perdus d’abord</translation>
    </message>
    <message>
        <source>worst status first</source>
        <translation>le pire état d’abord</translation>
    </message>
    <message>
        <source>Sort and filter</source>
        <translation>Trier et filtrer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Reader</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 sur %2 affichés</translation>
    </message>
    <message>
        <source>Migration report</source>
        <translation>Rapport de migration</translation>
    </message>
    <message>
        <source>en</source>
        <translation>fr</translation>
    </message>
    <message>
        <source>No file fits the search.</source>
        <translation>Aucun fichier ne correspond à la recherche.</translation>
    </message>
</context>
<context>
    <name>migration::Inspect</name>
    <message>
        <source>kind</source>
        <translation>type</translation>
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
        <translation>largeur</translation>
    </message>
    <message>
        <source>height</source>
        <translation>hauteur</translation>
    </message>
    <message>
        <source>source</source>
        <translation>source</translation>
    </message>
    <message>
        <source>content</source>
        <translation>contenu</translation>
    </message>
    <message>
        <source>Items (millimetres):</source>
        <translation>Objets (millimètres)&#xa0;:</translation>
    </message>
    <message>
        <source>Page: %1 × %2 mm</source>
        <translation>Page&#xa0;: %1 × %2 mm</translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation>Sources de données&#xa0;:</translation>
    </message>
    <message>
        <source>Came over whole:</source>
        <translation>Repris en entier&#xa0;:</translation>
    </message>
    <message>
        <source>Came over changed:</source>
        <translation>Repris avec des modifications&#xa0;:</translation>
    </message>
    <message>
        <source>Did not come over:</source>
        <translation>Non repris&#xa0;:</translation>
    </message>
    <message>
        <source>What the import said:</source>
        <translation>Ce que l’importation a dit&#xa0;:</translation>
    </message>
</context>
<context>
    <name>migration::ItemLosses</name>
    <message>
        <source>unknown</source>
        <translation>inconnue</translation>
    </message>
</context>
<context>
    <name>migration::KindNames</name>
    <message>
        <source>picture</source>
        <translation>image</translation>
    </message>
    <message>
        <source>symbol</source>
        <translation>symbole</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>formatted text</source>
        <translation>texte mis en forme</translation>
    </message>
    <message>
        <source>barcode</source>
        <translation>code-barres</translation>
    </message>
    <message>
        <source>line</source>
        <translation>trait</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>rectangle</translation>
    </message>
    <message>
        <source>rounded rectangle</source>
        <translation>rectangle arrondi</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>ellipse</translation>
    </message>
    <message>
        <source>pie</source>
        <translation>secteur</translation>
    </message>
    <message>
        <source>right triangle</source>
        <translation>triangle rectangle</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>triangle</translation>
    </message>
    <message>
        <source>diamond</source>
        <translation>losange</translation>
    </message>
    <message>
        <source>pentagon</source>
        <translation>pentagone</translation>
    </message>
    <message>
        <source>hexagon</source>
        <translation>hexagone</translation>
    </message>
    <message>
        <source>octagon</source>
        <translation>octogone</translation>
    </message>
</context>
<context>
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation>Des objets en groupes ont été omis.</translation>
    </message>
    <message>
        <source>Open the document in its own program, ungroup the objects, save, and import again.</source>
        <translation>Ouvrez le document dans son propre programme, dissociez les objets, enregistrez et importez de nouveau.</translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation>Des objets de la deuxième page et des suivantes ont été omis&#xa0;: une étiquette a une seule page.</translation>
    </message>
    <message>
        <source>Save each page as a document of its own and import those.</source>
        <translation>Enregistrez chaque page dans son propre document et importez ceux-ci.</translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation>Des objets de l’arrière-plan de la page (sa page maîtresse) ont été omis.</translation>
    </message>
    <message>
        <source>Copy them from the master page to the page itself and import again.</source>
        <translation>Copiez-les de la page maîtresse sur la page elle-même et importez de nouveau.</translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation>Des connecteurs entre objets ont été omis.</translation>
    </message>
    <message>
        <source>Draw them as plain lines.</source>
        <translation>Dessinez-les comme de simples traits.</translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation>Des courbes, des polygones libres et des lignes brisées ont été omis.</translation>
    </message>
    <message>
        <source>Convert them to a picture or to plain shapes.</source>
        <translation>Convertissez-les en image ou en formes simples.</translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation>Des légendes ont été omises.</translation>
    </message>
    <message>
        <source>Replace each by a text and a line.</source>
        <translation>Remplacez chacune par un texte et un trait.</translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation>Des objets en trois dimensions ont été omis.</translation>
    </message>
    <message>
        <source>Convert them to a picture.</source>
        <translation>Convertissez-les en image.</translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
        <translation>Des contrôles de formulaire ont été omis.</translation>
    </message>
    <message>
        <source>Replace each by a text, if it is to be printed.</source>
        <translation>Remplacez chacun par un texte, s’il doit être imprimé.</translation>
    </message>
    <message>
        <source>Embedded objects, such as charts and formulas, were left out; an empty box is in their place.</source>
        <translation>Des objets incorporés, comme des diagrammes et des formules, ont été omis&#xa0;; un cadre vide est à leur place.</translation>
    </message>
    <message>
        <source>Objects inside texts, text boxes or other objects were left out.</source>
        <translation>Des objets placés dans des textes, des zones de texte ou d’autres objets ont été omis.</translation>
    </message>
    <message>
        <source>Anchor them to the page.</source>
        <translation>Ancrez-les à la page.</translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only its texts, text boxes and pictures are taken.</source>
        <translation>Des formes d’un document texte ont été omises&#xa0;: seuls ses textes, zones de texte et images sont repris.</translation>
    </message>
    <message>
        <source>Put the label into a drawing instead of a text document.</source>
        <translation>Mettez l’étiquette dans un dessin plutôt que dans un document texte.</translation>
    </message>
    <message>
        <source>Texts and objects in tables were left out.</source>
        <translation>Des textes et objets dans des tableaux ont été omis.</translation>
    </message>
    <message>
        <source>Put them into text boxes.</source>
        <translation>Mettez-les dans des zones de texte.</translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation>Des textes dans des listes ont été omis.</translation>
    </message>
    <message>
        <source>Turn the bullets or numbers off, so that the list becomes plain paragraphs.</source>
        <translation>Désactivez les puces ou les numéros, pour que la liste devienne de simples paragraphes.</translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation>Des textes et objets dans des sections ou des index ont été omis.</translation>
    </message>
    <message>
        <source>Remove the section and keep its content.</source>
        <translation>Supprimez la section et gardez son contenu.</translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation>Des textes et objets de l’en-tête ou du pied de page ont été omis.</translation>
    </message>
    <message>
        <source>Copy them into the document itself.</source>
        <translation>Copiez-les dans le document lui-même.</translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation>Des textes de liens hypertexte ont été omis.</translation>
    </message>
    <message>
        <source>Remove the hyperlinks and keep their texts.</source>
        <translation>Supprimez les liens hypertexte et gardez leurs textes.</translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation>Des champs dans les textes, comme des numéros de page et des noms, ont été omis.</translation>
    </message>
    <message>
        <source>Replace each by its text, or by a data source after the import.</source>
        <translation>Remplacez chacun par son texte, ou par une source de données après l’importation.</translation>
    </message>
    <message>
        <source>Parts of texts were left out, because their kind is not known.</source>
        <translation>Des parties de textes ont été omises, car leur type est inconnu.</translation>
    </message>
    <message>
        <source>Compare the texts with the old label.</source>
        <translation>Comparez les textes avec l’ancienne étiquette.</translation>
    </message>
    <message>
        <source>Texts of shapes were left out: they do not begin with a plain paragraph.</source>
        <translation>Des textes de formes ont été omis&#xa0;: ils ne commencent pas par un simple paragraphe.</translation>
    </message>
    <message>
        <source>Turn them into plain paragraphs.</source>
        <translation>Transformez-les en simples paragraphes.</translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation>Des notes de bas de page et de fin ont été omises.</translation>
    </message>
    <message>
        <source>Put their texts into text boxes.</source>
        <translation>Mettez leurs textes dans des zones de texte.</translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation>Des commentaires ont été omis&#xa0;; ils ne sont pas imprimés.</translation>
    </message>
    <message>
        <source>Nothing, unless somebody needs them.</source>
        <translation>Rien, sauf si quelqu’un en a besoin.</translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation>Des animations ont été omises&#xa0;; elles ne sont pas imprimées.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Rien.</translation>
    </message>
    <message>
        <source>Objects were left out, because their kind is not known.</source>
        <translation>Des objets ont été omis, car leur type est inconnu.</translation>
    </message>
    <message>
        <source>Compare with the old label and draw them anew.</source>
        <translation>Comparez avec l’ancienne étiquette et redessinez-les.</translation>
    </message>
    <message>
        <source>Objects were left out, because their kind of control is not known.</source>
        <translation>Des objets ont été omis, car leur type de contrôle est inconnu.</translation>
    </message>
    <message>
        <source>The file lists objects more than once; all but the first list were left out.</source>
        <translation>Le fichier énumère des objets plus d’une fois&#xa0;; toutes les listes sauf la première ont été omises.</translation>
    </message>
    <message>
        <source>Open the file in its own program and save it again.</source>
        <translation>Ouvrez le fichier dans son propre programme et enregistrez-le de nouveau.</translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation>Des cadres sans image ont été omis.</translation>
    </message>
    <message>
        <source>If a picture is missing, put it in after the import.</source>
        <translation>S’il manque une image, mettez-la après l’importation.</translation>
    </message>
    <message>
        <source>Pictures are missing: they are damaged, too large or of an unknown format.</source>
        <translation>Des images manquent&#xa0;: elles sont endommagées, trop grandes ou d’un format inconnu.</translation>
    </message>
    <message>
        <source>Save them as PNG and put them in after the import.</source>
        <translation>Enregistrez-les en PNG et mettez-les après l’importation.</translation>
    </message>
    <message>
        <source>Vector drawings are missing: they cannot be converted.</source>
        <translation>Des dessins vectoriels manquent&#xa0;: ils ne peuvent pas être convertis.</translation>
    </message>
    <message>
        <source>Convert them to PNG and put them in after the import.</source>
        <translation>Convertissez-les en PNG et mettez-les après l’importation.</translation>
    </message>
    <message>
        <source>Symbols are missing: neither the file nor the symbol databases have a drawing of them.</source>
        <translation>Des symboles manquent&#xa0;: ni le fichier ni les bases de symboles n’en ont de dessin.</translation>
    </message>
    <message>
        <source>Save the label with the newest version of its own program, which stores the drawings, or add them to the symbol databases.</source>
        <translation>Enregistrez l’étiquette avec la version la plus récente de son propre programme, qui conserve les dessins, ou ajoutez-les aux bases de symboles.</translation>
    </message>
    <message>
        <source>Barcodes were left out, because their type is not supported.</source>
        <translation>Des codes-barres ont été omis, car leur type n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>Choose another type, and put them in after the import.</source>
        <translation>Choisissez un autre type et mettez-les après l’importation.</translation>
    </message>
    <message>
        <source>Nothing was read from an unknown record on.</source>
        <translation>Rien n’a été lu à partir d’un bloc inconnu.</translation>
    </message>
    <message>
        <source>The file is damaged or of a newer version: look for another copy.</source>
        <translation>Le fichier est endommagé ou d’une version plus récente&#xa0;: cherchez une autre copie.</translation>
    </message>
    <message>
        <source>The file ends in the middle: its last object is incomplete, and more may be missing.</source>
        <translation>Le fichier s’arrête au milieu&#xa0;: son dernier objet est incomplet, et il peut en manquer d’autres.</translation>
    </message>
    <message>
        <source>Look for another copy of the file.</source>
        <translation>Cherchez une autre copie du fichier.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation>Le document n’est ni un texte ni un dessin&#xa0;: rien n’en a été repris.</translation>
    </message>
    <message>
        <source>Copy its content into a drawing.</source>
        <translation>Copiez son contenu dans un dessin.</translation>
    </message>
    <message>
        <source>Something was left out, because it is larger than anything on a real label.</source>
        <translation>Quelque chose a été omis, car c’est plus grand que tout ce qu’il y a sur une vraie étiquette.</translation>
    </message>
    <message>
        <source>Make the label smaller, or its pictures.</source>
        <translation>Réduisez l’étiquette ou ses images.</translation>
    </message>
    <message>
        <source>Objects of the file are not on the label, and the import has not said why.</source>
        <translation>Des objets du fichier ne sont pas sur l’étiquette, et l’importation n’a pas dit pourquoi.</translation>
    </message>
    <message>
        <source>Compare with the old label, and tell the makers of this program.</source>
        <translation>Comparez avec l’ancienne étiquette et dites-le aux auteurs de ce programme.</translation>
    </message>
    <message>
        <source>The import had more to say than was kept: there may be losses that are not listed.</source>
        <translation>L’importation avait plus à dire que ce qui a été gardé&#xa0;: il peut y avoir des pertes qui ne figurent pas ici.</translation>
    </message>
    <message>
        <source>Import this file alone and look at the label.</source>
        <translation>Importez ce fichier seul et regardez l’étiquette.</translation>
    </message>
    <message>
        <source>Choose the nearest shape after the import, or put them in as a symbol.</source>
        <translation>Choisissez la forme la plus proche après l’importation, ou mettez-les comme symbole.</translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show what was last in them.</source>
        <translation>Des objets ne sont plus liés à leur source de données&#xa0;: ils montrent ce qu’ils contenaient en dernier.</translation>
    </message>
    <message>
        <source>Bind them to a data source after the import.</source>
        <translation>Liez-les à une source de données après l’importation.</translation>
    </message>
    <message>
        <source>The label was linked to a database file, and is no longer.</source>
        <translation>L’étiquette était liée à un fichier de base de données et ne l’est plus.</translation>
    </message>
    <message>
        <source>Connect the data after the import.</source>
        <translation>Connectez les données après l’importation.</translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words are bound to a data source: they show its value alone.</source>
        <translation>Des textes avec un champ de substitution parmi d’autres mots sont liés à une source de données&#xa0;: ils n’en montrent que la valeur.</translation>
    </message>
    <message>
        <source>Put the other words into texts of their own, or into the data source.</source>
        <translation>Mettez les autres mots dans leurs propres textes, ou dans la source de données.</translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn: their type does not allow their content.</source>
        <translation>Des codes-barres ne peuvent pas être dessinés&#xa0;: leur type n’admet pas leur contenu.</translation>
    </message>
    <message>
        <source>Correct the content or choose another type.</source>
        <translation>Corrigez le contenu ou choisissez un autre type.</translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation>Des codes-barres d’un type sans équivalent connu sont devenus des Code 39.</translation>
    </message>
    <message>
        <source>Scan the old label and choose the right type.</source>
        <translation>Scannez l’ancienne étiquette et choisissez le bon type.</translation>
    </message>
    <message>
        <source>Items lie wholly outside the page: they are not printed.</source>
        <translation>Des objets sont entièrement hors de la page&#xa0;: ils ne sont pas imprimés.</translation>
    </message>
    <message>
        <source>Move them onto the page, or delete them.</source>
        <translation>Déplacez-les sur la page ou supprimez-les.</translation>
    </message>
    <message>
        <source>Items reach beyond the edge of the page: that part is not printed.</source>
        <translation>Des objets dépassent du bord de la page&#xa0;: cette partie n’est pas imprimée.</translation>
    </message>
    <message>
        <source>Compare with the old label.</source>
        <translation>Comparez avec l’ancienne étiquette.</translation>
    </message>
    <message>
        <source>Sizes, positions or fonts are larger than anything on a real label, and were limited.</source>
        <translation>Des tailles, positions ou polices sont plus grandes que tout ce qu’il y a sur une vraie étiquette et ont été limitées.</translation>
    </message>
    <message>
        <source>The document measures in millimetres: the label is ten times larger than the paper.</source>
        <translation>Le document mesure en millimètres&#xa0;: l’étiquette est dix fois plus grande que le papier.</translation>
    </message>
    <message>
        <source>Print at a tenth of the size, or save the document with centimetres or inches as its unit.</source>
        <translation>Imprimez au dixième de la taille, ou enregistrez le document avec des centimètres ou des pouces comme unité.</translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page: they were read as if they were.</source>
        <translation>Des longueurs ne sont pas dans l’unité de la page&#xa0;: elles ont été lues comme si elles l’étaient.</translation>
    </message>
    <message>
        <source>Save the document with one unit throughout.</source>
        <translation>Enregistrez le document avec une seule unité partout.</translation>
    </message>
    <message>
        <source>Set the size of the page after the import.</source>
        <translation>Réglez la taille de la page après l’importation.</translation>
    </message>
    <message>
        <source>Objects without a position on the page were put where the text runs, or into the corner.</source>
        <translation>Des objets sans position sur la page ont été placés là où passe le texte, ou dans le coin.</translation>
    </message>
    <message>
        <source>Turned lines and slanted or scaled objects lost that.</source>
        <translation>Des traits tournés et des objets inclinés ou mis à l’échelle ont perdu cela.</translation>
    </message>
    <message>
        <source>Fonts that are not on this machine were replaced.</source>
        <translation>Des polices absentes de cette machine ont été remplacées.</translation>
    </message>
    <message>
        <source>Install the fonts and import again, if the looks matter.</source>
        <translation>Installez les polices et importez de nouveau, si l’apparence compte.</translation>
    </message>
    <message>
        <source>Stretched texts are not stretched any more.</source>
        <translation>Des textes étirés ne le sont plus.</translation>
    </message>
    <message>
        <source>Choose a font size that fits.</source>
        <translation>Choisissez une taille de police qui convient.</translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation>Des textes colorés ont perdu leur couleur.</translation>
    </message>
    <message>
        <source>Set the color after the import.</source>
        <translation>Réglez la couleur après l’importation.</translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation>Des sauts de ligne, tabulations ou espaces répétés dans des textes ont été supprimés.</translation>
    </message>
    <message>
        <source>Split such a text into paragraphs.</source>
        <translation>Divisez un tel texte en paragraphes.</translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation>Des formats de caractères et de paragraphes, comme l’exposant ou l’interligne, ont été supprimés.</translation>
    </message>
    <message>
        <source>Gradients, hatchings and pictures that fill objects were simplified.</source>
        <translation>Des dégradés, hachures et images qui remplissent des objets ont été simplifiés.</translation>
    </message>
    <message>
        <source>Choose a fill after the import.</source>
        <translation>Choisissez un remplissage après l’importation.</translation>
    </message>
    <message>
        <source>Shadows, transparency, cropping and other effects were dropped.</source>
        <translation>Des ombres, de la transparence, du rognage et d’autres effets ont été supprimés.</translation>
    </message>
    <message>
        <source>The import has something to say about this label.</source>
        <translation>L’importation a quelque chose à dire sur cette étiquette.</translation>
    </message>
    <message>
        <source>Read it, and compare with the old label.</source>
        <translation>Lisez-le et comparez avec l’ancienne étiquette.</translation>
    </message>
    <message>
        <source>Shapes that have no counterpart became rectangles or ellipses.</source>
        <translation>Des formes sans équivalent sont devenues des rectangles ou des ellipses.</translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text: they show what they showed when the document was saved.</source>
        <translation>Des champs, comme la date, l’heure et le numéro de page, sont devenus du texte simple&#xa0;: ils montrent ce qu’ils montraient quand le document a été enregistré.</translation>
    </message>
    <message>
        <source>The page is measured in a unit that is not known: its numbers were read as inches.</source>
        <translation>La page est mesurée dans une unité inconnue&#xa0;: ses nombres ont été lus comme des pouces.</translation>
    </message>
    <message>
        <source>Save the document with centimetres or inches as its unit.</source>
        <translation>Enregistrez le document avec des centimètres ou des pouces comme unité.</translation>
    </message>
    <message>
        <source>The size of the page is not that of the file: it gives none, or that of another page came first.</source>
        <translation>La taille de la page n’est pas celle du fichier&#xa0;: il n’en indique pas, ou celle d’une autre page était la première.</translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in its corner.</source>
        <translation>Les marges de la page ont disparu : le texte commence dans le coin de la page.</translation>
    </message>
    <message>
        <source>Move the texts after the import.</source>
        <translation>Déplacez les textes après l’importation.</translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text runs down one page.</source>
        <translation>Les sauts de page ont disparu : tout le texte se suit sur une seule page.</translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The report %1 has an entry that describes no file.</source>
        <translation>Le rapport %1 a une entrée qui ne décrit aucun fichier.</translation>
    </message>
    <message>
        <source>The file %1 stands in the reports more than once.</source>
        <translation>Le fichier %1 figure plus d’une fois dans les rapports.</translation>
    </message>
    <message>
        <source>The report %1 has changed meanwhile.</source>
        <translation>Le rapport %1 a changé entre-temps.</translation>
    </message>
</context>
<context>
    <name>migration::ReportReader</name>
    <message>
        <source>The report %1 cannot be read: %2.</source>
        <translation>Le rapport %1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is no report of LabelPort: %2.</source>
        <translation>%1 n’est pas un rapport de LabelPort&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it does not begin as one</source>
        <translation>il ne commence pas comme un rapport</translation>
    </message>
    <message>
        <source>its list of files is damaged</source>
        <translation>sa liste de fichiers est endommagée</translation>
    </message>
    <message>
        <source>it has no list of files, or is of a version that is not known</source>
        <translation>il n’a pas de liste de fichiers, ou est d’une version inconnue</translation>
    </message>
    <message>
        <source>it does not name its format</source>
        <translation>il n’indique pas son format</translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>The report %1 cannot be written: %2.</source>
        <translation>Le rapport %1 ne peut pas être écrit&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>%1 objects came over; how many the file holds is not known.</source>
        <translation>%1 objets ont été repris&#xa0;; on ne sait pas combien le fichier en contient.</translation>
    </message>
    <message>
        <source>%1 of %2 objects came over.</source>
        <translation>%1 objets sur %2 ont été repris.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Non importé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was lost and nothing was changed.</source>
        <translation>Rien n’a été perdu et rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Nothing was lost; something was changed.</source>
        <translation>Rien n’a été perdu&#xa0;; quelque chose a été modifié.</translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>Usage: labelport-trace FILE (see labelport-trace --help)</source>
        <translation>Utilisation&#xa0;: labelport-trace FICHIER (voir labelport-trace --help)</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>%1 was not imported; the trace tells how far it came</source>
        <translation>%1 n’a pas été importé&#xa0;; la trace montre jusqu’où</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output</source>
        <translation>impossible d’écrire sur la sortie standard</translation>
    </message>
    <message>
        <source>cannot write the trace: %1</source>
        <translation>impossible d’écrire la trace&#xa0;: %1</translation>
    </message>
    <message>
        <source>Imports a legacy label into a host that records, and prints every call on it
as JSON Lines, then what has become of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
        <translation>Importe une ancienne étiquette dans un hôte qui enregistre et affiche chaque appel
en JSON Lines, puis ce que sont devenus les objets.

Code de sortie&#xa0;: 0 importé, 1 non importé, 2 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>The label to import.</source>
        <translation>L’étiquette à importer.</translation>
    </message>
    <message>
        <source>no file given</source>
        <translation>aucun fichier indiqué</translation>
    </message>
    <message>
        <source>one file at a time, please</source>
        <translation>un seul fichier à la fois, s’il vous plaît</translation>
    </message>
</context>
<context>
    <name>workbench::BarcodeEncoder</name>
    <message>
        <source>%1: the content has a length that this kind of barcode does not take%2.</source>
        <translation>%1&#xa0;: la longueur du contenu n’est pas admise par ce type de code-barres%2.</translation>
    </message>
    <message>
        <source>%1: the content does not suit this kind of barcode%2.</source>
        <translation>%1&#xa0;: le contenu ne convient pas à ce type de code-barres%2.</translation>
    </message>
    <message>
        <source>%1: the content ends in a wrong check digit%2.</source>
        <translation>%1&#xa0;: le contenu se termine par un chiffre de contrôle erroné%2.</translation>
    </message>
    <message>
        <source>%1: the content does not go together with the barcode&apos;s settings%2.</source>
        <translation>%1&#xa0;: le contenu est incompatible avec les réglages du code-barres%2.</translation>
    </message>
    <message>
        <source>%1: the content is too much for the memory%2.</source>
        <translation>%1&#xa0;: le contenu dépasse la mémoire disponible%2.</translation>
    </message>
    <message>
        <source>%1: the content cannot be encoded%2.</source>
        <translation>%1&#xa0;: le contenu ne peut pas être encodé%2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the barcode.</source>
        <translation>La mémoire ne suffit pas pour le code-barres.</translation>
    </message>
    <message>
        <source>%1: the content needs a linear part, a &quot;|&quot; and a second part.</source>
        <translation>%1&#xa0;: le contenu doit avoir une partie linéaire, un «&#xa0;|&#xa0;» et une seconde partie.</translation>
    </message>
    <message>
        <source>%1: the content is too long for any barcode.</source>
        <translation>%1&#xa0;: le contenu est trop long pour un code-barres.</translation>
    </message>
    <message>
        <source>%1: the content gives no bars at all.</source>
        <translation>%1&#xa0;: le contenu ne donne aucune barre.</translation>
    </message>
    <message>
        <source>The label asks for a kind of barcode that is not known (number %1).</source>
        <translation>L’étiquette demande un type de code-barres inconnu (numéro %1).</translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation>%1&#xa0;: il n’y a aucun contenu à encoder.</translation>
    </message>
</context>
<context>
    <name>workbench::FailureWords</name>
    <message>
        <source>The file is no binary label, or one of a version that cannot be read: it says version %1, but 2000016 is the oldest that can.</source>
        <translation>Le fichier n’est pas une étiquette binaire, ou il est d’une version illisible&#xa0;: il indique la version %1, mais 2000016 est la plus ancienne lisible.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The file is too large for a label: %1.</source>
        <translation>Le fichier est trop gros pour une étiquette&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The document is damaged: its part %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation>Le document est endommagé&#xa0;: sa partie %1 n’est pas bien formée à la ligne %2, colonne %3 (%4).</translation>
    </message>
    <message>
        <source>The file is no label or a damaged one: it is not well-formed XML at line %1, column %2 (%3).</source>
        <translation>Le fichier n’est pas une étiquette, ou il est endommagé&#xa0;: ce n’est pas du XML bien formé à la ligne %1, colonne %2 (%3).</translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its outermost element is not &quot;qmtx&quot;.</source>
        <translation>Le fichier est du XML, mais pas une étiquette&#xa0;: son élément racine n’est pas «&#xa0;qmtx&#xa0;».</translation>
    </message>
    <message>
        <source>The file is no label, or a damaged one: its first item is of an unknown kind (%1).</source>
        <translation>Le fichier n’est pas une étiquette, ou il est endommagé&#xa0;: son premier objet est d’un type inconnu (%1).</translation>
    </message>
    <message>
        <source>The file is no OpenDocument file, or a damaged one: it has no readable part styles.xml.</source>
        <translation>Le fichier n’est pas un fichier OpenDocument, ou il est endommagé&#xa0;: il n’a pas de partie styles.xml lisible.</translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: it has no readable part content.xml.</source>
        <translation>Le fichier OpenDocument est endommagé&#xa0;: il n’a pas de partie content.xml lisible.</translation>
    </message>
    <message>
        <source>The file holds nothing that can be put on a label.</source>
        <translation>Le fichier ne contient rien qui puisse être placé sur une étiquette.</translation>
    </message>
</context>
<context>
    <name>fields::FieldProblem</name>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 doit être %2</translation>
    </message>
    <message>
        <source>%1 is longer than %2</source>
        <translation>%1 est plus long que %2</translation>
    </message>
    <message>
        <source>a group of fields</source>
        <translation>un groupe de champs</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a whole number in range</source>
        <translation>un nombre entier dans l’intervalle permis</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a number or null</source>
        <translation>un nombre ou null</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>une liste de textes</translation>
    </message>
    <message>
        <source>a color</source>
        <translation>une couleur</translation>
    </message>
    <message>
        <source>a width and a height</source>
        <translation>une largeur et une hauteur</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>un point</translation>
    </message>
    <message>
        <source>data</source>
        <translation>des données</translation>
    </message>
    <message>
        <source>an alignment</source>
        <translation>un alignement</translation>
    </message>
    <message>
        <source>a known type of item</source>
        <translation>un type d’objet connu</translation>
    </message>
    <message>
        <source>a set of properties</source>
        <translation>un ensemble de propriétés</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>une image</translation>
    </message>
</context>
<context>
    <name>workbench::FileCheck</name>
    <message>
        <source>No file was named.</source>
        <translation>Aucun fichier n’a été indiqué.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>C’est un dossier, pas un fichier.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Le fichier ne peut pas être ouvert&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but by its name it is a binary label. If it is an OpenDocument file, rename it so that its only dot is that of &quot;.odt&quot; or &quot;.odg&quot;.</source>
        <translation>Le fichier est une archive zip, comme le sont les fichiers OpenDocument, mais d’après son nom c’est une étiquette binaire. Si c’est un fichier OpenDocument, renommez-le de sorte que son seul point soit celui de «&#xa0;.odt&#xa0;» ou «&#xa0;.odg&#xa0;».</translation>
    </message>
    <message>
        <source>The file is XML, but by its name it is a binary label. If it is an XML label, rename it so that its only dot is that of &quot;.qmtx&quot;.</source>
        <translation>Le fichier est du XML, mais d’après son nom c’est une étiquette binaire. Si c’est une étiquette XML, renommez-le de sorte que son seul point soit celui de «&#xa0;.qmtx&#xa0;».</translation>
    </message>
</context>
<context>
    <name>workbench::IssueWords</name>
    <message>
        <source>An object of the kind &quot;%1&quot; was left out: the kind is not known.</source>
        <translation>Un objet du type «&#xa0;%1&#xa0;» a été omis&#xa0;: ce type est inconnu.</translation>
    </message>
    <message>
        <source>Left out of the label: %1</source>
        <translation>Omis sur l’étiquette&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing: nothing was taken from it.</source>
        <translation>Le document n’est ni un texte ni un dessin&#xa0;: rien n’en a été repris.</translation>
    </message>
    <message>
        <source>The file goes on with a record of an unknown kind (%1): nothing was read from there on.</source>
        <translation>Le fichier continue par un bloc d’un type inconnu (%1)&#xa0;: rien n’a été lu à partir de là.</translation>
    </message>
</context>
<context>
    <name>workbench::LabelFile</name>
    <message>
        <source>The label cannot be saved as %1: %2.</source>
        <translation>L’étiquette ne peut pas être enregistrée sous %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened: %2.</source>
        <translation>Le fichier %1 ne peut pas être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it has more than %1 items</source>
        <translation>elle a plus de %1 objets</translation>
    </message>
    <message>
        <source>its pictures are too large</source>
        <translation>ses images sont trop grandes</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is larger than any label</source>
        <translation>il est plus gros que n’importe quelle étiquette</translation>
    </message>
    <message>
        <source>The label file is damaged: its data sources do not fit together.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: ses sources de données ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>The file is not a saved label.</source>
        <translation>Le fichier n’est pas une étiquette enregistrée.</translation>
    </message>
    <message>
        <source>The label file is damaged: version is not a positive whole number.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: version n’est pas un nombre entier positif.</translation>
    </message>
    <message>
        <source>The label was saved by a newer version of the program: its format is %1, and this version knows formats up to %2. Update the program to open it.</source>
        <translation>L’étiquette a été enregistrée par une version plus récente du programme&#xa0;: son format est %1, et cette version connaît les formats jusqu’à %2. Mettez le programme à jour pour l’ouvrir.</translation>
    </message>
    <message>
        <source>The label file is damaged: label is missing.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: label manque.</translation>
    </message>
    <message>
        <source>The label file is damaged: its content has changed since it was saved.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: son contenu a changé depuis son enregistrement.</translation>
    </message>
    <message>
        <source>The file is not a saved label, or it is damaged: after %1 bytes it cannot be read any further.</source>
        <translation>Le fichier n’est pas une étiquette enregistrée, ou il est endommagé&#xa0;: après %1 octets, il ne peut plus être lu.</translation>
    </message>
    <message>
        <source>The label file is damaged: %1.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The label file is damaged: it holds more than any label.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: il contient plus que n’importe quelle étiquette.</translation>
    </message>
    <message>
        <source>The label file is damaged: its pictures are too large.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: ses images sont trop grandes.</translation>
    </message>
</context>
<context>
    <name>workbench::LabelImport</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>La mémoire ne suffit pas pour ce fichier.</translation>
    </message>
</context>
<context>
    <name>workbench::PageExport</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The page is longer than %1 points, the most that a PDF document can have.</source>
        <translation>La page est plus longue que %1 points, le maximum d’un document PDF.</translation>
    </message>
</context>
<context>
    <name>workbench::PageImage</name>
    <message>
        <source>The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots per inch. The largest picture is %6 pixels along a side and %7 million in all.</source>
        <translation>La page mesure %1 sur %2 points, ce qui donne une image de %3 sur %4 pixels à %5 points par pouce. La plus grande image a %6 pixels de côté et %7 millions au total.</translation>
    </message>
    <message>
        <source> Up to %1 dots per inch are possible.</source>
        <translation> Il est possible d’aller jusqu’à %1 points par pouce.</translation>
    </message>
    <message>
        <source>The resolution must be above 0 dots per inch.</source>
        <translation>La résolution doit être supérieure à 0 point par pouce.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 by %2 pixels.</source>
        <translation>La mémoire ne suffit pas pour une image de %1 sur %2 pixels.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it has no table of symbols</source>
        <translation>elle n’a pas de table de symboles</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>elle ne peut pas être lue</translation>
    </message>
</context>
<context>
    <name>workbench::Symbologies</name>
    <message>
        <source>barcode kind %1</source>
        <translation>type de code-barres %1</translation>
    </message>
    <message>
        <source>EAN with check digit</source>
        <translation>EAN avec chiffre de contrôle</translation>
    </message>
    <message>
        <source>UPC-A with check digit</source>
        <translation>UPC-A avec chiffre de contrôle</translation>
    </message>
    <message>
        <source>UPC-E with check digit</source>
        <translation>UPC-E avec chiffre de contrôle</translation>
    </message>
</context>
</TS>
