<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Non indicato</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Ridotta</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Usurata</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Fredda</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Calda</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Assistenza consigliata</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Guasto permanente</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Questa batteria richiede attenzione.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Questa batteria non indica quanta carica contiene.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Questa batteria è in buone condizioni.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Questa batteria mantiene meno carica di prima.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Questa batteria è usurata.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Mantiene quasi la stessa carica di quando era nuova.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Funziona ancora bene, ma dura sensibilmente meno.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Valuta di farla sostituire.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Ha raggiunto i cicli per cui è stata progettata.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>È calda.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 della capacità di progetto</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS indica %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS attenua il suo valore e tiene una riserva, perciò i due possono differire di qualche punto.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Questo Mac non ha una batteria</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Questo computer non ha una batteria</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>La salute della batteria è mostrata sui Mac portatili. Tutto il resto in Quillmark funziona come sempre.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>La salute della batteria è mostrata sui computer portatili. Tutto il resto in Quillmark funziona come sempre.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>In carica, piena tra %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>In carica</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>A batteria, restano %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>A batteria</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Collegata, non in carica</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Prevista per %1 cicli</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normale: da 10 a 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Indicato dal sistema</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Salute della batteria non indicato</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Salute della batteria %1 per cento, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>Report PDF</translation>
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
        <translation>Testo semplice</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Pagine impaginate, pronte da stampare o inviare</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Tutti i valori, per script e strumenti</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tabelle per note, wiki e segnalazioni</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>Lo stesso testo di Copia come testo</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostra nel Finder</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Mostra nel gestore di file</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modificata</numerusform>
            <numerusform>%n modificate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n aggiunta</numerusform>
            <numerusform>%n aggiunte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n rimossa</numerusform>
            <numerusform>%n rimosse</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificata</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Aggiunta</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimossa</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Successiva</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Prima scansione</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Nessuna differenza</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Entrambe le scansioni mostrano le stesse capacità. I valori che cambiano di continuo, come il tempo di attività, non sono confrontati.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>Le due scansioni sono in lingue diverse, perciò sono mostrati solo i cambiamenti di stato.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Ancora nessuna scansione salvata</translation>
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
        <translation>Supportato</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Non supportato</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Non ancora richiesto</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Limitato</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Negato</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Consentito</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Interno</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Nessuna (fisso)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Dispositivo Bluetooth</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>Dispositivo AirPlay</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone o iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n canale</numerusform>
            <numerusform>%1, %n canali</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (qualità di chiamata: un microfono è in uso)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Altoparlanti integrati</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Microfono integrato</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Uscita audio</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato di uscita</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Frequenza max. di uscita</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Ingresso audio</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1&#xa0;di %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1&#xa0;di %2&#xa0;mAh</translation>
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
        <translation>In carica</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Collegata, non in carica</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>A batteria</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Stima in corso</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 alla carica completa</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salute della batteria</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Condizione della batteria</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Numero di cicli</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Capacità della batteria</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Temperatura della batteria</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>integrata</translation>
    </message>
    <message>
        <source>external</source>
        <translation>esterna</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Fotocamera</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Fotocamera %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Immagine migliore</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Immagine migliore (fotocamera %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, fino a %2 fotogrammi al secondo</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Inquadratura automatica</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Inquadratura automatica (fotocamera %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Scheda audio</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>uscita</translation>
    </message>
    <message>
        <source>input</source>
        <translation>ingresso</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Scheda audio %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Accesso alla fotocamera</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Accesso al microfono</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Fotocamera e audio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>principale</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>duplicato</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, fino a %2&#xa0;Hz</translation>
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
        <translation>%1 (appare come %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Fissa</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>Da %1&#xa0;a %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>Da %1&#xa0;a %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Fino a %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1 pollici, %2&#xa0;pixel per pollice</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1 pollici</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Frequenza di aggiornamento variabile</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Frequenza di aggiornamento variabile (monitor %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Gamma dinamica estesa</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Gamma dinamica estesa (monitor %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Ampia gamma cromatica</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Ampia gamma cromatica (monitor %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Monitor %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Risoluzione (monitor %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Scala (monitor %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Dimensioni (monitor %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Collegamento (monitor %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Monitor collegati</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Monitor</translation>
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
        <translation>Richiede macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Memoria GPU consigliata</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Famiglia di GPU Apple</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Ray tracing</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Ray tracing hardware</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Grafica e Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Attivo, codifica in corso</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Disattivazione in corso</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Disattivo (il disco resta codificato via hardware)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivo</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Attivo in parte</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Attivo, blocca tutte le connessioni in entrata</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponibile</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Disattivato in Impostazioni di Sistema</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Non pronto (in download, o non offerto per questa lingua o area geografica)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>Solo CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Accelerazione Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Core del Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>Core della GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Istruzioni per matrici Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Trovato, nessun driver</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nessun permesso</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Processore neurale</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Calcolo sulla GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Intelligenza artificiale</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Macchina virtuale</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, vincolante</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, permissivo</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Tutte mitigate</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n non mitigata</numerusform>
            <numerusform>%n non mitigate</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Avvio protetto</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Codifica del disco</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Controllo degli accessi</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Vulnerabilità del processore</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Sigillato</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Non sigillato</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Danneggiato</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Volume di sistema sigillato</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Nessuna sicurezza</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Sicurezza media</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Sicurezza completa</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non collegato</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Disponibile, non configurato</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Disponibile, bloccato</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Protezione dell’integrità del sistema</translation>
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
        <translation>Modalità di isolamento</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Non in hardware</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Solo software</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lettura e scrittura</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>Decodifica H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>Decodifica HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>Decodifica VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>Decodifica AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>Decodifica ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>Codifica H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>Codifica HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>Codifica ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>Codifica AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>Immagini HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>Immagini AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Non leggibile (vainfo non è installato)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Non leggibile (la GPU è a riposo)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Driver video</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Rete cellulare</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Non offerto da questa rete</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Connessione a consumo</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Modalità dati ridotti</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (autoassegnato)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Indirizzo (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Nessuna rilevata</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, full duplex</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, half duplex</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Velocità Ethernet</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Velocità Ethernet %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Alimentatore</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Rete elettrica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>Gruppo di continuità</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Integrata</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Bilanciato</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Prestazioni</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Risparmio energetico</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Silenzioso</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Raffreddamento</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Risparmio energetico</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite di carica</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Profilo energetico</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Fonte di alimentazione</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>Istruzioni SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>Istruzioni BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>Istruzioni AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>Istruzioni AVX-512</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Core fisici</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Core logici</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Core a prestazioni elevate</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Core ad alta efficienza</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Frequenza massima</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Memoria (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Processore e memoria</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Non leggibile</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicurezza</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (poco)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Clonazione dei file</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Maiuscole/minuscole distinte</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Volume di avvio</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Spazio disponibile</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>disco rigido</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>interno</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>rimovibile</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disco %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>Collegamento (disco %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (disco %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>sola lettura</translation>
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
        <translation>Spazio del volume</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Spazio del volume (volume %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>tramite Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architettura</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Tiepido</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caldo</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critico</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Nome del dispositivo</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Identificativo del modello</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Sistema operativo</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tempo di attività</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stato termico</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Standard Wi-Fi in uso</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Banda Wi-Fi</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Segnale Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Velocità Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>memoria unificata</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>basso consumo</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>eGPU esterna</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (buono)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (discreto)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (debole)</translation>
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
        <translation>Stato di carica</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Come il sistema (%1)</translation>
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
        <translation>Oggi, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Ieri, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>oggi, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>ieri, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Analizzato oggi alle %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Analizzato ieri alle %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Analizzato il %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Ultima ricerca oggi alle %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Ultima ricerca ieri alle %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Ultima ricerca il %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n sezione, analizzata oggi alle %1.</numerusform>
            <numerusform>Tutte le %n sezioni, analizzate oggi alle %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n sezione, analizzata ieri alle %1.</numerusform>
            <numerusform>Tutte le %n sezioni, analizzate ieri alle %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n sezione, analizzata il %1.</numerusform>
            <numerusform>Tutte le %n sezioni, analizzate il %1.</numerusform>
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
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Batteria · in carica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Pressione normale</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Pressione elevata</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Pressione critica</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Tiepido</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caldo</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critico</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>Elevata</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Critica</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Nessun limite alle prestazioni</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Leggermente caldo, nessun limite</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Prestazioni ridotte</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Prestazioni fortemente ridotte</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 per cento, tra %2 e %3 per cento negli ultimi 2 minuti</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n core, al %1 per cento</numerusform>
            <numerusform>%n core, il più occupato al %1 per cento</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 di %2 in uso, %3 per cento. Pressione %4 per cento, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>In entrata %1, in uscita %2</translation>
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
        <translation>Processore</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stato termico</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>nome del computer</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>indirizzi</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>nomi dei volumi</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Punteggio delle capacità: %1% (%2 di %3 capacità valutate sono supportate)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 di memoria</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 di archiviazione</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Nessuna riga corrisponde.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Omessi da questo report: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Da guardare</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continua)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e %n altra</numerusform>
            <numerusform>e altre %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 di %2 supportate</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Questo Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Che cosa sa fare davvero questo Mac</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Che cosa sa fare davvero questo computer</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Creato con %1 · Tutti i dati sono stati letti su questo Mac</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Creato con %1 · Tutti i dati sono stati letti su questo computer</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Parte delle capacità valutate che questo Mac supporta</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Parte delle capacità valutate che questo computer supporta</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Punteggio delle capacità</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nulla di valutato</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Report di Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>In questo report</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>p. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Esaminato il %1 alle %2</translation>
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
        <translation>Omesso</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>Indirizzo %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>Impossibile salvare il report.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Esiste già un file con questo nome.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>È una cartella.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Non hai il permesso di scrivere qui.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Non c’è abbastanza spazio libero su “%1”.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Il disco non è più collegato.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Nessun file può avere questo nome.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>Il sistema riferisce: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, scheda grafica, scheda video, 3d, giochi</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ia, ai, ml, apprendimento automatico, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>schermo, monitor</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>video, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>energia, batteria</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, online</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>protezione</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>nome del computer, nome host, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modello</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, versione del sistema, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bit, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>acceso da, riavvio, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatura, calore, throttling, ventola</translation>
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
        <translation>core cpu</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>core cpu, thread, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>velocità di clock, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, memoria principale</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, memoria video</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, strumenti di scrittura, modello linguistico</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ia, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, frequenza di aggiornamento</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, luminosità</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>pixel, hertz, hz, 4k, 5k, frequenza di aggiornamento</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, decodifica video, riproduzione</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, codifica video</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, decodifica video, riproduzione</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, codifica video</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, foto, immagini</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>casse, suono, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>mic, suono, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>mic, autorizzazione, privacy</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, autorizzazione, privacy</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, altoparlanti, cuffie</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, microfono</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, suono</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>frequenza di campionamento, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>spazio su disco, dimensione del disco</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>spazio libero, spazio su disco, pieno</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, unità, disco rigido, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partizione, unità</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>collegato, corrente</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>caricabatterie, alimentatore, watt</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>capacità massima, usura, invecchiamento</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>autonomia, durata</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>risparmio energetico</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, wireless, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, wireless, wifi, ricezione</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, wireless, wifi, velocità</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>indirizzo ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, codificato, crittografato</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>crittografia, codificato, codifica del disco</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>impronta digitale, biometria</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, chip di sicurezza</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, sicurezza di avvio, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>virus, malware, antivirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>malware, autenticazione, firma delle app</translation>
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
        <translation>Altro computer</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>“quillmark history record” esamina questo computer e salva la prima.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punteggio</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Rispetto alla precedente</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Scansione del %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Punteggio delle capacità</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 di %2 capacità valutate supportate</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Nessuna riga corrisponde.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salute della batteria</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>La scansione del %1 è stata rimossa.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Tutte le scansioni salvate sono state rimosse.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>La scansione %1 è stata salvata.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Nulla è cambiato dalla scansione del %1, perciò non ne è stata salvata un’altra.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n scansione salvata</numerusform>
            <numerusform>%n scansioni salvate</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>s, sì, si</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n scansione salvata sarà rimossa. L’operazione non può essere annullata. Rimuoverla? [s/N]</numerusform>
            <numerusform>%n scansioni salvate saranno rimosse. L’operazione non può essere annullata. Rimuoverle? [s/N]</numerusform>
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
        <translation>Note di rilascio: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark non ha inviato alcuna richiesta.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [s/N]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Raccolta dei campioni…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q per uscire</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Aggiornato ogni secondo · ultimi 2 minuti</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor dal vivo</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n core</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Per core</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>di %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>In uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>In entrata</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>In uscita</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
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
        <translation>Stato termico</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap in uso</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Processore %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Memoria %1 di %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap in uso %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In entrata %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>In uscita %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>Stato termico %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>Impossibile raggiungere %1: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 non ha potuto dimostrare di essere %1: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>La risposta di %1 è più lunga di quanto possa essere un feed.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 rimanda a un altro indirizzo, che non è stato seguito: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 ha risposto con lo stato %2 invece che con un feed.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>La risposta di %1 non è un feed: dichiara un tipo di documento.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>La risposta di %1 non è un feed: è un altro tipo di XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>La risposta di %1 non è un feed: contiene più di qualsiasi feed.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Quillmark può chiedere a %1 se ci sono versioni più recenti, ora e al massimo una volta al giorno all’apertura della finestra?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>La richiesta contiene la versione di Quillmark e nulla su di te o su questo computer. Non viene installato nulla.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 è disponibile; hai scelto di saltare questa versione. Hai la versione %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 è disponibile, un aggiornamento importante. Hai la versione %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 è disponibile. Hai la versione %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 è aggiornato.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark non è riuscito a verificare se esiste una versione più recente.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>%1 non è stato interrogato perché non hai dato il consenso.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>L’indirizzo del feed degli aggiornamenti non è https: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>%1 non è stato interrogato perché il registro delle richieste non può essere scritto.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>La risposta di %1 non è un feed: non è XML o ne è solo una parte.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Informazioni su Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Ti dice cosa può fare davvero il tuo Mac.
Tutto ciò che legge resta su questo Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Ti dice cosa può fare davvero il tuo computer.
Tutto ciò che legge resta su questo computer.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Informazioni su Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verifica aggiornamenti…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Analizza di nuovo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Chiudi finestra</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Trova…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Salute della batteria</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Monitor dal vivo</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Sezione precedente</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Sezione successiva</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Nascondi barra laterale</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>A tutto schermo</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Contrai</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ridimensiona</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Porta tutto in primo piano</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Aiuto Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novità</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>della capacità di progetto</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Capacità attuale</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacità di progetto</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Numero di cicli</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condizione</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Salute della batteria</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Capacità attuale come quota di quella di progetto. 80% o più è un buon valore.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Numero di cicli</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Un ciclo è una scarica completa, anche se distribuita su più giorni.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>Il calore invecchia una batteria più in fretta dell’uso. Tienila lontana dal sole.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Letto oggi alle %1. I valori vengono dal controller della batteria e possono variare leggermente tra una lettura e l’altra.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copia valore</translation>
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
        <translation>Ora</translation>
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
        <translation>Modificato: %1, da %2 a %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Aggiunto: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Rimosso: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: aggiunto, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: rimosso, %2</translation>
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
        <translation>Differenze</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>punteggio</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n riga</numerusform>
            <numerusform>%1, %n righe</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Tutte le modifiche</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n pagina, US Letter</numerusform>
            <numerusform>%n pagine, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n pagina, A4</numerusform>
            <numerusform>%n pagine, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Esporta analisi</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Ometti nomi e indirizzi</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Analisi di questo Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Analisi di questo computer…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Scopri cosa può fare davvero questo Mac</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Scopri cosa può fare davvero questo computer</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Ogni capacità del tuo hardware e del tuo sistema, con uno stato chiaro.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Undici sezioni, un punteggio</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Dal processore e dalla grafica ai codec, ai monitor e alla sicurezza.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Ogni modifica viene salvata</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Confronta due scansioni qualsiasi e guarda cosa ha cambiato un aggiornamento.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>I tuoi dati restano qui</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nulla su questo Mac viene inviato altrove. Quillmark va online solo per cercare i propri aggiornamenti.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nulla su questo computer viene inviato altrove. Quillmark va online solo per cercare i propri aggiornamenti.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Verifica automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Interroga %1 al massimo una volta al giorno e comunica solo la versione di Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostra il monitor dal vivo nella barra dei menu</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostra il monitor dal vivo nell’area di stato</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Inizia</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>All’apertura di Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Cronologia:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Privacy:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Mostra la panoramica</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Mostra l’ultima schermata usata</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Cancella cronologia…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Tutto ciò che Quillmark legge resta su questo Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Tutto ciò che Quillmark legge resta su questo computer.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>L’unica connessione è la verifica degli aggiornamenti.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n scansione salvata, al massimo %1</numerusform>
            <numerusform>%n scansioni salvate, al massimo %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Cerca nelle capacità</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Cancella ricerca</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Analizza di nuovo</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
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
        <translation>Punteggio delle capacità</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Punteggio delle capacità %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Parte delle capacità valutate che questo Mac supporta</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Parte delle capacità valutate che questo computer supporta</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nulla di valutato</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 di %n capacità</numerusform>
            <numerusform>%1 di %n capacità</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 per cento, %2 di %n capacità supportata</numerusform>
            <numerusform>%1 per cento, %2 di %n capacità supportate</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Analisi di questo Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Analisi di questo computer…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Sta richiedendo più tempo del solito</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Lettura di hardware e impostazioni di sistema</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Questo mese</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Altro Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Altro computer</translation>
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
            <numerusform>%n supportata</numerusform>
            <numerusform>%n supportate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n non supportata</numerusform>
            <numerusform>%n non supportate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n avviso</numerusform>
            <numerusform>%n avvisi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Confronta scansioni</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Una scansione viene salvata ogni volta che qualcosa è cambiato. Le 200 più recenti restano su questo Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Una scansione viene salvata ogni volta che qualcosa è cambiato. Le 200 più recenti restano su questo computer.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark salva una scansione ogni volta che un’analisi trova qualcosa di nuovo. Analizza questo Mac per salvare la prima.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark salva una scansione ogni volta che un’analisi trova qualcosa di nuovo. Analizza questo computer per salvare la prima.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Analizza ora</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Scansioni salvate</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Annulla selezione</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Cancella cronologia…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n scansione salvata</numerusform>
            <numerusform>%n scansioni salvate</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 scansione selezionata · scegline un’altra</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 scansioni selezionate</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Eliminare questa scansione?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>La scansione del %1 sarà rimossa dalla cronologia.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Cancellare la cronologia?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n scansione salvata sarà rimossa. L’operazione non può essere annullata.</numerusform>
            <numerusform>Tutte le %n scansioni salvate saranno rimosse. L’operazione non può essere annullata.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Cancella cronologia</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>Impossibile salvare la cronologia.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Un’altra copia di Quillmark la sta usando. Le scansioni fatte qui vengono conservate finché non termina.</translation>
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
        <translation>Lingua dell’interfaccia:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Esempio:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Lingua dell’interfaccia</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>La nuova lingua viene usata subito. Le scansioni salvate in un’altra lingua si possono ancora confrontare.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Raccolta dei campioni…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Apri Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor dal vivo di Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Memoria in uso: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Carico del processore: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor dal vivo di Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Ogni secondo</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Raccolta dei campioni…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Apri Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Barra dei menu:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Mostra accanto all’icona:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Finestra:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostra il monitor dal vivo nella barra dei menu</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark resta nella barra dei menu finché non esci</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Area di stato:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostra il monitor dal vivo nell’area di stato</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark resta nell’area di stato finché non esci</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Questo desktop non ha un’area di stato.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Carico del processore</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Memoria in uso</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Solo l’icona</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Continua quando la finestra principale è chiusa</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Monitor dal vivo</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Aggiornato ogni secondo · ultimi 2 minuti</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Raccolta dei campioni…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>La prima lettura arriva tra circa un secondo.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Per core</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stato termico</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap in uso</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Tutte le interfacce</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>Sul volume di avvio</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n core</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>di %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>In uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In entrata</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>In uscita</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Alimentatore collegato</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Non in carica</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Prima scansione salvata</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Le scansioni successive si confrontano con questa</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modificata</numerusform>
            <numerusform>%n modificate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n aggiunta</numerusform>
            <numerusform>%n aggiunte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n rimossa</numerusform>
            <numerusform>%n rimosse</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Da %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Nessuna differenza</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Confronta scansioni</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Esporta analisi</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Report salvato.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Scegli un’altra posizione…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Risultati per “%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n sezione</numerusform>
            <numerusform>%n sezioni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n riga in %1</numerusform>
            <numerusform>%n righe in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Nessuna riga corrisponde</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Nulla contiene “%1”. Controlla l’ortografia o prova una parola più corta.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Nessuna riga che contiene “%1” ha lo stato “%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n riga corrisponde con un altro stato.</numerusform>
            <numerusform>%n righe corrispondono con altri stati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Cancella ricerca</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Nessuna riga corrisponde</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Nessuna riga qui ha lo stato “%1”.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Mostra tutti gli stati</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n supportata</numerusform>
            <numerusform>%n supportate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n non supportata</numerusform>
            <numerusform>%n non supportate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n avviso</numerusform>
            <numerusform>%n avvisi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n informazione</numerusform>
            <numerusform>%n informazioni</numerusform>
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
        <translation>Analisi di questo Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Analisi di questo computer…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>In questa sezione nulla è valutato</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 di %n capacità valutata supportata</numerusform>
            <numerusform>%1 di %n capacità valutate supportate</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra dei menu</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Area di stato</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Analisi…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Grafici in tempo reale di CPU, memoria, temperatura, batteria e rete</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n avviso</numerusform>
            <numerusform>%1, %n avvisi</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salute della batteria</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor dal vivo</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n riga</numerusform>
            <numerusform>%1, %n righe</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Tutto nella finestra si raggiunge da tastiera: Tab passa da una parte all’altra, le frecce si muovono al suo interno, Spazio e Invio scelgono, Esc torna indietro.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>Dalla riga di comando</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Tutto ciò che mostra la finestra si può chiedere anche al comando quillmark: vedi quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Aiuto Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Quillmark può chiedere a %1 se esiste una versione più recente?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Chiedi una volta al giorno</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Chiedi solo stavolta</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>Impossibile verificare gli aggiornamenti.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 è disponibile, un aggiornamento importante.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 è disponibile.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Hai la versione %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Scarica…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Novità di Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Aggiornamenti:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Verifica automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Interroga %1 una volta al giorno, all’avvio di Quillmark</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Verifica…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Verifica ora</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Mai verificato</translation>
    </message>
</context>
</TS>
