<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Battery</name>
    <message>
        <source>Not reported</source>
        <translation>غير مُبلَّغ عنه</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>Reduced</source>
        <translation>منخفضة</translation>
    </message>
    <message>
        <source>Worn</source>
        <translation>بالية</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>باردة</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>ساخنة</translation>
    </message>
    <message>
        <source>Service recommended</source>
        <translation>يُنصح بالصيانة</translation>
    </message>
    <message>
        <source>Permanent failure</source>
        <translation>عطل دائم</translation>
    </message>
    <message>
        <source>This battery needs attention.</source>
        <translation>تحتاج هذه البطارية إلى الانتباه.</translation>
    </message>
    <message>
        <source>This battery does not tell how much it holds.</source>
        <translation>لا تُبلغ هذه البطارية عن مقدار الشحن الذي تحتفظ به.</translation>
    </message>
    <message>
        <source>This battery is in good condition.</source>
        <translation>هذه البطارية في حالة جيدة.</translation>
    </message>
    <message>
        <source>This battery holds less than it used to.</source>
        <translation>تحتفظ هذه البطارية بشحن أقل من السابق.</translation>
    </message>
    <message>
        <source>This battery is worn.</source>
        <translation>هذه البطارية بالية.</translation>
    </message>
    <message>
        <source>It holds almost as much charge as when it was new.</source>
        <translation>تحتفظ بالشحن نفسه تقريبًا كما كانت جديدة.</translation>
    </message>
    <message>
        <source>It still works well, but it lasts noticeably shorter.</source>
        <translation>لا تزال تعمل جيدًا، لكنها تدوم مدة أقصر بوضوح.</translation>
    </message>
    <message>
        <source>Consider having it replaced.</source>
        <translation>فكّر في استبدالها.</translation>
    </message>
    <message>
        <source>It has reached its rated cycles.</source>
        <translation>بلغت عدد الدورات الذي صُممت له.</translation>
    </message>
    <message>
        <source>It is hot.</source>
        <translation>إنها ساخنة.</translation>
    </message>
    <message>
        <source>%1 of design capacity</source>
        <translation>%1 من السعة التصميمية</translation>
    </message>
    <message>
        <source>macOS reports %1</source>
        <translation>يُبلغ macOS عن %1</translation>
    </message>
    <message>
        <source>macOS smooths its figure and keeps a reserve, so the two can differ by a few points.</source>
        <translation>يقوم macOS بتنعيم رقمه ويحتفظ باحتياطي، لذا قد يختلف الرقمان بضع نقاط.</translation>
    </message>
    <message>
        <source>This Mac has no battery</source>
        <translation>لا توجد بطارية في هذا الـ Mac</translation>
    </message>
    <message>
        <source>This computer has no battery</source>
        <translation>لا توجد بطارية في هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Battery health is shown on portable Macs. Everything else in Quillmark works as usual.</source>
        <translation>تظهر صحة البطارية على أجهزة Mac المحمولة. كل شيء آخر في Quillmark يعمل كالمعتاد.</translation>
    </message>
    <message>
        <source>Battery health is shown on portable computers. Everything else in Quillmark works as usual.</source>
        <translation>تظهر صحة البطارية على أجهزة الكمبيوتر المحمولة. كل شيء آخر في Quillmark يعمل كالمعتاد.</translation>
    </message>
</context>
<context>
    <name>BatteryFacts</name>
    <message>
        <source>Charging, full in %1</source>
        <translation>قيد الشحن، تكتمل خلال %1</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>مكتملة</translation>
    </message>
    <message>
        <source>On battery, %1 left</source>
        <translation>على البطارية، متبقٍ %1</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>على البطارية</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>متصلة، لا تُشحن</translation>
    </message>
    <message>
        <source>Rated for %1 cycles</source>
        <translation>مصممة لعدد دورات يبلغ %1</translation>
    </message>
    <message>
        <source>Normal: 10 to 45&#xa0;°C</source>
        <translation>العادي: من ١٠ إلى ٤٥&#xa0;°م</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>%1: &quot;Hot&quot; or &quot;Cold&quot;, %2: what would be normal</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Reported by the system</source>
        <translation>حسب ما يُبلغ عنه النظام</translation>
    </message>
    <message>
        <source>Battery health not reported</source>
        <translation>صحة البطارية غير مُبلَّغ عنها</translation>
    </message>
    <message>
        <source>Battery health %1 percent, %2</source>
        <extracomment>For screen readers: &quot;Battery health 92 percent, Normal&quot;</extracomment>
        <translation>صحة البطارية %1 بالمئة، %2</translation>
    </message>
</context>
<context>
    <name>ExportFormat</name>
    <message>
        <source>PDF report</source>
        <translation>تقرير PDF</translation>
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
        <translation>نص عادي</translation>
    </message>
    <message>
        <source>Designed pages, ready to print or send</source>
        <translation>صفحات مصممة، جاهزة للطباعة أو الإرسال</translation>
    </message>
    <message>
        <source>Every value, for scripts and tools</source>
        <translation>كل القيم، للبرامج النصية والأدوات</translation>
    </message>
    <message>
        <source>Tables for notes, wikis and issues</source>
        <translation>جداول للملاحظات ومواقع الويكي والمشكلات</translation>
    </message>
    <message>
        <source>The same text as Copy as text</source>
        <translation>النص نفسه كما في “نسخ كنص”</translation>
    </message>
</context>
<context>
    <name>Folder</name>
    <message>
        <source>Show in Finder</source>
        <translation>إظهار في فايندر</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>لم يتغير شيء</numerusform>
            <numerusform>تغيّر واحد</numerusform>
            <numerusform>تغيّر اثنان</numerusform>
            <numerusform>تغيّر %n</numerusform>
            <numerusform>تغيّر %n</numerusform>
            <numerusform>تغيّر %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>لم يُضف شيء</numerusform>
            <numerusform>أُضيف واحد</numerusform>
            <numerusform>أُضيف اثنان</numerusform>
            <numerusform>أُضيف %n</numerusform>
            <numerusform>أُضيف %n</numerusform>
            <numerusform>أُضيف %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>لم يُزل شيء</numerusform>
            <numerusform>أُزيل واحد</numerusform>
            <numerusform>أُزيل اثنان</numerusform>
            <numerusform>أُزيل %n</numerusform>
            <numerusform>أُزيل %n</numerusform>
            <numerusform>أُزيل %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>متغيّر</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>مضاف</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>مُزال</translation>
    </message>
    <message>
        <source>Older</source>
        <translation>الأقدم</translation>
    </message>
    <message>
        <source>Newer</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>First scan</source>
        <translation>أول فحص</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>لا فروق</translation>
    </message>
    <message>
        <source>Both scans show the same capabilities. Values that change all the time, such as uptime, are not compared.</source>
        <translation>يعرض الفحصان القدرات نفسها. القيم التي تتغير باستمرار، مثل مدة التشغيل، لا تُقارن.</translation>
    </message>
    <message>
        <source>The two scans are in different languages, so only changes of status are shown.</source>
        <translation>الفحصان بلغتين مختلفتين، لذا تظهر تغيّرات الحالة فقط.</translation>
    </message>
    <message>
        <source>No saved scans yet</source>
        <translation>لا توجد فحوصات محفوظة بعد</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Supported</source>
        <translation>مدعوم</translation>
    </message>
    <message>
        <source>Not supported</source>
        <translation>غير مدعوم</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>معلومة</translation>
    </message>
    <message>
        <source>Not requested yet</source>
        <translation>لم يُطلب بعد</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>مقيَّد</translation>
    </message>
    <message>
        <source>Denied</source>
        <translation>مرفوض</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>مسموح</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Internal</source>
        <extracomment>How a display is connected.</extracomment>
        <translation>داخلية</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Of a processor, a camera, a device: there is none.</extracomment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>None (desktop)</source>
        <translation>لا يوجد (مكتبي)</translation>
    </message>
    <message>
        <source>Bluetooth device</source>
        <translation>جهاز Bluetooth</translation>
    </message>
    <message>
        <source>AirPlay device</source>
        <translation>جهاز AirPlay</translation>
    </message>
    <message>
        <source>iPhone or iPad</source>
        <translation>iPhone أو iPad</translation>
    </message>
    <message>
        <source>%1&#xa0;kHz</source>
        <translation>%1&#xa0;كيلوهرتز</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1، %n قناة</numerusform>
            <numerusform>%1، قناة واحدة</numerusform>
            <numerusform>%1، قناتان</numerusform>
            <numerusform>%1، %n قنوات</numerusform>
            <numerusform>%1، %n قناة</numerusform>
            <numerusform>%1، %n قناة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (call quality: a microphone is in use)</source>
        <translation>%1 (جودة مكالمة: ميكروفون قيد الاستخدام)</translation>
    </message>
    <message>
        <source>Built-in speakers</source>
        <translation>مكبرات صوت مدمجة</translation>
    </message>
    <message>
        <source>Built-in microphone</source>
        <translation>ميكروفون مدمج</translation>
    </message>
    <message>
        <source>Sound output</source>
        <translation>إخراج الصوت</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>تنسيق الإخراج</translation>
    </message>
    <message>
        <source>Highest output rate</source>
        <translation>أعلى معدل إخراج</translation>
    </message>
    <message>
        <source>Sound input</source>
        <translation>إدخال الصوت</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;Wh</source>
        <translation>%1&#xa0;من %2&#xa0;واط ساعة</translation>
    </message>
    <message>
        <source>%1 of %2&#xa0;mAh</source>
        <translation>%1&#xa0;من %2&#xa0;ملي أمبير ساعة</translation>
    </message>
    <message>
        <source>−%1&#xa0;°C</source>
        <translation>−%1&#xa0;°م</translation>
    </message>
    <message>
        <source>%1&#xa0;°C</source>
        <translation>%1&#xa0;°م</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Full</source>
        <extracomment>Of a battery.</extracomment>
        <translation>مكتملة</translation>
    </message>
    <message>
        <source>Connected, not charging</source>
        <translation>متصلة، لا تُشحن</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>على البطارية</translation>
    </message>
    <message>
        <source>Being estimated</source>
        <translation>قيد التقدير</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a duration.</extracomment>
        <translation>%1 حتى الاكتمال</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>Battery condition</source>
        <translation>حالة البطارية</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>عدد الدورات</translation>
    </message>
    <message>
        <source>Battery capacity</source>
        <translation>سعة البطارية</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>درجة حرارة البطارية</translation>
    </message>
    <message>
        <source>Charge</source>
        <extracomment>How full the battery is.</extracomment>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Time remaining</source>
        <translation>الوقت المتبقي</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>مدمجة</translation>
    </message>
    <message>
        <source>external</source>
        <translation>خارجية</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>الكاميرا %1</translation>
    </message>
    <message>
        <source>Best picture</source>
        <extracomment>The largest picture that the camera gives.</extracomment>
        <translation>أفضل صورة</translation>
    </message>
    <message>
        <source>Best picture (camera %1)</source>
        <translation>أفضل صورة (الكاميرا %1)</translation>
    </message>
    <message>
        <source>%1, up to %2 frames per second</source>
        <translation>%1، حتى %2 إطار في الثانية</translation>
    </message>
    <message>
        <source>Center Stage</source>
        <translation>في المنتصف</translation>
    </message>
    <message>
        <source>Center Stage (camera %1)</source>
        <translation>في المنتصف (الكاميرا %1)</translation>
    </message>
    <message>
        <source>Sound card</source>
        <translation>بطاقة الصوت</translation>
    </message>
    <message>
        <source>output</source>
        <extracomment>A sound card plays; the next: it records.</extracomment>
        <translation>إخراج</translation>
    </message>
    <message>
        <source>input</source>
        <translation>إدخال</translation>
    </message>
    <message>
        <source>Sound card %1</source>
        <translation>بطاقة الصوت %1</translation>
    </message>
    <message>
        <source>Camera access</source>
        <translation>الوصول إلى الكاميرا</translation>
    </message>
    <message>
        <source>Microphone access</source>
        <translation>الوصول إلى الميكروفون</translation>
    </message>
    <message>
        <source>Camera &amp; Audio</source>
        <translation>الكاميرا والصوت</translation>
    </message>
    <message>
        <source>main</source>
        <extracomment>Stands behind a display’s name in parentheses.</extracomment>
        <translation>رئيسية</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>منسوخة</translation>
    </message>
    <message>
        <source>%1, up to %2&#xa0;Hz</source>
        <translation>%1، حتى %2&#xa0;هرتز</translation>
    </message>
    <message>
        <source>%1, %2&#xa0;Hz</source>
        <translation>%1، %2&#xa0;هرتز</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>%1 (looks like %2)</source>
        <translation>%1 (تبدو مثل %2)</translation>
    </message>
    <message>
        <source>Fixed</source>
        <extracomment>Of a display’s refresh rate.</extracomment>
        <translation>ثابت</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz (ProMotion)</source>
        <translation>من %1&#xa0;إلى %2&#xa0;هرتز (ProMotion)</translation>
    </message>
    <message>
        <source>%1 to %2&#xa0;Hz</source>
        <translation>من %1&#xa0;إلى %2&#xa0;هرتز</translation>
    </message>
    <message>
        <source>Up to %1×</source>
        <translation>حتى %1×</translation>
    </message>
    <message>
        <source>%1&#xa0;in, %2 pixels per inch</source>
        <extracomment>A size in inches.</extracomment>
        <translation>%1&#xa0;بوصة، %2&#xa0;بكسل لكل بوصة</translation>
    </message>
    <message>
        <source>%1&#xa0;in</source>
        <translation>%1&#xa0;بوصة</translation>
    </message>
    <message>
        <source>Variable refresh rate</source>
        <translation>معدل تحديث متغير</translation>
    </message>
    <message>
        <source>Variable refresh rate (display %1)</source>
        <translation>معدل تحديث متغير (الشاشة %1)</translation>
    </message>
    <message>
        <source>Extended dynamic range</source>
        <translation>نطاق ديناميكي موسّع</translation>
    </message>
    <message>
        <source>Extended dynamic range (display %1)</source>
        <translation>نطاق ديناميكي موسّع (الشاشة %1)</translation>
    </message>
    <message>
        <source>Wide color</source>
        <translation>ألوان واسعة</translation>
    </message>
    <message>
        <source>Wide color (display %1)</source>
        <translation>ألوان واسعة (الشاشة %1)</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <source>Display %1</source>
        <translation>الشاشة %1</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Resolution (display %1)</source>
        <translation>الدقة (الشاشة %1)</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>التحجيم</translation>
    </message>
    <message>
        <source>Scaling (display %1)</source>
        <translation>التحجيم (الشاشة %1)</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Size (display %1)</source>
        <translation>الحجم (الشاشة %1)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>Connection (display %1)</source>
        <translation>الاتصال (الشاشة %1)</translation>
    </message>
    <message>
        <source>Displays connected</source>
        <translation>الشاشات المتصلة</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>الشاشات</translation>
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
        <translation>يتطلب macOS 26</translation>
    </message>
    <message>
        <source>Recommended GPU memory</source>
        <translation>ذاكرة GPU الموصى بها</translation>
    </message>
    <message>
        <source>Apple GPU family</source>
        <translation>عائلة Apple GPU</translation>
    </message>
    <message>
        <source>Ray tracing</source>
        <translation>تتبع الأشعة</translation>
    </message>
    <message>
        <source>Hardware ray tracing</source>
        <translation>تتبع الأشعة بالعتاد</translation>
    </message>
    <message>
        <source>Graphics &amp; Metal</source>
        <translation>الرسومات و Metal</translation>
    </message>
    <message>
        <source>On, encrypting</source>
        <translation>مفعّل، قيد التشفير</translation>
    </message>
    <message>
        <source>Turning off</source>
        <translation>قيد الإيقاف</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Off (the disk is still encrypted by hardware)</source>
        <translation>متوقف (لا يزال القرص مشفرًا بالعتاد)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>Partly on</source>
        <translation>مفعّل جزئيًا</translation>
    </message>
    <message>
        <source>On, blocks all incoming connections</source>
        <translation>مفعّل، يحظر جميع الاتصالات الواردة</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>متوفر</translation>
    </message>
    <message>
        <source>Turned off in System Settings</source>
        <translation>متوقف في إعدادات النظام</translation>
    </message>
    <message>
        <source>Not ready (downloading, or not offered for this language or region)</source>
        <translation>غير جاهز (قيد التنزيل، أو غير متاح لهذه اللغة أو المنطقة)</translation>
    </message>
    <message>
        <source>Neural Engine</source>
        <translation>Neural Engine</translation>
    </message>
    <message>
        <source>CPU only</source>
        <translation>CPU فقط</translation>
    </message>
    <message>
        <source>Core ML acceleration</source>
        <translation>تسريع Core ML</translation>
    </message>
    <message>
        <source>Neural Engine cores</source>
        <translation>أنوية Neural Engine</translation>
    </message>
    <message>
        <source>GPU cores</source>
        <translation>أنوية GPU</translation>
    </message>
    <message>
        <source>Int8 matrix instructions</source>
        <translation>تعليمات مصفوفات Int8</translation>
    </message>
    <message>
        <source>Found, no driver</source>
        <translation>موجود، دون برنامج تشغيل</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>لا يوجد إذن</translation>
    </message>
    <message>
        <source>Neural processor</source>
        <translation>معالج عصبي</translation>
    </message>
    <message>
        <source>GPU computing</source>
        <translation>حوسبة GPU</translation>
    </message>
    <message>
        <source>Artificial Intelligence</source>
        <translation>الذكاء الاصطناعي</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>جهاز افتراضي</translation>
    </message>
    <message>
        <source>SELinux, enforcing</source>
        <translation>SELinux، ملزم</translation>
    </message>
    <message>
        <source>SELinux, permissive</source>
        <translation>SELinux، متساهل</translation>
    </message>
    <message>
        <source>All mitigated</source>
        <translation>تمت معالجتها كلها</translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>لم تُعالج أي ثغرة</numerusform>
            <numerusform>ثغرة واحدة غير معالجة</numerusform>
            <numerusform>ثغرتان غير معالجتين</numerusform>
            <numerusform>%n ثغرات غير معالجة</numerusform>
            <numerusform>%n ثغرة غير معالجة</numerusform>
            <numerusform>%n ثغرة غير معالجة</numerusform>
        </translation>
    </message>
    <message>
        <source>Secure boot</source>
        <translation>الإقلاع الآمن</translation>
    </message>
    <message>
        <source>Disk encryption</source>
        <translation>تشفير القرص</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>التحكم في الوصول</translation>
    </message>
    <message>
        <source>Processor vulnerabilities</source>
        <translation>ثغرات المعالج</translation>
    </message>
    <message>
        <source>Sealed</source>
        <extracomment>Of the system volume, which is signed.</extracomment>
        <translation>مختوم</translation>
    </message>
    <message>
        <source>Not sealed</source>
        <translation>غير مختوم</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>مكسور</translation>
    </message>
    <message>
        <source>Sealed system volume</source>
        <translation>وحدة تخزين النظام المختومة</translation>
    </message>
    <message>
        <source>No security</source>
        <translation>بلا أمان</translation>
    </message>
    <message>
        <source>Medium security</source>
        <translation>أمان متوسط</translation>
    </message>
    <message>
        <source>Full security</source>
        <translation>أمان كامل</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Available, not set up</source>
        <translation>متوفر، غير مُعد</translation>
    </message>
    <message>
        <source>Available, locked</source>
        <translation>متوفر، مقفل</translation>
    </message>
    <message>
        <source>System Integrity Protection</source>
        <translation>حماية تكامل النظام</translation>
    </message>
    <message>
        <source>Firewall</source>
        <translation>جدار الحماية</translation>
    </message>
    <message>
        <source>Secure Enclave</source>
        <translation>Secure Enclave</translation>
    </message>
    <message>
        <source>Lockdown Mode</source>
        <translation>نمط المنع</translation>
    </message>
    <message>
        <source>Hardware</source>
        <extracomment>Video is decoded or encoded by a part of the processor made for it.</extracomment>
        <translation>بالعتاد</translation>
    </message>
    <message>
        <source>Not in hardware</source>
        <translation>ليس بالعتاد</translation>
    </message>
    <message>
        <source>Software only</source>
        <translation>بالبرمجيات فقط</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>قراءة وكتابة</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>قراءة فقط</translation>
    </message>
    <message>
        <source>H.264 decoding</source>
        <translation>فك ترميز H.264</translation>
    </message>
    <message>
        <source>HEVC decoding</source>
        <translation>فك ترميز HEVC</translation>
    </message>
    <message>
        <source>VP9 decoding</source>
        <translation>فك ترميز VP9</translation>
    </message>
    <message>
        <source>AV1 decoding</source>
        <translation>فك ترميز AV1</translation>
    </message>
    <message>
        <source>ProRes decoding</source>
        <translation>فك ترميز ProRes</translation>
    </message>
    <message>
        <source>H.264 encoding</source>
        <translation>ترميز H.264</translation>
    </message>
    <message>
        <source>HEVC encoding</source>
        <translation>ترميز HEVC</translation>
    </message>
    <message>
        <source>ProRes encoding</source>
        <translation>ترميز ProRes</translation>
    </message>
    <message>
        <source>AV1 encoding</source>
        <translation>ترميز AV1</translation>
    </message>
    <message>
        <source>HEIC images</source>
        <translation>صور HEIC</translation>
    </message>
    <message>
        <source>AVIF images</source>
        <translation>صور AVIF</translation>
    </message>
    <message>
        <source>Not readable (vainfo is not installed)</source>
        <translation>غير قابل للقراءة (vainfo غير مثبت)</translation>
    </message>
    <message>
        <source>Not readable (the GPU is asleep)</source>
        <translation>غير قابل للقراءة (GPU في سكون)</translation>
    </message>
    <message>
        <source>Video driver</source>
        <translation>برنامج تشغيل الفيديو</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Cellular</source>
        <extracomment>How the computer is connected: by a mobile network, or in another way.</extracomment>
        <translation>خلوي</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Not offered by this network</source>
        <translation>لا تقدمها هذه الشبكة</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>غير متوفر</translation>
    </message>
    <message>
        <source>Metered connection</source>
        <translation>اتصال محدود الاستخدام</translation>
    </message>
    <message>
        <source>Low Data Mode</source>
        <translation>نمط البيانات المنخفضة</translation>
    </message>
    <message>
        <source>%1 (self-assigned)</source>
        <translation>%1 (معيَّن ذاتيًا)</translation>
    </message>
    <message>
        <source>Address (%1)</source>
        <translation>العنوان (%1)</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>نشط</translation>
    </message>
    <message>
        <source>None detected</source>
        <translation>لم يُكتشف شيء</translation>
    </message>
    <message>
        <source>%1&#xa0;Mbit/s</source>
        <translation>%1&#xa0;ميغابت/ث</translation>
    </message>
    <message>
        <source>%1, full duplex</source>
        <translation>%1، مزدوج كامل</translation>
    </message>
    <message>
        <source>%1, half duplex</source>
        <translation>%1، مزدوج نصفي</translation>
    </message>
    <message>
        <source>Ethernet speed</source>
        <translation>سرعة Ethernet</translation>
    </message>
    <message>
        <source>Ethernet speed %1</source>
        <translation>سرعة Ethernet %1</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Power adapter</source>
        <translation>محول الطاقة</translation>
    </message>
    <message>
        <source>Mains power</source>
        <translation>التيار الكهربائي</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Built in</source>
        <extracomment>Of a battery: it has one.</extracomment>
        <translation>مدمجة</translation>
    </message>
    <message>
        <source>%1&#xa0;W</source>
        <translation>%1&#xa0;واط</translation>
    </message>
    <message>
        <source>Balanced</source>
        <extracomment>This and the next four are power profiles of the firmware: of the fans, noise and heat.</extracomment>
        <translation>متوازن</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>الأداء</translation>
    </message>
    <message>
        <source>Low power</source>
        <translation>طاقة منخفضة</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>هادئ</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>تبريد</translation>
    </message>
    <message>
        <source>Low power mode</source>
        <translation>نمط الطاقة المنخفضة</translation>
    </message>
    <message>
        <source>Charge limit</source>
        <translation>حد الشحن</translation>
    </message>
    <message>
        <source>Power profile</source>
        <translation>ملف الطاقة</translation>
    </message>
    <message>
        <source>Power source</source>
        <translation>مصدر الطاقة</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>الطاقة</translation>
    </message>
    <message>
        <source>SME instructions</source>
        <translation>تعليمات SME</translation>
    </message>
    <message>
        <source>BF16 instructions</source>
        <translation>تعليمات BF16</translation>
    </message>
    <message>
        <source>AVX2 instructions</source>
        <translation>تعليمات AVX2</translation>
    </message>
    <message>
        <source>AVX-512 instructions</source>
        <translation>تعليمات AVX-512</translation>
    </message>
    <message>
        <source>Physical cores</source>
        <translation>الأنوية الفعلية</translation>
    </message>
    <message>
        <source>Logical cores</source>
        <translation>الأنوية المنطقية</translation>
    </message>
    <message>
        <source>Performance cores</source>
        <translation>أنوية الأداء</translation>
    </message>
    <message>
        <source>Efficiency cores</source>
        <translation>أنوية الكفاءة</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Max frequency</source>
        <translation>أقصى تردد</translation>
    </message>
    <message>
        <source>Memory (RAM)</source>
        <translation>الذاكرة (RAM)</translation>
    </message>
    <message>
        <source>Processor &amp; Memory</source>
        <translation>المعالج والذاكرة</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>غير قابل للقراءة</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>الأمان</translation>
    </message>
    <message>
        <source>%1 (low)</source>
        <extracomment>%1 is the space that is free.</extracomment>
        <translation>%1 (قليلة)</translation>
    </message>
    <message>
        <source>File cloning</source>
        <translation>استنساخ الملفات</translation>
    </message>
    <message>
        <source>Case-sensitive names</source>
        <translation>تمييز حالة الأحرف</translation>
    </message>
    <message>
        <source>Start-up volume</source>
        <translation>وحدة تخزين بدء التشغيل</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>السعة</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>المساحة المتوفرة</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>نظام الملفات</translation>
    </message>
    <message>
        <source>SSD</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>hard disk</source>
        <translation>قرص صلب</translation>
    </message>
    <message>
        <source>internal</source>
        <translation>داخلي</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>قابل للإزالة</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>القرص %1</translation>
    </message>
    <message>
        <source>Connection (disk %1)</source>
        <translation>الاتصال (القرص %1)</translation>
    </message>
    <message>
        <source>TRIM</source>
        <translation>TRIM</translation>
    </message>
    <message>
        <source>TRIM (disk %1)</source>
        <translation>TRIM (القرص %1)</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>قراءة فقط</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>وحدة التخزين %1</translation>
    </message>
    <message>
        <source>Volume space</source>
        <translation>مساحة وحدة التخزين</translation>
    </message>
    <message>
        <source>Volume space (volume %1)</source>
        <translation>مساحة وحدة التخزين (%1)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>التخزين</translation>
    </message>
    <message>
        <source>via Rosetta</source>
        <translation>عبر Rosetta</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>البنية</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>دافئة</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>ساخنة</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>حرجة</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Device name</source>
        <translation>اسم الجهاز</translation>
    </message>
    <message>
        <source>Model identifier</source>
        <translation>معرّف الطراز</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>نظام التشغيل</translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation>مدة التشغيل</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>الحالة الحرارية</translation>
    </message>
    <message>
        <source>%1&#xa0;%</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>Wi-Fi standard in use</source>
        <translation>معيار Wi-Fi المستخدم</translation>
    </message>
    <message>
        <source>Wi-Fi band</source>
        <translation>نطاق Wi-Fi</translation>
    </message>
    <message>
        <source>%1&#xa0;GHz</source>
        <translation>%1&#xa0;غيغاهرتز</translation>
    </message>
    <message>
        <source>Wi-Fi signal</source>
        <translation>إشارة Wi-Fi</translation>
    </message>
    <message>
        <source>Wi-Fi rate</source>
        <translation>معدل Wi-Fi</translation>
    </message>
    <message>
        <source>unified memory</source>
        <translation>ذاكرة موحدة</translation>
    </message>
    <message>
        <source>low power</source>
        <translation>طاقة منخفضة</translation>
    </message>
    <message>
        <source>external eGPU</source>
        <translation>eGPU خارجي</translation>
    </message>
    <message>
        <source>None</source>
        <comment>charge limit</comment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (good)</source>
        <translation>−%1&#xa0;dBm (جيدة)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (fair)</source>
        <translation>−%1&#xa0;dBm (متوسطة)</translation>
    </message>
    <message>
        <source>−%1&#xa0;dBm (weak)</source>
        <translation>−%1&#xa0;dBm (ضعيفة)</translation>
    </message>
    <message>
        <source>%1&#xa0;Wh</source>
        <translation>%1&#xa0;واط ساعة</translation>
    </message>
    <message>
        <source>%1&#xa0;mAh</source>
        <translation>%1&#xa0;ملي أمبير ساعة</translation>
    </message>
    <message>
        <source>Charging</source>
        <comment>heading</comment>
        <translation>حالة الشحن</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Same as system (%1)</source>
        <extracomment>A choice among languages; %1 is the name of the system&apos;s.</extracomment>
        <translation>مثل النظام (%1)</translation>
    </message>
</context>
<context>
    <name>Moment</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1: a day, %2: a time: &quot;12 November, 19:20&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Today, %1</source>
        <translation>اليوم، %1</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>أمس، %1</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and today, 08:41&quot;</extracomment>
        <translation>اليوم، %1</translation>
    </message>
    <message>
        <source>yesterday, %1</source>
        <extracomment>Within a sentence: &quot;12 November, 19:20 and yesterday, 08:41&quot;</extracomment>
        <translation>أمس، %1</translation>
    </message>
    <message>
        <source>Inspected today at %1</source>
        <translation>فُحص اليوم الساعة %1</translation>
    </message>
    <message>
        <source>Inspected yesterday at %1</source>
        <translation>فُحص أمس الساعة %1</translation>
    </message>
    <message>
        <source>Inspected on %1</source>
        <translation>فُحص في %1</translation>
    </message>
    <message>
        <source>Last checked today at %1</source>
        <translation>آخر تحقق اليوم الساعة %1</translation>
    </message>
    <message>
        <source>Last checked yesterday at %1</source>
        <translation>آخر تحقق أمس الساعة %1</translation>
    </message>
    <message>
        <source>Last checked on %1</source>
        <translation>آخر تحقق في %1</translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>لا أقسام، كما فُحصت اليوم الساعة %1.</numerusform>
            <numerusform>القسم الوحيد، كما فُحص اليوم الساعة %1.</numerusform>
            <numerusform>القسمان، كما فُحصا اليوم الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت اليوم الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت اليوم الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت اليوم الساعة %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>لا أقسام، كما فُحصت أمس الساعة %1.</numerusform>
            <numerusform>القسم الوحيد، كما فُحص أمس الساعة %1.</numerusform>
            <numerusform>القسمان، كما فُحصا أمس الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت أمس الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت أمس الساعة %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت أمس الساعة %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>لا أقسام، كما فُحصت في %1.</numerusform>
            <numerusform>القسم الوحيد، كما فُحص في %1.</numerusform>
            <numerusform>القسمان، كما فُحصا في %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت في %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت في %1.</numerusform>
            <numerusform>جميع الأقسام، وعددها %n، كما فُحصت في %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>%1&#xa0;KB/s</source>
        <translation>%1&#xa0;ك.ب/ث</translation>
    </message>
    <message>
        <source>%1&#xa0;MB/s</source>
        <translation>%1&#xa0;م.ب/ث</translation>
    </message>
    <message>
        <source>%1&#xa0;GB/s</source>
        <translation>%1&#xa0;غ.ب/ث</translation>
    </message>
    <message>
        <source>%1&#xa0;TB/s</source>
        <translation>%1&#xa0;ت.ب/ث</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>Swap space that is in use.</extracomment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>Battery · charging</source>
        <translation>البطارية · قيد الشحن</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Pressure normal</source>
        <translation>الضغط عادي</translation>
    </message>
    <message>
        <source>Pressure elevated</source>
        <translation>الضغط مرتفع</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>الضغط حرج</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>دافئة</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>ساخنة</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>حرجة</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروفة</translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message>
        <source>Normal</source>
        <comment>pressure</comment>
        <extracomment>of the memory pressure</extracomment>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Elevated</source>
        <comment>pressure</comment>
        <translation>مرتفع</translation>
    </message>
    <message>
        <source>Critical</source>
        <comment>pressure</comment>
        <translation>حرج</translation>
    </message>
    <message>
        <source>No limits on performance</source>
        <translation>لا قيود على الأداء</translation>
    </message>
    <message>
        <source>Slightly warm, no limits</source>
        <translation>دفء طفيف، بلا قيود</translation>
    </message>
    <message>
        <source>Performance is reduced</source>
        <translation>الأداء منخفض</translation>
    </message>
    <message>
        <source>Performance is strongly reduced</source>
        <translation>الأداء منخفض بشدة</translation>
    </message>
    <message>
        <source>%1 percent, between %2 and %3 percent in the last 2 minutes</source>
        <translation>%1 بالمئة، بين %2 و%3 بالمئة في آخر دقيقتين</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n نواة، أعلاها انشغالًا عند %1 بالمئة</numerusform>
            <numerusform>نواة واحدة، منشغلة بنسبة %1 بالمئة</numerusform>
            <numerusform>نواتان، أكثرهما انشغالًا عند %1 بالمئة</numerusform>
            <numerusform>%n أنوية، أكثرها انشغالًا عند %1 بالمئة</numerusform>
            <numerusform>%n نواة، أكثرها انشغالًا عند %1 بالمئة</numerusform>
            <numerusform>%n نواة، أكثرها انشغالًا عند %1 بالمئة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 used, %3 percent. Pressure %4 percent, %5</source>
        <translation>%1 من %2 مستخدمة، %3 بالمئة. الضغط %4 بالمئة، %5</translation>
    </message>
    <message>
        <source>In %1, out %2</source>
        <translation>وارد %1، صادر %2</translation>
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
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>of memory: &quot;18.96 GB of 48 GB&quot;</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>الضغط</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>المبادلة</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>الحالة الحرارية</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>computer name</source>
        <translation>اسم الكمبيوتر</translation>
    </message>
    <message>
        <source>addresses</source>
        <translation>العناوين</translation>
    </message>
    <message>
        <source>volume names</source>
        <translation>أسماء وحدات التخزين</translation>
    </message>
    <message>
        <source>Capability score: %1% (%2 of %3 rated capabilities supported)</source>
        <translation>درجة القدرات: %1٪ (%2 من %3 من القدرات المقيّمة مدعومة)</translation>
    </message>
    <message>
        <source>%1 memory</source>
        <translation>%1 ذاكرة</translation>
    </message>
    <message>
        <source>%1 storage</source>
        <translation>%1 تخزين</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>لا توجد صفوف مطابقة.</translation>
    </message>
    <message>
        <source>Left out of this report: %1.</source>
        <translation>حُذف من هذا التقرير: %1.</translation>
    </message>
    <message>
        <source>Worth a look</source>
        <translation>يستحق النظر</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (تتمة)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>لا صفوف</numerusform>
            <numerusform>صف واحد</numerusform>
            <numerusform>صفان</numerusform>
            <numerusform>%n صفوف</numerusform>
            <numerusform>%n صفًا</numerusform>
            <numerusform>%n صف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا مزيد</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 supported</source>
        <translation>%1 من %2 مدعومة</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>The title of a report, and the computer’s name.</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>هذا الـ Mac</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>What this Mac can really do</source>
        <translation>ما يمكن لهذا الـ Mac فعله حقًا</translation>
    </message>
    <message>
        <source>What this computer can really do</source>
        <translation>ما يمكن لهذا الكمبيوتر فعله حقًا</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this Mac</source>
        <translation>أُنشئ باستخدام %1 · قُرئت جميع البيانات على هذا الـ Mac</translation>
    </message>
    <message>
        <source>Made with %1 · All data was read on this computer</source>
        <translation>أُنشئ باستخدام %1 · قُرئت جميع البيانات على هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>نسبة القدرات المقيّمة التي يدعمها هذا الـ Mac</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>نسبة القدرات المقيّمة التي يدعمها هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>درجة القدرات</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>لا شيء مقيَّم</translation>
    </message>
    <message>
        <source>Quillmark report</source>
        <translation>تقرير Quillmark</translation>
    </message>
    <message>
        <source>In this report</source>
        <translation>في هذا التقرير</translation>
    </message>
    <message>
        <source>p. %1</source>
        <extracomment>The number of a page, in a list of contents.</extracomment>
        <translation>ص %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message>
        <source>Capability</source>
        <translation>القدرة</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Inspected on %1 at %2</source>
        <translation>فُحص في %1 الساعة %2</translation>
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
        <translation>محذوف</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Address %1</source>
        <translation>العنوان %1</translation>
    </message>
    <message>
        <source>The report couldn’t be saved.</source>
        <translation>تعذّر حفظ التقرير.</translation>
    </message>
    <message>
        <source>There is a file with this name already.</source>
        <translation>يوجد ملف بهذا الاسم بالفعل.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>هذا مجلد.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message>
        <source>You don’t have permission to write there.</source>
        <translation>ليس لديك إذن بالكتابة هناك.</translation>
    </message>
    <message>
        <source>There is not enough free space on “%1”.</source>
        <translation>لا توجد مساحة خالية كافية على “%1”.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>لم يعد القرص متصلًا.</translation>
    </message>
    <message>
        <source>No file can have this name.</source>
        <translation>لا يمكن لأي ملف أن يحمل هذا الاسم.</translation>
    </message>
    <message>
        <source>The system says: %1</source>
        <translation>يقول النظام: %1</translation>
    </message>
</context>
<context>
    <name>SearchWords</name>
    <message>
        <source>gpu, graphics card, video card, 3d, gaming</source>
        <translation>gpu, بطاقة رسومات, كرت الشاشة, بطاقة فيديو, 3d, ثلاثي الأبعاد, ألعاب, بطاقة الرسومات</translation>
    </message>
    <message>
        <source>ai, ml, machine learning, npu, llm</source>
        <translation>ai, ذكاء اصطناعي, ml, تعلم آلي, تعلم الآلة, npu, llm</translation>
    </message>
    <message>
        <source>screen, monitor</source>
        <translation>شاشة, عرض, مونيتور, مراقب</translation>
    </message>
    <message>
        <source>video, codec</source>
        <translation>فيديو, مرماز, codec, ترميز</translation>
    </message>
    <message>
        <source>energy, battery</source>
        <translation>طاقة, كهرباء, بطارية</translation>
    </message>
    <message>
        <source>internet, online</source>
        <translation>إنترنت, انترنت, متصل</translation>
    </message>
    <message>
        <source>safety, protection</source>
        <translation>سلامة, حماية, أمن, أمان</translation>
    </message>
    <message>
        <source>computer name, host name, hostname</source>
        <translation>اسم الكمبيوتر, اسم الجهاز, اسم المضيف, hostname</translation>
    </message>
    <message>
        <source>model</source>
        <translation>طراز, موديل, الطراز</translation>
    </message>
    <message>
        <source>os, system version, macos, linux, build</source>
        <translation>os, إصدار النظام, macos, linux, لينكس, build</translation>
    </message>
    <message>
        <source>64 bit, arm, x86, rosetta</source>
        <translation>64 بت, 64 bit, arm, x86, rosetta</translation>
    </message>
    <message>
        <source>running since, restart</source>
        <translation>يعمل منذ, إعادة التشغيل, uptime</translation>
    </message>
    <message>
        <source>temperature, heat, throttling, fan</source>
        <translation>درجة الحرارة, حرارة, سخونة, خنق, مروحة</translation>
    </message>
    <message>
        <source>vm, hypervisor</source>
        <translation>vm, آلة افتراضية, hypervisor, مراقب افتراضي, جهاز ظاهري</translation>
    </message>
    <message>
        <source>cpu, chip, soc</source>
        <translation>cpu, شريحة, رقاقة, soc, معالج</translation>
    </message>
    <message>
        <source>cpu cores</source>
        <translation>أنوية cpu, أنوية المعالج, cores</translation>
    </message>
    <message>
        <source>cpu cores, threads, hyper-threading</source>
        <translation>أنوية cpu, أنوية المعالج, خيوط, threads, hyper-threading</translation>
    </message>
    <message>
        <source>clock speed, ghz, mhz</source>
        <translation>سرعة الساعة, سرعة المعالج, ghz, mhz, غيغاهرتز</translation>
    </message>
    <message>
        <source>ram, main memory</source>
        <translation>ram, رام, الذاكرة الرئيسية, ذاكرة الوصول العشوائي</translation>
    </message>
    <message>
        <source>vram, video memory</source>
        <translation>vram, ذاكرة الفيديو, ذاكرة الرسومات</translation>
    </message>
    <message>
        <source>siri, writing tools, language model</source>
        <translation>siri, سيري, أدوات الكتابة, نموذج لغوي</translation>
    </message>
    <message>
        <source>ane, npu, ai</source>
        <translation>ane, npu, ai, ذكاء اصطناعي</translation>
    </message>
    <message>
        <source>vrr, adaptive sync, refresh rate</source>
        <translation>vrr, adaptive sync, معدل التحديث</translation>
    </message>
    <message>
        <source>hdr, edr, brightness</source>
        <translation>hdr, edr, السطوع, الإضاءة</translation>
    </message>
    <message>
        <source>p3, gamut</source>
        <translation>p3, gamut, نطاق الألوان</translation>
    </message>
    <message>
        <source>pixels, hertz, hz, 4k, 5k, refresh rate</source>
        <translation>بكسل, هرتز, hz, 4k, 5k, معدل التحديث</translation>
    </message>
    <message>
        <source>retina, hidpi</source>
        <translation>retina, hidpi</translation>
    </message>
    <message>
        <source>avc, h264, video decoding</source>
        <translation>avc, h264, فك ترميز الفيديو, تشغيل الفيديو, تشغيل</translation>
    </message>
    <message>
        <source>avc, h264, video encoding</source>
        <translation>avc, h264, ترميز الفيديو, تسجيل الفيديو</translation>
    </message>
    <message>
        <source>h.265, h265, video decoding</source>
        <translation>h.265, h265, فك ترميز الفيديو, تشغيل الفيديو, تشغيل</translation>
    </message>
    <message>
        <source>h.265, h265, video encoding</source>
        <translation>h.265, h265, ترميز الفيديو, تسجيل الفيديو</translation>
    </message>
    <message>
        <source>heif, photos, pictures</source>
        <translation>heif, صور</translation>
    </message>
    <message>
        <source>webcam, facetime</source>
        <translation>كاميرا ويب, webcam, فيس تايم, facetime</translation>
    </message>
    <message>
        <source>loudspeakers, sound, audio</source>
        <translation>سماعات, مكبر صوت, صوت</translation>
    </message>
    <message>
        <source>mic, sound, audio</source>
        <translation>ميكروفون, مايك, mic, صوت</translation>
    </message>
    <message>
        <source>mic, permission, privacy</source>
        <translation>ميكروفون, مايك, mic, إذن, خصوصية</translation>
    </message>
    <message>
        <source>webcam, permission, privacy</source>
        <translation>كاميرا ويب, webcam, إذن, خصوصية</translation>
    </message>
    <message>
        <source>audio, speakers, headphones</source>
        <translation>صوت, مكبرات صوت, سماعات, سماعات رأس</translation>
    </message>
    <message>
        <source>audio, microphone</source>
        <translation>صوت, ميكروفون, مايك</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>صوت</translation>
    </message>
    <message>
        <source>sample rate, hi-res</source>
        <translation>معدل العينات, معدل أخذ العينات, hi-res, دقة عالية</translation>
    </message>
    <message>
        <source>disk space, disk size</source>
        <translation>مساحة القرص, حجم القرص</translation>
    </message>
    <message>
        <source>free space, disk space, full</source>
        <translation>مساحة خالية, مساحة حرة, مساحة القرص, ممتلئ</translation>
    </message>
    <message>
        <source>ssd, nvme, drive, hard disk, hdd</source>
        <translation>ssd, nvme, محرك أقراص, قرص صلب, هارد, hdd, محرك</translation>
    </message>
    <message>
        <source>partition, drive</source>
        <translation>قسم, تقسيم, محرك أقراص, محرك</translation>
    </message>
    <message>
        <source>plugged in, mains</source>
        <translation>موصول بالكهرباء, كهرباء</translation>
    </message>
    <message>
        <source>charger, power supply, watt</source>
        <translation>شاحن, مزود طاقة, واط, مصدر طاقة</translation>
    </message>
    <message>
        <source>maximum capacity, wear, ageing</source>
        <translation>السعة القصوى, تآكل, اهتراء, تقادم</translation>
    </message>
    <message>
        <source>battery life, runtime</source>
        <translation>عمر البطارية, مدة التشغيل</translation>
    </message>
    <message>
        <source>energy saver, power saving</source>
        <translation>توفير الطاقة, موفر الطاقة</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi</source>
        <translation>wlan, لاسلكي, واي فاي, wifi</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, reception</source>
        <translation>wlan, لاسلكي, واي فاي, wifi, استقبال, إشارة</translation>
    </message>
    <message>
        <source>wlan, wireless, wifi, speed</source>
        <translation>wlan, لاسلكي, واي فاي, wifi, سرعة</translation>
    </message>
    <message>
        <source>wifi, wlan, ethernet, lan</source>
        <translation>wifi, wlan, واي فاي, ethernet, إيثرنت, lan</translation>
    </message>
    <message>
        <source>ip address</source>
        <translation>عنوان ip, ip</translation>
    </message>
    <message>
        <source>luks, encrypted</source>
        <translation>luks, مشفر</translation>
    </message>
    <message>
        <source>encryption, encrypted, disk encryption</source>
        <translation>تشفير, مشفر, تشفير القرص</translation>
    </message>
    <message>
        <source>fingerprint, biometrics</source>
        <translation>بصمة الإصبع, بصمة, قياسات حيوية, مقاييس حيوية</translation>
    </message>
    <message>
        <source>sip, rootless</source>
        <translation>sip, rootless</translation>
    </message>
    <message>
        <source>t2, security chip</source>
        <translation>t2, شريحة أمان</translation>
    </message>
    <message>
        <source>uefi, start-up security</source>
        <translation>uefi, أمان بدء التشغيل, secure boot</translation>
    </message>
    <message>
        <source>virus, malware, antivirus</source>
        <translation>فيروس, برامج ضارة, malware, مكافحة الفيروسات, برمجيات خبيثة, مضاد فيروسات</translation>
    </message>
    <message>
        <source>malware, notarization, app signing</source>
        <translation>برامج ضارة, malware, توثيق, توقيع التطبيقات, برمجيات خبيثة</translation>
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
        <translation>كمبيوتر آخر</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 ← %2</translation>
    </message>
    <message>
        <source>“quillmark history record” inspects this computer and saves the first one.</source>
        <translation>“quillmark history record” يفحص هذا الكمبيوتر ويحفظ أول فحص.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الكمبيوتر</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>الدرجة</translation>
    </message>
    <message>
        <source>Against the scan before</source>
        <translation>مقارنة بالسابق</translation>
    </message>
    <message>
        <source>Scan of %1</source>
        <translation>فحص %1</translation>
    </message>
    <message>
        <source>Capability score</source>
        <translation>درجة القدرات</translation>
    </message>
    <message>
        <source>%1 of %2 rated capabilities supported</source>
        <translation>%1 من %2 من القدرات المقيّمة مدعومة</translation>
    </message>
    <message>
        <source>No rows match.</source>
        <translation>لا توجد صفوف مطابقة.</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>The scan of %1 was removed.</source>
        <translation>أُزيل فحص %1.</translation>
    </message>
    <message>
        <source>All saved scans were removed.</source>
        <translation>أُزيلت جميع الفحوصات المحفوظة.</translation>
    </message>
    <message>
        <source>Scan %1 was saved.</source>
        <translation>حُفظ الفحص %1.</translation>
    </message>
    <message>
        <source>Nothing has changed since the scan of %1, so none was saved.</source>
        <translation>لم يتغير شيء منذ فحص %1، لذا لم يُحفظ فحص جديد.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>لا فحوصات محفوظة</numerusform>
            <numerusform>فحص محفوظ واحد</numerusform>
            <numerusform>فحصان محفوظان</numerusform>
            <numerusform>%n فحوصات محفوظة</numerusform>
            <numerusform>%n فحصًا محفوظًا</numerusform>
            <numerusform>%n فحص محفوظ</numerusform>
        </translation>
    </message>
    <message>
        <source>y, yes</source>
        <extracomment>What may be typed for yes, as shown in &quot;[y/N]&quot;; separated by commas.</extracomment>
        <translation>ن, نعم</translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>لن يُزال أي فحص. [ن/ل]</numerusform>
            <numerusform>سيُزال فحص محفوظ واحد. لا يمكن التراجع عن ذلك. هل تريد إزالته؟ [ن/ل]</numerusform>
            <numerusform>سيُزال فحصان محفوظان. لا يمكن التراجع عن ذلك. هل تريد إزالتهما؟ [ن/ل]</numerusform>
            <numerusform>ستُزال %n فحوصات محفوظة. لا يمكن التراجع عن ذلك. هل تريد إزالتها؟ [ن/ل]</numerusform>
            <numerusform>سيُزال %n فحصًا محفوظًا. لا يمكن التراجع عن ذلك. هل تريد إزالتها؟ [ن/ل]</numerusform>
            <numerusform>سيُزال %n فحص محفوظ. لا يمكن التراجع عن ذلك. هل تريد إزالتها؟ [ن/ل]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1٪</translation>
    </message>
    <message>
        <source>Download: %1</source>
        <translation>التنزيل: %1</translation>
    </message>
    <message>
        <source>Release notes: %1</source>
        <translation>ملاحظات الإصدار: %1</translation>
    </message>
    <message>
        <source>Quillmark has sent no request.</source>
        <translation>لم يُرسل Quillmark أي طلب.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>الخطأ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <extracomment>%1 is a question; what may be typed for yes is the translation of &quot;y, yes&quot;</extracomment>
        <translation>%1 [ن/ل]</translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message>
        <source>Collecting samples…</source>
        <translation>جارٍ جمع العينات…</translation>
    </message>
    <message>
        <source>q ends</source>
        <translation>q للإنهاء</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>يُحدَّث كل ثانية · آخر دقيقتين</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>المراقبة المباشرة</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>المعالج</translation>
    </message>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>لا أنوية</numerusform>
            <numerusform>نواة واحدة</numerusform>
            <numerusform>نواتان</numerusform>
            <numerusform>%n أنوية</numerusform>
            <numerusform>%n نواة</numerusform>
            <numerusform>%n نواة</numerusform>
        </translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>لكل نواة</translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>Stands behind the memory in use; %1 is all that there is.</extracomment>
        <translation>من %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Used</source>
        <extracomment>A curve: the memory that is in use.</extracomment>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>الضغط</translation>
    </message>
    <message>
        <source>In</source>
        <extracomment>Network traffic that comes in; the next: that goes out.</extracomment>
        <translation>وارد</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>صادر</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>2 min</source>
        <translation>دقيقتان</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>الحالة الحرارية</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>المبادلة المستخدمة</translation>
    </message>
    <message>
        <source>Processor %1</source>
        <translation>المعالج %1</translation>
    </message>
    <message>
        <source>Memory %1 of %2</source>
        <translation>الذاكرة %1 من %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A verdict (&quot;Pressure normal&quot;) and its measure.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Swap used %1</source>
        <translation>المبادلة المستخدمة %1</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>وارد %1</translation>
    </message>
    <message>
        <source>Out %1</source>
        <translation>صادر %1</translation>
    </message>
    <message>
        <source>Thermal state %1</source>
        <translation>الحالة الحرارية %1</translation>
    </message>
</context>
<context>
    <name>Update</name>
    <message>
        <source>%1 could not be reached: %2</source>
        <extracomment>%1 is a server, as in all of these: tarnwick.com; %2 is the reason, in English: Connection refused</extracomment>
        <translation>تعذّر الوصول إلى %1: %2</translation>
    </message>
    <message>
        <source>%1 could not prove that it is %1: %2</source>
        <translation>لم يتمكن %1 من إثبات أنه %1: %2</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>لم يُجب %1 في الوقت المناسب.</translation>
    </message>
    <message>
        <source>What %1 answered is longer than a feed may be.</source>
        <translation>رد %1 أطول مما يُسمح به لموجز التحديثات.</translation>
    </message>
    <message>
        <source>%1 leads to another address, which was not followed: %2</source>
        <extracomment>%2 is the address</extracomment>
        <translation>يحيل %1 إلى عنوان آخر لم يُتبع: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2 instead of a feed.</source>
        <translation>أجاب %1 بالحالة %2 بدلًا من موجز التحديثات.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it declares a document type.</source>
        <translation>رد %1 ليس موجز تحديثات: فهو يصرّح بنوع مستند.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is another kind of XML.</source>
        <translation>رد %1 ليس موجز تحديثات: فهو نوع آخر من XML.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: there is more in it than in any.</source>
        <translation>رد %1 ليس موجز تحديثات: فيه أكثر مما في أي موجز.</translation>
    </message>
    <message>
        <source>May Quillmark ask %1 for newer versions: now, and once a day at most when its window opens?</source>
        <translation>هل يُسمح لـ Quillmark بسؤال %1 عن إصدارات أحدث: الآن، ومرة واحدة في اليوم على الأكثر عند فتح نافذته؟</translation>
    </message>
    <message>
        <source>The request carries Quillmark’s version and nothing about you or this computer. Nothing is installed.</source>
        <translation>يحمل الطلب إصدار Quillmark ولا يحمل شيئًا عنك أو عن هذا الكمبيوتر. لا يُثبَّت أي شيء.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, which you chose to skip. You have version %2.</source>
        <extracomment>%1 and %2 are versions, as in all of these: 1.2</extracomment>
        <translation>يتوفر Quillmark %1، وهو إصدار اخترت تخطيه. لديك الإصدار %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update. You have version %2.</source>
        <translation>يتوفر Quillmark %1، وهو تحديث مهم. لديك الإصدار %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available. You have version %2.</source>
        <translation>يتوفر Quillmark %1. لديك الإصدار %2.</translation>
    </message>
    <message>
        <source>Quillmark %1 is up to date.</source>
        <translation>لديك أحدث إصدار: Quillmark %1.</translation>
    </message>
    <message>
        <source>Quillmark could not find out whether there is a newer version.</source>
        <translation>لم يتمكن Quillmark من معرفة ما إذا كان هناك إصدار أحدث.</translation>
    </message>
    <message>
        <source>%1 was not asked, because you have not agreed to that.</source>
        <translation>لم يُسأل %1، لأنك لم توافق على ذلك.</translation>
    </message>
    <message>
        <source>The address of the update feed is not one of https: %1</source>
        <translation>عنوان موجز التحديثات ليس عنوان https: %1</translation>
    </message>
    <message>
        <source>%1 was not asked, because the record of requests cannot be written.</source>
        <translation>لم يُسأل %1، لأنه لا يمكن كتابة سجل الطلبات.</translation>
    </message>
    <message>
        <source>What %1 answered is not a feed: it is no XML, or a part of one.</source>
        <translation>رد %1 ليس موجز تحديثات: فهو ليس XML، أو هو جزء منه فقط.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::AboutDialog</name>
    <message>
        <source>About Quillmark</source>
        <translation>حول Quillmark</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Tells you what your Mac can really do.
Everything it reads stays on this Mac.</source>
        <extracomment>Two sentences, each in a line of its own</extracomment>
        <translation>يُخبرك بما يمكن لهذا الـ Mac فعله حقًا.
كل ما يقرؤه يبقى على هذا الـ Mac.</translation>
    </message>
    <message>
        <source>Tells you what your computer can really do.
Everything it reads stays on this computer.</source>
        <translation>يُخبرك بما يمكن لهذا الكمبيوتر فعله حقًا.
كل ما يقرؤه يبقى على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>التراخيص</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>التحقق من وجود تحديثات</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Actions</name>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>نافذة</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>About Quillmark</source>
        <translation>حول Quillmark</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التحقق من وجود تحديثات…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Inspect Again</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>نسخ كنص</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>بحث…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>Scan History</source>
        <translation>سجل الفحوصات</translation>
    </message>
    <message>
        <source>Battery Health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>Live Monitor</source>
        <translation>المراقبة المباشرة</translation>
    </message>
    <message>
        <source>Previous Section</source>
        <translation>القسم السابق</translation>
    </message>
    <message>
        <source>Next Section</source>
        <translation>القسم التالي</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>التصفية</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Hide Sidebar</source>
        <translation>إخفاء الشريط الجانبي</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>تكبير/تصغير</translation>
    </message>
    <message>
        <source>Bring All to Front</source>
        <translation>إحضار الكل إلى المقدمة</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>مساعدة Quillmark</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>ما الجديد</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryPanel</name>
    <message>
        <source>of design capacity</source>
        <translation>من السعة التصميمية</translation>
    </message>
    <message>
        <source>Present capacity</source>
        <translation>السعة الحالية</translation>
    </message>
    <message>
        <source>Design capacity</source>
        <translation>السعة التصميمية</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>عدد الدورات</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>الحالة</translation>
    </message>
</context>
<context>
    <name>quillmark::app::BatteryView</name>
    <message>
        <source>Battery health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>Present capacity as a share of design capacity. 80% or more is good.</source>
        <translation>السعة الحالية كنسبة من السعة التصميمية. ٨٠٪ أو أكثر نسبة جيدة.</translation>
    </message>
    <message>
        <source>Cycle count</source>
        <translation>عدد الدورات</translation>
    </message>
    <message>
        <source>One cycle is one full discharge, even when it is spread over several days.</source>
        <translation>الدورة الواحدة تفريغ كامل واحد، حتى إن توزّع على عدة أيام.</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>Heat ages a battery faster than use does. Keep it out of the sun.</source>
        <translation>تُسرّع الحرارة تقادم البطارية أكثر من الاستخدام. أبعدها عن الشمس.</translation>
    </message>
    <message>
        <source>Read today at %1. Figures come from the battery’s own controller and can differ slightly between readings.</source>
        <translation>قُرئت اليوم الساعة %1. تأتي الأرقام من وحدة التحكم في البطارية نفسها، وقد تختلف قليلًا بين قراءة وأخرى.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityList</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>نسخ القيمة</translation>
    </message>
</context>
<context>
    <name>quillmark::app::CapabilityListModel</name>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>A row for screen readers: &quot;Touch ID, Available, Supported&quot;</extracomment>
        <translation>%1، %2، %3</translation>
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
        <translation>دقيقتان</translation>
    </message>
    <message>
        <source>1 min</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonModel</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A value and its status, for screen readers: &quot;Turned off, Warning&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Changed: %1, from %2, to %3</source>
        <extracomment>For screen readers: &quot;Changed: Metal 4, from Requires macOS 26, Not supported, to Supported&quot;</extracomment>
        <translation>تغيّر: %1، من %2 إلى %3</translation>
    </message>
    <message>
        <source>Added: %1, %2</source>
        <translation>أُضيف: %1، %2</translation>
    </message>
    <message>
        <source>Removed: %1, %2</source>
        <translation>أُزيل: %1، %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A line of text: label, value before, value now</extracomment>
        <translation>%1: %2 ← %3</translation>
    </message>
    <message>
        <source>%1: added, %2</source>
        <translation>%1: أُضيف، %2</translation>
    </message>
    <message>
        <source>%1: removed, %2</source>
        <translation>%1: أُزيل، %2</translation>
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
        <translation>الفروق</translation>
    </message>
    <message>
        <source>score</source>
        <extracomment>Below a figure: the capability score</extracomment>
        <translation>الدرجة</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1، لا صفوف</numerusform>
            <numerusform>%1، صف واحد</numerusform>
            <numerusform>%1، صفان</numerusform>
            <numerusform>%1، %n صفوف</numerusform>
            <numerusform>%1، %n صفًا</numerusform>
            <numerusform>%1، %n صف</numerusform>
        </translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>كل التغييرات</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>لا صفحات، US Letter</numerusform>
            <numerusform>صفحة واحدة، US Letter</numerusform>
            <numerusform>صفحتان، US Letter</numerusform>
            <numerusform>%n صفحات، US Letter</numerusform>
            <numerusform>%n صفحة، US Letter</numerusform>
            <numerusform>%n صفحة، US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>لا صفحات، A4</numerusform>
            <numerusform>صفحة واحدة، A4</numerusform>
            <numerusform>صفحتان، A4</numerusform>
            <numerusform>%n صفحات، A4</numerusform>
            <numerusform>%n صفحة، A4</numerusform>
            <numerusform>%n صفحة، A4</numerusform>
        </translation>
    </message>
    <message>
        <source>Export inspection</source>
        <translation>تصدير الفحص</translation>
    </message>
    <message>
        <source>Leave out names and addresses</source>
        <translation>استبعاد الأسماء والعناوين</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::FirstRunDialog</name>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>جارٍ فحص هذا الـ Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>جارٍ فحص هذا الكمبيوتر…</translation>
    </message>
    <message>
        <source>See what this Mac can really do</source>
        <translation>اكتشف ما يمكن لهذا الـ Mac فعله حقًا</translation>
    </message>
    <message>
        <source>See what this computer can really do</source>
        <translation>اكتشف ما يمكن لهذا الكمبيوتر فعله حقًا</translation>
    </message>
    <message>
        <source>Every capability of your hardware and system, with a clear status.</source>
        <translation>كل قدرة من قدرات العتاد والنظام، بحالة واضحة.</translation>
    </message>
    <message>
        <source>Eleven sections, one score</source>
        <translation>أحد عشر قسمًا، ودرجة واحدة</translation>
    </message>
    <message>
        <source>From processor and graphics to codecs, displays and security.</source>
        <translation>من المعالج والرسومات إلى برامج الترميز والشاشات والأمان.</translation>
    </message>
    <message>
        <source>Every change is saved</source>
        <translation>كل تغيير يُحفظ</translation>
    </message>
    <message>
        <source>Compare any two scans and see what an update changed.</source>
        <translation>قارن بين أي فحصين لترى ما غيّره تحديث ما.</translation>
    </message>
    <message>
        <source>Your data stays here</source>
        <translation>بياناتك تبقى هنا</translation>
    </message>
    <message>
        <source>Nothing about this Mac is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>لا يُرسل أي شيء عن هذا الـ Mac إلى أي مكان. لا يتصل Quillmark بالإنترنت إلا للبحث عن تحديثاته.</translation>
    </message>
    <message>
        <source>Nothing about this computer is sent anywhere. Quillmark goes online only to look for its own updates.</source>
        <translation>لا يُرسل أي شيء عن هذا الكمبيوتر إلى أي مكان. لا يتصل Quillmark بالإنترنت إلا للبحث عن تحديثاته.</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>التحقق من وجود تحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Asks %1 once a day at most, and tells it Quillmark’s version only.</source>
        <extracomment>%1 is the name of a server</extracomment>
        <translation>يسأل %1 مرة واحدة في اليوم على الأكثر، ولا يُخبره إلا بإصدار Quillmark.</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>إظهار المراقبة المباشرة في شريط القائمة</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>إظهار المراقبة المباشرة في منطقة الحالة</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>البدء</translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message>
        <source>When Quillmark opens:</source>
        <translation>عند فتح Quillmark:</translation>
    </message>
    <message>
        <source>Scan history:</source>
        <translation>سجل الفحوصات:</translation>
    </message>
    <message>
        <source>Privacy:</source>
        <translation>الخصوصية:</translation>
    </message>
    <message>
        <source>Show the overview</source>
        <translation>إظهار النظرة العامة</translation>
    </message>
    <message>
        <source>Show the screen I used last</source>
        <translation>إظهار آخر شاشة استخدمتها</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>مسح السجل…</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this Mac.</source>
        <translation>كل ما يقرؤه Quillmark يبقى على هذا الـ Mac.</translation>
    </message>
    <message>
        <source>Everything Quillmark reads stays on this computer.</source>
        <translation>كل ما يقرؤه Quillmark يبقى على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>The only connection it makes is the check for updates.</source>
        <translation>الاتصال الوحيد الذي يجريه هو التحقق من وجود تحديثات.</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>لا فحوصات محفوظة، %1 على الأكثر</numerusform>
            <numerusform>فحص محفوظ واحد، %1 على الأكثر</numerusform>
            <numerusform>فحصان محفوظان، %1 على الأكثر</numerusform>
            <numerusform>%n فحوصات محفوظة، %1 على الأكثر</numerusform>
            <numerusform>%n فحصًا محفوظًا، %1 على الأكثر</numerusform>
            <numerusform>%n فحص محفوظ، %1 على الأكثر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::Header</name>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Search capabilities</source>
        <translation>البحث في القدرات</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Inspect again</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>نسخ كنص</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <extracomment>Tool tip of the button that opens the menus, with its key</extracomment>
        <translation>القائمة (F10)</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message>
        <source>Capability score</source>
        <translation>درجة القدرات</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>The overview&apos;s first card, for screen readers. %1 is the machine and its parts, %2 &quot;Capability score 85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Capability score %1</source>
        <translation>درجة القدرات %1</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this Mac supports</source>
        <translation>نسبة القدرات المقيّمة التي يدعمها هذا الـ Mac</translation>
    </message>
    <message>
        <source>Share of rated capabilities that this computer supports</source>
        <translation>نسبة القدرات المقيّمة التي يدعمها هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Nothing is rated</source>
        <translation>لا شيء مقيَّم</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 من %n قدرة</numerusform>
            <numerusform>%1 من قدرة واحدة</numerusform>
            <numerusform>%1 من قدرتين</numerusform>
            <numerusform>%1 من %n قدرات</numerusform>
            <numerusform>%1 من %n قدرة</numerusform>
            <numerusform>%1 من %n قدرة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 بالمئة، %2 من %n قدرة مدعومة</numerusform>
            <numerusform>%1 بالمئة، %2 من قدرة واحدة مدعومة</numerusform>
            <numerusform>%1 بالمئة، %2 من قدرتين مدعومة</numerusform>
            <numerusform>%1 بالمئة، %2 من %n قدرات مدعومة</numerusform>
            <numerusform>%1 بالمئة، %2 من %n قدرة مدعومة</numerusform>
            <numerusform>%1 بالمئة، %2 من %n قدرة مدعومة</numerusform>
        </translation>
    </message>
    <message>
        <source>Inspecting this Mac…</source>
        <translation>جارٍ فحص هذا الـ Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>جارٍ فحص هذا الكمبيوتر…</translation>
    </message>
    <message>
        <source>This is taking longer than usual</source>
        <translation>يستغرق هذا وقتًا أطول من المعتاد</translation>
    </message>
    <message>
        <source>Reading hardware and system settings</source>
        <translation>جارٍ قراءة العتاد وإعدادات النظام</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryDelegate</name>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>هذا الشهر</translation>
    </message>
    <message>
        <source>Other Mac</source>
        <translation>جهاز Mac آخر</translation>
    </message>
    <message>
        <source>Other computer</source>
        <translation>كمبيوتر آخر</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Two items of a list: &quot;3 changed, 1 added&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4, %5, %6</source>
        <extracomment>A saved scan for screen readers: date, system, counts of three statuses, what it changed</extracomment>
        <translation>%1، %2، %3، %4، %5، %6</translation>
    </message>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>واحدة مدعومة</numerusform>
            <numerusform>اثنتان مدعومتان</numerusform>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>%n مدعومة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>واحدة غير مدعومة</numerusform>
            <numerusform>اثنتان غير مدعومتين</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>لا تحذيرات</numerusform>
            <numerusform>تحذير واحد</numerusform>
            <numerusform>تحذيران</numerusform>
            <numerusform>%n تحذيرات</numerusform>
            <numerusform>%n تحذيرًا</numerusform>
            <numerusform>%n تحذير</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message>
        <source>Compare scans</source>
        <translation>مقارنة الفحوصات</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>سجل الفحوصات</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this Mac.</source>
        <translation>يُحفظ فحص كلما تغيّر شيء. يُحتفظ بأحدث ٢٠٠ فحص على هذا الـ Mac.</translation>
    </message>
    <message>
        <source>A scan is saved whenever something has changed. The newest 200 are kept on this computer.</source>
        <translation>يُحفظ فحص كلما تغيّر شيء. يُحتفظ بأحدث ٢٠٠ فحص على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this Mac to save the first one.</source>
        <translation>يحفظ Quillmark الفحص كلما وجد شيئًا جديدًا. افحص هذا الـ Mac لحفظ أول فحص.</translation>
    </message>
    <message>
        <source>Quillmark saves a scan each time an inspection finds something new. Inspect this computer to save the first one.</source>
        <translation>يحفظ Quillmark الفحص كلما وجد شيئًا جديدًا. افحص هذا الكمبيوتر لحفظ أول فحص.</translation>
    </message>
    <message>
        <source>Inspect now</source>
        <translation>الفحص الآن</translation>
    </message>
    <message>
        <source>Saved scans</source>
        <translation>الفحوصات المحفوظة</translation>
    </message>
    <message>
        <source>Clear selection</source>
        <translation>إلغاء التحديد</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>مقارنة</translation>
    </message>
    <message>
        <source>Clear history…</source>
        <translation>مسح السجل…</translation>
    </message>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>لا فحوصات محفوظة</numerusform>
            <numerusform>فحص محفوظ واحد</numerusform>
            <numerusform>فحصان محفوظان</numerusform>
            <numerusform>%n فحوصات محفوظة</numerusform>
            <numerusform>%n فحصًا محفوظًا</numerusform>
            <numerusform>%n فحص محفوظ</numerusform>
        </translation>
    </message>
    <message>
        <source>1 scan selected · choose one more</source>
        <translation>حُدد فحص واحد · اختر فحصًا آخر</translation>
    </message>
    <message>
        <source>2 scans selected</source>
        <extracomment>Two moments: &quot;18 September, 12:10 and today, 08:41&quot;</extracomment>
        <translation>حُدد فحصان</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>Delete this scan?</source>
        <translation>هل تريد حذف هذا الفحص؟</translation>
    </message>
    <message>
        <source>The scan of %1 will be removed from the history.</source>
        <translation>سيُزال فحص %1 من السجل.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Clear the scan history?</source>
        <translation>هل تريد مسح سجل الفحوصات؟</translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>لن يُزال أي فحص.</numerusform>
            <numerusform>سيُزال فحص محفوظ واحد. لا يمكن التراجع عن ذلك.</numerusform>
            <numerusform>سيُزال الفحصان المحفوظان. لا يمكن التراجع عن ذلك.</numerusform>
            <numerusform>ستُزال جميع الفحوصات المحفوظة، وعددها %n. لا يمكن التراجع عن ذلك.</numerusform>
            <numerusform>ستُزال جميع الفحوصات المحفوظة، وعددها %n. لا يمكن التراجع عن ذلك.</numerusform>
            <numerusform>ستُزال جميع الفحوصات المحفوظة، وعددها %n. لا يمكن التراجع عن ذلك.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>The scan history couldn’t be saved.</source>
        <translation>تعذّر حفظ سجل الفحوصات.</translation>
    </message>
    <message>
        <source>Another copy of Quillmark is using it. Scans made here are kept until it ends.</source>
        <translation>تستخدمه نسخة أخرى من Quillmark. تُحفظ الفحوصات التي تُجرى هنا مؤقتًا إلى أن تنتهي تلك النسخة.</translation>
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
        <translation>لغة الواجهة:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Interface language</source>
        <translation>لغة الواجهة</translation>
    </message>
    <message>
        <source>The new language is used at once. Scans saved in another language can still be compared.</source>
        <translation>تُستخدم اللغة الجديدة على الفور. لا يزال من الممكن مقارنة الفحوصات المحفوظة بلغة أخرى.</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBar</name>
    <message>
        <source>Collecting samples…</source>
        <translation>جارٍ جمع العينات…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>فتح Quillmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarLabel</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>المراقبة المباشرة في Quillmark</translation>
    </message>
    <message>
        <source>Memory used: %1</source>
        <translation>الذاكرة المستخدمة: %1</translation>
    </message>
    <message>
        <source>Processor load: %1</source>
        <translation>حِمل المعالج: %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarMonitorView</name>
    <message>
        <source>Quillmark live monitor</source>
        <translation>المراقبة المباشرة في Quillmark</translation>
    </message>
    <message>
        <source>Every second</source>
        <translation>كل ثانية</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>جارٍ جمع العينات…</translation>
    </message>
    <message>
        <source>Open Quillmark</source>
        <translation>فتح Quillmark</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MenuBarPane</name>
    <message>
        <source>Menu bar:</source>
        <translation>شريط القائمة:</translation>
    </message>
    <message>
        <source>Show next to the icon:</source>
        <translation>الإظهار بجانب الأيقونة:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>النافذة:</translation>
    </message>
    <message>
        <source>Show the live monitor in the menu bar</source>
        <translation>إظهار المراقبة المباشرة في شريط القائمة</translation>
    </message>
    <message>
        <source>Quillmark stays in the menu bar until you quit it</source>
        <translation>يبقى Quillmark في شريط القائمة إلى أن تقوم بإنهائه</translation>
    </message>
    <message>
        <source>Status area:</source>
        <translation>منطقة الحالة:</translation>
    </message>
    <message>
        <source>Show the live monitor in the status area</source>
        <translation>إظهار المراقبة المباشرة في منطقة الحالة</translation>
    </message>
    <message>
        <source>Quillmark stays in the status area until you quit it</source>
        <translation>يبقى Quillmark في منطقة الحالة إلى أن تقوم بإنهائه</translation>
    </message>
    <message>
        <source>This desktop has no status area.</source>
        <translation>لا توجد منطقة حالة في بيئة سطح المكتب هذه.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>حِمل المعالج</translation>
    </message>
    <message>
        <source>Memory used</source>
        <translation>الذاكرة المستخدمة</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>الأيقونة فقط</translation>
    </message>
    <message>
        <source>Keep running when the main window is closed</source>
        <translation>مواصلة التشغيل عند إغلاق النافذة الرئيسية</translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message>
        <source>Live monitor</source>
        <translation>المراقبة المباشرة</translation>
    </message>
    <message>
        <source>Updated every second · last 2 minutes</source>
        <translation>يُحدَّث كل ثانية · آخر دقيقتين</translation>
    </message>
    <message>
        <source>Collecting samples…</source>
        <translation>جارٍ جمع العينات…</translation>
    </message>
    <message>
        <source>The first reading arrives in about a second.</source>
        <translation>تصل أول قراءة خلال ثانية تقريبًا.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Per core</source>
        <translation>لكل نواة</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Thermal state</source>
        <translation>الحالة الحرارية</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>المبادلة المستخدمة</translation>
    </message>
    <message>
        <source>All interfaces</source>
        <translation>جميع الواجهات</translation>
    </message>
    <message>
        <source>On the start-up volume</source>
        <translation>على وحدة تخزين بدء التشغيل</translation>
    </message>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>لا أنوية</numerusform>
            <numerusform>نواة واحدة</numerusform>
            <numerusform>نواتان</numerusform>
            <numerusform>%n أنوية</numerusform>
            <numerusform>%n نواة</numerusform>
            <numerusform>%n نواة</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <extracomment>after the memory in use: &quot;29.4 GB of 48 GB&quot;</extracomment>
        <translation>من %1</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>الضغط</translation>
    </message>
    <message>
        <source>In</source>
        <translation>وارد</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>صادر</translation>
    </message>
    <message>
        <source>Power adapter connected</source>
        <translation>محول الطاقة متصل</translation>
    </message>
    <message>
        <source>Not charging</source>
        <translation>لا تُشحن</translation>
    </message>
</context>
<context>
    <name>quillmark::app::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>First scan saved</source>
        <translation>حُفظ أول فحص</translation>
    </message>
    <message>
        <source>Later scans are compared with it</source>
        <translation>تُقارن به الفحوصات اللاحقة</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>لم يتغير شيء</numerusform>
            <numerusform>تغيّر واحد</numerusform>
            <numerusform>تغيّر اثنان</numerusform>
            <numerusform>تغيّر %n</numerusform>
            <numerusform>تغيّر %n</numerusform>
            <numerusform>تغيّر %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>لم يُضف شيء</numerusform>
            <numerusform>أُضيف واحد</numerusform>
            <numerusform>أُضيف اثنان</numerusform>
            <numerusform>أُضيف %n</numerusform>
            <numerusform>أُضيف %n</numerusform>
            <numerusform>أُضيف %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>لم يُزل شيء</numerusform>
            <numerusform>أُزيل واحد</numerusform>
            <numerusform>أُزيل اثنان</numerusform>
            <numerusform>أُزيل %n</numerusform>
            <numerusform>أُزيل %n</numerusform>
            <numerusform>أُزيل %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>%1 is a day, or the time of a scan of today</extracomment>
        <translation>منذ %1</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>لا فروق</translation>
    </message>
    <message>
        <source>Compare scans</source>
        <translation>مقارنة الفحوصات</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ReportExport</name>
    <message>
        <source>Export inspection</source>
        <translation>تصدير الفحص</translation>
    </message>
    <message>
        <source>Report saved.</source>
        <translation>حُفظ التقرير.</translation>
    </message>
    <message>
        <source>Choose another place…</source>
        <translation>اختيار مكان آخر…</translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message>
        <source>Results for “%1”</source>
        <translation>نتائج البحث عن “%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>لا أقسام</numerusform>
            <numerusform>قسم واحد</numerusform>
            <numerusform>قسمين</numerusform>
            <numerusform>%n أقسام</numerusform>
            <numerusform>%n قسمًا</numerusform>
            <numerusform>%n قسم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>لا صفوف في %1</numerusform>
            <numerusform>صف واحد في %1</numerusform>
            <numerusform>صفان في %1</numerusform>
            <numerusform>%n صفوف في %1</numerusform>
            <numerusform>%n صفًا في %1</numerusform>
            <numerusform>%n صف في %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Filtered by %1</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>التصفية حسب: %1</translation>
    </message>
    <message>
        <source>No rows match</source>
        <translation>لا توجد صفوف مطابقة</translation>
    </message>
    <message>
        <source>Nothing contains “%1”. Check the spelling or try a shorter word.</source>
        <translation>لا شيء يحتوي على “%1”. تحقق من الإملاء أو جرّب كلمة أقصر.</translation>
    </message>
    <message>
        <source>No row that contains “%1” has the status %2.</source>
        <translation>لا يوجد صف يحتوي على “%1” حالته “%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>لا صفوف مطابقة بحالات أخرى.</numerusform>
            <numerusform>صف واحد مطابق بحالة أخرى.</numerusform>
            <numerusform>صفان مطابقان بحالات أخرى.</numerusform>
            <numerusform>%n صفوف مطابقة بحالات أخرى.</numerusform>
            <numerusform>%n صفًا مطابقًا بحالات أخرى.</numerusform>
            <numerusform>%n صف مطابق بحالات أخرى.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>quillmark::app::RowsPage</name>
    <message>
        <source>No rows match</source>
        <translation>لا توجد صفوف مطابقة</translation>
    </message>
    <message>
        <source>No row here has the status %1.</source>
        <extracomment>%1 is a status: &quot;Warning&quot;</extracomment>
        <translation>لا يوجد هنا صف حالته “%1”.</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>القدرات</translation>
    </message>
    <message>
        <source>Show all statuses</source>
        <translation>إظهار جميع الحالات</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>واحدة مدعومة</numerusform>
            <numerusform>اثنتان مدعومتان</numerusform>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>%n مدعومة</numerusform>
            <numerusform>%n مدعومة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>واحدة غير مدعومة</numerusform>
            <numerusform>اثنتان غير مدعومتين</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
            <numerusform>%n غير مدعومة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>لا تحذيرات</numerusform>
            <numerusform>تحذير واحد</numerusform>
            <numerusform>تحذيران</numerusform>
            <numerusform>%n تحذيرات</numerusform>
            <numerusform>%n تحذيرًا</numerusform>
            <numerusform>%n تحذير</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>لا معلومات</numerusform>
            <numerusform>معلومة واحدة</numerusform>
            <numerusform>معلومتان</numerusform>
            <numerusform>%n معلومات</numerusform>
            <numerusform>%n معلومة</numerusform>
            <numerusform>%n معلومة</numerusform>
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
        <translation>جارٍ فحص هذا الـ Mac…</translation>
    </message>
    <message>
        <source>Inspecting this computer…</source>
        <translation>جارٍ فحص هذا الكمبيوتر…</translation>
    </message>
    <message>
        <source>Nothing in this section is rated</source>
        <translation>لا شيء مقيَّم في هذا القسم</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 من %n قدرة مقيّمة مدعومة</numerusform>
            <numerusform>%1 من قدرة مقيّمة واحدة مدعومة</numerusform>
            <numerusform>%1 من قدرتين مقيّمتين مدعومة</numerusform>
            <numerusform>%1 من %n قدرات مقيّمة مدعومة</numerusform>
            <numerusform>%1 من %n قدرة مقيّمة مدعومة</numerusform>
            <numerusform>%1 من %n قدرة مقيّمة مدعومة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SettingsDialog</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>شريط القائمة</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>منطقة الحالة</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>quillmark::app::Sidebar</name>
    <message>
        <source>Inspecting…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>الشريط الجانبي</translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message>
        <source>Real-time CPU, memory, thermal, battery and network charts</source>
        <translation>مخططات في الوقت الفعلي للمعالج والذاكرة والحرارة والبطارية والشبكة</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1، لا تحذيرات</numerusform>
            <numerusform>%1، تحذير واحد</numerusform>
            <numerusform>%1، تحذيران</numerusform>
            <numerusform>%1، %n تحذيرات</numerusform>
            <numerusform>%1، %n تحذيرًا</numerusform>
            <numerusform>%1، %n تحذير</numerusform>
        </translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>القدرات</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Scan history</source>
        <translation>سجل الفحوصات</translation>
    </message>
    <message>
        <source>Battery health</source>
        <translation>صحة البطارية</translation>
    </message>
    <message>
        <source>Live monitor</source>
        <translation>المراقبة المباشرة</translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1، لا صفوف</numerusform>
            <numerusform>%1، صف واحد</numerusform>
            <numerusform>%1، صفان</numerusform>
            <numerusform>%1، %n صفوف</numerusform>
            <numerusform>%1، %n صفًا</numerusform>
            <numerusform>%1، %n صف</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
</context>
<context>
    <name>quillmark::app::TextDialog</name>
    <message>
        <source>Licences</source>
        <translation>التراخيص</translation>
    </message>
    <message>
        <source>What’s New</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Everything in the window can be reached by keys: Tab moves from part to part, the arrows move within one, Space and Return choose, and Esc goes back.</source>
        <translation>يمكن الوصول إلى كل شيء في النافذة بالمفاتيح: ينقل Tab من جزء إلى جزء، وتتحرك الأسهم داخل الجزء، وتختار المسافة وReturn، ويعود Esc.</translation>
    </message>
    <message>
        <source>On the command line</source>
        <translation>في سطر الأوامر</translation>
    </message>
    <message>
        <source>All that the window shows can be asked of the command quillmark as well: see quillmark --help.</source>
        <translation>كل ما تعرضه النافذة يمكن طلبه من الأمر quillmark أيضًا: انظر quillmark --help.</translation>
    </message>
    <message>
        <source>Quillmark Help</source>
        <translation>مساعدة Quillmark</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdateNotices</name>
    <message>
        <source>May Quillmark ask %1 whether there is a newer version?</source>
        <extracomment>%1 is the name of a server %1 is the name of a server</extracomment>
        <translation>هل يُسمح لـ Quillmark بسؤال %1 عمّا إذا كان هناك إصدار أحدث؟</translation>
    </message>
    <message>
        <source>Ask once a day</source>
        <translation>السؤال مرة في اليوم</translation>
    </message>
    <message>
        <source>Ask this once</source>
        <translation>السؤال هذه المرة فقط</translation>
    </message>
    <message>
        <source>Couldn’t check for updates.</source>
        <translation>تعذّر التحقق من وجود تحديثات.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available, an important update.</source>
        <translation>يتوفر Quillmark %1، وهو تحديث مهم.</translation>
    </message>
    <message>
        <source>Quillmark %1 is available.</source>
        <translation>يتوفر Quillmark %1.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>لديك الإصدار %1.</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>تنزيل…</translation>
    </message>
    <message>
        <source>What’s new in Quillmark %1</source>
        <translation>ما الجديد في Quillmark %1</translation>
    </message>
</context>
<context>
    <name>quillmark::app::UpdatesPane</name>
    <message>
        <source>Updates:</source>
        <translation>التحديثات:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>التحقق من وجود تحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Asks %1 once a day, when Quillmark starts</source>
        <translation>يسأل %1 مرة في اليوم عند بدء تشغيل Quillmark</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>جارٍ التحقق…</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>التحقق الآن</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>لم يجرِ أي تحقق بعد</translation>
    </message>
</context>
</TS>
