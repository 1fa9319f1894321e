<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>보고되지 않음</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>감소</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>노후</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>저온</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>고온</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>서비스 권장</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>영구 고장</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>이 배터리는 확인이 필요합니다.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>이 배터리는 충전할 수 있는 양을 알려주지 않습니다.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>이 배터리는 상태가 좋습니다.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>이 배터리는 예전보다 적은 양을 충전합니다.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>이 배터리는 노후되었습니다.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>새것일 때와 거의 같은 양을 충전합니다.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>여전히 잘 작동하지만 사용 시간이 눈에 띄게 짧습니다.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>교체를 고려하십시오.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>정격 사이클 수에 도달했습니다.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>온도가 높습니다.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>설계 용량의 %1</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>macOS 보고: %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>macOS는 수치를 평준화하고 여유분을 남겨 두므로 두 값이 몇 포인트 다를 수 있습니다.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>이 Mac에는 배터리가 없습니다</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>이 컴퓨터에는 배터리가 없습니다</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>배터리 성능 상태는 휴대용 Mac에서 표시됩니다. Quillmark의 다른 기능은 모두 평소처럼 작동합니다.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>배터리 성능 상태는 휴대용 컴퓨터에서 표시됩니다. Quillmark의 다른 기능은 모두 평소처럼 작동합니다.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>충전 중, 완충까지 %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>충전 중</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>완충됨</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>배터리 사용 중, %1 남음</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>배터리 사용 중</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>연결됨, 충전 중 아님</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>정격 사이클 %1회</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>정상: 10~45&#xa0;°C</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>시스템에서 보고함</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>배터리 성능 상태가 보고되지 않음</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>배터리 성능 상태 %1퍼센트, %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>PDF 보고서</translation>
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
        <translation>일반 텍스트</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>바로 인쇄하거나 보낼 수 있는 디자인된 페이지</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>스크립트와 도구를 위한 모든 값</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>메모, 위키, 이슈를 위한 표</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>‘텍스트로 복사’와 같은 텍스트</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finder에서 보기</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n개 변경됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n개 추가됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n개 제거됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>추가됨</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>제거됨</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>이후</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>첫 번째 검사</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>차이 없음</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>두 검사가 같은 기능을 보여줍니다. 가동 시간처럼 계속 변하는 값은 비교하지 않습니다.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>두 검사의 언어가 서로 다르므로 상태의 변경만 표시됩니다.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>저장된 검사가 아직 없음</translation>
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
        <translation>지원됨</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>지원되지 않음</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>아직 요청하지 않음</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>제한됨</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>거부됨</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>허용됨</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>내장</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>없음</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>없음(데스크탑)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>Bluetooth 기기</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>AirPlay 기기</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone 또는 iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;kHz</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n채널</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1(통화 음질: 마이크 사용 중)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>내장 스피커</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>내장 마이크</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>사운드 출력</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>출력 포맷</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>최고 출력 속도</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>사운드 입력</translation>
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
        <translation>충전 중</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>완충됨</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>연결됨, 충전 중 아님</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>배터리 사용 중</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>계산 중</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>완충까지 %1</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>배터리 성능 상태</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>배터리 상태</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>사이클 수</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>배터리 용량</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>배터리 온도</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>충전량</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>남은 시간</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>external</source>
        <translation>외장</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>카메라 %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>최대 화면</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>최대 화면(카메라 %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1, 초당 최대 %2프레임</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>센터 스테이지</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>센터 스테이지(카메라 %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>사운드 카드</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>출력</translation>
    </message>
    <message>
        <source>input</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>사운드 카드 %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>카메라 접근</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>마이크 접근</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>카메라 및 오디오</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>주</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>미러링됨</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1, 최대 %2&#xa0;Hz</translation>
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
        <translation>%1(%2처럼 보임)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>고정</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>%1~%2 Hz(ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>%1~%2&#xa0;Hz</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>최대 %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1인치, 인치당 %2픽셀</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1인치</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>가변 재생률</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>가변 재생률(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>확장 다이내믹 레인지</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>확장 다이내믹 레인지(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>넓은 색영역</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>넓은 색영역(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>디스플레이 %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>해상도(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>배율</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>배율(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>크기(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>연결(디스플레이 %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>연결된 디스플레이</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>디스플레이</translation>
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
        <translation>macOS 26 필요</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>권장 GPU 메모리</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>Apple GPU 계열</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>레이 트레이싱</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>하드웨어 레이 트레이싱</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>그래픽 및 Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>켬, 암호화 중</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>끄는 중</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>끔(디스크는 하드웨어로 계속 암호화됨)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>일부 켬</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>켬, 들어오는 모든 연결 차단</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>시스템 설정에서 꺼짐</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>준비되지 않음(다운로드 중이거나 이 언어 또는 지역에서 제공되지 않음)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>CPU만</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>Core ML 가속</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>Neural Engine 코어</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>GPU 코어</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>Int8 행렬 명령어</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>찾음, 드라이버 없음</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>신경망 프로세서</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>GPU 연산</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>인공지능</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>가상 머신</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux, 강제</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux, 허용</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>모두 완화됨</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n개 완화되지 않음</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>보안 부팅</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>디스크 암호화</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>접근 제어</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>프로세서 취약점</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>봉인됨</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>봉인되지 않음</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>손상됨</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>봉인된 시스템 볼륨</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>보안 없음</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>중간 보안</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>전체 보안</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>사용 가능, 설정되지 않음</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>사용 가능, 잠김</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>시스템 무결성 보호</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>방화벽</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>차단 모드</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>하드웨어</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>하드웨어 미지원</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>소프트웨어만</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>읽기 및 쓰기</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>H.264 디코딩</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>HEVC 디코딩</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>VP9 디코딩</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>AV1 디코딩</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>ProRes 디코딩</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>H.264 인코딩</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>HEVC 인코딩</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ProRes 인코딩</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>AV1 인코딩</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>HEIC 이미지</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>AVIF 이미지</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>읽을 수 없음(vainfo가 설치되지 않음)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>읽을 수 없음(GPU가 잠자는 중)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>비디오 드라이버</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>미디어</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>셀룰러</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>이 네트워크에서 제공하지 않음</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>종량제 연결</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>저데이터 모드</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1(자체 할당)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>주소(%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>활성</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>감지되지 않음</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;Mbit/s</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1, 전이중</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1, 반이중</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>이더넷 속도</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>이더넷 %1 속도</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>전원 어댑터</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>전원 콘센트</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>내장</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;W</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>균형</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>성능</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>저전력</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>저소음</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>냉각</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>저전력 모드</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>충전 한도</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>전원 프로필</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>전원 공급원</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>전원</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>SME 명령어</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>BF16 명령어</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>AVX2 명령어</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>AVX-512 명령어</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>물리 코어</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>논리 코어</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>고성능 코어</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>고효율 코어</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>최대 주파수</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>메모리(RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>프로세서 및 메모리</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>보안</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1(적음)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>파일 복제</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>대소문자 구분</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>시동 볼륨</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>사용 가능한 공간</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>파일 시스템</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>하드 디스크</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>이동식</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>디스크 %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>연결(디스크 %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM(디스크 %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>볼륨 %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>볼륨 공간</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>볼륨 공간(볼륨 %1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>저장 공간</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>Rosetta 사용</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>아키텍처</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>따뜻함</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>뜨거움</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>위험</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>기기 이름</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>모델 식별자</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>운영 체제</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>가동 시간</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>발열 상태</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>사용 중인 Wi-Fi 표준</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>Wi-Fi 대역</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>Wi-Fi 신호</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>Wi-Fi 속도</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>통합 메모리</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>저전력</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>외장 eGPU</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>없음</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm(좋음)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm(보통)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm(약함)</translation>
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
        <translation>충전 중</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>시스템과 동일(%1)</translation>
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
        <translation>오늘 %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>어제 %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>오늘 %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>어제 %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>검사 일시: 오늘 %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>검사 일시: 어제 %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>검사 날짜: %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>마지막 확인: 오늘 %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>마지막 확인: 어제 %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>마지막 확인: %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n개 섹션 모두, 검사 일시: 오늘 %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n개 섹션 모두, 검사 일시: 어제 %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n개 섹션 모두, 검사 날짜: %1.</numerusform>
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
        <translation>없음</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>배터리 · 충전 중</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>압력 정상</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>압력 높음</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>압력 위험</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>따뜻함</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>뜨거움</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>위험</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>정상</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>높음</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>위험</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>성능 제한 없음</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>약간 따뜻함, 제한 없음</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>성능이 낮아짐</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>성능이 크게 낮아짐</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1퍼센트, 최근 2분 동안 %2~%3퍼센트</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>코어 %n개, 사용률이 가장 높은 코어는 %1퍼센트</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%2 중 %1 사용됨, %3퍼센트. 압력 %4퍼센트, %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>수신 %1, 송신 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A row of the menu: what it is, and its figure</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <extracomment>A row of the menu: what it is, its figure and a remark on it</extracomment>
        <translation>%1: %2(%3)</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>압력</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>스왑</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>발열 상태</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>볼륨 이름</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>기능 점수: %1%(평가 대상 %3개 중 %2개 지원)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>메모리 %1</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>저장 공간 %1</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>일치하는 행이 없습니다.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>이 보고서에서 제외됨: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>살펴볼 항목</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1(계속)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n행</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>외 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%2개 중 %1개 지원</translation>
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
        <translation>이 Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>이 Mac이 실제로 할 수 있는 것</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>이 컴퓨터가 실제로 할 수 있는 것</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>%1(으)로 제작 · 모든 데이터는 이 Mac에서 읽었습니다</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>%1(으)로 제작 · 모든 데이터는 이 컴퓨터에서 읽었습니다</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>평가 대상 기능 중 이 Mac이 지원하는 비율</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>평가 대상 기능 중 이 컴퓨터가 지원하는 비율</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>기능 점수</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>평가 대상 없음</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>Quillmark 보고서</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>이 보고서의 내용</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>%1쪽</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2쪽 중 %1쪽</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>검사 일시: %1 %2</translation>
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
        <translation>제외됨</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>주소 %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>보고서를 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>같은 이름의 파일이 이미 있습니다.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>폴더입니다.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>폴더가 없습니다.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>이 위치에 쓸 권한이 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>‘%1’에 여유 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>디스크가 더 이상 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>파일에 사용할 수 없는 이름입니다.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>시스템 메시지: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, 그래픽 카드, 그래픽카드, 비디오 카드, 3d, 게임</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, ml, 머신 러닝, 머신러닝, 기계 학습, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>화면, 모니터, 스크린</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>비디오, 동영상, 코덱</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>에너지, 전력, 배터리</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>인터넷, 온라인</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>안전, 보호</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>컴퓨터 이름, 호스트 이름, 호스트명, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>모델, 기종</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, 시스템 버전, 버전, macos, linux, 리눅스, 빌드</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64비트, 64 bit, arm, x86, rosetta, 로제타</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>켜진 시간, 부팅, 재시동, 재시작</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>온도, 열, 발열, 스로틀링, 팬</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, 하이퍼바이저</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, 칩, soc</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>cpu 코어</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>cpu 코어, 스레드, 쓰레드, 하이퍼스레딩, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>클럭, 클록, 동작 속도, ghz, mhz</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, 램, 주기억 장치, 메인 메모리</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, 비디오 메모리, 그래픽 메모리</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, 시리, 글쓰기 도구, 언어 모델</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai, 뉴럴 엔진</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, 주사율, 재생률</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, 밝기</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, 색역, 색 영역</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>픽셀, 화소, 헤르츠, hz, 4k, 5k, 주사율, 재생률</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>레티나, retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, 비디오 디코딩, 동영상 재생, 재생</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, 비디오 인코딩, 동영상 녹화, 녹화</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, 비디오 디코딩, 동영상 재생, 재생</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, 비디오 인코딩, 동영상 녹화, 녹화</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, 사진, 그림</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>웹캠, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>스피커, 사운드, 소리, 오디오</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>마이크, 사운드, 소리, 오디오</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>마이크, 권한, 개인정보</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>웹캠, 권한, 개인정보</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>오디오, 소리, 스피커, 헤드폰, 이어폰</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>오디오, 소리, 마이크</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>오디오, 소리</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>샘플 레이트, 샘플링, 고음질, hi-res</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>디스크 공간, 디스크 크기</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>여유 공간, 남은 공간, 디스크 공간, 가득 참</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, 드라이브, 하드 디스크, 하드디스크, hdd</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>파티션, 드라이브</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>전원 연결, 콘센트</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>충전기, 전원 공급 장치, 와트</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>최대 용량, 최대 성능 상태, 마모, 노후</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>배터리 사용 시간, 사용 시간</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>에너지 절약, 절전</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, 무선, 무선랜, 와이파이, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, 무선, 무선랜, 와이파이, wifi, 수신</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, 무선, 무선랜, 와이파이, wifi, 속도</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, 와이파이, wlan, 무선랜, 이더넷, ethernet, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>ip 주소, ip주소, 아이피</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, 암호화됨, 암호화</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>암호화, 암호화됨, 디스크 암호화</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>지문, 생체 인식, 터치 아이디</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, 보안 칩</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, 시동 보안, 시큐어 부트, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>바이러스, 악성 코드, 악성코드, 멀웨어, 백신</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>악성 코드, 악성코드, 멀웨어, 공증, 앱 서명</translation>
    </message>
    <message>
        <source>spectre, meltdown</source>
        <translation>spectre, meltdown, 스펙터, 멜트다운</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Another computer</source>
        <translation>다른 컴퓨터</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>‘quillmark history record’로 이 컴퓨터를 검사하고 첫 번째 검사를 저장합니다.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>일시</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>점수</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>이전 검사와 비교</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>%1의 검사</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>기능 점수</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>평가 대상 %2개 중 %1개 지원</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>일치하는 행이 없습니다.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>배터리 성능 상태</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>%1의 검사를 제거했습니다.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>저장된 검사를 모두 제거했습니다.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>검사 %1을(를) 저장했습니다.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>%1의 검사 이후 변경된 것이 없어 저장하지 않았습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>저장된 검사 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>y, yes, 예</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>저장된 검사 %n개를 제거합니다. 이 작업은 취소할 수 없습니다. 제거하겠습니까? [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>다운로드: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>릴리스 노트: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>Quillmark가 보낸 요청이 없습니다.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
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
        <translation>샘플 수집 중…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q를 누르면 종료</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>매초 업데이트 · 최근 2분</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>실시간 모니터</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>코어 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>코어별</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>사용됨</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>압력</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>수신</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>송신</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1분</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>2분</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>발열 상태</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>사용된 스왑</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>프로세서 %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>메모리 %1/%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>사용된 스왑 %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>수신 %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>송신 %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>발열 상태 %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>%1에 연결할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>%1에서 자신이 %1임을 증명하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1에서 제시간에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>%1의 응답이 피드에 허용된 길이를 초과합니다.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>%1에서 다른 주소로 안내했으나 따르지 않았습니다: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>%1에서 피드 대신 상태 %2 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>%1의 응답은 피드가 아닙니다. 문서 유형을 선언하고 있습니다.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>%1의 응답은 피드가 아닙니다. 다른 종류의 XML입니다.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>%1의 응답은 피드가 아닙니다. 어떤 피드보다도 많은 내용이 들어 있습니다.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>Quillmark가 지금, 그리고 이후 윈도우를 열 때 하루에 최대 한 번 %1에 새로운 버전이 있는지 확인해도 되겠습니까?</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>요청에는 Quillmark의 버전만 포함되며 사용자나 이 컴퓨터에 관한 정보는 포함되지 않습니다. 아무것도 설치되지 않습니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>건너뛰기로 선택한 Quillmark %1 버전을 사용할 수 있습니다. 현재 버전은 %2입니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>중요한 업데이트인 Quillmark %1 버전을 사용할 수 있습니다. 현재 버전은 %2입니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>Quillmark %1 버전을 사용할 수 있습니다. 현재 버전은 %2입니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>Quillmark %1 버전은 최신 상태입니다.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>새로운 버전이 있는지 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>동의하지 않았으므로 %1에 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>업데이트 피드의 주소가 https 주소가 아닙니다: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>요청 기록을 쓸 수 없으므로 %1에 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>%1의 응답은 피드가 아닙니다. XML이 아니거나 XML의 일부입니다.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>Quillmark에 관하여</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>Mac이 실제로 할 수 있는 것을 알려줍니다.
읽은 모든 정보는 이 Mac에만 남아 있습니다.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>컴퓨터가 실제로 할 수 있는 것을 알려줍니다.
읽은 모든 정보는 이 컴퓨터에만 남아 있습니다.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>업데이트 확인</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>윈도우</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>Quillmark에 관하여</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>다시 검사</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>윈도우 닫기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>전체 선택</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>찾기…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>검사 기록</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>배터리 성능 상태</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>실시간 모니터</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>이전 섹션</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>다음 섹션</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>사이드바 가리기</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>모두 앞으로 가져오기</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark 도움말</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>새로운 기능</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>설계 용량 대비</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>현재 용량</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>설계 용량</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>충전량</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>사이클 수</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>상태</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>배터리 성능 상태</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>성능 상태</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>설계 용량에 대한 현재 용량의 비율입니다. 80% 이상이면 양호합니다.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>사이클 수</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>한 사이클은 한 번의 완전 방전을 뜻하며, 여러 날에 걸쳐 방전된 경우도 포함합니다.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>배터리는 사용보다 열로 인해 더 빨리 노후됩니다. 직사광선을 피하십시오.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>오늘 %1에 읽었습니다. 수치는 배터리 자체 컨트롤러에서 제공되며 읽을 때마다 조금씩 다를 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>값 복사</translation>
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
        <translation>2분</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>1분</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
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
        <translation>변경됨: %1, 이전 %2, 이후 %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>추가됨: %1, %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>제거됨: %1, %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: 추가됨, %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: 제거됨, %2</translation>
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
        <translation>차이</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>점수</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n행</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>모든 변경 사항</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n쪽, US 레터</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n쪽, A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>검사 결과 내보내기</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>이름 및 주소 제외</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>준비 완료</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>이 Mac 검사 중…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>이 컴퓨터 검사 중…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>이 Mac이 실제로 할 수 있는 것을 확인하십시오</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>이 컴퓨터가 실제로 할 수 있는 것을 확인하십시오</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>하드웨어와 시스템의 모든 기능을 명확한 상태와 함께 보여줍니다.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>11개의 섹션, 하나의 점수</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>프로세서와 그래픽부터 코덱, 디스플레이, 보안까지.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>모든 변경 사항 저장</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>두 검사를 골라 비교하고 업데이트로 무엇이 바뀌었는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>데이터는 여기에만 남습니다</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>이 Mac에 관한 정보는 어디에도 전송되지 않습니다. Quillmark는 자체 업데이트를 찾을 때만 인터넷에 연결합니다.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>이 컴퓨터에 관한 정보는 어디에도 전송되지 않습니다. Quillmark는 자체 업데이트를 찾을 때만 인터넷에 연결합니다.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>자동으로 업데이트 확인</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>하루에 최대 한 번 %1에 확인하며 Quillmark의 버전만 알립니다.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>메뉴 막대에 실시간 모니터 표시</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>시스템 트레이에 실시간 모니터 표시</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>시작하기</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>Quillmark를 열 때:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>검사 기록:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>개인정보 보호:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>개요 표시</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>마지막으로 사용한 화면 표시</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>기록 지우기…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>Quillmark가 읽은 모든 정보는 이 Mac에만 남아 있습니다.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>Quillmark가 읽은 모든 정보는 이 컴퓨터에만 남아 있습니다.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>업데이트를 확인할 때만 인터넷에 연결합니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>검사 %n개 저장됨, 최대 %1개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>복사됨</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>기능 검색</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>검색 지우기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>다시 검사</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>메뉴(F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>기능 점수</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>기능 점수: %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>평가 대상 기능 중 이 Mac이 지원하는 비율</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>평가 대상 기능 중 이 컴퓨터가 지원하는 비율</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>평가 대상 없음</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>기능 %n개 중 %1개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1퍼센트, 기능 %n개 중 %2개 지원</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>이 Mac 검사 중…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>이 컴퓨터 검사 중…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>평소보다 오래 걸리고 있습니다</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>하드웨어와 시스템 설정을 읽는 중</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>이번 달</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>다른 Mac</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>다른 컴퓨터</translation>
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
            <numerusform>%n개 지원됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n개 지원되지 않음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>경고 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>검사 비교</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>검사 기록</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>변경 사항이 있을 때마다 검사가 저장됩니다. 최근 200개가 이 Mac에 보관됩니다.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>변경 사항이 있을 때마다 검사가 저장됩니다. 최근 200개가 이 컴퓨터에 보관됩니다.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>새로운 내용이 발견될 때마다 Quillmark가 검사를 저장합니다. 이 Mac을 검사하면 첫 번째 검사가 저장됩니다.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>새로운 내용이 발견될 때마다 Quillmark가 검사를 저장합니다. 이 컴퓨터를 검사하면 첫 번째 검사가 저장됩니다.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>지금 검사</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>저장된 검사</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>선택 해제</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>기록 지우기…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>검사 %n개 저장됨</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>검사 1개 선택됨 · 하나 더 선택하십시오</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>검사 2개 선택됨</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>이 검사를 삭제하겠습니까?</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>%1의 검사를 기록에서 제거합니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>검사 기록을 지우겠습니까?</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>저장된 검사 %n개를 모두 제거합니다. 이 작업은 취소할 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>기록 지우기</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>검사 기록을 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>다른 Quillmark에서 기록을 사용하고 있습니다. 여기에서 수행한 검사는 해당 Quillmark가 종료될 때까지 유지됩니다.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::IconButton</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>Tool tip of a button: its name and its shortcut, &quot;Inspect again (Ctrl+R)&quot;</extracomment>
        <translation>%1(%2)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::LanguagePane</name>
    <message>
        <source>Interface language:</source>
        <translation>인터페이스 언어:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>예:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>인터페이스 언어</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>새로운 언어가 바로 적용됩니다. 다른 언어로 저장된 검사도 계속 비교할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>샘플 수집 중…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmark 열기</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmark 실시간 모니터</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>사용된 메모리: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>프로세서 부하: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>Quillmark 실시간 모니터</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>매초</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>샘플 수집 중…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>Quillmark 열기</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>메뉴 막대:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>아이콘 옆에 표시:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>윈도우:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>메뉴 막대에 실시간 모니터 표시</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>Quillmark는 종료할 때까지 메뉴 막대에 남아 있습니다</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>시스템 트레이:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>시스템 트레이에 실시간 모니터 표시</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>Quillmark는 종료할 때까지 시스템 트레이에 남아 있습니다</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>이 데스크탑 환경에는 시스템 트레이가 없습니다.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>프로세서 부하</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>사용된 메모리</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>아이콘만</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>기본 윈도우를 닫아도 계속 실행</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>실시간 모니터</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>매초 업데이트 · 최근 2분</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>샘플 수집 중…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>첫 번째 값은 약 1초 후에 표시됩니다.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>프로세서</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>코어별</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>발열 상태</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>사용된 스왑</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>모든 인터페이스</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>시동 볼륨에 있음</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>코어 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>사용됨</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>압력</translation>
    </message>
    <message>
        <source>In</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>송신</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>전원 어댑터 연결됨</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>충전 중 아님</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>첫 번째 검사 저장됨</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>이후 검사는 이 검사와 비교됩니다</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n개 변경됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n개 추가됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n개 제거됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>%1 이후</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>차이 없음</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>검사 비교</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>검사 결과 내보내기</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>보고서를 저장했습니다.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>다른 위치 선택…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>‘%1’ 검색 결과</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n개 섹션</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%1의 %n행</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>필터: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>일치하는 행 없음</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>‘%1’이(가) 포함된 항목이 없습니다. 철자를 확인하거나 더 짧은 단어로 시도하십시오.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>‘%1’이(가) 포함된 행 중 상태가 ‘%2’인 행이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>다른 상태에서는 %n행이 일치합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>검색 지우기</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>일치하는 행 없음</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>여기에는 상태가 ‘%1’인 행이 없습니다.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>모든 상태 보기</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n개 지원됨</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n개 지원되지 않음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>경고 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>정보 %n개</numerusform>
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
        <translation>이 Mac 검사 중…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>이 컴퓨터 검사 중…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>이 섹션에는 평가 대상이 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>평가 대상 %n개 중 %1개 지원</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>메뉴 막대</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>시스템 트레이</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>검사 중…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>사이드바</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>CPU, 메모리, 발열, 배터리, 네트워크의 실시간 차트</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, 경고 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>검사 기록</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>배터리 성능 상태</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>실시간 모니터</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n행</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>윈도우의 모든 항목을 키보드로 사용할 수 있습니다. Tab 키로 영역 사이를, 화살표 키로 영역 안을 이동하고, 스페이스바와 Return 키로 선택하며, Esc 키로 돌아갑니다.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>명령어 라인에서</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>윈도우에 표시되는 모든 것은 quillmark 명령어로도 확인할 수 있습니다. quillmark --help를 참고하십시오.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>Quillmark 도움말</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>Quillmark가 %1에 새로운 버전이 있는지 확인해도 되겠습니까?</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>하루에 한 번 확인</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>이번 한 번만 확인</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>업데이트를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>중요한 업데이트인 Quillmark %1 버전을 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>Quillmark %1 버전을 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>현재 버전은 %1입니다.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>다운로드…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>Quillmark %1의 새로운 기능</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>업데이트:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>자동으로 업데이트 확인</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>Quillmark를 시작할 때 하루에 한 번 %1에 확인</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>확인 중…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>지금 확인</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>확인한 적 없음</translation>
    </message>
</context>
</TS>
