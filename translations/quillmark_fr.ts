<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Non communiqué</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Réduite</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Usée</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Froide</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Chaude</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Réparation recommandée</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Défaillance permanente</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Cette batterie demande votre attention.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Cette batterie n’indique pas ce qu’elle contient.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Cette batterie est en bon état.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Cette batterie contient moins de charge qu’auparavant.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Cette batterie est usée.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Elle contient presque autant de charge qu’à l’état neuf.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Elle fonctionne encore bien, mais dure nettement moins longtemps.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Pensez à la faire remplacer.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Elle a atteint le nombre de cycles prévu.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Elle est chaude.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 de la capacité d’origine</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS indique %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS lisse son chiffre et garde une réserve&#xa0;: les deux peuvent différer de quelques points.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Ce Mac n’a pas de batterie</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Cet ordinateur n’a pas de batterie</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>L’état de la batterie est affiché sur les Mac portables. Tout le reste de Quillmark fonctionne normalement.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>L’état de la batterie est affiché sur les ordinateurs portables. Tout le reste de Quillmark fonctionne normalement.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>En charge, pleine dans %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Sur batterie, %1 restantes</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Branchée, ne se charge pas</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Prévue pour %1 cycles</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normal&#xa0;: 10 à 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Indiqué par le système</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>État de la batterie non communiqué</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>État de la batterie %1 pour cent, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>Rapport PDF</translation>
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
        <translation>Texte brut</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Pages mises en forme, prêtes à imprimer ou à envoyer</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Toutes les valeurs, pour scripts et outils</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tableaux pour notes, wikis et tickets</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>Le même texte que Copier comme texte</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le Finder</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n ajouté</numerusform>
            <numerusform>%n ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n supprimé</numerusform>
            <numerusform>%n supprimés</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Ancienne</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Récente</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Première analyse</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Aucune différence</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Les deux analyses montrent les mêmes capacités. Les valeurs qui changent sans cesse, comme le temps de fonctionnement, ne sont pas comparées.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>Les deux analyses sont dans des langues différentes&#xa0;: seuls les changements d’état sont affichés.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Aucune analyse enregistrée pour l’instant</translation>
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
        <translation>Pris en charge</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Non pris en charge</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Pas encore demandé</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Restreint</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Interne</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Absent</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Aucune (ordinateur de bureau)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Appareil Bluetooth</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>Appareil AirPlay</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone ou iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n canal</numerusform>
            <numerusform>%1, %n canaux</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (qualité d’appel&#xa0;: un micro est utilisé)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Haut-parleurs intégrés</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Micro intégré</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Sortie audio</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Fréquence de sortie maximale</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Entrée audio</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1 sur %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1 sur %2&#xa0;mAh</translation>
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
        <translation>En charge</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Pleine</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Branchée, ne se charge pas</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>En cours d’estimation</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 avant la charge complète</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Condition de la batterie</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Nombre de cycles</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Capacité de la batterie</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Température de la batterie</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>intégré</translation>
    </message>
    <message>
        <source>external</source>
        <translation>externe</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Meilleure image</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Meilleure image (caméra %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, jusqu’à %2 images par seconde</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Cadre centré</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Cadre centré (caméra %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Carte son</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>sortie</translation>
    </message>
    <message>
        <source>input</source>
        <translation>entrée</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Carte son %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Accès à la caméra</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Accès au micro</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Caméra et audio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>principal</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>recopié</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, jusqu’à %2&#xa0;Hz</translation>
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
        <translation>%1 (équivaut à %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1 à %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1 à %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Jusqu’à %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;pouces, %2 pixels par pouce</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;pouces</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Fréquence variable</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Fréquence variable (écran %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Plage dynamique étendue</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Plage dynamique étendue (écran %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Large gamme de couleurs</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Large gamme de couleurs (écran %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Écran %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Résolution (écran %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Mise à l’échelle (écran %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Taille (écran %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Connexion (écran %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Écrans connectés</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Écrans</translation>
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
        <translation>Nécessite macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Mémoire GPU recommandée</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Famille de GPU Apple</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Ray tracing</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Ray tracing matériel</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Graphismes et Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Activé, chiffrement en cours</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Désactivation en cours</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Désactivé (le disque reste chiffré par le matériel)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Activé en partie</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Activé, bloque toutes les connexions entrantes</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Désactivé dans Réglages Système</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Pas prêt (téléchargement en cours, ou non proposé pour cette langue ou cette région)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>CPU seul</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Accélération Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Cœurs du Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>Cœurs du GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Instructions matricielles Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Trouvé, sans pilote</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Pas d’autorisation</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Processeur neuronal</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Calcul sur GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Intelligence artificielle</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Machine virtuelle</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, strict</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, permissif</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Toutes atténuées</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n non atténuée</numerusform>
            <numerusform>%n non atténuées</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Démarrage sécurisé</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Chiffrement du disque</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Contrôle d’accès</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Vulnérabilités du processeur</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Scellé</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Non scellé</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Rompu</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Volume système scellé</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Aucune sécurité</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Sécurité normale</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Sécurité maximale</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Disponible, non configuré</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Disponible, verrouillé</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Protection de l’intégrité du système</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>Coupe-feu</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>Mode Isolement</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Pas de prise en charge matérielle</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Logiciel uniquement</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lecture et écriture</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>Décodage H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>Décodage HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>Décodage VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>Décodage AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>Décodage ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>Encodage H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>Encodage HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>Encodage ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>Encodage AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>Images HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>Images AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Illisible (vainfo n’est pas installé)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Illisible (le GPU est en veille)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Pilote vidéo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Réseau cellulaire</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Non proposé par ce réseau</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Connexion limitée</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Mode données réduites</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (auto-attribuée)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Adresse (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Aucun détecté</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, duplex intégral</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, semi-duplex</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Débit Ethernet</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Débit Ethernet %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Adaptateur secteur</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>Onduleur</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Intégrée</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Équilibré</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Silencieux</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Refroidissement</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Mode économie d’énergie</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite de charge</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Profil d’énergie</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Source d’alimentation</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>Instructions SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>Instructions BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>Instructions AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>Instructions AVX-512</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Cœurs physiques</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Cœurs logiques</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Cœurs de performance</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Cœurs à haute efficacité</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Fréquence maximale</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Mémoire (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Processeur et mémoire</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (faible)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Clonage de fichiers</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Noms sensibles à la casse</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Volume de démarrage</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espace disponible</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>disque dur</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>interne</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>amovible</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disque %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>Connexion (disque %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (disque %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>lecture seule</translation>
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
        <translation>Espace du volume</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Espace du volume (volume %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>via Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Tiède</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Nom de l’appareil</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Identifiant du modèle</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Système d’exploitation</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Temps de fonctionnement</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>État thermique</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Norme Wi-Fi utilisée</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Bande Wi-Fi</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Signal Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Débit Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>mémoire unifiée</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>basse consommation</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>eGPU externe</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (bon)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (moyen)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (faible)</translation>
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
        <translation>État de charge</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Comme le système (%1)</translation>
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
        <translation>Aujourd’hui, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Hier, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>aujourd’hui, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>hier, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Inspecté aujourd’hui à %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Inspecté hier à %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Inspecté le %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Dernière recherche aujourd’hui à %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Dernière recherche hier à %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Dernière recherche le %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n section, inspectée aujourd’hui à %1.</numerusform>
            <numerusform>Les %n sections, inspectées aujourd’hui à %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n section, inspectée hier à %1.</numerusform>
            <numerusform>Les %n sections, inspectées hier à %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n section, inspectée le %1.</numerusform>
            <numerusform>Les %n sections, inspectées le %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation>%1&#xa0;Ko/s</translation>
    </message>
    <message>
        <source>%1&#xa0;MB/s</source>
        <translation>%1&#xa0;Mo/s</translation>
    </message>
    <message>
        <source>%1&#xa0;GB/s</source>
        <translation>%1&#xa0;Go/s</translation>
    </message>
    <message>
        <source>%1&#xa0;TB/s</source>
        <translation>%1&#xa0;To/s</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Batterie · en charge</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Pression normale</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Pression élevée</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Pression critique</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Tiède</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
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
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Critique</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Aucune limite de performances</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Légèrement chaud, aucune limite</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Performances réduites</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Performances fortement réduites</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 pour cent, entre %2 et %3 pour cent ces 2 dernières minutes</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n cœur, à %1 pour cent</numerusform>
            <numerusform>%n cœurs, le plus sollicité à %1 pour cent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 sur %2 utilisés, %3 pour cent. Pression %4 pour cent, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Reçu %1, envoyé %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row of the menu: what it is, and its figure</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <extracomment>A row of the menu: what it is, its figure and a remark on it</extracomment>
        <translation>%1&#xa0;: %2 (%3)</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>État thermique</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>nom de l’ordinateur</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>adresses</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>noms des volumes</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Score de capacités&#xa0;: %1&#xa0;% (%2 capacités évaluées sur %3 prises en charge)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 de mémoire</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 de stockage</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Aucune ligne ne correspond.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Omis de ce rapport&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>À regarder de plus près</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (suite)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 sur %2 pris en charge</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Ce Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Ce que ce Mac sait vraiment faire</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Ce que cet ordinateur sait vraiment faire</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Créé avec %1 · Toutes les données ont été lues sur ce Mac</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Créé avec %1 · Toutes les données ont été lues sur cet ordinateur</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Part des capacités évaluées que ce Mac prend en charge</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Part des capacités évaluées que cet ordinateur prend en charge</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Score de capacités</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Rien n’est évalué</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Rapport Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>Dans ce rapport</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>p.&#xa0;%1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Inspecté le %1 à %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2 [%3]</source>
        <translation>%1&#xa0;: %2 [%3]</translation>
    </message>
    <message>
        <source>Left out</source>
        <extracomment>Stands for a name or an address.</extracomment>
        <translation>Omis</translation>
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
        <translation>Le rapport n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Un fichier de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>C’est un dossier.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Vous n’avez pas l’autorisation d’écrire à cet endroit.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Il n’y a pas assez d’espace libre sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Le disque n’est plus connecté.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Aucun fichier ne peut porter ce nom.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>Message du système&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, carte graphique, carte vidéo, 3d, jeux</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ia, ai, ml, apprentissage automatique, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>moniteur, affichage</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>vidéo, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>énergie, batterie</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, en ligne</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>sûreté, protection</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>nom de l’ordinateur, nom d’hôte, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modèle</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, version du système, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bits, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>allumé depuis, redémarrage, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>température, chaleur, bridage, ventilateur</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, hyperviseur</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, puce, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>cœurs cpu, coeurs</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cœurs cpu, coeurs, threads, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>cadence, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, mémoire vive</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, mémoire vidéo</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, outils d’écriture, modèle de langage</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ia, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, taux de rafraîchissement</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, luminosité</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>pixels, hertz, hz, 4k, 5k, taux de rafraîchissement</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, décodage vidéo, lecture</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, encodage vidéo</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, décodage vidéo, lecture</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, encodage vidéo</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, photos, images</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>enceintes, son, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>microphone, son, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>microphone, autorisation, confidentialité</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, autorisation, confidentialité</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, enceintes, casque</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, microphone</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, son</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>fréquence d’échantillonnage, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>espace disque, taille du disque</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>espace libre, espace disque, plein</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, lecteur, disque dur, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partition, lecteur</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>branché, secteur</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>chargeur, alimentation, watt</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>capacité maximale, usure, vieillissement</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>autonomie</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>économiseur d’énergie</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, sans fil, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, sans fil, wifi, réception</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, sans fil, wifi, vitesse</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>adresse ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, chiffré</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>chiffrement, chiffré, chiffrement du disque</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>empreinte digitale, biométrie</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, puce de sécurité</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, sécurité au démarrage, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>virus, logiciel malveillant, antivirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>logiciel malveillant, notarisation, signature des apps</translation>
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
        <translation>Autre ordinateur</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>«&#xa0;quillmark history record&#xa0;» inspecte cet ordinateur et enregistre la première.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Par rapport à la précédente</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Analyse du %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Score de capacités</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 capacités évaluées sur %2 prises en charge</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Aucune ligne ne correspond.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>L’analyse du %1 a été supprimée.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Toutes les analyses enregistrées ont été supprimées.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>L’analyse %1 a été enregistrée.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Rien n’a changé depuis l’analyse du %1&#xa0;: aucune n’a été enregistrée.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n analyse enregistrée</numerusform>
            <numerusform>%n analyses enregistrées</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>o, oui</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n analyse enregistrée sera supprimée. Cette action est irréversible. La supprimer&#xa0;? [o/N]</numerusform>
            <numerusform>%n analyses enregistrées seront supprimées. Cette action est irréversible. Les supprimer&#xa0;? [o/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>Téléchargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>Notes de version&#xa0;: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark n’a envoyé aucune requête.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [o/N]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Collecte des mesures…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q pour quitter</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Actualisé chaque seconde · 2 dernières minutes</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Moniteur en direct</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n cœur</numerusform>
            <numerusform>%n cœurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Par cœur</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>Utilisée</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1&#xa0;min</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2&#xa0;min</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>État thermique</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap utilisé</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Processeur %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Mémoire %1 sur %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap utilisé %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Reçu %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Envoyé %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>État thermique %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>%1 n’a pas pu être joint&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 n’a pas pu prouver qu’il est %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>La réponse de %1 est plus longue qu’un flux ne peut l’être.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 renvoie à une autre adresse, qui n’a pas été suivie&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 a répondu par l’état %2 au lieu d’un flux.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>La réponse de %1 n’est pas un flux&#xa0;: elle déclare un type de document.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>La réponse de %1 n’est pas un flux&#xa0;: c’est un autre type de XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>La réponse de %1 n’est pas un flux&#xa0;: elle contient plus qu’aucun flux.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Quillmark peut-il demander à %1 s’il existe des versions plus récentes&#xa0;: maintenant, puis une fois par jour au plus à l’ouverture de sa fenêtre&#xa0;?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>La requête contient la version de Quillmark et rien sur vous ni sur cet ordinateur. Rien n’est installé.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 est disponible&#xa0;; vous avez choisi d’ignorer cette version. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 est disponible, une mise à jour importante. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 est disponible. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 est à jour.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark n’a pas pu déterminer s’il existe une version plus récente.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>%1 n’a pas été interrogé, car vous ne l’avez pas accepté.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>L’adresse du flux de mises à jour n’est pas en https&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>%1 n’a pas été interrogé, car le registre des requêtes ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>La réponse de %1 n’est pas un flux&#xa0;: ce n’est pas du XML, ou seulement une partie.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>À propos de Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Vous dit ce que votre Mac sait vraiment faire.
Tout ce qui est lu reste sur ce Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Vous dit ce que votre ordinateur sait vraiment faire.
Tout ce qui est lu reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Présentation</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>À propos de Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Inspecter à nouveau</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Rechercher…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Moniteur en direct</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Section précédente</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Section suivante</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Masquer la barre latérale</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Placer dans le Dock</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Réduire/agrandir</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Tout ramener au premier plan</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Aide Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Nouveautés</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>de la capacité d’origine</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Capacité actuelle</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacité d’origine</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Nombre de cycles</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Capacité actuelle par rapport à la capacité d’origine. 80&#xa0;% ou plus est une bonne valeur.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Nombre de cycles</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Un cycle est une décharge complète, même répartie sur plusieurs jours.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>La chaleur vieillit une batterie plus vite que l’usage. Gardez-la à l’abri du soleil.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Lu aujourd’hui à %1. Les chiffres viennent du contrôleur de la batterie et peuvent varier légèrement d’une lecture à l’autre.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copier la valeur</translation>
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
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ChartView</name>
    <message>
        <source>2 min</source>
        <translation>2&#xa0;min</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1&#xa0;min</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
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
        <translation>Modifié&#xa0;: %1, de %2 à %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Ajouté&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Supprimé&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1&#xa0;: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1&#xa0;: ajouté, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1&#xa0;: supprimé, %2</translation>
    </message>
    <message>
        <source>%1: %2 · %3 · %4 · %5</source>
        <extracomment>The head of a comparison: &quot;Older: 12 November 2025, 19:20 · Nora’s Mac · macOS 26.1 · 82%&quot;</extracomment>
        <translation>%1&#xa0;: %2 · %3 · %4 · %5</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonView</name>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
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
            <numerusform>%1, %n ligne</numerusform>
            <numerusform>%1, %n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Tous les changements</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n page, US Letter</numerusform>
            <numerusform>%n pages, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n page, A4</numerusform>
            <numerusform>%n pages, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Exporter l’inspection</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Omettre les noms et les adresses</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspection de ce Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspection de cet ordinateur…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Voyez ce que ce Mac sait vraiment faire</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Voyez ce que cet ordinateur sait vraiment faire</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Chaque capacité de votre matériel et de votre système, avec un état clair.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Onze sections, un score</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Du processeur et du graphisme aux codecs, écrans et à la sécurité.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Chaque changement est enregistré</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Comparez deux analyses et voyez ce qu’une mise à jour a changé.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Vos données restent ici</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Rien sur ce Mac n’est envoyé où que ce soit. Quillmark ne se connecte que pour rechercher ses propres mises à jour.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Rien sur cet ordinateur n’est envoyé où que ce soit. Quillmark ne se connecte que pour rechercher ses propres mises à jour.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Interroge %1 une fois par jour au plus, et ne lui indique que la version de Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Afficher le moniteur en direct dans la barre des menus</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Afficher le moniteur en direct dans la zone de notification</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>À l’ouverture de Quillmark&#xa0;:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Historique&#xa0;:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Confidentialité&#xa0;:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Afficher la vue d’ensemble</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Afficher le dernier écran utilisé</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Effacer l’historique…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Tout ce que Quillmark lit reste sur ce Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Tout ce que Quillmark lit reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>La seule connexion établie est la recherche de mises à jour.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n analyse enregistrée, %1 au plus</numerusform>
            <numerusform>%n analyses enregistrées, %1 au plus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Rechercher des capacités</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Inspecter à nouveau</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
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
        <translation>Score de capacités</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Score de capacités %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Part des capacités évaluées que ce Mac prend en charge</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Part des capacités évaluées que cet ordinateur prend en charge</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Rien n’est évalué</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 capacité sur %n</numerusform>
            <numerusform>%1 capacités sur %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 pour cent, %2 capacité sur %n prise en charge</numerusform>
            <numerusform>%1 pour cent, %2 capacités sur %n prises en charge</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspection de ce Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspection de cet ordinateur…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Cela prend plus de temps que d’habitude</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Lecture du matériel et des réglages système</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Autre Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Autre ordinateur</translation>
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
            <numerusform>%n prise en charge</numerusform>
            <numerusform>%n prises en charge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n non prise en charge</numerusform>
            <numerusform>%n non prises en charge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n avertissement</numerusform>
            <numerusform>%n avertissements</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Comparer les analyses</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Une analyse est enregistrée dès que quelque chose a changé. Les 200 plus récentes sont conservées sur ce Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Une analyse est enregistrée dès que quelque chose a changé. Les 200 plus récentes sont conservées sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark enregistre une analyse chaque fois qu’une inspection trouve du nouveau. Inspectez ce Mac pour enregistrer la première.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark enregistre une analyse chaque fois qu’une inspection trouve du nouveau. Inspectez cet ordinateur pour enregistrer la première.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Inspecter maintenant</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Analyses enregistrées</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Effacer la sélection</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Effacer l’historique…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n analyse enregistrée</numerusform>
            <numerusform>%n analyses enregistrées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 analyse sélectionnée · choisissez-en une autre</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 analyses sélectionnées</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Supprimer cette analyse&#xa0;?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>L’analyse du %1 sera supprimée de l’historique.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Effacer l’historique&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n analyse enregistrée sera supprimée. Cette action est irréversible.</numerusform>
            <numerusform>Les %n analyses enregistrées seront supprimées. Cette action est irréversible.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>L’historique n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Une autre copie de Quillmark l’utilise. Les analyses faites ici sont conservées jusqu’à sa fermeture.</translation>
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
        <translation>Langue de l’interface&#xa0;:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Langue de l’interface</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>La nouvelle langue est utilisée immédiatement. Les analyses enregistrées dans une autre langue restent comparables.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Collecte des mesures…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Ouvrir Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Moniteur en direct de Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Mémoire utilisée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Charge du processeur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Moniteur en direct de Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Chaque seconde</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Collecte des mesures…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Ouvrir Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Barre des menus&#xa0;:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Afficher à côté de l’icône&#xa0;:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Fenêtre&#xa0;:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Afficher le moniteur en direct dans la barre des menus</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark reste dans la barre des menus jusqu’à ce que vous le quittiez</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Zone de notification&#xa0;:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Afficher le moniteur en direct dans la zone de notification</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark reste dans la zone de notification jusqu’à ce que vous le quittiez</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Cet environnement de bureau n’a pas de zone de notification.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Charge du processeur</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Mémoire utilisée</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Icône seule</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Continuer lorsque la fenêtre principale est fermée</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Moniteur en direct</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Actualisé chaque seconde · 2 dernières minutes</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Collecte des mesures…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>La première mesure arrive dans une seconde environ.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Par cœur</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>État thermique</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap utilisé</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Toutes les interfaces</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>Sur le volume de démarrage</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n cœur</numerusform>
            <numerusform>%n cœurs</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisée</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Adaptateur secteur connecté</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Ne se charge pas</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Première analyse enregistrée</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Les analyses suivantes lui sont comparées</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n ajouté</numerusform>
            <numerusform>%n ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n supprimé</numerusform>
            <numerusform>%n supprimés</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Depuis %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Aucune différence</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Comparer les analyses</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Exporter l’inspection</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Rapport enregistré.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Choisir un autre emplacement…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Résultats pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n section</numerusform>
            <numerusform>%n sections</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n ligne dans %1</numerusform>
            <numerusform>%n lignes dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Filtre&#xa0;: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Aucune ligne ne correspond</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Rien ne contient «&#xa0;%1&#xa0;». Vérifiez l’orthographe ou essayez un mot plus court.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Aucune ligne contenant «&#xa0;%1&#xa0;» n’a l’état «&#xa0;%2&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n ligne correspond avec un autre état.</numerusform>
            <numerusform>%n lignes correspondent avec d’autres états.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Aucune ligne ne correspond</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Aucune ligne n’a ici l’état «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacités</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Afficher tous les états</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n prise en charge</numerusform>
            <numerusform>%n prises en charge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n non prise en charge</numerusform>
            <numerusform>%n non prises en charge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n avertissement</numerusform>
            <numerusform>%n avertissements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n info</numerusform>
            <numerusform>%n infos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>The label before its value</extracomment>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionPage</name>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspection de ce Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspection de cet ordinateur…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>Rien n’est évalué dans cette section</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 capacité évaluée sur %n prise en charge</numerusform>
            <numerusform>%1 capacités évaluées sur %n prises en charge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre des menus</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Inspection…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barre latérale</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Graphiques en temps réel&#xa0;: CPU, mémoire, température, batterie et réseau</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n avertissement</numerusform>
            <numerusform>%1, %n avertissements</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacités</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>État de la batterie</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Moniteur en direct</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n ligne</numerusform>
            <numerusform>%1, %n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Tout dans la fenêtre est accessible au clavier&#xa0;: Tab passe d’une partie à l’autre, les flèches se déplacent à l’intérieur, Espace et Retour choisissent, Échap revient en arrière.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>En ligne de commande</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Tout ce que montre la fenêtre peut aussi être demandé à la commande quillmark&#xa0;: voir quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Aide Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Quillmark peut-il demander à %1 s’il existe une version plus récente&#xa0;?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Demander une fois par jour</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Demander cette fois seulement</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>La recherche de mises à jour a échoué.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 est disponible, une mise à jour importante.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 est disponible.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Vous avez la version %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Télécharger…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Nouveautés de Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Mises à jour&#xa0;:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Interroge %1 une fois par jour, au démarrage de Quillmark</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Rechercher maintenant</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Jamais recherché</translation>
    </message>
</context>
</TS>
