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
    <name>desktop::Actions</name>
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
    <name>desktop::CanvasView</name>
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
    <name>desktop::ExportDialog</name>
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
    <name>desktop::ImportCommand</name>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>La mémoire ne suffit pas pour ce fichier.</translation>
    </message>
</context>
<context>
    <name>desktop::IssueListModel</name>
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
    <name>desktop::IssuesPanel</name>
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
    <name>desktop::ItemDescription</name>
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
    <name>desktop::ItemPanel</name>
    <message>
        <source>Items of the label</source>
        <translation>Objets de l’étiquette</translation>
    </message>
</context>
<context>
    <name>desktop::ItemTableModel</name>
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
    <name>desktop::LabelDesk</name>
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
    <name>desktop::MainWindow</name>
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
    <name>desktop::MoveItems</name>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
</context>
<context>
    <name>desktop::OutputCommands</name>
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
    <name>desktop::OutputJob</name>
    <message>
        <source>The printer did not take the pages. See that it is switched on and connected, or print into a PDF file with “Export”.</source>
        <translation>L’imprimante n’a pas accepté les pages. Vérifiez qu’elle est allumée et connectée, ou imprimez dans un fichier PDF avec «&#xa0;Exporter&#xa0;».</translation>
    </message>
</context>
<context>
    <name>desktop::Prompts</name>
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
    <name>desktop::PropertyModel</name>
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
    <name>desktop::PropertyPanel</name>
    <message>
        <source>Properties of the selected item</source>
        <translation>Propriétés de l’objet sélectionné</translation>
    </message>
</context>
<context>
    <name>desktop::RecordChooser</name>
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
    <name>desktop::RuledCanvas</name>
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
    <name>desktop::Ruler</name>
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
    <name>desktop::ShortcutsDialog</name>
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
    <name>desktop::SourcePanel</name>
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
    <name>desktop::SourceTableModel</name>
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
    <name>desktop::StatusLine</name>
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
    <name>desktop::StyleNames</name>
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
    <name>desktop::WelcomePage</name>
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
    <name>desktop::WindowPanels</name>
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
    <name>workbench::FieldWords</name>
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
