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
        <translation> Desenho detalhado</translation>
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
        <translation> Vista lateral esquerda</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Vistas múltiplas</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Vista lateral direita</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Configuração : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Cria uma representação 2D do modelo</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Endereço de e-mail : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Senha :</translation>
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
        <translation>Não foi possível abrir o arquivo XML: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Entre no 3DPH para fazer o download.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Digite o texto a ser pesquisado</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>O servidor não conseguiu processar a solicitação. Chave inválida.</translation>
    </message>
</context>
</TS>
