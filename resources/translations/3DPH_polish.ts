<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 widoki</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Widok z tyłu</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Widok z dołu</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Rysunek szczegółowy</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Widok dimetryczny</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Widok z przodu</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Widok izometryczny</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Widok od lewej strony</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Wiele widoków</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Widok od prawej strony</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Widok z góry</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Widok trimetryczny</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Konfiguracja : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Tworzy reprezentację 2D modelu</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Adres e-mail : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Hasło :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Widok : </translation>
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
        <translation>Nie można otworzyć pliku XML: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfiguruj</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Zaloguj się do 3DPH, aby rozpocząć pobieranie.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Wprowadź szukany tekst</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Serwer nie mógł przetworzyć żądania. Nieprawidłowy klucz.</translation>
    </message>
</context>
</TS>
