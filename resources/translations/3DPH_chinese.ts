<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 四視圖</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> 後視圖</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> 仰視圖</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> 詳細圖面</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> 二等角圖</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> 前視圖</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> 等角圖</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> 左側視圖</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> 多視圖</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> 右側視圖</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> 俯視圖</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> 不等角圖</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>組態 : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>建立模型的 2D 圖形</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>電子郵件地址 : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>密碼 :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>視圖 : </translation>
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
        <translation>無法開啟 XML 檔案：%1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>設定組態</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>請先登入 3DPH 再下載。</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>請輸入搜尋關鍵字</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>伺服器無法處理要求。金鑰無效。</translation>
    </message>
</context>
</TS>
