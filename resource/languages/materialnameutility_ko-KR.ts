<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>MaterialTranslationTable</name>
    <message>
        <source>It is not a translation file</source>
        <translation>번역 파일이 아닙니다</translation>
    </message>
    <message>
        <source>It cannot be written</source>
        <translation>파일에 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>mat::MaterialNameUtility</name>
    <message>
        <source>Synchronize...</source>
        <translation>동기화...</translation>
    </message>
    <message>
        <source>Synchronize with material database</source>
        <translation>재료 데이터베이스와 동기화합니다</translation>
    </message>
    <message>
        <source>New</source>
        <translation>신규</translation>
    </message>
    <message>
        <source>Obsolete</source>
        <translation>사용되지 않음</translation>
    </message>
    <message>
        <source>New in the material database, to be translated</source>
        <translation>재료 데이터베이스에 새로 추가되어 번역이 필요합니다</translation>
    </message>
    <message>
        <source>Obsolete: was not found in the material database; the translation is kept</source>
        <translation>사용되지 않음: 재료 데이터베이스에서 찾을 수 없습니다. 번역은 유지됩니다.</translation>
    </message>
    <message>
        <source>Material Name Utility</source>
        <translation>재료 이름 유틸리티</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>번역</translation>
    </message>
    <message>
        <source>Open Translation Table</source>
        <translation>번역 테이블 열기</translation>
    </message>
    <message>
        <source>Save Translation Table</source>
        <translation>번역 테이블 저장</translation>
    </message>
    <message>
        <source>Could not load translation table</source>
        <translation>번역 테이블을 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>Created new translation table</source>
        <translation>새 번역 테이블을 만들었습니다</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1을(를) 열었습니다</translation>
    </message>
    <message>
        <source>Saved translation table</source>
        <translation>번역 테이블을 저장했습니다</translation>
    </message>
    <message>
        <source>Saved translation table as %1</source>
        <translation>번역 테이블을 %1(으)로 저장했습니다</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1을(를) 읽는 중</translation>
    </message>
    <message>
        <source>Open Material Database</source>
        <translation>재료 데이터베이스 열기</translation>
    </message>
    <message>
        <source>Synchronization cancelled; the table is unchanged</source>
        <translation>동기화가 취소되었으며 테이블은 변경되지 않았습니다</translation>
    </message>
    <message>
        <source>Load Material Database</source>
        <translation>재료 데이터베이스 불러오기</translation>
    </message>
    <message>
        <source>Cannot read material database</source>
        <translation>재료 데이터베이스를 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Found %1 names (%2 new, %3 existing, and %4 obsolete)</source>
        <translation>이름 %1개를 찾았습니다(신규 %2개, 기존 %3개, 사용되지 않음 %4개)</translation>
    </message>
</context>
</TS>
