<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>No indicado</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Reducida</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Desgastada</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Fría</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caliente</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Se recomienda revisión</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Fallo permanente</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Esta batería necesita atención.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Esta batería no indica cuánta carga admite.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Esta batería está en buen estado.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Esta batería admite menos carga que antes.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Esta batería está desgastada.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Admite casi tanta carga como cuando era nueva.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Sigue funcionando bien, pero dura bastante menos.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Plantéate cambiarla.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Ha alcanzado los ciclos para los que fue diseñada.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Está caliente.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 de la capacidad de diseño</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS indica %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS suaviza su cifra y guarda una reserva, así que ambas pueden diferir en unos puntos.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Este Mac no tiene batería</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Este ordenador no tiene batería</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>El estado de la batería se muestra en los Mac portátiles. Todo lo demás en Quillmark funciona como siempre.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>El estado de la batería se muestra en los ordenadores portátiles. Todo lo demás en Quillmark funciona como siempre.</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n cambiada</numerusform>
            <numerusform>%n cambiadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n añadida</numerusform>
            <numerusform>%n añadidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n eliminada</numerusform>
            <numerusform>%n eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiada</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadida</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminada</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Posterior</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Primer análisis</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Sin diferencias</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Ambos análisis muestran las mismas capacidades. Los valores que cambian todo el tiempo, como el tiempo encendido, no se comparan.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>Los dos análisis están en idiomas distintos, así que solo se muestran los cambios de estado.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Aún no hay análisis guardados</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Supported</source>
        <translation>Compatible</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>No compatible</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Sin solicitar</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Restringido</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Denegado</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Interna</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Ninguna (sobremesa)</translation>
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
            <numerusform>%1, %n canal</numerusform>
            <numerusform>%1, %n canales</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (calidad de llamada: hay un micrófono en uso)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Altavoces integrados</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Micrófono integrado</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Salida de sonido</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Frecuencia máx. de salida</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Entrada de sonido</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1&#xa0;de %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1&#xa0;de %2&#xa0;mAh</translation>
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
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Completa</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Conectada, sin cargar</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Calculando</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 hasta la carga completa</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salud de la batería</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Estado de la batería</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Número de ciclos</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Capacidad de la batería</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Temperatura de la batería</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Tiempo restante</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>integrada</translation>
    </message>
    <message>
        <source>external</source>
        <translation>externa</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Cámara %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Mejor imagen</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Mejor imagen (cámara %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, hasta %2 fotogramas por segundo</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Encuadre centrado</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Encuadre centrado (cámara %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Tarjeta de sonido</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>salida</translation>
    </message>
    <message>
        <source>input</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Tarjeta de sonido %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Acceso a la cámara</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Acceso al micrófono</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Cámara y audio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>principal</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>duplicada</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, hasta %2&#xa0;Hz</translation>
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
        <translation>%1 (se ve como %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Fija</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>De %1&#xa0;a %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>De %1&#xa0;a %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Hasta %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1 pulgadas, %2 píxeles por pulgada</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1 pulgadas</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Frecuencia de actualización variable</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Frecuencia de actualización variable (pantalla %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Rango dinámico extendido</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Rango dinámico extendido (pantalla %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Gama amplia de colores</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Gama amplia de colores (pantalla %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Pantalla %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Resolución (pantalla %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Escala (pantalla %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Tamaño (pantalla %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Conexión (pantalla %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Pantallas conectadas</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Pantallas</translation>
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
        <translation>Requiere macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Memoria recomendada de la GPU</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Familia de GPU de Apple</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Trazado de rayos</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Trazado de rayos por hardware</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Gráficos y Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Activado, cifrando</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Desactivándose</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Desactivado (el disco sigue cifrado por hardware)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Activado en parte</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Activado, bloquea todas las conexiones entrantes</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Desactivado en Ajustes del Sistema</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>No está listo (descargándose, o no se ofrece para este idioma o región)</translation>
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
        <translation>Aceleración de Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Núcleos de Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>Núcleos de GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Instrucciones de matrices Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Encontrado, sin controlador</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Procesador neuronal</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Cálculo en la GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Inteligencia artificial</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Máquina virtual</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, obligatorio</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, permisivo</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Todas mitigadas</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n sin mitigar</numerusform>
            <numerusform>%n sin mitigar</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Arranque seguro</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Cifrado del disco</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Control de acceso</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Vulnerabilidades del procesador</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Sellado</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Sin sellar</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Roto</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Volumen de sistema sellado</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Sin seguridad</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Seguridad media</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Seguridad total</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Disponible, sin configurar</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Disponible, bloqueado</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Protección de la integridad del sistema</translation>
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
        <translation>Modo de aislamiento</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>No por hardware</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Solo por software</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Lectura y escritura</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>Descodificación H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>Descodificación HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>Descodificación VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>Descodificación AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>Descodificación ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>Codificación H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>Codificación HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>Codificación ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>Codificación AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>Imágenes HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>Imágenes AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>No se puede leer (vainfo no está instalado)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>No se puede leer (la GPU está en reposo)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Controlador de vídeo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Red móvil</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otra</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>No la ofrece esta red</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Conexión de uso medido</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Modo de datos reducidos</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (autoasignada)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Dirección (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>No se detecta ninguna</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, dúplex completo</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, semidúplex</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Velocidad de Ethernet</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Velocidad de Ethernet %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Adaptador de corriente</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Red eléctrica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>SAI</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Integrada</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Equilibrado</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Bajo consumo</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Silencioso</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Refrigeración</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Modo de bajo consumo</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Límite de carga</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Perfil de energía</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Fuente de alimentación</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energía</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>Instrucciones SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>Instrucciones BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>Instrucciones AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>Instrucciones AVX-512</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Núcleos físicos</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Núcleos lógicos</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Núcleos de rendimiento</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Núcleos de eficiencia</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesador</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Frecuencia máxima</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Memoria (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Procesador y memoria</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (poco)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Clonación de archivos</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Distingue mayúsculas</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Volumen de arranque</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espacio disponible</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>disco duro</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>interno</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>extraíble</translation>
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
        <translation>Conexión (disco %1)</translation>
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
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volumen %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>Espacio del volumen</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Espacio del volumen (volumen %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>mediante Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Templado</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caliente</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Identificador del modelo</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Sistema operativo</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tiempo encendido</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Estado térmico</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Estándar Wi-Fi en uso</translation>
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
        <translation>Señal Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Velocidad Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>memoria unificada</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>bajo consumo</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>eGPU externa</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (buena)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (aceptable)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (débil)</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Igual que el sistema (%1)</translation>
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
        <translation>%1 %</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Batería · cargando</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Presión normal</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Presión elevada</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Presión crítica</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Templado</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caliente</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>el nombre del ordenador</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>las direcciones</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>los nombres de los volúmenes</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Puntuación de capacidades: %1 % (%2 de %3 capacidades valoradas, compatibles)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 de memoria</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 de almacenamiento</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Ninguna fila coincide.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Se ha omitido en este informe: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Merece un vistazo</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuación)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 de %2 compatibles</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Este Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este ordenador</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Lo que este Mac puede hacer de verdad</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Lo que este ordenador puede hacer de verdad</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Hecho con %1 · Todos los datos se han leído en este Mac</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Hecho con %1 · Todos los datos se han leído en este ordenador</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Parte de las capacidades valoradas que este Mac admite</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Parte de las capacidades valoradas que este ordenador admite</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Puntuación de capacidades</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nada valorado</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Informe de Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>En este informe</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>pág. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Inspeccionado el %1 a las %2</translation>
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
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>Dirección %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>No se ha podido guardar el informe.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Ya hay un archivo con este nombre.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>No tienes permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>No hay suficiente espacio libre en “%1”.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>El disco ya no está conectado.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Ningún archivo puede llamarse así.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>El sistema indica: %1</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Another computer</source>
        <translation>Otro ordenador</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>“quillmark history record” inspecciona este ordenador y guarda el primero.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordenador</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Frente al anterior</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Análisis del %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Puntuación de capacidades</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 de %2 capacidades valoradas, compatibles</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Ninguna fila coincide.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salud de la batería</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>Se ha eliminado el análisis del %1.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Se han eliminado todos los análisis guardados.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>Se ha guardado el análisis %1.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Nada ha cambiado desde el análisis del %1, así que no se ha guardado ninguno.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n análisis guardado</numerusform>
            <numerusform>%n análisis guardados</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>s, sí, si</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>Se eliminará %n análisis guardado. No se puede deshacer. ¿Eliminarlo? [s/N]</numerusform>
            <numerusform>Se eliminarán %n análisis guardados. No se puede deshacer. ¿Eliminarlos? [s/N]</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Recopilando muestras…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q para salir</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Actualizado cada segundo · últimos 2 minutos</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor en directo</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesador</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n núcleo</numerusform>
            <numerusform>%n núcleos</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Por núcleo</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>En uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
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
        <translation>Estado térmico</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap en uso</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Procesador %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Memoria %1 de %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap en uso %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Entrada %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Salida %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>Estado térmico %1</translation>
    </message>
</context>
</TS>
