<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 vues</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Vue arrière</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Vue de dessous</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Dessin détaillé</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Vue dimétrique</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Vue de face</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Vue isométrique</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Vue de gauche</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Multi-vues</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Vue de droite</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Vue de dessus</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Vue trimétrique</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Configuration : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Crée une représentation 2D du modèle</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Adresse e-mail : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Vue : </translation>
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
        <translation>Impossible d&apos;ouvrir le fichier XML&#xa0;: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Veuillez vous connecter à 3DPH pour procéder au téléchargement.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Veuillez saisir le texte à rechercher</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Le serveur n&apos;a pas pu traiter la requête. Clé non valide.</translation>
    </message>
</context>
</TS>
