<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QDomParser</name>
    <message>
        <source>Unexpected token</source>
        <translation>Élément inattendu</translation>
    </message>
    <message>
        <source>Multiple DTD sections are not allowed</source>
        <translation>Plusieurs sections DTD ne sont pas autorisées</translation>
    </message>
</context>
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
    <name>archive::Journal</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>archive::PreparedList</name>
    <message>
        <source>it was written by another version of labelport</source>
        <translation>il a été écrit par une autre version de labelport</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>il est endommagé ou incomplet</translation>
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
        <translation>reste %1</translation>
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
        <source>a folder of that name exists</source>
        <translation>un dossier de ce nom existe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and it was not written by labelport or has been edited since. Use --force to overwrite it.</source>
        <translation>«&#xa0;%1&#xa0;» existe et n’a pas été écrit par labelport ou a été modifié depuis. Utilisez --force pour le remplacer.</translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>archive::Run</name>
    <message>
        <source>Another input has the same name; both would become &quot;%1&quot;. Keep their subfolders with --base, or use different --output-dir folders.</source>
        <translation>Un autre fichier d’entrée porte le même nom&#xa0;; les deux deviendraient «&#xa0;%1&#xa0;». Conservez leurs sous-dossiers avec --base ou utilisez des dossiers --output-dir différents.</translation>
    </message>
    <message>
        <source>Cannot write the journal in the output folder; --resume will import some files again.</source>
        <translation>Impossible d’écrire le journal dans le dossier de sortie&#xa0;; --resume importera de nouveau certains fichiers.</translation>
    </message>
    <message>
        <source>Cannot start the worker processes, or they exit at once. Try a larger --memory-limit.</source>
        <translation>Impossible de démarrer les processus de travail, ou ils se terminent aussitôt. Essayez une valeur --memory-limit plus élevée.</translation>
    </message>
</context>
<context>
    <name>archive::StagingArea</name>
    <message>
        <source>Cannot write to &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>a file of that name exists</source>
        <translation>un fichier de ce nom existe</translation>
    </message>
</context>
<context>
    <name>archive::WorkerEnd</name>
    <message>
        <source>The file needs more than %1 MiB of memory; see --memory-limit.</source>
        <translation>Le fichier nécessite plus de %1 Mio de mémoire&#xa0;; voir --memory-limit.</translation>
    </message>
    <message numerus="yes">
        <source>The file made no progress for %n second(s); see --timeout.</source>
        <translation>
            <numerusform>L’importation du fichier n’a pas progressé pendant %n seconde&#xa0;; voir --timeout.</numerusform>
            <numerusform>L’importation du fichier n’a pas progressé pendant %n secondes&#xa0;; voir --timeout.</numerusform>
        </translation>
    </message>
    <message>
        <source>The worker process was killed twice; perhaps the machine is out of memory.</source>
        <translation>Le processus de travail a été tué deux fois&#xa0;; la machine manque peut-être de mémoire.</translation>
    </message>
    <message>
        <source>The import crashed twice (%1). If a larger --memory-limit does not help, please report the file.</source>
        <translation>L’importation a planté deux fois (%1). Si une valeur --memory-limit plus élevée n’y change rien, signalez le fichier.</translation>
    </message>
    <message>
        <source>The worker process sent an invalid reply twice; please report the file.</source>
        <translation>Le processus de travail a envoyé deux fois une réponse non valide&#xa0;; signalez le fichier.</translation>
    </message>
    <message>
        <source>The worker process exited twice with status %1; please report the file.</source>
        <translation>Le processus de travail s’est terminé deux fois avec le code %1&#xa0;; signalez le fichier.</translation>
    </message>
    <message>
        <source>The import was stopped twice because it tried something that its sandbox forbids. Do not trust the file, and please report it.</source>
        <translation>L’importation a été arrêtée deux fois parce qu’elle a tenté une action que son bac à sable interdit. Ne faites pas confiance au fichier et signalez le problème.</translation>
    </message>
</context>
<context>
    <name>cli::ExistingOutput</name>
    <message>
        <source>A report is a file that ends in .json or .html, not &quot;%1&quot;.</source>
        <translation>Un rapport est un fichier qui se termine par .json ou .html&#xa0;; «&#xa0;%1&#xa0;» n’est pas valide.</translation>
    </message>
    <message>
        <source>The name of a report must be valid UTF-8: &quot;%1&quot;.</source>
        <translation>Le nom d’un rapport doit être en UTF-8 valide&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; does not exist</source>
        <translation>le dossier «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; is not writable</source>
        <translation>le dossier «&#xa0;%1&#xa0;» n’est pas accessible en écriture</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists and is not a report of labelport. Use --force to overwrite it.</source>
        <translation>«&#xa0;%1&#xa0;» existe et n’est pas un rapport de labelport. Utilisez --force pour le remplacer.</translation>
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
        <source>labels saved by LabelPort</source>
        <translation>étiquettes enregistrées par LabelPort</translation>
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
        <source>all versions (zipped)</source>
        <translation>toutes (compressées en zip)</translation>
    </message>
    <message>
        <source>formats takes no files.</source>
        <translation>formats n’accepte pas de fichiers.</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 et 2</translation>
    </message>
    <message>
        <source>%1 × %2 labels of %3 × %4 mm</source>
        <translation>%1 × %2 étiquettes de %3 × %4 mm</translation>
    </message>
    <message>
        <source>Sheets (--sheet):</source>
        <translation>Planches (--sheet)&#xa0;:</translation>
    </message>
    <message>
        <source>plain paper, with as many labels as fit</source>
        <translation>papier, avec autant d’étiquettes que possible</translation>
    </message>
    <message>
        <source>Sandbox in which files are read, on this system: %1.</source>
        <translation>Bac à sable dans lequel les fichiers sont lus, sur ce système&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>cli::ImportCommand</name>
    <message>
        <source>Stopped. Repeat the command with --resume to continue.</source>
        <translation>Arrêté. Répétez la commande avec --resume pour continuer.</translation>
    </message>
    <message>
        <source>No labels to import.</source>
        <translation>Aucune étiquette à importer.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Impossible de créer un dossier temporaire&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>cli::ImportInputs</name>
    <message>
        <source>Cannot read the list of files &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire la liste de fichiers «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list of file names.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une liste de noms de fichiers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;: it excludes other files, --base, --shard and --null.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit par «&#xa0;labelport list&#xa0;»&#xa0;: il exclut d’autres fichiers, --base, --shard et --null.</translation>
    </message>
    <message>
        <source>Cannot search folder &quot;%1&quot;: %2.</source>
        <translation>Impossible de parcourir le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>cli::ImportOptions</name>
    <message>
        <source>Standard input can be a label or a list of files, but not both.</source>
        <translation>L’entrée standard peut être une étiquette ou une liste de fichiers, mais pas les deux.</translation>
    </message>
    <message>
        <source>--%1 expects a whole number from %2 to %3, not &quot;%4&quot;.</source>
        <translation>--%1 attend un nombre entier de %2 à %3, et non «&#xa0;%4&#xa0;».</translation>
    </message>
    <message>
        <source>Unknown target &quot;%1&quot;. Supported targets: %2.</source>
        <translation>Cible «&#xa0;%1&#xa0;» inconnue. Cibles prises en charge&#xa0;: %2.</translation>
    </message>
    <message>
        <source>--records expects a number, a range such as 3-12 or 3-, or all, not &quot;%1&quot;.</source>
        <translation>--records attend un nombre, une plage comme 3-12 ou 3-, ou all, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--shard expects the number of a part and of all parts, such as 3/8, not &quot;%1&quot;.</source>
        <translation>--shard attend le numéro d’une partie et le nombre de parties, comme 3/8, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--memory-limit expects 0 or at least %1 MiB.</source>
        <translation>--memory-limit attend 0 ou au moins %1 Mio.</translation>
    </message>
    <message>
        <source>No file to import.</source>
        <translation>Aucun fichier à importer.</translation>
    </message>
    <message>
        <source>--files-from can be given only once.</source>
        <translation>--files-from ne peut être indiqué qu’une fois.</translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation>--null est sans effet sans --files-from.</translation>
    </message>
    <message>
        <source>--base has no effect without --files-from or a named file in a subfolder of that folder.</source>
        <translation>--base est sans effet sans --files-from ou un fichier indiqué dans un sous-dossier de ce dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends in none of the targets&apos; suffixes; specify one with --to: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a le suffixe d’aucun format&#xa0;; précisez-en un avec --to&#xa0;: %2.</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>between the last two targets: &quot;pdf or zpl&quot;</extracomment>
        <translation> ou </translation>
    </message>
    <message>
        <source>--%1 expects one of %2 for the target %3, not &quot;%4&quot;.</source>
        <translation>--%1 attend une des valeurs %2 pour le format %3, et non «&#xa0;%4&#xa0;».</translation>
    </message>
    <message>
        <source>--%1 has no effect without --to %2.</source>
        <translation>--%1 n’a pas d’effet sans --to %2.</translation>
    </message>
    <message>
        <source>--output and --%1 exclude each other.</source>
        <translation>--output et --%1 s’excluent.</translation>
    </message>
    <message>
        <source>--output needs a file name, one input file and one target.</source>
        <translation>--output exige un nom de fichier, un seul fichier d’entrée et un seul format.</translation>
    </message>
    <message>
        <source>--json and --print0 exclude each other.</source>
        <translation>--json et --print0 s’excluent.</translation>
    </message>
    <message>
        <source>Unknown sheet &quot;%1&quot;. &quot;labelport formats&quot; lists the sheets.</source>
        <translation>Planche inconnue «&#xa0;%1&#xa0;». «&#xa0;labelport formats&#xa0;» liste les planches.</translation>
    </message>
    <message>
        <source>--%1 has no effect without --sheet.</source>
        <translation>--%1 n’a pas d’effet sans --sheet.</translation>
    </message>
    <message>
        <source>--output - cannot be used with --to glabels, which may write a second file.</source>
        <translation>--output - est impossible avec --to glabels, qui peut écrire un second fichier.</translation>
    </message>
    <message>
        <source>--%1 and --output - both write to standard output. Use only one of them.</source>
        <translation>--%1 et --output - écrivent tous deux sur la sortie standard. N’utilisez que l’un des deux.</translation>
    </message>
</context>
<context>
    <name>cli::ImportReporter</name>
    <message>
        <source>Warning: %1</source>
        <translation>Avertissement&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) imported.</source>
        <translation>
            <numerusform>%n fichier importé.</numerusform>
            <numerusform>%n fichiers importés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) had been imported before.</source>
        <translation>
            <numerusform>%n fichier déjà importé auparavant.</numerusform>
            <numerusform>%n fichiers déjà importés auparavant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Ignored %n other file(s).</source>
        <translation>
            <numerusform>%n autre fichier ignoré.</numerusform>
            <numerusform>%n autres fichiers ignorés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) failed.</source>
        <translation>
            <numerusform>%n fichier en échec.</numerusform>
            <numerusform>%n fichiers en échec.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::ImportWorker</name>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 fois)</translation>
    </message>
    <message>
        <source>Page %1 could not be imported.</source>
        <translation>La page %1 n’a pas pu être importée.</translation>
    </message>
    <message>
        <source>This system has no complete sandbox, which --require-sandbox demands. It has: %1.</source>
        <translation>Ce système n’a pas de bac à sable complet, comme l’exige --require-sandbox. Disponible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Only the first %1 pages were imported; the document has more.</source>
        <translation>Seules les %1 premières pages ont été importées&#xa0;; le document en a davantage.</translation>
    </message>
</context>
<context>
    <name>cli::InspectCommand</name>
    <message>
        <source>Cannot start the worker process.</source>
        <translation>Impossible de démarrer le processus de travail.</translation>
    </message>
    <message>
        <source>inspect needs exactly one file.</source>
        <translation>inspect attend exactement un fichier.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Impossible de créer un dossier temporaire&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>cli::JobOptions</name>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
        <translation>Lecteur «&#xa0;%1&#xa0;» inconnu. Lecteurs pris en charge&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>cli::LabelWriter</name>
    <message numerus="yes">
        <source>The label has only %n record(s); record %1 does not exist.</source>
        <translation>
            <numerusform>L’étiquette n’a que %n enregistrement&#xa0;; l’enregistrement %1 n’existe pas.</numerusform>
            <numerusform>L’étiquette n’a que %n enregistrements&#xa0;; l’enregistrement %1 n’existe pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 records are more than the %2 that one command writes; select a range with --records.</source>
        <translation>%1 enregistrements dépassent le maximum de %2 par commande&#xa0;; choisissez une plage avec --records.</translation>
    </message>
</context>
<context>
    <name>cli::ListCommand</name>
    <message>
        <source>Cannot create folder &quot;%1&quot;: %2.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists, and is not a list of labelport.</source>
        <translation>«&#xa0;%1&#xa0;» existe et n’est pas une liste de labelport.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No file to list.</source>
        <translation>Aucun fichier à lister.</translation>
    </message>
    <message>
        <source>Specify the folder of the lists with --to.</source>
        <translation>Indiquez le dossier des listes avec --to.</translation>
    </message>
    <message>
        <source>A label from standard input cannot be listed.</source>
        <translation>Une étiquette de l’entrée standard ne peut pas être listée.</translation>
    </message>
    <message>
        <source>--null has no effect without --files-from.</source>
        <translation>--null est sans effet sans --files-from.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written by &quot;labelport list&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» a été écrit par «&#xa0;labelport list&#xa0;».</translation>
    </message>
    <message>
        <source>No labels to list.</source>
        <translation>Aucune étiquette à lister.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) listed.</source>
        <translation>
            <numerusform>%n fichier listé.</numerusform>
            <numerusform>%n fichiers listés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli::LossSummary</name>
    <message>
        <source>Labels imported completely: %1, with changes: %2, with losses: %3, failed: %4.</source>
        <translation>Étiquettes importées complètement&#xa0;: %1, avec modifications&#xa0;: %2, avec pertes&#xa0;: %3, échecs&#xa0;: %4.</translation>
    </message>
    <message>
        <source>All details: %1</source>
        <translation>Tous les détails&#xa0;: %1</translation>
    </message>
    <message>
        <source>All details: add --report report.html, or run labelport inspect on a file.</source>
        <translation>Tous les détails&#xa0;: ajoutez --report report.html, ou lancez labelport inspect sur un fichier.</translation>
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
        <translation>Utilisation&#xa0;: labelport COMMANDE [ARGUMENT...]

Importe d’anciens modèles d’étiquettes (*.cnv et *.roc, *.qmtx, *.odt et *.odg) et ouvre les
étiquettes enregistrées par LabelPort (*.label). Aide d’une commande&#xa0;: labelport COMMANDE --help

Commandes&#xa0;:
</translation>
    </message>
    <message>
        <source>No command given. See &quot;labelport --help&quot;.</source>
        <translation>Aucune commande indiquée. Voir «&#xa0;labelport --help&#xa0;».</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Commande «&#xa0;%1&#xa0;» inconnue.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Aide&#xa0;: %1</translation>
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
  --help           afficher cette aide
  --version        afficher la version

Exemples&#xa0;:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport print asset.label --printer zebra --records 1-40
  labelport inspect shelf.odg
  labelport records asset.qmtx --to records.csv
  labelport trace shelf.odg

Code de retour&#xa0;: 0 succès, 1 échec d’un fichier, 2 utilisation incorrecte, 3 étiquette importée
incomplètement (import --fail-on-loss), 130 arrêt par un signal.
</translation>
    </message>
</context>
<context>
    <name>cli::Options</name>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Abort a file after this many seconds without progress; 0 for no limit (default: 60).</source>
        <translation>Abandonner un fichier après ce nombre de secondes sans progression&#xa0;; 0 pour aucune limite (par défaut&#xa0;: 60).</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>Mio</translation>
    </message>
    <message>
        <source>Abort a file that uses more memory than this; 0 for no limit (default: 4096).</source>
        <translation>Abandonner un fichier qui utilise plus de mémoire que cette valeur&#xa0;; 0 pour aucune limite (par défaut&#xa0;: 4096).</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Read files as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument (*.odt, *.odg), whatever their names. Default: by the suffix, or else by the content.</source>
        <translation>Lire les fichiers comme tavrel (*.cnv, *.roc), orvanta (*.qmtx) ou opendocument (*.odt, *.odg), quel que soit leur nom. Par défaut&#xa0;: d’après le suffixe, sinon d’après le contenu.</translation>
    </message>
    <message>
        <source>targets</source>
        <translation>cibles</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Folder to write to; created if missing (default: the current folder). Subfolders of an imported folder are kept.</source>
        <translation>Dossier de sortie&#xa0;; créé s’il n’existe pas (par défaut&#xa0;: le dossier actuel). Les sous-dossiers d’un dossier importé sont conservés.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>range</source>
        <translation>plage</translation>
    </message>
    <message>
        <source>Overwrite files that labelport did not write, and edited labels.</source>
        <translation>Remplacer les fichiers que labelport n’a pas écrits et les étiquettes modifiées.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>liste</translation>
    </message>
    <message>
        <source>Names in the list are separated by NUL, as find -print0 writes them.</source>
        <translation>Les noms de la liste sont séparés par NUL, comme les écrit find -print0.</translation>
    </message>
    <message>
        <source>Named and listed files below this folder keep their subfolders in the output folder.</source>
        <translation>Les fichiers indiqués ou listés sous ce dossier conservent leurs sous-dossiers dans le dossier de sortie.</translation>
    </message>
    <message>
        <source>Files to import at the same time (default: one for each processor core).</source>
        <translation>Nombre de fichiers à importer en même temps (par défaut&#xa0;: un par cœur de processeur).</translation>
    </message>
    <message>
        <source>Skip files that an earlier command with the same options imported, if they and their outputs are unchanged.</source>
        <translation>Ignorer les fichiers déjà importés par une commande précédente avec les mêmes options, si ces fichiers et leurs sorties sont inchangés.</translation>
    </message>
    <message>
        <source>K/N</source>
        <translation>K/N</translation>
    </message>
    <message>
        <source>Import the K-th of N parts of the files, to share an archive among N machines.</source>
        <translation>Importer la K-ième de N parties des fichiers, pour répartir une archive sur N machines.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Write a report on all files, as .json or .html; may be given several times.</source>
        <translation>Écrire un rapport sur tous les fichiers, en .json ou .html&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>Exit with status 3 if a label was not imported completely.</source>
        <translation>Terminer avec le code 3 si une étiquette n’a pas été importée complètement.</translation>
    </message>
    <message>
        <source>End each file name on standard output with NUL instead of a line break.</source>
        <translation>Terminer chaque nom de fichier sur la sortie standard par NUL au lieu d’un saut de ligne.</translation>
    </message>
    <message>
        <source>Report only errors on standard error.</source>
        <translation>N’afficher que les erreurs sur la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>Print JSON, as in reports.</source>
        <translation>Afficher du JSON, comme dans les rapports.</translation>
    </message>
    <message>
        <source>Report to write, as .json or .html; may be given several times.</source>
        <translation>Rapport à écrire, en .json ou .html&#xa0;; peut être indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>Overwrite files that are not reports of labelport.</source>
        <translation>Remplacer les fichiers qui ne sont pas des rapports de labelport.</translation>
    </message>
    <message>
        <source>Print JSON.</source>
        <translation>Afficher du JSON.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Shows what one label contains, and what of it is imported. Writes no files.

Examples:
  labelport inspect shelf.odg
  labelport inspect - --reader orvanta &lt; shelf.xml
  labelport inspect shelf.odg --json | jq .lost</source>
        <translation>Affiche le contenu d’une étiquette et ce qui en est importé. N’écrit aucun fichier.

Exemples&#xa0;:
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
        <translation>Fusionne les rapports JSON de plusieurs importations en un rapport identique à celui d’une
seule importation de tous les fichiers.

Exemples&#xa0;:
  labelport report merge part-1.json part-2.json --to all.html
  labelport report merge part-*.json --to all.json --to all.html</translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.</source>
        <translation>Importe une ancienne étiquette dans un hôte d’enregistrement et affiche chaque appel à l’hôte
en JSON Lines, puis l’état final des objets.</translation>
    </message>
    <message>
        <source>import labels, or folders of labels</source>
        <translation>importer des étiquettes ou des dossiers d’étiquettes</translation>
    </message>
    <message>
        <source>Label or folder of labels to import; - is standard input.</source>
        <translation>Étiquette ou dossier d’étiquettes à importer&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>show what a label contains</source>
        <translation>afficher le contenu d’une étiquette</translation>
    </message>
    <message>
        <source>Label to inspect; - is standard input.</source>
        <translation>Étiquette à inspecter&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>merge the reports of several imports</source>
        <translation>fusionner les rapports de plusieurs importations</translation>
    </message>
    <message>
        <source>JSON reports to merge.</source>
        <translation>Rapports JSON à fusionner.</translation>
    </message>
    <message>
        <source>list supported formats</source>
        <translation>lister les formats pris en charge</translation>
    </message>
    <message>
        <source>print every call that an import makes on its host</source>
        <translation>afficher chaque appel d’une importation à son hôte</translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation>Étiquette à importer&#xa0;; - est l’entrée standard.</translation>
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
        <translation>Importe d’anciennes étiquettes (*.cnv, *.roc, *.qmtx, *.odt, *.odg), ouvre des étiquettes
enregistrées (*.label) et les écrit en images, dessins, documents ou étiquettes. Les fichiers
portant ces suffixes sont cherchés dans les dossiers et leurs sous-dossiers. Les fichiers
écrits sont listés sur la sortie standard, dans l’ordre des noms des fichiers d’entrée.

Exemples&#xa0;:
  labelport import shelf.odg
  labelport import shelf.odg -o label.svg
  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new
  labelport import asset.label --to pdf --records all
  labelport import asset.label --to pdf --records 1-40 --sheet L7160 --first-position 5
  labelport import archive --output-dir new --to label --report report.html
  labelport import archive --output-dir new --to label --resume
  find archive -name &apos;*.odg&apos; -print0 | labelport import --files-from - --base archive
  curl -s https://labels.example/shelf.odg | labelport import -

Code de retour&#xa0;: 0 tous les fichiers importés, 1 échec d’un fichier, 2 utilisation incorrecte,
3 étiquette importée incomplètement (avec --fail-on-loss), 130 arrêt par un signal.</translation>
    </message>
    <message>
        <source>Prints labels through CUPS, each on paper of its own size, or on sheets. All labels of the
same paper are one job of the printer. If a label cannot be printed, nothing is. The
identifiers of the jobs are listed on standard output.

Examples:
  labelport print asset.label --printer zebra --records 1-40 --copies 2
  labelport print new/*.label --sheet L7160 --first-position 5

Exit status: 0 printed, 1 a label or the printer failed, 2 wrong usage.</source>
        <translation>Imprime des étiquettes par CUPS, chacune sur du papier à sa taille, ou sur des planches. Toutes
les étiquettes d’un même papier forment une seule tâche. Si une étiquette ne peut pas être
imprimée, rien ne l’est. Les identifiants des tâches sont listés sur la sortie standard.

Exemples&#xa0;:
  labelport print asset.label --printer zebra --records 1-40 --copies 2
  labelport print new/*.label --sheet L7160 --first-position 5

Code de retour&#xa0;: 0 imprimé, 1 échec d’une étiquette ou de l’imprimante, 2 utilisation incorrecte.</translation>
    </message>
    <message>
        <source>Lists what each item shows that is bound to a data source (a counter, a list, a date), as
a CSV table: a line for each record, a column for each item.

Examples:
  labelport records asset.qmtx --to records.csv
  labelport records asset.label --records 1-50 | column -t -s ,</source>
        <translation>Liste ce qu’affiche chaque objet lié à une source de données (compteur, liste, date), en table
CSV : une ligne par enregistrement, une colonne par objet.

Exemples&#xa0;:
  labelport records asset.qmtx --to records.csv
  labelport records asset.label --records 1-50 | column -t -s ,</translation>
    </message>
    <message>
        <source>Lists the formats that labelport reads, with their versions, the formats that it writes, and the
sheets for --sheet.

Examples:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</source>
        <translation>Liste les formats que labelport lit, avec leurs versions, les formats qu’il écrit et les planches
pour --sheet.

Exemples&#xa0;:
  labelport formats
  labelport formats --json | jq -r &apos;.readers[].suffixes[]&apos;</translation>
    </message>
    <message>
        <source>Import nothing unless the files are read in a complete sandbox; see &quot;labelport formats&quot;.</source>
        <translation>N’importer que si les fichiers sont lus dans un bac à sable complet&#xa0;; voir «&#xa0;labelport formats&#xa0;».</translation>
    </message>
    <message>
        <source>Put the labels on sheets: L7160, 5160 and others, or A4, Letter and other plain paper; see labelport formats. Default: paper of the label&apos;s size.</source>
        <translation>Placer les étiquettes sur des planches&#xa0;: L7160, 5160 et autres, ou du papier A4, Letter et autres&#xa0;; voir labelport formats. Par défaut&#xa0;: papier à la taille de l’étiquette.</translation>
    </message>
    <message>
        <source>First free label of the first sheet, counted from 1 along the rows (default: 1).</source>
        <translation>Première étiquette libre de la première planche, comptée à partir de 1 le long des lignes (par défaut&#xa0;: 1).</translation>
    </message>
    <message>
        <source>Copies of each record, one after the other, in documents, printer files and prints (default: 1).</source>
        <translation>Exemplaires de chaque enregistrement, l’un après l’autre, dans les documents, fichiers d’imprimante et impressions (par défaut&#xa0;: 1).</translation>
    </message>
    <message>
        <source>Print marks on the edges of sheets that show where to cut.</source>
        <translation>Imprimer des traits de coupe sur les bords des planches.</translation>
    </message>
    <message>
        <source>Import OpenDocument files without repairing them first.</source>
        <translation>Importer les fichiers OpenDocument sans les réparer d’abord.</translation>
    </message>
    <message>
        <source>File to write the only input to; - is standard output. Without --to, its suffix selects the target.</source>
        <translation>Fichier dans lequel écrire l’unique entrée&#xa0;; - est la sortie standard. Sans --to, son suffixe choisit le format.</translation>
    </message>
    <message>
        <source>Resolution of pictures in dots per inch, 10 to 2400; of a label printer 203, 300 or 600 (default: 300).</source>
        <translation>Résolution des images en points par pouce, de 10 à 2400&#xa0;; d’une imprimante d’étiquettes 203, 300 ou 600 (par défaut&#xa0;: 300).</translation>
    </message>
    <message>
        <source>Records of the label&apos;s data sources: a number, a range such as 3-12 or 3-, or all (default: the first). Pictures of a range are numbered; a PDF has one page and a printer file one label for each record.</source>
        <translation>Enregistrements des sources de données de l’étiquette&#xa0;: un nombre, une plage comme 3-12 ou 3-, ou all (par défaut&#xa0;: le premier). Les images d’une plage sont numérotées&#xa0;; un PDF a une page et un fichier d’imprimante une étiquette par enregistrement.</translation>
    </message>
    <message>
        <source>Let the label printer draw barcodes and lines where it can, and advance counters. Otherwise labels are pictures and exact.</source>
        <translation>Laisser l’imprimante dessiner les codes-barres et les lignes si possible, et faire avancer les compteurs. Sinon, les étiquettes sont des images exactes.</translation>
    </message>
    <message>
        <source>Print an event in JSON for each file, instead of the names of the files written.</source>
        <translation>Écrire un événement JSON par fichier, au lieu des noms des fichiers écrits.</translation>
    </message>
    <message>
        <source>Printer to use; lpstat -e lists all (default: the default printer).</source>
        <translation>Imprimante à utiliser&#xa0;; lpstat -e les liste toutes (par défaut&#xa0;: l’imprimante par défaut).</translation>
    </message>
    <message>
        <source>Records of the labels&apos; data sources: a number, a range such as 3-12 or 3-, or all (default: the first).</source>
        <translation>Enregistrements des sources de données des étiquettes&#xa0;: un nombre, une plage comme 3-12 ou 3-, ou all (par défaut&#xa0;: le premier).</translation>
    </message>
    <message>
        <source>CSV file to write; - is standard output (default: -).</source>
        <translation>Fichier CSV à écrire&#xa0;; - est la sortie standard (par défaut&#xa0;: -).</translation>
    </message>
    <message>
        <source>Records to list: a number, a range such as 3-12 or 3-, or all (default: all).</source>
        <translation>Enregistrements à lister&#xa0;: un nombre, une plage comme 3-12 ou 3-, ou all (par défaut&#xa0;: all).</translation>
    </message>
    <message>
        <source>Overwrite an existing file.</source>
        <translation>Remplacer un fichier existant.</translation>
    </message>
    <message>
        <source>print labels</source>
        <translation>imprimer des étiquettes</translation>
    </message>
    <message>
        <source>Label to print; - is standard input.</source>
        <translation>Étiquette à imprimer&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>list what bound items show</source>
        <translation>lister ce qu’affichent les objets liés</translation>
    </message>
    <message>
        <source>Label to read; - is standard input.</source>
        <translation>Étiquette à lire&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>What to write: png, svg, pdf, zpl, csv, label, glabels; several with commas (default: png).</source>
        <translation>Ce qu’il faut écrire&#xa0;: png, svg, pdf, zpl, csv, label, glabels&#xa0;; plusieurs séparés par des virgules (par défaut&#xa0;: png).</translation>
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
        <translation>Liste une fois les étiquettes d’une grande archive, en plusieurs listes que des machines importent
séparément&#xa0;: «&#xa0;labelport import --files-from LISTE&#xa0;» ne lit ni les dossiers de l’archive ni les
autres listes. Les noms des sorties valent pour toute l’archive. Les listes s’appellent 1.jsonl,
2.jsonl, etc.&#xa0;; leurs noms sont listés sur la sortie standard.

Exemples&#xa0;:
  labelport list archive --shards 100 --to lists
  labelport import --files-from lists/17.jsonl --to label --output-dir new --resume

Code de retour&#xa0;: 0 succès, 1 échec d’un dossier ou d’une liste, 2 utilisation incorrecte.</translation>
    </message>
    <message>
        <source>Also take the files named in this list, one name on each line or separated by NUL; - is standard input.</source>
        <translation>Prendre aussi les fichiers de cette liste, un nom par ligne ou séparés par NUL&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>Folder to write the lists to; created if missing. Lists of an earlier command are replaced.</source>
        <translation>Dossier des listes&#xa0;; créé s’il manque. Les listes d’une commande précédente sont remplacées.</translation>
    </message>
    <message>
        <source>Number of lists, up to 100000 (default: 1).</source>
        <translation>Nombre de listes, jusqu’à 100000 (par défaut&#xa0;: 1).</translation>
    </message>
    <message>
        <source>Folder that the labels will be imported to, if it is in the archive: it is not searched.</source>
        <translation>Dossier où les étiquettes seront importées, s’il est dans l’archive&#xa0;: il n’est pas parcouru.</translation>
    </message>
    <message>
        <source>list the labels of an archive for several machines</source>
        <translation>lister les étiquettes d’une archive pour plusieurs machines</translation>
    </message>
    <message>
        <source>Label or folder of labels to list.</source>
        <translation>Étiquette ou dossier d’étiquettes à lister.</translation>
    </message>
</context>
<context>
    <name>cli::PrintCommand</name>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Impossible de créer un dossier temporaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Cannot print: %1</source>
        <translation>Impossible d’imprimer&#xa0;: %1</translation>
    </message>
    <message>
        <source>No file to print.</source>
        <translation>Aucun fichier à imprimer.</translation>
    </message>
    <message>
        <source>Standard input can be given only once.</source>
        <translation>L’entrée standard ne peut être indiquée qu’une fois.</translation>
    </message>
</context>
<context>
    <name>cli::RecordsCommand</name>
    <message>
        <source>records needs exactly one file.</source>
        <translation>records exige exactement un fichier.</translation>
    </message>
    <message>
        <source>--to needs a file name.</source>
        <translation>--to exige un nom de fichier.</translation>
    </message>
</context>
<context>
    <name>cli::ReportCommand</name>
    <message>
        <source>No command given: labelport report merge REPORT.json... --to FILE</source>
        <translation>Aucune commande indiquée&#xa0;: labelport report merge RAPPORT.json... --to FICHIER</translation>
    </message>
    <message>
        <source>Unknown command &quot;report %1&quot;.</source>
        <translation>Commande «&#xa0;report %1&#xa0;» inconnue.</translation>
    </message>
    <message>
        <source>Specify the reports to merge, and the output file with --to.</source>
        <translation>Indiquez les rapports à fusionner et le fichier de sortie avec --to.</translation>
    </message>
</context>
<context>
    <name>cli::TraceCommand</name>
    <message>
        <source>Cannot run &quot;%1&quot;: %2.</source>
        <translation>Impossible d’exécuter «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>console::CommandLine</name>
    <message>
        <source>Unknown option &quot;%1&quot;.</source>
        <translation>Option «&#xa0;%1&#xa0;» inconnue.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Help: %1 --help</source>
        <translation>Aide&#xa0;: %1 --help</translation>
    </message>
    <message>
        <source>Did you mean &quot;%1&quot;?</source>
        <translation>Vouliez-vous dire «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>console::Output</name>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Impossible d’écrire sur la sortie standard&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>console::StandardInput</name>
    <message>
        <source>Cannot copy standard input to a temporary file: %1.</source>
        <translation>Impossible de copier l’entrée standard dans un fichier temporaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Cannot read standard input: %1.</source>
        <translation>Impossible de lire l’entrée standard&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Standard input is longer than any label.</source>
        <translation>L’entrée standard est trop longue pour une étiquette.</translation>
    </message>
</context>
<context>
    <name>exporting::ExportFile</name>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>exporting::ExportFindings</name>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation>%1&#xa0;: exact</translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation>%1&#xa0;: devenu une image. %2</translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation>%1&#xa0;: simplifié. %2</translation>
    </message>
</context>
<context>
    <name>exporting::Glabels</name>
    <message>
        <source>Only the first records are in the CSV file.</source>
        <translation>Seuls les premiers enregistrements sont dans le fichier CSV.</translation>
    </message>
    <message>
        <source>gLabels has no such shape.</source>
        <translation>gLabels n’a pas cette forme.</translation>
    </message>
    <message>
        <source>gLabels has no gradients and no hatches.</source>
        <translation>gLabels n’a ni dégradés ni hachures.</translation>
    </message>
    <message>
        <source>gLabels has no dashed lines.</source>
        <translation>gLabels n’a pas de lignes en tirets.</translation>
    </message>
    <message>
        <source>gLabels has no round or beveled corners.</source>
        <translation>gLabels n’a pas de coins arrondis ou biseautés.</translation>
    </message>
    <message>
        <source>gLabels has no arrows.</source>
        <translation>gLabels n’a pas de flèches.</translation>
    </message>
    <message>
        <source>gLabels has no round line ends.</source>
        <translation>gLabels n’a pas d’extrémités de ligne arrondies.</translation>
    </message>
    <message>
        <source>A large picture was scaled down.</source>
        <translation>Une grande image a été réduite.</translation>
    </message>
    <message>
        <source>gLabels has no such text format.</source>
        <translation>gLabels n’a pas ce format de texte.</translation>
    </message>
    <message>
        <source>The content cannot be encoded.</source>
        <translation>Le contenu ne peut pas être encodé.</translation>
    </message>
    <message>
        <source>gLabels does not encode this barcode.</source>
        <translation>gLabels n’encode pas ce code-barres.</translation>
    </message>
    <message>
        <source>gLabels cannot encode some of the records.</source>
        <translation>gLabels ne peut pas encoder certains des enregistrements.</translation>
    </message>
    <message>
        <source>It shows the first record only.</source>
        <translation>Seul le premier enregistrement est affiché.</translation>
    </message>
    <message>
        <source>A text from a data source is not underlined.</source>
        <translation>Un texte d’une source de données n’est pas souligné.</translation>
    </message>
    <message>
        <source>Justified text is aligned left.</source>
        <translation>Le texte justifié est aligné à gauche.</translation>
    </message>
    <message>
        <source>gLabels knows only installed fonts: &quot;%1&quot; became &quot;%2&quot;.</source>
        <translation>gLabels ne connaît que les polices installées&#xa0;: «&#xa0;%1&#xa0;» est devenu «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>gLabels 3 distorts text at such angles.</source>
        <translation>gLabels 3 déforme le texte à de tels angles.</translation>
    </message>
    <message>
        <source>A text in several formats became a text for each line, format or word.</source>
        <translation>Un texte à plusieurs formats est devenu un texte par ligne, format ou mot.</translation>
    </message>
</context>
<context>
    <name>exporting::Targets</name>
    <message>
        <source>Re&amp;solution</source>
        <translation>&amp;Résolution</translation>
    </message>
    <message>
        <source>resolution in dots per inch</source>
        <translation>résolution en points par pouce</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>ppp</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplaires</translation>
    </message>
    <message>
        <source>copies of each record</source>
        <translation>exemplaires de chaque enregistrement</translation>
    </message>
    <message>
        <source>&amp;Sheet</source>
        <translation>&amp;Planche</translation>
    </message>
    <message>
        <source>sheet of labels, or paper</source>
        <translation>planche d’étiquettes, ou papier</translation>
    </message>
    <message>
        <source>First &amp;label</source>
        <translation>Première é&amp;tiquette</translation>
    </message>
    <message>
        <source>first free label of the first sheet</source>
        <translation>première étiquette libre de la première planche</translation>
    </message>
    <message>
        <source>C&amp;rop marks</source>
        <translation>T&amp;raits de coupe</translation>
    </message>
    <message>
        <source>marks on sheets that show where to cut</source>
        <translation>marques sur les planches indiquant où couper</translation>
    </message>
    <message>
        <source>&amp;Printer resolution</source>
        <translation>Résolution de l’i&amp;mprimante</translation>
    </message>
    <message>
        <source>resolution of the label printer</source>
        <translation>résolution de l’imprimante d’étiquettes</translation>
    </message>
    <message>
        <source>&amp;Barcodes, lines and counters by the printer</source>
        <translation>&amp;Codes-barres, lignes et compteurs par l’imprimante</translation>
    </message>
    <message>
        <source>let the printer draw barcodes and lines, and advance counters</source>
        <translation>laisser l’imprimante dessiner codes-barres et lignes, et faire avancer les compteurs</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>Image PNG</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>Images PNG</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>image</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>Dessin SVG</translation>
    </message>
    <message>
        <source>SVG drawings</source>
        <translation>Dessins SVG</translation>
    </message>
    <message>
        <source>vector drawing</source>
        <translation>dessin vectoriel</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Document PDF</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documents PDF</translation>
    </message>
    <message>
        <source>document, a page for each record</source>
        <translation>document, une page par enregistrement</translation>
    </message>
    <message>
        <source>ZPL for label printers</source>
        <translation>ZPL pour imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>Printer files</source>
        <translation>Fichiers d’imprimante</translation>
    </message>
    <message>
        <source>commands for a label printer, a label for each record</source>
        <translation>commandes pour une imprimante d’étiquettes, une étiquette par enregistrement</translation>
    </message>
    <message>
        <source>CSV table of records</source>
        <translation>Table CSV des enregistrements</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tables CSV</translation>
    </message>
    <message>
        <source>table of what bound items show, a line for each record</source>
        <translation>table de ce qu’affichent les objets liés, une ligne par enregistrement</translation>
    </message>
    <message>
        <source>LabelPort label</source>
        <translation>Étiquette LabelPort</translation>
    </message>
    <message>
        <source>LabelPort labels</source>
        <translation>Étiquettes LabelPort</translation>
    </message>
    <message>
        <source>saved label, to open and edit again</source>
        <translation>étiquette enregistrée, à rouvrir et modifier</translation>
    </message>
    <message>
        <source>gLabels label</source>
        <translation>Étiquette gLabels</translation>
    </message>
    <message>
        <source>gLabels labels</source>
        <translation>Étiquettes gLabels</translation>
    </message>
    <message>
        <source>label for gLabels, with its records in a CSV file</source>
        <translation>étiquette pour gLabels, avec ses enregistrements dans un fichier CSV</translation>
    </message>
</context>
<context>
    <name>fields::FieldProblem</name>
    <message>
        <source>%1 is missing</source>
        <translation>%1 est absent</translation>
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
    <message>
        <source>a known status</source>
        <translation>un état connu</translation>
    </message>
    <message>
        <source>a list of whole numbers</source>
        <translation>une liste de nombres entiers</translation>
    </message>
    <message>
        <source>a list of rectangles</source>
        <translation>une liste de rectangles</translation>
    </message>
</context>
<context>
    <name>migration::Census</name>
    <message>
        <source>The file cannot be opened to count its objects.</source>
        <translation>Impossible d’ouvrir le fichier pour compter ses objets.</translation>
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
        <translation>Le fichier ne contient pas de liste d’objets.</translation>
    </message>
    <message>
        <source>The file is damaged, so its objects cannot be counted: %1.</source>
        <translation>Impossible de compter les objets du fichier, car il est endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file continues with unknown data, which may contain more objects.</source>
        <translation>Le fichier se poursuit par des données inconnues, qui peuvent contenir d’autres objets.</translation>
    </message>
    <message>
        <source>The file is truncated: it may have contained more objects.</source>
        <translation>Le fichier est tronqué&#xa0;: il contenait peut-être d’autres objets.</translation>
    </message>
    <message>
        <source>The file is not a binary label of a supported version.</source>
        <translation>Le fichier n’est pas une étiquette binaire d’une version prise en charge.</translation>
    </message>
</context>
<context>
    <name>migration::HtmlCard</name>
    <message>
        <source>no picture</source>
        <translation>aucune image</translation>
    </message>
    <message>
        <source>The label %1</source>
        <translation>L’étiquette %1</translation>
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
        <source>Data sources</source>
        <translation>Sources de données</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Imported completely</source>
        <translation>Importés complètement</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Written files</source>
        <translation>Fichiers écrits</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Non importés</translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation>Importés avec modifications</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Réparé</translation>
    </message>
    <message>
        <source>Show a larger picture</source>
        <translation>Afficher une image plus grande</translation>
    </message>
    <message>
        <source>The document&apos;s own picture of %1</source>
        <translation>Aperçu du document %1</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>%1: exact</source>
        <translation>%1&#xa0;: exact</translation>
    </message>
    <message>
        <source>%1: became a picture. %2</source>
        <translation>%1&#xa0;: devenu une image. %2</translation>
    </message>
    <message>
        <source>%1: simplified. %2</source>
        <translation>%1&#xa0;: simplifié. %2</translation>
    </message>
    <message>
        <source>In gLabels</source>
        <translation>Dans gLabels</translation>
    </message>
</context>
<context>
    <name>migration::HtmlPage</name>
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
        <translation>Remède</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tous</translation>
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
        <source>worst status first</source>
        <translation>état le plus grave d’abord</translation>
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
        <source>Imported %1 of %2 objects in these files.</source>
        <translation>%1 objets sur %2 importés dans ces fichiers.</translation>
    </message>
    <message>
        <source>Files whose objects could not be counted: %1.</source>
        <translation>Fichiers dont les objets n’ont pas pu être comptés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>most lost objects first</source>
        <translation>le plus d’objets perdus d’abord</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Rien n’a été perdu ni modifié.</translation>
    </message>
    <message>
        <source>No matching files.</source>
        <translation>Aucun fichier correspondant.</translation>
    </message>
    <message>
        <source>%1 of %2 files imported completely</source>
        <translation>%1 fichiers sur %2 importés complètement</translation>
    </message>
    <message>
        <source>Files that were read without a complete sandbox: %1.</source>
        <translation>Fichiers lus sans bac à sable complet&#xa0;: %1.</translation>
    </message>
    <message>
        <source>crashed</source>
        <translation>plantage</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>délai dépassé</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>Larger picture</source>
        <translation>Image plus grande</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open in the LabelPort workbench</source>
        <translation>Ouvrir dans labelport-workbench</translation>
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
        <source>Page: %1 × %2 mm</source>
        <translation>Page&#xa0;: %1 × %2 mm</translation>
    </message>
    <message>
        <source>Data sources:</source>
        <translation>Sources de données&#xa0;:</translation>
    </message>
    <message>
        <source>Items (millimeters):</source>
        <translation>Objets (millimètres)&#xa0;:</translation>
    </message>
    <message>
        <source>Imported completely:</source>
        <translation>Importés complètement&#xa0;:</translation>
    </message>
    <message>
        <source>Imported with changes:</source>
        <translation>Importés avec modifications&#xa0;:</translation>
    </message>
    <message>
        <source>Not imported:</source>
        <translation>Non importés&#xa0;:</translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation>Avertissements&#xa0;:</translation>
    </message>
    <message>
        <source>Sandbox: %1</source>
        <translation>Bac à sable&#xa0;: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Repaired:</source>
        <translation>Réparé&#xa0;:</translation>
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
    <name>migration::LossKinds</name>
    <message>
        <source>Objects in groups were left out.</source>
        <translation>Des objets en groupes ont été omis.</translation>
    </message>
    <message>
        <source>Objects on the second and later pages were left out: a label has one page.</source>
        <translation>Des objets de la deuxième page et des suivantes ont été omis&#xa0;: une étiquette n’a qu’une page.</translation>
    </message>
    <message>
        <source>Objects of the page&apos;s background (its master page) were left out.</source>
        <translation>Des objets de l’arrière-plan de la page (sa page maîtresse) ont été omis.</translation>
    </message>
    <message>
        <source>Connectors between objects were left out.</source>
        <translation>Des connecteurs entre objets ont été omis.</translation>
    </message>
    <message>
        <source>Curves, free polygons and polylines were left out.</source>
        <translation>Des courbes, des polygones libres et des lignes brisées ont été omis.</translation>
    </message>
    <message>
        <source>Callouts were left out.</source>
        <translation>Des légendes ont été omises.</translation>
    </message>
    <message>
        <source>Three-dimensional objects were left out.</source>
        <translation>Des objets en trois dimensions ont été omis.</translation>
    </message>
    <message>
        <source>Form controls were left out.</source>
        <translation>Des contrôles de formulaire ont été omis.</translation>
    </message>
    <message>
        <source>Embedded objects, such as charts and formulas, were left out; an empty box is in their place.</source>
        <translation>Des objets incorporés, comme des diagrammes et des formules, ont été omis&#xa0;; un cadre vide les remplace.</translation>
    </message>
    <message>
        <source>Objects inside texts, text boxes or other objects were left out.</source>
        <translation>Des objets placés dans des textes, des zones de texte ou d’autres objets ont été omis.</translation>
    </message>
    <message>
        <source>Texts and objects in tables were left out.</source>
        <translation>Des textes et objets dans des tableaux ont été omis.</translation>
    </message>
    <message>
        <source>Texts in lists were left out.</source>
        <translation>Des textes dans des listes ont été omis.</translation>
    </message>
    <message>
        <source>Texts and objects in sections or indexes were left out.</source>
        <translation>Des textes et objets dans des sections ou des index ont été omis.</translation>
    </message>
    <message>
        <source>Texts and objects of the header or footer were left out.</source>
        <translation>Des textes et objets de l’en-tête ou du pied de page ont été omis.</translation>
    </message>
    <message>
        <source>Texts of hyperlinks were left out.</source>
        <translation>Des textes de liens hypertexte ont été omis.</translation>
    </message>
    <message>
        <source>Fields in texts, such as page numbers and names, were left out.</source>
        <translation>Des champs dans les textes, comme des numéros de page et des noms, ont été omis.</translation>
    </message>
    <message>
        <source>Footnotes and endnotes were left out.</source>
        <translation>Des notes de bas de page et de fin ont été omises.</translation>
    </message>
    <message>
        <source>Comments were left out; they are not printed.</source>
        <translation>Des commentaires ont été omis&#xa0;; ils ne sont pas imprimés.</translation>
    </message>
    <message>
        <source>Animations were left out; they are not printed.</source>
        <translation>Des animations ont été omises&#xa0;; elles ne sont pas imprimées.</translation>
    </message>
    <message>
        <source>Picture boxes without a picture were left out.</source>
        <translation>Des cadres d’image sans image ont été omis.</translation>
    </message>
    <message>
        <source>Barcodes of a type without a known counterpart became Code 39.</source>
        <translation>Des codes-barres d’un type sans équivalent connu sont devenus des Code 39.</translation>
    </message>
    <message>
        <source>Colored texts lost their color.</source>
        <translation>Des textes colorés ont perdu leur couleur.</translation>
    </message>
    <message>
        <source>Line breaks, tabs or repeated spaces in texts were dropped.</source>
        <translation>Des sauts de ligne, tabulations ou espaces répétés dans des textes ont été supprimés.</translation>
    </message>
    <message>
        <source>Formats of characters and paragraphs, such as superscript or line spacing, were dropped.</source>
        <translation>Des formats de caractères et de paragraphes, comme l’exposant ou l’interligne, ont été supprimés.</translation>
    </message>
    <message>
        <source>Shapes of a text document were left out: only texts, text boxes and pictures are imported.</source>
        <translation>Des formes d’un document texte ont été omises&#xa0;: seuls les textes, les zones de texte et les images sont importés.</translation>
    </message>
    <message>
        <source>Parts of texts were left out because their type is unknown.</source>
        <translation>Des parties de textes ont été omises, car leur type est inconnu.</translation>
    </message>
    <message>
        <source>Texts of shapes were left out because they do not begin with a plain paragraph.</source>
        <translation>Des textes de formes ont été omis, car ils ne commencent pas par un simple paragraphe.</translation>
    </message>
    <message>
        <source>Objects were left out because their type is unknown.</source>
        <translation>Des objets ont été omis, car leur type est inconnu.</translation>
    </message>
    <message>
        <source>Controls were left out because their type is unknown.</source>
        <translation>Des contrôles ont été omis, car leur type est inconnu.</translation>
    </message>
    <message>
        <source>The file has several lists of objects; all but the first were left out.</source>
        <translation>Le fichier contient plusieurs listes d’objets&#xa0;; toutes sauf la première ont été omises.</translation>
    </message>
    <message>
        <source>Pictures were left out because they are damaged, too large or of an unsupported format.</source>
        <translation>Des images ont été omises, car elles sont endommagées, trop grandes ou d’un format non pris en charge.</translation>
    </message>
    <message>
        <source>Vector drawings were left out because they cannot be converted.</source>
        <translation>Des dessins vectoriels ont été omis, car ils ne peuvent pas être convertis.</translation>
    </message>
    <message>
        <source>Symbols were left out because neither the file nor the symbol databases contain their drawings.</source>
        <translation>Des symboles ont été omis, car ni le fichier ni les bases de symboles ne contiennent leurs dessins.</translation>
    </message>
    <message>
        <source>Barcodes were left out because their type is not supported.</source>
        <translation>Des codes-barres ont été omis, car leur type n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The file continues with an unknown record; the rest was not read.</source>
        <translation>Le fichier se poursuit par un enregistrement inconnu&#xa0;; le reste n’a pas été lu.</translation>
    </message>
    <message>
        <source>The file is truncated: its last object is incomplete, and more may be missing.</source>
        <translation>Le fichier est tronqué&#xa0;: son dernier objet est incomplet, et d’autres manquent peut-être.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported.</source>
        <translation>Le document n’est ni un texte ni un dessin&#xa0;; rien n’a été importé.</translation>
    </message>
    <message>
        <source>Content was left out because it exceeds the limits for labels.</source>
        <translation>Du contenu a été omis, car il dépasse les limites des étiquettes.</translation>
    </message>
    <message>
        <source>Objects of the file are missing on the label, without a reported reason.</source>
        <translation>Des objets du fichier manquent sur l’étiquette, sans raison signalée.</translation>
    </message>
    <message>
        <source>Unsupported shapes became rectangles or ellipses.</source>
        <translation>Des formes non prises en charge sont devenues des rectangles ou des ellipses.</translation>
    </message>
    <message>
        <source>Items are no longer bound to their data source: they show their last value.</source>
        <translation>Des objets ne sont plus liés à leur source de données&#xa0;: ils affichent sa dernière valeur.</translation>
    </message>
    <message>
        <source>The label is no longer linked to its database file.</source>
        <translation>L’étiquette n’est plus liée à son fichier de base de données.</translation>
    </message>
    <message>
        <source>Texts with a placeholder among other words show only the value of the data source.</source>
        <translation>Des textes contenant un espace réservé parmi d’autres mots n’affichent que la valeur de la source de données.</translation>
    </message>
    <message>
        <source>Fields, such as date, time and page number, became plain text with the value that they had when the document was saved.</source>
        <translation>Des champs, comme la date, l’heure et le numéro de page, sont devenus du texte simple avec la valeur qu’ils avaient à l’enregistrement du document.</translation>
    </message>
    <message>
        <source>Barcodes cannot be drawn because their content is invalid for their type.</source>
        <translation>Des codes-barres ne peuvent pas être dessinés, car leur contenu n’est pas valide pour leur type.</translation>
    </message>
    <message>
        <source>Items are completely outside the page: they are not printed.</source>
        <translation>Des objets sont entièrement hors de la page&#xa0;: ils ne sont pas imprimés.</translation>
    </message>
    <message>
        <source>Items extend beyond the edge of the page: that part is not printed.</source>
        <translation>Des objets dépassent le bord de la page&#xa0;: cette partie n’est pas imprimée.</translation>
    </message>
    <message>
        <source>Sizes, positions or fonts exceed the limits for labels and were reduced.</source>
        <translation>Des tailles, des positions ou des polices dépassent les limites des étiquettes et ont été réduites.</translation>
    </message>
    <message>
        <source>Lengths are not in the unit of the page, but were read as if they were.</source>
        <translation>Des longueurs ne sont pas dans l’unité de la page, mais ont été lues comme si elles l’étaient.</translation>
    </message>
    <message>
        <source>Objects without a position on the page were placed in the text flow or in the corner.</source>
        <translation>Des objets sans position sur la page ont été placés dans le flux du texte ou dans le coin.</translation>
    </message>
    <message>
        <source>The margins of the page were dropped: the text begins in the corner.</source>
        <translation>Les marges de la page ont été supprimées&#xa0;: le texte commence dans le coin.</translation>
    </message>
    <message>
        <source>Page breaks were dropped: all text is on one page.</source>
        <translation>Des sauts de page ont été supprimés&#xa0;: tout le texte est sur une seule page.</translation>
    </message>
    <message>
        <source>Rotation of lines, and skewing and scaling of objects, were dropped.</source>
        <translation>La rotation de traits ainsi que l’inclinaison et la mise à l’échelle d’objets ont été supprimées.</translation>
    </message>
    <message>
        <source>Fonts that are not installed were replaced.</source>
        <translation>Des polices non installées ont été remplacées.</translation>
    </message>
    <message>
        <source>Stretched texts are no longer stretched.</source>
        <translation>Des textes étirés ne le sont plus.</translation>
    </message>
    <message>
        <source>The import reported a problem with this label.</source>
        <translation>L’importation a signalé un problème avec cette étiquette.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written.</source>
        <translation>Si le document a été importé tel qu’écrit, importez-le sans --as-written.</translation>
    </message>
    <message>
        <source>Texts of lines and dimension lines were left out.</source>
        <translation>Les textes des lignes et des lignes de cote ont été omis.</translation>
    </message>
    <message>
        <source>Add the symbols to the symbol databases and import again.</source>
        <translation>Ajoutez les symboles aux bases de symboles et importez à nouveau.</translation>
    </message>
    <message>
        <source>The log was cut, or the label is too large to compare: there may be losses that are not listed.</source>
        <translation>Le journal a été tronqué, ou l’étiquette est trop grande pour être comparée&#xa0;: des pertes peuvent ne pas être listées.</translation>
    </message>
    <message>
        <source>Bind the items to a data source in labelport-workbench.</source>
        <translation>Liez les objets à une source de données dans labelport-workbench.</translation>
    </message>
    <message>
        <source>Correct the content or the type in labelport-workbench under Properties.</source>
        <translation>Corrigez le contenu ou le type dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Choose the type in labelport-workbench under Properties.</source>
        <translation>Choisissez le type dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Move the items onto the page in labelport-workbench.</source>
        <translation>Déplacez les objets sur la page dans labelport-workbench.</translation>
    </message>
    <message>
        <source>The document uses millimeters: the label is a hundred times larger than the paper. Fonts and lines did not grow with it, so that texts are hardly visible.</source>
        <translation>Le document utilise des millimètres&#xa0;: l’étiquette est cent fois plus grande que le papier. Les polices et les lignes n’ont pas grandi, si bien que les textes sont à peine visibles.</translation>
    </message>
    <message>
        <source>The unit of the page is not supported: its lengths were read as inches, so that points become 72 times too large. Fonts and lines did not grow with them, so that texts are hardly visible.</source>
        <translation>L’unité de la page n’est pas prise en charge&#xa0;: ses longueurs ont été lues comme des pouces, si bien que les points deviennent 72 fois trop grands. Les polices et les lignes n’ont pas grandi, et les textes sont à peine visibles.</translation>
    </message>
    <message>
        <source>Install the fonts and import again, or choose another font in labelport-workbench under Properties.</source>
        <translation>Installez les polices et importez à nouveau, ou choisissez une autre police dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Set the font size in labelport-workbench under Properties.</source>
        <translation>Définissez la taille de police dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Texts differ from the document: words run together, or line breaks or words are missing.</source>
        <translation>Des textes diffèrent du document&#xa0;: des mots sont collés, ou des sauts de ligne ou des mots manquent.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or correct the text in labelport-workbench under Properties.</source>
        <translation>Si le document a été importé tel qu’écrit, importez-le sans --as-written. Ou corrigez le texte dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Texts can hardly be read: their color is too similar to what is under them.</source>
        <translation>Des textes sont à peine lisibles&#xa0;: leur couleur est trop proche de ce qui est dessous.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or set the color in labelport-workbench under Properties.</source>
        <translation>Si le document a été importé tel qu’écrit, importez-le sans --as-written. Ou définissez la couleur dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Texts are printed over each other.</source>
        <translation>Des textes se superposent.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the texts in labelport-workbench.</source>
        <translation>Si le document a été importé tel qu’écrit, importez-le sans --as-written. Ou déplacez les textes dans labelport-workbench.</translation>
    </message>
    <message>
        <source>Items are covered by others, which they are not in the document.</source>
        <translation>Des objets sont couverts par d’autres, ce qui n’est pas le cas dans le document.</translation>
    </message>
    <message>
        <source>If the document was imported as written, import it without --as-written. Or move the items in labelport-workbench.</source>
        <translation>Si le document a été importé tel qu’écrit, importez-le sans --as-written. Ou déplacez les objets dans labelport-workbench.</translation>
    </message>
    <message>
        <source>Items have another place or size than in the document, by more than 1 mm.</source>
        <translation>Des objets ont une autre position ou taille que dans le document, de plus de 1 mm.</translation>
    </message>
    <message>
        <source>Mirrored shapes are no longer mirrored.</source>
        <translation>Des formes retournées ne le sont plus.</translation>
    </message>
    <message>
        <source>Items cannot be seen, because they have the color of what is under them.</source>
        <translation>Des objets sont invisibles, car ils ont la couleur de ce qui est dessous.</translation>
    </message>
    <message>
        <source>Choose another fill in labelport-workbench under Properties.</source>
        <translation>Choisissez un autre remplissage dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Boxes are filled that are not filled in the document.</source>
        <translation>Des cadres sont remplis alors qu’ils ne le sont pas dans le document.</translation>
    </message>
    <message>
        <source>Lines are more than a quarter thinner or thicker than in the document.</source>
        <translation>Des lignes sont plus fines ou plus épaisses de plus d’un quart que dans le document.</translation>
    </message>
    <message>
        <source>Transparent fills and lines became opaque.</source>
        <translation>Les remplissages et lignes transparents sont devenus opaques.</translation>
    </message>
    <message>
        <source>Pictures and patterns that fill objects were replaced by a color.</source>
        <translation>Des images et motifs de remplissage ont été remplacés par une couleur.</translation>
    </message>
    <message>
        <source>Pages were left out, because the document has too many or they cannot be imported.</source>
        <translation>Des pages ont été omises, parce que le document en a trop ou qu’elles ne peuvent pas être importées.</translation>
    </message>
    <message>
        <source>Texts along a curve became straight.</source>
        <translation>Des textes le long d’une courbe sont devenus droits.</translation>
    </message>
    <message>
        <source>Numbers of headings were left out.</source>
        <translation>Des numéros de titres ont été omis.</translation>
    </message>
    <message>
        <source>Add the numbers in labelport-workbench under Properties.</source>
        <translation>Ajoutez les numéros dans labelport-workbench, sous «&#xa0;Propriétés&#xa0;».</translation>
    </message>
    <message>
        <source>Fills of objects, such as gradients and hatchings, were simplified or dropped.</source>
        <translation>Des remplissages d’objets, comme les dégradés et les hachures, ont été simplifiés ou supprimés.</translation>
    </message>
    <message>
        <source>The size of the page was assumed: the file defines none, or several.</source>
        <translation>La taille de la page a été supposée&#xa0;: le fichier n’en définit aucune, ou plusieurs.</translation>
    </message>
    <message>
        <source>Looks of texts were dropped, such as shadow, outline, borders, rotation, kinds of underlines, drop caps, tab stops, fixed line heights, numbers of lines, picture bullets, marks of changes, pictures below texts and grounds of sections.</source>
        <translation>Des aspects de textes ont été perdus, comme l’ombre, le contour, les bordures, la rotation, les types de soulignement, les lettrines, les taquets de tabulation, les hauteurs de ligne fixes, les numéros de ligne, les puces images, les marques de modification, les images sous les textes et les fonds de sections.</translation>
    </message>
    <message>
        <source>Lines beside objects break elsewhere than in the document; objects there may have moved.</source>
        <translation>Les lignes à côté d’objets sont coupées ailleurs que dans le document&#xa0;; des objets peuvent y être déplacés.</translation>
    </message>
    <message>
        <source>Columns, linked text boxes, endnotes, and tables in headers, footers and cells follow each other in one column.</source>
        <translation>Les colonnes, les zones de texte liées, les notes de fin et les tableaux dans les en-têtes, les pieds de page et les cellules se suivent dans une seule colonne.</translation>
    </message>
    <message>
        <source>Borders of cells have other lines than in the document, or are missing in tables within tables.</source>
        <translation>Des bordures de cellules ont d’autres lignes que dans le document, ou manquent dans les tableaux imbriqués.</translation>
    </message>
    <message>
        <source>Embedded documents and charts were drawn again from their content: sizes, fonts and details may differ.</source>
        <translation>Des documents et graphiques incorporés ont été redessinés à partir de leur contenu&#xa0;: les tailles, les polices et les détails peuvent différer.</translation>
    </message>
    <message>
        <source>Shadows, transparency of pictures, cropping, borders that differ by side and other effects were dropped.</source>
        <translation>Les ombres, la transparence des images, le rognage, les bordures différentes selon le côté et d’autres effets ont été supprimés.</translation>
    </message>
</context>
<context>
    <name>migration::MergeReports</name>
    <message>
        <source>The reports contain the file &quot;%1&quot; more than once.</source>
        <translation>Les rapports contiennent le fichier «&#xa0;%1&#xa0;» plusieurs fois.</translation>
    </message>
    <message>
        <source>The report &quot;%1&quot; has changed during the merge.</source>
        <translation>Le rapport «&#xa0;%1&#xa0;» a été modifié pendant la fusion.</translation>
    </message>
</context>
<context>
    <name>migration::ReportLines</name>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a report of LabelPort: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un rapport de LabelPort&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>la fin manque</translation>
    </message>
    <message>
        <source>line %1 does not name the format, or an unsupported version of it</source>
        <translation>la ligne %1 n’indique pas le format, ou indique une version non prise en charge</translation>
    </message>
    <message>
        <source>line %1 does not describe a file</source>
        <translation>la ligne %1 ne décrit pas un fichier</translation>
    </message>
</context>
<context>
    <name>migration::ReportWriter</name>
    <message>
        <source>Cannot write the report &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire le rapport «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>migration::Summary</name>
    <message>
        <source>Not imported: %1</source>
        <translation>Non importé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Objects imported: %1 (the number of objects in the file is unknown).</source>
        <translation>Objets importés&#xa0;: %1 (le nombre d’objets dans le fichier est inconnu).</translation>
    </message>
    <message>
        <source>Imported %1 of %2 objects.</source>
        <translation>%1 objets sur %2 importés.</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Rien n’a été perdu ni modifié.</translation>
    </message>
    <message>
        <source>imported completely</source>
        <translation>importées complètement</translation>
    </message>
    <message>
        <source>imported with changes</source>
        <translation>importées avec modifications</translation>
    </message>
    <message>
        <source>The content is complete; looks changed.</source>
        <translation>Le contenu est complet&#xa0;; l’apparence a changé.</translation>
    </message>
    <message>
        <source>imported with losses</source>
        <translation>importées avec pertes</translation>
    </message>
    <message>
        <source>Content was lost or changed.</source>
        <translation>Du contenu a été perdu ou modifié.</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échecs</translation>
    </message>
</context>
<context>
    <name>printing::PrintDocument</name>
    <message>
        <source>%1 labels in %2 copies are more than the %3 of one document.</source>
        <translation>%1 étiquettes en %2 exemplaires dépassent les %3 d’un document.</translation>
    </message>
    <message>
        <source>Sheet &quot;%1&quot; has no position %2; its positions are 1 to %3.</source>
        <translation>La planche «&#xa0;%1&#xa0;» n’a pas de position %2&#xa0;; ses positions vont de 1 à %3.</translation>
    </message>
</context>
<context>
    <name>printing::PrintQueue</name>
    <message>
        <source>Cannot run &quot;%1&quot;. Install the client commands of CUPS.</source>
        <translation>Impossible d’exécuter «&#xa0;%1&#xa0;». Installez les commandes clientes de CUPS.</translation>
    </message>
    <message>
        <source>The print server does not reply.</source>
        <translation>Le serveur d’impression ne répond pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed.</source>
        <translation>«&#xa0;%1&#xa0;» a échoué.</translation>
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
        <translation>Les côtés du papier doivent mesurer de 1 à %1 mm.</translation>
    </message>
    <message>
        <source>A sheet has 1 to %1 rows and columns.</source>
        <translation>Une planche a de 1 à %1 lignes et colonnes.</translation>
    </message>
    <message>
        <source>The sides of a label must be at least 1 mm.</source>
        <translation>Les côtés d’une étiquette doivent mesurer au moins 1 mm.</translation>
    </message>
    <message>
        <source>The labels of the sheet overlap.</source>
        <translation>Les étiquettes de la planche se chevauchent.</translation>
    </message>
    <message>
        <source>The labels of the sheet exceed the paper.</source>
        <translation>Les étiquettes de la planche dépassent du papier.</translation>
    </message>
    <message>
        <source>The label is %1; the labels of sheet &quot;%2&quot; are only %3.</source>
        <translation>L’étiquette mesure %1&#xa0;; celles de la planche «&#xa0;%2&#xa0;» seulement %3.</translation>
    </message>
</context>
<context>
    <name>repair</name>
    <message>
        <source>The document could not be repaired: it was imported as it is written.</source>
        <translation>Le document n’a pas pu être réparé&#xa0;: il a été importé tel qu’il est écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%n length(s) converted to inches</source>
        <translation>
            <numerusform>%n longueur convertie en pouces</numerusform>
            <numerusform>%n longueurs converties en pouces</numerusform>
        </translation>
    </message>
    <message>
        <source>Page size taken from the master page</source>
        <translation>Dimensions de la page reprises de la page maîtresse</translation>
    </message>
    <message>
        <source>Text laid out with its margins, spacing, pictures and tables</source>
        <translation>Texte mis en page avec ses marges, espacements, images et tableaux</translation>
    </message>
    <message numerus="yes">
        <source>%n further page(s) imported as separate labels</source>
        <translation>
            <numerusform>%n page suivante importée comme étiquette distincte</numerusform>
            <numerusform>%n pages suivantes importées comme étiquettes distinctes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) of the master page copied to the page</source>
        <translation>
            <numerusform>%n objet de la page maîtresse copié sur la page</numerusform>
            <numerusform>%n objets de la page maîtresse copiés sur la page</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) dissolved</source>
        <translation>
            <numerusform>%n groupe dissocié</numerusform>
            <numerusform>%n groupes dissociés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) replaced by boxes with text</source>
        <translation>
            <numerusform>%n tableau remplacé par des cadres de texte</numerusform>
            <numerusform>%n tableaux remplacés par des cadres de texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) replaced by boxes with lines</source>
        <translation>
            <numerusform>%n légende remplacée par des cadres et des lignes</numerusform>
            <numerusform>%n légendes remplacées par des cadres et des lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dimension line(s) replaced by lines and text</source>
        <translation>
            <numerusform>%n ligne de cote remplacée par des lignes et du texte</numerusform>
            <numerusform>%n lignes de cote remplacées par des lignes et du texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n text(s) on lines moved into text boxes</source>
        <translation>
            <numerusform>%n texte sur ligne placé dans un cadre</numerusform>
            <numerusform>%n textes sur ligne placés dans des cadres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connector(s) replaced by lines or drawings</source>
        <translation>
            <numerusform>%n connecteur remplacé par des lignes ou des dessins</numerusform>
            <numerusform>%n connecteurs remplacés par des lignes ou des dessins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n freeform shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n forme libre remplacée par un dessin</numerusform>
            <numerusform>%n formes libres remplacées par des dessins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsupported shape(s) replaced by drawings</source>
        <translation>
            <numerusform>%n forme non prise en charge remplacée par un dessin</numerusform>
            <numerusform>%n formes non prises en charge remplacées par des dessins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) reduced to a readable picture</source>
        <translation>
            <numerusform>%n cadre réduit à une image lisible</numerusform>
            <numerusform>%n cadres réduits à une image lisible</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) mirrored</source>
        <translation>
            <numerusform>%n image retournée</numerusform>
            <numerusform>%n images retournées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Position of %n rotated object(s) corrected</source>
        <translation>
            <numerusform>Position de %n objet pivoté corrigée</numerusform>
            <numerusform>Position de %n objets pivotés corrigée</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stacking order of %n object(s) kept</source>
        <translation>
            <numerusform>Ordre d’empilement de %n objet conservé</numerusform>
            <numerusform>Ordre d’empilement de %n objets conservé</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n space(s) or line break(s) between words kept</source>
        <translation>
            <numerusform>%n espace ou saut de ligne entre les mots conservé</numerusform>
            <numerusform>%n espaces ou sauts de ligne entre les mots conservés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) or link(s) replaced by text</source>
        <translation>
            <numerusform>%n champ ou lien remplacé par du texte</numerusform>
            <numerusform>%n champs ou liens remplacés par du texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s) replaced by paragraphs</source>
        <translation>
            <numerusform>%n liste remplacée par des paragraphes</numerusform>
            <numerusform>%n listes remplacées par des paragraphes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n section(s) dissolved</source>
        <translation>
            <numerusform>%n section dissociée</numerusform>
            <numerusform>%n sections dissociées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s) appended to the text</source>
        <translation>
            <numerusform>%n note ajoutée au texte</numerusform>
            <numerusform>%n notes ajoutées au texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n embedded document(s) replaced by their content</source>
        <translation>
            <numerusform>%n document incorporé remplacé par son contenu</numerusform>
            <numerusform>%n documents incorporés remplacés par leur contenu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n form control(s) replaced by boxes with their text</source>
        <translation>
            <numerusform>%n champ de formulaire remplacé par un cadre avec son texte</numerusform>
            <numerusform>%n champs de formulaire remplacés par des cadres avec leur texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n heading(s) numbered</source>
        <translation>
            <numerusform>%n titre numéroté</numerusform>
            <numerusform>%n titres numérotés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chart(s) drawn again from their values</source>
        <translation>
            <numerusform>%n graphique redessiné à partir de ses valeurs</numerusform>
            <numerusform>%n graphiques redessinés à partir de leurs valeurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A4 or margins of 2 cm assumed for %n page layout(s) without them</source>
        <translation>
            <numerusform>A4 ou marges de 2 cm supposées pour %n mise en page qui n’en a pas</numerusform>
            <numerusform>A4 ou marges de 2 cm supposées pour %n mises en page qui n’en ont pas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s) left out that the document does not print</source>
        <translation>
            <numerusform>%n objet omis que le document n’imprime pas</numerusform>
            <numerusform>%n objets omis que le document n’imprime pas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sandbox::Confinement</name>
    <message>
        <source>files</source>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>network</source>
        <translation>réseau</translation>
    </message>
    <message>
        <source>system calls</source>
        <translation>appels système</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>trace</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été importé. La trace montre jusqu’où l’importation est allée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported. The trace shows how far the import came; --reader selects another reader.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été importé. La trace montre jusqu’où l’importation est allée&#xa0;; --reader choisit un autre lecteur.</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>Impossible d’écrire sur la sortie standard&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Imports a legacy label into a recording host, and prints every call on the host as JSON
Lines, then the final state of the items.

Exit status: 0 imported, 1 not imported, 2 wrong usage.</source>
        <translation>Importe une ancienne étiquette dans un hôte d’enregistrement et affiche chaque appel à l’hôte
en JSON Lines, puis l’état final des objets.

Code de retour&#xa0;: 0 importée, 1 non importée, 2 utilisation incorrecte.</translation>
    </message>
    <message>
        <source>Read the file as tavrel, orvanta or opendocument, whatever its name.</source>
        <translation>Lire le fichier comme tavrel, orvanta ou opendocument, quel que soit son nom.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Label to import; - is standard input.</source>
        <translation>Étiquette à importer&#xa0;; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>trace needs exactly one file.</source>
        <translation>trace attend exactement un fichier.</translation>
    </message>
    <message>
        <source>Unknown reader &quot;%1&quot;. Supported readers: %2.</source>
        <translation>Lecteur «&#xa0;%1&#xa0;» inconnu. Lecteurs pris en charge&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>window::Actions</name>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
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
        <translation>Exporte l’étiquette sous forme d’image, de dessin ou de document</translation>
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
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
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
        <translation>Annule la sélection</translation>
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
        <translation>Affiche l’étiquette entière, même si la fenêtre change de taille</translation>
    </message>
    <message>
        <source>&amp;True Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Zoom sur la &amp;sélection</translation>
    </message>
    <message>
        <source>Shows the selected items as large as they fit</source>
        <translation>Affiche les objets sélectionnés aussi grands que possible</translation>
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
        <source>&amp;Items</source>
        <translation>&amp;Objets</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>&amp;Data Sources</source>
        <translation>&amp;Sources de données</translation>
    </message>
    <message>
        <source>I&amp;ssues</source>
        <translation>Pro&amp;blèmes</translation>
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
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
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
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
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
    <message>
        <source>Opens a saved label, or imports a legacy one</source>
        <translation>Ouvre une étiquette enregistrée ou en importe une ancienne</translation>
    </message>
    <message>
        <source>Open &amp;Folder…</source>
        <translation>Ouvrir un &amp;dossier…</translation>
    </message>
    <message>
        <source>Lists the labels of a folder with their states</source>
        <translation>Liste les étiquettes d’un dossier avec leur état</translation>
    </message>
    <message>
        <source>Pre&amp;vious Label</source>
        <translation>Étique&amp;tte précédente</translation>
    </message>
    <message>
        <source>Opens the previous label of the folder</source>
        <translation>Ouvre l’étiquette précédente du dossier</translation>
    </message>
    <message>
        <source>&amp;Next Label</source>
        <translation>Étiquette sui&amp;vante</translation>
    </message>
    <message>
        <source>Opens the next label of the folder</source>
        <translation>Ouvre l’étiquette suivante du dossier</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>Copies the selected items and deletes them</source>
        <translation>Copie les objets sélectionnés et les supprime</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Copies the selected items to the clipboard</source>
        <translation>Copie les objets sélectionnés dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Adds the items of the clipboard to the label</source>
        <translation>Ajoute les objets du presse-papiers à l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Adds a copy of each selected item</source>
        <translation>Ajoute une copie de chaque objet sélectionné</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Deletes the selected items</source>
        <translation>Supprime les objets sélectionnés</translation>
    </message>
    <message>
        <source>Edit Te&amp;xt</source>
        <translation>Modifier le te&amp;xte</translation>
    </message>
    <message>
        <source>Edits the text of the selected item on the canvas</source>
        <translation>Modifie le texte de l’objet sélectionné sur le canevas</translation>
    </message>
    <message>
        <source>To Fr&amp;ont</source>
        <translation>Au &amp;premier plan</translation>
    </message>
    <message>
        <source>Puts the selected items above all others</source>
        <translation>Place les objets sélectionnés au-dessus de tous les autres</translation>
    </message>
    <message>
        <source>&amp;Raise</source>
        <translation>&amp;Avancer</translation>
    </message>
    <message>
        <source>Puts the selected items above the next item</source>
        <translation>Place les objets sélectionnés au-dessus du suivant</translation>
    </message>
    <message>
        <source>&amp;Lower</source>
        <translation>&amp;Reculer</translation>
    </message>
    <message>
        <source>Puts the selected items below the next item</source>
        <translation>Place les objets sélectionnés au-dessous du suivant</translation>
    </message>
    <message>
        <source>To Bac&amp;k</source>
        <translation>À l’arrière-p&amp;lan</translation>
    </message>
    <message>
        <source>Puts the selected items below all others</source>
        <translation>Place les objets sélectionnés au-dessous de tous les autres</translation>
    </message>
    <message>
        <source>Align Le&amp;ft Edges</source>
        <translation>Aligner à &amp;gauche</translation>
    </message>
    <message>
        <source>Aligns the left edges of the selected items; a single item is aligned to the page</source>
        <translation>Aligne les bords gauches des objets sélectionnés&#xa0;; un objet seul est aligné sur la page</translation>
    </message>
    <message>
        <source>Align &amp;Centers</source>
        <translation>&amp;Centrer</translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a vertical line</source>
        <translation>Aligne les centres des objets sélectionnés sur une ligne verticale</translation>
    </message>
    <message>
        <source>Align Ri&amp;ght Edges</source>
        <translation>Aligner à &amp;droite</translation>
    </message>
    <message>
        <source>Aligns the right edges of the selected items</source>
        <translation>Aligne les bords droits des objets sélectionnés</translation>
    </message>
    <message>
        <source>Align &amp;Top Edges</source>
        <translation>Aligner en &amp;haut</translation>
    </message>
    <message>
        <source>Aligns the top edges of the selected items</source>
        <translation>Aligne les bords supérieurs des objets sélectionnés</translation>
    </message>
    <message>
        <source>Align &amp;Middles</source>
        <translation>Aligner au &amp;milieu</translation>
    </message>
    <message>
        <source>Aligns the centers of the selected items on a horizontal line</source>
        <translation>Aligne les centres des objets sélectionnés sur une ligne horizontale</translation>
    </message>
    <message>
        <source>Align &amp;Bottom Edges</source>
        <translation>Aligner en &amp;bas</translation>
    </message>
    <message>
        <source>Aligns the bottom edges of the selected items</source>
        <translation>Aligne les bords inférieurs des objets sélectionnés</translation>
    </message>
    <message>
        <source>Distribute &amp;Horizontally</source>
        <translation>&amp;Répartir horizontalement</translation>
    </message>
    <message>
        <source>Makes the horizontal gaps between the selected items equal</source>
        <translation>Égalise les espaces horizontaux entre les objets sélectionnés</translation>
    </message>
    <message>
        <source>Distribute &amp;Vertically</source>
        <translation>Répartir &amp;verticalement</translation>
    </message>
    <message>
        <source>Makes the vertical gaps between the selected items equal</source>
        <translation>Égalise les espaces verticaux entre les objets sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Labels</source>
        <translation>É&amp;tiquettes</translation>
    </message>
    <message>
        <source>Shows the labels of the folder and moves keyboard focus to them</source>
        <translation>Affiche les étiquettes du dossier et y place le focus du clavier</translation>
    </message>
    <message>
        <source>&amp;Original</source>
        <translation>Origina&amp;l</translation>
    </message>
    <message>
        <source>Shows the document&apos;s own preview next to the label, with a slider</source>
        <translation>Affiche l’aperçu du document à côté de l’étiquette, avec un curseur</translation>
    </message>
    <message>
        <source>&amp;Connect CSV File…</source>
        <translation>&amp;Connecter un fichier CSV…</translation>
    </message>
    <message>
        <source>Shows columns of a CSV file in items of the label</source>
        <translation>Affiche les colonnes d’un fichier CSV dans des objets de l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Edit Data Source…</source>
        <translation>&amp;Modifier la source de données…</translation>
    </message>
    <message>
        <source>Changes the counter, date, list or file that is selected in the panel</source>
        <translation>Modifie le compteur, la date, la liste ou le fichier sélectionné dans le panneau</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Shows the manual of this window</source>
        <translation>Affiche le manuel de cette fenêtre</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation>&amp;Disposer</translation>
    </message>
    <message>
        <source>Open as &amp;Written</source>
        <translation>Ouvrir s&amp;ans réparation</translation>
    </message>
    <message>
        <source>Shows the imported document without repairs</source>
        <translation>Affiche le document importé sans réparations</translation>
    </message>
    <message>
        <source>Show in &amp;Selected Items</source>
        <translation>Afficher dans les &amp;objets sélectionnés</translation>
    </message>
    <message>
        <source>Lets the selected texts and barcodes show the data source of the panel</source>
        <translation>Affiche la source de données du panneau dans les textes et codes-barres sélectionnés</translation>
    </message>
    <message>
        <source>New Co&amp;unter…</source>
        <translation>No&amp;uveau compteur…</translation>
    </message>
    <message>
        <source>Adds a counter and shows it in the selected items</source>
        <translation>Ajoute un compteur et l’affiche dans les objets sélectionnés</translation>
    </message>
    <message>
        <source>New &amp;Date and Time…</source>
        <translation>Nouvelle date et &amp;heure…</translation>
    </message>
    <message>
        <source>Adds the date and the time of printing and shows them in the selected items</source>
        <translation>Ajoute la date et l’heure d’impression et les affiche dans les objets sélectionnés</translation>
    </message>
    <message>
        <source>New List of &amp;Texts…</source>
        <translation>Nouvelle liste de &amp;textes…</translation>
    </message>
    <message>
        <source>Adds a text for each record and shows it in the selected items</source>
        <translation>Ajoute un texte pour chaque enregistrement et l’affiche dans les objets sélectionnés</translation>
    </message>
    <message>
        <source>Closes the window</source>
        <translation>Ferme la fenêtre</translation>
    </message>
    <message>
        <source>Undoes the last change</source>
        <translation>Annule la dernière modification</translation>
    </message>
    <message>
        <source>Redoes the last undone change</source>
        <translation>Rétablit la dernière modification annulée</translation>
    </message>
    <message>
        <source>Shows the label in its printed size</source>
        <translation>Affiche l’étiquette à sa taille imprimée</translation>
    </message>
    <message>
        <source>Uses the colors of the desktop</source>
        <translation>Utilise les couleurs du bureau</translation>
    </message>
    <message>
        <source>Moves keyboard focus to the canvas</source>
        <translation>Place le focus du clavier sur le canevas</translation>
    </message>
    <message>
        <source>Shows the list of items and moves keyboard focus to it</source>
        <translation>Affiche la liste des objets et y place le focus du clavier</translation>
    </message>
    <message>
        <source>Shows the properties of an item and moves keyboard focus to them</source>
        <translation>Affiche les propriétés d’un objet et y place le focus du clavier</translation>
    </message>
    <message>
        <source>Shows the data sources and moves keyboard focus to them</source>
        <translation>Affiche les sources de données et y place le focus du clavier</translation>
    </message>
    <message>
        <source>Shows the issues and moves keyboard focus to them</source>
        <translation>Affiche les problèmes et y place le focus du clavier</translation>
    </message>
    <message>
        <source>Shows the previous record</source>
        <translation>Affiche l’enregistrement précédent</translation>
    </message>
    <message>
        <source>Shows the next record</source>
        <translation>Affiche l’enregistrement suivant</translation>
    </message>
    <message>
        <source>Moves keyboard focus to the record number</source>
        <translation>Place le focus du clavier sur le numéro d’enregistrement</translation>
    </message>
    <message>
        <source>Lists the keys of all commands</source>
        <translation>Liste les touches de toutes les commandes</translation>
    </message>
    <message>
        <source>Shows the version of the program</source>
        <translation>Affiche la version du programme</translation>
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
    <message>
        <source>The item has no text.</source>
        <translation>L’objet n’a pas de texte.</translation>
    </message>
    <message>
        <source>Change Text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>The item shows a data source; its own text is shown only without one.</source>
        <translation>L’objet affiche une source de données&#xa0;; son propre texte n’apparaît que sans source.</translation>
    </message>
</context>
<context>
    <name>window::ChangePage</name>
    <message>
        <source>Change Page</source>
        <translation>Modifier la page</translation>
    </message>
</context>
<context>
    <name>window::ComparisonPanel</name>
    <message>
        <source>The original document has no preview.</source>
        <translation>Le document d’origine n’a pas d’aperçu.</translation>
    </message>
    <message>
        <source>Share of the original</source>
        <translation>Part de l’original</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
</context>
<context>
    <name>window::ComparisonView</name>
    <message>
        <source>Original and label</source>
        <translation>Original et étiquette</translation>
    </message>
</context>
<context>
    <name>window::Corrections</name>
    <message>
        <source>Replace Font</source>
        <translation>Remplacer la police</translation>
    </message>
    <message>
        <source>Font for all texts in %1:</source>
        <translation>Police pour tous les textes en %1&#xa0;:</translation>
    </message>
    <message>
        <source>Set Color</source>
        <translation>Définir la couleur</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Rescale</source>
        <translation>Mettre à l’échelle</translation>
    </message>
    <message>
        <source>Size of the paper:</source>
        <translation>Taille du papier&#xa0;:</translation>
    </message>
    <message>
        <source>Bind to Data Source</source>
        <translation>Lier à une source de données</translation>
    </message>
    <message>
        <source>Data source:</source>
        <translation>Source de données&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Delete Items</source>
        <translation>&amp;Supprimer les objets</translation>
    </message>
    <message>
        <source>Replace F&amp;ont…</source>
        <translation>Remplacer la p&amp;olice…</translation>
    </message>
    <message>
        <source>Set &amp;Color…</source>
        <translation>Définir la &amp;couleur…</translation>
    </message>
    <message>
        <source>Re&amp;scale…</source>
        <translation>Mettre à l’é&amp;chelle…</translation>
    </message>
    <message>
        <source>&amp;Bind to Data Source…</source>
        <translation>&amp;Lier à une source de données…</translation>
    </message>
    <message>
        <source>Delete Items</source>
        <translation>Supprimer les objets</translation>
    </message>
</context>
<context>
    <name>window::CsvDialog</name>
    <message>
        <source>The first line &amp;names the columns</source>
        <translation>La première ligne &amp;nomme les colonnes</translation>
    </message>
    <message>
        <source>Items and their columns</source>
        <translation>Objets et leurs colonnes</translation>
    </message>
    <message>
        <source>Records of the file</source>
        <translation>Enregistrements du fichier</translation>
    </message>
    <message>
        <source>Connect CSV File</source>
        <translation>Connecter un fichier CSV</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>&amp;Items of the label</source>
        <translation>&amp;Objets de l’étiquette</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Enregistrements</translation>
    </message>
    <message>
        <source>Detect</source>
        <translation>Détecter</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre verticale</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
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
        <translation>Encodage</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>&amp;Separator</source>
        <translation>&amp;Séparateur</translation>
    </message>
    <message>
        <source>&amp;Encoding</source>
        <translation>Enco&amp;dage</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Fichiers CSV (*.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Shows column</source>
        <translation>Affiche la colonne</translation>
    </message>
    <message>
        <source>– not from this file –</source>
        <translation>– pas de ce fichier –</translation>
    </message>
</context>
<context>
    <name>window::EditActions</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Répartir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>The clipboard contains no items of a label.</source>
        <translation>Le presse-papiers ne contient pas d’objets d’étiquette.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Read-only items were not deleted.</source>
        <translation>Les objets en lecture seule n’ont pas été supprimés.</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Aligner</translation>
    </message>
</context>
<context>
    <name>window::ExportDialog</name>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>Export Label</source>
        <translation>Exporter l’étiquette</translation>
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
        <source>&amp;Format</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>F&amp;ile</source>
        <translation>Fich&amp;ier</translation>
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
        <source>%1 files: %2 and so on.</source>
        <translation>%1 fichiers&#xa0;: %2, etc.</translation>
    </message>
    <message>
        <source>One file.</source>
        <translation>Un fichier.</translation>
    </message>
    <message>
        <source>“%1” exists already. Replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>One file of %1 records.</source>
        <translation>Un fichier de %1 enregistrements.</translation>
    </message>
    <message>
        <source>One file. The records are in a table next to it.</source>
        <translation>Un fichier. Les enregistrements sont dans un tableau à côté.</translation>
    </message>
</context>
<context>
    <name>window::ImportProcess</name>
    <message>
        <source>Cannot start the program “%1”: %2.</source>
        <translation>Impossible de démarrer le programme «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Impossible de créer un dossier temporaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The import ended without a result.</source>
        <translation>L’importation s’est terminée sans résultat.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Importing “%1”…</source>
        <translation>Importation de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The import was canceled.</source>
        <translation>L’importation a été annulée.</translation>
    </message>
</context>
<context>
    <name>window::Issues</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Non importés</translation>
    </message>
    <message>
        <source>Imported with changes</source>
        <translation>Importés avec modifications</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Réparé</translation>
    </message>
</context>
<context>
    <name>window::IssuesPanel</name>
    <message>
        <source>Issues of the label</source>
        <translation>Problèmes de l’étiquette</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2 fois)</translation>
    </message>
    <message>
        <source>Nothing was lost or changed.</source>
        <translation>Rien n’a été perdu ni modifié.</translation>
    </message>
    <message>
        <source>No label is open.</source>
        <translation>Aucune étiquette n’est ouverte.</translation>
    </message>
    <message>
        <source>Issue</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>What you can do</source>
        <translation>Ce que vous pouvez faire</translation>
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
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>no picture</source>
        <translation>aucune image</translation>
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
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Text below the bars</source>
        <translation>Texte sous les barres</translation>
    </message>
    <message>
        <source>Blank margins</source>
        <translation>Marges vides</translation>
    </message>
    <message>
        <source>Bearer bars</source>
        <translation>Barres de support</translation>
    </message>
    <message>
        <source>Check digit or columns</source>
        <translation>Chiffre de contrôle ou colonnes</translation>
    </message>
    <message>
        <source>Symbol size</source>
        <translation>Taille du symbole</translation>
    </message>
    <message>
        <source>Error correction</source>
        <translation>Correction d’erreurs</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Hauteur de page</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Page color</source>
        <translation>Couleur de page</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paysage</translation>
    </message>
    <message>
        <source>unknown (%1)</source>
        <translation>inconnu (%1)</translation>
    </message>
    <message>
        <source>different values</source>
        <translation>valeurs différentes</translation>
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
        <translation>ne peut pas être affiché</translation>
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
    <name>window::LabelListPanel</name>
    <message>
        <source>Filter by name</source>
        <translation>Filtrer par nom</translation>
    </message>
    <message>
        <source>Filter by state</source>
        <translation>Filtrer par état</translation>
    </message>
    <message>
        <source>All states</source>
        <translation>Tous les états</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>By state</source>
        <translation>Par état</translation>
    </message>
    <message>
        <source>Labels of the folder</source>
        <translation>Étiquettes du dossier</translation>
    </message>
    <message>
        <source>%1 of %2 labels</source>
        <translation>%1 étiquettes sur %2</translation>
    </message>
</context>
<context>
    <name>window::LabelSession</name>
    <message>
        <source>“%1” could not be saved.</source>
        <translation>Impossible d’enregistrer «&#xa0;%1&#xa0;».</translation>
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
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>window::LabelStates</name>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complète</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>With losses</source>
        <translation>Avec pertes</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>Corrigée</translation>
    </message>
</context>
<context>
    <name>window::Locks</name>
    <message>
        <source>%1 is read-only. To move it, clear “Read-only” in its properties.</source>
        <translation>%1 est en lecture seule. Pour le déplacer, décochez «&#xa0;Lecture seule&#xa0;» dans ses propriétés.</translation>
    </message>
    <message>
        <source>%1 belongs to the background. To move it, clear “Background” in its properties.</source>
        <translation>%1 appartient à l’arrière-plan. Pour le déplacer, décochez «&#xa0;Arrière-plan&#xa0;» dans ses propriétés.</translation>
    </message>
    <message>
        <source>%1 is locked. To move it, set “Movable” in its properties.</source>
        <translation>%1 est verrouillé. Pour le déplacer, cochez «&#xa0;Déplaçable&#xa0;» dans ses propriétés.</translation>
    </message>
</context>
<context>
    <name>window::Main</name>
    <message>
        <source>Opens legacy label templates, shows them, saves, exports and prints them.</source>
        <translation>Ouvre d’anciens modèles d’étiquettes, les affiche, les enregistre, les exporte et les imprime.</translation>
    </message>
    <message>
        <source>Writes a picture of the window to a PNG file, and exits.</source>
        <translation>Écrire une image de la fenêtre dans un fichier PNG et quitter.</translation>
    </message>
    <message numerus="yes">
        <source>A window shows one label, but %n files were given.</source>
        <translation>
            <numerusform>Une fenêtre affiche une seule étiquette, mais %n fichier a été indiqué.</numerusform>
            <numerusform>Une fenêtre affiche une seule étiquette, mais %n fichiers ont été indiqués.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot show a window: there is no display. Set DISPLAY or WAYLAND_DISPLAY, or use --screenshot.</source>
        <translation>Impossible d’afficher une fenêtre&#xa0;: aucun écran n’est disponible. Définissez DISPLAY ou WAYLAND_DISPLAY, ou utilisez --screenshot.</translation>
    </message>
    <message>
        <source>A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg; or a folder of labels.</source>
        <translation>Étiquette à ouvrir&#xa0;: *.label, *.cnv, *.roc, *.qmtx, *.odt ou *.odg&#xa0;; ou un dossier d’étiquettes.</translation>
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
        <source>Open &amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
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
        <translation>Une fenêtre affiche une seule étiquette&#xa0;: seul le premier fichier a été ouvert.</translation>
    </message>
    <message>
        <source>There are no labels in “%1”.</source>
        <translation>Il n’y a pas d’étiquettes dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Cannot open “%1”: %2</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>To show the data source, select texts or barcodes, then “Show in Selected Items”.</source>
        <translation>Pour afficher la source de données, sélectionnez des textes ou codes-barres, puis «&#xa0;Afficher dans les objets sélectionnés&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” contains too many files; the list of labels is not complete.</source>
        <translation>«&#xa0;%1&#xa0;» contient trop de fichiers&#xa0;; la liste des étiquettes n’est pas complète.</translation>
    </message>
    <message>
        <source>Opens legacy label templates; corrects, saves, exports and prints them.</source>
        <translation>Ouvre d’anciens modèles d’étiquettes&#xa0;; les corrige, enregistre, exporte et imprime.</translation>
    </message>
</context>
<context>
    <name>window::ManualDialog</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
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
        <source>Written: %1</source>
        <translation>Écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>The label could not be exported.</source>
        <translation>Impossible d’exporter l’étiquette.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>The label could not be printed.</source>
        <translation>Impossible d’imprimer l’étiquette.</translation>
    </message>
    <message>
        <source>Printing was stopped</source>
        <translation>Impression arrêtée</translation>
    </message>
    <message>
        <source>Print to PDF</source>
        <translation>Imprimer en PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot create a temporary folder: %1.</source>
        <translation>Impossible de créer un dossier temporaire&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) given to printer %1</source>
        <translation>
            <numerusform>%n page transmise à l’imprimante %1</numerusform>
            <numerusform>%n pages transmises à l’imprimante %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n file(s)</source>
        <translation>
            <numerusform>Arrêté après %n fichier</numerusform>
            <numerusform>Arrêté après %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written</source>
        <translation>
            <numerusform>%n fichier écrit</numerusform>
            <numerusform>%n fichiers écrits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PagePreview</name>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
</context>
<context>
    <name>window::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplaires</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>PDF file</source>
        <translation>Fichier PDF</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Pr&amp;inter</source>
        <translation>I&amp;mprimante</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplaires</translation>
    </message>
    <message>
        <source>Labels to print</source>
        <translation>Étiquettes à imprimer</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Adds labels of other files to the print</source>
        <translation>Ajoute des étiquettes d’autres fichiers à l’impression</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Add Labels</source>
        <translation>Ajouter des étiquettes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Labels (%1);;All files (*)</source>
        <translation>Étiquettes (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 – the preview shows its first labels only</source>
        <translation>%1 – l’aperçu ne montre que les premières étiquettes</translation>
    </message>
</context>
<context>
    <name>window::Prompts</name>
    <message>
        <source>Saved labels (*.label)</source>
        <translation>Étiquettes enregistrées (*.label)</translation>
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
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>All labels (%1)</source>
        <translation>Toutes les étiquettes (%1)</translation>
    </message>
    <message>
        <source>Legacy labels (%1)</source>
        <translation>Anciennes étiquettes (%1)</translation>
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
        <translation>Ctrl+Entrée termine la modification, Échap l’annule</translation>
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
        <source>Properties of the selected items</source>
        <translation>Propriétés des objets sélectionnés</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifier %1</translation>
    </message>
</context>
<context>
    <name>window::RecordChooser</name>
    <message>
        <source>The one &amp;shown (%1)</source>
        <translation>L’enregistrement a&amp;ffiché (%1)</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>A run of records</source>
        <translation>Une plage d’enregistrements</translation>
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
    <name>window::ReplacementFile</name>
    <message>
        <source>Replace Picture</source>
        <translation>Remplacer l’image</translation>
    </message>
    <message>
        <source>Cannot use &quot;%1&quot;: %2</source>
        <translation>Impossible d’utiliser «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>L’image est trop grande.</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;All files (*)</source>
        <translation>Images (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Replace Symbol</source>
        <translation>Remplacer le symbole</translation>
    </message>
    <message>
        <source>Drawings (*.svg);;All files (*)</source>
        <translation>Dessins (*.svg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The file is not an SVG drawing, or it is too large.</source>
        <translation>Le fichier n’est pas un dessin SVG, ou il est trop grand.</translation>
    </message>
</context>
<context>
    <name>window::RuledCanvas</name>
    <message>
        <source>Change between millimeters and inches</source>
        <translation>Basculer entre millimètres et pouces</translation>
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
    <name>window::SelectionTool</name>
    <message>
        <source>Rotate</source>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
</context>
<context>
    <name>window::SheetEditor</name>
    <message>
        <source>%1 – %2 × %3 labels of %4 × %5 mm</source>
        <translation>%1 – %2 × %3 étiquettes de %4 × %5 mm</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Width of a label</source>
        <translation>Largeur d’une étiquette</translation>
    </message>
    <message>
        <source>Height of a label</source>
        <translation>Hauteur d’une étiquette</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge supérieure</translation>
    </message>
    <message>
        <source>Gap between columns</source>
        <translation>Espace entre colonnes</translation>
    </message>
    <message>
        <source>Gap between rows</source>
        <translation>Espace entre lignes</translation>
    </message>
    <message>
        <source>First free position</source>
        <translation>Première position libre</translation>
    </message>
    <message>
        <source>Crop &amp;marks</source>
        <translation>T&amp;raits de coupe</translation>
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
        <translation>La taille de l’étiquette (%1 × %2 mm)</translation>
    </message>
    <message>
        <source>%1, as many labels as fit</source>
        <translation>%1, autant d’étiquettes que possible</translation>
    </message>
    <message>
        <source>Sheet with the measures below</source>
        <translation>Planche avec les mesures ci-dessous</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Columns, rows</source>
        <translation>Colonnes, lignes</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Left, top margin</source>
        <translation>Marge gauche, supérieure</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>&amp;First free position</source>
        <translation>&amp;Première position libre</translation>
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
    <name>window::SourceCommands</name>
    <message>
        <source>Connect CSV File</source>
        <translation>Connecter un fichier CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Fichiers CSV (*.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Edit Data Source</source>
        <translation>Modifier la source de données</translation>
    </message>
    <message>
        <source>Add Data Source</source>
        <translation>Ajouter une source de données</translation>
    </message>
    <message>
        <source>Show Data Source</source>
        <translation>Afficher la source de données</translation>
    </message>
</context>
<context>
    <name>window::SourceDialog</name>
    <message>
        <source>Shows</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>S&amp;tep</source>
        <translation>&amp;Pas</translation>
    </message>
    <message>
        <source>&amp;Digits, with zeros in front</source>
        <translation>&amp;Chiffres, avec zéros à gauche</translation>
    </message>
    <message>
        <source>Text &amp;before</source>
        <translation>Texte a&amp;vant</translation>
    </message>
    <message>
        <source>Text &amp;after</source>
        <translation>Texte a&amp;près</translation>
    </message>
    <message>
        <source>Date and Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Date</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Heure</translation>
    </message>
    <message>
        <source>List of Texts</source>
        <translation>Liste de textes</translation>
    </message>
    <message>
        <source>Texts, one on each line</source>
        <translation>Textes, un par ligne</translation>
    </message>
    <message>
        <source>&amp;Texts</source>
        <translation>&amp;Textes</translation>
    </message>
    <message>
        <source>One text on each line; \n is a line break in a text.</source>
        <translation>Un texte par ligne&#xa0;; \n est un saut de ligne dans un texte.</translation>
    </message>
    <message>
        <source>%1 (%2 records)</source>
        <translation>%1 (%2 enregistrements)</translation>
    </message>
</context>
<context>
    <name>window::SourcePanel</name>
    <message>
        <source>Data sources of the label</source>
        <translation>Sources de données de l’étiquette</translation>
    </message>
    <message>
        <source>Number of the record that is shown</source>
        <translation>Numéro de l’enregistrement affiché</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Record &amp;number</source>
        <translation>&amp;Numéro d’enregistrement</translation>
    </message>
    <message>
        <source>Data source</source>
        <translation>Source de données</translation>
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
        <translation>Valeur actuelle</translation>
    </message>
    <message>
        <source>CSV file</source>
        <translation>Fichier CSV</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
        <translation>Enregistrement %1 sur %2</translation>
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
        <translation>Zoom en pourcentage de la taille imprimée</translation>
    </message>
    <message>
        <source>Whole label</source>
        <translation>Étiquette entière</translation>
    </message>
</context>
<context>
    <name>window::StyleNames</name>
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
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
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
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>workbench::BarcodeEncoder</name>
    <message>
        <source>%1: the content has a length that this kind of barcode does not take%2.</source>
        <translation>%1&#xa0;: la longueur du contenu n’est pas admise pour ce type de code-barres%2.</translation>
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
        <source>%1: the content does not fit the barcode&apos;s settings%2.</source>
        <translation>%1&#xa0;: le contenu est incompatible avec les réglages du code-barres%2.</translation>
    </message>
    <message>
        <source>%1: the content is too much for the memory%2.</source>
        <translation>%1&#xa0;: mémoire insuffisante pour le contenu%2.</translation>
    </message>
    <message>
        <source>%1: the content cannot be encoded%2.</source>
        <translation>%1&#xa0;: le contenu ne peut pas être encodé%2.</translation>
    </message>
    <message>
        <source>There is not enough memory for the barcode.</source>
        <translation>Mémoire insuffisante pour le code-barres.</translation>
    </message>
    <message>
        <source>%1: the content needs a linear part, a &quot;|&quot; and a second part.</source>
        <translation>%1&#xa0;: le contenu doit comporter une partie linéaire, un «&#xa0;|&#xa0;» et une seconde partie.</translation>
    </message>
    <message>
        <source>%1: the content is too long for any barcode.</source>
        <translation>%1&#xa0;: le contenu est trop long pour un code-barres.</translation>
    </message>
    <message>
        <source>%1: the content gives no bars at all.</source>
        <translation>%1&#xa0;: le contenu ne produit aucune barre.</translation>
    </message>
    <message>
        <source>The label has an unknown kind of barcode (number %1).</source>
        <translation>L’étiquette contient un type de code-barres inconnu (numéro %1).</translation>
    </message>
    <message>
        <source>%1: there is no content to encode.</source>
        <translation>%1&#xa0;: aucun contenu à encoder.</translation>
    </message>
</context>
<context>
    <name>workbench::CsvTable</name>
    <message>
        <source>Line %1 has more than %2 columns.</source>
        <translation>La ligne %1 a plus de %2 colonnes.</translation>
    </message>
    <message>
        <source>Line %1 has text after a closing quotation mark.</source>
        <translation>La ligne %1 contient du texte après un guillemet fermant.</translation>
    </message>
    <message>
        <source>The quotation mark that begins in line %1 is not closed.</source>
        <translation>Le guillemet ouvert à la ligne %1 n’est pas fermé.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Line %1 has %2 fields; the first line has %3.</source>
        <translation>La ligne %1 a %2 champs&#xa0;; la première en a %3.</translation>
    </message>
    <message>
        <source>The file has more than %1 cells.</source>
        <translation>Le fichier a plus de %1 cellules.</translation>
    </message>
    <message>
        <source>The file has more than %1 bytes.</source>
        <translation>Le fichier a plus de %1 octets.</translation>
    </message>
    <message>
        <source>The file is not a text in this encoding.</source>
        <translation>Le fichier n’est pas un texte dans cet encodage.</translation>
    </message>
    <message>
        <source>The file has no records.</source>
        <translation>Le fichier n’a pas d’enregistrements.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;: %2.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::FailureText</name>
    <message>
        <source>Not a binary label, or one of an unsupported version: the file has version %1, the oldest supported version is 2000016.</source>
        <translation>Ce n’est pas une étiquette binaire, ou sa version n’est pas prise en charge&#xa0;: le fichier a la version %1, la plus ancienne version prise en charge est 2000016.</translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the first object has the unknown type %1.</source>
        <translation>Ce n’est pas une étiquette, ou elle est endommagée&#xa0;: le premier objet a le type inconnu %1.</translation>
    </message>
    <message>
        <source>Cannot open the file.</source>
        <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message>
        <source>The document is damaged: %1 is not well-formed at line %2, column %3 (%4).</source>
        <translation>Le document est endommagé&#xa0;: %1 n’est pas bien formé à la ligne %2, colonne %3 (%4).</translation>
    </message>
    <message>
        <source>Not a label, or a damaged one: the XML is not well-formed at line %2, column %3 (%4).</source>
        <translation>Ce n’est pas une étiquette, ou elle est endommagée&#xa0;: le XML n’est pas bien formé à la ligne %2, colonne %3 (%4).</translation>
    </message>
    <message>
        <source>The file is XML, but not a label: its root element is not &quot;qmtx&quot;.</source>
        <translation>Le fichier est en XML, mais n’est pas une étiquette&#xa0;: son élément racine n’est pas «&#xa0;qmtx&#xa0;».</translation>
    </message>
    <message>
        <source>Not an OpenDocument file, or a damaged one: styles.xml is missing or unreadable.</source>
        <translation>Ce n’est pas un fichier OpenDocument, ou il est endommagé&#xa0;: styles.xml est absent ou illisible.</translation>
    </message>
    <message>
        <source>The OpenDocument file is damaged: content.xml is missing or unreadable.</source>
        <translation>Le fichier OpenDocument est endommagé&#xa0;: content.xml est absent ou illisible.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file is too large for a label.</source>
        <translation>Le fichier est trop gros pour une étiquette.</translation>
    </message>
    <message>
        <source>The file has too many objects for a label.</source>
        <translation>Le fichier contient trop d’objets pour une étiquette.</translation>
    </message>
    <message>
        <source>The file contains nothing to put on a label.</source>
        <translation>Le fichier ne contient rien à placer sur une étiquette.</translation>
    </message>
</context>
<context>
    <name>workbench::FileCheck</name>
    <message>
        <source>No file was named.</source>
        <translation>Aucun fichier n’a été indiqué.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
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
        <translation>Impossible d’ouvrir le fichier&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The link points to a file that does not exist.</source>
        <translation>Le lien pointe vers un fichier qui n’existe pas.</translation>
    </message>
    <message>
        <source>The file is a zip package, as OpenDocument files are, but it was read as &quot;%1&quot;. If it is an OpenDocument file, rename it so that it ends in &quot;.odt&quot; or &quot;.odg&quot;, or use --reader %2.</source>
        <translation>Le fichier est une archive zip, comme les fichiers OpenDocument, mais il a été lu comme «&#xa0;%1&#xa0;». S’il s’agit d’un fichier OpenDocument, renommez-le pour qu’il se termine par «&#xa0;.odt&#xa0;» ou «&#xa0;.odg&#xa0;», ou utilisez --reader %2.</translation>
    </message>
    <message>
        <source>The file is XML, but it was read as &quot;%1&quot;. If it is an XML label, rename it so that it ends in &quot;.qmtx&quot;, or use --reader %2.</source>
        <translation>Le fichier est en XML, mais il a été lu comme «&#xa0;%1&#xa0;». S’il s’agit d’une étiquette XML, renommez-le pour qu’il se termine par «&#xa0;.qmtx&#xa0;», ou utilisez --reader %2.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Open it in an office program, save it without a password, and import it again.</source>
        <translation>Le document est protégé par un mot de passe. Ouvrez-le dans un logiciel bureautique, enregistrez-le sans mot de passe et importez-le de nouveau.</translation>
    </message>
</context>
<context>
    <name>workbench::IssueText</name>
    <message>
        <source>Left out an object of the unknown type &quot;%1&quot;.</source>
        <translation>Un objet du type inconnu «&#xa0;%1&#xa0;» a été omis.</translation>
    </message>
    <message>
        <source>The document is neither a text nor a drawing; nothing was imported from it.</source>
        <translation>Le document n’est ni un texte ni un dessin&#xa0;; rien n’en a été importé.</translation>
    </message>
    <message>
        <source>The file continues with an object of the unknown type %1; the rest was not read.</source>
        <translation>Le fichier se poursuit par un objet du type inconnu %1&#xa0;; le reste n’a pas été lu.</translation>
    </message>
    <message>
        <source>Left out symbols: neither the file nor the symbol databases contain their drawings.</source>
        <translation>Des symboles ont été omis&#xa0;: ni le fichier ni les bases de symboles ne contiennent leurs dessins.</translation>
    </message>
    <message>
        <source>Left out barcodes of unsupported types.</source>
        <translation>Des codes-barres de types non pris en charge ont été omis.</translation>
    </message>
    <message>
        <source>The database is no longer connected; the label shows its last values.</source>
        <translation>La base de données n’est plus connectée&#xa0;; l’étiquette affiche ses dernières valeurs.</translation>
    </message>
    <message>
        <source>Left out an object that the program could not create.</source>
        <translation>Un objet que le programme n’a pas pu créer a été omis.</translation>
    </message>
    <message>
        <source>Left out a data source that the program could not create.</source>
        <translation>Une source de données que le programme n’a pas pu créer a été omise.</translation>
    </message>
    <message>
        <source>Left out a picture that is too large.</source>
        <translation>Une image trop grande a été omise.</translation>
    </message>
    <message>
        <source>Left out a picture of an unsupported format.</source>
        <translation>Une image d’un format non pris en charge a été omise.</translation>
    </message>
    <message>
        <source>Left out a picture that is damaged or too large.</source>
        <translation>Une image endommagée ou trop grande a été omise.</translation>
    </message>
    <message>
        <source>Left out a text that is too long.</source>
        <translation>Un texte trop long a été omis.</translation>
    </message>
    <message>
        <source>The file has too many objects; the rest was not read.</source>
        <translation>Le fichier contient trop d’objets&#xa0;; le reste n’a pas été lu.</translation>
    </message>
    <message>
        <source>Further texts were stretched; they are not listed.</source>
        <translation>D’autres textes ont été étirés&#xa0;; ils ne sont pas listés.</translation>
    </message>
    <message>
        <source>A file in the package is missing, damaged or too large.</source>
        <translation>Un fichier de l’archive est absent, endommagé ou trop gros.</translation>
    </message>
    <message>
        <source>Left out a drawing that cannot be converted.</source>
        <translation>Un dessin qui ne peut pas être converti a été omis.</translation>
    </message>
    <message>
        <source>Text &quot;%1&quot; was stretched; its font size was %2 pt.</source>
        <translation>Le texte «&#xa0;%1&#xa0;» a été étiré&#xa0;; sa taille de police était %2 pt.</translation>
    </message>
</context>
<context>
    <name>workbench::LabelFile</name>
    <message>
        <source>The label cannot be saved as %1: %2.</source>
        <translation>Impossible d’enregistrer l’étiquette sous %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened: %2.</source>
        <translation>Impossible d’ouvrir le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it has more than %1 items</source>
        <translation>elle contient plus de %1 objets</translation>
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
        <translation>il est trop gros pour une étiquette</translation>
    </message>
    <message>
        <source>The label file is damaged: its data sources do not fit together.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: ses sources de données sont incohérentes.</translation>
    </message>
    <message>
        <source>The file is not a saved label.</source>
        <translation>Le fichier n’est pas une étiquette enregistrée.</translation>
    </message>
    <message>
        <source>The label file is damaged: version is not a positive whole number.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: version doit être un nombre entier positif.</translation>
    </message>
    <message>
        <source>The label was saved by a newer version of the program: its format is %1, and this version knows formats up to %2. Update the program to open it.</source>
        <translation>L’étiquette a été enregistrée par une version plus récente du programme&#xa0;: son format est %1, et cette version prend en charge les formats jusqu’à %2. Mettez le programme à jour pour l’ouvrir.</translation>
    </message>
    <message>
        <source>The label file is damaged: label is missing.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: label est absent.</translation>
    </message>
    <message>
        <source>The label file is damaged: its content has changed since it was saved.</source>
        <translation>Le fichier d’étiquette est endommagé&#xa0;: son contenu a changé depuis son enregistrement.</translation>
    </message>
    <message>
        <source>The file is not a saved label, or it is damaged: after %1 bytes it cannot be read any further.</source>
        <translation>Le fichier n’est pas une étiquette enregistrée, ou il est endommagé&#xa0;: il est illisible après %1 octets.</translation>
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
        <translation>Le fichier d’étiquette est endommagé&#xa0;: son contenu dépasse les limites d’une étiquette.</translation>
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
        <translation>Mémoire insuffisante pour ce fichier.</translation>
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
        <translation>La page dépasse %1 points, la longueur maximale d’un document PDF.</translation>
    </message>
</context>
<context>
    <name>workbench::PageImage</name>
    <message>
        <source>The page is %1 by %2 points, which gives a picture of %3 by %4 pixels at %5 dots per inch. The largest picture is %6 pixels along a side and %7 million in all.</source>
        <translation>La page mesure %1 sur %2 points, ce qui donne une image de %3 sur %4 pixels à %5 points par pouce. Une image est limitée à %6 pixels de côté et à %7 millions de pixels au total.</translation>
    </message>
    <message>
        <source> Up to %1 dots per inch are possible.</source>
        <translation> La résolution maximale est de %1 points par pouce.</translation>
    </message>
    <message>
        <source>The resolution must be above 0 dots per inch.</source>
        <translation>La résolution doit être supérieure à 0 point par pouce.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 by %2 pixels.</source>
        <translation>Mémoire insuffisante pour une image de %1 sur %2 pixels.</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>workbench::ShapeKinds</name>
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
</context>
<context>
    <name>workbench::SymbolDatabase</name>
    <message>
        <source>the file does not exist</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it has no table of symbols</source>
        <translation>elle ne contient pas de table de symboles</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>elle est illisible</translation>
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
