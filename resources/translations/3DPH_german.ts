<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 Ansichten</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Rückansicht</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Untersicht</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Detaillierte Zeichnung</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Dimetrische Ansicht</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Vorderansicht</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Isometrische Ansicht</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Seitenansicht von links</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Mehrfachansicht</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Seitenansicht von rechts</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Draufsicht</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Trimetrische Ansicht</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Konfiguration : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Erstellt eine 2D-Darstellung des Modells</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>E-Mail-Adresse : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Passwort :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Ansicht : </translation>
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
        <translation>XML-Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Konfigurieren</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Bitte melden Sie sich zum Herunterladen bei 3DPH an.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Bitte geben Sie einen Suchbegriff ein</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Der Server konnte die Anfrage nicht verarbeiten. Ungültiger Schlüssel.</translation>
    </message>
</context>
</TS>
