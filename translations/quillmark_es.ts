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
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>Cargando, completa en %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Con batería, quedan %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Conectada, sin cargar</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Prevista para %1 ciclos</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normal: de 10 a 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Indicado por el sistema</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Salud de la batería no indicada</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Salud de la batería %1 por ciento, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>Informe PDF</translation>
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
        <translation>Texto sin formato</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Páginas diseñadas, listas para imprimir o enviar</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Todos los valores, para scripts y herramientas</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tablas para notas, wikis e incidencias</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>El mismo texto que Copiar como texto</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el Finder</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Mostrar en el gestor de archivos</translation>
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
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
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
        <translation>Estado de carga</translation>
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
    <name>Moment</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1: a day, %2: a time: &quot;12 November, 19:20&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>Hoy, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Ayer, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>hoy, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>ayer, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Inspeccionado hoy a las %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Inspeccionado ayer a las %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Inspeccionado el %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Última búsqueda: hoy a las %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Última búsqueda: ayer a las %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Última búsqueda: %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n sección, inspeccionada hoy a las %1.</numerusform>
            <numerusform>Las %n secciones, inspeccionadas hoy a las %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n sección, inspeccionada ayer a las %1.</numerusform>
            <numerusform>Las %n secciones, inspeccionadas ayer a las %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n sección, inspeccionada el %1.</numerusform>
            <numerusform>Las %n secciones, inspeccionadas el %1.</numerusform>
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
        <translation>Elevada</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Crítica</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Sin límites de rendimiento</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Algo templado, sin límites</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Rendimiento reducido</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Rendimiento muy reducido</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 por ciento, entre %2 y %3 por ciento en los últimos 2 minutos</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n núcleo, al %1 por ciento</numerusform>
            <numerusform>%n núcleos, el más ocupado al %1 por ciento</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 de %2 en uso, %3 por ciento. Presión %4 por ciento, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Entrada %1, salida %2</translation>
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
        <translation>Procesador</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Estado térmico</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, tarjeta gráfica, tarjeta de vídeo, 3d, juegos</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ia, ai, ml, aprendizaje automático, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>monitor, visualización</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>vídeo, códec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>energía, batería</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, en línea</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>protección</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>nombre del ordenador, nombre de host, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modelo</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, versión del sistema, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bits, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>encendido desde, reinicio, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatura, calor, limitación, ventilador</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, hipervisor</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, chip, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>núcleos de cpu</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>núcleos de cpu, hilos, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>velocidad de reloj, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, memoria principal</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, memoria de vídeo</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, herramientas de escritura, modelo de lenguaje</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ia, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, frecuencia de actualización</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, brillo</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gama</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>píxeles, hercios, hz, 4k, 5k, frecuencia de actualización</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, decodificación de vídeo, reproducción</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, codificación de vídeo</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, decodificación de vídeo, reproducción</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, codificación de vídeo</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, fotos, imágenes</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, cámara web, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>parlantes, sonido, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>micro, sonido, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>micro, permiso, privacidad</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, cámara web, permiso, privacidad</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, altavoces, auriculares</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, micrófono</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, sonido</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>frecuencia de muestreo, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>espacio en disco, tamaño del disco</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>espacio libre, espacio en disco, lleno</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, unidad, disco duro, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partición, unidad</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>enchufado, corriente</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>cargador, fuente de alimentación, vatio</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>capacidad máxima, desgaste, envejecimiento</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>autonomía</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>ahorro de energía</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, inalámbrica, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, inalámbrica, wifi, recepción</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, inalámbrica, wifi, velocidad</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>dirección ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, encriptado, cifrado</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>encriptación, cifrado, cifrado de disco</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>huella dactilar, biometría</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, chip de seguridad</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, seguridad de arranque, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>virus, malware, antivirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>malware, notarización, firma de apps</translation>
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
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>Descarga: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>Notas de la versión: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark no ha enviado ninguna solicitud.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
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
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>No se ha podido contactar con %1: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 no ha podido demostrar que es %1: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>La respuesta de %1 es más larga de lo que puede ser un canal.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 lleva a otra dirección, que no se ha seguido: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 ha respondido con el estado %2 en lugar de un canal.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>La respuesta de %1 no es un canal: declara un tipo de documento.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>La respuesta de %1 no es un canal: es otro tipo de XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>La respuesta de %1 no es un canal: contiene más que cualquiera.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>¿Puede Quillmark preguntar a %1 si hay versiones más recientes, ahora y como máximo una vez al día al abrir su ventana?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>La solicitud incluye la versión de Quillmark y nada sobre ti ni sobre este ordenador. No se instala nada.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 está disponible; elegiste omitir esta versión. Tienes la versión %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 está disponible, una actualización importante. Tienes la versión %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 está disponible. Tienes la versión %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 está actualizado.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark no ha podido averiguar si hay una versión más reciente.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>No se ha preguntado a %1 porque no lo has aceptado.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>La dirección del canal de actualizaciones no es https: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>No se ha preguntado a %1 porque no se puede escribir el registro de solicitudes.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>La respuesta de %1 no es un canal: no es XML o solo es una parte.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Acerca de Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Te dice lo que tu Mac puede hacer de verdad.
Todo lo que lee se queda en este Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Te dice lo que tu ordenador puede hacer de verdad.
Todo lo que lee se queda en este ordenador.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Acerca de Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Volver a inspeccionar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Salud de la batería</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Monitor en directo</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Sección anterior</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Sección siguiente</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Ocultar barra lateral</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Traer todo al frente</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Ayuda de Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novedades</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>de la capacidad de diseño</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Capacidad actual</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacidad de diseño</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Número de ciclos</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Salud de la batería</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Capacidad actual como parte de la capacidad de diseño. Un 80&#xa0;% o más es bueno.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Número de ciclos</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Un ciclo es una descarga completa, aunque se reparta en varios días.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>El calor envejece una batería más rápido que el uso. Mantenla lejos del sol.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Leído hoy a las %1. Las cifras proceden del controlador de la propia batería y pueden variar ligeramente entre lecturas.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copiar valor</translation>
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
        <translation>Ahora</translation>
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
        <translation>Cambiado: %1, de %2 a %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Añadido: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Eliminado: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: añadido, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: eliminado, %2</translation>
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
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>puntuación</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n fila</numerusform>
            <numerusform>%1, %n filas</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Todos los cambios</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n página, carta de EE. UU.</numerusform>
            <numerusform>%n páginas, carta de EE. UU.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n página, A4</numerusform>
            <numerusform>%n páginas, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Exportar la inspección</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Omitir nombres y direcciones</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspeccionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspeccionando este ordenador…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Descubre lo que este Mac puede hacer de verdad</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Descubre lo que este ordenador puede hacer de verdad</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Todas las capacidades de tu hardware y tu sistema, con un estado claro.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Once secciones, una puntuación</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Desde el procesador y los gráficos hasta los códecs, las pantallas y la seguridad.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Se guarda cada cambio</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Compara dos análisis y mira qué ha cambiado una actualización.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Tus datos se quedan aquí</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>No se envía nada sobre este Mac a ningún sitio. Quillmark solo se conecta para buscar sus propias actualizaciones.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>No se envía nada sobre este ordenador a ningún sitio. Quillmark solo se conecta para buscar sus propias actualizaciones.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Pregunta a %1 como máximo una vez al día y solo le indica la versión de Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostrar el monitor en directo en la barra de menús</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostrar el monitor en directo en el área de estado</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Empezar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Al abrir Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Historial:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Privacidad:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Mostrar el resumen</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Mostrar la última pantalla utilizada</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Borrar historial…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Todo lo que Quillmark lee se queda en este Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Todo lo que Quillmark lee se queda en este ordenador.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>La única conexión que hace es la búsqueda de actualizaciones.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n análisis guardado, %1 como máximo</numerusform>
            <numerusform>%n análisis guardados, %1 como máximo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Buscar capacidades</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Volver a inspeccionar</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>Menú (F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>Puntuación de capacidades</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Puntuación de capacidades %1</translation>
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
        <source>Nothing is rated</source>
        <translation>Nada valorado</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 de %n capacidad</numerusform>
            <numerusform>%1 de %n capacidades</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 por ciento, %2 de %n capacidad compatible</numerusform>
            <numerusform>%1 por ciento, %2 de %n capacidades compatibles</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspeccionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspeccionando este ordenador…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Está tardando más de lo habitual</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Leyendo el hardware y los ajustes del sistema</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Otro Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Otro ordenador</translation>
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
            <numerusform>%n compatible</numerusform>
            <numerusform>%n compatibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n no compatible</numerusform>
            <numerusform>%n no compatibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n advertencia</numerusform>
            <numerusform>%n advertencias</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Comparar análisis</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Se guarda un análisis cada vez que algo ha cambiado. Los 200 más recientes se conservan en este Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Se guarda un análisis cada vez que algo ha cambiado. Los 200 más recientes se conservan en este ordenador.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark guarda un análisis cada vez que una inspección encuentra algo nuevo. Inspecciona este Mac para guardar el primero.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark guarda un análisis cada vez que una inspección encuentra algo nuevo. Inspecciona este ordenador para guardar el primero.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Inspeccionar ahora</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Análisis guardados</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Anular selección</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Borrar historial…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n análisis guardado</numerusform>
            <numerusform>%n análisis guardados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 análisis seleccionado · elige otro más</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 análisis seleccionados</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>¿Eliminar este análisis?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>El análisis del %1 se eliminará del historial.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>¿Borrar el historial?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>Se eliminará %n análisis guardado. Esta acción no se puede deshacer.</numerusform>
            <numerusform>Se eliminarán los %n análisis guardados. Esta acción no se puede deshacer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>No se ha podido guardar el historial.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Otra copia de Quillmark lo está usando. Los análisis hechos aquí se conservan hasta que se cierre.</translation>
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
        <translation>Idioma de la interfaz:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Idioma de la interfaz</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>El nuevo idioma se usa de inmediato. Los análisis guardados en otro idioma se pueden seguir comparando.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Recopilando muestras…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Abrir Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor en directo de Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Memoria en uso: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Carga del procesador: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor en directo de Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Cada segundo</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Recopilando muestras…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Abrir Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Barra de menús:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Mostrar junto al icono:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Ventana:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostrar el monitor en directo en la barra de menús</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark permanece en la barra de menús hasta que lo cierres</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Área de estado:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostrar el monitor en directo en el área de estado</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark permanece en el área de estado hasta que lo cierres</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Este escritorio no tiene área de estado.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Carga del procesador</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Memoria en uso</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Solo el icono</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Seguir en ejecución al cerrar la ventana principal</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Monitor en directo</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Actualizado cada segundo · últimos 2 minutos</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Recopilando muestras…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>La primera medición llega en un segundo aproximadamente.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesador</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Por núcleo</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
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
        <source>All interfaces</source>
        <translation>Todas las interfaces</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>En el volumen de arranque</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n núcleo</numerusform>
            <numerusform>%n núcleos</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>En uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Adaptador de corriente conectado</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>No se está cargando</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Primer análisis guardado</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Los análisis posteriores se comparan con él</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n cambiado</numerusform>
            <numerusform>%n cambiados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n añadido</numerusform>
            <numerusform>%n añadidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n eliminado</numerusform>
            <numerusform>%n eliminados</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Sin diferencias</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Comparar análisis</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Exportar la inspección</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Informe guardado.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Elegir otra ubicación…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Resultados de “%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n sección</numerusform>
            <numerusform>%n secciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n fila en %1</numerusform>
            <numerusform>%n filas en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>No coincide ninguna fila</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Nada contiene “%1”. Revisa la ortografía o prueba con una palabra más corta.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Ninguna fila que contenga “%1” tiene el estado “%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n fila coincide con otro estado.</numerusform>
            <numerusform>%n filas coinciden con otros estados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>No coincide ninguna fila</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Ninguna fila tiene aquí el estado “%1”.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacidades</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Mostrar todos los estados</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n compatible</numerusform>
            <numerusform>%n compatibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n no compatible</numerusform>
            <numerusform>%n no compatibles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n advertencia</numerusform>
            <numerusform>%n advertencias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n informativa</numerusform>
            <numerusform>%n informativas</numerusform>
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
        <translation>Inspeccionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspeccionando este ordenador…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>En esta sección no hay nada valorado</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 de %n capacidad valorada compatible</numerusform>
            <numerusform>%1 de %n capacidades valoradas compatibles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Área de estado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Inspeccionando…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Gráficas en tiempo real de CPU, memoria, temperatura, batería y red</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n advertencia</numerusform>
            <numerusform>%1, %n advertencias</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacidades</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Salud de la batería</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor en directo</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n fila</numerusform>
            <numerusform>%1, %n filas</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Todo en la ventana se alcanza con el teclado: Tab pasa de una parte a otra, las flechas se mueven dentro de ella, Espacio e Intro eligen y Esc vuelve atrás.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>En la línea de órdenes</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Todo lo que muestra la ventana también se puede pedir a la orden quillmark: consulta quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Ayuda de Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>¿Puede Quillmark preguntar a %1 si hay una versión más reciente?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Preguntar una vez al día</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Preguntar solo esta vez</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>No se han podido buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 está disponible, una actualización importante.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 está disponible.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Tienes la versión %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Descargar…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Novedades de Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Actualizaciones:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Pregunta a %1 una vez al día, al iniciar Quillmark</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Nunca se ha buscado</translation>
    </message>
</context>
</TS>
