<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4면도</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> 배면도</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> 저면도</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> 상세 도면</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> 이등각 투상도</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> 정면도</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> 등각 투상도</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> 좌측면도</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> 다중 뷰</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> 우측면도</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> 평면도</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> 부등각 투상도</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>구성 : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>모델의 2D 도면을 작성합니다</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>이메일 주소 : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>비밀번호 :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>뷰 : </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>Cannot open xml file: %1</source>
        <translation>XML 파일을 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>구성</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>다운로드하려면 3DPH에 로그인하십시오.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>검색어를 입력하십시오</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>서버에서 요청을 처리하지 못했습니다. 키가 올바르지 않습니다.</translation>
    </message>
</context>
</TS>
