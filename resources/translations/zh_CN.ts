<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>无法使用 Qt 平台插件“%1”打开窗口。请安装该插件，或取消设置 QT_QPA_PLATFORM。</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>无法在 Wayland 显示“%1”上打开窗口。请检查 WAYLAND_DISPLAY 是否指向正在运行的合成器。</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>无法在 Wayland 显示“%1”上打开窗口。请安装软件包 qt6-wayland。</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>无法在显示“%1”上打开窗口。请检查 DISPLAY 是否指向正在运行的 X 服务器。</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>没有可用的显示，无法打开窗口。请在桌面会话中运行安装程序，或者设置 DISPLAY 或 WAYLAND_DISPLAY。</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>无法继续操作。内存不足。</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>无法继续操作。内部错误：%1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>“%1”中的 quillbarn 不完整。请重新安装 quillbarn。</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>“%1”中的 quillbarn 不完整。请再次卸载 quillbarn。</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>“%1”中的 quillbarn 可能不完整。请重新运行安装程序。</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>无法跟随符号链接“%1”。目标“%2/”是包含该符号链接的文件夹（循环链接）。</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>无法跟随符号链接“%1”。指向文件夹“%2/”的符号链接过多。</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>无法安装文件夹“%1”。该文件夹与已安装的文件夹“%2”是同一个文件夹，而已安装的文件夹会在复制前被清空。请从其他文件夹安装。</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>无法更改应用程序“%1”。该应用程序是指向“%2”的符号链接。请删除该符号链接，然后重新运行安装程序。</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>无法更改应用程序“%1”。该应用程序中的符号链接“%2”指向其外部的“%3”。请删除该符号链接，然后重新运行安装程序。</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>无法安装“%1”。已存在同名的失效符号链接。请先卸载 quillbarn，然后重新安装。</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>无法安装“%1”。该卷不区分此名称与“%2”。</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>无法开始操作。</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>无法锁定文件夹“%1”。另一个程序已锁定该文件夹。请等待该程序结束，然后重新运行安装程序。</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>无法打开文件夹“%1”。</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>无法将“%1”复制到“%2”。</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>无法删除“%1”。</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>无法将“%1”中的更改写入磁盘。</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>只有“root”可以写入“%1”。</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>只有“root”以及用户组“%3”的成员可以写入“%1”。</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>只有“root”和“%2”可以写入“%1”。</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>只有“root”、“%2”以及用户组“%3”的成员可以写入“%1”。</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>请以具有写入权限的用户身份运行安装程序。</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>无法复制“%1”。来源是设备、管道或套接字。</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>无法读取“%1”。</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>无法获取“%1”的信息。</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>无法读取文件夹“%1”。</translation>
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
        <source>EACCES</source>
        <translation>没有所需的权限（%1）。</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>系统资源暂时不可用（%1）。请稍后重试。</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>文件或文件夹正在使用中，或者是挂载点（%1）。</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>磁盘配额已用完（%1）。请释放一些空间。</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>已存在同名项目（%1）。</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>文件过大，超出了卷的限制或文件大小限制（%1）。</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>读取或写入时出错（%1）。请检查磁盘。</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>本应是文件的位置存在一个文件夹（%1）。</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>路径中有符号链接循环，或有安装程序不跟随的符号链接（%1）。</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>安装程序打开的文件过多（%1）。</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>名称或路径过长（%1）。</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>系统中打开的文件过多（%1）。请关闭其他程序。</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>文件在复制过程中发生了更改，或磁盘有错误（%1）。</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>项目不存在，或路径中的某个文件夹不存在（%1）。</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>内存不足（%1）。请关闭其他程序。</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>卷上没有空间容纳更多数据或文件（%1）。请释放一些空间。</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>系统或沙盒未提供所需的功能（%1）。需要 Linux 5.6 或更高版本以及系统调用“openat2”。</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>项目不是文件夹，或路径的某一部分不是文件夹（%1）。</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>文件夹不为空（%1）。</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>卷不支持该操作（%1）。</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>系统不允许该操作（%1）。可能的原因：项目或文件夹受保护（不可更改、仅可追加或设有粘滞位）；卷不支持符号链接或硬链接；或者受到沙盒限制。</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>卷是只读的（%1）。</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>文件正作为运行中的程序或交换空间使用（%1）。请退出该程序。</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>卷上的文件系统已损坏，需要修复（%1）。</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>路径中有挂载点（%1）。安装程序不会跨越文件系统边界。</translation>
    </message>
    <message>
        <source>other</source>
        <translation>系统报告了错误 %1。</translation>
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
        <source>Uninstalling quillbarn</source>
        <translation>正在卸载 quillbarn</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>无法卸载 quillbarn</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>正在弹出磁盘映像</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>正在弹出磁盘映像：正在重试</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>无法弹出磁盘映像</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>quillbarn 安装程序：选项无效</translation>
    </message>
</context>
</TS>
