<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Nicht gemeldet</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Vermindert</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Verschlissen</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Kalt</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Wartung empfohlen</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Dauerhafter Defekt</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Diese Batterie braucht Aufmerksamkeit.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Diese Batterie teilt nicht mit, wie viel sie fasst.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Diese Batterie ist in gutem Zustand.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Diese Batterie fasst weniger als früher.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Diese Batterie ist verschlissen.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Sie fasst fast so viel Ladung wie im Neuzustand.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Sie funktioniert noch gut, hält aber spürbar kürzer.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Ein Austausch ist zu erwägen.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Sie hat die vorgesehene Zahl an Ladezyklen erreicht.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Sie ist heiß.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 der Nennkapazität</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS meldet %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS glättet seinen Wert und hält eine Reserve zurück, daher können die beiden um einige Punkte voneinander abweichen.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Dieser Mac hat keine Batterie</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Dieser Computer hat keine Batterie</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>Der Batteriezustand wird auf tragbaren Macs angezeigt. Alles andere in Quillmark funktioniert wie gewohnt.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>Der Batteriezustand wird auf tragbaren Computern angezeigt. Alles andere in Quillmark funktioniert wie gewohnt.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>Wird geladen, voll in %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Batteriebetrieb, noch %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Angeschlossen, lädt nicht</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Ausgelegt für %1 Zyklen</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normal: 10 bis 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Vom System gemeldet</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Batteriezustand nicht gemeldet</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Batteriezustand %1 Prozent, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>PDF-Bericht</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Reiner Text</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Gestaltete Seiten, bereit zum Drucken oder Senden</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Alle Werte, für Skripte und Werkzeuge</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tabellen für Notizen, Wikis und Tickets</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>Derselbe Text wie bei „Als Text kopieren“</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n geändert</numerusform>
            <numerusform>%n geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n hinzugefügt</numerusform>
            <numerusform>%n hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n entfernt</numerusform>
            <numerusform>%n entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Ältere</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Neuere</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Erste Untersuchung</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Keine Unterschiede</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Beide Untersuchungen zeigen dieselben Fähigkeiten. Werte, die sich ständig ändern, wie die Betriebszeit, werden nicht verglichen.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>Die beiden Untersuchungen sind in verschiedenen Sprachen, daher werden nur Änderungen des Status gezeigt.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Noch keine gesicherten Untersuchungen</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Supported</source>
        <translation>Unterstützt</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Noch nicht angefragt</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Eingeschränkt</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Verweigert</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Intern</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Nicht vorhanden</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Keine (Schreibtischgerät)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Bluetooth-Gerät</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>AirPlay-Gerät</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone oder iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n Kanal</numerusform>
            <numerusform>%1, %n Kanäle</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (Telefonqualität: Ein Mikrofon ist in Benutzung)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Eingebaute Lautsprecher</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Eingebautes Mikrofon</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Tonausgabe</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Höchste Ausgaberate</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Toneingabe</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1 von %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1 von %2&#xa0;mAh</translation>
    </message>
    <message>
        <source>−%1&#xa0;°C</source>
        <translation>−%1&#xa0;°C</translation>
    </message>
    <message>
        <source>%1&#xa0;°C</source>
        <translation>%1&#xa0;°C</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Angeschlossen, lädt nicht</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Batteriebetrieb</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Wird ermittelt</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 bis voll</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Batteriestatus</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Batteriekapazität</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Batterietemperatur</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Ladestand</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>eingebaut</translation>
    </message>
    <message>
        <source>external</source>
        <translation>extern</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Beste Auflösung</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Beste Auflösung (Kamera %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, bis zu %2 Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Folgemodus</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Folgemodus (Kamera %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Soundkarte</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>input</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Soundkarte %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Kamerazugriff</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Mikrofonzugriff</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Kamera &amp; Audio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>Hauptbildschirm</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>synchronisiert</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, bis zu %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1, %2&#xa0;Hz</source>
        <translation>%1, %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>%1 (looks like %2)</source>
        <translation>%1 (sieht aus wie %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Fest</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1 bis %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1 bis %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Bis zu %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;Zoll, %2 Pixel pro Zoll</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;Zoll</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Variable Bildwiederholrate</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Variable Bildwiederholrate (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Erweiterter Dynamikumfang</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Erweiterter Dynamikumfang (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Großer Farbraum</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Großer Farbraum (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Bildschirm %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Auflösung (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Skalierung (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Größe (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Anschluss (Bildschirm %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Verbundene Bildschirme</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>GPU</source>
        <translation>GPU</translation>
    </message>
    <message>
        <source>GPU %1</source>
        <translation>GPU %1</translation>
    </message>
    <message>
        <source>Requires macOS 26</source>
        <translation>Benötigt macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Empfohlener GPU-Speicher</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Apple-GPU-Familie</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Raytracing</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Hardware-Raytracing</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Grafik &amp; Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Ein, wird verschlüsselt</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Wird ausgeschaltet</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Aus (die Hardware verschlüsselt die Festplatte trotzdem)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Teilweise ein</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Ein, blockiert alle eingehenden Verbindungen</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>In den Systemeinstellungen ausgeschaltet</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Nicht bereit (wird geladen oder für diese Sprache oder Region nicht angeboten)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>Nur CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Core-ML-Beschleunigung</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Neural-Engine-Kerne</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>GPU-Kerne</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Int8-Matrixbefehle</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Gefunden, kein Treiber</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Neuronaler Prozessor</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Rechnen auf der GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Künstliche Intelligenz</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Virtuelle Maschine</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, erzwingend</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, nur meldend</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Alle entschärft</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n nicht entschärft</numerusform>
            <numerusform>%n nicht entschärft</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Sicheres Starten</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Festplattenverschlüsselung</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Zugriffskontrolle</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Prozessor-Schwachstellen</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Versiegelt</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Nicht versiegelt</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Beschädigt</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Versiegeltes Systemvolume</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Ohne Sicherheit</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Mittlere Sicherheit</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Volle Sicherheit</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Verfügbar, nicht eingerichtet</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Verfügbar, gesperrt</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Systemintegritätsschutz</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>Firewall</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>Blockierungsmodus</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Nicht in Hardware</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Nur Software</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lesen und Schreiben</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Nur Lesen</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>H.264-Decodierung</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>HEVC-Decodierung</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>VP9-Decodierung</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>AV1-Decodierung</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>ProRes-Decodierung</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>H.264-Codierung</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>HEVC-Codierung</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ProRes-Codierung</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>AV1-Codierung</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>HEIC-Bilder</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>AVIF-Bilder</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Nicht lesbar (vainfo ist nicht installiert)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Nicht lesbar (die GPU schläft)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Videotreiber</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Mobilfunk</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Von diesem Netzwerk nicht angeboten</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Getaktete Verbindung</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Datensparmodus</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (selbst zugewiesen)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Adresse (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Nicht erkannt</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, Vollduplex</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, Halbduplex</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Ethernet-Tempo</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Ethernet-Tempo %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Netzteil</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Netzstrom</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>USV</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Stromsparend</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Leise</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Kühl</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Stromsparmodus</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Ladelimit</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Energieprofil</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Stromquelle</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>SME-Befehle</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>BF16-Befehle</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>AVX2-Befehle</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>AVX-512-Befehle</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Physische Kerne</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Logische Kerne</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Performance-Kerne</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Effizienz-Kerne</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Höchsttakt</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Arbeitsspeicher (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Prozessor &amp; Speicher</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Nicht lesbar</translation>
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
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (knapp)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Klonen von Dateien</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Groß-/Kleinschreibung in Namen</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Startvolume</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Verfügbarer Platz</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>Festplatte</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>intern</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>wechselbar</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Laufwerk %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>Anschluss (Laufwerk %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (Laufwerk %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>Platz auf dem Volume</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Platz auf dem Volume (Volume %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicherplatz</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>über Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Modell-Identifikation</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Betriebssystem</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Betriebszeit</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Temperaturzustand</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Benutzter WLAN-Standard</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>WLAN-Band</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>WLAN-Signal</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>WLAN-Rate</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>gemeinsamer Speicher</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>stromsparend</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>externe eGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Keines</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (gut)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (mittel)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (schwach)</translation>
    </message>
    <message>
        <source>%1&#xa0;Wh</source>
        <translation>%1&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1&#xa0;mAh</source>
        <translation>%1&#xa0;mAh</translation>
    </message>
    <message>
        <source>Charging</source>
        <comment>heading</comment>
        <translation>Ladevorgang</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Wie das System (%1)</translation>
    </message>
</context>
<context>
    <name>Moment</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1: a day, %2: a time: &quot;12 November, 19:20&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>Heute, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Gestern, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>heute, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>gestern, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Untersucht heute um %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Untersucht gestern um %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Untersucht am %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Zuletzt heute um %1 gesucht</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Zuletzt gestern um %1 gesucht</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Zuletzt am %1 gesucht</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n Abschnitt, heute um %1 untersucht.</numerusform>
            <numerusform>Alle %n Abschnitte, heute um %1 untersucht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n Abschnitt, gestern um %1 untersucht.</numerusform>
            <numerusform>Alle %n Abschnitte, gestern um %1 untersucht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n Abschnitt, am %1 untersucht.</numerusform>
            <numerusform>Alle %n Abschnitte, am %1 untersucht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation>%1&#xa0;KB/s</translation>
    </message>
    <message>
        <source>%1&#xa0;MB/s</source>
        <translation>%1&#xa0;MB/s</translation>
    </message>
    <message>
        <source>%1&#xa0;GB/s</source>
        <translation>%1&#xa0;GB/s</translation>
    </message>
    <message>
        <source>%1&#xa0;TB/s</source>
        <translation>%1&#xa0;TB/s</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Batterie · wird geladen</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Druck normal</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Druck erhöht</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Druck kritisch</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>Erhöht</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Keine Leistungseinschränkung</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Leicht warm, keine Einschränkung</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Leistung ist verringert</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Leistung ist stark verringert</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 Prozent, zwischen %2 und %3 Prozent in den letzten 2 Minuten</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n Kern, ausgelastet zu %1 Prozent</numerusform>
            <numerusform>%n Kerne, der am stärksten ausgelastete bei %1 Prozent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 von %2 benutzt, %3 Prozent. Druck %4 Prozent, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Empfangen %1, gesendet %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row of the menu: what it is, and its figure</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <extracomment>A row of the menu: what it is, its figure and a remark on it</extracomment>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Temperaturzustand</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>Name des Computers</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>Adressen</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>Namen der Volumes</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Fähigkeitswert: %1&#xa0;% (%2 von %3 bewerteten Fähigkeiten unterstützt)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 Arbeitsspeicher</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 Speicherplatz</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Keine passenden Zeilen.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>In diesem Bericht ausgelassen: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Einen Blick wert</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 von %2 unterstützt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Dieser Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Was dieser Mac wirklich kann</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Was dieser Computer wirklich kann</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Erstellt mit %1 · Alle Daten wurden auf diesem Mac gelesen</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Erstellt mit %1 · Alle Daten wurden auf diesem Computer gelesen</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Anteil der bewerteten Fähigkeiten, die dieser Mac unterstützt</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Anteil der bewerteten Fähigkeiten, die dieser Computer unterstützt</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Fähigkeitswert</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nichts ist bewertet</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Quillmark-Bericht</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>In diesem Bericht</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>S. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Fähigkeit</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Untersucht am %1 um %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 [%3]</source>
        <translation>%1: %2 [%3]</translation>
    </message>
    <message>
        <source>Left out</source>
        <extracomment>Stands for a name or an address.</extracomment>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>Adresse %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>Der Bericht konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Es gibt bereits eine Datei mit diesem Namen.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Sie haben keine Berechtigung, dort zu schreiben.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Auf „%1“ ist nicht genug Platz frei.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Das Laufwerk ist nicht mehr verbunden.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>So kann keine Datei heißen.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>Das System meldet: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, grafikkarte, videokarte, 3d, spiele</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ki, ai, ml, maschinelles lernen, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>display, monitor</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>video, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>strom, akku, batterie</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, online</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>schutz</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>computername, hostname, rechnername</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modell</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, systemversion, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bit, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>läuft seit, neustart, laufzeit</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatur, hitze, drosselung, lüfter</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, hypervisor</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, chip, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>cpu-kerne</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cpu-kerne, threads, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>taktfrequenz, takt, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, hauptspeicher</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, grafikspeicher</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, schreibwerkzeuge, sprachmodell</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ki, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, bildwiederholfrequenz</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, helligkeit</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut, farbraum</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>pixel, hertz, hz, 4k, 5k, bildwiederholrate</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, video-decodierung, wiedergabe</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, video-codierung, aufnahme</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, video-decodierung, wiedergabe</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, video-codierung, aufnahme</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, fotos, bilder</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>lautsprecher, ton, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>mikro, ton, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>mikro, berechtigung, datenschutz</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, berechtigung, datenschutz</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, lautsprecher, kopfhörer</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, mikrofon</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, ton</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>abtastrate, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>speicherplatz, festplattengröße</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>freier speicher, speicherplatz, voll</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, festplatte, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partition, laufwerk</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>eingesteckt, netzstrom</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>ladegerät, netzteil, watt</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>maximale kapazität, verschleiß, alterung</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>akkulaufzeit, laufzeit</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>energiesparen, energiesparmodus</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wi-fi, wifi, funk</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wi-fi, wifi, funk, empfang</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wi-fi, wifi, funk, geschwindigkeit</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wi-fi, wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>ip-adresse</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, verschlüsselt</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>verschlüsselung, verschlüsselt, festplattenverschlüsselung</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>fingerabdruck, biometrie</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, sicherheitschip</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, startsicherheit, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>virus, schadsoftware, malware, antivirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>schadsoftware, notarisierung, app-signatur</translation>
    </message>
    <message>
        <source>spectre, meltdown</source>
        <translation>spectre, meltdown</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Another computer</source>
        <translation>Anderer Computer</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>„quillmark history record“ untersucht diesen Computer und sichert die erste.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Gegenüber der vorigen</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Untersuchung vom %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Fähigkeitswert</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 von %2 bewerteten Fähigkeiten unterstützt</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Keine passenden Zeilen.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>Die Untersuchung vom %1 wurde entfernt.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Alle gesicherten Untersuchungen wurden entfernt.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>Die Untersuchung %1 wurde gesichert.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Seit der Untersuchung vom %1 hat sich nichts geändert, daher wurde keine gesichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n gesicherte Untersuchung</numerusform>
            <numerusform>%n gesicherte Untersuchungen</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>j, ja</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n gesicherte Untersuchung wird entfernt. Das lässt sich nicht rückgängig machen. Entfernen? [j/N]</numerusform>
            <numerusform>%n gesicherte Untersuchungen werden entfernt. Das lässt sich nicht rückgängig machen. Entfernen? [j/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>Download: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>Versionshinweise: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark hat keine Anfrage gesendet.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [j/N]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Messwerte werden gesammelt…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q beendet</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Jede Sekunde aktualisiert · letzte 2 Minuten</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Live-Monitor</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n Kern</numerusform>
            <numerusform>%n Kerne</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Pro Kern</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>Benutzt</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 Min.</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2 Min.</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Temperaturzustand</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap benutzt</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Prozessor %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Arbeitsspeicher %1 von %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap benutzt %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Empfangen %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Gesendet %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>Temperaturzustand %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>%1 war nicht erreichbar: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 konnte nicht nachweisen, %1 zu sein: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>Die Antwort von %1 ist länger, als ein Feed sein darf.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 verweist auf eine andere Adresse, der nicht gefolgt wurde: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 hat mit dem Status %2 statt mit einem Feed geantwortet.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>Die Antwort von %1 ist kein Feed: Sie deklariert einen Dokumenttyp.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>Die Antwort von %1 ist kein Feed: Sie ist eine andere Art von XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>Die Antwort von %1 ist kein Feed: Sie enthält mehr, als in einem steht.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Darf Quillmark bei %1 nach neueren Versionen fragen: jetzt und höchstens einmal am Tag, wenn das Fenster geöffnet wird?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>Die Anfrage enthält die Version von Quillmark und nichts über Sie oder diesen Computer. Es wird nichts installiert.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 ist verfügbar; diese Version wollten Sie überspringen. Sie haben Version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 ist verfügbar, eine wichtige Aktualisierung. Sie haben Version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 ist verfügbar. Sie haben Version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 ist aktuell.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark konnte nicht ermitteln, ob es eine neuere Version gibt.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>%1 wurde nicht gefragt, weil Sie dem nicht zugestimmt haben.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>Die Adresse des Feeds ist keine https-Adresse: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>%1 wurde nicht gefragt, weil das Protokoll der Anfragen nicht geschrieben werden kann.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>Die Antwort von %1 ist kein Feed: Sie ist kein XML oder nur ein Teil davon.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Über Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Zeigt, was Ihr Mac wirklich kann.
Alles, was gelesen wird, bleibt auf diesem Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Zeigt, was Ihr Computer wirklich kann.
Alles, was gelesen wird, bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Über Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Erneut untersuchen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Suchen…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Live-Monitor</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Vorheriger Abschnitt</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Nächster Abschnitt</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Seitenleiste ausblenden</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Im Dock ablegen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Alle nach vorne bringen</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark-Hilfe</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Neue Funktionen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>der Nennkapazität</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Aktuelle Kapazität</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Nennkapazität</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Ladestand</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Aktuelle Kapazität als Anteil der Nennkapazität. 80&#xa0;% oder mehr sind gut.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Ladezyklen</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Ein Zyklus ist eine volle Entladung, auch wenn sie sich über mehrere Tage verteilt.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>Hitze lässt eine Batterie schneller altern als Benutzung. Halten Sie sie von der Sonne fern.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Heute um %1 gelesen. Die Werte stammen vom Controller der Batterie selbst und können von Mal zu Mal leicht abweichen.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Wert kopieren</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A row for screen readers: &quot;Touch ID, Available, Supported&quot;</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row as it is copied: &quot;Memory: 16 GB&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ChartView</name>
    <message>
        <source>2 min</source>
        <translation>2 Min.</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 Min.</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonModel</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A value and its status, for screen readers: &quot;Turned off, Warning&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Changed: %1, from %2, to %3</source>
        <extracomment>For screen readers: &quot;Changed: Metal 4, from Requires macOS 26, Not supported, to Supported&quot;</extracomment>
        <translation>Geändert: %1, von %2 zu %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Hinzugefügt: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Entfernt: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: hinzugefügt, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: entfernt, %2</translation>
    </message>
    <message>
        <source>%1: %2 · %3 · %4 · %5</source>
        <extracomment>The head of a comparison: &quot;Older: 12 November 2025, 19:20 · Nora’s Mac · macOS 26.1 · 82%&quot;</extracomment>
        <translation>%1: %2 · %3 · %4 · %5</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonView</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>Fähigkeitswert</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n Zeile</numerusform>
            <numerusform>%1, %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle Änderungen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n Seite, US Letter</numerusform>
            <numerusform>%n Seiten, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n Seite, A4</numerusform>
            <numerusform>%n Seiten, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Untersuchung exportieren</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Namen und Adressen auslassen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Dieser Mac wird untersucht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Dieser Computer wird untersucht…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Sehen Sie, was dieser Mac wirklich kann</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Sehen Sie, was dieser Computer wirklich kann</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Jede Fähigkeit Ihrer Hardware und Ihres Systems, mit klarem Status.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Elf Abschnitte, ein Wert</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Von Prozessor und Grafik bis zu Codecs, Bildschirmen und Sicherheit.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Jede Änderung wird gesichert</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Vergleichen Sie zwei beliebige Untersuchungen und sehen Sie, was ein Update geändert hat.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Ihre Daten bleiben hier</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nichts über diesen Mac wird irgendwohin gesendet. Quillmark geht nur online, um nach eigenen Updates zu suchen.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nichts über diesen Computer wird irgendwohin gesendet. Quillmark geht nur online, um nach eigenen Updates zu suchen.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Fragt höchstens einmal am Tag bei %1 nach und nennt dabei nur die Version von Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Live-Monitor in der Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Live-Monitor im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Beim Öffnen von Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Verlauf:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Datenschutz:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Übersicht anzeigen</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Zuletzt benutzte Ansicht anzeigen</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Verlauf löschen…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Alles, was Quillmark liest, bleibt auf diesem Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Alles, was Quillmark liest, bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>Die einzige Verbindung ist die Suche nach Updates.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n Untersuchung gesichert, höchstens %1</numerusform>
            <numerusform>%n Untersuchungen gesichert, höchstens %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Fähigkeiten suchen</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Erneut untersuchen</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>Menü (F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>Fähigkeitswert</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Fähigkeitswert %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Anteil der bewerteten Fähigkeiten, die dieser Mac unterstützt</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Anteil der bewerteten Fähigkeiten, die dieser Computer unterstützt</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nichts ist bewertet</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 von %n Fähigkeit</numerusform>
            <numerusform>%1 von %n Fähigkeiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 Prozent, %2 von %n Fähigkeit unterstützt</numerusform>
            <numerusform>%1 Prozent, %2 von %n Fähigkeiten unterstützt</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Dieser Mac wird untersucht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Dieser Computer wird untersucht…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Das dauert länger als sonst</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Hardware und Systemeinstellungen werden gelesen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Anderer Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Anderer Computer</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two items of a list: &quot;3 changed, 1 added&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4, %5, %6</source>
        <extracomment>A saved scan for screen readers: date, system, counts of three statuses, what it changed</extracomment>
        <translation>%1, %2, %3, %4, %5, %6</translation>
    </message>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n unterstützt</numerusform>
            <numerusform>%n unterstützt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n nicht unterstützt</numerusform>
            <numerusform>%n nicht unterstützt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Untersuchungen vergleichen</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Eine Untersuchung wird gesichert, wenn sich etwas geändert hat. Die neuesten 200 bleiben auf diesem Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Eine Untersuchung wird gesichert, wenn sich etwas geändert hat. Die neuesten 200 bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark sichert jede Untersuchung, die etwas Neues findet. Untersuchen Sie diesen Mac, um die erste zu sichern.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark sichert jede Untersuchung, die etwas Neues findet. Untersuchen Sie diesen Computer, um die erste zu sichern.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Jetzt untersuchen</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Gesicherte Untersuchungen</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Verlauf löschen…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n Untersuchung gesichert</numerusform>
            <numerusform>%n Untersuchungen gesichert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 Untersuchung ausgewählt · wählen Sie eine weitere</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 Untersuchungen ausgewählt</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Diese Untersuchung löschen?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>Die Untersuchung vom %1 wird aus dem Verlauf entfernt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Verlauf löschen?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n gesicherte Untersuchung wird entfernt. Das lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>Alle %n gesicherten Untersuchungen werden entfernt. Das lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>Der Verlauf konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Ein anderes Quillmark benutzt ihn gerade. Hier gemachte Untersuchungen bleiben bis zum Beenden erhalten.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::IconButton</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>Tool tip of a button: its name and its shortcut, &quot;Inspect again (Ctrl+R)&quot;</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::LanguagePane</name>
    <message>
        <source>Interface language:</source>
        <translation>Sprache der Oberfläche:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>Die neue Sprache wird sofort verwendet. In einer anderen Sprache gesicherte Untersuchungen lassen sich weiterhin vergleichen.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Messwerte werden gesammelt…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmark öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Live-Monitor von Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Benutzter Arbeitsspeicher: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Prozessorlast: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Live-Monitor von Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Jede Sekunde</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Messwerte werden gesammelt…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmark öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Menüleiste:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Neben dem Symbol zeigen:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Fenster:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Live-Monitor in der Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark bleibt in der Menüleiste, bis Sie es beenden</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Infobereich:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Live-Monitor im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark bleibt im Infobereich, bis Sie es beenden</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Diese Arbeitsumgebung hat keinen Infobereich.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Prozessorlast</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Benutzter Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Nur das Symbol</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Weiterlaufen, wenn das Hauptfenster geschlossen ist</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Live-Monitor</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Jede Sekunde aktualisiert · letzte 2 Minuten</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Messwerte werden gesammelt…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>Der erste Messwert kommt in etwa einer Sekunde.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Pro Kern</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Temperaturzustand</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap benutzt</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Alle Schnittstellen</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>Auf dem Startvolume</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n Kern</numerusform>
            <numerusform>%n Kerne</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Benutzt</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Netzteil angeschlossen</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Lädt nicht</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Erste Untersuchung gesichert</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Spätere werden mit ihr verglichen</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n geändert</numerusform>
            <numerusform>%n geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n hinzugefügt</numerusform>
            <numerusform>%n hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n entfernt</numerusform>
            <numerusform>%n entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Seit %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Keine Unterschiede</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Untersuchungen vergleichen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Untersuchung exportieren</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Bericht gesichert.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Anderen Ort wählen…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Ergebnisse für „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n Abschnitt</numerusform>
            <numerusform>%n Abschnitten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n Zeile in %1</numerusform>
            <numerusform>%n Zeilen in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Gefiltert nach: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Keine passenden Zeilen</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Nichts enthält „%1“. Prüfen Sie die Schreibweise oder versuchen Sie ein kürzeres Wort.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Keine Zeile, die „%1“ enthält, hat den Status „%2“.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n Zeile passt mit anderem Status.</numerusform>
            <numerusform>%n Zeilen passen mit anderem Status.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Keine passenden Zeilen</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Keine Zeile hat hier den Status „%1“.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Fähigkeiten</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Alle Status zeigen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n unterstützt</numerusform>
            <numerusform>%n unterstützt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n nicht unterstützt</numerusform>
            <numerusform>%n nicht unterstützt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n Info</numerusform>
            <numerusform>%n Infos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>The label before its value</extracomment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionPage</name>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Dieser Mac wird untersucht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Dieser Computer wird untersucht…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>In diesem Abschnitt ist nichts bewertet</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 von %n bewerteten Fähigkeit unterstützt</numerusform>
            <numerusform>%1 von %n bewerteten Fähigkeiten unterstützt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Wird untersucht…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Diagramme in Echtzeit: CPU, Arbeitsspeicher, Temperatur, Batterie und Netzwerk</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n Warnung</numerusform>
            <numerusform>%1, %n Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Fähigkeiten</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batteriezustand</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Live-Monitor</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n Zeile</numerusform>
            <numerusform>%1, %n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Neue Funktionen</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Alles im Fenster ist mit Tasten erreichbar: Tab führt von Teil zu Teil, die Pfeiltasten bewegen sich innerhalb, Leertaste und Eingabetaste wählen aus, Esc führt zurück.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>Auf der Befehlszeile</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Alles, was das Fenster zeigt, lässt sich auch vom Befehl quillmark erfragen: siehe quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark-Hilfe</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Darf Quillmark bei %1 fragen, ob es eine neuere Version gibt?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Einmal am Tag fragen</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Nur dieses Mal fragen</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 ist verfügbar, eine wichtige Aktualisierung.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Sie haben Version %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Neue Funktionen</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Neue Funktionen in Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Updates:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Fragt einmal am Tag bei %1 nach, wenn Quillmark startet</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird gesucht…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Noch nie gesucht</translation>
    </message>
</context>
</TS>
