<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 pohledy</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Pohled zezadu</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Pohled zdola</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Podrobný výkres</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Dimetrický pohled</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Pohled zepředu</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Izometrický pohled</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Pohled zleva</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Vícepohledový výkres</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Pohled zprava</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Pohled shora</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Trimetrický pohled</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Konfigurace : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Vytvoří 2D zobrazení modelu</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>E-mailová adresa : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Přihlásit se</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Heslo :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Pohled : </translation>
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
        <translation>Soubor XML nelze otevřít: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurovat</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Přihlásit se</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Před stažením se přihlaste do 3DPH.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Zadejte hledaný text</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Server nemohl zpracovat požadavek. Neplatný klíč.</translation>
    </message>
</context>
</TS>
