<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4面図</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> 背面図</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> 下面図</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> 詳細図面</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> 二等角投影図</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> 正面図</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> 等角投影図</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> 左側面図</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> 多面図</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> 右側面図</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> 平面図</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> 不等角投影図</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>コンフィギュレーション : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>モデルの2D図面を作成します</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>メールアドレス : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>パスワード :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>ビュー : </translation>
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
        <translation>XMLファイルを開けません: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>構成の設定</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>ダウンロードするには、3DPHにログインしてください。</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>検索する文字列を入力してください</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>サーバーで要求を処理できませんでした。キーが無効です。</translation>
    </message>
</context>
</TS>
