<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Findings</name>
    <message>
        <source>no longer found in the sources</source>
        <translation>소스 코드에 더 이상 없음</translation>
    </message>
    <message>
        <source>not reviewed yet</source>
        <translation>아직 검토되지 않음</translation>
    </message>
    <message>
        <source>Findings: %L1</source>
        <translation>검사 결과: %L1</translation>
    </message>
    <message>
        <source>%1: %L2 finished, %L3 unfinished, %L4 obsolete, %L5 with different placeholders, %L6 with different accelerators, %L7 with different blanks</source>
        <translation>%1: 완료 %L2, 미완료 %L3, 사용되지 않음 %L4, 다른 인수 %L5, 다른 선택키 %L6, 다른 공백 %L7</translation>
    </message>
    <message>
        <source>no longer used</source>
        <translation>더 이상 쓰이지 않음</translation>
    </message>
    <message>
        <source>not translated yet</source>
        <translation>아직 번역되지 않음</translation>
    </message>
</context>
<context>
    <name>MessageRemarks</name>
    <message>
        <source>missing</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>begins with a blank</source>
        <translation>공백으로 시작함</translation>
    </message>
    <message>
        <source>ends with a blank</source>
        <translation>공백으로 끝남</translation>
    </message>
    <message>
        <source>the file cannot store the character %1</source>
        <translation>파일에 %1 문자를 저장할 수 없음</translation>
    </message>
    <message>
        <source>no translation is found, because %1 is not ASCII</source>
        <translation>%1은(는) ASCII 문자가 아니므로 번역을 찾을 수 없음</translation>
    </message>
    <message>
        <source>%1 is not filled in</source>
        <translation>%1에는 값이 채워지지 않음</translation>
    </message>
    <message>
        <source>%1 is used, but %2 is not</source>
        <translation>%1은(는) 사용되지만 %2은(는) 사용되지 않음</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>not saved with this severity</source>
        <translation>이 심각도에서는 저장되지 않음</translation>
    </message>
    <message>
        <source>the accelerator is missing</source>
        <translation>선택키가 없음</translation>
    </message>
    <message>
        <source>the source has no accelerator</source>
        <translation>원문에 선택키가 없음</translation>
    </message>
    <message>
        <source>begins with different blanks than the source</source>
        <translation>시작 부분의 공백이 원문과 다름</translation>
    </message>
    <message>
        <source>ends with different blanks than the source</source>
        <translation>끝부분의 공백이 원문과 다름</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1이(가) 없음</translation>
    </message>
    <message>
        <source>the source has no %1</source>
        <translation>원문에 %1이(가) 없음</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>컨텍스트</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>조치</translation>
    </message>
</context>
<context>
    <name>MessageTableFile</name>
    <message>
        <source>Line %1: %2</source>
        <translation>%1번째 줄: %2</translation>
    </message>
</context>
<context>
    <name>MessageTableUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>동기화...</translation>
    </message>
    <message>
        <source>Synchronize with source code</source>
        <translation>소스 코드와 동기화합니다</translation>
    </message>
    <message>
        <source>Update Translation...</source>
        <translation>번역 업데이트...</translation>
    </message>
    <message>
        <source>Update translation</source>
        <translation>번역 업데이트</translation>
    </message>
    <message>
        <source>tr</source>
        <translation>tr</translation>
    </message>
    <message>
        <source>Found in the sources, not reviewed yet</source>
        <translation>소스 코드에서 찾았지만 아직 검토되지 않았습니다</translation>
    </message>
    <message>
        <source>No longer found in the sources</source>
        <translation>소스 코드에 더 이상 없습니다</translation>
    </message>
    <message>
        <source>Message Table Utility</source>
        <translation>메시지 테이블 유틸리티</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>프로세스</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>컨텍스트</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>태그</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Open Message Table</source>
        <translation>메시지 테이블 열기</translation>
    </message>
    <message>
        <source>Save Message Table</source>
        <translation>메시지 테이블 저장</translation>
    </message>
    <message>
        <source>Could not load message table</source>
        <translation>메시지 테이블을 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>Table saved</source>
        <translation>테이블을 저장했습니다</translation>
    </message>
    <message>
        <source>Table saved as %1</source>
        <translation>테이블을 %1(으)로 저장했습니다</translation>
    </message>
    <message>
        <source>Loading message table &quot;%1&quot;...</source>
        <translation>메시지 테이블 “%1”을(를) 불러오는 중...</translation>
    </message>
    <message>
        <source>Open Visual Studio Project</source>
        <translation>Visual Studio 프로젝트 열기</translation>
    </message>
    <message>
        <source>Visual Studio Project Error</source>
        <translation>Visual Studio 프로젝트 오류</translation>
    </message>
    <message>
        <source>Could not parse %1</source>
        <translation>%1을(를) 구문 분석할 수 없습니다</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>동기화가 취소되었으며 테이블은 변경되지 않았습니다</translation>
    </message>
    <message>
        <source>Parser Error</source>
        <translation>구문 분석 오류</translation>
    </message>
    <message>
        <source>Parsing</source>
        <translation>구문 분석</translation>
    </message>
    <message>
        <source>Parsing source files from %1</source>
        <translation>%1의 소스 파일을 구문 분석하는 중</translation>
    </message>
    <message>
        <source>Found %1 keys</source>
        <translation>키 %1개를 찾았습니다</translation>
    </message>
    <message>
        <source>Found 0 keys</source>
        <translation>키 0개를 찾았습니다</translation>
    </message>
    <message>
        <source>Found %1 keys (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>키 %1개를 찾았습니다(신규 %2개, 기존 %3개, 사용되지 않음 %4개)</translation>
    </message>
    <message>
        <source>Elapsed time: %1 sec</source>
        <translation>경과 시간: %1초</translation>
    </message>
    <message>
        <source>Open Qt Translation File</source>
        <translation>Qt 번역 파일 열기</translation>
    </message>
    <message>
        <source>Qt Translation File Error</source>
        <translation>Qt 번역 파일 오류</translation>
    </message>
    <message>
        <source>Could not load &apos;%1&apos;: %2</source>
        <translation>“%1”을(를) 불러올 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Added %1 new strings to %2</source>
        <translation>새 문자열 %1개를 %2에 추가했습니다</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1을(를) 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1을(를) 읽는 중</translation>
    </message>
    <message>
        <source>Update cancelled; the translation is unchanged</source>
        <translation>업데이트가 취소되었으며 번역은 변경되지 않았습니다</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Find and Replace...</source>
        <translation>찾기 및 바꾸기...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>다음 찾기</translation>
    </message>
    <message>
        <source>Edit Message</source>
        <translation>메시지 편집</translation>
    </message>
    <message>
        <source>Mark as Reviewed</source>
        <translation>검토됨으로 표시</translation>
    </message>
    <message>
        <source>Next New Message</source>
        <translation>다음 새 메시지</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>심각도</translation>
    </message>
    <message>
        <source>There are no new messages</source>
        <translation>새 메시지가 없습니다</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>찾을 수 없습니다</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Messages changed: %L1</source>
        <translation>변경된 메시지: %L1</translation>
    </message>
    <message>
        <source>New: %L1, obsolete: %L2, incomplete: %L3</source>
        <translation>새 메시지: %L1, 사용되지 않음: %L2, 불완전: %L3</translation>
    </message>
    <message>
        <source>Untranslated strings with a translation in another context: %L1

Take these translations over? The strings stay unfinished.</source>
        <translation>다른 컨텍스트에 번역이 있는 미번역 문자열: %L1

이 번역을 가져오시겠습니까? 문자열은 미완료 상태로 유지됩니다.</translation>
    </message>
    <message>
        <source>Adopt Texts From...</source>
        <translation>텍스트 가져오기...</translation>
    </message>
    <message>
        <source>Select a new message</source>
        <translation>새 메시지를 선택하십시오</translation>
    </message>
    <message>
        <source>No obsolete message has a similar tag or text</source>
        <translation>태그나 텍스트가 비슷한 사용되지 않음 상태의 메시지가 없습니다</translation>
    </message>
    <message>
        <source>Check Messages</source>
        <translation>메시지 검사</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>검사 결과</translation>
    </message>
    <message>
        <source>Messages with a title or an action that is not saved with their severity: %L1</source>
        <translation>심각도 때문에 제목이나 조치가 저장되지 않는 메시지: %L1</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>찾기 및 바꾸기</translation>
    </message>
    <message>
        <source>Replacing...</source>
        <translation>바꾸는 중...</translation>
    </message>
    <message>
        <source>Cancelled; nothing was replaced</source>
        <translation>취소되었으며 아무것도 바꾸지 않았습니다</translation>
    </message>
</context>
<context>
    <name>MessageWindow::AdoptionDialog</name>
    <message>
        <source>Adopt Texts</source>
        <translation>텍스트 가져오기</translation>
    </message>
    <message>
        <source>Obsolete messages</source>
        <translation>사용되지 않음 상태의 메시지</translation>
    </message>
    <message>
        <source>The message adopts the texts of this obsolete message, which is removed:</source>
        <translation>메시지가 다음 사용되지 않음 상태의 메시지의 텍스트를 가져오고 그 메시지는 제거됩니다:</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindDialog</name>
    <message>
        <source>Match case</source>
        <translation>대/소문자 구분</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>찾기 및 바꾸기</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>찾을 내용:</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>바꿀 내용:</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>다음 찾기</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>모두 바꾸기</translation>
    </message>
</context>
<context>
    <name>MessageWindow::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>검사 결과</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 외 %1개</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePanel</name>
    <message>
        <source>Process</source>
        <translation>프로세스</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>컨텍스트</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>태그</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>심각도</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>조치</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>참고 사항</translation>
    </message>
    <message>
        <source>Select a message to edit it.</source>
        <translation>편집할 메시지를 선택하십시오.</translation>
    </message>
    <message>
        <source>Selected messages: %L1</source>
        <translation>선택한 메시지: %L1</translation>
    </message>
</context>
<context>
    <name>MessageWindow::MessagePreview</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>ProjectScan</name>
    <message>
        <source>... and %1 more</source>
        <translation>... 외 %1개</translation>
    </message>
    <message>
        <source>These files were skipped: their messages were not found.</source>
        <translation>이 파일은 건너뛰었으며 해당 메시지를 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>These entries of the project were not resolved: the files that they list were not scanned.</source>
        <translation>프로젝트의 이 항목을 확인할 수 없어 항목이 가리키는 소스 파일을 검사하지 않았습니다.</translation>
    </message>
</context>
</TS>
