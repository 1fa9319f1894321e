<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This battery is in good condition. It holds almost as much charge as when it was new.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This battery holds less than it used to. It still works well, but it lasts noticeably shorter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This battery is worn. Consider having it replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>−%1&#xa0;°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>built in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2&#xa0;Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (looks like %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requires macOS 26</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>internal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>low power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;MB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;GB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&#xa0;TB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>volume names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In this report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 [%3]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out</source>
        <extracomment>Stands for a name or an address.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>First scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>q ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
