<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 viste</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Vista posteriore</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Vista dal basso</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Disegno dettagliato</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Vista dimetrica</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Vista anteriore</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Vista isometrica</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Vista da sinistra</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Viste multiple</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Vista da destra</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Vista dall&apos;alto</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Vista trimetrica</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Configurazione : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Crea una rappresentazione 2D del modello</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Indirizzo e-mail : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Password :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Vista : </translation>
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
        <translation>Impossibile aprire il file XML: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Configura</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Per eseguire il download, accedere a 3DPH.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Immettere il testo da cercare</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Il server non è riuscito a elaborare la richiesta. Chiave non valida.</translation>
    </message>
</context>
</TS>
