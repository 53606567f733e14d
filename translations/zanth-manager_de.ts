<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessibleNames</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>BackupComparison</name>
    <message>
        <source>The backup of %1</source>
        <translation>Die Sicherungskopie von %1</translation>
    </message>
    <message>
        <source>%1 on the disk</source>
        <translation>%1 auf dem Datenträger</translation>
    </message>
    <message>
        <source>%1 now</source>
        <translation>%1 jetzt</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>1 line changed</source>
        <translation>1 Zeile geändert</translation>
    </message>
    <message>
        <source>%1 lines changed</source>
        <translation>%1 Zeilen geändert</translation>
    </message>
    <message>
        <source>1 value changed</source>
        <translation>1 Wert geändert</translation>
    </message>
    <message>
        <source>%1 values changed</source>
        <translation>%1 Werte geändert</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
    <message>
        <source>%1 in %2 documents</source>
        <translation>%1 in %2 Dokumenten</translation>
    </message>
    <message>
        <source>Converted to 1.4/1.5: %1</source>
        <translation>In 1.4/1.5 umgewandelt: %1</translation>
    </message>
    <message>
        <source>%1 reloaded: %2</source>
        <translation>%1 neu geladen: %2</translation>
    </message>
    <message>
        <source>Backup put back: %1</source>
        <translation>Sicherungskopie zurückgeholt: %1</translation>
    </message>
    <message>
        <source>%1 saved, %2 bytes</source>
        <translation>%1 gespeichert, %2 Bytes</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Reiter schließen</translation>
    </message>
</context>
<context>
    <name>DifferenceWindow</name>
    <message>
        <source>no line end</source>
        <translation>kein Zeilenende</translation>
    </message>
</context>
<context>
    <name>DocumentGuard</name>
    <message numerus="yes">
        <source>%1 byte(s)</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>Names that differ only in the case of letters are several files. Open %1?</source>
        <translation>Namen, die sich nur in Groß- und Kleinschreibung unterscheiden, sind mehrere Dateien. %1 öffnen?</translation>
    </message>
    <message>
        <source>%1 is not there. Open %2?</source>
        <translation>%1 ist nicht vorhanden. %2 öffnen?</translation>
    </message>
    <message>
        <source>%1 is open in another tab. Write this document over its file?</source>
        <translation>%1 ist in einem anderen Reiter geöffnet. Die Datei mit diesem Dokument überschreiben?</translation>
    </message>
    <message>
        <source>%1 already exists (%2, changed %3).
Replace it with this document (%4)?</source>
        <translation>%1 ist bereits vorhanden (%2, geändert %3).
Durch dieses Dokument (%4) ersetzen?</translation>
    </message>
    <message>
        <source>%1 is read-only. Save over it and make it writable?</source>
        <translation>%1 ist schreibgeschützt. Trotzdem speichern und den Schreibschutz aufheben?</translation>
    </message>
</context>
<context>
    <name>DocumentReplace</name>
    <message>
        <source>Another command is still on its way.</source>
        <translation>Ein anderer Befehl läuft noch.</translation>
    </message>
    <message>
        <source>Nothing was found to replace.</source>
        <translation>Es wurde nichts zum Ersetzen gefunden.</translation>
    </message>
</context>
<context>
    <name>Expression</name>
    <message>
        <source>The expression is not valid: %1 (at character %2).</source>
        <translation>Der Ausdruck ist ungültig: %1 (bei Zeichen %2).</translation>
    </message>
    <message>
        <source>The expression is not valid: it can call a group of its own, as (?1), but not itself.</source>
        <translation>Der Ausdruck ist ungültig: Er darf eine seiner Gruppen aufrufen, etwa (?1), aber nicht sich selbst.</translation>
    </message>
    <message>
        <source>The expression is too complex for this text.</source>
        <translation>Der Ausdruck ist für diesen Text zu aufwendig.</translation>
    </message>
    <message>
        <source>The expression is not valid: %1.</source>
        <translation>Der Ausdruck ist ungültig: %1.</translation>
    </message>
</context>
<context>
    <name>HelpWindows</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Manual of Zanth Manager</source>
        <translation>Handbuch zu Zanth Manager</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
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
    <name>MatchScan</name>
    <message>
        <source>The search takes too long in this text.</source>
        <translation>Die Suche dauert in diesem Text zu lange.</translation>
    </message>
</context>
<context>
    <name>Navigator</name>
    <message>
        <source>There is no name at the caret.</source>
        <translation>An der Schreibmarke steht kein Name.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not defined in an open document.</source>
        <translation>„%1“ ist in keinem geöffneten Dokument definiert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined here and nowhere else.</source>
        <translation>„%1“ ist hier definiert und sonst nirgends.</translation>
    </message>
    <message>
        <source>Definition %1 of %2 of &quot;%3&quot;</source>
        <translation>Definition %1 von %2 für „%3“</translation>
    </message>
</context>
<context>
    <name>PanelGuard</name>
    <message>
        <source>Nothing is selected: %1 would be inserted into line %2.
Insert it?</source>
        <translation>Es ist nichts ausgewählt: %1 würde in Zeile %2 eingefügt.
Einfügen?</translation>
    </message>
</context>
<context>
    <name>PanelQuestions</name>
    <message>
        <source>%1 would replace %2 in line %3, which is no define.
Replace it?</source>
        <translation>%1 würde %2 in Zeile %3 ersetzen, die kein define ist.
Ersetzen?</translation>
    </message>
    <message>
        <source>%1 would replace %2 in line %3, which is no definelevelname.
Replace it?</source>
        <translation>%1 würde %2 in Zeile %3 ersetzen, die kein definelevelname ist.
Ersetzen?</translation>
    </message>
    <message>
        <source>%1 would replace %2 in line %3, where you do not see it selected.
Replace it?</source>
        <translation>%1 würde %2 in Zeile %3 ersetzen, ohne dass dort eine Auswahl zu sehen ist.
Ersetzen?</translation>
    </message>
</context>
<context>
    <name>ProblemFix</name>
    <message>
        <source>Another command is still on its way.</source>
        <translation>Ein anderer Befehl läuft noch.</translation>
    </message>
    <message>
        <source>The text has changed since it was checked; nothing is fixed.</source>
        <translation>Der Text hat sich seit der Prüfung geändert; nichts wurde behoben.</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>what is left of %1 (%2)</source>
        <translation>was von %1 übrig ist (%2)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>%1 on the disk</source>
        <translation>%1 auf dem Datenträger</translation>
    </message>
    <message>
        <source>No file of %1</source>
        <translation>Keine Datei von %1</translation>
    </message>
    <message>
        <source>The unsaved text of %1</source>
        <translation>Der nicht gespeicherte Text von %1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Nach links rollen</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Nach rechts rollen</translation>
    </message>
</context>
<context>
    <name>ReplaceMatches</name>
    <message>
        <source>The text would have more than 512 MiB, which the editor cannot show.</source>
        <translation>Der Text hätte mehr als 512 MiB; so viel kann der Editor nicht zeigen.</translation>
    </message>
</context>
<context>
    <name>Replacement</name>
    <message>
        <source>&quot;%1&quot; means nothing in a replacement. For a &quot;\&quot; write &quot;\\&quot;.</source>
        <translation>„%1“ hat in einem Ersatztext keine Bedeutung. Für „\“ steht „\\“.</translation>
    </message>
    <message>
        <source>The expression has no group %1.</source>
        <translation>Der Ausdruck hat keine Gruppe %1.</translation>
    </message>
</context>
<context>
    <name>ScintillaMirror</name>
    <message>
        <source>A character that cannot be stored in a CON file was not inserted.</source>
        <translation>Ein Zeichen, das eine CON-Datei nicht aufnehmen kann, wurde nicht eingefügt.</translation>
    </message>
</context>
<context>
    <name>TextCommands</name>
    <message>
        <source>Go to Line</source>
        <translation>Zu Zeile gehen</translation>
    </message>
    <message>
        <source>&amp;Line, 1 to %1:</source>
        <translation>&amp;Zeile, 1 bis %1:</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Los</translation>
    </message>
</context>
<context>
    <name>tessel</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Close O&amp;thers</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>Sicherungs&amp;kopien...</translation>
    </message>
    <message>
        <source>Reopen &amp;Documents at Start</source>
        <translation>&amp;Dokumente beim Start wieder öffnen</translation>
    </message>
    <message>
        <source>Allow Auto&amp;mation by Other Programs</source>
        <translation>Auto&amp;matisierung durch andere Programme zulassen</translation>
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
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles a&amp;uswählen</translation>
    </message>
    <message>
        <source>C&amp;omment Lines On or Off</source>
        <translation>K&amp;ommentarzeilen ein oder aus</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>Ei&amp;nstellungen...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find as You &amp;Type</source>
        <translation>Beim &amp;Tippen suchen</translation>
    </message>
    <message>
        <source>Next &amp;Match</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>&amp;Previous Match</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>&amp;Ersetzen...</translation>
    </message>
    <message>
        <source>Go to &amp;Line...</source>
        <translation>Zu &amp;Zeile gehen...</translation>
    </message>
    <message>
        <source>&amp;Settings Panel</source>
        <translation>&amp;Spielwerte</translation>
    </message>
    <message>
        <source>&amp;Colorize</source>
        <translation>Ein&amp;färben</translation>
    </message>
    <message>
        <source>&amp;Live Colours</source>
        <translation>Farben beim &amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Word Wrap</source>
        <translation>&amp;Zeilenumbruch</translation>
    </message>
    <message>
        <source>Show &amp;Blanks</source>
        <translation>&amp;Leerzeichen zeigen</translation>
    </message>
    <message>
        <source>&amp;Ruler at Column 80</source>
        <translation>&amp;Randlinie in Spalte 80</translation>
    </message>
    <message>
        <source>Wor&amp;ds on the Toolbar</source>
        <translation>&amp;Wörter in der Werkzeugleiste</translation>
    </message>
    <message>
        <source>Randomize &amp;All Sections</source>
        <translation>&amp;Alle Abschnitte auswürfeln</translation>
    </message>
    <message>
        <source>Randomize &amp;Player Items</source>
        <translation>&amp;Spielerwerte auswürfeln</translation>
    </message>
    <message>
        <source>Randomize &amp;Weapon Items</source>
        <translation>&amp;Waffenwerte auswürfeln</translation>
    </message>
    <message>
        <source>Randomize &amp;Enemy Items</source>
        <translation>&amp;Gegnerwerte auswürfeln</translation>
    </message>
    <message>
        <source>Randomize &amp;Misc Items</source>
        <translation>S&amp;onstige Werte auswürfeln</translation>
    </message>
    <message>
        <source>&amp;Convert to Version 1.5</source>
        <translation>In Version 1.5 &amp;umwandeln</translation>
    </message>
    <message>
        <source>Comment &amp;Block /* */</source>
        <translation>&amp;Block auskommentieren /* */</translation>
    </message>
    <message>
        <source>Comment &amp;Line //</source>
        <translation>&amp;Zeile auskommentieren //</translation>
    </message>
    <message>
        <source>&amp;Remove Remark</source>
        <translation>Kommentar &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Uppercase</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>Lo&amp;wercase</source>
        <translation>&amp;Kleinbuchstaben</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>Ein&amp;rücken</translation>
    </message>
    <message>
        <source>&amp;Parameter Info</source>
        <translation>&amp;Parameter anzeigen</translation>
    </message>
    <message>
        <source>&amp;Next Document</source>
        <translation>&amp;Nächstes Dokument</translation>
    </message>
    <message>
        <source>&amp;Previous Document</source>
        <translation>&amp;Voriges Dokument</translation>
    </message>
    <message>
        <source>&amp;Last Used Document</source>
        <translation>&amp;Zuletzt benutztes Dokument</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Zanth Manager</source>
        <translation>Ü&amp;ber Zanth Manager</translation>
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
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>Spie&amp;l</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>S&amp;how Last Changes</source>
        <translation>Letzte Änderungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Scroll Bar &amp;Marks</source>
        <translation>&amp;Marken an der Bildlaufleiste</translation>
    </message>
    <message>
        <source>Second &amp;View</source>
        <translation>Zwei&amp;te Ansicht</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Probleme</translation>
    </message>
</context>
<context>
    <name>tessel::AboutDialog</name>
    <message>
        <source>About Zanth Manager</source>
        <translation>Über Zanth Manager</translation>
    </message>
    <message>
        <source>Zanth Manager %1</source>
        <translation>Zanth Manager %1</translation>
    </message>
    <message>
        <source>An editor for CON files.</source>
        <translation>Ein Editor für CON-Dateien.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3, with icons of its own. It uses Qt %1 (LGPL 3), QScintilla (GPL 3) with Scintilla (a permissive licence), SQLite (public domain), and the fonts of the desktop.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3, mit eigenen Symbolen. Sie benutzt Qt %1 (LGPL 3), QScintilla (GPL 3) mit Scintilla (eine freizügige Lizenz), SQLite (gemeinfrei) und die Schriften der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>&amp;Settings:</source>
        <translation>&amp;Einstellungen:</translation>
    </message>
    <message>
        <source>&amp;Backups:</source>
        <translation>&amp;Sicherungskopien:</translation>
    </message>
    <message>
        <source>&amp;Unsaved text:</source>
        <translation>&amp;Nicht gespeicherter Text:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the folder: %1</source>
        <translation>Den Ordner öffnen: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the path: %1</source>
        <translation>Den Pfad kopieren: %1</translation>
    </message>
</context>
<context>
    <name>tessel::Automation</name>
    <message>
        <source>The control is not offered to other programs: there is no bus (%1).</source>
        <translation>Das Steuerelement wird anderen Programmen nicht angeboten: Es gibt keinen Bus (%1).</translation>
    </message>
    <message>
        <source>The control is not offered to other programs: %1 is taken already.</source>
        <translation>Das Steuerelement wird anderen Programmen nicht angeboten: %1 ist bereits vergeben.</translation>
    </message>
</context>
<context>
    <name>tessel::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Sicherungskopien</translation>
    </message>
    <message>
        <source>&amp;What saving has replaced, the current document&apos;s file first:</source>
        <translation>&amp;Was beim Speichern ersetzt wurde, zuerst die Datei des aktuellen Dokuments:</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>There are none yet: no save has replaced other text.</source>
        <translation>Es gibt noch keine: Kein Speichern hat bisher anderen Text ersetzt.</translation>
    </message>
    <message>
        <source>It is opened as a changed document. Its file stays as it is until you save.</source>
        <translation>Sie wird als geändertes Dokument geöffnet. Ihre Datei bleibt bis zum Speichern, wie sie ist.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschädigt)</translation>
    </message>
    <message>
        <source>Co&amp;mpare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Show what has changed in the text since then</source>
        <translation>Zeigen, was sich im Text seitdem geändert hat</translation>
    </message>
</context>
<context>
    <name>tessel::BusName</name>
    <message>
        <source>The bus does not give the name %1: %2</source>
        <translation>Der Bus vergibt den Namen %1 nicht: %2</translation>
    </message>
    <message>
        <source>The name %1 on the bus is taken by another program.</source>
        <translation>Der Name %1 auf dem Bus ist von einem anderen Programm belegt.</translation>
    </message>
</context>
<context>
    <name>tessel::ChangeLine</name>
    <message>
        <source>What has changed</source>
        <translation>Was sich geändert hat</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Show changes: %1</source>
        <translation>Änderungen zeigen: %1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
</context>
<context>
    <name>tessel::ChangeNotice</name>
    <message>
        <source>File changed</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>Rel&amp;oad</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Eigenen Text behalten</translation>
    </message>
    <message>
        <source>%1 is gone from the disk. The text is still here.</source>
        <translation>%1 ist vom Datenträger verschwunden. Der Text ist noch da.</translation>
    </message>
    <message>
        <source>%1 has been changed by another program.</source>
        <translation>%1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Reload %1 and drop your changes?
Your text is kept among the backups (File &gt; Backups).</source>
        <translation>%1 neu laden und die eigenen Änderungen verwerfen?
Der eigene Text bleibt als Sicherungskopie erhalten (Datei &gt; Sicherungskopien).</translation>
    </message>
    <message>
        <source>Show D&amp;ifferences</source>
        <translation>Unterschiede zei&amp;gen</translation>
    </message>
    <message>
        <source>%1 here</source>
        <translation>%1 hier</translation>
    </message>
    <message>
        <source>%1 on the disk</source>
        <translation>%1 auf dem Datenträger</translation>
    </message>
</context>
<context>
    <name>tessel::ChangeReports</name>
    <message>
        <source>The backup is a new document.</source>
        <translation>Die Sicherungskopie ist ein neues Dokument.</translation>
    </message>
    <message>
        <source>The backup is the text that is there.</source>
        <translation>Die Sicherungskopie ist gleich dem jetzigen Text.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 vorher</translation>
    </message>
    <message>
        <source>%1 now</source>
        <translation>%1 jetzt</translation>
    </message>
</context>
<context>
    <name>tessel::Completion</name>
    <message>
        <source>The caret is in a comment.</source>
        <translation>Die Schreibmarke steht in einem Kommentar.</translation>
    </message>
    <message>
        <source>No word and no name begins with &quot;%1&quot;.</source>
        <translation>Kein Wort und kein Name beginnt mit „%1“.</translation>
    </message>
    <message>
        <source>There is no script word in front of the caret.</source>
        <translation>Vor der Schreibmarke steht kein Skriptwort.</translation>
    </message>
</context>
<context>
    <name>tessel::ControlObject</name>
    <message>
        <source>The control is gone.</source>
        <translation>Das Steuerelement ist nicht mehr da.</translation>
    </message>
    <message>
        <source>A dialog is open. Call again when the user has closed it.</source>
        <translation>Ein Dialog ist geöffnet. Der Aufruf ist nach dem Schließen zu wiederholen.</translation>
    </message>
    <message>
        <source>A menu is open. Call again when the user has closed it.</source>
        <translation>Ein Menü ist geöffnet. Der Aufruf ist nach dem Schließen zu wiederholen.</translation>
    </message>
    <message>
        <source>The editor is busy. Call again when the current command has finished.</source>
        <translation>Ein Befehl läuft. Der Aufruf ist nach seinem Ende zu wiederholen.</translation>
    </message>
</context>
<context>
    <name>tessel::ConversionNotice</name>
    <message>
        <source>Document converted</source>
        <translation>Dokument umgewandelt</translation>
    </message>
    <message>
        <source>&amp;Undo Convert</source>
        <translation>Umwandlung &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>Keep Co&amp;nverted</source>
        <translation>&amp;Umgewandeltes behalten</translation>
    </message>
    <message>
        <source>%1 has been converted. The text from before can be put back until you change it.</source>
        <translation>%1 wurde umgewandelt. Der vorige Text kann bis zur nächsten Änderung zurückgeholt werden.</translation>
    </message>
</context>
<context>
    <name>tessel::DifferenceModel</name>
    <message>
        <source>%1 equal lines</source>
        <translation>%1 gleiche Zeilen</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
</context>
<context>
    <name>tessel::DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
</context>
<context>
    <name>tessel::DifferenceWindow</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Voriger</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächster</translation>
    </message>
    <message>
        <source>Comparing...</source>
        <translation>Wird verglichen...</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Kein Unterschied</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The texts differ in so much that this is a rough comparison.</source>
        <translation>Die Texte unterscheiden sich so sehr, dass dies ein grober Vergleich ist.</translation>
    </message>
</context>
<context>
    <name>tessel::DocumentMenus</name>
    <message>
        <source>Empty Document</source>
        <translation>Leeres Dokument</translation>
    </message>
    <message>
        <source>No Recent Files</source>
        <translation>Keine zuletzt geöffneten Dateien</translation>
    </message>
</context>
<context>
    <name>tessel::DocumentStatus</name>
    <message>
        <source>Mixed</source>
        <translation>Gemischt</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Characters that are selected</source>
        <translation>Anzahl der ausgewählten Zeichen</translation>
    </message>
    <message>
        <source>Ln %1, Col %2</source>
        <translation>Z. %1, Sp. %2</translation>
    </message>
    <message>
        <source>Line and column of the caret</source>
        <translation>Zeile und Spalte der Schreibmarke</translation>
    </message>
    <message>
        <source>How the bytes of the file are shown</source>
        <translation>Wie die Bytes der Datei dargestellt werden</translation>
    </message>
    <message>
        <source>How the lines end</source>
        <translation>Wie die Zeilen enden</translation>
    </message>
    <message>
        <source>The version of the game that the text is for</source>
        <translation>Die Version des Spiels, für die der Text ist</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>tessel::FindBar</name>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Loo&amp;k for:</source>
        <translation>Su&amp;chen nach:</translation>
    </message>
    <message>
        <source>More than 10,000</source>
        <translation>Mehr als 10.000</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Previous match (Shift+Enter)</source>
        <translation>Voriger Treffer (Umschalt+Eingabe)</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Next match (Enter)</source>
        <translation>Nächster Treffer (Eingabe)</translation>
    </message>
    <message>
        <source>&amp;Case</source>
        <translation>&amp;Groß/klein</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Wor&amp;d</source>
        <translation>&amp;Wort</translation>
    </message>
    <message>
        <source>Whole words only</source>
        <translation>Nur ganze Wörter</translation>
    </message>
    <message>
        <source>Rege&amp;x</source>
        <translation>R&amp;egex</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Es ist nichts ausgewählt.</translation>
    </message>
    <message>
        <source>The search went on from the top.</source>
        <translation>Die Suche wurde am Anfang fortgesetzt.</translation>
    </message>
    <message>
        <source>The search went on from the end.</source>
        <translation>Die Suche wurde am Ende fortgesetzt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in this document.</source>
        <translation>„%1“ kommt in diesem Dokument nicht vor.</translation>
    </message>
    <message>
        <source>Not valid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Too complex</source>
        <translation>Zu aufwendig</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Kein Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n match(es)</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessel::FirstStartHint</name>
    <message>
        <source>What to do first</source>
        <translation>Was zuerst zu tun ist</translation>
    </message>
    <message>
        <source>Open a CON file (Ctrl+O), or make one with File &gt; New. The pages above the text change its values. Text that is not saved is kept, and offered again after a crash.</source>
        <translation>Öffnen Sie eine CON-Datei (Strg+O) oder legen Sie eine mit Datei &gt; Neu an. Die Seiten über dem Text ändern ihre Werte. Nicht gespeicherter Text bleibt erhalten und wird nach einem Absturz wieder angeboten.</translation>
    </message>
    <message>
        <source>&amp;Manual (F1)</source>
        <translation>&amp;Handbuch (F1)</translation>
    </message>
    <message>
        <source>&amp;Close Hint</source>
        <translation>Hinweis s&amp;chließen</translation>
    </message>
</context>
<context>
    <name>tessel::HostAutomation</name>
    <message>
        <source>Other programs cannot use the control: %1.</source>
        <translation>Andere Programme können das Steuerelement nicht verwenden: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::LiveCheck</name>
    <message>
        <source>There is not enough memory for the check.</source>
        <translation>Für die Prüfung ist nicht genug Speicher da.</translation>
    </message>
</context>
<context>
    <name>tessel::MainMenu</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>tessel::MainWindow</name>
    <message>
        <source>Zanth Manager[*]</source>
        <translation>Zanth Manager[*]</translation>
    </message>
    <message>
        <source>Your text cannot be kept: %1. The file is not reloaded.</source>
        <translation>Der eigene Text kann nicht aufbewahrt werden: %1. Die Datei wird nicht neu geladen.</translation>
    </message>
    <message>
        <source>The backups cannot be read: %1.</source>
        <translation>Die Sicherungskopien können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The backup is damaged. This is what is left of it.</source>
        <translation>Die Sicherungskopie ist beschädigt. Dies ist, was davon übrig ist.</translation>
    </message>
    <message>
        <source>The backup cannot be read: %1.</source>
        <translation>Die Sicherungskopie kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>Text that an earlier run kept in %1 cannot be read: %2.</source>
        <translation>Text, der bei einem früheren Lauf in %1 aufbewahrt wurde, kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Not there any more and not opened again: %1</source>
        <translation>Nicht mehr vorhanden und nicht wieder geöffnet: %1</translation>
    </message>
    <message>
        <source>[*] — Zanth Manager</source>
        <translation>[*] — Zanth Manager</translation>
    </message>
    <message>
        <source>The backup cannot be compared: %1.</source>
        <translation>Die Sicherungskopie kann nicht verglichen werden: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::MarkStrip</name>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>Where the matches and the changed lines are</source>
        <translation>Wo die Treffer und die geänderten Zeilen sind</translation>
    </message>
    <message>
        <source>Match %1 of %2, line %3</source>
        <translation>Treffer %1 von %2, Zeile %3</translation>
    </message>
    <message>
        <source>Line %1, changed</source>
        <translation>Zeile %1, geändert</translation>
    </message>
    <message>
        <source>Lines %1 to %2, changed</source>
        <translation>Zeilen %1 bis %2, geändert</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
<context>
    <name>tessel::OutlineDock</name>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
</context>
<context>
    <name>tessel::OutlineModel</name>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Actors</source>
        <translation>Akteure</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Bewegungen</translation>
    </message>
    <message>
        <source>AIs</source>
        <translation>KIs</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>Definitionen</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
</context>
<context>
    <name>tessel::OutlinePane</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the outline</source>
        <translation>Filter der Gliederung</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
</context>
<context>
    <name>tessel::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Farbschema:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Tab &amp;width:</source>
        <translation>&amp;Tabulatorbreite:</translation>
    </message>
    <message>
        <source>&amp;Live colours</source>
        <translation>Farben beim &amp;Bearbeiten</translation>
    </message>
    <message>
        <source>W&amp;rap long lines</source>
        <translation>Lange &amp;Zeilen umbrechen</translation>
    </message>
    <message>
        <source>Show &amp;blanks</source>
        <translation>&amp;Leerzeichen zeigen</translation>
    </message>
    <message>
        <source>R&amp;uler at column 80</source>
        <translation>&amp;Randlinie in Spalte 80</translation>
    </message>
    <message>
        <source>Words on the t&amp;oolbar</source>
        <translation>&amp;Wörter in der Werkzeugleiste</translation>
    </message>
    <message>
        <source>Reopen &amp;documents at start</source>
        <translation>&amp;Dokumente beim Start wieder öffnen</translation>
    </message>
    <message>
        <source>Allow auto&amp;mation by other programs</source>
        <translation>Auto&amp;matisierung durch andere Programme zulassen</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Font &amp;size:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>Bac&amp;kups of each file:</source>
        <translation>Si&amp;cherungskopien je Datei:</translation>
    </message>
    <message>
        <source>&amp;Check for problems while typing</source>
        <translation>Beim Tippen nach &amp;Problemen suchen</translation>
    </message>
</context>
<context>
    <name>tessel::ProblemCount</name>
    <message>
        <source>Shows the problems</source>
        <translation>Zeigt die Probleme</translation>
    </message>
    <message numerus="yes">
        <source>%Ln &amp;problem(s)</source>
        <translation>
            <numerusform>%Ln &amp;Problem</numerusform>
            <numerusform>%Ln &amp;Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>More than %L1 &amp;problems</source>
        <translation>Mehr als %L1 &amp;Probleme</translation>
    </message>
</context>
<context>
    <name>tessel::ProblemDock</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
</context>
<context>
    <name>tessel::ProblemModel</name>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Behebung</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>tessel::ProblemPane</name>
    <message>
        <source>&amp;Notes (%1)</source>
        <translation>&amp;Hinweise (%1)</translation>
    </message>
    <message>
        <source>&amp;Warnings (%1)</source>
        <translation>&amp;Warnungen (%1)</translation>
    </message>
    <message>
        <source>&amp;Errors (%1)</source>
        <translation>&amp;Fehler (%1)</translation>
    </message>
    <message>
        <source>Fi&amp;x</source>
        <translation>Behe&amp;ben</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>Jetzt &amp;prüfen</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>These are the first %L1 problems.</source>
        <translation>Dies sind die ersten %L1 Probleme.</translation>
    </message>
</context>
<context>
    <name>tessel::Problems</name>
    <message>
        <source>Fixed: %1</source>
        <translation>Behoben: %1</translation>
    </message>
    <message>
        <source>The preferences say that nothing is checked while you type.</source>
        <translation>Nach den Einstellungen wird beim Tippen nichts geprüft.</translation>
    </message>
    <message>
        <source>The open texts have more than %L1 bytes together and are not checked while you type.</source>
        <translation>Die offenen Texte haben zusammen mehr als %L1 Bytes und werden beim Tippen nicht geprüft.</translation>
    </message>
</context>
<context>
    <name>tessel::ReadingNotice</name>
    <message>
        <source>For reading only</source>
        <translation>Nur zum Lesen</translation>
    </message>
    <message>
        <source>%1 is open for reading: a line of %2 bytes is too long for keys.</source>
        <translation>%1 ist zum Lesen geöffnet: Eine Zeile von %2 Bytes ist für Tasten zu lang.</translation>
    </message>
    <message>
        <source> Of such lines the first %1 bytes are drawn. The panel, the tools and the command line change the text as ever.</source>
        <translation> Von solchen Zeilen werden die ersten %1 Bytes dargestellt. Spielwerte, Extras und Befehlszeile ändern den Text wie sonst.</translation>
    </message>
</context>
<context>
    <name>tessel::RecoveryKeeper</name>
    <message>
        <source>Unsaved text cannot be kept for recovery: there is not enough memory.</source>
        <translation>Nicht gespeicherter Text kann nicht zur Wiederherstellung aufbewahrt werden: Es ist nicht genug Speicher frei.</translation>
    </message>
    <message>
        <source>Unsaved text cannot be kept for recovery: %1.</source>
        <translation>Nicht gespeicherter Text kann nicht zur Wiederherstellung aufbewahrt werden: %1.</translation>
    </message>
</context>
<context>
    <name>tessel::RecoveryOffer</name>
    <message>
        <source>Unsaved text found</source>
        <translation>Nicht gespeicherter Text gefunden</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Spä&amp;ter</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Text that was not saved when the program ended: %1.</source>
        <translation>Text, der am Ende des Programms nicht gespeichert war: %1.</translation>
    </message>
    <message>
        <source>%1 was changed at %2; the unsaved text, kept at %3, is without that change.
Show the text as a change of the file all the same? &quot;No&quot; shows it as a document of its own.</source>
        <translation>%1 wurde am %2 geändert; der nicht gespeicherte Text vom %3 enthält diese Änderung nicht.
Den Text trotzdem als Änderung der Datei zeigen? „Nein“ zeigt ihn als eigenes Dokument.</translation>
    </message>
    <message>
        <source>Discard the text for good? It cannot be brought back.</source>
        <translation>Den Text endgültig verwerfen? Er kann nicht zurückgeholt werden.</translation>
    </message>
    <message>
        <source>Show Differen&amp;ces</source>
        <translation>Unters&amp;chiede zeigen</translation>
    </message>
</context>
<context>
    <name>tessel::ReplaceRow</name>
    <message>
        <source>Replace by</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation>Erset&amp;zen durch:</translation>
    </message>
    <message>
        <source>Find and replace in what is selected now</source>
        <translation>Nur in dem suchen und ersetzen, was jetzt ausgewählt ist</translation>
    </message>
    <message>
        <source>Repl&amp;ace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>Replace this match and go on (Enter)</source>
        <translation>Diesen Treffer ersetzen und weitersuchen (Eingabe)</translation>
    </message>
    <message>
        <source>Rep&amp;lace All</source>
        <translation>Alle erse&amp;tzen</translation>
    </message>
    <message>
        <source>Replace all matches of this document</source>
        <translation>Alle Treffer dieses Dokuments ersetzen</translation>
    </message>
    <message>
        <source>In All Docu&amp;ments</source>
        <translation>In allen Do&amp;kumenten</translation>
    </message>
    <message>
        <source>Replace all matches of all open documents</source>
        <translation>Alle Treffer aller geöffneten Dokumente ersetzen</translation>
    </message>
    <message>
        <source>Selection onl&amp;y</source>
        <translation>Nur in der Ausw&amp;ahl</translation>
    </message>
</context>
<context>
    <name>tessel::ScintillaView</name>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>The text of the document</source>
        <translation>Der Text des Dokuments</translation>
    </message>
</context>
<context>
    <name>tessel::ScriptTools</name>
    <message>
        <source>Go to &amp;Definition</source>
        <translation>Zur &amp;Definition gehen</translation>
    </message>
    <message>
        <source>Go &amp;Back</source>
        <translation>Z&amp;urück</translation>
    </message>
    <message>
        <source>Go F&amp;orward</source>
        <translation>Vo&amp;rwärts</translation>
    </message>
    <message>
        <source>Outlin&amp;e</source>
        <translation>Gl&amp;iederung</translation>
    </message>
    <message>
        <source>&amp;Fold or Unfold</source>
        <translation>&amp;Ein- oder ausklappen</translation>
    </message>
    <message>
        <source>Fold &amp;All</source>
        <translation>&amp;Alle einklappen</translation>
    </message>
    <message>
        <source>Unf&amp;old All</source>
        <translation>Alle a&amp;usklappen</translation>
    </message>
    <message>
        <source>Co&amp;mplete</source>
        <translation>Ver&amp;vollständigen</translation>
    </message>
    <message>
        <source>&amp;Show Parameters</source>
        <translation>&amp;Parameter zeigen</translation>
    </message>
    <message>
        <source>Complete &amp;While Typing</source>
        <translation>Beim &amp;Tippen vervollständigen</translation>
    </message>
    <message>
        <source>Keep &amp;Indentation</source>
        <translation>Einrückung &amp;beibehalten</translation>
    </message>
</context>
<context>
    <name>tessel::SecondPane</name>
    <message>
        <source>Second view</source>
        <translation>Zweite Ansicht</translation>
    </message>
    <message>
        <source>Close the second view</source>
        <translation>Die zweite Ansicht schließen</translation>
    </message>
</context>
<context>
    <name>tessel::SecondText</name>
    <message>
        <source>Second view</source>
        <translation>Zweite Ansicht</translation>
    </message>
    <message>
        <source>A document, for reading</source>
        <translation>Ein Dokument, zum Lesen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles a&amp;uswählen</translation>
    </message>
</context>
<context>
    <name>tessel::SecondView</name>
    <message>
        <source>Empty Document</source>
        <translation>Leeres Dokument</translation>
    </message>
    <message>
        <source>The second view is for reading. Type into the text beside it.</source>
        <translation>Die zweite Ansicht ist zum Lesen. Geschrieben wird in den Text daneben.</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>%1 (second view)</source>
        <translation>%1 (zweite Ansicht)</translation>
    </message>
</context>
<context>
    <name>tessel::TabBar</name>
    <message>
        <source>Close the document</source>
        <translation>Das Dokument schließen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
</context>
<context>
    <name>tessel::TabMenu</name>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>tessel::TabStripView</name>
    <message>
        <source>Empty document</source>
        <translation>Leeres Dokument</translation>
    </message>
    <message>
        <source>, modified</source>
        <translation>, geändert</translation>
    </message>
</context>
<context>
    <name>tessel::TesselWidget</name>
    <message>
        <source>CON file editor</source>
        <translation>Editor für CON-Dateien</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Gruppen der Spielwerte</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Editor area</source>
        <translation>Textbereich</translation>
    </message>
    <message>
        <source>Editor menu</source>
        <translation>Menü des Editors</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
</context>
<context>
    <name>tessel::ToolbarView</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Randomize All</source>
        <translation>Alles würfeln</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Würfeln</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Einfärben</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Spielwerte</translation>
    </message>
    <message>
        <source>More buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
</context>
</TS>
