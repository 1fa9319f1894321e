<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Não informado</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Reduzida</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Desgastada</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Fria</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Quente</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Reparo recomendado</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Falha permanente</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Esta bateria precisa de atenção.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Esta bateria não informa quanta carga mantém.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Esta bateria está em boas condições.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Esta bateria mantém menos carga do que antes.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Esta bateria está desgastada.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Ela mantém quase tanta carga quanto quando era nova.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Ainda funciona bem, mas dura bem menos.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Considere substituí-la.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Ela atingiu os ciclos para os quais foi projetada.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Ela está quente.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 da capacidade de projeto</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>O macOS informa %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>O macOS suaviza seu número e mantém uma reserva, por isso os dois podem diferir em alguns pontos.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Este Mac não tem bateria</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Este computador não tem bateria</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>A saúde da bateria é mostrada em Macs portáteis. Todo o resto do Quillmark funciona normalmente.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>A saúde da bateria é mostrada em computadores portáteis. Todo o resto do Quillmark funciona normalmente.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>Carregando, completa em %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Cheia</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Na bateria, restam %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Na bateria</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Conectada, sem carregar</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Projetada para %1 ciclos</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normal: 10 a 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Informado pelo sistema</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Saúde da bateria não informada</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Saúde da bateria: %1 por cento, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>Relatório em PDF</translation>
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
        <translation>Texto simples</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Páginas diagramadas, prontas para imprimir ou enviar</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Todos os valores, para scripts e ferramentas</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tabelas para notas, wikis e issues</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>O mesmo texto de Copiar como texto</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar no Finder</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n alterado</numerusform>
            <numerusform>%n alterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n adicionado</numerusform>
            <numerusform>%n adicionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n removido</numerusform>
            <numerusform>%n removidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removido</translation>
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
        <translation>Primeira análise</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Nenhuma diferença</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>As duas análises mostram os mesmos recursos. Valores que mudam o tempo todo, como o tempo ligado, não são comparados.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>As duas análises estão em idiomas diferentes, por isso só as mudanças de status são mostradas.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Ainda não há análises salvas</translation>
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
        <translation>Compatível</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Não compatível</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Ainda não solicitado</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Restrito</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Negado</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Interna</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Nenhuma (computador de mesa)</translation>
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
            <numerusform>%1, %n canais</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (qualidade de chamada: há um microfone em uso)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Alto-falantes integrados</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Microfone integrado</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Saída de som</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Taxa máxima de saída</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Entrada de som</translation>
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
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Cheia</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Conectada, sem carregar</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Na bateria</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Calculando</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 até a carga completa</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Saúde da bateria</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Condição da bateria</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Contagem de ciclos</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Capacidade da bateria</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Temperatura da bateria</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Tempo restante</translation>
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
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Câmera %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>Melhor imagem</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Melhor imagem (câmera %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, até %2 quadros por segundo</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>Palco Central</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>Palco Central (câmera %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Placa de som</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>saída</translation>
    </message>
    <message>
        <source>input</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Placa de som %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Acesso à câmera</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Acesso ao microfone</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Câmera e áudio</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>principal</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>espelhada</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, até %2&#xa0;Hz</translation>
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
        <translation>%1 (aparece como %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Fixa</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1&#xa0;a %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1&#xa0;a %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Até %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;pol., %2&#xa0;pixels por polegada</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;pol.</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Taxa de atualização variável</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Taxa de atualização variável (tela %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Alcance dinâmico estendido</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Alcance dinâmico estendido (tela %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Ampla gama de cores</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Ampla gama de cores (tela %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>Tela %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Resolução (tela %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Escala (tela %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Tamanho (tela %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Conexão (tela %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Telas conectadas</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Telas</translation>
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
        <translation>Requer o macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Memória recomendada da GPU</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Família de GPU da Apple</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Traçado de raios</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Traçado de raios por hardware</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Gráficos e Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Ativado, criptografando</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Sendo desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Desativado (o disco continua criptografado por hardware)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Ativado em parte</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Ativado, bloqueia todas as conexões de entrada</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Desativado nos Ajustes do Sistema</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Não está pronto (sendo baixado, ou não oferecido para este idioma ou região)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>Somente CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Aceleração do Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Núcleos do Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>Núcleos da GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Instruções de matriz Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Encontrado, sem driver</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Processador neural</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Computação na GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Inteligência Artificial</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Máquina virtual</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, impositivo</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, permissivo</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Todas mitigadas</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n não mitigada</numerusform>
            <numerusform>%n não mitigadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Inicialização segura</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Criptografia do disco</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Controle de acesso</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Vulnerabilidades do processador</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Selado</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Não selado</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Violado</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Volume do sistema selado</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Sem segurança</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Segurança média</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Segurança total</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Disponível, não configurado</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Disponível, bloqueado</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Proteção da Integridade do Sistema</translation>
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
        <translation>Modo de Isolamento</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Não por hardware</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Somente por software</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Leitura e gravação</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>Decodificação H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>Decodificação HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>Decodificação VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>Decodificação AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>Decodificação ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>Codificação H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>Codificação HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>Codificação ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>Codificação AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>Imagens HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>Imagens AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Não pode ser lido (o vainfo não está instalado)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Não pode ser lido (a GPU está em repouso)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Driver de vídeo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Mídia</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Rede celular</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outra</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Não oferecida por esta rede</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Conexão limitada</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Modo de Dados Reduzidos</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (autoatribuído)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Endereço (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Ativa</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Nenhuma detectada</translation>
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
        <translation>Velocidade da Ethernet</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Velocidade da Ethernet %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Adaptador de energia</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Rede elétrica</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>Nobreak</translation>
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
        <translation>Desempenho</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Baixo consumo</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Silencioso</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Resfriamento</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Modo Pouca Energia</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limite de carga</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Perfil de energia</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Fonte de energia</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>Instruções SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>Instruções BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>Instruções AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>Instruções AVX-512</translation>
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
        <translation>Núcleos de desempenho</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Núcleos de eficiência</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processador</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Frequência máxima</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Memória (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Processador e memória</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Não pode ser lido</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (pouco)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Clonagem de arquivos</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Diferencia maiúsculas</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Volume de inicialização</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Espaço disponível</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>disco rígido</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>interno</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>removível</translation>
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
        <translation>Conexão (disco %1)</translation>
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
        <translation>somente leitura</translation>
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
        <translation>Espaço do volume</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Espaço do volume (volume %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>via Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Arquitetura</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Morno</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Quente</translation>
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
        <translation>Nome do dispositivo</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Identificador do modelo</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>Sistema operacional</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Tempo ligado</translation>
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
        <translation>Padrão Wi-Fi em uso</translation>
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
        <translation>Sinal Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Taxa Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>memória unificada</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>baixo consumo</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>eGPU externa</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (bom)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (razoável)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (fraco)</translation>
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
        <translation>Carregando</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Igual ao sistema (%1)</translation>
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
        <translation>Hoje, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Ontem, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>hoje, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>ontem, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Inspecionado hoje às %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Inspecionado ontem às %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Inspecionado em %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Última busca hoje às %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Última busca ontem às %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Última busca em %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n seção, conforme a inspeção de hoje às %1.</numerusform>
            <numerusform>Todas as %n seções, conforme a inspeção de hoje às %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n seção, conforme a inspeção de ontem às %1.</numerusform>
            <numerusform>Todas as %n seções, conforme a inspeção de ontem às %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n seção, conforme a inspeção de %1.</numerusform>
            <numerusform>Todas as %n seções, conforme a inspeção de %1.</numerusform>
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
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Bateria · carregando</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Pressão normal</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Pressão elevada</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Pressão crítica</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Morno</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Quente</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
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
        <translation>Sem limites de desempenho</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Levemente morno, sem limites</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>O desempenho está reduzido</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>O desempenho está muito reduzido</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 por cento, entre %2 e %3 por cento nos últimos 2 minutos</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n núcleo, a %1 por cento</numerusform>
            <numerusform>%n núcleos, o mais ocupado a %1 por cento</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 de %2 em uso, %3 por cento. Pressão de %4 por cento, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Entrada %1, saída %2</translation>
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
        <translation>Processador</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
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
        <translation>Rede</translation>
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
        <translation>nome do computador</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>endereços</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>nomes dos volumes</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Pontuação de recursos: %1% (%2 de %3 recursos avaliados são compatíveis)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 de memória</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 de armazenamento</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Nenhuma linha corresponde.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Omitido deste relatório: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Merece atenção</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuação)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n linha</numerusform>
            <numerusform>%n linhas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 de %2 compatíveis</translation>
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
        <translation>Este computador</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>O que este Mac realmente pode fazer</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>O que este computador realmente pode fazer</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Feito com %1 · Todos os dados foram lidos neste Mac</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Feito com %1 · Todos os dados foram lidos neste computador</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Parcela dos recursos avaliados que este Mac oferece</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Parcela dos recursos avaliados que este computador oferece</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Pontuação de recursos</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nada foi avaliado</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Relatório do Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>Neste relatório</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>p. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Recurso</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Inspecionado em %1 às %2</translation>
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
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>Endereço %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>Não foi possível salvar o relatório.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Já existe um arquivo com este nome.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Isto é uma pasta.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Você não tem permissão para gravar ali.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Não há espaço livre suficiente em “%1”.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>O disco não está mais conectado.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Nenhum arquivo pode ter este nome.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>O sistema informa: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, placa de vídeo, placa gráfica, 3d, jogos</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ia, ai, ml, aprendizado de máquina, aprendizado automático, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>monitor, display</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>vídeo, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>bateria, alimentação</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, on-line, online</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>proteção</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>nome do computador, nome do host, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modelo</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, so, versão do sistema, macos, linux, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bits, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>ligado desde, reinicialização, reiniciar, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatura, calor, aquecimento, throttling, ventoinha, ventilador</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, hipervisor, hypervisor</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, chip, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>núcleos da cpu, cpu</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>núcleos da cpu, cpu, threads, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>clock, velocidade do clock, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, memória principal</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, memória de vídeo</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, ferramentas de escrita, modelo de linguagem</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ia, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, taxa de atualização</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, brilho</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gama, gamut</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>pixels, hertz, hz, 4k, 5k, taxa de atualização</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, decodificação de vídeo, reprodução</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, codificação de vídeo, gravação</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, decodificação de vídeo, reprodução</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, codificação de vídeo, gravação</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, fotos, imagens</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webcam, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>caixas de som, som, áudio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>mic, som, áudio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>mic, permissão, privacidade</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webcam, permissão, privacidade</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>áudio, alto-falantes, caixas de som, fones de ouvido</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>áudio, microfone</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>áudio, som</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>taxa de amostragem, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>espaço em disco, tamanho do disco</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>espaço livre, espaço em disco, cheio</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, unidade, disco rígido, hd, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partição, unidade</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>tomada, conectado, ligado na tomada</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>carregador, fonte de alimentação, watt</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>capacidade máxima, desgaste, envelhecimento</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>autonomia, duração da bateria</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>economia de energia, economizar energia</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, sem fio, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, sem fio, wifi, recepção</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, sem fio, wifi, velocidade</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>endereço ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, criptografado</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>criptografia, criptografado, criptografia do disco</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>impressão digital, biometria</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, chip de segurança</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, segurança de inicialização, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>vírus, malware, antivírus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>malware, notarização, assinatura de apps</translation>
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
        <translation>Outro computador</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>“quillmark history record” inspeciona este computador e salva a primeira.</translation>
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
        <translation>Computador</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Pontuação</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Em relação à anterior</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Análise de %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Pontuação de recursos</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 de %2 recursos avaliados compatíveis</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Nenhuma linha corresponde.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Saúde da bateria</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>A análise de %1 foi removida.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Todas as análises salvas foram removidas.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>A análise %1 foi salva.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Nada mudou desde a análise de %1, por isso nenhuma foi salva.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n análise salva</numerusform>
            <numerusform>%n análises salvas</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>s, sim</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n análise salva será removida. Isso não pode ser desfeito. Remover? [s/N]</numerusform>
            <numerusform>%n análises salvas serão removidas. Isso não pode ser desfeito. Remover? [s/N]</numerusform>
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
        <translation>Notas da versão: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>O Quillmark não enviou nenhuma solicitação.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
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
        <translation>Coletando amostras…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q para sair</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Atualizado a cada segundo · últimos 2 minutos</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor ao vivo</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processador</translation>
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
        <translation>Memória</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>Em uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
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
        <translation>Swap em uso</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Processador %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Memória %1 de %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Swap em uso %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Entrada %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Saída %1</translation>
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
        <translation>Não foi possível conectar a %1: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 não conseguiu provar que é %1: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 não respondeu a tempo.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>A resposta de %1 é mais longa do que um feed pode ser.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 leva a outro endereço, que não foi seguido: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 respondeu com o status %2 em vez de um feed.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>A resposta de %1 não é um feed: ela declara um tipo de documento.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>A resposta de %1 não é um feed: é outro tipo de XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>A resposta de %1 não é um feed: contém mais do que qualquer feed.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>O Quillmark pode perguntar a %1 se há versões mais recentes: agora e, no máximo, uma vez por dia ao abrir a janela?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>A solicitação leva a versão do Quillmark e nada sobre você ou este computador. Nada é instalado.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>O Quillmark %1 está disponível, mas você optou por pular esta versão. Você tem a versão %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>O Quillmark %1 está disponível, uma atualização importante. Você tem a versão %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>O Quillmark %1 está disponível. Você tem a versão %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>O Quillmark %1 está atualizado.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>O Quillmark não conseguiu descobrir se há uma versão mais recente.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>%1 não foi consultado, porque você não concordou com isso.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>O endereço do feed de atualizações não é https: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>%1 não foi consultado, porque o registro de solicitações não pode ser gravado.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>A resposta de %1 não é um feed: não é XML, ou é só uma parte.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Sobre o Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Mostra o que o seu Mac realmente pode fazer.
Tudo o que é lido permanece neste Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Mostra o que o seu computador realmente pode fazer.
Tudo o que é lido permanece neste computador.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar atualizações</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizar</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Sobre o Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar Atualizações…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Inspecionar Novamente</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fechar Janela</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como Texto</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar Tudo</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Buscar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão Geral</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Histórico de Análises</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Saúde da Bateria</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Monitor ao Vivo</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Seção Anterior</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Próxima Seção</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Ocultar Barra Lateral</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tela Cheia</translation>
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
        <translation>Trazer Todas para a Frente</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Ajuda do Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novidades</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>da capacidade de projeto</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Capacidade atual</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Capacidade de projeto</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Contagem de ciclos</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condição</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Saúde da bateria</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>A capacidade atual em relação à capacidade de projeto. 80% ou mais é bom.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Contagem de ciclos</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Um ciclo é uma descarga completa, mesmo que distribuída por vários dias.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>O calor envelhece uma bateria mais depressa do que o uso. Mantenha-a longe do sol.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Leitura de hoje às %1. Os números vêm do controlador da própria bateria e podem variar um pouco entre as leituras.</translation>
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
        <translation>Agora</translation>
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
        <translation>Alterado: %1, de %2, para %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Adicionado: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Removido: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: adicionado, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: removido, %2</translation>
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
        <translation>Diferenças</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>pontuação</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n linha</numerusform>
            <numerusform>%1, %n linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Todas as alterações</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n página, Carta EUA</numerusform>
            <numerusform>%n páginas, Carta EUA</numerusform>
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
        <translation>Exportar inspeção</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Omitir nomes e endereços</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspecionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspecionando este computador…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Veja o que este Mac realmente pode fazer</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Veja o que este computador realmente pode fazer</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Cada recurso do seu hardware e do sistema, com um status claro.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Onze seções, uma pontuação</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>De processador e gráficos a codecs, telas e segurança.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Cada alteração é salva</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Compare duas análises quaisquer e veja o que uma atualização mudou.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Seus dados ficam aqui</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nada sobre este Mac é enviado a lugar nenhum. O Quillmark só acessa a internet para buscar suas próprias atualizações.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Nada sobre este computador é enviado a lugar nenhum. O Quillmark só acessa a internet para buscar suas próprias atualizações.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Consulta %1 no máximo uma vez por dia e informa apenas a versão do Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostrar o monitor ao vivo na barra de menus</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostrar o monitor ao vivo na bandeja do sistema</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Ao abrir o Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Histórico de análises:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Privacidade:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Mostrar a visão geral</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Mostrar a última tela usada</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Limpar histórico…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Tudo o que o Quillmark lê permanece neste Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Tudo o que o Quillmark lê permanece neste computador.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>A única conexão que ele faz é a busca de atualizações.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n análise salva, no máximo %1</numerusform>
            <numerusform>%n análises salvas, no máximo %1</numerusform>
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
        <translation>Buscar recursos</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Limpar busca</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Inspecionar novamente</translation>
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
        <translation>Pontuação de recursos</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Pontuação de recursos: %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Parcela dos recursos avaliados que este Mac oferece</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Parcela dos recursos avaliados que este computador oferece</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Nada foi avaliado</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 de %n recurso</numerusform>
            <numerusform>%1 de %n recursos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 por cento, %2 de %n recurso compatível</numerusform>
            <numerusform>%1 por cento, %2 de %n recursos compatíveis</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Inspecionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspecionando este computador…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Está demorando mais do que o normal</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Lendo o hardware e os ajustes do sistema</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Este mês</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Outro Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Outro computador</translation>
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
            <numerusform>%n compatível</numerusform>
            <numerusform>%n compatíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n não compatível</numerusform>
            <numerusform>%n não compatíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n aviso</numerusform>
            <numerusform>%n avisos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Comparar análises</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Histórico de análises</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Uma análise é salva sempre que algo muda. As 200 mais recentes são mantidas neste Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Uma análise é salva sempre que algo muda. As 200 mais recentes são mantidas neste computador.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>O Quillmark salva uma análise toda vez que uma inspeção encontra algo novo. Inspecione este Mac para salvar a primeira.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>O Quillmark salva uma análise toda vez que uma inspeção encontra algo novo. Inspecione este computador para salvar a primeira.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Inspecionar agora</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Análises salvas</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Limpar histórico…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n análise salva</numerusform>
            <numerusform>%n análises salvas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1 análise selecionada · escolha mais uma</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2 análises selecionadas</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Apagar esta análise?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>A análise de %1 será removida do histórico.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Limpar o histórico de análises?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n análise salva será removida. Isso não pode ser desfeito.</numerusform>
            <numerusform>Todas as %n análises salvas serão removidas. Isso não pode ser desfeito.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>Não foi possível salvar o histórico de análises.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Outra cópia do Quillmark está usando o histórico. As análises feitas aqui são mantidas até que ela seja encerrada.</translation>
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
        <translation>Idioma da interface:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemplo:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Idioma da interface</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>O novo idioma é usado imediatamente. Análises salvas em outro idioma ainda podem ser comparadas.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Coletando amostras…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Abrir o Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Encerrar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor ao vivo do Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Memória em uso: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Carga do processador: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor ao vivo do Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>A cada segundo</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Coletando amostras…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Abrir o Quillmark</translation>
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
        <translation>Barra de menus:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Mostrar ao lado do ícone:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Janela:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Mostrar o monitor ao vivo na barra de menus</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>O Quillmark permanece na barra de menus até você encerrá-lo</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Bandeja do sistema:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Mostrar o monitor ao vivo na bandeja do sistema</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>O Quillmark permanece na bandeja do sistema até você encerrá-lo</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>Este ambiente de trabalho não tem bandeja do sistema.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Carga do processador</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Memória em uso</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Somente o ícone</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Continuar em execução ao fechar a janela principal</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Monitor ao vivo</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Atualizado a cada segundo · últimos 2 minutos</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Coletando amostras…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>A primeira leitura chega em cerca de um segundo.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processador</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Por núcleo</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Estado térmico</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Swap em uso</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Todas as interfaces</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>No volume de inicialização</translation>
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
        <translation>Em uso</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Adaptador de energia conectado</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Sem carregar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Primeira análise salva</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>As próximas análises são comparadas com ela</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n alterado</numerusform>
            <numerusform>%n alterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n adicionado</numerusform>
            <numerusform>%n adicionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n removido</numerusform>
            <numerusform>%n removidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Nenhuma diferença</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Comparar análises</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Exportar inspeção</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Relatório salvo.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Escolher outro local…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Resultados para “%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n seção</numerusform>
            <numerusform>%n seções</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n linha em %1</numerusform>
            <numerusform>%n linhas em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Filtrado por: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Nenhuma linha corresponde</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Nada contém “%1”. Verifique a ortografia ou tente uma palavra mais curta.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Nenhuma linha que contém “%1” tem o status “%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n linha corresponde com outro status.</numerusform>
            <numerusform>%n linhas correspondem com outros status.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Limpar busca</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Nenhuma linha corresponde</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Nenhuma linha aqui tem o status “%1”.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Mostrar todos os status</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n compatível</numerusform>
            <numerusform>%n compatíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n não compatível</numerusform>
            <numerusform>%n não compatíveis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n aviso</numerusform>
            <numerusform>%n avisos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n informação</numerusform>
            <numerusform>%n informações</numerusform>
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
        <translation>Inspecionando este Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Inspecionando este computador…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>Nada nesta seção é avaliado</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 de %n recurso avaliado compatível</numerusform>
            <numerusform>%1 de %n recursos avaliados compatíveis</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Bandeja do sistema</translation>
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
        <translation>Inspecionando…</translation>
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
        <translation>Gráficos em tempo real de CPU, memória, temperatura, bateria e rede</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n aviso</numerusform>
            <numerusform>%1, %n avisos</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Histórico de análises</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Saúde da bateria</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor ao vivo</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n linha</numerusform>
            <numerusform>%1, %n linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Tudo na janela pode ser acessado pelo teclado: Tab passa de uma parte a outra, as setas navegam dentro de cada uma, Espaço e Return escolhem e Esc volta.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>Na linha de comando</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>Tudo o que a janela mostra também pode ser pedido ao comando quillmark: veja quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Ajuda do Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>O Quillmark pode perguntar a %1 se há uma versão mais recente?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Perguntar uma vez por dia</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Perguntar só desta vez</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>Não foi possível buscar atualizações.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>O Quillmark %1 está disponível, uma atualização importante.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>O Quillmark %1 está disponível.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Você tem a versão %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Baixar…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Novidades do Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Atualizações:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Consulta %1 uma vez por dia, quando o Quillmark é iniciado</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Buscar agora</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Nenhuma busca feita</translation>
    </message>
</context>
</TS>
