<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>Nie podano</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalna</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Obniżona</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>Zużyta</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Zimna</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Gorąca</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>Zalecany serwis</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>Trwała usterka</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>Ta bateria wymaga uwagi.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>Ta bateria nie podaje, ile ładunku mieści.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>Ta bateria jest w dobrym stanie.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>Ta bateria mieści mniej ładunku niż dawniej.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>Ta bateria jest zużyta.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>Mieści prawie tyle ładunku, ile jako nowa.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>Nadal działa dobrze, ale wystarcza wyraźnie krócej.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>Warto rozważyć jej wymianę.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>Osiągnęła liczbę cykli, na którą ją zaprojektowano.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>Jest gorąca.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 pojemności projektowej</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS podaje %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS wygładza swoją wartość i zachowuje rezerwę, dlatego obie mogą się różnić o kilka punktów.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>Ten Mac nie ma baterii</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>Ten komputer nie ma baterii</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>Kondycja baterii jest widoczna na przenośnych Macach. Wszystko inne w Quillmarku działa jak zwykle.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>Kondycja baterii jest widoczna na komputerach przenośnych. Wszystko inne w Quillmarku działa jak zwykle.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>Ładowanie, pełna za %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Ładowanie</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pełna</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>Na baterii, pozostało %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Na baterii</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Podłączona, nie ładuje się</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>Zaprojektowana na %1 cykli</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>Normalna: od 10 do 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>Według systemu</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>Nie podano kondycji baterii</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>Kondycja baterii %1 procent, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>Raport PDF</translation>
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
        <translation>Zwykły tekst</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>Zaprojektowane strony, gotowe do druku lub wysłania</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>Każda wartość, dla skryptów i narzędzi</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>Tabele do notatek, wiki i zgłoszeń</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>Ten sam tekst co „Kopiuj jako tekst”</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w Finderze</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n zmieniona</numerusform>
            <numerusform>%n zmienione</numerusform>
            <numerusform>%n zmienionych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n dodana</numerusform>
            <numerusform>%n dodane</numerusform>
            <numerusform>%n dodanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n usunięta</numerusform>
            <numerusform>%n usunięte</numerusform>
            <numerusform>%n usuniętych</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmieniona</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodana</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Usunięta</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>Starsze</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>Nowsze</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>Pierwsze sprawdzenie</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Brak różnic</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>Oba sprawdzenia pokazują te same możliwości. Wartości, które stale się zmieniają, jak czas działania, nie są porównywane.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>Oba sprawdzenia są w różnych językach, dlatego widać tylko zmiany statusu.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>Brak zachowanych sprawdzeń</translation>
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
        <translation>Obsługiwane</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>Nieobsługiwane</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>Jeszcze nie proszono</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>Ograniczony</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>Odmówiono</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Dozwolony</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>Wewnętrzne</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>Brak</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>Brak (stacjonarny)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Urządzenie Bluetooth</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>Urządzenie AirPlay</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone lub iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n kanał</numerusform>
            <numerusform>%1, %n kanały</numerusform>
            <numerusform>%1, %n kanałów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (jakość rozmowy: mikrofon jest w użyciu)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>Wbudowane głośniki</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>Wbudowany mikrofon</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>Wyjście dźwięku</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Format wyjścia</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>Najwyższa częstotliwość</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>Wejście dźwięku</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1&#xa0;z %2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1&#xa0;z %2&#xa0;mAh</translation>
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
        <translation>Ładowanie</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>Pełna</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>Podłączona, nie ładuje się</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Na baterii</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>Szacowanie</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 do pełnej</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Kondycja baterii</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>Stan baterii</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Liczba cykli</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>Pojemność baterii</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>Temperatura baterii</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>Poziom naładowania</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>Pozostały czas</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>wbudowany</translation>
    </message>
    <message>
        <source>external</source>
        <translation>zewnętrzny</translation>
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
        <translation>Najlepszy obraz</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>Najlepszy obraz (kamera %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, do %2 klatek na sekundę</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>W centrum uwagi</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>W centrum uwagi (kamera %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>Karta dźwiękowa</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>wyjście</translation>
    </message>
    <message>
        <source>input</source>
        <translation>wejście</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>Karta dźwiękowa %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>Dostęp do kamery</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>Dostęp do mikrofonu</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>Kamera i dźwięk</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>główny</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>klonowany</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, do %2&#xa0;Hz</translation>
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
        <translation>%1 (wygląda jak %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>Stała</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1&#xa0;do %2&#xa0;Hz (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1&#xa0;do %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>Do %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;cala, %2 pikseli na cal</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;cala</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>Zmienna częstotliwość odświeżania</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>Zmienna częstotliwość odświeżania (monitor %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>Rozszerzony zakres dynamiki</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>Rozszerzony zakres dynamiki (monitor %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>Szeroka gama kolorów</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>Szeroka gama kolorów (monitor %1)</translation>
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
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>Rozdzielczość (monitor %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalowanie</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>Skalowanie (monitor %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>Rozmiar (monitor %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>Połączenie (monitor %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>Podłączone monitory</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>Monitory</translation>
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
        <translation>Wymaga macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>Zalecana pamięć GPU</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Rodzina GPU Apple</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>Śledzenie promieni</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>Sprzętowe śledzenie promieni</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>Grafika i Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>Włączone, trwa szyfrowanie</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>Wyłączanie</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>Wyłączone (dysk nadal szyfrowany sprzętowo)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>Częściowo włączone</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>Włączona, blokuje wszystkie połączenia przychodzące</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostępne</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>Wyłączone w Ustawieniach systemowych</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>Niegotowe (trwa pobieranie lub niedostępne w tym języku albo regionie)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>Tylko CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Przyspieszenie Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Rdzenie Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>Rdzenie GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Instrukcje macierzowe Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>Znaleziono, brak sterownika</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>Procesor neuronowy</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>Obliczenia na GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>Sztuczna inteligencja</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Maszyna wirtualna</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, wymuszający</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, permisywny</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>Wszystkie załagodzone</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n niezałagodzona</numerusform>
            <numerusform>%n niezałagodzone</numerusform>
            <numerusform>%n niezałagodzonych</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>Bezpieczny rozruch</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>Szyfrowanie dysku</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Kontrola dostępu</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>Podatności procesora</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>Zapieczętowany</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>Niezapieczętowany</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Naruszony</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>Zapieczętowany wolumin systemowy</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>Brak zabezpieczeń</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>Średnie zabezpieczenia</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>Pełne zabezpieczenia</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niepodłączony</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>Dostępny, nieskonfigurowany</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>Dostępny, zablokowany</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>Ochrona integralności systemu</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>Zapora sieciowa</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>Tryb blokady</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>Sprzętowe</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>Nie sprzętowo</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>Tylko programowe</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>Odczyt i zapis</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>Tylko odczyt</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>Dekodowanie H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>Dekodowanie HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>Dekodowanie VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>Dekodowanie AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>Dekodowanie ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>Kodowanie H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>Kodowanie HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>Kodowanie ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>Kodowanie AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>Obrazy HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>Obrazy AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>Nie można odczytać (vainfo nie jest zainstalowane)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>Nie można odczytać (GPU jest uśpione)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>Sterownik wideo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>Sieć komórkowa</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>Nieoferowane przez tę sieć</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niedostępne</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>Połączenie taryfowe</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>Tryb niskiego zużycia danych</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (przydzielony automatycznie)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>Adres (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktywne</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>Nie wykryto</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mb/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, pełny dupleks</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, półdupleks</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Prędkość Ethernetu</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Prędkość Ethernetu %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>Zasilacz</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>Zasilanie sieciowe</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>Wbudowana</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>Zrównoważony</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Wydajność</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>Niskie zużycie energii</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Cichy</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>Chłodny</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>Tryb niskiego zużycia energii</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>Limit ładowania</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>Profil zasilania</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>Źródło zasilania</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Zasilanie</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>Instrukcje SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>Instrukcje BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>Instrukcje AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>Instrukcje AVX-512</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>Rdzenie fizyczne</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>Rdzenie logiczne</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>Rdzenie wydajnościowe</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>Rdzenie energooszczędne</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesor</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>Maksymalna częstotliwość</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>Pamięć (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>Procesor i pamięć</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Nie można odczytać</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Bezpieczeństwo</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (mało)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>Klonowanie plików</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>Wielkość liter w nazwach</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>Wolumin startowy</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Pojemność</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Dostępne miejsce</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>dysk twardy</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>wewnętrzny</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>wymienny</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Dysk %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>Połączenie (dysk %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (dysk %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>tylko do odczytu</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Wolumin %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>Miejsce na woluminie</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>Miejsce na woluminie (wolumin %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Pamięć masowa</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>przez Rosettę</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektura</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Ciepły</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Gorący</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Krytyczny</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>Nazwa urządzenia</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>Identyfikator modelu</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>System operacyjny</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>Czas działania</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stan termiczny</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>Używany standard Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Pasmo Wi-Fi</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Sygnał Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Szybkość Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>pamięć zunifikowana</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>niskie zużycie energii</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>zewnętrzne eGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>Brak</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (dobry)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (średni)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (słaby)</translation>
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
        <translation>Stan ładowania</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>Tak jak w systemie (%1)</translation>
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
        <translation>Dzisiaj, %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Wczoraj, %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>dzisiaj, %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>wczoraj, %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>Sprawdzono dzisiaj o %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>Sprawdzono wczoraj o %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>Sprawdzono %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>Ostatnio szukano dzisiaj o %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>Ostatnio szukano wczoraj o %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>Ostatnio szukano %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n sekcja, sprawdzona dzisiaj o %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone dzisiaj o %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone dzisiaj o %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n sekcja, sprawdzona wczoraj o %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone wczoraj o %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone wczoraj o %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n sekcja, sprawdzona %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone %1.</numerusform>
            <numerusform>Wszystkie sekcje (%n), sprawdzone %1.</numerusform>
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
        <translation>Brak</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>Bateria · ładowanie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>Obciążenie normalne</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>Obciążenie podwyższone</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>Obciążenie krytyczne</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Ciepły</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Gorący</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Krytyczny</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>Normalne</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>Podwyższone</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>Krytyczne</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>Bez ograniczeń wydajności</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>Lekko ciepły, bez ograniczeń</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>Wydajność jest obniżona</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>Wydajność jest znacznie obniżona</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 procent, od %2 do %3 procent w ciągu ostatnich 2 minut</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n rdzeń, obciążenie %1 procent</numerusform>
            <numerusform>%n rdzenie, najbardziej obciążony: %1 procent</numerusform>
            <numerusform>%n rdzeni, najbardziej obciążony: %1 procent</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>W użyciu %1 z %2, %3 procent. Obciążenie %4 procent, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>Przychodzące %1, wychodzące %2</translation>
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
        <translation>Procesor</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Obciążenie</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Pamięć wymiany</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stan termiczny</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>nazwa komputera</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>adresy</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>nazwy woluminów</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>Ocena możliwości: %1% (obsługiwane %2 z %3 ocenianych możliwości)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 pamięci</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 pamięci masowej</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Żaden wiersz nie pasuje.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>Pominięto w tym raporcie: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>Warto zobaczyć</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (ciąg dalszy)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n wiersz</numerusform>
            <numerusform>%n wiersze</numerusform>
            <numerusform>%n wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>Obsługiwane: %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Ten Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>Co ten Mac naprawdę potrafi</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>Co ten komputer naprawdę potrafi</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>Utworzono w %1 · Wszystkie dane odczytano na tym Macu</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>Utworzono w %1 · Wszystkie dane odczytano na tym komputerze</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Część ocenianych możliwości, które obsługuje ten Mac</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Część ocenianych możliwości, które obsługuje ten komputer</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Ocena możliwości</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Niczego nie oceniono</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Raport Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>W tym raporcie</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>s. %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>Możliwość</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>Sprawdzono %1 o %2</translation>
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
        <translation>Pominięto</translation>
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
        <translation>Nie można było zachować raportu.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>Plik o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>To jest folder.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>Brak uprawnień do zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>Za mało wolnego miejsca na „%1”.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Dysk nie jest już podłączony.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>Żaden plik nie może mieć takiej nazwy.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>System podaje: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, karta graficzna, karta wideo, 3d, gry, grafika</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, si, ml, uczenie maszynowe, npu, llm, sztuczna inteligencja</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>ekran, wyświetlacz, monitor</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>wideo, kodek</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>energia, prąd, bateria, akumulator</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>internet, online</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>ochrona, zabezpieczenia</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>nazwa komputera, nazwa hosta, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>model</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, wersja systemu, macos, linux, kompilacja</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 bit, 64-bit, arm, x86, rosetta, 64 bity</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>działa od, uruchomienie, restart, uptime, włączony od, ponowne uruchomienie</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>temperatura, ciepło, throttling, dławienie, wentylator</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, maszyna wirtualna, hipernadzorca, hypervisor</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, chip, układ, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>rdzenie cpu, rdzenie procesora</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>rdzenie cpu, wątki, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>taktowanie, zegar, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, pamięć operacyjna</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, pamięć wideo, pamięć graficzna</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, narzędzia pisania, model językowy</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai, si</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, częstotliwość odświeżania, odświeżanie</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, jasność</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut, przestrzeń barw, gama barw</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>piksele, herce, hz, 4k, 5k, odświeżanie, częstotliwość odświeżania, herc</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, dekodowanie wideo, odtwarzanie</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, kodowanie wideo</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, dekodowanie wideo, odtwarzanie</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, kodowanie wideo</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, zdjęcia, obrazy, grafika</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>kamerka, kamera internetowa, facetime, webcam</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>głośniki, dźwięk, audio</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>mikrofon, dźwięk, audio</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>mikrofon, uprawnienia, prywatność</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>kamerka, uprawnienia, prywatność, kamera internetowa, webcam</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>audio, głośniki, słuchawki</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>audio, mikrofon</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio, dźwięk</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>częstotliwość próbkowania, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>miejsce na dysku, rozmiar dysku</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>wolne miejsce, miejsce na dysku, pełny</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, napęd, dysk twardy, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>partycja, napęd</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>podłączony, gniazdko, sieć elektryczna</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>ładowarka, zasilacz, wat</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>maksymalna pojemność, zużycie, starzenie</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>czas pracy baterii, czas działania, czas pracy na baterii</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>oszczędzanie energii, tryb oszczędzania</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, bezprzewodowa, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, bezprzewodowa, wifi, zasięg</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, bezprzewodowa, wifi, prędkość, szybkość</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>adres ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, zaszyfrowany</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>szyfrowanie, zaszyfrowany, szyfrowanie dysku</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>odcisk palca, biometria</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, układ zabezpieczający, układ bezpieczeństwa</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, bezpieczeństwo uruchamiania, secure boot, bezpieczeństwo startu</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>wirus, malware, złośliwe oprogramowanie, antywirus</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>malware, złośliwe oprogramowanie, notaryzacja, podpis aplikacji</translation>
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
        <translation>Inny komputer</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>„quillmark history record” sprawdza ten komputer i zachowuje pierwsze.</translation>
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
        <translation>Komputer</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Ocena</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>Względem poprzedniego</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>Sprawdzenie z %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>Ocena możliwości</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>Obsługiwane: %1 z %2 ocenianych możliwości</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>Żaden wiersz nie pasuje.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Kondycja baterii</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>Usunięto sprawdzenie z %1.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>Usunięto wszystkie zachowane sprawdzenia.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>Zachowano sprawdzenie %1.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>Nic się nie zmieniło od sprawdzenia z %1, więc nowego nie zachowano.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n zachowane sprawdzenie</numerusform>
            <numerusform>%n zachowane sprawdzenia</numerusform>
            <numerusform>%n zachowanych sprawdzeń</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>t, tak</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n zachowane sprawdzenie zostanie usunięte. Nie można tego cofnąć. Usunąć? [t/N]</numerusform>
            <numerusform>%n zachowane sprawdzenia zostaną usunięte. Nie można tego cofnąć. Usunąć? [t/N]</numerusform>
            <numerusform>%n zachowanych sprawdzeń zostanie usuniętych. Nie można tego cofnąć. Usunąć? [t/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>Pobieranie: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>Informacje o wydaniu: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark nie wysłał żadnego zapytania.</translation>
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
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [t/N]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Zbieranie próbek…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q kończy</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Uaktualniane co sekundę · ostatnie 2 minuty</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor na żywo</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesor</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n rdzeń</numerusform>
            <numerusform>%n rdzenie</numerusform>
            <numerusform>%n rdzeni</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Na rdzeń</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>z %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>W użyciu</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Obciążenie</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>Przych.</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Wych.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
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
        <translation>Stan termiczny</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Używana pamięć wymiany</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>Procesor %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>Pamięć %1 z %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>Używana pamięć wymiany %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Przychodzące %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>Wychodzące %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>Stan termiczny %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>Nie można połączyć się z %1: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>Serwer %1 nie zdołał potwierdzić, że to %1: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>Serwer %1 nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>Odpowiedź serwera %1 jest dłuższa, niż może być kanał.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>Serwer %1 kieruje pod inny adres, którego nie otwarto: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>Serwer %1 zamiast kanału przysłał status %2.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>Odpowiedź serwera %1 nie jest kanałem: deklaruje typ dokumentu.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>Odpowiedź serwera %1 nie jest kanałem: to inny rodzaj XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>Odpowiedź serwera %1 nie jest kanałem: zawiera więcej niż jakikolwiek kanał.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Czy Quillmark może pytać %1 o nowsze wersje: teraz i najwyżej raz dziennie, przy otwarciu okna?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>Zapytanie zawiera wersję Quillmarka i nic, co dotyczyłoby użytkownika lub tego komputera. Nic nie jest instalowane.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Dostępny jest Quillmark %1, czyli wersja wybrana do pominięcia. Obecna wersja to %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Dostępny jest Quillmark %1, ważne uaktualnienie. Obecna wersja to %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Dostępny jest Quillmark %1. Obecna wersja to %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 jest aktualny.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark nie zdołał ustalić, czy istnieje nowsza wersja.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>Nie pytano serwera %1, ponieważ nie wyrażono na to zgody.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>Adres kanału uaktualnień nie jest adresem https: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>Nie pytano serwera %1, ponieważ nie można zapisać dziennika zapytań.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>Odpowiedź serwera %1 nie jest kanałem: to nie XML lub tylko jego część.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>O aplikacji Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Pokazuje, co ten Mac naprawdę potrafi.
Wszystkie odczytane dane pozostają na tym Macu.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>Pokazuje, co ten komputer naprawdę potrafi.
Wszystkie odczytane dane pozostają na tym komputerze.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Szukaj uaktualnień</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Widok</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>O aplikacji Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Szukaj uaktualnień…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Kopiuj jako tekst</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Znajdź…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>Historia sprawdzeń</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>Kondycja baterii</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>Monitor na żywo</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>Poprzednia sekcja</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>Następna sekcja</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>Ukryj pasek boczny</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>Umieść wszystko na wierzchu</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Pomoc Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Co nowego</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>pojemności projektowej</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>Obecna pojemność</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>Pojemność projektowa</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Poziom naładowania</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Liczba cykli</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stan</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>Kondycja baterii</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>Obecna pojemność jako część pojemności projektowej. 80% lub więcej to dobry wynik.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>Liczba cykli</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>Jeden cykl to jedno pełne rozładowanie, nawet rozłożone na kilka dni.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>Ciepło postarza baterię szybciej niż używanie. Lepiej nie zostawiać jej na słońcu.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>Odczytano dzisiaj o %1. Wartości pochodzą z własnego kontrolera baterii i mogą się nieco różnić między odczytami.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Kopiuj wartość</translation>
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
        <translation>Teraz</translation>
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
        <translation>Zmieniona: %1, z %2 na %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>Dodana: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>Usunięta: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: dodana, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: usunięta, %2</translation>
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
        <translation>Różnice</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>ocena</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n wiersz</numerusform>
            <numerusform>%1, %n wiersze</numerusform>
            <numerusform>%1, %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Wszystkie zmiany</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n strona, US Letter</numerusform>
            <numerusform>%n strony, US Letter</numerusform>
            <numerusform>%n stron, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n strona, A4</numerusform>
            <numerusform>%n strony, A4</numerusform>
            <numerusform>%n stron, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>Eksport sprawdzenia</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>Pomiń nazwy i adresy</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Sprawdzanie tego Maca…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Sprawdzanie tego komputera…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>Co ten Mac naprawdę potrafi</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>Co ten komputer naprawdę potrafi</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>Każda możliwość sprzętu i systemu, z czytelnym statusem.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>Jedenaście sekcji, jedna ocena</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>Od procesora i grafiki po kodeki, monitory i bezpieczeństwo.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>Każda zmiana jest zachowywana</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>Można porównać dowolne dwa sprawdzenia i zobaczyć, co zmieniło uaktualnienie.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>Dane pozostają tutaj</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Żadne informacje o tym Macu nie są nigdzie wysyłane. Quillmark łączy się z siecią tylko po to, aby szukać własnych uaktualnień.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>Żadne informacje o tym komputerze nie są nigdzie wysyłane. Quillmark łączy się z siecią tylko po to, aby szukać własnych uaktualnień.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatycznie szukaj uaktualnień</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>Pyta %1 najwyżej raz dziennie i podaje tylko wersję Quillmarka.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Pokazuj monitor na żywo na pasku menu</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Pokazuj monitor na żywo w zasobniku systemowym</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Rozpocznij</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Po otwarciu Quillmarka:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>Historia sprawdzeń:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>Prywatność:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>Pokaż przegląd</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>Pokaż ostatnio używany ekran</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Wymaż historię…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Wszystko, co odczytuje Quillmark, pozostaje na tym Macu.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Wszystko, co odczytuje Quillmark, pozostaje na tym komputerze.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>Jedyne nawiązywane połączenie to szukanie uaktualnień.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>Zachowano %n sprawdzenie, najwyżej %1</numerusform>
            <numerusform>Zachowano %n sprawdzenia, najwyżej %1</numerusform>
            <numerusform>Zachowano %n sprawdzeń, najwyżej %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>Skopiowano</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>Szukaj możliwości</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Kopiuj jako tekst</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
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
        <translation>Ocena możliwości</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>Ocena możliwości %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>Część ocenianych możliwości, które obsługuje ten Mac</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>Część ocenianych możliwości, które obsługuje ten komputer</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>Niczego nie oceniono</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 z %n możliwości</numerusform>
            <numerusform>%1 z %n możliwości</numerusform>
            <numerusform>%1 z %n możliwości</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 procent, obsługiwane %2 z %n możliwości</numerusform>
            <numerusform>%1 procent, obsługiwane %2 z %n możliwości</numerusform>
            <numerusform>%1 procent, obsługiwane %2 z %n możliwości</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>Sprawdzanie tego Maca…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Sprawdzanie tego komputera…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>Trwa to dłużej niż zwykle</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>Odczytywanie sprzętu i ustawień systemu</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>W tym miesiącu</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>Inny Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>Inny komputer</translation>
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
            <numerusform>%n obsługiwana</numerusform>
            <numerusform>%n obsługiwane</numerusform>
            <numerusform>%n obsługiwanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n nieobsługiwana</numerusform>
            <numerusform>%n nieobsługiwane</numerusform>
            <numerusform>%n nieobsługiwanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n ostrzeżenie</numerusform>
            <numerusform>%n ostrzeżenia</numerusform>
            <numerusform>%n ostrzeżeń</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>Porównaj sprawdzenia</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historia sprawdzeń</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>Sprawdzenie jest zachowywane, gdy coś się zmieni. Na tym Macu pozostaje 200 najnowszych.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>Sprawdzenie jest zachowywane, gdy coś się zmieni. Na tym komputerze pozostaje 200 najnowszych.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>Quillmark zachowuje każde sprawdzenie, które wykryje coś nowego. Aby zachować pierwsze, wystarczy sprawdzić tego Maca.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>Quillmark zachowuje każde sprawdzenie, które wykryje coś nowego. Aby zachować pierwsze, wystarczy sprawdzić ten komputer.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>Sprawdź teraz</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>Zachowane sprawdzenia</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>Usuń zaznaczenie</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>Wymaż historię…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>Zachowano %n sprawdzenie</numerusform>
            <numerusform>Zachowano %n sprawdzenia</numerusform>
            <numerusform>Zachowano %n sprawdzeń</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>Zaznaczono 1 sprawdzenie · wybierz jeszcze jedno</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>Zaznaczono 2 sprawdzenia</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>Usunąć to sprawdzenie?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>Sprawdzenie (%1) zostanie usunięte z historii.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>Wymazać historię sprawdzeń?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n zachowane sprawdzenie zostanie usunięte. Nie można tego cofnąć.</numerusform>
            <numerusform>Wszystkie zachowane sprawdzenia (%n) zostaną usunięte. Nie można tego cofnąć.</numerusform>
            <numerusform>Wszystkie zachowane sprawdzenia (%n) zostaną usunięte. Nie można tego cofnąć.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Wymaż historię</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>Nie można było zachować historii sprawdzeń.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>Używa jej inna kopia Quillmarka. Wykonane tutaj sprawdzenia są przechowywane do czasu jej zamknięcia.</translation>
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
        <translation>Język interfejsu:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Przykład:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>Język interfejsu</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>Nowy język jest używany od razu. Sprawdzenia zachowane w innym języku nadal można porównywać.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>Zbieranie próbek…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Otwórz Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor na żywo Quillmarka</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>Pamięć w użyciu: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>Obciążenie procesora: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Monitor na żywo Quillmarka</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>Co sekundę</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Zbieranie próbek…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Otwórz Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>Pasek menu:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>Pokazuj obok ikony:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>Okno:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>Pokazuj monitor na żywo na pasku menu</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark pozostaje na pasku menu, aż zostanie zakończony</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>Zasobnik systemowy:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>Pokazuj monitor na żywo w zasobniku systemowym</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark pozostaje w zasobniku systemowym, aż zostanie zakończony</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>To środowisko graficzne nie ma zasobnika systemowego.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Obciążenie procesora</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>Pamięć w użyciu</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Tylko ikona</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>Działaj nadal po zamknięciu głównego okna</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>Monitor na żywo</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>Uaktualniane co sekundę · ostatnie 2 minuty</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>Zbieranie próbek…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>Pierwszy odczyt pojawi się za około sekundę.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Procesor</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>Na rdzeń</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>Stan termiczny</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>Używana pamięć wymiany</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>Wszystkie interfejsy</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>Na woluminie startowym</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n rdzeń</numerusform>
            <numerusform>%n rdzenie</numerusform>
            <numerusform>%n rdzeni</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>z %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>W użyciu</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Obciążenie</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Przych.</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Wych.</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>Zasilacz podłączony</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>Nie ładuje się</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>Zachowano pierwsze sprawdzenie</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>Późniejsze sprawdzenia są z nim porównywane</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n zmieniona</numerusform>
            <numerusform>%n zmienione</numerusform>
            <numerusform>%n zmienionych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n dodana</numerusform>
            <numerusform>%n dodane</numerusform>
            <numerusform>%n dodanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n usunięta</numerusform>
            <numerusform>%n usunięte</numerusform>
            <numerusform>%n usuniętych</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>Od %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Brak różnic</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>Porównaj sprawdzenia</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>Eksport sprawdzenia</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>Zachowano raport.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>Wybierz inne miejsce…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>Wyniki dla „%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n sekcji</numerusform>
            <numerusform>%n sekcjach</numerusform>
            <numerusform>%n sekcjach</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n wiersz w %1</numerusform>
            <numerusform>%n wiersze w %1</numerusform>
            <numerusform>%n wierszy w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Filtr: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>Brak pasujących wierszy</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>Nic nie zawiera „%1”. Sprawdź pisownię lub użyj krótszego słowa.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>Żaden wiersz zawierający „%1” nie ma statusu „%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>Pasuje %n wiersz o innym statusie.</numerusform>
            <numerusform>Pasują %n wiersze o innych statusach.</numerusform>
            <numerusform>Pasuje %n wierszy o innych statusach.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>Brak pasujących wierszy</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>Żaden wiersz nie ma tu statusu „%1”.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Możliwości</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>Pokaż wszystkie statusy</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n obsługiwana</numerusform>
            <numerusform>%n obsługiwane</numerusform>
            <numerusform>%n obsługiwanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n nieobsługiwana</numerusform>
            <numerusform>%n nieobsługiwane</numerusform>
            <numerusform>%n nieobsługiwanych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n ostrzeżenie</numerusform>
            <numerusform>%n ostrzeżenia</numerusform>
            <numerusform>%n ostrzeżeń</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n informacja</numerusform>
            <numerusform>%n informacje</numerusform>
            <numerusform>%n informacji</numerusform>
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
        <translation>Sprawdzanie tego Maca…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>Sprawdzanie tego komputera…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>W tej sekcji niczego nie oceniono</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>Obsługiwane: %1 z %n ocenianej możliwości</numerusform>
            <numerusform>Obsługiwane: %1 z %n ocenianych możliwości</numerusform>
            <numerusform>Obsługiwane: %1 z %n ocenianych możliwości</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Uaktualnienia</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Pasek menu</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Zasobnik systemowy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Pasek boczny</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>Wykresy w czasie rzeczywistym: CPU, pamięć, temperatura, bateria i sieć</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n ostrzeżenie</numerusform>
            <numerusform>%1, %n ostrzeżenia</numerusform>
            <numerusform>%1, %n ostrzeżeń</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Możliwości</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>Historia sprawdzeń</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>Kondycja baterii</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>Monitor na żywo</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n wiersz</numerusform>
            <numerusform>%1, %n wiersze</numerusform>
            <numerusform>%1, %n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>Do wszystkiego w oknie można dotrzeć klawiszami: Tab przechodzi między częściami, strzałki poruszają się w ich obrębie, spacja i Return wybierają, a Esc wraca.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>W wierszu poleceń</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>O wszystko, co pokazuje okno, można też zapytać polecenie quillmark: zobacz quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Pomoc Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Czy Quillmark może zapytać %1, czy jest nowsza wersja?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>Pytaj raz dziennie</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>Zapytaj tylko tym razem</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>Nie udało się wyszukać uaktualnień.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Dostępny jest Quillmark %1, ważne uaktualnienie.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Dostępny jest Quillmark %1.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Obecna wersja to %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Pobierz…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Co nowego w Quillmarku %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>Uaktualnienia:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatycznie szukaj uaktualnień</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Pyta %1 raz dziennie, po uruchomieniu Quillmarka</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Szukanie…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Szukaj teraz</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Jeszcze nie szukano</translation>
    </message>
</context>
</TS>
