<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PartHarbor_2D</name>
    <message>
        <source> 4 View</source>
        <translation> 四视图</translation>
    </message>
    <message>
        <source> Back</source>
        <translation> 后视图</translation>
    </message>
    <message>
        <source> Bottom</source>
        <translation> 仰视图</translation>
    </message>
    <message>
        <source> Detailed</source>
        <translation> 详细图纸</translation>
    </message>
    <message>
        <source> Dimetric</source>
        <translation> 正二等轴测图</translation>
    </message>
    <message>
        <source> Front</source>
        <translation> 主视图</translation>
    </message>
    <message>
        <source> Isometric</source>
        <translation> 正等轴测图</translation>
    </message>
    <message>
        <source> Left</source>
        <translation> 左视图</translation>
    </message>
    <message>
        <source> Mulit View</source>
        <translation> 多视图</translation>
    </message>
    <message>
        <source> Right</source>
        <translation> 右视图</translation>
    </message>
    <message>
        <source> Top</source>
        <translation> 俯视图</translation>
    </message>
    <message>
        <source> Trimetric</source>
        <translation> 正三轴测图</translation>
    </message>
    <message>
        <source>3D PARTHARBOR</source>
        <translation>3D PARTHARBOR</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Configuration : </source>
        <translation>配置 : </translation>
    </message>
    <message>
        <source>Creates a 2D representation of the model</source>
        <translation>创建模型的二维图形</translation>
    </message>
    <message>
        <source>Email Address : </source>
        <translation>电子邮件地址 : </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>密码 :</translation>
    </message>
    <message>
        <source>View : </source>
        <translation>视图 : </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>2D</source>
        <translation>二维</translation>
    </message>
    <message>
        <source>Cannot open xml file: %1</source>
        <translation>无法打开 XML 文件：%1</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Please Login to 3DPH to Download.</source>
        <translation>请登录 3DPH 后再下载。</translation>
    </message>
    <message>
        <source>Please enter Search string</source>
        <translation>请输入搜索内容</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Server was unable to process request. Invalid key string.</source>
        <translation>服务器无法处理请求。密钥无效。</translation>
    </message>
</context>
</TS>
