<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 görünüş</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Arkadan görünüş</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Alttan görünüş</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Ayrıntılı teknik resim</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Dimetrik görünüş</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Önden görünüş</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> İzometrik görünüş</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Soldan görünüş</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Çoklu görünüş</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Sağdan görünüş</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Üstten görünüş</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Trimetrik görünüş</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Konfigürasyon : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Modelin 2B gösterimini oluşturur</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>E-posta adresi : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Oturum aç</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Parola :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Görünüş : </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>2D</source>
        <translation>2B</translation>
    </message>
    <message>
        <source>Cannot open xml file: %1</source>
        <translation>XML dosyası açılamıyor: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigüre et</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Oturum aç</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>İndirmek için lütfen 3DPH hesabınızla oturum açın.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Lütfen bir arama terimi girin</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Sunucu isteği işleyemedi. Geçersiz anahtar.</translation>
    </message>
</context>
</TS>
