<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Conflicting Settings</source>
        <translation>Unverträgliche Einstellungen</translation>
    </message>
    <message>
        <source>The printer can&apos;t print these together:</source>
        <translation>Das kann der Drucker nicht zusammen drucken:</translation>
    </message>
    <message>
        <source>There is no simple way to put this right. Go back and choose another value for one of them.</source>
        <translation>Dafür gibt es keine einfache Lösung. Gehen Sie zurück, und wählen Sie für eine davon einen anderen Wert.</translation>
    </message>
    <message>
        <source>This would put it right:</source>
        <translation>Das würde es beheben:</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Print &amp;Anyway</source>
        <translation>&amp;Trotzdem drucken</translation>
    </message>
    <message>
        <source>&amp;Change and Print</source>
        <translation>Än&amp;dern und drucken</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Än&amp;dern</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a state and why</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Not available with %1, and others</source>
        <translation>Nicht verfügbar mit %1 und anderen</translation>
    </message>
    <message>
        <source>Not available with %1</source>
        <translation>Nicht verfügbar mit %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>CUPS server %1</source>
        <translation>CUPS-Server %1</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>es wurde abgebrochen</translation>
    </message>
    <message>
        <source>no CUPS server answers there: %1</source>
        <translation>dort antwortet kein CUPS-Server: %1</translation>
    </message>
    <message>
        <source>CUPS server %1 sent no whole answer within %2 seconds</source>
        <translation>Der CUPS-Server %1 hat innerhalb von %2 Sekunden keine vollständige Antwort gesendet</translation>
    </message>
    <message>
        <source>CUPS server %1 gave no answer within %2 seconds</source>
        <translation>Der CUPS-Server %1 hat innerhalb von %2 Sekunden nicht geantwortet</translation>
    </message>
    <message>
        <source>CUPS server %1 closed the connection or sent no valid answer</source>
        <translation>Der CUPS-Server %1 hat die Verbindung geschlossen oder keine gültige Antwort gesendet</translation>
    </message>
    <message>
        <source>CUPS server %1: %2</source>
        <translation>CUPS-Server %1: %2</translation>
    </message>
    <message>
        <source>no such queue on CUPS server %1</source>
        <translation>keine solche Warteschlange auf dem CUPS-Server %1</translation>
    </message>
    <message>
        <source>has no default queue</source>
        <translation>hat keine Standardwarteschlange</translation>
    </message>
    <message>
        <source>the queue has no PPD</source>
        <translation>die Warteschlange hat keine PPD</translation>
    </message>
    <message>
        <source>its PPD can&apos;t be read: %1</source>
        <translation>ihre PPD kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>its PPD is too large</source>
        <translation>ihre PPD ist zu groß</translation>
    </message>
    <message>
        <source>job %1</source>
        <translation>Auftrag %1</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation>Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>%1 didn&apos;t finish within %2 seconds</source>
        <translation>%1 wurde innerhalb von %2 Sekunden nicht fertig</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>aufgegeben</translation>
    </message>
    <message>
        <source>%1 wrote too much</source>
        <translation>%1 hat zu viel geschrieben</translation>
    </message>
    <message>
        <source>%1 can&apos;t convert it to %2%3</source>
        <translation>%1 kann es nicht in %2 umwandeln%3</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is neither PostScript nor PDF</source>
        <translation>ist weder PostScript noch PDF</translation>
    </message>
    <message>
        <source>a PDF needs pdftops or gs, and neither is installed</source>
        <translation>eine PDF-Datei braucht pdftops oder gs, und keines von beiden ist installiert</translation>
    </message>
    <message>
        <source>PostScript needs gs, which isn&apos;t installed</source>
        <translation>PostScript braucht gs, das nicht installiert ist</translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>a value of one&apos;s own (“%1”) is no longer taken</source>
        <translation>ein eigener Wert („%1“) wird nicht mehr angenommen</translation>
    </message>
    <message>
        <source>“%1” is outside of what this printer takes</source>
        <translation>„%1“ liegt außerhalb dessen, was dieser Drucker annimmt</translation>
    </message>
    <message>
        <source>“%1” is no longer there</source>
        <translation>„%1“ gibt es nicht mehr</translation>
    </message>
    <message>
        <source>“%1” is no longer a setting of this printer; the preset has “%2”</source>
        <translation>„%1“ ist keine Einstellung dieses Druckers mehr; die Voreinstellung hat „%2“</translation>
    </message>
    <message>
        <source>%1: is locked and stays “%2”</source>
        <translation>%1: ist gesperrt und bleibt „%2“</translation>
    </message>
    <message>
        <source>passwords aren&apos;t kept in presets; enter it again</source>
        <translation>Passwörter werden in Voreinstellungen nicht aufbewahrt; geben Sie es erneut ein</translation>
    </message>
    <message>
        <source>Not possible: %1.</source>
        <translation>Nicht möglich: %1.</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>the name begins or ends with a blank</source>
        <translation>der Name beginnt oder endet mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation>der Name hat mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>the name has a character that can&apos;t be shown</source>
        <translation>der Name hat ein Zeichen, das nicht gezeigt werden kann</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>wird von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t what it should be</source>
        <translation>„%1“ ist nicht, was es sein sollte</translation>
    </message>
    <message>
        <source>“%1” has a character that is none</source>
        <translation>„%1“ hat ein Zeichen, das keines ist</translation>
    </message>
    <message>
        <source>“%1” has an empty key</source>
        <translation>„%1“ hat einen leeren Schlüssel</translation>
    </message>
    <message>
        <source>is larger than %1 MB</source>
        <translation>ist größer als %1 MB</translation>
    </message>
    <message>
        <source>isn&apos;t a preset: line %1: %2</source>
        <translation>ist keine Voreinstellung: Zeile %1: %2</translation>
    </message>
    <message>
        <source>isn&apos;t a preset</source>
        <translation>ist keine Voreinstellung</translation>
    </message>
    <message>
        <source>has a key twice</source>
        <translation>hat einen Schlüssel zweimal</translation>
    </message>
    <message>
        <source>was made by a newer version of this program (format %1); it is left as it is</source>
        <translation>wurde von einer neueren Version dieses Programms angelegt (Format %1) und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>has the unknown key “%1”</source>
        <translation>hat den unbekannten Schlüssel „%1“</translation>
    </message>
    <message>
        <source>can&apos;t be removed: %1</source>
        <translation>kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>“%1” has no preset of this name</source>
        <translation>„%1“ hat keine Voreinstellung dieses Namens</translation>
    </message>
    <message>
        <source>is too large for a preset</source>
        <translation>ist zu groß für eine Voreinstellung</translation>
    </message>
    <message>
        <source>The last used settings of “%1”</source>
        <translation>Die zuletzt benutzten Einstellungen von „%1“</translation>
    </message>
    <message>
        <source>the document is damaged.</source>
        <translation>das Dokument ist beschädigt.</translation>
    </message>
    <message>
        <source>the document is protected by a password.</source>
        <translation>das Dokument ist durch ein Passwort geschützt.</translation>
    </message>
    <message>
        <source>the document has no pages.</source>
        <translation>das Dokument hat keine Seiten.</translation>
    </message>
    <message>
        <source>the document is too large.</source>
        <translation>das Dokument ist zu groß.</translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation>Seite %1 ist beschädigt.</translation>
    </message>
    <message>
        <source>Page %1 has a size that can&apos;t be drawn.</source>
        <translation>Seite %1 hat eine Größe, die nicht gezeichnet werden kann.</translation>
    </message>
    <message>
        <source>Page %1 takes too long to draw.</source>
        <translation>Seite %1 zu zeichnen dauert zu lange.</translation>
    </message>
    <message>
        <source>Page %1 can&apos;t be drawn.</source>
        <translation>Seite %1 kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>%1: line %2 isn&apos;t UTF-8</source>
        <translation>%1: Zeile %2 ist kein UTF-8</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>%1, takes no jobs</source>
        <extracomment>a state, such as &quot;Idle&quot;</extracomment>
        <translation>%1, nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>The printer takes no jobs at the moment.</source>
        <translation>Der Drucker nimmt zurzeit keine Aufträge an.</translation>
    </message>
    <message>
        <source>The printer is paused. Jobs wait until it goes on.</source>
        <translation>Der Drucker ist angehalten. Aufträge warten, bis er weitermacht.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>a sentence and why</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>stellt Verbindung her</translation>
    </message>
    <message>
        <source>answers in a wrong way</source>
        <translation>antwortet falsch</translation>
    </message>
    <message>
        <source>driver isn&apos;t safe to run</source>
        <translation>Treiber ist nicht sicher</translation>
    </message>
    <message>
        <source>driver is incomplete</source>
        <translation>Treiber ist unvollständig</translation>
    </message>
    <message>
        <source>certificate isn&apos;t valid</source>
        <translation>Zertifikat ist ungültig</translation>
    </message>
    <message>
        <source>job is held</source>
        <translation>Auftrag wird zurückgehalten</translation>
    </message>
    <message>
        <source>job has stopped</source>
        <translation>Auftrag ist angehalten</translation>
    </message>
    <message>
        <source>job was cancelled</source>
        <translation>Auftrag wurde abgebrochen</translation>
    </message>
    <message>
        <source>job was given up</source>
        <translation>Auftrag wurde aufgegeben</translation>
    </message>
    <message>
        <source>account is needed</source>
        <translation>Konto ist nötig</translation>
    </message>
    <message>
        <source>account&apos;s limit is reached</source>
        <translation>Limit des Kontos ist erreicht</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>wurde neu eingerichtet</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>Abdeckung ist offen</translation>
    </message>
    <message>
        <source>switched off for jobs</source>
        <translation>für Aufträge abgeschaltet</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>Entwickler ist leer</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>Entwickler geht zur Neige</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>Klappe ist offen</translation>
    </message>
    <message>
        <source>fuser is too hot</source>
        <translation>Fixiereinheit ist zu heiß</translation>
    </message>
    <message>
        <source>fuser is too cold</source>
        <translation>Fixiereinheit ist zu kalt</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>im Ruhezustand</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>shows where it stands</source>
        <translation>zeigt, wo er steht</translation>
    </message>
    <message>
        <source>tray is missing</source>
        <translation>Fach fehlt</translation>
    </message>
    <message>
        <source>a lock is open</source>
        <translation>eine Verriegelung ist offen</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>zu wenig Speicher</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>Tinte ist leer</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>Tinte geht zur Neige</translation>
    </message>
    <message>
        <source>ink is missing</source>
        <translation>Tinte fehlt</translation>
    </message>
    <message>
        <source>waste box is almost full</source>
        <translation>Auffangbehälter ist fast voll</translation>
    </message>
    <message>
        <source>waste box is full</source>
        <translation>Auffangbehälter ist voll</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>Papier geht zur Neige</translation>
    </message>
    <message>
        <source>needs other paper</source>
        <translation>braucht anderes Papier</translation>
    </message>
    <message>
        <source>about to pause</source>
        <translation>hält gleich an</translation>
    </message>
    <message>
        <source>drum is used up</source>
        <translation>Trommel ist verbraucht</translation>
    </message>
    <message>
        <source>drum is nearly used up</source>
        <translation>Trommel ist fast verbraucht</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>braucht Zuwendung</translation>
    </message>
    <message>
        <source>output tray is almost full</source>
        <translation>Ausgabefach ist fast voll</translation>
    </message>
    <message>
        <source>output tray is full</source>
        <translation>Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>output tray is missing</source>
        <translation>Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>switching off</source>
        <translation>schaltet sich ab</translation>
    </message>
    <message>
        <source>about to go on</source>
        <translation>macht gleich weiter</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>kein Platz für weitere Aufträge</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>teilweise angehalten</translation>
    </message>
    <message>
        <source>about to stop</source>
        <translation>hält gleich an</translation>
    </message>
    <message>
        <source>being tested</source>
        <translation>wird geprüft</translation>
    </message>
    <message>
        <source>doesn&apos;t answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>Toner ist leer</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>Toner geht zur Neige</translation>
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
        <source>“%1” must be from %2 to %3 points.</source>
        <translation>„%1“ muss von %2 bis %3 Punkt sein.</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3.</source>
        <translation>„%1“ muss von %2 bis %3 sein.</translation>
    </message>
    <message>
        <source>“%1” has a character that can&apos;t be printed.</source>
        <translation>„%1“ hat ein Zeichen, das nicht gedruckt werden kann.</translation>
    </message>
    <message>
        <source>“%1” takes digits only.</source>
        <translation>„%1“ nimmt nur Ziffern an.</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters.</source>
        <translation>„%1“ ist zu lang: höchstens %2 Zeichen.</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters, of which letters other than A to Z take several.</source>
        <translation>„%1“ ist zu lang: höchstens %2 Zeichen, wobei andere Buchstaben als A bis Z mehrere brauchen.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>„%1“ fehlt.</translation>
    </message>
    <message>
        <source>“%1” is too short: at least %2 characters.</source>
        <translation>„%1“ ist zu kurz: mindestens %2 Zeichen.</translation>
    </message>
    <message>
        <source>“%1” must be a number.</source>
        <translation>„%1“ muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>There are %1 more values, which stay as they are.</source>
        <translation>Es gibt %1 weitere Werte, die bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Asked when you print</source>
        <translation>Wird beim Drucken erfragt</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>“%1” must be a number %2.</source>
        <translation>„%1“ muss eine Zahl %2 sein.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have braces in it.</source>
        <translation>„%1“ darf keine geschweiften Klammern enthalten.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Hochformat, auf dem Kopf</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Querformat, auf dem Kopf</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer to print on both sides.</source>
        <translation>Dieser Drucker bietet keinen Druck auf beiden Seiten an.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sizes.</source>
        <translation>Dieser Drucker bietet keine Papiergrößen zur Wahl an.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sources.</source>
        <translation>Dieser Drucker bietet keine Papierquellen zur Wahl an.</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper types.</source>
        <translation>Dieser Drucker bietet keine Papierarten zur Wahl an.</translation>
    </message>
    <message>
        <source>A file has the whole document in it, once and as it is.</source>
        <translation>Eine Datei hat das ganze Dokument in sich, einmal und so, wie es ist.</translation>
    </message>
    <message>
        <source>Set this among the printer&apos;s own options.</source>
        <translation>Stellen Sie das bei den eigenen Optionen des Druckers ein.</translation>
    </message>
    <message>
        <source>There is only one copy.</source>
        <translation>Es gibt nur ein Exemplar.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Wie im Dokument</translation>
    </message>
    <message>
        <source>%1: “%2” can&apos;t be used with this printer</source>
        <translation>%1: „%2“ kann mit diesem Drucker nicht benutzt werden</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>from %1 to %2 %3</source>
        <translation>von %1 bis %2 %3</translation>
    </message>
    <message>
        <source>“%1” can&apos;t stand there. Type pages like 1-3,5,9-.</source>
        <translation>„%1“ kann da nicht stehen. Schreiben Sie Seiten wie 1-3,5,9-.</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>„%1“: Seiten zählen ab 1.</translation>
    </message>
    <message>
        <source>“%1”: the document has only one page.</source>
        <translation>„%1“: Das Dokument hat nur eine Seite.</translation>
    </message>
    <message>
        <source>“%1”: the document has only %2 pages.</source>
        <translation>„%1“: Das Dokument hat nur %2 Seiten.</translation>
    </message>
    <message>
        <source>“%1” is too great for a page.</source>
        <translation>„%1“ ist zu groß für eine Seite.</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>„%1“ endet, bevor es beginnt.</translation>
    </message>
    <message>
        <source>These are more than %1 ranges.</source>
        <translation>Das sind mehr als %1 Bereiche.</translation>
    </message>
    <message>
        <source>Type the pages to print, such as 1-3,5,9-.</source>
        <translation>Schreiben Sie die Seiten, die gedruckt werden sollen, etwa 1-3,5,9-.</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a page. Type pages like 1-3,5,9-.</source>
        <translation>„%1“ ist keine Seite. Schreiben Sie Seiten wie 1-3,5,9-.</translation>
    </message>
    <message>
        <source>A page is missing before a comma.</source>
        <translation>Vor einem Komma fehlt eine Seite.</translation>
    </message>
    <message>
        <source>A page is missing at the end.</source>
        <translation>Am Ende fehlt eine Seite.</translation>
    </message>
    <message>
        <source>Password for This Job</source>
        <translation>Passwort für diesen Auftrag</translation>
    </message>
    <message>
        <source>It isn&apos;t kept, and goes with this job only.</source>
        <translation>Es wird nicht aufbewahrt und gilt nur für diesen Auftrag.</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Image options</source>
        <translation>Bildoptionen</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Seiten pro Blattseite</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>nicht gesendet</translation>
    </message>
    <message>
        <source>has a character in its name that can&apos;t be sent</source>
        <translation>hat ein Zeichen im Namen, das nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>has a name that can&apos;t be sent</source>
        <translation>hat einen Namen, der nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>has a value with a control character, which can&apos;t be sent</source>
        <translation>hat einen Wert mit einem Steuerzeichen, das nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>has a value that is too long to be sent</source>
        <translation>hat einen Wert, der zum Senden zu lang ist</translation>
    </message>
    <message>
        <source>has a value that can&apos;t be sent</source>
        <translation>hat einen Wert, der nicht gesendet werden kann</translation>
    </message>
    <message>
        <source>was changed since it was opened</source>
        <translation>wurde seit dem Öffnen geändert</translation>
    </message>
    <message>
        <source>“%1”: with several pages on a side the sides are counted, and the last one is %2.</source>
        <translation>„%1“: Bei mehreren Seiten je Blattseite zählen die Blattseiten, und die letzte ist %2.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have such a value.</source>
        <translation>„%1“ kann einen solchen Wert nicht haben.</translation>
    </message>
    <message>
        <source>This option takes no values of one&apos;s own.</source>
        <translation>Diese Option nimmt keine eigenen Werte an.</translation>
    </message>
    <message>
        <source>This option takes several values, each by its name.</source>
        <translation>Diese Option nimmt mehrere Werte an, jeden mit seinem Namen.</translation>
    </message>
    <message>
        <source>This option has no value of such a name.</source>
        <translation>Diese Option hat keinen Wert dieses Namens.</translation>
    </message>
    <message>
        <source>No answer came in time</source>
        <translation>Es kam nicht rechtzeitig eine Antwort</translation>
    </message>
    <message>
        <source>the server doesn&apos;t know it</source>
        <translation>der Server kennt ihn nicht</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>der Auftrag wurde abgebrochen</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was sent</source>
        <translation>ob der Auftrag gesendet wurde, ist nicht bekannt</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was cancelled</source>
        <translation>ob der Auftrag abgebrochen wurde, ist nicht bekannt</translation>
    </message>
    <message>
        <source>“%1” has no instance of this name</source>
        <translation>„%1“ hat keine Instanz dieses Namens</translation>
    </message>
    <message>
        <source>This option is given twice.</source>
        <translation>Diese Option ist zweimal angegeben.</translation>
    </message>
    <message>
        <source>This option has no such choice.</source>
        <translation>Diese Option hat diese Auswahl nicht.</translation>
    </message>
    <message>
        <source>This option can&apos;t have such a value.</source>
        <translation>Diese Option kann einen solchen Wert nicht haben.</translation>
    </message>
    <message>
        <source>This printer has no such option.</source>
        <translation>Dieser Drucker hat eine solche Option nicht.</translation>
    </message>
    <message>
        <source>This setting is locked.</source>
        <translation>Diese Einstellung ist gesperrt.</translation>
    </message>
    <message>
        <source>only the last of its choices can be sent</source>
        <translation>nur die letzte Auswahl kann gesendet werden</translation>
    </message>
    <message>
        <source>%1; it couldn&apos;t be cancelled, and may still be printed</source>
        <translation>%1; er konnte nicht abgebrochen werden und wird vielleicht noch gedruckt</translation>
    </message>
</context>
<context>
    <name>host::CommonSettings</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;All pages</source>
        <translation>&amp;Alle Seiten</translation>
    </message>
    <message>
        <source>Page&amp;s:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>1-3,5,9-</source>
        <translation>1-3,5,9-</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>Bereich:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>Seiten pro Blattseite</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Zweiseitig</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papiergröße</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Co&amp;llate</source>
        <translation>So&amp;rtieren</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Wählen Sie zuerst einen Drucker.</translation>
    </message>
    <message>
        <source>Prints each copy whole before the next one.</source>
        <translation>Druckt jedes Exemplar ganz vor dem nächsten.</translation>
    </message>
    <message>
        <source>Pages and ranges, parted by commas, such as 1-3,5,9-.</source>
        <translation>Seiten und Bereiche, durch Kommas getrennt, etwa 1-3,5,9-.</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nicht angeboten</translation>
    </message>
    <message>
        <source>Copies must be a number from 1 to %1.</source>
        <translation>Exemplare muss eine Zahl von 1 bis %1 sein.</translation>
    </message>
    <message>
        <source>Printed sides and ranges of them, parted by commas, such as 1-3,5,9-. With several pages on a side, sides are counted.</source>
        <translation>Bedruckte Seiten des Papiers und Bereiche davon, durch Kommas getrennt, etwa 1-3,5,9-. Bei mehreren Seiten je Blattseite zählen die Blattseiten.</translation>
    </message>
    <message>
        <source>Side&amp;s:</source>
        <translation>Blatt&amp;seiten:</translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message>
        <source>Resol&amp;ve…</source>
        <translation>&amp;Beheben…</translation>
    </message>
    <message>
        <source>Can&apos;t be printed together: %1</source>
        <translation>Kann nicht zusammen gedruckt werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation>
            <numerusform>Kann nicht zusammen gedruckt werden: %1, und %n weiteres</numerusform>
            <numerusform>Kann nicht zusammen gedruckt werden: %1, und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>&amp;Auftrag abbrechen</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Sending “%1” to %2…</source>
        <translation>„%1“ wird an %2 gesendet…</translation>
    </message>
    <message>
        <source>The job %1 was sent.</source>
        <translation>Der Auftrag %1 wurde gesendet.</translation>
    </message>
    <message>
        <source>Waiting to be printed.</source>
        <translation>Wartet auf den Druck.</translation>
    </message>
    <message>
        <source>Held until somebody releases it.</source>
        <translation>Zurückgehalten, bis ihn jemand freigibt.</translation>
    </message>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation>
            <numerusform>Wird gedruckt: bisher eine Seite.</numerusform>
            <numerusform>Wird gedruckt: bisher %n Seiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Wird gedruckt.</translation>
    </message>
    <message>
        <source>Stopped: the printer can&apos;t go on.</source>
        <translation>Angehalten: Der Drucker kann nicht weitermachen.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>The printer gave the job up.</source>
        <translation>Der Drucker hat den Auftrag aufgegeben.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Gedruckt.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>The file was written.</source>
        <translation>Die Datei wurde geschrieben.</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>aufgegeben</translation>
    </message>
    <message>
        <source>The server no longer knows the job; it is done.</source>
        <translation>Der Server kennt den Auftrag nicht mehr; er ist erledigt.</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>The name or the password is wrong.</source>
        <translation>Der Name oder das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>the server wants to know who you are</source>
        <translation>der Server möchte wissen, wer Sie sind</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>der Auftrag wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>host::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Voreinstellung:</translation>
    </message>
    <message>
        <source>Mana&amp;ge</source>
        <translation>Ver&amp;walten</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Voreinstellungen verwalten</translation>
    </message>
    <message>
        <source>Printer&apos;s defaults</source>
        <translation>Vorgaben des Druckers</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>Zuletzt benutzte Einstellungen</translation>
    </message>
    <message>
        <source>%1 (can&apos;t be used)</source>
        <translation>%1 (nicht benutzbar)</translation>
    </message>
    <message>
        <source>%1 (set up outside of this window)</source>
        <translation>%1 (außerhalb dieses Fensters eingerichtet)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>The settings differ from what was chosen here.</source>
        <translation>Die Einstellungen weichen von dem ab, was hier gewählt wurde.</translation>
    </message>
    <message>
        <source>The settings stay as they are.</source>
        <translation>Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be used, and the settings stay as they are.</source>
        <translation>„%1“ kann nicht benutzt werden, und die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Not all of “%1” could be used:</source>
        <translation>Nicht alles von „%1“ war zu gebrauchen:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>U&amp;mbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Es gibt schon eine Voreinstellung „%1“. Ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Passwords aren&apos;t kept in presets. They have to be entered again each time.</source>
        <translation>Passwörter werden in Voreinstellungen nicht aufbewahrt. Sie müssen jedes Mal neu eingegeben werden.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Nothing was renamed.</source>
        <translation>Es gibt schon eine Voreinstellung „%1“. Es wurde nichts umbenannt.</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>Die Voreinstellung „%1“ löschen? Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>“%1” was made for the printer “%2”. What this printer has of it is used.</source>
        <translation>„%1“ wurde für den Drucker „%2“ angelegt. Was dieser Drucker davon hat, wird benutzt.</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Voreinstellung importieren</translation>
    </message>
    <message>
        <source>Presets (*.json);;All Files (*)</source>
        <translation>Voreinstellungen (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Voreinstellung exportieren</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>Voreinstellungen (*.json)</translation>
    </message>
</context>
<context>
    <name>host::PreviewView</name>
    <message>
        <source>Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them.</source>
        <translation>Vorschau der gedruckten Blätter. Pfeiltasten, Bild auf und Bild ab blättern.</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Vorige Blattseite</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Nächste Blattseite</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Type the sheet to look at</source>
        <translation>Geben Sie das Blatt ein, das Sie ansehen wollen</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>The preview can&apos;t be drawn: %1</source>
        <translation>Die Vorschau kann nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>Die Vorschau wird vorbereitet…</translation>
    </message>
    <message>
        <source>The document has none of the chosen pages.</source>
        <translation>Das Dokument hat keine der gewählten Seiten.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Blatt %1 von %2, Rückseite</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Blatt %1 von %2, Vorderseite</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>Seiten %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>sheet, pages</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ein Dokument öffnen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s settings…</source>
        <translation>Die Einstellungen des Druckers werden geholt…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
    <message>
        <source>The document can&apos;t be printed.</source>
        <translation>Das Dokument kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Document to Print</source>
        <translation>Zu druckendes Dokument</translation>
    </message>
    <message>
        <source>Documents (*.ps *.eps *.pdf);;All Files (*)</source>
        <translation>Dokumente (*.ps *.eps *.pdf);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>The document wasn&apos;t printed.</source>
        <translation>Das Dokument wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>The server has this printer no longer.</source>
        <translation>Der Server hat diesen Drucker nicht mehr.</translation>
    </message>
    <message>
        <source>The job couldn&apos;t be cancelled on the server, and may still be printed.</source>
        <translation>Der Auftrag konnte auf dem Server nicht abgebrochen werden und wird vielleicht noch gedruckt.</translation>
    </message>
</context>
<context>
    <name>host::ProblemArea</name>
    <message>
        <source>Show &amp;All %1</source>
        <translation>Alle %1 &amp;zeigen</translation>
    </message>
</context>
<context>
    <name>host::QueueList</name>
    <message>
        <source>Re&amp;try</source>
        <translation>Erneut vers&amp;uchen</translation>
    </message>
    <message>
        <source>Find a printer</source>
        <translation>Einen Drucker suchen</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Drucker werden gesucht…</translation>
    </message>
    <message>
        <source>No printers found on this server.</source>
        <translation>Auf diesem Server gibt es keine Drucker.</translation>
    </message>
    <message>
        <source>No printer has these words.</source>
        <translation>Kein Drucker hat diese Wörter.</translation>
    </message>
</context>
<context>
    <name>host::QueueModel</name>
    <message>
        <source>No longer on the server</source>
        <translation>Nicht mehr auf dem Server</translation>
    </message>
    <message>
        <source>Looking for it…</source>
        <translation>Wird gesucht…</translation>
    </message>
    <message>
        <source>Default · %1</source>
        <extracomment>the default printer and its state</extracomment>
        <translation>Standard · %1</translation>
    </message>
    <message>
        <source>Makes a PostScript file</source>
        <translation>Erzeugt eine PostScript-Datei</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>mit %1</translation>
    </message>
    <message>
        <source> · </source>
        <translation> · </translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Nothing is known of it</source>
        <translation>Nichts darüber bekannt</translation>
    </message>
</context>
<context>
    <name>host::RememberBox</name>
    <message>
        <source>&amp;Remember these settings for this printer</source>
        <translation>Einstellungen für diesen Drucker &amp;merken</translation>
    </message>
    <message>
        <source>If not, they hold for this job only. Passwords aren&apos;t remembered.</source>
        <translation>Sonst gelten sie nur für diesen Auftrag. Passwörter werden nicht gemerkt.</translation>
    </message>
</context>
<context>
    <name>host::SentView</name>
    <message>
        <source>What will be sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Printer&apos;s default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Show &amp;unchanged</source>
        <translation>Auch un&amp;geänderte zeigen</translation>
    </message>
    <message>
        <source>Nothing differs from the printer&apos;s defaults.</source>
        <translation>Nichts weicht von den Vorgaben des Druckers ab.</translation>
    </message>
    <message>
        <source>%1 of %2 settings differ from the printer&apos;s defaults.</source>
        <translation>%1 von %2 Einstellungen weichen von den Vorgaben des Druckers ab.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Differs from the printer&apos;s default</source>
        <translation>Weicht von der Vorgabe des Druckers ab</translation>
    </message>
</context>
<context>
    <name>host::SheetCanvas</name>
    <message>
        <source>Drawing page %1…</source>
        <translation>Seite %1 wird gezeichnet…</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>What will be sent</source>
        <translation>Was gesendet wird</translation>
    </message>
</context>
<context>
    <name>host::TypedOptions</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
</TS>
