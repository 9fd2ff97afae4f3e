<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 vistas</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Vista posterior</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Vista inferior</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Dibujo detallado</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Vista dimétrica</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Vista frontal</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Vista isométrica</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Vista lateral izquierda</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Vistas múltiples</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Vista lateral derecha</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Vista superior</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Vista trimétrica</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Configuración : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Crea una representación 2D del modelo</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Correo electrónico : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Contraseña :</translation>
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
        <translation>No se puede abrir el archivo XML: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Inicie sesión en 3DPH para realizar la descarga.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Introduzca el texto que desea buscar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>El servidor no ha podido procesar la solicitud. La cadena de clave no es válida.</translation>
    </message>
</context>
</TS>
