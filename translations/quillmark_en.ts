<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>History</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message numerus="yes">
        <source>%1, %n channels</source>
        <translation>
            <numerusform>%1, %n channel</numerusform>
            <numerusform>%1, %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not mitigated</source>
        <translation>
            <numerusform>%n not mitigated</numerusform>
            <numerusform>%n not mitigated</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Moment</name>
    <message numerus="yes">
        <source>All %n sections, as inspected today at %1.</source>
        <translation>
            <numerusform>%n section, as inspected today at %1.</numerusform>
            <numerusform>All %n sections, as inspected today at %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected yesterday at %1.</source>
        <translation>
            <numerusform>%n section, as inspected yesterday at %1.</numerusform>
            <numerusform>All %n sections, as inspected yesterday at %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n sections, as inspected on %1.</source>
        <translation>
            <numerusform>%n section, as inspected on %1.</numerusform>
            <numerusform>All %n sections, as inspected on %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MonitorWords</name>
    <message numerus="yes">
        <source>%n core(s), the busiest at %1 percent</source>
        <translation>
            <numerusform>%n core, the busiest at %1 percent</numerusform>
            <numerusform>%n cores, the busiest at %1 percent</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message numerus="yes">
        <source>%n saved scans</source>
        <translation>
            <numerusform>%n saved scan</numerusform>
            <numerusform>%n saved scans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</source>
        <translation>
            <numerusform>%n saved scan will be removed. This can’t be undone. Remove it? [y/N]</numerusform>
            <numerusform>%n saved scans will be removed. This can’t be undone. Remove them? [y/N]</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TerminalMonitor</name>
    <message numerus="yes">
        <source>%n cores</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n cores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::ComparisonView</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Added, 2 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n row</numerusform>
            <numerusform>%1, %n rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::ExportDialog</name>
    <message numerus="yes">
        <source>%n pages, US Letter</source>
        <translation>
            <numerusform>%n page, US Letter</numerusform>
            <numerusform>%n pages, US Letter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages, A4</source>
        <translation>
            <numerusform>%n page, A4</numerusform>
            <numerusform>%n pages, A4</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::GeneralPane</name>
    <message numerus="yes">
        <source>%n scans saved, %1 at most</source>
        <extracomment>%1 is a number</extracomment>
        <translation>
            <numerusform>%n scan saved, %1 at most</numerusform>
            <numerusform>%n scans saved, %1 at most</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HeadlineCard</name>
    <message numerus="yes">
        <source>%1 of %n capabilities</source>
        <extracomment>%1 is how many of them are supported: &quot;35 of 41 capabilities&quot;</extracomment>
        <translation>
            <numerusform>%1 of %n capability</numerusform>
            <numerusform>%1 of %n capabilities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 percent, %2 of %n capabilities supported</source>
        <extracomment>For screen readers: &quot;85 percent, 35 of 41 capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 percent, %2 of %n capability supported</numerusform>
            <numerusform>%1 percent, %2 of %n capabilities supported</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryModel</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n supported</numerusform>
            <numerusform>%n supported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n not supported</numerusform>
            <numerusform>%n not supported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::HistoryView</name>
    <message numerus="yes">
        <source>%n scans saved</source>
        <translation>
            <numerusform>%n scan saved</numerusform>
            <numerusform>%n scans saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n saved scans will be removed. This can’t be undone.</source>
        <translation>
            <numerusform>%n saved scan will be removed. This can’t be undone.</numerusform>
            <numerusform>All %n saved scans will be removed. This can’t be undone.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::MonitorView</name>
    <message numerus="yes">
        <source>%n core(s)</source>
        <translation>
            <numerusform>%n core</numerusform>
            <numerusform>%n cores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::OverviewPage</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::ResultsPage</name>
    <message numerus="yes">
        <source>%n sections</source>
        <extracomment>Stands in &quot;9 rows in 2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n section</numerusform>
            <numerusform>%n sections</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows in %1</source>
        <extracomment>%1 is &quot;2 sections&quot;</extracomment>
        <translation>
            <numerusform>%n row in %1</numerusform>
            <numerusform>%n rows in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows match with other statuses.</source>
        <translation>
            <numerusform>%n row matches with another status.</numerusform>
            <numerusform>%n rows match with other statuses.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionCard</name>
    <message numerus="yes">
        <source>%n supported</source>
        <translation>
            <numerusform>%n supported</numerusform>
            <numerusform>%n supported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not supported</source>
        <translation>
            <numerusform>%n not supported</numerusform>
            <numerusform>%n not supported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n info</source>
        <translation>
            <numerusform>%n info</numerusform>
            <numerusform>%n info</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SectionPage</name>
    <message numerus="yes">
        <source>%1 of %n rated capabilities supported</source>
        <extracomment>%1 is how many of them are supported: &quot;4 of 5 rated capabilities supported&quot;</extracomment>
        <translation>
            <numerusform>%1 of %n rated capability supported</numerusform>
            <numerusform>%1 of %n rated capabilities supported</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::SidebarModel</name>
    <message numerus="yes">
        <source>%1, %n warning(s)</source>
        <translation>
            <numerusform>%1, %n warning</numerusform>
            <numerusform>%1, %n warnings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillmark::app::StatusChips</name>
    <message numerus="yes">
        <source>%1, %n rows</source>
        <extracomment>Name of a filter, for screen readers: &quot;Warning, 3 rows&quot;</extracomment>
        <translation>
            <numerusform>%1, %n row</numerusform>
            <numerusform>%1, %n rows</numerusform>
        </translation>
    </message>
</context>
</TS>
