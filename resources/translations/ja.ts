<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>The window can’t be opened by the plugin “%1”: install it, or unset QT_QPA_PLATFORM.</source>
        <translation>プラグイン「%1」でウィンドウを開けません。プラグインをインストールするか、QT_QPA_PLATFORM の設定を解除してください。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: check that WAYLAND_DISPLAY names a running compositor.</source>
        <translation>Wayland ディスプレイ「%1」でウィンドウを開けません。WAYLAND_DISPLAY が実行中のコンポジターを指しているか確認してください。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the Wayland display “%1”: install the package qt6-wayland.</source>
        <translation>Wayland ディスプレイ「%1」でウィンドウを開けません。パッケージ qt6-wayland をインストールしてください。</translation>
    </message>
    <message>
        <source>The window can’t be opened on the display “%1”: check that DISPLAY names a running X server.</source>
        <translation>ディスプレイ「%1」でウィンドウを開けません。DISPLAY が実行中の X サーバーを指しているか確認してください。</translation>
    </message>
    <message>
        <source>The window can’t be opened without a display: start it in a desktop session, or set DISPLAY.</source>
        <translation>ディスプレイがないため、ウィンドウを開けません。デスクトップセッションで起動するか、DISPLAY を設定してください。</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The run couldn’t go on because the memory is used up.</source>
        <translation>メモリー不足のため、処理を続行できませんでした。</translation>
    </message>
    <message>
        <source>The run couldn’t go on because of: %1</source>
        <translation>処理を続行できませんでした。原因: %1</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because it is a link, to “%2”.</source>
        <translation>「%1」は「%2」へのリンクであるため、変更できませんでした。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because it is “%2”, which would be emptied first.</source>
        <translation>「%1」は先に空にされる「%2」と同じものであるため、インストールできませんでした。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be changed because the link “%2” leads out of it, to “%3”.</source>
        <translation>リンク「%2」が外部の「%3」を指しているため、「%1」を変更できませんでした。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be installed because a link that leads nowhere has its place. Uninstall first, which removes the link, too.</source>
        <translation>リンク先のないリンクが同じ場所にあるため、「%1」をインストールできませんでした。先にアンインストールしてください。リンクも削除されます。</translation>
    </message>
    <message>
        <source>The link “%1” couldn’t be followed because it leads back to “%2/”, a folder that holds it.</source>
        <translation>リンク「%1」は、それ自体を含むフォルダー「%2/」に戻るため、たどれませんでした。</translation>
    </message>
    <message>
        <source>The work couldn’t be started because %1 (%2).</source>
        <translation>処理を開始できませんでした: %1 (%2)。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because another program holds it locked.</source>
        <translation>ほかのプログラムがロックしているため、フォルダー「%1」を開けませんでした。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be opened because %2 (%3).</source>
        <translation>フォルダー「%1」を開けませんでした: %2 (%3)。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created because %2 (%3).</source>
        <translation>フォルダー「%1」を作成できませんでした: %2 (%3)。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because it is a device, a pipe or a socket.</source>
        <translation>「%1」はデバイス、パイプ、またはソケットであるため、「%2」にコピーできませんでした。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied to “%2” because %3 (%4).</source>
        <translation>「%1」を「%2」にコピーできませんでした: %3 (%4)。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed because %2 (%3).</source>
        <translation>「%1」を削除できませんでした: %2 (%3)。</translation>
    </message>
    <message>
        <source>What was changed in “%1” couldn’t be written to the disk because %2 (%3).</source>
        <translation>「%1」の変更をディスクに書き込めませんでした: %2 (%3)。</translation>
    </message>
    <message>
        <source>%1 Only “root” may write in “%2”: start the installer as one who may.</source>
        <translation>%1「%2」に書き込めるのは「root」だけです。書き込み権限のあるユーザーでインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>%1 Only “root” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1「%2」に書き込めるのは「root」とグループ「%4」だけです。書き込み権限のあるユーザーでインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” may write in “%2”: start the installer as one who may.</source>
        <translation>%1「%2」に書き込めるのは「root」と「%3」だけです。書き込み権限のあるユーザーでインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>%1 Only “root” and “%3” and the group “%4” may write in “%2”: start the installer as one who may.</source>
        <translation>%1「%2」に書き込めるのは「root」、「%3」、およびグループ「%4」だけです。書き込み権限のあるユーザーでインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be read because %2 (%3).</source>
        <translation>「%1」を読み込めませんでした: %2 (%3)。</translation>
    </message>
    <message>
        <source>“%1” couldn’t be looked at because %2 (%3).</source>
        <translation>「%1」の情報を取得できませんでした: %2 (%3)。</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>quillbarn installer</source>
        <translation>quillbarn インストーラー</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>you don’t have permission to access it</source>
        <translation>アクセスする権限がありません</translation>
    </message>
    <message>
        <source>it is in use, or another volume is mounted there</source>
        <translation>使用中であるか、別のボリュームがマウントされています</translation>
    </message>
    <message>
        <source>your share of the volume’s space is used up</source>
        <translation>割り当てられたボリュームの容量を使い切りました</translation>
    </message>
    <message>
        <source>an item with the same name already exists</source>
        <translation>同じ名前の項目がすでに存在します</translation>
    </message>
    <message>
        <source>it is larger than a file may be</source>
        <translation>ファイルの大きさの上限を超えています</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>ディスクがエラーを報告しました</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>a link is on its path</source>
        <translation>パスの途中にリンクがあります</translation>
    </message>
    <message>
        <source>its name or path is too long</source>
        <translation>名前またはパスが長すぎます</translation>
    </message>
    <message>
        <source>its data ended early: it was changed meanwhile, or the disk reported a fault</source>
        <translation>データが途中で終わりました。その間に変更されたか、ディスクがエラーを報告しました</translation>
    </message>
    <message>
        <source>it doesn’t exist</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>the memory is used up</source>
        <translation>メモリーが不足しています</translation>
    </message>
    <message>
        <source>the volume is out of space</source>
        <translation>ボリュームに空き容量がありません</translation>
    </message>
    <message>
        <source>that takes Linux 5.6 or later, and no sandbox that hides openat2</source>
        <translation>Linux 5.6 以降が必要で、openat2 を隠すサンドボックスでは動作しません</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>パスの一部がフォルダーではありません</translation>
    </message>
    <message>
        <source>it is not empty</source>
        <translation>空ではありません</translation>
    </message>
    <message>
        <source>it or its folder is protected: immutable, append-only or sticky</source>
        <translation>項目またはそのフォルダーが、変更不可、追記専用、またはスティッキーとして保護されています</translation>
    </message>
    <message>
        <source>the volume is read only</source>
        <translation>ボリュームが読み取り専用です</translation>
    </message>
    <message>
        <source>it lies on another volume, which is mounted there</source>
        <translation>そこにマウントされた別のボリュームにあります</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>システムに拒否されました</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>Installing quillbarn</source>
        <translation>quillbarn をインストールしています</translation>
    </message>
    <message>
        <source>quillbarn could not be installed</source>
        <translation>quillbarn をインストールできませんでした</translation>
    </message>
    <message>
        <source>Removing quillbarn</source>
        <translation>quillbarn を削除しています</translation>
    </message>
    <message>
        <source>quillbarn could not be removed</source>
        <translation>quillbarn を削除できませんでした</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>ディスクイメージを取り出しています</translation>
    </message>
    <message>
        <source>Ejecting the disk image: waiting for the volume to be free</source>
        <translation>取り出し中: ボリュームの使用が終わるのを待っています</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>ディスクイメージを取り出せませんでした</translation>
    </message>
</context>
</TS>
