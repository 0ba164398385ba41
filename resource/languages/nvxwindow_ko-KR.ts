<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Leftovers</name>
    <message>
        <source>Line %1: %2 is not kept</source>
        <translation>%1번째 줄: %2은(는) 유지되지 않습니다</translation>
    </message>
    <message>
        <source>Line %1: %2 is not kept; it occurs again in line %3</source>
        <translation>%1번째 줄: %2은(는) 유지되지 않습니다. %3번째 줄에 다시 나옵니다</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 외 %1개</translation>
    </message>
    <message>
        <source>Parts of the file were dropped; the previous file is kept as %1</source>
        <translation>파일의 일부가 제외되었습니다. 이전 파일은 %1입니다</translation>
    </message>
</context>
<context>
    <name>MessageTable</name>
    <message>
        <source>The marks of an unfinished merge</source>
        <translation>완료되지 않은 병합의 표시가 있습니다</translation>
    </message>
</context>
<context>
    <name>Window::FilterField</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>필터(Ctrl+F)</translation>
    </message>
    <message>
        <source>Shows only the rows that contain this text</source>
        <translation>이 텍스트가 있는 행만 표시합니다</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
</context>
<context>
    <name>Window::MarkedTableView</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>Window::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>Window::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>최근 파일(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Window::TableWindow</name>
    <message>
        <source>Untitled</source>
        <translation>제목 없음</translation>
    </message>
    <message>
        <source>%1 has unsaved changes. Save them?</source>
        <translation>%1에 저장되지 않은 변경 내용이 있습니다. 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Could not save %1

The location may be write-protected or full. The table stays open, unsaved; save it in another location.</source>
        <translation>%1을(를) 저장할 수 없습니다

저장 위치가 쓰기 금지되어 있거나 공간이 부족할 수 있습니다. 테이블은 저장되지 않은 상태로 유지됩니다. 다른 위치에 저장하십시오.</translation>
    </message>
    <message>
        <source>Rows: %L1</source>
        <translation>행: %L1</translation>
    </message>
    <message>
        <source>Rows: %L1 of %L2</source>
        <translation>행: %L1/%L2</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1(저장되지 않음)</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>열기...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>다른 이름으로 저장...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>정보...</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Load it again?</source>
        <translation>%1이(가) 다른 프로그램에서 변경되었습니다. 다시 불러올까요?</translation>
    </message>
    <message>
        <source>Your unsaved changes will be lost.</source>
        <translation>저장하지 않은 변경 내용은 사라집니다.</translation>
    </message>
    <message>
        <source>Not everything in the file was understood. Saving the table drops these parts: %1</source>
        <translation>파일에 인식할 수 없는 부분이 있습니다. 테이블을 저장하면 제외되는 부분: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1이(가) 다른 프로그램에서 변경되었습니다.</translation>
    </message>
    <message>
        <source>Saving drops the parts of %1 that were not understood (%2). The old file is kept next to it.</source>
        <translation>저장하면 %1에서 인식하지 못한 부분(%2)이 제외됩니다. 이전 파일은 같은 위치에 유지됩니다.</translation>
    </message>
    <message>
        <source>Save the table anyway?</source>
        <translation>그래도 테이블을 저장하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>XmlSource</name>
    <message>
        <source>An element has too many attributes</source>
        <translation>요소의 특성이 너무 많습니다</translation>
    </message>
    <message>
        <source>The entities expand to too many characters</source>
        <translation>엔터티를 확장한 문자가 너무 많습니다</translation>
    </message>
</context>
</TS>
