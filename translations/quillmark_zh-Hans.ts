<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>未报告</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>下降</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>老化</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>过冷</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>过热</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>建议维修</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>永久故障</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>此电池需要留意。</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>此电池不报告可容纳的电量。</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>此电池状态良好。</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>此电池可容纳的电量比以前少。</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>此电池已老化。</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>可容纳的电量与全新时相差无几。</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>它仍能正常工作，但续航明显缩短。</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>请考虑更换。</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>已达到设计循环次数。</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>电池过热。</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>设计容量的 %1</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS 报告 %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS 会平滑其数值并保留余量，因此两者可能相差几个百分点。</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>这台 Mac 没有电池</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>这台电脑没有电池</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>电池健康会在便携式 Mac 上显示。Quillmark 的其他功能照常使用。</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>电池健康会在便携式电脑上显示。Quillmark 的其他功能照常使用。</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>正在充电，%1后充满</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>正在充电</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>已充满</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>使用电池，还剩%1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>使用电池</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>已连接，未充电</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>设计循环 %1 次</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>正常：10 至 45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>由系统报告</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>电池健康未报告</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>电池健康 %1%，%2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>PDF 报告</translation>
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
        <translation>纯文本</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>排版好的页面，可直接打印或发送</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>所有数值，供脚本和工具使用</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>用于备忘录、维基和议题的表格</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>与“拷贝为文本”相同的文本</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>在访达中显示</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n 项更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n 项添加</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n 项移除</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>已添加</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>较早</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>较新</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>首次扫描</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>两次扫描显示相同的能力。运行时间等不断变化的值不参与比较。</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>两次扫描使用不同的语言，因此仅显示状态的更改。</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>尚无存储的扫描</translation>
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
        <translation>支持</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>尚未请求</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>受限</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>已允许</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>内建</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>无（台式）</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>蓝牙设备</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>隔空播放设备</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone 或 iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1，%n 声道</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1（通话音质：麦克风正在使用）</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>内建扬声器</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>内建麦克风</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>声音输出</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>输出格式</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>最高输出采样率</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>声音输入</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1/%2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1/%2&#xa0;mAh</translation>
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
        <translation>正在充电</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>已充满</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>已连接，未充电</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>使用电池</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>正在估算</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1后充满</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>电池健康</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>电池状况</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>电池容量</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>电池温度</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>电量</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>内建</translation>
    </message>
    <message>
        <source>external</source>
        <translation>外接</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像头 %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>最大画面</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>最大画面（摄像头 %1）</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1，最高每秒 %2 帧</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>人物居中</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>人物居中（摄像头 %1）</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>声卡</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>输出</translation>
    </message>
    <message>
        <source>input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>声卡 %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>摄像头访问权限</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>麦克风访问权限</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>摄像头与音频</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>主显示器</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1，最高 %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1, %2&#xa0;Hz</source>
        <translation>%1，%2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>%1 (looks like %2)</source>
        <translation>%1（看起来像 %2）</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>固定</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1&#xa0;至 %2 Hz（ProMotion）</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1&#xa0;至 %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>最高 %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;英寸，每英寸 %2&#xa0;像素</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;英寸</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>可变刷新率</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>可变刷新率（显示器 %1）</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>扩展动态范围</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>扩展动态范围（显示器 %1）</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>广色域</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>广色域（显示器 %1）</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>显示器 %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>分辨率（显示器 %1）</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>缩放（显示器 %1）</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>尺寸（显示器 %1）</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>连接（显示器 %1）</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>已连接的显示器</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>显示器</translation>
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
        <translation>需要 macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>建议的 GPU 内存</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Apple GPU 系列</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>光线追踪</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>硬件光线追踪</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>图形与 Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>打开，正在加密</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>On</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>关闭（磁盘仍由硬件加密）</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>部分打开</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>打开，阻止所有传入连接</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>已在“系统设置”中关闭</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>未就绪（正在下载，或不适用于此语言或地区）</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>仅 CPU</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Core ML 加速</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Neural Engine 核心</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>GPU 核心</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Int8 矩阵指令</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>已找到，无驱动程序</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>神经处理器</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>GPU 计算</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>人工智能</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>虚拟机</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux，强制</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux，宽容</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>全部已缓解</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n 项未缓解</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>安全启动</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>磁盘加密</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>访问控制</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>处理器漏洞</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>已密封</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>未密封</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>已密封的系统卷宗</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>无安全性</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>中等安全性</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>完整安全性</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>可用，未设置</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>可用，已锁定</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>系统完整性保护</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>防火墙</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>锁定模式</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>硬件</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>无硬件支持</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>仅软件</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>H.264 解码</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>HEVC 解码</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>VP9 解码</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>AV1 解码</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>ProRes 解码</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>H.264 编码</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>HEVC 编码</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ProRes 编码</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>AV1 编码</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>HEIC 图像</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>AVIF 图像</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>无法读取（未安装 vainfo）</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>无法读取（GPU 处于睡眠）</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>视频驱动程序</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>蜂窝网络</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>此网络不提供</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>按流量计费的连接</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>低数据模式</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1（自分配）</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>地址（%1）</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活跃</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>未检测到</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1，全双工</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1，半双工</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>以太网速度</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>以太网速度 %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>电源适配器</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>市电</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>内建</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>平衡</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>性能</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>低功耗</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>安静</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>散热</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>低电量模式</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充电上限</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>电源方案</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>电源来源</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>SME 指令</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>BF16 指令</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>AVX2 指令</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>AVX-512 指令</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>物理核心</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>逻辑核心</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>性能核心</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>能效核心</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>最高频率</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>内存 (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>处理器与内存</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全性</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1（不足）</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>文件克隆</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>名称区分大小写</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>启动卷宗</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>可用空间</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>硬盘</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>内建</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>可移除</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>磁盘 %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>连接（磁盘 %1）</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM（磁盘 %1）</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷宗</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>卷宗 %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>卷宗空间</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>卷宗空间（卷宗 %1）</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>储存空间</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>通过 Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>偏热</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>过热</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>设备名称</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>型号标识符</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>操作系统</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>运行时间</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>热状态</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>使用中的 Wi-Fi 标准</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Wi-Fi 频段</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Wi-Fi 信号</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Wi-Fi 速率</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>统一内存</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>低功耗</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>外接 eGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1 dBm（良好）</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1 dBm（一般）</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm（弱）</translation>
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
        <translation>正在充电</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>与系统相同（%1）</translation>
    </message>
</context>
<context>
    <name>Moment</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1: a day, %2: a time: &quot;12 November, 19:20&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>昨天 %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>昨天 %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>检查于今天 %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>检查于昨天 %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>检查于 %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>上次检查：今天 %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>上次检查：昨天 %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>上次检查：%1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>全部 %n 个类别，检查于今天 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>全部 %n 个类别，检查于昨天 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>全部 %n 个类别，检查于 %1。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation>%1&#xa0;KB/s</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>电池 · 正在充电</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>压力正常</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>压力偏高</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>压力严重</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>偏热</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>过热</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>正常</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>偏高</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>严重</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>性能不受限制</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>略微偏热，性能不受限制</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>性能已降低</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>性能已大幅降低</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1%，最近 2 分钟介于 %2% 与 %3% 之间</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n 个核心，最忙的核心为 %1%</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%2 中已使用 %1，%3%。压力 %4%，%5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>传入 %1，传出 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row of the menu: what it is, and its figure</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <extracomment>A row of the menu: what it is, its figure and a remark on it</extracomment>
        <translation>%1：%2（%3）</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交换空间</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>热状态</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>卷宗名称</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>能力评分：%1%（%3 项评定能力中支持 %2 项）</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 内存</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 储存空间</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>没有匹配的行。</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>此报告省略了：%1。</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>值得留意</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1（续）</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>还有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>支持 %1/%2 项</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>这台 Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>这台电脑</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>这台 Mac 究竟能做什么</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>这台电脑究竟能做什么</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>由 %1 制作 · 所有数据均在这台 Mac 上读取</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>由 %1 制作 · 所有数据均在这台电脑上读取</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>这台 Mac 所支持的评定能力的比例</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>这台电脑所支持的评定能力的比例</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>能力评分</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>没有评定项</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Quillmark 报告</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>本报告内容</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>能力</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>检查于 %1 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 [%3]</source>
        <translation>%1：%2 [%3]</translation>
    </message>
    <message>
        <source>Left out</source>
        <extracomment>Stands for a name or an address.</extracomment>
        <translation>已省略</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>地址 %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>未能存储报告。</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>已有同名文件。</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>你没有写入该位置的权限。</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>“%1”上的可用空间不足。</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>磁盘已断开连接。</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>文件不能使用此名称。</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>系统提示：%1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, 显卡, 图形卡, 3d, 游戏</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, ml, 机器学习, npu, llm, 大模型</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>屏幕, 显示屏, 监视器</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>视频, 编解码器, codec</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>能源, 节能, 电池</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>互联网, 因特网, 在线, 上网</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>安全, 防护, 保护</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>电脑名称, 计算机名, 主机名, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, 系统版本, 版本, macos, linux, build, 版号</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 位, 64 bit, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>开机时间, 开机时长, 重新启动, 重启</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>温度, 发热, 散热, 降频, 风扇</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, 虚拟机监控程序, hypervisor</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, 芯片, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>cpu 核心, 内核</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cpu 核心, 内核, 线程, 超线程</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>时钟频率, 主频, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, 主内存, 运行内存</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, 显存</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, 写作工具, 语言模型</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai, 神经网络引擎</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, 刷新率, 自适应同步</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, 亮度</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, 色域</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>像素, 赫兹, hz, 4k, 5k, 刷新率</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>视网膜, retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, 视频解码, 播放</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, 视频编码, 录制</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, 视频解码, 播放</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, 视频编码, 录制</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, 照片, 图片</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>相机, 网络摄像头, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>喇叭, 音箱, 声音, 音频</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>话筒, mic, 声音, 音频</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>话筒, mic, 权限, 隐私</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>相机, 网络摄像头, 权限, 隐私</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>音频, 扬声器, 耳机</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>音频, 麦克风</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>采样率, 高清音频, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>磁盘空间, 磁盘大小</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>剩余空间, 磁盘空间, 已满</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, 驱动器, 硬盘, 固态硬盘, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>分区, 驱动器</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>插电, 接通电源, 市电</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>充电器, 电源, 瓦, 瓦数</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>最大容量, 损耗, 老化</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>续航, 使用时间</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>节能, 省电</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, 无线, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, 无线, wifi, 信号, 接收</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, 无线, wifi, 速度</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, 以太网, ethernet, 局域网, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>ip 地址, ip地址</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, 加密, 已加密</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>加密, 已加密, 磁盘加密</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>指纹, 触控 id, 生物识别</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, 安全芯片, 安全隔区</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, 启动安全性, 安全启动, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>病毒, 恶意软件, 杀毒软件, 防病毒</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>恶意软件, 公证, app 签名, 应用签名</translation>
    </message>
    <message>
        <source>spectre, meltdown</source>
        <translation>spectre, meltdown, 幽灵, 熔断</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Another computer</source>
        <translation>另一台电脑</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>“quillmark history record”会检查这台电脑并存储首次扫描。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>评分</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>与前一次相比</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>%1 的扫描</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>能力评分</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%2 项评定能力中支持 %1 项</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>没有匹配的行。</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>电池健康</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>已移除 %1 的扫描。</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>已移除所有存储的扫描。</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>已存储扫描 %1。</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>自 %1 的扫描以来没有更改，因此未存储。</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n 次已存储的扫描</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>y, yes, 是</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>将移除 %n 次已存储的扫描。此操作无法撤销。要移除吗？ [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>下载：%1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>发行说明：%1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark 未发送过任何请求。</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [y/N]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>正在收集样本…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>按 q 结束</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>每秒更新 · 最近 2 分钟</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>实时监视</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n 个核心</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>各核心</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>传入</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>传出</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 分钟</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2 分钟</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>热状态</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>已用交换空间</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>处理器 %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>内存 %1/%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>已用交换空间 %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>传入 %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>传出 %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>热状态 %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>无法连接到 %1：%2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1 无法证明自己就是 %1：%2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 未及时响应。</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>%1 的响应超出了更新源允许的长度。</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1 指向另一个地址，未予访问：%2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1 返回了状态 %2，而不是更新源。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>%1 的响应不是更新源：它声明了文档类型。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>%1 的响应不是更新源：它是另一种 XML。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>%1 的响应不是更新源：它的内容多于任何更新源。</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>允许 Quillmark 现在以及此后打开窗口时（每天最多一次）向 %1 查询新版本吗？</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>请求仅包含 Quillmark 的版本，不包含有关你或这台电脑的任何信息。不会安装任何内容。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1 可用，但你已选择跳过此版本。你的版本是 %2。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1 可用，这是重要更新。你的版本是 %2。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 可用。你的版本是 %2。</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 已是最新版本。</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>Quillmark 未能查明是否有新版本。</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>未查询 %1，因为你尚未同意。</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>更新源的地址不是 https 地址：%1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>未查询 %1，因为无法写入请求记录。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>%1 的响应不是更新源：它不是 XML，或者只是 XML 的一部分。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>关于 Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>了解你的 Mac 究竟能做什么。
读取的所有内容都保留在这台 Mac 上。</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>了解你的电脑究竟能做什么。
读取的所有内容都保留在这台电脑上。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>View</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>关于 Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>重新检查</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>拷贝为文本</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>查找…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>扫描历史记录</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>电池健康</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>实时监视</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>上一类别</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>下一类别</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>隐藏边栏</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏幕</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>前置全部窗口</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark 帮助</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>新功能</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>占设计容量</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>当前容量</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>设计容量</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>状况</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>电池健康</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>当前容量占设计容量的比例。80% 或以上为良好。</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>一次循环指一次完整的放电，即使分散在数天之内。</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>高温比使用更容易使电池老化。请避免阳光直射。</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>读取于今天 %1。数值来自电池自身的控制器，各次读取之间可能略有差异。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>拷贝值</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A row for screen readers: &quot;Touch ID, Available, Supported&quot;</extracomment>
        <translation>%1，%2，%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row as it is copied: &quot;Memory: 16 GB&quot;</extracomment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ChartView</name>
    <message>
        <source>2 min</source>
        <translation>2 分钟</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1 分钟</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonModel</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A value and its status, for screen readers: &quot;Turned off, Warning&quot;</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Changed: %1, from %2, to %3</source>
        <extracomment>For screen readers: &quot;Changed: Metal 4, from Requires macOS 26, Not supported, to Supported&quot;</extracomment>
        <translation>已更改：%1，从 %2 更改为 %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>已添加：%1，%2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>已移除：%1，%2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1：%2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1：已添加，%2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1：已移除，%2</translation>
    </message>
    <message>
        <source>%1: %2 · %3 · %4 · %5</source>
        <extracomment>The head of a comparison: &quot;Older: 12 November 2025, 19:20 · Nora’s Mac · macOS 26.1 · 82%&quot;</extracomment>
        <translation>%1：%2 · %3 · %4 · %5</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonView</name>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>评分</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1，%n 行</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>全部更改</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n 页，US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n 页，A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>导出检查结果</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>省略名称和地址</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>正在检查这台 Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>正在检查这台电脑…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>看看这台 Mac 究竟能做什么</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>看看这台电脑究竟能做什么</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>硬件和系统的每一项能力，状态一目了然。</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>十一个类别，一个评分</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>从处理器和图形，到编解码器、显示器和安全性。</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>每次更改都会存储</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>比较任意两次扫描，看看更新改变了什么。</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>你的数据留在这里</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>有关这台 Mac 的任何信息都不会发送出去。Quillmark 仅在查找自身更新时联网。</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>有关这台电脑的任何信息都不会发送出去。Quillmark 仅在查找自身更新时联网。</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>每天最多向 %1 查询一次，并且仅告知 Quillmark 的版本。</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>在菜单栏中显示实时监视</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>在系统托盘中显示实时监视</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>开始使用</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Quillmark 打开时：</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>扫描历史记录：</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>隐私：</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>显示概览</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>显示上次使用的界面</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>清除历史记录…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Quillmark 读取的所有内容都保留在这台 Mac 上。</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Quillmark 读取的所有内容都保留在这台电脑上。</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>它仅在检查更新时建立连接。</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>已存储 %n 次扫描，最多 %1 次</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>已拷贝</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>搜索能力</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>重新检查</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>拷贝为文本</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>菜单 (F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>能力评分</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>能力评分：%1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>这台 Mac 所支持的评定能力的比例</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>这台电脑所支持的评定能力的比例</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>没有评定项</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1/%n 项能力</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1%，支持 %n 项能力中的 %2 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>正在检查这台 Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>正在检查这台电脑…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>用时比平常长</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>正在读取硬件和系统设置</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>本月</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>其他 Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>其他电脑</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two items of a list: &quot;3 changed, 1 added&quot;</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4, %5, %6</source>
        <extracomment>A saved scan for screen readers: date, system, counts of three statuses, what it changed</extracomment>
        <translation>%1，%2，%3，%4，%5，%6</translation>
    </message>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n 项支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n 项不支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n 项警告</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>比较扫描</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>扫描历史记录</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>每当有内容发生更改时，都会存储一次扫描。最新的 200 次保留在这台 Mac 上。</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>每当有内容发生更改时，都会存储一次扫描。最新的 200 次保留在这台电脑上。</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>每当检查发现新内容时，Quillmark 都会存储一次扫描。检查这台 Mac 即可存储首次扫描。</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>每当检查发现新内容时，Quillmark 都会存储一次扫描。检查这台电脑即可存储首次扫描。</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>已存储的扫描</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>清除历史记录…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>已存储 %n 次扫描</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>已选择 1 次扫描 · 请再选择一次</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>已选择 2 次扫描</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>要删除此扫描吗？</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>将从历史记录中移除 %1 的扫描。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>要清除扫描历史记录吗？</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>将移除全部 %n 次已存储的扫描。此操作无法撤销。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>未能存储扫描历史记录。</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>另一个 Quillmark 正在使用历史记录。在它退出前，此处的扫描会保留在这里。</translation>
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
        <translation>界面语言：</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例：</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>界面语言</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>新语言会立即生效。以其他语言存储的扫描仍可进行比较。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>正在收集样本…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>打开 Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmark 实时监视</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>已用内存：%1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>处理器负载：%1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmark 实时监视</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>每秒更新</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>正在收集样本…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>打开 Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>菜单栏：</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>在图标旁显示：</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>窗口：</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>在菜单栏中显示实时监视</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>退出前，Quillmark 会一直留在菜单栏中</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>系统托盘：</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>在系统托盘中显示实时监视</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>退出前，Quillmark 会一直留在系统托盘中</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>此桌面环境没有系统托盘。</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>处理器负载</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>已用内存</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>关闭主窗口后继续运行</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>实时监视</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>每秒更新 · 最近 2 分钟</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>正在收集样本…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>首个读数约一秒后到达。</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>各核心</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>热状态</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>已用交换空间</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>所有接口</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>位于启动卷宗</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n 个核心</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>In</source>
        <translation>传入</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>传出</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>已连接电源适配器</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>未在充电</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>已存储首次扫描</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>之后的扫描将与其比较</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n 项更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n 项添加</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n 项移除</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>自 %1 以来</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>没有差异</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>比较扫描</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>导出检查结果</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>报告已存储。</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>选取其他位置…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>“%1”的搜索结果</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n 个类别</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%1中的 %n 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>过滤条件：%1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>没有匹配的行</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>没有内容包含“%1”。请检查拼写或尝试更短的词。</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>包含“%1”的行中，没有状态为“%2”的行。</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>其他状态中有 %n 个匹配的行。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>没有匹配的行</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>此处没有状态为“%1”的行。</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>能力</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>显示所有状态</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n 项支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n 项不支持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n 项警告</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n 项信息</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <extracomment>The label before its value</extracomment>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionPage</name>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>正在检查这台 Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>正在检查这台电脑…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>此类别中没有评定项</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%n 项评定能力中支持 %1 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>系统托盘</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>边栏</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>CPU、内存、温度、电池和网络的实时图表</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1，%n 项警告</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>能力</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>扫描历史记录</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>电池健康</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>实时监视</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1，%n 行</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>窗口中的一切都可用键盘操作：Tab 键在各部分之间移动，箭头键在部分内移动，空格键和 Return 键选择，Esc 键返回。</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>命令行</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>窗口显示的一切也可以通过 quillmark 命令查询：请参阅 quillmark --help。</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark 帮助</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>允许 Quillmark 向 %1 查询是否有新版本吗？</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>每天查询一次</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>仅查询这一次</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>未能检查更新。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1 可用，这是重要更新。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 可用。</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>你的版本是 %1。</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>下载…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Quillmark %1 的新功能</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>更新：</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Quillmark 启动时，每天向 %1 查询一次</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>从未检查</translation>
    </message>
</context>
</TS>
