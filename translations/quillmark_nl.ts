<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Niet opgegeven</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Verminderd</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Versleten</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Koud</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heet</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Onderhoud aanbevolen</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Blijvend defect</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Deze batterij vraagt aandacht.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Deze batterij meldt niet hoeveel lading ze bevat.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Deze batterij is in goede staat.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Deze batterij houdt minder lading vast dan vroeger.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Deze batterij is versleten.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Ze houdt bijna evenveel lading vast als toen ze nieuw was.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Ze werkt nog goed, maar gaat merkbaar korter mee.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Overweeg om haar te laten vervangen.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Ze heeft het aantal cycli bereikt waarvoor ze is gemaakt.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Ze is heet.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 van de ontwerpcapaciteit</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS meldt %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS vlakt zijn cijfer af en houdt een reserve, dus de twee kunnen enkele punten verschillen.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Deze Mac heeft geen batterij</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Deze computer heeft geen batterij</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>De batterijconditie wordt getoond op draagbare Macs. Al het andere in Quillmark werkt zoals altijd.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>De batterijconditie wordt getoond op draagbare computers. Al het andere in Quillmark werkt zoals altijd.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>Wordt opgeladen, vol over %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Wordt opgeladen</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Vol</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Op batterij, nog %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Op batterij</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Aangesloten, laadt niet op</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Gemaakt voor %1 cycli</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normaal: 10 tot 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Gemeld door het systeem</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Batterijconditie niet opgegeven</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Batterijconditie %1 procent, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>PDF-rapport</translation>
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
        <translation>Platte tekst</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Vormgegeven pagina’s, klaar om af te drukken of te versturen</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Elke waarde, voor scripts en hulpmiddelen</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tabellen voor notities, wiki’s en issues</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>Dezelfde tekst als bij ‘Kopieer als tekst’</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Toon in Finder</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Toon in bestandsbeheer</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n gewijzigd</numerusform>
            <numerusform>%n gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n toegevoegd</numerusform>
            <numerusform>%n toegevoegd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n verwijderd</numerusform>
            <numerusform>%n verwijderd</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Ouder</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Nieuwer</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Eerste scan</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Geen verschillen</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Beide scans tonen dezelfde mogelijkheden. Waarden die steeds veranderen, zoals de tijd sinds opstarten, worden niet vergeleken.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>De twee scans zijn in verschillende talen, dus alleen wijzigingen van de status worden getoond.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Nog geen bewaarde scans</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Supported</source>
        <translation>Ondersteund</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Nog niet gevraagd</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Beperkt</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Geweigerd</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Toegestaan</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Intern</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Geen (desktop)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Bluetooth-apparaat</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>AirPlay-apparaat</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone of iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n kanaal</numerusform>
            <numerusform>%1, %n kanalen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (gesprekskwaliteit: er is een microfoon in gebruik)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Ingebouwde luidsprekers</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Ingebouwde microfoon</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Geluidsuitvoer</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Uitvoerformaat</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Hoogste uitvoerfrequentie</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Geluidsinvoer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1&#xa0;van %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1&#xa0;van %2&#xa0;mAh</translation>
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
        <translation>Wordt opgeladen</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Vol</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Aangesloten, laadt niet op</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Op batterij</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Wordt geschat</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 tot vol</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batterijconditie</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Staat van de batterij</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Aantal cycli</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Batterijcapaciteit</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Batterijtemperatuur</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Lading</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Resterende tijd</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>ingebouwd</translation>
    </message>
    <message>
        <source>external</source>
        <translation>extern</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Camera %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Beste beeld</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Beste beeld (camera %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, tot %2 beelden per seconde</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Middelpunt</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Middelpunt (camera %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Geluidskaart</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>uitvoer</translation>
    </message>
    <message>
        <source>input</source>
        <translation>invoer</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Geluidskaart %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Cameratoegang</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Microfoontoegang</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Camera en audio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>hoofdscherm</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegeld</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, tot %2&#xa0;Hz</translation>
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
        <translation>%1 (lijkt op %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Vast</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1&#xa0;tot %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1&#xa0;tot %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Tot %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;inch, %2&#xa0;pixels per inch</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;inch</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Variabele verversingssnelheid</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Variabele verversingssnelheid (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Uitgebreid dynamisch bereik</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Uitgebreid dynamisch bereik (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Breed kleurbereik</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Breed kleurbereik (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Beeldscherm</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Beeldscherm %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Resolutie (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Schaal</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Schaal (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Formaat (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Verbinding (beeldscherm %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Aangesloten beeldschermen</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Beeldschermen</translation>
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
        <translation>Vereist macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Aanbevolen GPU-geheugen</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Apple GPU-familie</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Raytracing</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Raytracing in hardware</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Graphics en Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Aan, wordt versleuteld</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Wordt uitgeschakeld</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Uit (de schijf blijft door hardware versleuteld)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Deels aan</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Aan, blokkeert alle inkomende verbindingen</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Beschikbaar</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Uitgeschakeld in Systeeminstellingen</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Niet gereed (wordt gedownload, of niet aangeboden voor deze taal of regio)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>Alleen CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Core ML-versnelling</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Neural Engine-kernen</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>GPU-kernen</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Int8-matrixinstructies</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Gevonden, geen stuurprogramma</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen toestemming</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Neurale processor</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Rekenen op de GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Kunstmatige intelligentie</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Virtuele machine</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, afdwingend</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, toegeeflijk</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Allemaal verholpen</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n niet verholpen</numerusform>
            <numerusform>%n niet verholpen</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Veilig opstarten</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Schijfversleuteling</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Toegangsbeheer</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Kwetsbaarheden van de processor</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Verzegeld</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Niet verzegeld</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Verbroken</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Verzegeld systeemvolume</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Geen beveiliging</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Gemiddelde beveiliging</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Volledige beveiliging</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Beschikbaar, niet ingesteld</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Beschikbaar, vergrendeld</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Systeemintegriteitsbescherming</translation>
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
        <translation>Isolatiemodus</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Niet in hardware</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Alleen software</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lezen en schrijven</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Alleen lezen</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>H.264-decodering</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>HEVC-decodering</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>VP9-decodering</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>AV1-decodering</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>ProRes-decodering</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>H.264-codering</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>HEVC-codering</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ProRes-codering</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>AV1-codering</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>HEIC-afbeeldingen</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>AVIF-afbeeldingen</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Niet leesbaar (vainfo is niet geïnstalleerd)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Niet leesbaar (de GPU slaapt)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Videostuurprogramma</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Mobiel netwerk</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anders</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Niet aangeboden door dit netwerk</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Verbinding met datalimiet</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Lagedatamodus</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (zelf toegewezen)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Adres (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actief</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Geen gevonden</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, full-duplex</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, half-duplex</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Ethernetsnelheid</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Ethernetsnelheid %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Lichtnetadapter</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Netstroom</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterij</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>Noodvoeding</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Ingebouwd</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Gebalanceerd</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Prestaties</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Energiezuinig</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Koel</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Energiebesparingsmodus</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Laadlimiet</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Energieprofiel</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Stroombron</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>SME-instructies</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>BF16-instructies</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>AVX2-instructies</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>AVX-512-instructies</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Fysieke kernen</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Logische kernen</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Prestatiekernen</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Efficiëntiekernen</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Maximale frequentie</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Geheugen (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Processor en geheugen</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Niet leesbaar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Beveiliging</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (weinig)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Bestanden klonen</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Hoofdlettergevoelige namen</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Opstartvolume</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Beschikbare ruimte</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Bestandssysteem</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>harde schijf</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>intern</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>verwijderbaar</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Schijf %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>Verbinding (schijf %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (schijf %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>alleen lezen</translation>
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
        <translation>Volumeruimte</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Volumeruimte (volume %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>via Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architectuur</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heet</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritiek</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Apparaatnaam</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Modelaanduiding</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Besturingssysteem</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tijd sinds opstarten</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Thermische toestand</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Wifi-standaard in gebruik</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Wifi-band</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Wifi-signaal</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Wifi-snelheid</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>gedeeld geheugen</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>energiezuinig</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>externe eGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (goed)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (redelijk)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (zwak)</translation>
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
        <translation>Laadstatus</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Zelfde als systeem (%1)</translation>
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
        <translation>Vandaag, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Gisteren, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>vandaag, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>gisteren, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Vandaag onderzocht om %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Gisteren onderzocht om %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Onderzocht op %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Laatst gezocht: vandaag om %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Laatst gezocht: gisteren om %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Laatst gezocht: %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n sectie, zoals vandaag onderzocht om %1.</numerusform>
            <numerusform>Alle %n secties, zoals vandaag onderzocht om %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n sectie, zoals gisteren onderzocht om %1.</numerusform>
            <numerusform>Alle %n secties, zoals gisteren onderzocht om %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n sectie, zoals onderzocht op %1.</numerusform>
            <numerusform>Alle %n secties, zoals onderzocht op %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation>%1&#xa0;kB/s</translation>
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
        <translation>%1%</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Batterij · wordt opgeladen</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterij</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Druk normaal</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Druk verhoogd</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Druk kritiek</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heet</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritiek</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>Verhoogd</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Kritiek</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Geen beperking van de prestaties</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Iets warm, geen beperking</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Prestaties zijn verminderd</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Prestaties zijn sterk verminderd</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 procent, tussen %2 en %3 procent in de laatste 2 minuten</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n kern, voor %1 procent belast</numerusform>
            <numerusform>%n kernen, de zwaarst belaste op %1 procent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 van %2 gebruikt, %3 procent. Druk %4 procent, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>In %1, uit %2</translation>
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
        <translation>Processor</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Thermische toestand</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleer</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>computernaam</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>adressen</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>volumenamen</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Capaciteitsscore: %1% (%2 van %3 beoordeelde mogelijkheden ondersteund)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 geheugen</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 opslag</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Geen enkele regel komt overeen.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Weggelaten uit dit rapport: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Het bekijken waard</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (vervolg)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n regel</numerusform>
            <numerusform>%n regels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en nog %n</numerusform>
            <numerusform>en nog %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 van %2 ondersteund</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Deze Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Wat deze Mac echt kan</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Wat deze computer echt kan</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Gemaakt met %1 · Alle gegevens zijn op deze Mac gelezen</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Gemaakt met %1 · Alle gegevens zijn op deze computer gelezen</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Deel van de beoordeelde mogelijkheden dat deze Mac ondersteunt</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Deel van de beoordeelde mogelijkheden dat deze computer ondersteunt</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Capaciteitsscore</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Niets is beoordeeld</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Quillmark-rapport</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>In dit rapport</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>p. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Mogelijkheid</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Onderzocht op %1 om %2</translation>
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
        <translation>Weggelaten</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>Adres %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>Het rapport kon niet worden bewaard.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Er is al een bestand met deze naam.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Dit is een map.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>De map bestaat niet.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Je hebt geen toestemming om daar te schrijven.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Er is niet genoeg vrije ruimte op ‘%1’.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>De schijf is niet meer verbonden.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Geen enkel bestand kan deze naam hebben.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>Het systeem meldt: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, grafische kaart, videokaart, 3d, gaming, spellen, games</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, ki, ml, machine learning, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>scherm, display, monitor</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>video, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>stroom, accu, batterij, energie</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, online</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>veiligheid, bescherming</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>computernaam, hostnaam, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>model</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, systeemversie, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bit, arm, x86, rosetta, 64 bits</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>actief sinds, uptime, herstart, opnieuw opstarten, aan sinds</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatuur, hitte, warmte, throttling, ventilator</translation>
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
        <translation>cpu-kernen, cores</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cpu-kernen, cores, threads, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>kloksnelheid, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, werkgeheugen, intern geheugen</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, videogeheugen</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, schrijfhulp, taalmodel</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai, ki</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, verversingssnelheid</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, helderheid</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut, kleurruimte, kleurbereik</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>pixels, hertz, hz, 4k, 5k, verversingssnelheid</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, video decoderen, videodecodering, afspelen</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, video coderen, videocodering</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, video decoderen, videodecodering, afspelen</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, video coderen, videocodering</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, foto’s, fotos, afbeeldingen</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>speakers, boxen, geluid, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>mic, geluid, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>mic, toestemming, privacy</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, toestemming, privacy</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, luidsprekers, speakers, koptelefoon</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, microfoon</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, geluid</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>bemonsteringsfrequentie, samplefrequentie, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>schijfruimte, schijfgrootte</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>vrije ruimte, schijfruimte, vol</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, station, harde schijf, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partitie, station</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>stekker, stopcontact, lichtnet, ingeplugd, netstroom</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>oplader, lader, voeding, watt</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>maximale capaciteit, slijtage, veroudering, maximumcapaciteit</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>batterijduur, accuduur, gebruiksduur</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>energiebesparing, spaarstand, stroombesparing</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wifi, wlan, draadloos, wi-fi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wifi, wlan, draadloos, ontvangst, bereik, wi-fi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wifi, wlan, draadloos, snelheid, wi-fi</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan, wi-fi</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>ip-adres</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, versleuteld</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>versleuteling, versleuteld, schijfversleuteling, encryptie</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>vingerafdruk, biometrie</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, beveiligingschip</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, opstartbeveiliging, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>virus, malware, antivirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>malware, notarisatie, app-ondertekening</translation>
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
        <translation>Andere computer</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>‘quillmark history record’ onderzoekt deze computer en bewaart de eerste.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Ten opzichte van de vorige</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Scan van %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Capaciteitsscore</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 van %2 beoordeelde mogelijkheden ondersteund</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Geen enkele regel komt overeen.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batterijconditie</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>De scan van %1 is verwijderd.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Alle bewaarde scans zijn verwijderd.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>Scan %1 is bewaard.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Er is niets veranderd sinds de scan van %1, dus is er geen bewaard.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n bewaarde scan</numerusform>
            <numerusform>%n bewaarde scans</numerusform>
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
            <numerusform>%n bewaarde scan wordt verwijderd. Dit kan niet ongedaan worden gemaakt. Verwijderen? [j/N]</numerusform>
            <numerusform>%n bewaarde scans worden verwijderd. Dit kan niet ongedaan worden gemaakt. Verwijderen? [j/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>Download: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>Versienotities: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark heeft geen verzoek verzonden.</translation>
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
        <translation>Fout</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
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
        <translation>Metingen verzamelen…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q om te stoppen</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Elke seconde bijgewerkt · laatste 2 minuten</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Live monitor</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n kern</numerusform>
            <numerusform>%n kernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Per kern</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>van %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>Gebruikt</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>In</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 min</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2 min</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Thermische toestand</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap in gebruik</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Processor %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Geheugen %1 van %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap in gebruik %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Uit %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>Thermische toestand %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>%1 kon niet worden bereikt: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 kon niet bewijzen dat het %1 is: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 heeft niet op tijd geantwoord.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>Het antwoord van %1 is langer dan een feed mag zijn.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 verwijst naar een ander adres, dat niet is gevolgd: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 heeft geantwoord met status %2 in plaats van een feed.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>Het antwoord van %1 is geen feed: het declareert een documenttype.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>Het antwoord van %1 is geen feed: het is een ander soort XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>Het antwoord van %1 is geen feed: er staat meer in dan in welke feed ook.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Mag Quillmark bij %1 naar nieuwere versies vragen: nu, en hoogstens één keer per dag wanneer het venster wordt geopend?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>Het verzoek bevat de versie van Quillmark en niets over jou of deze computer. Er wordt niets geïnstalleerd.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 is beschikbaar, een versie die je wilde overslaan. Je hebt versie %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 is beschikbaar, een belangrijke update. Je hebt versie %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 is beschikbaar. Je hebt versie %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 is up-to-date.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark kon niet nagaan of er een nieuwere versie is.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>Er is niets aan %1 gevraagd, omdat je daar geen toestemming voor hebt gegeven.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>Het adres van de updatefeed is geen https-adres: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>Er is niets aan %1 gevraagd, omdat het logboek van verzoeken niet kan worden geschreven.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>Het antwoord van %1 is geen feed: het is geen XML, of maar een deel ervan.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Over Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Vertelt je wat je Mac echt kan.
Alles wat wordt gelezen, blijft op deze Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Vertelt je wat je computer echt kan.
Alles wat wordt gelezen, blijft op deze computer.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenties</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Zoek naar updates</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Archief</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Wijzig</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Venster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Over Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zoek naar updates…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Onderzoek opnieuw</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteer…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Sluit venster</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieer</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Kopieer als tekst</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecteer alles</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Zoek…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijder</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Scangeschiedenis</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Batterijconditie</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Live monitor</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Vorige sectie</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Volgende sectie</translation>
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
        <translation>Terug</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Verberg navigatiekolom</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Schermvullende weergave</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimaliseer</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Alles op voorgrond</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark Help</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Wat is er nieuw</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>van de ontwerpcapaciteit</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Huidige capaciteit</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Ontwerpcapaciteit</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Lading</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Aantal cycli</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Staat</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Batterijconditie</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Conditie</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Huidige capaciteit als deel van de ontwerpcapaciteit. 80% of meer is goed.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Aantal cycli</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Eén cyclus is één volledige ontlading, ook als die over meerdere dagen is verspreid.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>Warmte veroudert een batterij sneller dan gebruik. Houd haar uit de zon.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Vandaag gelezen om %1. De cijfers komen van de controller van de batterij zelf en kunnen per meting iets verschillen.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Kopieer</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Kopieer waarde</translation>
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
        <translation>2 min</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 min</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
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
        <translation>Gewijzigd: %1, van %2 naar %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Toegevoegd: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Verwijderd: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: toegevoegd, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: verwijderd, %2</translation>
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
        <translation>Verschillen</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>score</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n regel</numerusform>
            <numerusform>%1, %n regels</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle wijzigingen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n pagina, US Letter</numerusform>
            <numerusform>%n pagina’s, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n pagina, A4</numerusform>
            <numerusform>%n pagina’s, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Exporteer onderzoek</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Laat namen en adressen weg</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorvertoning</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleer</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteer…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Deze Mac wordt onderzocht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Deze computer wordt onderzocht…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Ontdek wat deze Mac echt kan</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Ontdek wat deze computer echt kan</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Elke mogelijkheid van je hardware en systeem, met een duidelijke status.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Elf secties, één score</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Van processor en graphics tot codecs, beeldschermen en beveiliging.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Elke wijziging wordt bewaard</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Vergelijk twee willekeurige scans en zie wat een update heeft veranderd.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Je gegevens blijven hier</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Er wordt niets over deze Mac verzonden. Quillmark gaat alleen online om naar eigen updates te zoeken.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Er wordt niets over deze computer verzonden. Quillmark gaat alleen online om naar eigen updates te zoeken.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Zoek automatisch naar updates</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Vraagt hoogstens één keer per dag bij %1 na en meldt daarbij alleen de versie van Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Toon de live monitor in de menubalk</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Toon de live monitor in het systeemvak</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Aan de slag</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Bij openen van Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Scangeschiedenis:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Privacy:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Toon het overzicht</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Toon het laatst gebruikte scherm</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Wis geschiedenis…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Alles wat Quillmark leest, blijft op deze Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Alles wat Quillmark leest, blijft op deze computer.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>De enige verbinding die wordt gemaakt, is het zoeken naar updates.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n scan bewaard, hoogstens %1</numerusform>
            <numerusform>%n scans bewaard, hoogstens %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Zoek mogelijkheden</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Wis zoekopdracht</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Onderzoek opnieuw</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Kopieer als tekst</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteer…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>Menu (F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>Capaciteitsscore</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Capaciteitsscore %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Deel van de beoordeelde mogelijkheden dat deze Mac ondersteunt</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Deel van de beoordeelde mogelijkheden dat deze computer ondersteunt</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Niets is beoordeeld</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 van %n mogelijkheid</numerusform>
            <numerusform>%1 van %n mogelijkheden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 procent, %2 van %n mogelijkheid ondersteund</numerusform>
            <numerusform>%1 procent, %2 van %n mogelijkheden ondersteund</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Deze Mac wordt onderzocht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Deze computer wordt onderzocht…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Dit duurt langer dan gewoonlijk</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Hardware en systeeminstellingen worden gelezen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Verwijder</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Deze maand</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Andere Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Andere computer</translation>
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
            <numerusform>%n ondersteund</numerusform>
            <numerusform>%n ondersteund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n niet ondersteund</numerusform>
            <numerusform>%n niet ondersteund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n waarschuwing</numerusform>
            <numerusform>%n waarschuwingen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Vergelijk scans</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Scangeschiedenis</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Er wordt een scan bewaard zodra er iets is gewijzigd. De nieuwste 200 blijven op deze Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Er wordt een scan bewaard zodra er iets is gewijzigd. De nieuwste 200 blijven op deze computer.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark bewaart een scan telkens wanneer een onderzoek iets nieuws vindt. Onderzoek deze Mac om de eerste te bewaren.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark bewaart een scan telkens wanneer een onderzoek iets nieuws vindt. Onderzoek deze computer om de eerste te bewaren.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Onderzoek nu</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Bewaarde scans</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Wis selectie</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergelijk</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Wis geschiedenis…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n scan bewaard</numerusform>
            <numerusform>%n scans bewaard</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 scan geselecteerd · kies er nog een</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 scans geselecteerd</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Deze scan verwijderen?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>De scan van %1 wordt uit de geschiedenis verwijderd.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijder</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Scangeschiedenis wissen?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n bewaarde scan wordt verwijderd. Dit kan niet ongedaan worden gemaakt.</numerusform>
            <numerusform>Alle %n bewaarde scans worden verwijderd. Dit kan niet ongedaan worden gemaakt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Wis geschiedenis</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>De scangeschiedenis kon niet worden bewaard.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Een andere kopie van Quillmark gebruikt de geschiedenis. Scans die hier worden gemaakt, worden vastgehouden tot die kopie stopt.</translation>
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
        <translation>Taal van de interface:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Voorbeeld:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Taal van de interface</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>De nieuwe taal wordt meteen gebruikt. Scans die in een andere taal zijn bewaard, kunnen nog steeds worden vergeleken.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Metingen verzamelen…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Open Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Live monitor van Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Gebruikt geheugen: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Processorbelasting: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Live monitor van Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Elke seconde</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Metingen verzamelen…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Open Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Menubalk:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Toon naast het symbool:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Venster:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Toon de live monitor in de menubalk</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark blijft in de menubalk tot je het stopt</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Systeemvak:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Toon de live monitor in het systeemvak</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark blijft in het systeemvak tot je het stopt</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Deze desktopomgeving heeft geen systeemvak.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Processorbelasting</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Gebruikt geheugen</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Alleen het symbool</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Blijf actief wanneer het hoofdvenster is gesloten</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Live monitor</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Elke seconde bijgewerkt · laatste 2 minuten</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Metingen verzamelen…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>De eerste meting komt over ongeveer een seconde.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Per kern</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Thermische toestand</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap in gebruik</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Alle interfaces</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>Op het opstartvolume</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n kern</numerusform>
            <numerusform>%n kernen</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>van %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Gebruikt</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druk</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Lichtnetadapter aangesloten</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Laadt niet op</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Sluit</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Eerste scan bewaard</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Latere scans worden ermee vergeleken</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n gewijzigd</numerusform>
            <numerusform>%n gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n toegevoegd</numerusform>
            <numerusform>%n toegevoegd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n verwijderd</numerusform>
            <numerusform>%n verwijderd</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Sinds %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Geen verschillen</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Vergelijk scans</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Exporteer onderzoek</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Rapport bewaard.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Kies een andere plaats…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Resultaten voor ‘%1’</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n sectie</numerusform>
            <numerusform>%n secties</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n regel in %1</numerusform>
            <numerusform>%n regels in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Gefilterd op: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Geen regels gevonden</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Niets bevat ‘%1’. Controleer de spelling of probeer een korter woord.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Geen enkele regel met ‘%1’ heeft de status ‘%2’.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n regel met een andere status komt overeen.</numerusform>
            <numerusform>%n regels met een andere status komen overeen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Wis zoekopdracht</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Geen regels gevonden</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Geen enkele regel hier heeft de status ‘%1’.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Mogelijkheden</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Toon alle statussen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n ondersteund</numerusform>
            <numerusform>%n ondersteund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n niet ondersteund</numerusform>
            <numerusform>%n niet ondersteund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n waarschuwing</numerusform>
            <numerusform>%n waarschuwingen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n info</numerusform>
            <numerusform>%n info</numerusform>
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
        <translation>Deze Mac wordt onderzocht…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Deze computer wordt onderzocht…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>In deze sectie is niets beoordeeld</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 van %n beoordeelde mogelijkheid ondersteund</numerusform>
            <numerusform>%1 van %n beoordeelde mogelijkheden ondersteund</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menubalk</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Systeemvak</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Onderzoeken…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Navigatiekolom</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Grafieken in realtime: CPU, geheugen, temperatuur, batterij en netwerk</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n waarschuwing</numerusform>
            <numerusform>%1, %n waarschuwingen</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Mogelijkheden</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Hulpmiddelen</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Scangeschiedenis</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Batterijconditie</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Live monitor</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n regel</numerusform>
            <numerusform>%1, %n regels</numerusform>
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
        <translation>Licenties</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Wat is er nieuw</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Alles in het venster is met toetsen bereikbaar: Tab gaat van deel naar deel, de pijltoetsen bewegen binnen een deel, spatiebalk en Return kiezen en Esc gaat terug.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>Op de opdrachtregel</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Alles wat het venster toont, kan ook aan de opdracht quillmark worden gevraagd: zie quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark Help</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Mag Quillmark bij %1 vragen of er een nieuwere versie is?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Vraag één keer per dag</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Vraag alleen deze keer</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>Kon niet naar updates zoeken.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 is beschikbaar, een belangrijke update.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 is beschikbaar.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Je hebt versie %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Wat is er nieuw</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Sla deze versie over</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Download…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Wat is er nieuw in Quillmark %1</translation>
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
        <translation>Zoek automatisch naar updates</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Vraagt één keer per dag bij %1 na wanneer Quillmark start</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Zoeken…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Zoek nu</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Nog nooit gezocht</translation>
    </message>
</context>
</TS>
