<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
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
</context>
</TS>
