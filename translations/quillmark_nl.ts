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
        <translation>Beide scans tonen dezelfde mogelijkheden. Waarden die steeds veranderen, zoals de tijd ingeschakeld, worden niet vergeleken.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>De twee scans zijn in verschillende talen, dus alleen wijzigingen van de status worden getoond.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Nog geen bewaarde scans</translation>
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
        <translation>Tijd ingeschakeld</translation>
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
</TS>
