<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 4 вида</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> Вид сзади</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> Вид снизу</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> Подробный чертёж</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> Диметрия</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> Вид спереди</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> Изометрия</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> Вид слева</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> Несколько видов</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> Вид справа</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> Вид сверху</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> Триметрия</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>Конфигурация : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>Создаёт 2D-представление модели</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>Адрес электронной почты : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Пароль :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>Вид : </translation>
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
        <translation>Не удалось открыть файл XML: %1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>Войдите в 3DPH, чтобы скачать файл.</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>Введите текст для поиска</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>Серверу не удалось обработать запрос. Недопустимый ключ.</translation>
    </message>
</context>
</TS>
