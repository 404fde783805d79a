<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>GNU GPL, version 2 or 3</source>
        <translation>GNU GPL, Version 2 oder 3</translation>
    </message>
    <message>
        <source>GNU LGPL, version 3</source>
        <translation>GNU LGPL, Version 3</translation>
    </message>
    <message>
        <source>FreeImage Public License or GNU GPL</source>
        <translation>FreeImage Public License oder GNU GPL</translation>
    </message>
    <message>
        <source>libtiff licence</source>
        <translation>libtiff-Lizenz</translation>
    </message>
    <message>
        <source>BSD licence</source>
        <translation>BSD-Lizenz</translation>
    </message>
    <message>
        <source>MIT licence</source>
        <translation>MIT-Lizenz</translation>
    </message>
    <message>
        <source>Its source is free under the MIT licence. This program is made with Poppler&lt;br&gt;and is given away under the GNU GPL, version 2 or 3.</source>
        <translation>Der Quelltext ist frei unter der MIT-Lizenz. Dieses Programm&lt;br&gt;ist mit Poppler gebaut und wird unter der GNU GPL,&lt;br&gt;Version 2 oder 3, weitergegeben.</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Reads the check boxes of scanned paper forms.</source>
        <translation>Liest die Kästchen gescannter Papierformulare.</translation>
    </message>
    <message>
        <source>It stands on these libraries:</source>
        <translation>Es steht auf diesen Bibliotheken:</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Info zu %1</translation>
    </message>
    <message>
        <source>&amp;System Information...</source>
        <translation>&amp;Systeminformation...</translation>
    </message>
</context>
<context>
    <name>BoxListView</name>
    <message>
        <source>The mark was turned round by hand: the ink says otherwise</source>
        <translation>Die Markierung wurde von Hand umgekehrt: die Farbe sagt etwas anderes</translation>
    </message>
    <message>
        <source>Name of the check box</source>
        <translation>Name des Kästchens</translation>
    </message>
    <message>
        <source>Check boxes of the page</source>
        <translation>Kästchen der Seite</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>Kästchen</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>CandidatePane</name>
    <message>
        <source>What may be check boxes</source>
        <translation>Was Kästchen sein könnten</translation>
    </message>
    <message>
        <source>Also shapes that look like print</source>
        <translation>Auch Formen, die wie Druck aussehen</translation>
    </message>
    <message>
        <source>Also one shape that looks like print</source>
        <translation>Auch eine Form, die wie Druck aussieht</translation>
    </message>
    <message>
        <source>Also %1 shapes that look like print</source>
        <translation>Auch %1 Formen, die wie Druck aussehen</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Create New Profile</source>
        <translation>Neues Profil anlegen</translation>
    </message>
    <message>
        <source>&amp;New Profile...</source>
        <translation>&amp;Neues Profil...</translation>
    </message>
    <message>
        <source>Save Current Profile</source>
        <translation>Aktuelles Profil speichern</translation>
    </message>
    <message>
        <source>&amp;Save Profile</source>
        <translation>Profil &amp;speichern</translation>
    </message>
    <message>
        <source>Delete Current Profile</source>
        <translation>Aktuelles Profil löschen</translation>
    </message>
    <message>
        <source>&amp;Delete Profile...</source>
        <translation>Profil &amp;löschen...</translation>
    </message>
    <message>
        <source>Zoom To Original</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Zoom To &amp;Original</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Fit &amp;Page</source>
        <translation>Ganze &amp;Seite</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Seiten&amp;breite</translation>
    </message>
    <message>
        <source>Words under the buttons of the toolbars</source>
        <translation>Wörter unter den Knöpfen der Werkzeugleisten</translation>
    </message>
    <message>
        <source>Toolbar &amp;Labels</source>
        <translation>Knöp&amp;fe beschriften</translation>
    </message>
    <message>
        <source>Show the names of the boxes on the page</source>
        <translation>Die Namen der Kästchen auf der Seite zeigen</translation>
    </message>
    <message>
        <source>Box &amp;Names</source>
        <translation>&amp;Namen der Kästchen</translation>
    </message>
    <message>
        <source>Start OMR recognition process of images from configured directory</source>
        <translation>Die Bilder im eingestellten Ordner verarbeiten</translation>
    </message>
    <message>
        <source>&amp;Process</source>
        <translation>&amp;Verarbeiten</translation>
    </message>
    <message>
        <source>Stop Process</source>
        <translation>Verarbeitung anhalten</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Review Processed Forms</source>
        <translation>Verarbeitete Formulare prüfen</translation>
    </message>
    <message>
        <source>&amp;Review Forms</source>
        <translation>Formulare &amp;prüfen</translation>
    </message>
    <message>
        <source>Reviewed OK</source>
        <translation>Geprüft, in Ordnung</translation>
    </message>
    <message>
        <source>Reviewed &amp;OK</source>
        <translation>&amp;Geprüft, in Ordnung</translation>
    </message>
    <message>
        <source>Accept Form (Move to Final Folder)</source>
        <translation>Formular annehmen (nach ProcessFinal verschieben)</translation>
    </message>
    <message>
        <source>&amp;Accept Form</source>
        <translation>Formular &amp;annehmen</translation>
    </message>
    <message>
        <source>Reject Form (Move to Reject Folder)</source>
        <translation>Formular ablehnen (nach ProcessReject verschieben)</translation>
    </message>
    <message>
        <source>Re&amp;ject Form</source>
        <translation>Formular a&amp;blehnen</translation>
    </message>
    <message>
        <source>Select/Move/Modify OMR CheckBox</source>
        <translation>Kästchen auswählen, verschieben, ändern</translation>
    </message>
    <message>
        <source>&amp;Select Box</source>
        <translation>Kästchen &amp;auswählen</translation>
    </message>
    <message>
        <source>Create New OMR CheckBox</source>
        <translation>Neues Kästchen anlegen</translation>
    </message>
    <message>
        <source>&amp;Add Box</source>
        <translation>Kästchen &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Put a box in the middle of the view; the arrow keys move it, with Ctrl they resize it</source>
        <translation>Setzt ein Kästchen in die Mitte der Ansicht; die Pfeiltasten verschieben es, mit Strg ändern sie die Größe</translation>
    </message>
    <message>
        <source>&amp;Put Box</source>
        <translation>Kästchen &amp;setzen</translation>
    </message>
    <message>
        <source>Delete OMR CheckBox</source>
        <translation>Kästchen löschen</translation>
    </message>
    <message>
        <source>&amp;Delete Box	Del</source>
        <translation>Kästchen &amp;löschen	Entf</translation>
    </message>
    <message>
        <source>Give the selected box another name</source>
        <translation>Dem ausgewählten Kästchen einen anderen Namen geben</translation>
    </message>
    <message>
        <source>&amp;Rename Box</source>
        <translation>Kästchen &amp;umbenennen</translation>
    </message>
    <message>
        <source>Name the selected boxes, or all of them, by a pattern or from a list</source>
        <translation>Die ausgewählten Kästchen, oder alle, nach einem Muster oder aus einer Liste benennen</translation>
    </message>
    <message>
        <source>Name &amp;Boxes...</source>
        <translation>Kästchen &amp;benennen...</translation>
    </message>
    <message>
        <source>Take back the last change of a box</source>
        <translation>Die letzte Änderung eines Kästchens zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Die zurückgenommene Änderung wiederholen</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Look for boxes of the page that are not in the list</source>
        <translation>Kästchen der Seite suchen, die nicht in der Liste stehen</translation>
    </message>
    <message>
        <source>&amp;Find More Boxes</source>
        <translation>Weitere Kästchen su&amp;chen</translation>
    </message>
    <message>
        <source>Select all boxes of the page</source>
        <translation>Alle Kästchen der Seite auswählen</translation>
    </message>
    <message>
        <source>Select A&amp;ll Boxes</source>
        <translation>Alle Käs&amp;tchen auswählen</translation>
    </message>
    <message>
        <source>Select all boxes that are as large as the selected one</source>
        <translation>Alle Kästchen auswählen, die so groß sind wie das ausgewählte</translation>
    </message>
    <message>
        <source>Select Boxes of This Si&amp;ze</source>
        <translation>Gleich &amp;große auswählen</translation>
    </message>
    <message>
        <source>Draw the first and the last box of a grid, which is filled between them</source>
        <translation>Das erste und das letzte Kästchen eines Rasters zeichnen, das dazwischen gefüllt wird</translation>
    </message>
    <message>
        <source>Draw Gr&amp;id...</source>
        <translation>Raster &amp;zeichnen...</translation>
    </message>
    <message>
        <source>Keep copies of the selected boxes, also for another profile</source>
        <translation>Die ausgewählten Kästchen kopieren, auch für ein anderes Profil</translation>
    </message>
    <message>
        <source>&amp;Copy Boxes</source>
        <translation>Kästchen kop&amp;ieren</translation>
    </message>
    <message>
        <source>Add the boxes that were copied, with the names that follow</source>
        <translation>Die kopierten Kästchen mit den nächsten Namen hinzufügen</translation>
    </message>
    <message>
        <source>Paste Bo&amp;xes</source>
        <translation>Kästchen &amp;einfügen</translation>
    </message>
    <message>
        <source>Add the selected boxes once more below, with the names that follow</source>
        <translation>Die ausgewählten Kästchen darunter noch einmal hinzufügen, mit den nächsten Namen</translation>
    </message>
    <message>
        <source>Duplica&amp;te Boxes</source>
        <translation>Kästchen &amp;verdoppeln</translation>
    </message>
    <message>
        <source>Boxes that are drawn or moved keep to the printed outline under them; Alt leaves them free</source>
        <translation>Gezeichnete und verschobene Kästchen halten sich an den gedruckten Umriss; Alt lässt sie frei</translation>
    </message>
    <message>
        <source>S&amp;nap to Print</source>
        <translation>Am &amp;Druck einrasten</translation>
    </message>
    <message>
        <source>Make the selected boxes as large as the one with the thick frame</source>
        <translation>Die ausgewählten Kästchen so groß machen wie das mit dem dicken Rahmen</translation>
    </message>
    <message>
        <source>&amp;Equal Size</source>
        <translation>&amp;Gleich groß machen</translation>
    </message>
    <message>
        <source>Put the left sides of the selected boxes in one line</source>
        <translation>Die linken Seiten der ausgewählten Kästchen in eine Linie bringen</translation>
    </message>
    <message>
        <source>Align &amp;Left Sides</source>
        <translation>&amp;Linke Seiten ausrichten</translation>
    </message>
    <message>
        <source>Put the right sides of the selected boxes in one line</source>
        <translation>Die rechten Seiten der ausgewählten Kästchen in eine Linie bringen</translation>
    </message>
    <message>
        <source>Align &amp;Right Sides</source>
        <translation>&amp;Rechte Seiten ausrichten</translation>
    </message>
    <message>
        <source>Put the upper sides of the selected boxes in one line</source>
        <translation>Die oberen Seiten der ausgewählten Kästchen in eine Linie bringen</translation>
    </message>
    <message>
        <source>Align &amp;Upper Sides</source>
        <translation>&amp;Obere Seiten ausrichten</translation>
    </message>
    <message>
        <source>Put the lower sides of the selected boxes in one line</source>
        <translation>Die unteren Seiten der ausgewählten Kästchen in eine Linie bringen</translation>
    </message>
    <message>
        <source>Align Lo&amp;wer Sides</source>
        <translation>&amp;Untere Seiten ausrichten</translation>
    </message>
    <message>
        <source>Put the selected boxes at equal distances across the page</source>
        <translation>Die ausgewählten Kästchen mit gleichen Abständen nebeneinander setzen</translation>
    </message>
    <message>
        <source>Distribute &amp;Across</source>
        <translation>&amp;Waagerecht verteilen</translation>
    </message>
    <message>
        <source>Put the selected boxes at equal distances down the page</source>
        <translation>Die ausgewählten Kästchen mit gleichen Abständen untereinander setzen</translation>
    </message>
    <message>
        <source>Distribute &amp;Down</source>
        <translation>&amp;Senkrecht verteilen</translation>
    </message>
    <message>
        <source>Sort the boxes row by row from the top of the page down</source>
        <translation>Die Kästchen zeilenweise von oben nach unten sortieren</translation>
    </message>
    <message>
        <source>&amp;Sort by Place</source>
        <translation>Nach &amp;Platz sortieren</translation>
    </message>
    <message>
        <source>Move the selected boxes up in the list, and so in the results</source>
        <translation>Die ausgewählten Kästchen in der Liste, und so in den Ergebnissen, nach oben schieben</translation>
    </message>
    <message>
        <source>&amp;Move Up in the List</source>
        <translation>In der Liste nach o&amp;ben</translation>
    </message>
    <message>
        <source>Move the selected boxes down in the list, and so in the results</source>
        <translation>Die ausgewählten Kästchen in der Liste, und so in den Ergebnissen, nach unten schieben</translation>
    </message>
    <message>
        <source>Move D&amp;own in the List</source>
        <translation>In der Liste nach unt&amp;en</translation>
    </message>
    <message>
        <source>Let the selected boxes answer one question together</source>
        <translation>Die ausgewählten Kästchen beantworten zusammen eine Frage</translation>
    </message>
    <message>
        <source>&amp;Group Boxes...</source>
        <translation>Kästchen &amp;gruppieren...</translation>
    </message>
    <message>
        <source>Take the selected boxes out of their group</source>
        <translation>Die ausgewählten Kästchen aus ihrer Gruppe nehmen</translation>
    </message>
    <message>
        <source>&amp;Ungroup Boxes</source>
        <translation>Gruppe &amp;auflösen</translation>
    </message>
    <message>
        <source>Make a group of each row of the selected boxes, or of all</source>
        <translation>Aus jeder Zeile der ausgewählten Kästchen, oder aller, eine Gruppe machen</translation>
    </message>
    <message>
        <source>Groups by &amp;Rows</source>
        <translation>Gruppen nach &amp;Zeilen</translation>
    </message>
    <message>
        <source>Let the first words of the names tell the groups</source>
        <translation>Die ersten Wörter der Namen sagen die Gruppen</translation>
    </message>
    <message>
        <source>Groups by &amp;Names</source>
        <translation>Gruppen nach &amp;Namen</translation>
    </message>
    <message>
        <source>Show the groups of boxes as frames on the page</source>
        <translation>Die Gruppen von Kästchen als Rahmen auf der Seite zeigen</translation>
    </message>
    <message>
        <source>&amp;Group Frames</source>
        <translation>&amp;Gruppenrahmen</translation>
    </message>
    <message>
        <source>Open the form of the selected line</source>
        <translation>Das Formular der ausgewählten Zeile öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Form	Enter</source>
        <translation>Formular ö&amp;ffnen	Eingabe</translation>
    </message>
    <message>
        <source>Open the form below</source>
        <translation>Das Formular darunter öffnen</translation>
    </message>
    <message>
        <source>&amp;Next Form</source>
        <translation>&amp;Nächstes Formular</translation>
    </message>
    <message>
        <source>Open the form above</source>
        <translation>Das Formular darüber öffnen</translation>
    </message>
    <message>
        <source>&amp;Previous Form</source>
        <translation>&amp;Voriges Formular</translation>
    </message>
    <message>
        <source>Turn the mark of the selected box round</source>
        <translation>Die Markierung des ausgewählten Kästchens umkehren</translation>
    </message>
    <message>
        <source>&amp;Turn Mark	Space</source>
        <translation>&amp;Markierung umkehren	Leertaste</translation>
    </message>
    <message>
        <source>Go to the next box in doubt, also of the forms below</source>
        <translation>Zum nächsten zweifelhaften Kästchen gehen, auch der Formulare darunter</translation>
    </message>
    <message>
        <source>Next &amp;Doubtful Box</source>
        <translation>Nächstes &amp;zweifelhaftes Kästchen</translation>
    </message>
    <message>
        <source>Choose which forms the list shows</source>
        <translation>Wählen, welche Formulare die Liste zeigt</translation>
    </message>
    <message>
        <source>&amp;Show Only...</source>
        <translation>A&amp;uswahl der Liste...</translation>
    </message>
    <message>
        <source>Open the next form after one was accepted or rejected, or saved while the list shows it no longer</source>
        <translation>Das nächste Formular öffnen, nachdem eines angenommen, abgelehnt oder gespeichert wurde und aus der Liste ging</translation>
    </message>
    <message>
        <source>&amp;Go On to the Next Form</source>
        <translation>&amp;Weiter zum nächsten Formular</translation>
    </message>
    <message>
        <source>Bring the form back that was accepted or rejected last</source>
        <translation>Das zuletzt angenommene oder abgelehnte Formular zurückholen</translation>
    </message>
    <message>
        <source>&amp;Undo Decision</source>
        <translation>&amp;Entscheidung zurücknehmen</translation>
    </message>
    <message>
        <source>Write the results of all forms into tables</source>
        <translation>Die Ergebnisse aller Formulare in Tabellen schreiben</translation>
    </message>
    <message>
        <source>&amp;Export Results...</source>
        <translation>&amp;Ergebnisse exportieren...</translation>
    </message>
    <message>
        <source>Show the working folder on the desktop</source>
        <translation>Den Arbeitsordner auf dem Schreibtisch zeigen</translation>
    </message>
    <message>
        <source>Open &amp;Working Folder</source>
        <translation>&amp;Arbeitsordner öffnen</translation>
    </message>
    <message>
        <source>Read the newest log</source>
        <translation>Das neueste Protokoll lesen</translation>
    </message>
    <message>
        <source>Open &amp;Log</source>
        <translation>&amp;Protokoll öffnen</translation>
    </message>
    <message>
        <source>Read forms by one map of all their boxes: also turned, stretched, bent and thin ones</source>
        <translation>Formulare nach einer Karte aller Kästchen lesen: auch gedrehte, gedehnte, verbogene und blasse</translation>
    </message>
    <message>
        <source>Precise &amp;Alignment</source>
        <translation>&amp;Genaues Ausrichten</translation>
    </message>
    <message>
        <source>While Precise Alignment is off, say where it would read otherwise</source>
        <translation>Solange „Genaues Ausrichten“ aus ist, sagen, wo es anders lesen würde</translation>
    </message>
    <message>
        <source>Second &amp;Opinion</source>
        <translation>&amp;Zweite Meinung</translation>
    </message>
    <message>
        <source>Read Turned Forms A&amp;gain</source>
        <translation>Gedrehte Formulare e&amp;rneut lesen</translation>
    </message>
    <message>
        <source>Read several pages at a time in a run; what comes of it is the same, sooner</source>
        <translation>In einem Lauf mehrere Seiten zugleich lesen; es kommt dasselbe heraus, nur früher</translation>
    </message>
    <message>
        <source>Use All &amp;Cores</source>
        <translation>Alle &amp;Kerne nutzen</translation>
    </message>
    <message>
        <source>What became of the files of the last run</source>
        <translation>Was aus den Dateien des letzten Laufs wurde</translation>
    </message>
    <message>
        <source>Summary of the &amp;Last Run</source>
        <translation>Übersicht des &amp;letzten Laufs</translation>
    </message>
    <message>
        <source>Take the pages of ProcessOut that were not read once more, with the profiles as they are now</source>
        <translation>Die nicht gelesenen Seiten in ProcessOut noch einmal nehmen, mit den Profilen, wie sie jetzt sind</translation>
    </message>
    <message>
        <source>Process &amp;Unread Pages Again</source>
        <translation>&amp;Ungelesene Seiten erneut verarbeiten</translation>
    </message>
    <message>
        <source>Move the selected pages that were not read back to ProcessIn</source>
        <translation>Die ausgewählten nicht gelesenen Seiten nach ProcessIn zurücklegen</translation>
    </message>
    <message>
        <source>&amp;Back to ProcessIn</source>
        <translation>Zurück nach Pro&amp;cessIn</translation>
    </message>
    <message>
        <source>Move all pages that were not read back to ProcessIn</source>
        <translation>Alle nicht gelesenen Seiten nach ProcessIn zurücklegen</translation>
    </message>
    <message>
        <source>A&amp;ll Back to ProcessIn</source>
        <translation>Alle zurück nach Process&amp;In</translation>
    </message>
    <message>
        <source>Make an image in ProcessIn of each page of PDFs and TIFFs; scans of one page are copied</source>
        <translation>Aus jeder Seite von PDFs und TIFFs ein Bild in ProcessIn machen; einseitige Scans werden kopiert</translation>
    </message>
    <message>
        <source>&amp;Bring In Scans...</source>
        <translation>Scans &amp;hereinholen...</translation>
    </message>
    <message>
        <source>&amp;Paste Scans</source>
        <translation>Scans einfü&amp;gen</translation>
    </message>
    <message>
        <source>Folder, box sizes and processing options</source>
        <translation>Ordner, Größen der Kästchen und Verarbeitung</translation>
    </message>
    <message>
        <source>Se&amp;ttings...</source>
        <translation>Eins&amp;tellungen...</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The manual, at the page of what is being done</source>
        <translation>Das Handbuch, auf der Seite zu dem, was gerade geschieht</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Name and version of the program</source>
        <translation>Name und Version des Programms</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Info...</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Verarbeiten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Geprüft</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Annehmen</translation>
    </message>
    <message>
        <source>Reject</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neues</translation>
    </message>
    <message>
        <source>Make another profile of the same boxes, groups and image</source>
        <translation>Macht ein weiteres Profil mit denselben Kästchen, Gruppen und demselben Bild</translation>
    </message>
    <message>
        <source>D&amp;uplicate Profile...</source>
        <translation>Profil d&amp;uplizieren...</translation>
    </message>
    <message>
        <source>Give the profile and its groups another name</source>
        <translation>Gibt dem Profil und seinen Gruppen einen anderen Namen</translation>
    </message>
    <message>
        <source>Rena&amp;me Profile...</source>
        <translation>Prof&amp;il umbenennen...</translation>
    </message>
    <message>
        <source>See how scans are read with this profile as it stands; nothing is written</source>
        <translation>Zeigt, wie Scans mit diesem Profil, so wie es ist, gelesen werden; geschrieben wird nichts</translation>
    </message>
    <message>
        <source>Test P&amp;rofile...</source>
        <translation>Pr&amp;ofil testen...</translation>
    </message>
    <message>
        <source>All boxes in doubt of all forms as pictures, judged a screen at a time</source>
        <translation>Alle zweifelhaften Kästchen aller Formulare als Bilder, beurteilt Seite um Seite</translation>
    </message>
    <message>
        <source>S&amp;heet of Doubts...</source>
        <translation>Zweife&amp;lsblatt...</translation>
    </message>
    <message>
        <source>Accept all forms of the list that have no box in doubt, after one question</source>
        <translation>Nimmt nach einer Frage alle Formulare der Liste an, die kein zweifelhaftes Kästchen haben</translation>
    </message>
    <message>
        <source>Accept All &amp;Without Doubt...</source>
        <translation>Alle o&amp;hne Zweifel annehmen...</translation>
    </message>
    <message>
        <source>Take pages from a scanner to ProcessIn</source>
        <translation>Holt Seiten von einem Scanner nach ProcessIn</translation>
    </message>
    <message>
        <source>S&amp;can...</source>
        <translation>S&amp;cannen...</translation>
    </message>
    <message>
        <source>The same with the files and folders of the clipboard, or dropped on the window; boxes that were copied last are added to the profile</source>
        <translation>Dasselbe mit den Dateien und Ordnern der Zwischenablage, auch auf das Fenster gezogen; zuletzt kopierte Kästchen kommen in das Profil</translation>
    </message>
    <message>
        <source>Read the forms of the last run again that Precise Alignment reads otherwise</source>
        <translation>Die Formulare des letzten Laufs noch einmal lesen, die „Genaues Ausrichten“ anders liest</translation>
    </message>
    <message>
        <source>The same with all scans of a folder and of the folders in it</source>
        <translation>Dasselbe mit allen Scans eines Ordners und der Ordner darin</translation>
    </message>
    <message>
        <source>Bring In a &amp;Folder...</source>
        <translation>O&amp;rdner hereinholen...</translation>
    </message>
</context>
<context>
    <name>Composition</name>
    <message>
        <source>Another program, tavrene-batch for one, is working on the forms in %1.
Open the window all the same?</source>
        <translation>Ein anderes Programm, etwa tavrene-batch, arbeitet an den Formularen in %1.
Das Fenster trotzdem öffnen?</translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Grid of Boxes</source>
        <translation>Raster von Kästchen</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>&amp;Rows</source>
        <translation>&amp;Zeilen</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
</context>
<context>
    <name>CountsDialog</name>
    <message>
        <source>Counts</source>
        <translation>Auszählung</translation>
    </message>
    <message>
        <source>How often each box is checked</source>
        <translation>Wie oft jedes Kästchen angekreuzt ist</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>Save as P&amp;NG...</source>
        <translation>Als P&amp;NG speichern...</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>%L1 of %L2, %L3 s left</source>
        <translation>%L1 von %L2, noch %L3 s</translation>
    </message>
    <message>
        <source>%L1 of %L2, %L3 min left</source>
        <translation>%L1 von %L2, noch %L3 min</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
    <message>
        <source>Last run:</source>
        <translation>Letzter Lauf:</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%L1 files</source>
        <translation>%L1 Dateien</translation>
    </message>
    <message>
        <source>%L1 read</source>
        <translation>%L1 gelesen</translation>
    </message>
    <message>
        <source>%L1 not recognised</source>
        <translation>%L1 nicht erkannt</translation>
    </message>
    <message>
        <source>%L1 refused</source>
        <translation>%L1 abgewiesen</translation>
    </message>
    <message>
        <source>%L1 not written</source>
        <translation>%L1 nicht geschrieben</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>%L1 seconds</source>
        <translation>%L1 Sekunden</translation>
    </message>
    <message>
        <source>1 further page was not looked at:</source>
        <translation>1 weitere Seite wurde nicht angesehen:</translation>
    </message>
    <message>
        <source>%1 further pages were not looked at:</source>
        <translation>%1 weitere Seiten wurden nicht angesehen:</translation>
    </message>
    <message>
        <source>bring in to ProcessIn</source>
        <translation>nach ProcessIn hereinholen</translation>
    </message>
    <message>
        <source>Read These Again</source>
        <translation>Diese erneut lesen</translation>
    </message>
    <message>
        <source>1 form was read by Precise Alignment and can be reviewed.</source>
        <translation>1 Formular wurde mit „Genaues Ausrichten“ gelesen und kann geprüft werden.</translation>
    </message>
    <message>
        <source>%1 forms were read by Precise Alignment and can be reviewed.</source>
        <translation>%1 Formulare wurden mit „Genaues Ausrichten“ gelesen und können geprüft werden.</translation>
    </message>
    <message>
        <source>%1 forms were read by Precise Alignment.</source>
        <translation>%1 Formulare wurden mit „Genaues Ausrichten“ gelesen.</translation>
    </message>
    <message>
        <source>Find More Boxes</source>
        <translation>Weitere Kästchen suchen</translation>
    </message>
    <message>
        <source>Looking for more boxes... Esc stops.</source>
        <translation>Weitere Kästchen werden gesucht... Esc bricht ab.</translation>
    </message>
    <message>
        <source>Looking for more boxes was stopped.</source>
        <translation>Die Suche nach weiteren Kästchen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No more boxes were found.</source>
        <translation>Keine weiteren Kästchen wurden gefunden.</translation>
    </message>
    <message>
        <source>The specimen image cannot be read as an image.</source>
        <translation>Das Musterbild kann nicht als Bild gelesen werden.</translation>
    </message>
    <message>
        <source>1 box found.</source>
        <translation>1 Kästchen gefunden.</translation>
    </message>
    <message>
        <source>%L1 boxes found.</source>
        <translation>%L1 Kästchen gefunden.</translation>
    </message>
    <message>
        <source>1 box of about %L1 x %L2 px: larger than the settings allow.</source>
        <translation>1 Kästchen von etwa %L1 x %L2 px: größer, als die Einstellungen erlauben.</translation>
    </message>
    <message>
        <source>%L1 boxes of about %L2 x %L3 px: larger than the settings allow.</source>
        <translation>%L1 Kästchen von etwa %L2 x %L3 px: größer, als die Einstellungen erlauben.</translation>
    </message>
    <message>
        <source>1 box of about %L1 x %L2 px: smaller than the settings allow.</source>
        <translation>1 Kästchen von etwa %L1 x %L2 px: kleiner, als die Einstellungen erlauben.</translation>
    </message>
    <message>
        <source>%L1 boxes of about %L2 x %L3 px: smaller than the settings allow.</source>
        <translation>%L1 Kästchen von etwa %L2 x %L3 px: kleiner, als die Einstellungen erlauben.</translation>
    </message>
    <message>
        <source>1 more may be a box: look at it with Find More Boxes (Ctrl+M).</source>
        <translation>1 weiteres könnte ein Kästchen sein: „Weitere Kästchen suchen“ (Strg+M) zeigt es.</translation>
    </message>
    <message>
        <source>%1 more may be boxes: look at them with Find More Boxes (Ctrl+M).</source>
        <translation>%1 weitere könnten Kästchen sein: „Weitere Kästchen suchen“ (Strg+M) zeigt sie.</translation>
    </message>
    <message>
        <source>1 more may be a box.</source>
        <translation>1 weiteres könnte ein Kästchen sein.</translation>
    </message>
    <message>
        <source>%L1 more may be boxes.</source>
        <translation>%L1 weitere könnten Kästchen sein.</translation>
    </message>
    <message>
        <source>Enter takes one, Ctrl+A all, Esc closes.</source>
        <translation>Die Eingabetaste nimmt eines, Strg+A alle, Esc schließt.</translation>
    </message>
    <message>
        <source>Esc closes.</source>
        <translation>Esc schließt.</translation>
    </message>
    <message>
        <source>%L1 x %L2 at %L3, %L4 (print?)</source>
        <translation>%L1 x %L2 bei %L3, %L4 (Druck?)</translation>
    </message>
    <message>
        <source>%L1 x %L2 at %L3, %L4</source>
        <translation>%L1 x %L2 bei %L3, %L4</translation>
    </message>
    <message>
        <source>1 box added.</source>
        <translation>1 Kästchen hinzugefügt.</translation>
    </message>
    <message>
        <source>%L1 boxes added.</source>
        <translation>%L1 Kästchen hinzugefügt.</translation>
    </message>
    <message>
        <source>Draw the first box at the upper left, then draw or click the last at the lower right.</source>
        <translation>Zeichnen Sie das erste Kästchen oben links; dann zeichnen oder klicken Sie das letzte unten rechts.</translation>
    </message>
    <message>
        <source>All boxes of this grid are there already.</source>
        <translation>Alle Kästchen dieses Rasters sind schon da.</translation>
    </message>
    <message>
        <source>%1 of %2 scans have names of scans that wait in ProcessIn.
Yes puts the new ones in their place, No gives the new ones other names.</source>
        <translation>%1 von %2 Scans heißen wie Scans, die in ProcessIn warten.
„Ja“ setzt die neuen an deren Stelle, „Nein“ gibt den neuen andere Namen.</translation>
    </message>
    <message>
        <source>1 scan was copied to ProcessIn.</source>
        <translation>1 Scan wurde nach ProcessIn kopiert.</translation>
    </message>
    <message>
        <source>%1 scans were copied to ProcessIn.</source>
        <translation>%1 Scans wurden nach ProcessIn kopiert.</translation>
    </message>
    <message>
        <source>1 has a new name.</source>
        <translation>1 hat einen neuen Namen.</translation>
    </message>
    <message>
        <source>%L1 have a new name.</source>
        <translation>%L1 haben einen neuen Namen.</translation>
    </message>
    <message>
        <source>1 other file was left out: no image.</source>
        <translation>1 andere Datei wurde ausgelassen: kein Bild.</translation>
    </message>
    <message>
        <source>%1 other files were left out: no image.</source>
        <translation>%1 andere Dateien wurden ausgelassen: keine Bilder.</translation>
    </message>
    <message>
        <source>1 is in ProcessIn already.</source>
        <translation>1 ist schon in ProcessIn.</translation>
    </message>
    <message>
        <source>%L1 are in ProcessIn already.</source>
        <translation>%L1 sind schon in ProcessIn.</translation>
    </message>
    <message>
        <source>1 page of 1 file was brought in to ProcessIn.</source>
        <translation>1 Seite aus 1 Datei wurde nach ProcessIn hereingeholt.</translation>
    </message>
    <message>
        <source>%1 pages of 1 file were brought in to ProcessIn.</source>
        <translation>%1 Seiten aus 1 Datei wurden nach ProcessIn hereingeholt.</translation>
    </message>
    <message>
        <source>%1 pages of %2 files were brought in to ProcessIn.</source>
        <translation>%1 Seiten aus %2 Dateien wurden nach ProcessIn hereingeholt.</translation>
    </message>
    <message>
        <source>The rest was cancelled.</source>
        <translation>Der Rest wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The clipboard holds no files. Copy scans or folders in a file manager first.</source>
        <translation>Die Zwischenablage enthält keine Dateien. Kopieren Sie erst Scans oder Ordner in einem Dateimanager.</translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
    <message>
        <source>Export Results Into</source>
        <translation>Ergebnisse exportieren nach</translation>
    </message>
    <message>
        <source>Workbooks</source>
        <translation>Arbeitsmappen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Save Counts</source>
        <translation>Auszählung speichern</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF-Dokumente</translation>
    </message>
    <message>
        <source>PNG pictures</source>
        <translation>PNG-Bilder</translation>
    </message>
    <message>
        <source>Reading the result documents</source>
        <translation>Die Ergebnisse werden gelesen</translation>
    </message>
    <message>
        <source>Writing the tables</source>
        <translation>Die Tabellen werden geschrieben</translation>
    </message>
    <message>
        <source>There are no forms to export in %1</source>
        <translation>Es gibt keine Formulare zum Exportieren in %1</translation>
    </message>
    <message>
        <source>1 document could not be read and is in no table: %1.</source>
        <translation>1 Dokument konnte nicht gelesen werden und steht in keiner Tabelle: %1.</translation>
    </message>
    <message>
        <source>%1 documents could not be read and are in no table: %2; and %3 more.</source>
        <translation>%1 Dokumente konnten nicht gelesen werden und stehen in keiner Tabelle: %2; und %3 weitere.</translation>
    </message>
    <message>
        <source>%1 documents could not be read and are in no table: %2.</source>
        <translation>%1 Dokumente konnten nicht gelesen werden und stehen in keiner Tabelle: %2.</translation>
    </message>
    <message>
        <source>1 file of the tables&apos; names is in %1 already. Replace it?</source>
        <translation>1 Datei mit dem Namen einer Tabelle liegt schon in %1. Ersetzen?</translation>
    </message>
    <message>
        <source>%1 files of the tables&apos; names are in %2 already. Replace them?</source>
        <translation>%1 Dateien mit den Namen der Tabellen liegen schon in %2. Ersetzen?</translation>
    </message>
    <message>
        <source>1 form of 1 profile exported to %1</source>
        <translation>1 Formular von 1 Profil exportiert nach %1</translation>
    </message>
    <message>
        <source>%1 forms of 1 profile exported to %2</source>
        <translation>%1 Formulare von 1 Profil exportiert nach %2</translation>
    </message>
    <message>
        <source>%1 forms of %2 profiles exported to %3</source>
        <translation>%1 Formulare von %2 Profilen exportiert nach %3</translation>
    </message>
    <message>
        <source>The box sizes take full effect, and the working folder is used, at the next start.</source>
        <translation>Die Größen der Kästchen und der Arbeitsordner gelten ganz erst ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>The new box sizes take full effect at the next start.</source>
        <translation>Die neuen Größen der Kästchen gelten ganz erst ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>The new working folder is used at the next start.</source>
        <translation>Der neue Arbeitsordner gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>The language is used at the next start.</source>
        <translation>Die Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>The log in the working folder could not be written.</source>
        <translation>Das Protokoll im Arbeitsordner konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>This desktop has no program that opens %1</source>
        <translation>Auf diesem Rechner öffnet kein Programm %1</translation>
    </message>
    <message>
        <source>Save changes to Profile &lt;%1&gt;?</source>
        <translation>Änderungen am Profil &lt;%1&gt; speichern?</translation>
    </message>
    <message>
        <source>New Profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>Image of the Blank Form</source>
        <translation>Bild des leeren Formulars</translation>
    </message>
    <message>
        <source>Tavrene Profiles (*.Tvp)</source>
        <translation>Tavrene-Profile (*.Tvp)</translation>
    </message>
    <message>
        <source>Image Files (*.Tif;*.Jpg;*.Png)</source>
        <translation>Bilddateien (*.Tif;*.Jpg;*.Png)</translation>
    </message>
    <message>
        <source>Profiles:%1, Active:%2</source>
        <translation>Profile:%1, aktiv:%2</translation>
    </message>
    <message>
        <source>Profile [%1], Image [%2]</source>
        <translation>Profil [%1], Bild [%2]</translation>
    </message>
    <message>
        <source>OMRs:%L1</source>
        <translation>Kästchen:%L1</translation>
    </message>
    <message>
        <source>Profile %1 of %2</source>
        <translation>Profil %1 von %2</translation>
    </message>
    <message>
        <source>Loading profile %1</source>
        <translation>Profil %1 wird geladen</translation>
    </message>
    <message>
        <source>Saved Profile: %1</source>
        <translation>Profil gespeichert: %1</translation>
    </message>
    <message>
        <source>Delete Profile %1</source>
        <translation>Profil %1 löschen?</translation>
    </message>
    <message>
        <source>Deleted Profile: %1</source>
        <translation>Profil gelöscht: %1</translation>
    </message>
    <message>
        <source>Locate...</source>
        <translation>Suchen...</translation>
    </message>
    <message>
        <source>The file %1 was changed by somebody else after it was opened here. Save over it?</source>
        <translation>Die Datei %1 wurde von jemand anderem geändert, nachdem sie hier geöffnet wurde. Überschreiben?</translation>
    </message>
    <message>
        <source>The file %1 had been deleted and was written anew</source>
        <translation>Die Datei %1 war gelöscht worden und wurde neu geschrieben</translation>
    </message>
    <message>
        <source>The specimen image %1 cannot be read as an image.</source>
        <translation>Das Musterbild %1 kann nicht als Bild gelesen werden.</translation>
    </message>
    <message>
        <source>The specimen image %1 is not there any more.</source>
        <translation>Das Musterbild %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The new profile lies outside the Profiles folder, so no run will use it.</source>
        <translation>Das neue Profil liegt außerhalb des Ordners Profiles, also benutzt es kein Lauf.</translation>
    </message>
    <message>
        <source>The profile %1 is not there any more.</source>
        <translation>Das Profil %1 ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The document does not say the resolution of its image (DPI_X, DPI_Y), so runs leave it out.</source>
        <translation>Das Dokument nennt die Auflösung seines Bildes nicht (DPI_X, DPI_Y), also lassen Läufe es aus.</translation>
    </message>
    <message>
        <source>The groups of this profile cannot be read, so names tell them: %1.</source>
        <translation>Die Gruppen dieses Profils können nicht gelesen werden, also sagen die Namen sie: %1.</translation>
    </message>
    <message>
        <source>The profile %1 cannot be opened: %2.</source>
        <translation>Das Profil %1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The profile %1 is not saved: %2.</source>
        <translation>Das Profil %1 ist nicht gespeichert: %2.</translation>
    </message>
    <message>
        <source>The sub-folders of %1 cannot be made.</source>
        <translation>Die Unterordner von %1 können nicht angelegt werden.</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>das Dokument ist leer</translation>
    </message>
    <message>
        <source>it is not XML (%1 at byte %2)</source>
        <translation>es ist kein XML (%1 bei Byte %2)</translation>
    </message>
    <message>
        <source>something stands before the root element</source>
        <translation>vor dem Wurzelelement steht etwas</translation>
    </message>
    <message>
        <source>something stands behind the root element</source>
        <translation>hinter dem Wurzelelement steht etwas</translation>
    </message>
    <message>
        <source>the root element is not Tavrene</source>
        <translation>das Wurzelelement ist nicht Tavrene</translation>
    </message>
    <message>
        <source>the root element is no BoxGroups</source>
        <translation>das Wurzelelement ist nicht BoxGroups</translation>
    </message>
    <message>
        <source>the element OMRs stands twice</source>
        <translation>das Element OMRs steht zweimal da</translation>
    </message>
    <message>
        <source>the element %1 is missing</source>
        <translation>das Element %1 fehlt</translation>
    </message>
    <message>
        <source>the attribute %1 of %2 is missing</source>
        <translation>das Attribut %1 von %2 fehlt</translation>
    </message>
    <message>
        <source>the attribute %1 of %2 is &quot;%3&quot;, which is no number of 16 bits</source>
        <translation>das Attribut %1 von %2 ist „%3“, keine Zahl von 16 Bit</translation>
    </message>
    <message>
        <source>the attribute %1 stands twice in one element</source>
        <translation>das Attribut %1 steht zweimal in einem Element</translation>
    </message>
    <message>
        <source>the attribute Image is &quot;%1&quot;, which is no plain file name</source>
        <translation>das Attribut Image ist „%1“, kein einfacher Dateiname</translation>
    </message>
    <message>
        <source>the attribute Image is &quot;%1&quot;, which is no image</source>
        <translation>das Attribut Image ist „%1“, kein Bild</translation>
    </message>
    <message>
        <source>the box list cannot be composed (%1)</source>
        <translation>die Liste der Kästchen kann nicht gebildet werden (%1)</translation>
    </message>
    <message>
        <source>the name of box %1 (%2) holds a double quote, &lt; or &amp;, which a profile cannot hold</source>
        <translation>der Name von Kästchen %1 (%2) enthält ein doppeltes Anführungszeichen, &lt; oder &amp;, was ein Profil nicht kann</translation>
    </message>
    <message>
        <source>a group takes &quot;%1&quot;, which is none of one, any and least</source>
        <translation>eine Gruppe nimmt „%1“, keines von one, any und least</translation>
    </message>
    <message>
        <source>Behind the colon stands how many digits a number has, as in {n:02}, or A.</source>
        <translation>Hinter dem Doppelpunkt steht, wie viele Stellen eine Zahl hat, wie in {n:02}, oder A.</translation>
    </message>
    <message>
        <source>There is no {%1}: use {row}, {column}, {n}, {block} or {name}.</source>
        <translation>{%1} gibt es nicht: verwenden Sie {row}, {column}, {n}, {block} oder {name}.</translation>
    </message>
    <message>
        <source>A brace { is not closed.</source>
        <translation>Eine Klammer { ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; holds a double quote, &lt; or &amp;, which no profile can.</source>
        <translation>Der Name „%1“ enthält ein doppeltes Anführungszeichen, &lt; oder &amp;, was kein Profil kann.</translation>
    </message>
    <message>
        <source>1 boxes would have no name.</source>
        <translation>1 Kästchen hätte keinen Namen.</translation>
    </message>
    <message>
        <source>%1 boxes would have no name.</source>
        <translation>%1 Kästchen hätten keinen Namen.</translation>
    </message>
    <message>
        <source>%1 boxes would have the name &quot;%2&quot;.</source>
        <translation>%1 Kästchen hätten den Namen „%2“.</translation>
    </message>
    <message>
        <source>The document does not agree with itself: it counts %1 boxes but holds %2; a run reads the smaller number. Create the profile anew.</source>
        <translation>Das Dokument widerspricht sich: es zählt %1 Kästchen, enthält aber %2; ein Lauf liest die kleinere Zahl. Legen Sie das Profil neu an.</translation>
    </message>
    <message>
        <source>This profile has no boxes, so a run will look at no profile behind it in the list, even when it is not active. Add boxes or delete it.</source>
        <translation>Dieses Profil hat keine Kästchen, also sieht ein Lauf kein Profil hinter ihm in der Liste an, auch wenn es nicht aktiv ist. Fügen Sie Kästchen hinzu, oder löschen Sie es.</translation>
    </message>
    <message>
        <source>Every form of this profile will fail: the boxes by which a page is aligned (%1 of %2) all lie in one column. Add a box in another column, or switch on Precise Alignment.</source>
        <translation>Jedes Formular dieses Profils wird scheitern: die Kästchen, nach denen eine Seite ausgerichtet wird (%1 von %2), liegen alle in einer Spalte. Fügen Sie ein Kästchen in einer anderen Spalte hinzu, oder schalten Sie „Genaues Ausrichten“ ein.</translation>
    </message>
    <message>
        <source>Every form of this profile will fail: the boxes by which a page is aligned (%1 of %2) all lie in one row. Add a box in another row, or switch on Precise Alignment.</source>
        <translation>Jedes Formular dieses Profils wird scheitern: die Kästchen, nach denen eine Seite ausgerichtet wird (%1 von %2), liegen alle in einer Zeile. Fügen Sie ein Kästchen in einer anderen Zeile hinzu, oder schalten Sie „Genaues Ausrichten“ ein.</translation>
    </message>
    <message>
        <source>Forms may be misread: the boxes by which a page is aligned lie close together, all near one column. Add or delete boxes so that others are chosen.</source>
        <translation>Formulare könnten falsch gelesen werden: die Kästchen, nach denen eine Seite ausgerichtet wird, liegen eng beieinander, alle nahe einer Spalte. Fügen Sie Kästchen hinzu, oder löschen Sie welche, damit andere gewählt werden.</translation>
    </message>
    <message>
        <source>Forms may be misread: the boxes by which a page is aligned lie close together, all near one row. Add or delete boxes so that others are chosen.</source>
        <translation>Formulare könnten falsch gelesen werden: die Kästchen, nach denen eine Seite ausgerichtet wird, liegen eng beieinander, alle nahe einer Zeile. Fügen Sie Kästchen hinzu, oder löschen Sie welche, damit andere gewählt werden.</translation>
    </message>
    <message>
        <source>Box %1 has no area that can be read, so every form of this profile will fail. Change its size or delete it.</source>
        <translation>Kästchen %1 hat keine Fläche, die gelesen werden kann, also wird jedes Formular dieses Profils scheitern. Ändern Sie seine Größe, oder löschen Sie es.</translation>
    </message>
    <message>
        <source>Box %1 lies outside the specimen image, so it cannot be found on a form. Move it or delete it.</source>
        <translation>Kästchen %1 liegt außerhalb des Musterbildes, also kann es auf keinem Formular gefunden werden. Verschieben oder löschen Sie es.</translation>
    </message>
    <message>
        <source>With so few boxes (%1) this profile may match forms that are not its own.</source>
        <translation>Mit so wenigen Kästchen (%1) könnte dieses Profil zu Formularen passen, die nicht seine sind.</translation>
    </message>
    <message>
        <source>%1 boxes have the name &quot;%2&quot;, so results cannot tell them apart. Give each a name of its own.</source>
        <translation>%1 Kästchen haben den Namen „%2“, also unterscheiden Ergebnisse sie nicht. Geben Sie jedem einen eigenen Namen.</translation>
    </message>
    <message>
        <source>1 of %1 boxes still has the name that it was given when it was made, as %2. Results carry these names.</source>
        <translation>1 von %1 Kästchen hat noch den Namen, den es bei der Entstehung bekam, wie %2. Ergebnisse tragen diese Namen.</translation>
    </message>
    <message>
        <source>%1 of %2 boxes still have the names that they were given when they were made, as %3. Results carry these names.</source>
        <translation>%1 von %2 Kästchen haben noch die Namen, die sie bei der Entstehung bekamen, wie %3. Ergebnisse tragen diese Namen.</translation>
    </message>
    <message>
        <source>With the box sizes in the settings, this page has too many lines that could be sides of boxes. Please set sizes nearer to those of its boxes.</source>
        <translation>Mit den Größen in den Einstellungen hat diese Seite zu viele Linien, die Seiten von Kästchen sein könnten. Bitte stellen Sie Größen ein, die denen der Kästchen näher sind.</translation>
    </message>
    <message>
        <source>Image has more than 2 colors. cannot process.</source>
        <translation>Das Bild hat mehr als 2 Farben und kann nicht verarbeitet werden.</translation>
    </message>
    <message>
        <source>Reading image...</source>
        <translation>Das Bild wird gelesen...</translation>
    </message>
    <message>
        <source>Processing step %1 of 11 %2</source>
        <translation>Schritt %1 von 11 %2</translation>
    </message>
    <message>
        <source>Identifying OMR boxes...</source>
        <translation>Kästchen werden gesucht...</translation>
    </message>
    <message>
        <source>%L1 OMR Boxes identified</source>
        <translation>%L1 Kästchen gefunden</translation>
    </message>
    <message>
        <source>%L1 Files, %L2 Sec.</source>
        <translation>%L1 Dateien, %L2 Sek.</translation>
    </message>
    <message>
        <source>%L1 Sec.</source>
        <translation>%L1 Sek.</translation>
    </message>
    <message>
        <source>Unrecognized File type</source>
        <translation>Unbekannter Dateityp</translation>
    </message>
    <message>
        <source>Unable to process since image has more than 2 colors</source>
        <translation>Kann nicht verarbeitet werden: das Bild hat mehr als 2 Farben</translation>
    </message>
    <message>
        <source>Image not in bitmap format</source>
        <translation>Das Bild ist nicht im Bitmap-Format</translation>
    </message>
    <message>
        <source>FreeImage is not available</source>
        <translation>FreeImage ist nicht verfügbar</translation>
    </message>
    <message>
        <source>There is not enough memory for a page image.</source>
        <translation>Der Speicher reicht nicht für das Bild einer Seite.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture.</source>
        <translation>Der Speicher reicht nicht für ein Bild.</translation>
    </message>
    <message>
        <source>There is not enough memory for a reduced picture.</source>
        <translation>Der Speicher reicht nicht für ein verkleinertes Bild.</translation>
    </message>
    <message>
        <source>There is not enough memory for an image file.</source>
        <translation>Der Speicher reicht nicht für eine Bilddatei.</translation>
    </message>
    <message>
        <source>The image library cannot write this picture as PNG.</source>
        <translation>Die Bildbibliothek kann dieses Bild nicht als PNG schreiben.</translation>
    </message>
    <message>
        <source>The image library cannot write this page as TIFF.</source>
        <translation>Die Bildbibliothek kann diese Seite nicht als TIFF schreiben.</translation>
    </message>
    <message>
        <source>The image library cannot make a TIFF of several pages.</source>
        <translation>Die Bildbibliothek kann kein mehrseitiges TIFF anlegen.</translation>
    </message>
    <message>
        <source>The image library cannot write a TIFF of several pages.</source>
        <translation>Die Bildbibliothek kann kein mehrseitiges TIFF schreiben.</translation>
    </message>
    <message>
        <source>Page %L1 is damaged or too large.</source>
        <translation>Seite %L1 ist beschädigt oder zu groß.</translation>
    </message>
    <message>
        <source>Page %1 is damaged (%2).</source>
        <translation>Seite %1 ist beschädigt (%2).</translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation>Seite %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>Page %1 is too large.</source>
        <translation>Seite %1 ist zu groß.</translation>
    </message>
    <message>
        <source>The file is encrypted and opens only with a password.</source>
        <translation>Die Datei ist verschlüsselt und öffnet sich nur mit einem Passwort.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>Die Datei hat keine Seiten.</translation>
    </message>
    <message>
        <source>the picture is not complete</source>
        <translation>das Bild ist nicht vollständig</translation>
    </message>
    <message>
        <source>This is no PDF and no picture that can be read.</source>
        <translation>Das ist weder ein PDF noch ein lesbares Bild.</translation>
    </message>
    <message>
        <source>This program was built without the library that reads PDFs.</source>
        <translation>Dieses Programm ist ohne die Bibliothek gebaut, die PDFs liest.</translation>
    </message>
    <message>
        <source>It is waiting to be processed already.</source>
        <translation>Es wartet schon auf die Verarbeitung.</translation>
    </message>
    <message>
        <source>No Profiles to match images against!</source>
        <translation>Es gibt keine Profile, mit denen Bilder verglichen werden könnten!</translation>
    </message>
    <message>
        <source>None of your Profiles are active! Activate a Profile by checking the PROFILE ACTIVE checkbox and clicking the SAVE button.</source>
        <translation>Keines Ihrer Profile ist aktiv! Aktivieren Sie eines, indem Sie PROFIL AKTIV ankreuzen und auf SPEICHERN klicken.</translation>
    </message>
    <message>
        <source>Nothing is processed: %1, so no image can be read.</source>
        <translation>Nichts wird verarbeitet: %1, also kann kein Bild gelesen werden.</translation>
    </message>
    <message>
        <source>Processing started</source>
        <translation>Die Verarbeitung hat begonnen</translation>
    </message>
    <message>
        <source>Processing complete</source>
        <translation>Die Verarbeitung ist fertig</translation>
    </message>
    <message>
        <source>Processing interrupted by user</source>
        <translation>Die Verarbeitung wurde von Hand unterbrochen</translation>
    </message>
    <message>
        <source>Stop Tavrene Process</source>
        <translation>Verarbeitung anhalten</translation>
    </message>
    <message>
        <source>%1 lines could not be written to the process log in %2</source>
        <translation>%1 Zeilen konnten nicht ins Protokoll in %2 geschrieben werden</translation>
    </message>
    <message>
        <source>classified as [%1] with confidence [%2]</source>
        <translation>erkannt als [%1] mit Sicherheit [%2]</translation>
    </message>
    <message>
        <source>unclassified as [%1] with LOW confidence [%2]</source>
        <translation>nicht erkannt: am ehesten [%1] mit zu GERINGER Sicherheit [%2]</translation>
    </message>
    <message>
        <source>unclassified</source>
        <translation>nicht erkannt</translation>
    </message>
    <message>
        <source>the sampled boxes of the profile all lie in one column, so the page&apos;s shift cannot be spread</source>
        <translation>die Stichprobe der Kästchen des Profils liegt in einer Spalte, also lässt sich die Verschiebung der Seite nicht verteilen</translation>
    </message>
    <message>
        <source>the sampled boxes of the profile all lie in one row, so the page&apos;s shift cannot be spread</source>
        <translation>die Stichprobe der Kästchen des Profils liegt in einer Zeile, also lässt sich die Verschiebung der Seite nicht verteilen</translation>
    </message>
    <message>
        <source>the box %1 has no area that could be read</source>
        <translation>das Kästchen %1 hat keine Fläche, die gelesen werden könnte</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>der Speicher reicht dafür nicht</translation>
    </message>
    <message>
        <source>a fault of the program keeps it from being done</source>
        <translation>ein Fehler des Programms verhindert es</translation>
    </message>
    <message>
        <source>1 form looks turned or stretched: Precise Alignment reads it.</source>
        <translation>1 Formular sieht gedreht oder gedehnt aus: „Genaues Ausrichten“ liest es.</translation>
    </message>
    <message>
        <source>%1 forms look turned or stretched: Precise Alignment reads them.</source>
        <translation>%1 Formulare sehen gedreht oder gedehnt aus: „Genaues Ausrichten“ liest sie.</translation>
    </message>
    <message>
        <source>1 box in 1 form read otherwise by Precise Alignment; review shows them as doubtful.</source>
        <translation>1 Kästchen in 1 Formular liest „Genaues Ausrichten“ anders; die Prüfung zeigt es als zweifelhaft.</translation>
    </message>
    <message>
        <source>%1 boxes in 1 form read otherwise by Precise Alignment; review shows them as doubtful.</source>
        <translation>%1 Kästchen in 1 Formular liest „Genaues Ausrichten“ anders; die Prüfung zeigt sie als zweifelhaft.</translation>
    </message>
    <message>
        <source>%1 boxes in %2 forms read otherwise by Precise Alignment; review shows them as doubtful.</source>
        <translation>%1 Kästchen in %2 Formularen liest „Genaues Ausrichten“ anders; die Prüfung zeigt sie als zweifelhaft.</translation>
    </message>
    <message>
        <source>1 form may belong to another profile than the one found, or to none: %1.</source>
        <translation>1 Formular gehört vielleicht zu einem anderen Profil als dem gefundenen, oder zu keinem: %1.</translation>
    </message>
    <message>
        <source>%1 forms may belong to another profile than the one found, or to none: %2 and %3 more.</source>
        <translation>%1 Formulare gehören vielleicht zu einem anderen Profil als dem gefundenen, oder zu keinem: %2 und %3 weitere.</translation>
    </message>
    <message>
        <source>%1 forms may belong to another profile than the one found, or to none: %2.</source>
        <translation>%1 Formulare gehören vielleicht zu einem anderen Profil als dem gefundenen, oder zu keinem: %2.</translation>
    </message>
    <message>
        <source>The specimen image of profile %1 is missing or cannot be read: Precise Alignment knows its forms by their boxes alone.</source>
        <translation>Das Musterbild des Profils %1 fehlt oder ist nicht lesbar: „Genaues Ausrichten“ erkennt seine Formulare nur an den Kästchen.</translation>
    </message>
    <message>
        <source>The boxes of profile %1 do not lie on its specimen image: it was replaced.</source>
        <translation>Die Kästchen des Profils %1 liegen nicht auf seinem Musterbild: es wurde ersetzt.</translation>
    </message>
    <message>
        <source>Save changes to Form &lt;%1&gt;?</source>
        <translation>Änderungen am Formular &lt;%1&gt; speichern?</translation>
    </message>
    <message>
        <source>Saved Form: %1</source>
        <translation>Formular gespeichert: %1</translation>
    </message>
    <message>
        <source>Image [%1], Profile [%2]</source>
        <translation>Bild [%1], Profil [%2]</translation>
    </message>
    <message>
        <source>Checked:%1 of %2 Skip:%3</source>
        <translation>Angekreuzt:%1 von %2 Fehlt:%3</translation>
    </message>
    <message>
        <source>Checked:%1 of %2</source>
        <translation>Angekreuzt:%1 von %2</translation>
    </message>
    <message>
        <source>Reviewed: %1 of %2</source>
        <translation>Geprüft: %1 von %2</translation>
    </message>
    <message>
        <source>Warning: Images referred in &lt;%1&gt; Forms were missing and hence not loaded. Please refer process log.</source>
        <translation>Achtung: zu &lt;%1&gt; Formularen fehlen die Bilder; sie wurden nicht geladen. Näheres im Protokoll.</translation>
    </message>
    <message>
        <source>The profile %1 no longer exists. Re-evaluate?
Selecting Yes will move the image to ProcessIn Dir...</source>
        <translation>Das Profil %1 gibt es nicht mehr. Neu auswerten?
„Ja“ legt das Bild nach ProcessIn zurück.</translation>
    </message>
    <message>
        <source>The profile has changed. Re-evaluate using the new profile?
Selecting No would keep the same profile but skip the modified fields.</source>
        <translation>Das Profil hat sich geändert. Mit dem neuen Profil neu auswerten?
„Nein“ behält das alte Profil, lässt aber die geänderten Kästchen aus.</translation>
    </message>
    <message>
        <source>The document %1 was changed by somebody else after it was opened here. Write over it?</source>
        <translation>Das Dokument %1 wurde von jemand anderem geändert, nachdem es hier geöffnet wurde. Überschreiben?</translation>
    </message>
    <message>
        <source>The image %1 was not found.</source>
        <translation>Das Bild %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>1 page is back in ProcessIn.</source>
        <translation>1 Seite liegt wieder in ProcessIn.</translation>
    </message>
    <message>
        <source>%1 pages are back in ProcessIn.</source>
        <translation>%1 Seiten liegen wieder in ProcessIn.</translation>
    </message>
    <message>
        <source>%L1 stayed: a file of that name waits there already.</source>
        <translation>%L1 blieb: dort wartet schon eine Datei dieses Namens.</translation>
    </message>
    <message>
        <source>No form of the list has a box in doubt.</source>
        <translation>Kein Formular der Liste hat ein zweifelhaftes Kästchen.</translation>
    </message>
    <message>
        <source>Form [%1] stays in %2: it was changed there or is gone</source>
        <translation>Formular [%1] bleibt in %2: es wurde dort geändert oder ist weg</translation>
    </message>
    <message>
        <source>Form [%1] lies half in %2, but is not there. It has to be taken back first.</source>
        <translation>Formular [%1] liegt halb in %2, ist aber nicht da. Es muss erst zurückgeholt werden.</translation>
    </message>
    <message>
        <source>Form [%1] lies half in %2 and cannot be taken back yet: %3</source>
        <translation>Formular [%1] liegt halb in %2 und kann noch nicht zurückgeholt werden: %3</translation>
    </message>
    <message>
        <source>%1. What was moved before lies in %2; the next decision or start takes it back first.</source>
        <translation>%1. Was vorher verschoben wurde, liegt in %2; die nächste Entscheidung oder der nächste Start holt es erst zurück.</translation>
    </message>
    <message>
        <source>The logs of the last weeks say nothing of it.</source>
        <translation>Die Protokolle der letzten Wochen sagen nichts dazu.</translation>
    </message>
    <message>
        <source>Its result document has gone or cannot be read.</source>
        <translation>Sein Ergebnis ist verschwunden oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Ink and mark contradict each other</source>
        <translation>Farbe und Markierung widersprechen sich</translation>
    </message>
    <message>
        <source>A second look takes the page for another form, or for none</source>
        <translation>Ein zweiter Blick hält die Seite für ein anderes Formular, oder für keines</translation>
    </message>
    <message>
        <source>A second look reads this box otherwise</source>
        <translation>Ein zweiter Blick liest dieses Kästchen anders</translation>
    </message>
    <message>
        <source>The ink is near the threshold</source>
        <translation>Die Farbe liegt nahe der Schwelle</translation>
    </message>
    <message>
        <source>Much fuller than the other marks: blacked out?</source>
        <translation>Viel voller als die anderen Markierungen: geschwärzt?</translation>
    </message>
    <message>
        <source>There is ink close beside this box</source>
        <translation>Dicht neben diesem Kästchen ist Farbe</translation>
    </message>
    <message>
        <source>No box of its group is marked</source>
        <translation>Kein Kästchen seiner Gruppe ist angekreuzt</translation>
    </message>
    <message>
        <source>More than one box of its group is marked</source>
        <translation>Mehr als ein Kästchen seiner Gruppe ist angekreuzt</translation>
    </message>
    <message>
        <source>The sheet &quot;%1&quot; cannot be made: a sheet has room for %2 columns.</source>
        <translation>Das Blatt „%1“ kann nicht angelegt werden: ein Blatt fasst %2 Spalten.</translation>
    </message>
    <message>
        <source>The sheet &quot;%1&quot; cannot be made: %2</source>
        <translation>Das Blatt „%1“ kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>The sheet &quot;%1&quot; cannot be made.</source>
        <translation>Das Blatt „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>There is not enough memory for a workbook.</source>
        <translation>Der Speicher reicht nicht für eine Arbeitsmappe.</translation>
    </message>
    <message>
        <source>Cannot list the folder %1: %2</source>
        <translation>Der Ordner %1 kann nicht aufgelistet werden: %2</translation>
    </message>
    <message>
        <source>Cannot create the folder %1: %2</source>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>Cannot create the folder %1</source>
        <translation>Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>There is no folder for temporary files: %1</source>
        <translation>Es gibt keinen Ordner für zeitweilige Dateien: %1</translation>
    </message>
    <message>
        <source>Cannot read %1: it is larger than one gigabyte</source>
        <translation>%1 kann nicht gelesen werden: die Datei ist größer als ein Gigabyte</translation>
    </message>
    <message>
        <source>Cannot move %1: the file is gone</source>
        <translation>%1 kann nicht verschoben werden: die Datei ist weg</translation>
    </message>
    <message>
        <source>Cannot move %1: there is already a file %2</source>
        <translation>%1 kann nicht verschoben werden: es gibt schon eine Datei %2</translation>
    </message>
    <message>
        <source>Cannot move %1: somebody is still writing to it</source>
        <translation>%1 kann nicht verschoben werden: es wird noch daran geschrieben</translation>
    </message>
    <message>
        <source>Cannot move %1: %2 is a folder</source>
        <translation>%1 kann nicht verschoben werden: %2 ist ein Ordner</translation>
    </message>
    <message>
        <source>Cannot move %1 to %2: %3</source>
        <translation>%1 kann nicht nach %2 verschoben werden: %3</translation>
    </message>
    <message>
        <source>Cannot delete %1, which now lies in %2 as well: %3</source>
        <translation>%1 kann nicht gelöscht werden und liegt nun auch in %2: %3</translation>
    </message>
    <message>
        <source>Cannot save %1: the file is gone</source>
        <translation>%1 kann nicht gespeichert werden: die Datei ist weg</translation>
    </message>
    <message>
        <source>Cannot write %1: a folder has that name</source>
        <translation>%1 kann nicht geschrieben werden: ein Ordner heißt so</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Cannot delete %1: %2</source>
        <translation>%1 kann nicht gelöscht werden: %2</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Reading forms again... Esc stops.</source>
        <translation>Formulare werden erneut gelesen... Esc bricht ab.</translation>
    </message>
    <message>
        <source>1 form is left.</source>
        <translation>1 Formular bleibt übrig.</translation>
    </message>
    <message>
        <source>%L1 forms are left.</source>
        <translation>%L1 Formulare bleiben übrig.</translation>
    </message>
    <message>
        <source>1 box copied; Ctrl+V adds it to a profile.</source>
        <translation>1 Kästchen kopiert; Strg+V fügt es einem Profil hinzu.</translation>
    </message>
    <message>
        <source>%L1 boxes copied; Ctrl+V adds them to a profile.</source>
        <translation>%L1 Kästchen kopiert; Strg+V fügt sie einem Profil hinzu.</translation>
    </message>
    <message>
        <source>There is no room on the page for the copies there.</source>
        <translation>Dort ist auf der Seite kein Platz für die Kopien.</translation>
    </message>
    <message>
        <source>The clipboard holds boxes. Open a profile to add them to it.</source>
        <translation>In der Zwischenablage sind Kästchen. Öffnen Sie ein Profil, um sie ihm hinzuzufügen.</translation>
    </message>
    <message>
        <source>1 page was scanned to ProcessIn.</source>
        <translation>1 Seite wurde nach ProcessIn gescannt.</translation>
    </message>
    <message>
        <source>%L1 pages were scanned to ProcessIn.</source>
        <translation>%L1 Seiten wurden nach ProcessIn gescannt.</translation>
    </message>
    <message>
        <source>Looking for the next doubt...</source>
        <translation>Das nächste zweifelhafte Kästchen wird gesucht...</translation>
    </message>
    <message>
        <source>Looking at forms that were not looked at yet...</source>
        <translation>Noch nicht angesehene Formulare werden angesehen...</translation>
    </message>
    <message>
        <source>Accepting forms...</source>
        <translation>Formulare werden angenommen...</translation>
    </message>
    <message>
        <source>Bringing forms back...</source>
        <translation>Formulare werden zurückgeholt...</translation>
    </message>
    <message>
        <source>Esc stops.</source>
        <translation>Esc bricht ab.</translation>
    </message>
    <message>
        <source>Accepted 1 form.</source>
        <translation>1 Formular angenommen.</translation>
    </message>
    <message>
        <source>Accepted %L1 forms.</source>
        <translation>%L1 Formulare angenommen.</translation>
    </message>
    <message>
        <source>Undo Decision (Ctrl+U) brings them back.</source>
        <translation>„Entscheidung zurücknehmen“ (Strg+U) holt sie zurück.</translation>
    </message>
    <message>
        <source>1 form still to be looked at</source>
        <translation>1 Formular noch anzusehen</translation>
    </message>
    <message>
        <source>%L1 forms still to be looked at</source>
        <translation>%L1 Formulare noch anzusehen</translation>
    </message>
    <message>
        <source>1 mark was turned round and not confirmed. Go on without them?</source>
        <translation>1 Markierung wurde umgekehrt und nicht bestätigt. Ohne sie weitermachen?</translation>
    </message>
    <message>
        <source>%L1 marks were turned round and not confirmed. Go on without them?</source>
        <translation>%L1 Markierungen wurden umgekehrt und nicht bestätigt. Ohne sie weitermachen?</translation>
    </message>
    <message>
        <source>1 form reviewed, 1 box corrected on the sheet.</source>
        <translation>Auf dem Blatt 1 Formular geprüft, 1 Kästchen berichtigt.</translation>
    </message>
    <message>
        <source>1 form reviewed, %L1 boxes corrected on the sheet.</source>
        <translation>Auf dem Blatt 1 Formular geprüft, %L1 Kästchen berichtigt.</translation>
    </message>
    <message>
        <source>%L1 forms reviewed, 1 box corrected on the sheet.</source>
        <translation>Auf dem Blatt %L1 Formulare geprüft, 1 Kästchen berichtigt.</translation>
    </message>
    <message>
        <source>%L1 forms reviewed, %L2 boxes corrected on the sheet.</source>
        <translation>Auf dem Blatt %L1 Formulare geprüft, %L2 Kästchen berichtigt.</translation>
    </message>
    <message>
        <source>Renamed Profile: %1</source>
        <translation>Profil umbenannt: %1</translation>
    </message>
    <message>
        <source>Duplicate Profile</source>
        <translation>Profil duplizieren</translation>
    </message>
    <message>
        <source>Rename Profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>There is a profile %1 already. Choose another name.</source>
        <translation>Es gibt schon ein Profil %1. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>This copy is not active, for it would match the same forms as %1. Change its boxes or its image before you switch it on</source>
        <translation>Diese Kopie ist nicht aktiv, denn sie passte zu denselben Formularen wie %1. Ändern Sie ihre Kästchen oder ihr Bild, ehe Sie sie einschalten</translation>
    </message>
    <message>
        <source>Setting groups and saving writes them anew.</source>
        <translation>Wer Gruppen setzt und speichert, schreibt sie neu.</translation>
    </message>
    <message>
        <source>The file %1 is not there any more. Save the profile, which writes it anew, and then locate its image.</source>
        <translation>Die Datei %1 ist nicht mehr da. Speichern Sie das Profil, das schreibt sie neu, und suchen Sie dann das Bild.</translation>
    </message>
    <message>
        <source>All boxes lie in one column, so this profile may match forms that are not its own. Add a box in another column.</source>
        <translation>Alle Kästchen liegen in einer Spalte, deshalb könnte dieses Profil auf fremde Formulare passen. Fügen Sie ein Kästchen in einer anderen Spalte hinzu.</translation>
    </message>
    <message>
        <source>All boxes lie in one row, so this profile may match forms that are not its own. Add a box in another row.</source>
        <translation>Alle Kästchen liegen in einer Zeile, deshalb könnte dieses Profil auf fremde Formulare passen. Fügen Sie ein Kästchen in einer anderen Zeile hinzu.</translation>
    </message>
    <message>
        <source>A run takes this page for &quot;%1&quot; (%L2 %).</source>
        <translation>Ein Lauf hält diese Seite für „%1“ (%L2 %).</translation>
    </message>
    <message>
        <source>Recognised: %L1 of the %L2 box outlines that are looked for were found.</source>
        <translation>Erkannt: %L1 der %L2 gesuchten Umrisse von Kästchen wurden gefunden.</translation>
    </message>
    <message>
        <source>Recognised: %L1 of the %L2 box outlines that are looked for were found, but it cannot be read: %3.</source>
        <translation>Erkannt: %L1 der %L2 gesuchten Umrisse von Kästchen wurden gefunden, aber die Seite lässt sich nicht lesen: %3.</translation>
    </message>
    <message>
        <source>This profile matches, too: %L1 of the %L2 box outlines that are looked for were found.</source>
        <translation>Auch dieses Profil passt: %L1 der %L2 gesuchten Umrisse von Kästchen wurden gefunden.</translation>
    </message>
    <message>
        <source>This profile matches, too: %L1 of the %L2 box outlines that are looked for were found, but it cannot be read: %3.</source>
        <translation>Auch dieses Profil passt: %L1 der %L2 gesuchten Umrisse von Kästchen wurden gefunden, aber die Seite lässt sich nicht lesen: %3.</translation>
    </message>
    <message>
        <source>This profile does not match: %L1 of the %L2 box outlines that are looked for were found, and more than half have to be.</source>
        <translation>Dieses Profil passt nicht: %L1 der %L2 gesuchten Umrisse von Kästchen wurden gefunden, und mehr als die Hälfte müssen es sein.</translation>
    </message>
    <message>
        <source>This profile does not match: it has no boxes, or one before it in the list has none, so it is not looked for.</source>
        <translation>Dieses Profil passt nicht: es hat keine Kästchen, oder eines vor ihm in der Liste hat keine, deshalb wird es nicht gesucht.</translation>
    </message>
    <message>
        <source>This profile does not match: its boxes and the print of its specimen do not lie on this page, turned or stretched as it may be.</source>
        <translation>Dieses Profil passt nicht: seine Kästchen und der Druck seines Musters liegen nicht auf dieser Seite, auch nicht gedreht oder gedehnt.</translation>
    </message>
    <message>
        <source>Recognised: %L1 % of the boxes lie where they should.</source>
        <translation>Erkannt: %L1 % der Kästchen liegen, wo sie sollen.</translation>
    </message>
    <message>
        <source>This profile matches, too: %L1 % of the boxes lie where they should.</source>
        <translation>Auch dieses Profil passt: %L1 % der Kästchen liegen, wo sie sollen.</translation>
    </message>
    <message>
        <source>The page lies upside down.</source>
        <translation>Die Seite steht auf dem Kopf.</translation>
    </message>
    <message>
        <source>The boxes are shown where the profile has them.</source>
        <translation>Die Kästchen werden gezeigt, wo das Profil sie hat.</translation>
    </message>
    <message>
        <source>Runs leave this profile out, for it is not active.</source>
        <translation>Läufe lassen dieses Profil aus, denn es ist nicht aktiv.</translation>
    </message>
    <message>
        <source>%L1 of %L2 boxes are ticked; the faintest tick has %3, the fullest empty box %4.</source>
        <translation>%L1 von %L2 Kästchen sind angekreuzt; das schwächste Kreuz hat %3, das vollste leere Kästchen %4.</translation>
    </message>
    <message>
        <source>%L1 of %L2 boxes are ticked; the faintest tick has %3.</source>
        <translation>%L1 von %L2 Kästchen sind angekreuzt; das schwächste Kreuz hat %3.</translation>
    </message>
    <message>
        <source>%L1 of %L2 boxes are ticked; the fullest empty box has %3.</source>
        <translation>%L1 von %L2 Kästchen sind angekreuzt; das vollste leere Kästchen hat %3.</translation>
    </message>
    <message>
        <source>%L1 of %L2 boxes are ticked.</source>
        <translation>%L1 von %L2 Kästchen sind angekreuzt.</translation>
    </message>
    <message>
        <source>%L1 needed nothing: gone, or read meanwhile.</source>
        <translation>%L1 brauchten nichts: weg, oder inzwischen gelesen.</translation>
    </message>
    <message>
        <source>No box in doubt was found yet; 1 form is still to be looked at.</source>
        <translation>Noch wurde kein zweifelhaftes Kästchen gefunden; 1 Formular ist noch anzusehen.</translation>
    </message>
    <message>
        <source>No box in doubt was found yet; %L1 forms are still to be looked at.</source>
        <translation>Noch wurde kein zweifelhaftes Kästchen gefunden; %L1 Formulare sind noch anzusehen.</translation>
    </message>
    <message>
        <source>1 form has boxes in doubt, but a question to answer first: open by Enter.</source>
        <translation>1 Formular hat zweifelhafte Kästchen, aber erst ist eine Frage zu beantworten: mit Eingabe öffnen.</translation>
    </message>
    <message>
        <source>%L1 forms have boxes in doubt, but a question to answer first: open by Enter.</source>
        <translation>%L1 Formulare haben zweifelhafte Kästchen, aber erst ist eine Frage zu beantworten: mit Eingabe öffnen.</translation>
    </message>
    <message>
        <source>Accept 1 form without doubt?</source>
        <translation>1 Formular ohne Zweifel annehmen?</translation>
    </message>
    <message>
        <source>Accept %L1 forms without doubt?</source>
        <translation>%L1 Formulare ohne Zweifel annehmen?</translation>
    </message>
    <message>
        <source>%L1 of profile %2</source>
        <translation>%L1 vom Profil %2</translation>
    </message>
    <message>
        <source>%L1 of them were reviewed.</source>
        <translation>%L1 davon wurden geprüft.</translation>
    </message>
    <message>
        <source>1 form with boxes in doubt stays.</source>
        <translation>1 Formular mit zweifelhaften Kästchen bleibt.</translation>
    </message>
    <message>
        <source>%L1 forms with boxes in doubt stay.</source>
        <translation>%L1 Formulare mit zweifelhaften Kästchen bleiben.</translation>
    </message>
    <message>
        <source>1 form that could not be looked at yet stays.</source>
        <translation>1 Formular, das noch nicht angesehen werden konnte, bleibt.</translation>
    </message>
    <message>
        <source>%L1 forms that could not be looked at yet stay.</source>
        <translation>%L1 Formulare, die noch nicht angesehen werden konnten, bleiben.</translation>
    </message>
    <message>
        <source>1 form that the list does not show stays.</source>
        <translation>1 Formular, das die Liste nicht zeigt, bleibt.</translation>
    </message>
    <message>
        <source>%L1 forms that the list does not show stay.</source>
        <translation>%L1 Formulare, die die Liste nicht zeigt, bleiben.</translation>
    </message>
    <message>
        <source>They move to ProcessFinal. Undo Decision brings all of them back.</source>
        <translation>Sie kommen nach ProcessFinal. „Entscheidung zurücknehmen“ holt alle zurück.</translation>
    </message>
    <message>
        <source>No form to accept.</source>
        <translation>Kein Formular anzunehmen.</translation>
    </message>
    <message>
        <source>and %L1 more.</source>
        <translation>und %L1 weitere.</translation>
    </message>
    <message>
        <source>Form [%1] stays as it is: it was changed by somebody else, or is gone</source>
        <translation>Formular [%1] bleibt, wie es ist: es wurde von jemand anderem geändert oder ist weg</translation>
    </message>
    <message>
        <source>The scanner gave an empty page.</source>
        <translation>Der Scanner hat eine leere Seite geliefert.</translation>
    </message>
    <message>
        <source>It was cancelled at the scanner.</source>
        <translation>Am Scanner wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The scanner is busy. Another program may be using it.</source>
        <translation>Der Scanner ist beschäftigt. Vielleicht benutzt ihn ein anderes Programm.</translation>
    </message>
    <message>
        <source>The paper is jammed, or the feeder has drawn in two sheets at once.</source>
        <translation>Das Papier klemmt, oder der Einzug hat zwei Blätter auf einmal gezogen.</translation>
    </message>
    <message>
        <source>The feeder is empty.</source>
        <translation>Der Einzug ist leer.</translation>
    </message>
    <message>
        <source>The cover of the scanner is open.</source>
        <translation>Der Deckel des Scanners ist offen.</translation>
    </message>
    <message>
        <source>The scanner does not answer as it should. Is it switched on and connected?</source>
        <translation>Der Scanner antwortet nicht, wie er soll. Ist er eingeschaltet und angeschlossen?</translation>
    </message>
    <message>
        <source>There is not enough memory for the page.</source>
        <translation>Für die Seite reicht der Arbeitsspeicher nicht.</translation>
    </message>
    <message>
        <source>This account may not use the scanner.</source>
        <translation>Dieses Benutzerkonto darf den Scanner nicht benutzen.</translation>
    </message>
    <message>
        <source>The scanner does not do what it was asked for.</source>
        <translation>Der Scanner tut nicht, was verlangt wurde.</translation>
    </message>
    <message>
        <source>The scanner gives pages of this kind in a way that is not known here. Choose another.</source>
        <translation>Der Scanner liefert Seiten dieser Art in einer Weise, die hier nicht bekannt ist. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Process interrupted by user</source>
        <translation>Die Verarbeitung wurde angehalten</translation>
    </message>
    <message>
        <source>These boxes were copied before the program was started. Copy them once more.</source>
        <translation>Diese Kästchen wurden kopiert, bevor das Programm gestartet wurde. Kopieren Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>The scanner refuses the source that was chosen.</source>
        <translation>Der Scanner lehnt die gewählte Quelle ab.</translation>
    </message>
    <message>
        <source>The scanner refuses the mode that was chosen.</source>
        <translation>Der Scanner lehnt den gewählten Modus ab.</translation>
    </message>
    <message>
        <source>The scanner refuses the resolution that was chosen.</source>
        <translation>Der Scanner lehnt die gewählte Auflösung ab.</translation>
    </message>
    <message>
        <source>Results were read with the profile %1 and will not know it by another name: review will say that it no longer exists. Rename it all the same?</source>
        <translation>Ergebnisse wurden mit dem Profil %1 gelesen und kennen es unter anderem Namen nicht: die Prüfung wird sagen, dass es nicht mehr existiert. Trotzdem umbenennen?</translation>
    </message>
    <message>
        <source>Accepted forms were read with the profile %1 and will not know it by another name: their tables will be without its groups. Rename it all the same?</source>
        <translation>Angenommene Formulare wurden mit dem Profil %1 gelesen und kennen es unter anderem Namen nicht: ihre Tabellen werden ohne seine Gruppen sein. Trotzdem umbenennen?</translation>
    </message>
    <message>
        <source>The specimen image is %1 now. Locate another one if the boxes do not fit it.</source>
        <translation>Das Musterbild ist jetzt %1. Suchen Sie ein anderes, wenn die Kästchen nicht dazu passen.</translation>
    </message>
    <message>
        <source>1 scan waits in ProcessIn/.claims</source>
        <translation>1 Scan wartet in ProcessIn/.claims</translation>
    </message>
    <message>
        <source>%1 scans wait in ProcessIn/.claims</source>
        <translation>%1 Scans warten in ProcessIn/.claims</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Forms that &amp;wait for a decision (ProcessOut)</source>
        <translation>Formulare, die auf eine Entscheidung &amp;warten (ProcessOut)</translation>
    </message>
    <message>
        <source>&amp;Accepted forms (ProcessFinal)</source>
        <translation>&amp;Angenommene Formulare (ProcessFinal)</translation>
    </message>
    <message>
        <source>Work&amp;book (.xlsx), one sheet a profile</source>
        <translation>Arbeits&amp;mappe (.xlsx), ein Blatt je Profil</translation>
    </message>
    <message>
        <source>CSV &amp;files, one a profile</source>
        <translation>&amp;CSV-Dateien, eine je Profil</translation>
    </message>
    <message>
        <source>Byte &amp;order mark</source>
        <translation>&amp;Bytereihenfolge-Marke</translation>
    </message>
    <message>
        <source>Some spreadsheets show accents right only in files that begin with this mark</source>
        <translation>Manche Tabellenprogramme zeigen Umlaute nur in Dateien richtig, die mit dieser Marke beginnen</translation>
    </message>
    <message>
        <source>One column a &amp;group of boxes</source>
        <translation>Eine Spalte je &amp;Gruppe von Kästchen</translation>
    </message>
    <message>
        <source>Boxes with the same first words, or as set in the profile: the names of the checked ones</source>
        <translation>Kästchen mit denselben ersten Wörtern, oder wie im Profil festgelegt: die Namen der angekreuzten</translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
    <message>
        <source>Which forms</source>
        <translation>Welche Formulare</translation>
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
        <source>As what</source>
        <translation>Als was</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;Counts...</source>
        <translation>A&amp;uszählung...</translation>
    </message>
    <message>
        <source>How often each box is checked, to be printed or saved</source>
        <translation>Wie oft jedes Kästchen angekreuzt ist, zum Drucken oder Speichern</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Picture of the highlighted file</source>
        <translation>Bild der hervorgehobenen Datei</translation>
    </message>
    <message>
        <source>%1
File not found.</source>
        <translation>%1
Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 gibt es schon.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>A file whose name begins with a dot is hidden. Choose another name.</source>
        <translation>Eine Datei, deren Name mit einem Punkt beginnt, ist versteckt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 is there already.
Choose another name.</source>
        <translation>%1 ist schon vorhanden.
Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>FileReports</name>
    <message>
        <source>Files that could not be used</source>
        <translation>Dateien, die nicht verwendet werden konnten</translation>
    </message>
    <message>
        <source>These files could not be used:</source>
        <translation>Diese Dateien konnten nicht verwendet werden:</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>All forms</source>
        <translation>Alle Formulare</translation>
    </message>
    <message>
        <source>Not reviewed</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>In doubt</source>
        <translation>Zweifelhaft</translation>
    </message>
    <message>
        <source>Which forms the list shows</source>
        <translation>Welche Formulare die Liste zeigt</translation>
    </message>
    <message>
        <source>Text that the names of the forms hold</source>
        <translation>Text, den die Namen der Formulare enthalten</translation>
    </message>
    <message>
        <source>Name holds...</source>
        <translation>Name enthält...</translation>
    </message>
    <message>
        <source>Profile %1</source>
        <translation>Profil %1</translation>
    </message>
</context>
<context>
    <name>FolderChooser</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Working folder</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>Path of the working folder</source>
        <translation>Pfad des Arbeitsordners</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;New Folder...</source>
        <translation>&amp;Neuer Ordner...</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Name of the new folder in
%1:</source>
        <translation>Name des neuen Ordners in
%1:</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made in %2. Choose another name or another place.</source>
        <translation>Der Ordner %1 kann in %2 nicht angelegt werden. Wählen Sie einen anderen Namen oder Ort.</translation>
    </message>
    <message>
        <source>This folder is not there. Choose another one, or make it with New Folder.</source>
        <translation>Diesen Ordner gibt es nicht. Wählen Sie einen anderen, oder legen Sie ihn mit „Neuer Ordner“ an.</translation>
    </message>
</context>
<context>
    <name>GroupCommands</name>
    <message>
        <source>one mark</source>
        <translation>eine Markierung</translation>
    </message>
    <message>
        <source>any number of marks</source>
        <translation>beliebig viele Markierungen</translation>
    </message>
    <message>
        <source>at least one mark</source>
        <translation>mindestens eine Markierung</translation>
    </message>
    <message>
        <source>Group of Boxes</source>
        <translation>Gruppe von Kästchen</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>The question &amp;takes</source>
        <translation>Die &amp;Frage nimmt</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Seiten des Handbuchs</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>No page is shown</source>
        <translation>Keine Seite wird gezeigt</translation>
    </message>
    <message>
        <source>Page image</source>
        <translation>Bild der Seite</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>S&amp;prache</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Another program works on the forms in %1.
Process again when it has ended.</source>
        <translation>Ein anderes Programm arbeitet an den Formularen in %1.
Verarbeiten Sie noch einmal, wenn es fertig ist.</translation>
    </message>
</context>
<context>
    <name>MessageStrip</name>
    <message>
        <source>Notices about the page</source>
        <translation>Hinweise zur Seite</translation>
    </message>
    <message>
        <source>Close these notices</source>
        <translation>Diese Hinweise schließen</translation>
    </message>
</context>
<context>
    <name>NameBoxesDialog</name>
    <message>
        <source>No name changes.</source>
        <translation>Kein Name ändert sich.</translation>
    </message>
    <message>
        <source>One box: %1</source>
        <translation>Ein Kästchen: %1</translation>
    </message>
    <message>
        <source>%1 boxes: %2 ... %3</source>
        <translation>%1 Kästchen: %2 ... %3</translation>
    </message>
    <message>
        <source>Name Boxes</source>
        <translation>Kästchen benennen</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>{row} and {column}: where the box stands; {n:02}: its number, with two digits;
{column:A}: a letter; {block}: the block of columns; {name}: the name it has</source>
        <translation>{row} und {column}: in welcher Zeile und Spalte das Kästchen steht; {n:02}: seine Nummer, zweistellig;
{column:A}: ein Buchstabe; {block}: der Block von Spalten; {name}: der Name, den es hat</translation>
    </message>
    <message>
        <source>Names of the rows</source>
        <translation>Namen der Zeilen</translation>
    </message>
    <message>
        <source>Names of the columns</source>
        <translation>Namen der Spalten</translation>
    </message>
    <message>
        <source>often, rarely, never</source>
        <translation>oft, selten, nie</translation>
    </message>
    <message>
        <source>Counted from</source>
        <translation>Gezählt ab</translation>
    </message>
    <message>
        <source>&amp;Pattern</source>
        <translation>&amp;Muster</translation>
    </message>
    <message>
        <source>&amp;Counted from</source>
        <translation>&amp;Gezählt ab</translation>
    </message>
    <message>
        <source>Names of the &amp;rows</source>
        <translation>Namen der &amp;Zeilen</translation>
    </message>
    <message>
        <source>Names of the co&amp;lumns</source>
        <translation>Namen der &amp;Spalten</translation>
    </message>
    <message>
        <source>Names, one a line</source>
        <translation>Namen, einer je Zeile</translation>
    </message>
    <message>
        <source>One name a line, as a column of a table is pasted</source>
        <translation>Ein Name je Zeile, wie man die Spalte einer Tabelle einfügt</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>Replace &amp;with</source>
        <translation>Ersetzen &amp;durch</translation>
    </message>
    <message>
        <source>P&amp;attern</source>
        <translation>M&amp;uster</translation>
    </message>
    <message>
        <source>Li&amp;st</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>F&amp;ind and Replace</source>
        <translation>Suchen und &amp;Ersetzen</translation>
    </message>
    <message>
        <source>Row &amp;by row</source>
        <translation>Zeile &amp;für Zeile</translation>
    </message>
    <message>
        <source>Column by colu&amp;mn</source>
        <translation>Spal&amp;te für Spalte</translation>
    </message>
    <message>
        <source>&amp;Name Them</source>
        <translation>&amp;Benennen</translation>
    </message>
    <message>
        <source>All %1 boxes</source>
        <translation>Alle %1 Kästchen</translation>
    </message>
    <message>
        <source>The %1 selected boxes</source>
        <translation>Die %1 ausgewählten Kästchen</translation>
    </message>
    <message>
        <source>... and %1 more.</source>
        <translation>... und %1 weitere.</translation>
    </message>
    <message>
        <source>Su&amp;ggest From Print</source>
        <translation>&amp;Vorschläge aus dem Druck</translation>
    </message>
    <message>
        <source>Fills the list with the words that are printed beside the boxes</source>
        <translation>Füllt die Liste mit den Wörtern, die neben den Kästchen gedruckt sind</translation>
    </message>
    <message>
        <source>No print was found beside the boxes.</source>
        <translation>Neben den Kästchen wurde kein Druck gefunden.</translation>
    </message>
    <message>
        <source>Double quotes, &lt; and &amp; are left out: no profile can hold them.</source>
        <translation>Doppelte Anführungszeichen, &lt; und &amp; werden weggelassen: kein Profil kann sie enthalten.</translation>
    </message>
    <message>
        <source>The program tesseract, which reads print, is not installed.</source>
        <translation>Das Programm tesseract, das Druck liest, ist nicht installiert.</translation>
    </message>
    <message>
        <source>Reading what is printed beside the boxes...</source>
        <translation>Was neben den Kästchen gedruckt ist, wird gelesen...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reading the print takes too long; it was given up.</source>
        <translation>Das Lesen des Drucks dauert zu lange; es wurde aufgegeben.</translation>
    </message>
    <message>
        <source>The program tesseract could not read the specimen image.</source>
        <translation>Das Programm tesseract konnte das Musterbild nicht lesen.</translation>
    </message>
    <message>
        <source>S&amp;ort the list in this order</source>
        <translation>Die Liste ebenso &amp;ordnen</translation>
    </message>
    <message>
        <source>The list, and so the results, has the boxes as they are counted here:
one block of columns after the other</source>
        <translation>In der Liste und damit in den Ergebnissen folgen die Kästchen einander,
wie sie hier gezählt werden: ein Spaltenblock nach dem anderen</translation>
    </message>
</context>
<context>
    <name>NameRule</name>
    <message>
        <source>With a double quote, &lt; or &amp; in a name the profile cannot be saved.</source>
        <translation>Mit einem Anführungszeichen, &lt; oder &amp; in einem Namen kann das Profil nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>PageAccess</name>
    <message>
        <source>May be a check box</source>
        <translation>Könnte ein Kästchen sein</translation>
    </message>
</context>
<context>
    <name>ProfilePane</name>
    <message>
        <source>Profile active</source>
        <translation>Profil aktiv</translation>
    </message>
    <message>
        <source>Whether the open profile takes part in processing; reaches the file with the next save</source>
        <translation>Ob das offene Profil an der Verarbeitung teilnimmt; steht nach dem nächsten Speichern in der Datei</translation>
    </message>
</context>
<context>
    <name>ResultsExport</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export Results</source>
        <translation>Ergebnisse exportieren</translation>
    </message>
</context>
<context>
    <name>ReviewListView</name>
    <message>
        <source>Processed forms</source>
        <translation>Verarbeitete Formulare</translation>
    </message>
    <message>
        <source>No processed forms are waiting.
Process reads new scans.</source>
        <translation>Keine verarbeiteten Formulare warten.
„Verarbeiten“ liest neue Scans.</translation>
    </message>
    <message>
        <source>No form is like this.
Choose All forms above to see the others.</source>
        <translation>Kein Formular ist so.
„Alle Formulare“ oben zeigt die anderen.</translation>
    </message>
</context>
<context>
    <name>ReviewMode</name>
    <message>
        <source>Choose a form on the left: a click or Enter opens it.</source>
        <translation>Wählen Sie links ein Formular: ein Klick oder die Eingabetaste öffnet es.</translation>
    </message>
    <message>
        <source>Choose a profile on the left, make one with New,
or press Process to read the scans that wait in the folder ProcessIn.</source>
        <translation>Wählen Sie links ein Profil, machen Sie eines mit „Neu“,
oder lesen Sie mit „Verarbeiten“ die Scans, die im Ordner ProcessIn warten.</translation>
    </message>
</context>
<context>
    <name>ReviewPane</name>
    <message>
        <source>Profile to read the form against</source>
        <translation>Profil, mit dem das Formular gelesen wird</translation>
    </message>
    <message>
        <source>Reads the open form again, against another profile</source>
        <translation>Liest das offene Formular noch einmal, mit einem anderen Profil</translation>
    </message>
    <message>
        <source>Processed pages</source>
        <translation>Verarbeitete Seiten</translation>
    </message>
    <message>
        <source>Read a&amp;gainst profile:</source>
        <translation>Lesen &amp;mit Profil:</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>Formulare</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>Not read (%1)</source>
        <translation>Nicht gelesen (%1)</translation>
    </message>
</context>
<context>
    <name>ReviewTable</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Doubts</source>
        <translation>Zweifel</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <translation>Geprüft</translation>
    </message>
</context>
<context>
    <name>ScanDialog</name>
    <message>
        <source>Scanning needs the scanner library SANE (libsane1), which is not installed</source>
        <translation>Zum Scannen fehlt die Scannerbibliothek SANE (libsane1)</translation>
    </message>
    <message>
        <source>No scanner was found. Switch it on, connect it and open this menu again a minute later</source>
        <translation>Kein Scanner gefunden. Schalten Sie ihn ein, schließen Sie ihn an und öffnen Sie dieses Menü nach einer Minute noch einmal</translation>
    </message>
    <message>
        <source>All that the scanner takes</source>
        <translation>Alles, was der Scanner fasst</translation>
    </message>
    <message>
        <source>No page has come in.</source>
        <translation>Keine Seite ist angekommen.</translation>
    </message>
    <message>
        <source>1 page is in ProcessIn.</source>
        <translation>1 Seite ist in ProcessIn.</translation>
    </message>
    <message>
        <source>%1 pages are in ProcessIn.</source>
        <translation>%1 Seiten sind in ProcessIn.</translation>
    </message>
    <message>
        <source>Scanner</source>
        <translation>Scanner</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>Sca&amp;nner:</source>
        <translation>Sca&amp;nner:</translation>
    </message>
    <message>
        <source>S&amp;ource:</source>
        <translation>&amp;Quelle:</translation>
    </message>
    <message>
        <source>&amp;Mode:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>Au&amp;flösung:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>The scanner is at work</source>
        <translation>Der Scanner arbeitet</translation>
    </message>
    <message>
        <source>Looking for scanners...</source>
        <translation>Scanner werden gesucht...</translation>
    </message>
    <message>
        <source>No scanner was found. Is it switched on and connected?</source>
        <translation>Kein Scanner gefunden. Ist er eingeschaltet und angeschlossen?</translation>
    </message>
    <message>
        <source>Asking the scanner what it can do...</source>
        <translation>Der Scanner wird gefragt, was er kann...</translation>
    </message>
    <message>
        <source>As the scanner is set</source>
        <translation>Wie der Scanner eingestellt ist</translation>
    </message>
    <message>
        <source>Pages go to ProcessIn as they are scanned.</source>
        <translation>Jede gescannte Seite kommt gleich nach ProcessIn.</translation>
    </message>
    <message>
        <source>Scanning page %1...</source>
        <translation>Seite %1 wird gescannt...</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message>
        <source>&amp;Scan</source>
        <translation>&amp;Scannen</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
</context>
<context>
    <name>ScanIntake</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Bring In Scans</source>
        <translation>Scans hereinholen</translation>
    </message>
    <message>
        <source>%1
File %2 of %3, page %4 of %5</source>
        <translation>%1
Datei %2 von %3, Seite %4 von %5</translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Scans</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Bring In a Folder</source>
        <translation>Ordner hereinholen</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Configuration Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The samples are in the folder below. Press Save, and then Process in the window: it reads the scans. Review shows what was read.</source>
        <translation>Die Beispiele liegen im Ordner unten. Drücken Sie „Speichern“ und dann im Fenster „Verarbeiten“: es liest die Scans. „Prüfung“ zeigt, was gelesen wurde.</translation>
    </message>
    <message>
        <source>Minimum box width</source>
        <translation>Kleinste Breite eines Kästchens</translation>
    </message>
    <message>
        <source>Minimum box height</source>
        <translation>Kleinste Höhe eines Kästchens</translation>
    </message>
    <message>
        <source>Maximum box width</source>
        <translation>Größte Breite eines Kästchens</translation>
    </message>
    <message>
        <source>Maximum box height</source>
        <translation>Größte Höhe eines Kästchens</translation>
    </message>
    <message>
        <source>Minimum box</source>
        <translation>Kleinstes Kästchen</translation>
    </message>
    <message>
        <source>Maximum box</source>
        <translation>Größtes Kästchen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 in pixels</source>
        <translation>%1 in Pixeln</translation>
    </message>
    <message>
        <source>Display Image/Results during extraction process</source>
        <translation>Bild und Ergebnisse während der Verarbeitung zeigen</translation>
    </message>
    <message>
        <source>Process single image at a time when PROCESS button is pressed</source>
        <translation>Jeder Druck auf VERARBEITEN verarbeitet nur ein Bild</translation>
    </message>
    <message>
        <source>Fill threshold in percent</source>
        <translation>Füllschwelle in Prozent</translation>
    </message>
    <message>
        <source>Working Path</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>Please select a suitable working folder for your application. The required sub-folders will be automatically created within the selected working folder.</source>
        <translation>Bitte wählen Sie einen geeigneten Arbeitsordner. Die nötigen Unterordner werden darin von selbst angelegt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Welcome.&lt;/b&gt; The profiles of your forms, the scans and the results lie in one working folder. Type its path, click it in the list, or make a new one.</source>
        <translation>&lt;b&gt;Willkommen.&lt;/b&gt; Die Profile Ihrer Formulare, die Scans und die Ergebnisse liegen in einem Arbeitsordner. Geben Sie seinen Pfad ein, klicken Sie ihn in der Liste an, oder legen Sie einen neuen an.</translation>
    </message>
    <message>
        <source>&amp;Try with Samples...</source>
        <translation>Mit &amp;Beispielen ausprobieren...</translation>
    </message>
    <message>
        <source>Copies sample forms and scans to a folder of your choice, to try the program on them</source>
        <translation>Kopiert Beispielformulare und Scans in einen Ordner Ihrer Wahl, um das Programm daran auszuprobieren</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>MIN</source>
        <translation>MIN</translation>
    </message>
    <message>
        <source>MAX</source>
        <translation>MAX</translation>
    </message>
    <message>
        <source>Box Size</source>
        <translation>Größe der Kästchen</translation>
    </message>
    <message>
        <source>This box size is used for Profiling only. You may choose to vary the box size that best fits a profile you wish to create. You are free to change this for every new profile. Once a profile is created, the size(s) information here becomes irrelevant since it is not used during recognition of filled images. Effectively, this gives you the capability to create profiles with different box sizes.</source>
        <translation>Diese Größen gelten nur beim Anlegen von Profilen. Sie können sie für jedes neue Profil so wählen, wie es am besten passt. Ist ein Profil einmal angelegt, spielen sie keine Rolle mehr, denn beim Lesen ausgefüllter Bilder werden sie nicht gebraucht. So lassen sich Profile mit verschieden großen Kästchen anlegen.</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Verarbeitung</translation>
    </message>
    <message>
        <source>Fill Threshold Percentage - The level at which a box is considered filled. Default = 8.</source>
        <translation>Füllschwelle in Prozent - ab wann ein Kästchen als angekreuzt gilt. Voreinstellung = 8.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Cancel keeps %1 as the working folder.</source>
        <translation>„Abbrechen“ behält %1 als Arbeitsordner.</translation>
    </message>
    <message>
        <source>Closes the dialog; nothing is changed.</source>
        <translation>Schließt den Dialog; nichts ändert sich.</translation>
    </message>
</context>
<context>
    <name>SheetDialog</name>
    <message>
        <source>&amp;Confirm Screen</source>
        <translation>Bildschirm &amp;bestätigen</translation>
    </message>
    <message>
        <source>Sheet of Doubts</source>
        <translation>Zweifelsblatt</translation>
    </message>
    <message>
        <source>Which boxes the sheet shows</source>
        <translation>Welche Kästchen das Blatt zeigt</translation>
    </message>
    <message>
        <source>The boxes in doubt, or those of one name of all forms</source>
        <translation>Die zweifelhaften Kästchen, oder die eines Namens aus allen Formularen</translation>
    </message>
    <message>
        <source>Boxes in doubt</source>
        <translation>Zweifelhafte Kästchen</translation>
    </message>
    <message>
        <source>Box %1</source>
        <translation>Kästchen %1</translation>
    </message>
    <message>
        <source>What is on the screen is as it is shown now: save it (Ctrl+Enter)</source>
        <translation>Was auf dem Bildschirm steht, ist so, wie es jetzt gezeigt wird: speichern (Strg+Eingabe)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Marked (%1)</source>
        <translation>Markiert (%1)</translation>
    </message>
    <message>
        <source>Not marked (%1)</source>
        <translation>Nicht markiert (%1)</translation>
    </message>
    <message>
        <source>Space turns the mark round, Enter opens the form.</source>
        <translation>Leertaste kehrt um, Eingabe öffnet das Formular.</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>markiert</translation>
    </message>
    <message>
        <source>not marked</source>
        <translation>nicht markiert</translation>
    </message>
    <message>
        <source>Boxes to judge</source>
        <translation>Zu beurteilende Kästchen</translation>
    </message>
    <message>
        <source>Nothing yet: forms are still being looked at.</source>
        <translation>Noch nichts: Formulare werden noch angesehen.</translation>
    </message>
    <message>
        <source>Nothing here.
The other tab holds what is left to judge.</source>
        <translation>Hier ist nichts.
Was noch zu beurteilen ist, steht unter dem anderen Reiter.</translation>
    </message>
    <message>
        <source>No form of the list has this box.</source>
        <translation>Kein Formular der Liste hat dieses Kästchen.</translation>
    </message>
    <message>
        <source>Nothing is in doubt.
Esc leaves the sheet; Shift+F9 accepts all forms without doubt.</source>
        <translation>Nichts ist zweifelhaft.
Esc verlässt das Blatt, Umschalt+F9 nimmt alle Formulare ohne Zweifel an.</translation>
    </message>
</context>
<context>
    <name>StatusPanels</name>
    <message>
        <source>Current file or profile counts</source>
        <translation>Aktuelle Datei oder Zahl der Profile</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>Vergangene Zeit</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Progress of the work</source>
        <translation>Fortschritt der Arbeit</translation>
    </message>
</context>
<context>
    <name>SummaryPanel</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>What became of it</source>
        <translation>Was daraus wurde</translation>
    </message>
    <message>
        <source>Files of the last run</source>
        <translation>Dateien des letzten Laufs</translation>
    </message>
    <message>
        <source>What became of the files of the last run</source>
        <translation>Was aus den Dateien des letzten Laufs wurde</translation>
    </message>
    <message>
        <source>Numbers of the last run, each a link to its files</source>
        <translation>Zahlen des letzten Laufs, jede ein Verweis auf ihre Dateien</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Die Übersicht schließen</translation>
    </message>
</context>
<context>
    <name>TestProfileDialog</name>
    <message>
        <source>Scans</source>
        <translation>Scans</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Scan with the boxes of the profile</source>
        <translation>Scan mit den Kästchen des Profils</translation>
    </message>
    <message>
        <source>Check boxes of the scan</source>
        <translation>Kästchen des Scans</translation>
    </message>
    <message>
        <source>Plai&amp;n reading</source>
        <translation>&amp;Einfaches Lesen</translation>
    </message>
    <message>
        <source>Plain reading</source>
        <translation>Einfaches Lesen</translation>
    </message>
    <message>
        <source>Precise &amp;Alignment</source>
        <translation>&amp;Genaues Ausrichten</translation>
    </message>
    <message>
        <source>Precise Alignment</source>
        <translation>Genaues Ausrichten</translation>
    </message>
    <message>
        <source>Fill threshold in percent</source>
        <translation>Füllschwelle in Prozent</translation>
    </message>
    <message>
        <source>Test Profile %1</source>
        <translation>Profil %1 testen</translation>
    </message>
    <message>
        <source>There are no scans in %1. Choose some with Other Scans.</source>
        <translation>In %1 sind keine Scans. Wählen Sie welche mit „Andere Scans“.</translation>
    </message>
    <message>
        <source>&amp;Other Scans...</source>
        <translation>&amp;Andere Scans...</translation>
    </message>
    <message>
        <source>Other scans</source>
        <translation>Andere Scans</translation>
    </message>
    <message>
        <source>PgUp, PgDown: other scans</source>
        <translation>Bild↑, Bild↓: andere Scans</translation>
    </message>
    <message>
        <source>Fill &amp;threshold</source>
        <translation>&amp;Füllschwelle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Let Runs &amp;Use %1 %</source>
        <translation>&amp;Läufe nehmen %1 %</translation>
    </message>
    <message>
        <source>Runs use %1 % now</source>
        <translation>Läufe nehmen jetzt %1 %</translation>
    </message>
</context>
<context>
    <name>ThumbnailStripView</name>
    <message>
        <source>Profile specimens</source>
        <translation>Muster der Profile</translation>
    </message>
    <message>
        <source>No profiles yet.
New makes one from the image of a blank form.</source>
        <translation>Noch keine Profile.
„Neu“ macht eines aus dem Bild eines leeren Formulars.</translation>
    </message>
</context>
<context>
    <name>Toolbars</name>
    <message>
        <source>Main toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Box tools</source>
        <translation>Werkzeuge für Kästchen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Boxes</source>
        <translation>&amp;Kästchen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Process</source>
        <translation>&amp;Verarbeitung</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>&amp;Prüfung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Arran&amp;ge</source>
        <translation>A&amp;nordnen</translation>
    </message>
    <message>
        <source>Gr&amp;oups</source>
        <translation>Gru&amp;ppen</translation>
    </message>
</context>
<context>
    <name>TrySamples</name>
    <message>
        <source>Folder for the Samples</source>
        <translation>Ordner für die Beispiele</translation>
    </message>
    <message>
        <source>Try with Samples</source>
        <translation>Mit Beispielen ausprobieren</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
</context>
<context>
    <name>UnreadPane</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Every page of ProcessOut has been read.</source>
        <translation>Jede Seite in ProcessOut wurde gelesen.</translation>
    </message>
    <message>
        <source>Pages that were not read</source>
        <translation>Seiten, die nicht gelesen wurden</translation>
    </message>
    <message>
        <source>Bac&amp;k to ProcessIn</source>
        <translation>&amp;Zurück nach ProcessIn</translation>
    </message>
    <message>
        <source>&amp;All Back to ProcessIn</source>
        <translation>A&amp;lle zurück nach ProcessIn</translation>
    </message>
    <message>
        <source>Process A&amp;ll Again</source>
        <translation>Alle er&amp;neut verarbeiten</translation>
    </message>
</context>
<context>
    <name>ZoomBox</name>
    <message>
        <source>Zoom in percent</source>
        <translation>Zoom in Prozent</translation>
    </message>
    <message>
        <source>Zoom in percent; type another one</source>
        <translation>Zoom in Prozent; ein anderer lässt sich eintippen</translation>
    </message>
</context>
</TS>
