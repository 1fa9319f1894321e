<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>報告なし</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>低下</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>劣化</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>低温</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>修理推奨</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>永久的な故障</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>このバッテリーは確認が必要です。</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>このバッテリーは充電できる量を報告しません。</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>このバッテリーは良好な状態です。</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>このバッテリーが充電できる量は以前より減っています。</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>このバッテリーは劣化しています。</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>新品のときとほぼ同じ量を充電できます。</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>まだ問題なく使えますが、持続時間は明らかに短くなります。</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>交換を検討してください。</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>定格の充放電回数に達しています。</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>高温になっています。</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>設計容量の%1</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOSの報告: %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOSは値をならし、予備を確保しているため、両者は数ポイント異なることがあります。</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>このMacにはバッテリーがありません</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>このコンピュータにはバッテリーがありません</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>バッテリーの健康度はノート型のMacで表示されます。Quillmarkのほかの機能はすべて通常どおり使えます。</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>バッテリーの健康度はノート型のコンピュータで表示されます。Quillmarkのほかの機能はすべて通常どおり使えます。</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>充電中、満充電まで%1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>満充電</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>バッテリーで動作中、残り%1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>バッテリーで動作中</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>接続中、充電していません</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>定格%1回</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>正常範囲: 10～45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1・%2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>システムからの報告</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>バッテリーの健康度は報告されていません</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>バッテリーの健康度%1パーセント、%2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>PDFレポート</translation>
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
        <translation>プレーンテキスト</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>印刷や送付にそのまま使えるレイアウト済みのページ</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>すべての値、スクリプトやツール向け</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>メモやWiki、Issue向けの表</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>「テキストとしてコピー」と同じテキスト</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finderに表示</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>ファイルマネージャに表示</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>変更%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>追加%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>削除%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>古い方</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>新しい方</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>最初のスキャン</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>差はありません</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>どちらのスキャンも同じ機能を示しています。稼働時間のように常に変わる値は比較されません。</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>2つのスキャンは言語が異なるため、状態の変更だけを表示しています。</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>保存されたスキャンはまだありません</translation>
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
        <translation>対応</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>非対応</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>未リクエスト</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>制限あり</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>なし（デスクトップ）</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Bluetooth機器</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>AirPlay機器</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhoneまたはiPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1、%nチャンネル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1（通話品質: マイクを使用中）</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>内蔵スピーカー</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>内蔵マイク</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>サウンド出力</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>最高出力レート</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>サウンド入力</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1／%2&#xa0;Wh</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1／%2&#xa0;mAh</translation>
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
        <translation>充電中</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>満充電</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>接続中、充電していません</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>バッテリーで動作中</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>計算中</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>満充電まで%1</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>バッテリーの健康度</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>バッテリーの状態</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>バッテリー容量</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>バッテリー温度</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>充電量</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>残り時間</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>external</source>
        <translation>外付け</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>カメラ%1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>最大画像</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>最大画像（カメラ%1）</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1、最大%2フレーム/秒</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>センターフレーム</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>センターフレーム（カメラ%1）</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>サウンドカード</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>出力</translation>
    </message>
    <message>
        <source>input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>サウンドカード%1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>カメラへのアクセス</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>マイクへのアクセス</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>カメラとオーディオ</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>主</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>ミラーリング</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1、最大%2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1, %2&#xa0;Hz</source>
        <translation>%1、%2&#xa0;Hz</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>%1 (looks like %2)</source>
        <translation>%1（擬似解像度%2）</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>固定</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1～%2 Hz（ProMotion）</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1～%2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>最大%1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1インチ、%2&#xa0;ppi</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1インチ</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>可変リフレッシュレート</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>可変リフレッシュレート（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>拡張ダイナミックレンジ</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>拡張ダイナミックレンジ（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>広色域</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>広色域（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>ディスプレイ%1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>解像度（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>スケーリング</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>スケーリング（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>サイズ（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>接続（ディスプレイ%1）</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>接続中のディスプレイ</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>ディスプレイ</translation>
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
        <translation>macOS 26が必要</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>推奨GPUメモリ</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Apple GPUファミリー</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>レイトレーシング</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>ハードウェアレイトレーシング</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>グラフィックスとMetal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>オン、暗号化中</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>オフに切り替え中</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>オフ（ディスクはハードウェアで暗号化されています）</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>一部オン</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>オン、外部からの接続をすべてブロック</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>利用可能</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>システム設定でオフ</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>準備中（ダウンロード中、またはこの言語や地域では提供なし）</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>CPUのみ</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Core MLアクセラレーション</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Neural Engineのコア</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>GPUのコア</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Int8行列命令</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>検出、ドライバなし</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限なし</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>ニューラルプロセッサ</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>GPU計算</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>人工知能</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>仮想マシン</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux、強制</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux、許容</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>すべて緩和済み</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>未緩和%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>セキュアブート</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>ディスクの暗号化</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>アクセス制御</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>プロセッサの脆弱性</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>シール済み</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>シールなし</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>シール済みシステムボリューム</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>セキュリティなし</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>標準のセキュリティ</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>完全なセキュリティ</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>利用可能、未設定</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>利用可能、ロック中</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>システム整合性保護</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>ファイアウォール</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>ロックダウンモード</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>ハードウェアなし</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>ソフトウェアのみ</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>読み書き</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み出しのみ</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>H.264デコード</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>HEVCデコード</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>VP9デコード</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>AV1デコード</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>ProResデコード</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>H.264エンコード</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>HEVCエンコード</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ProResエンコード</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>AV1エンコード</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>HEIC画像</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>AVIF画像</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>読み取り不可（vainfoがインストールされていません）</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>読み取り不可（GPUがスリープ中）</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>ビデオドライバ</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>モバイル通信</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>このネットワークでは提供なし</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>従量制接続</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>省データモード</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1（自己割り当て）</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>アドレス（%1）</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>検出なし</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1、全二重</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1、半二重</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>Ethernetの速度</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>Ethernet %1の速度</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>電源アダプタ</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>電源コンセント</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>バランス</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>パフォーマンス</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>低電力</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>冷却</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>低電力モード</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>充電上限</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>電源プロファイル</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>SME命令</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>BF16命令</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>AVX2命令</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>AVX-512命令</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>物理コア</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>論理コア</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>高性能コア</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>高効率コア</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサ</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>最大周波数</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>メモリ（RAM）</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>プロセッサとメモリ</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1（少ない）</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>ファイルのクローン</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>大文字と小文字の区別</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>起動ボリューム</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>ハードディスク</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>取り外し可能</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>ディスク%1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>接続（ディスク%1）</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM（ディスク%1）</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>読み出し専用</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>ボリューム%1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>ボリュームの容量</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>ボリュームの容量（ボリューム%1）</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>Rosetta経由</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>やや高温</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>危険</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>デバイス名</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>機種ID</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>オペレーティングシステム</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>稼働時間</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>熱の状態</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>使用中のWi-Fi規格</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Wi-Fi帯域</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Wi-Fi信号</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Wi-Fi速度</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>ユニファイドメモリ</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>低電力</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>外付けeGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1 dBm（良好）</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1 dBm（普通）</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1 dBm（弱い）</translation>
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
        <translation>充電中</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>システムと同じ（%1）</translation>
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
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>昨日 %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>昨日 %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>検査日時: 今日 %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>検査日時: 昨日 %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>検査日: %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>最終確認: 今日 %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>最終確認: 昨日 %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>最終確認: %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>全%nセクション、検査日時: 今日 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>全%nセクション、検査日時: 昨日 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>全%nセクション、検査日: %1。</numerusform>
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
        <translation>なし</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>バッテリー・充電中</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>メモリプレッシャー: 正常</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>メモリプレッシャー: 高め</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>メモリプレッシャー: 危険</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>やや高温</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>危険</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
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
        <translation>高め</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>危険</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>パフォーマンスの制限なし</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>やや高温、制限なし</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>パフォーマンスが低下しています</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>パフォーマンスが大幅に低下しています</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1パーセント、直近2分間は%2～%3パーセント</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%nコア、最も負荷の高いコアは%1パーセント</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%2中%1を使用、%3パーセント。プレッシャーは%4パーセント、%5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>受信%1、送信%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row of the menu: what it is, and its figure</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <extracomment>A row of the menu: what it is, its figure and a remark on it</extracomment>
        <translation>%1: %2（%3）</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサ</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>プレッシャー</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>スワップ</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>熱の状態</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>コンピュータ名</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>ボリューム名</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>機能スコア: %1%（評価対象%3件中%2件に対応）</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>メモリ%1</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>ストレージ%1</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>一致する行はありません。</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>このレポートから除外: %1。</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>注目点</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1（続き）</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%2件中%1件に対応</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>このMac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>このMacが本当にできること</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>このコンピュータが本当にできること</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>%1で作成・データはすべてこのMacで読み取られました</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>%1で作成・データはすべてこのコンピュータで読み取られました</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>評価対象の機能のうち、このMacが対応する割合</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>評価対象の機能のうち、このコンピュータが対応する割合</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>機能スコア</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>評価対象なし</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Quillmarkレポート</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>このレポートの内容</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>%1ページ</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1／%2ページ</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>検査日時: %1 %2</translation>
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
        <translation>除外</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>アドレス%1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>レポートを保存できませんでした。</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>同じ名前のファイルがすでにあります。</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>これはフォルダです。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダが存在しません。</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>ここに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>“%1”の空き容量が足りません。</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>ディスクの接続が解除されています。</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>この名前のファイルは作れません。</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>システムからの報告: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, グラフィックカード, グラフィックボード, グラボ, ビデオカード, 3d, ゲーム</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, ml, 機械学習, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>画面, スクリーン, モニタ, モニター</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>ビデオ, 動画, 映像, コーデック</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>電力, 省エネルギー, エネルギー, バッテリー, 電池</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>インターネット, オンライン</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>安全, 保護</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>コンピュータ名, コンピューター名, ホスト名, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>モデル, 機種</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, システムバージョン, バージョン, macos, linux, ビルド</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64ビット, 64 bit, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>起動時間, 起動日時, 再起動, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>温度, 熱, 発熱, スロットリング, ファン</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, ハイパーバイザ, ハイパーバイザー</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, チップ, soc, プロセッサー</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>cpuコア</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cpuコア, スレッド, ハイパースレッディング, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>クロック, クロック周波数, 動作周波数, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, メインメモリ, 主記憶</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, ビデオメモリ</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, 作文ツール, 言語モデル</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, リフレッシュレート</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, 輝度, 明るさ</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, 色域</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>ピクセル, 画素, ヘルツ, hz, 4k, 5k, リフレッシュレート</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, ビデオデコード, 動画再生, 再生</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, ビデオエンコード, 動画圧縮, 録画</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, ビデオデコード, 動画再生, 再生</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, ビデオエンコード, 動画圧縮, 録画</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, 写真, 画像</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>webカメラ, ウェブカメラ, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>スピーカー, サウンド, オーディオ, 音声</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>マイク, サウンド, オーディオ, 音声</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>マイク, 権限, 許可, プライバシー</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>webカメラ, ウェブカメラ, 権限, 許可, プライバシー</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>オーディオ, 音声, スピーカー, ヘッドフォン, ヘッドホン</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>オーディオ, 音声, マイク</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>オーディオ, 音声</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>サンプルレート, サンプリングレート, ハイレゾ</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>ディスク容量, ディスクサイズ</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>空き領域, 残り容量, ディスク容量, いっぱい</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, ドライブ, ハードディスク, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>パーティション, ドライブ</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>電源接続, コンセント, ac電源</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>充電器, acアダプタ, acアダプター, ワット</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>最大容量, 劣化, 消耗</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>バッテリー駆動時間, 駆動時間, 持続時間</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>省エネルギー, 省電力, 節電</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, 無線lan, ワイヤレス, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, 無線lan, ワイヤレス, wifi, 受信, 電波</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, 無線lan, ワイヤレス, wifi, 速度</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, 無線lan, イーサネット, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>ipアドレス, ip アドレス</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, 暗号化</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>暗号化, ディスクの暗号化, ディスク暗号化</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>指紋, 生体認証</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, セキュリティチップ</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, 起動セキュリティ, セキュアブート, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>ウイルス, ウィルス, マルウェア, アンチウイルス</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>マルウェア, 公証, アプリの署名, 署名</translation>
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
        <translation>別のコンピュータ</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>「quillmark history record」はこのコンピュータを検査し、最初のスキャンを保存します。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピュータ</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>スコア</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>前回との差</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>%1のスキャン</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>機能スコア</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>評価対象%2件中%1件に対応</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>一致する行はありません。</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>バッテリーの健康度</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>%1のスキャンを削除しました。</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>保存されたスキャンをすべて削除しました。</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>スキャン%1を保存しました。</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>%1のスキャンから変更がないため、保存しませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>保存されたスキャン: %n件</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>y, yes, はい</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>保存されたスキャン%n件を削除します。この操作は取り消せません。削除しますか？ [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>ダウンロード: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>リリースノート: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmarkはリクエストを送信していません。</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
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
        <translation>サンプルを収集中…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>qで終了</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>1秒ごとに更新・直近2分間</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>ライブモニタ</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサ</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%nコア</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>コア別</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>／%1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>プレッシャー</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>受信</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1分</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2分</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>熱の状態</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>使用中のスワップ</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>プロセッサ%1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>メモリ%1／%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>使用中のスワップ%1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>受信%1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>送信%1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>熱の状態: %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>%1に接続できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1は%1であることを証明できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1から時間内に応答がありませんでした。</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>%1の応答は、フィードとして許される長さを超えています。</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1は別のアドレスに転送しようとしましたが、アクセスしませんでした: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1はフィードの代わりにステータス%2を返しました。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>%1の応答はフィードではありません。文書型が宣言されています。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>%1の応答はフィードではありません。別の種類のXMLです。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>%1の応答はフィードではありません。フィードとしては内容が多すぎます。</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>今すぐ、および以後ウインドウを開いたときに1日1回まで、新しいバージョンがあるかどうかをQuillmarkが%1に問い合わせてもよろしいですか？</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>リクエストに含まれるのはQuillmarkのバージョンだけで、個人やこのコンピュータに関する情報は含まれません。何もインストールされません。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>Quillmark %1を利用できます（スキップするように選択したバージョンです）。お使いのバージョンは%2です。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>Quillmark %1（重要なアップデート）を利用できます。お使いのバージョンは%2です。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1を利用できます。お使いのバージョンは%2です。</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1は最新です。</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>新しいバージョンがあるかどうかを確認できませんでした。</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>同意されていないため、%1には問い合わせませんでした。</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>アップデートフィードのアドレスがhttpsではありません: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>リクエストの記録に書き込めないため、%1には問い合わせませんでした。</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>%1の応答はフィードではありません。XMLではないか、XMLの一部だけです。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Quillmarkについて</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン%1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>お使いのMacが本当にできることをお知らせします。
読み取った情報がこのMacの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>お使いのコンピュータが本当にできることをお知らせします。
読み取った情報がこのコンピュータの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>アップデートを確認</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Quillmarkについて</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>再検査</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウインドウを閉じる</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>検索…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>スキャン履歴</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>バッテリーの健康度</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>ライブモニタ</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>前のセクション</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>次のセクション</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>サイドバーを非表示</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>しまう</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大／縮小</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>すべてを手前に移動</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmarkヘルプ</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>新機能</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>設計容量比</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>現在の容量</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>設計容量</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充電量</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>バッテリーの健康度</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>設計容量に対する現在の容量の割合です。80%以上なら良好です。</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>1回は完全な放電1回分です。数日に分けて放電した場合も同じです。</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>バッテリーは使用よりも熱によって早く劣化します。直射日光を避けてください。</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>今日%1に読み取りました。値はバッテリー内蔵のコントローラによるもので、読み取るたびにわずかに異なることがあります。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>値をコピー</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A row for screen readers: &quot;Touch ID, Available, Supported&quot;</extracomment>
        <translation>%1、%2、%3</translation>
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
        <translation>2分</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1分</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonModel</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A value and its status, for screen readers: &quot;Turned off, Warning&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Changed: %1, from %2, to %3</source>
        <extracomment>For screen readers: &quot;Changed: Metal 4, from Requires macOS 26, Not supported, to Supported&quot;</extracomment>
        <translation>変更: %1、%2から%3へ</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>追加: %1、%2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>削除: %1、%2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: 追加、%2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: 削除、%2</translation>
    </message>
    <message>
        <source>%1: %2 · %3 · %4 · %5</source>
        <extracomment>The head of a comparison: &quot;Older: 12 November 2025, 19:20 · Nora’s Mac · macOS 26.1 · 82%&quot;</extracomment>
        <translation>%1: %2・%3・%4・%5</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonView</name>
    <message>
        <source>Differences</source>
        <translation>差分</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>スコア</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1、%n行</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>すべての変更</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%nページ、USレター</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%nページ、A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>検査結果を書き出す</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>名前とアドレスを除外</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>このMacを検査中…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>このコンピュータを検査中…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>このMacが本当にできることを確認</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>このコンピュータが本当にできることを確認</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>ハードウェアとシステムのあらゆる機能を、わかりやすい状態表示とともに。</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>11のセクション、1つのスコア</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>プロセッサやグラフィックスから、コーデック、ディスプレイ、セキュリティまで。</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>すべての変更を保存</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>任意の2つのスキャンを比較して、アップデートで何が変わったかを確認できます。</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>データは外に出ません</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>このMacに関する情報はどこにも送信されません。Quillmarkがインターネットに接続するのは、自身のアップデートを確認するときだけです。</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>このコンピュータに関する情報はどこにも送信されません。Quillmarkがインターネットに接続するのは、自身のアップデートを確認するときだけです。</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>最大で1日1回%1に問い合わせ、Quillmarkのバージョンだけを伝えます。</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>メニューバーにライブモニタを表示</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>システムトレイにライブモニタを表示</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>はじめる</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Quillmarkを開いたとき:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>スキャン履歴:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>プライバシー:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>概要を表示</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>最後に使った画面を表示</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>履歴を消去…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Quillmarkが読み取った情報がこのMacの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Quillmarkが読み取った情報がこのコンピュータの外に出ることはありません。</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>外部に接続するのは、アップデートを確認するときだけです。</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n件のスキャンを保存済み（最大%1件）</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>再検査</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>メニュー（F10）</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>機能スコア</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>機能スコア: %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>評価対象の機能のうち、このMacが対応する割合</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>評価対象の機能のうち、このコンピュータが対応する割合</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>評価対象なし</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%n件中%1件の機能</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1パーセント、%n件中%2件の機能に対応</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>このMacを検査中…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>このコンピュータを検査中…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>通常より時間がかかっています</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>ハードウェアとシステム設定を読み取り中</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>今月</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>別のMac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>別のコンピュータ</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two items of a list: &quot;3 changed, 1 added&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4, %5, %6</source>
        <extracomment>A saved scan for screen readers: date, system, counts of three statuses, what it changed</extracomment>
        <translation>%1、%2、%3、%4、%5、%6</translation>
    </message>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>対応%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>非対応%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>警告%n件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>スキャンを比較</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>スキャン履歴</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>何かが変わるたびにスキャンが保存されます。最新の200件がこのMacに保持されます。</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>何かが変わるたびにスキャンが保存されます。最新の200件がこのコンピュータに保持されます。</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>検査で新しいことが見つかるたびに、スキャンが保存されます。このMacを検査すると、最初のスキャンが保存されます。</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>検査で新しいことが見つかるたびに、スキャンが保存されます。このコンピュータを検査すると、最初のスキャンが保存されます。</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>今すぐ検査</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>保存されたスキャン</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>履歴を消去…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n件のスキャンを保存済み</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>1件のスキャンを選択中・もう1件選択してください</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>2件のスキャンを選択中</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>このスキャンを削除しますか？</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>%1のスキャンを履歴から削除します。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>スキャン履歴を消去しますか？</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>保存されたスキャン%n件をすべて削除します。この操作は取り消せません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>スキャン履歴を保存できませんでした。</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>別のQuillmarkが履歴を使用しています。ここで行ったスキャンは、そのQuillmarkが終了するまで保持されます。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::IconButton</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>Tool tip of a button: its name and its shortcut, &quot;Inspect again (Ctrl+R)&quot;</extracomment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>quillmark::app::LanguagePane</name>
    <message>
        <source>Interface language:</source>
        <translation>インターフェイスの言語:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>インターフェイスの言語</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>新しい言語はすぐに使われます。別の言語で保存されたスキャンも引き続き比較できます。</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>サンプルを収集中…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmarkを開く</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmarkライブモニタ</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>使用中のメモリ: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>プロセッサの負荷: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmarkライブモニタ</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>1秒ごと</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>サンプルを収集中…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmarkを開く</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>メニューバー:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>アイコンの横に表示:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>ウインドウ:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>メニューバーにライブモニタを表示</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmarkは終了するまでメニューバーに残ります</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>システムトレイ:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>システムトレイにライブモニタを表示</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmarkは終了するまでシステムトレイに残ります</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>このデスクトップ環境にはシステムトレイがありません。</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>プロセッサの負荷</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>使用中のメモリ</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>アイコンのみ</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>メインウインドウを閉じても実行を続ける</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>ライブモニタ</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>1秒ごとに更新・直近2分間</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>サンプルを収集中…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>最初の値は約1秒後に届きます。</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサ</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>コア別</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>熱の状態</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>使用中のスワップ</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>すべてのインターフェイス</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>起動ボリューム上</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%nコア</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>／%1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>プレッシャー</translation>
    </message>
    <message>
        <source>In</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>電源アダプタ接続中</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>充電していません</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>最初のスキャンを保存しました</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>以後のスキャンはこれと比較されます</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>変更%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>追加%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>削除%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>%1以降</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>差はありません</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>スキャンを比較</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>検査結果を書き出す</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>レポートを保存しました。</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>別の場所を選択…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>“%1”の検索結果</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%nセクション</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%1の%n行</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>絞り込み: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>一致する行はありません</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>“%1”を含むものはありません。表記を確認するか、短い言葉で試してください。</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>“%1”を含み、状態が“%2”の行はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>ほかの状態では%n行が一致します。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>一致する行はありません</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>ここには状態が“%1”の行はありません。</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>すべての状態を表示</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>対応%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>非対応%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>警告%n件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>情報%n件</numerusform>
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
        <translation>このMacを検査中…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>このコンピュータを検査中…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>このセクションに評価対象はありません</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>評価対象%n件中%1件に対応</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>システムトレイ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>検査中…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>CPU、メモリ、温度、バッテリー、ネットワークのリアルタイムグラフ</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1、警告%n件</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>スキャン履歴</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>バッテリーの健康度</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>ライブモニタ</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1、%n行</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>ウインドウ内のすべての項目はキーボードで操作できます。Tabキーで領域間を、矢印キーで領域内を移動し、スペースキーとReturnキーで選択し、Escキーで戻ります。</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>コマンドライン</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>ウインドウに表示される内容はすべて、quillmarkコマンドでも確認できます。quillmark --helpを参照してください。</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmarkヘルプ</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>新しいバージョンがあるかどうかをQuillmarkが%1に問い合わせてもよろしいですか？</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>1日1回問い合わせる</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>今回だけ問い合わせる</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>アップデートを確認できませんでした。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>Quillmark %1（重要なアップデート）を利用できます。</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1を利用できます。</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>お使いのバージョンは%1です。</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>ダウンロード…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Quillmark %1の新機能</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>アップデート:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Quillmarkの起動時に、1日1回%1に問い合わせます</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>未確認</translation>
    </message>
</context>
</TS>
