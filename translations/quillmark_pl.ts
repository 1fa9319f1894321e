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
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>Obniżony</translation>
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
</TS>
