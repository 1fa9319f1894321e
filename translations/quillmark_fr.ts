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
</TS>
