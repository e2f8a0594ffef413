<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>无法使用插件“%1”打开窗口：请安装该插件，或取消设置 QT_QPA_PLATFORM。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>无法在 Wayland 显示“%1”上打开窗口：请检查 WAYLAND_DISPLAY 是否指向正在运行的合成器。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>无法在 Wayland 显示“%1”上打开窗口：请安装软件包 qt6-wayland。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>无法在显示“%1”上打开窗口：请检查 DISPLAY 是否指向正在运行的 X 服务器。</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>没有显示，无法打开窗口：请在桌面会话中启动，或设置 DISPLAY。</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>内存已用尽，无法继续操作。</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>无法继续操作，原因：%1</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>无法更改“%1”，因为它是指向“%2”的链接。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>无法安装“%1”，因为它就是“%2”，而后者会先被清空。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>无法更改“%1”，因为其中的链接“%2”指向外部的“%3”。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>无法安装“%1”，因为其位置上有一个失效的链接。请先卸载，该链接也会随之移除。</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>无法跟随链接“%1”，因为它又指回包含它的文件夹“%2/”。</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>无法开始操作：%1（%2）。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>无法打开文件夹“%1”，因为另一个程序已将其锁定。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>无法打开文件夹“%1”：%2（%3）。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>无法创建文件夹“%1”：%2（%3）。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>无法将“%1”复制到“%2”，因为它是设备、管道或套接字。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>无法将“%1”复制到“%2”：%3（%4）。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>无法移除“%1”：%2（%3）。</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>无法将“%1”中的更改写入磁盘：%2（%3）。</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1只有“root”可以写入“%2”：请以有此权限的用户启动安装程序。</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1只有“root”和组“%4”可以写入“%2”：请以有此权限的用户启动安装程序。</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1只有“root”和“%3”可以写入“%2”：请以有此权限的用户启动安装程序。</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1只有“root”、“%3”和组“%4”可以写入“%2”：请以有此权限的用户启动安装程序。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>无法读取“%1”：%2（%3）。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>无法获取“%1”的信息：%2（%3）。</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>quillbarn 安装程序</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>您没有访问权限</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>它正在使用中，或有其他卷挂载在此处</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>您在该卷上的空间配额已用尽</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>已存在同名的项目</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>文件超过了允许的大小</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>磁盘报告了错误</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是一个文件夹</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>其路径上有一个链接</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>其名称或路径过长</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>数据提前结束，可能是其间被更改，或磁盘报告了错误</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>它不存在</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>内存已用尽</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>卷上没有剩余空间</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>需要 Linux 5.6 或更高版本，且不能有隐藏 openat2 的沙盒</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>其路径的一部分不是文件夹</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>它不是空的</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>它或其所在文件夹受保护，属性为不可更改、仅可追加或粘滞位</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>卷是只读的</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>它位于挂载在该处的另一个卷上</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>系统拒绝了该操作</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>正在安装 quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>无法安装 quillbarn</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>正在移除 quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>无法移除 quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>正在弹出磁盘映像</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>正在弹出磁盘映像：正在等待卷空闲</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>无法弹出磁盘映像</translation>
    </message>
</context>
</TS>
