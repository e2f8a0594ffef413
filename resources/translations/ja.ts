<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Displays</name>
    <message>
        <source>plugin not found</source>
        <translation>Qt プラットフォームプラグイン「%1」でウィンドウを開けませんでした。プラグインをインストールするか、QT_QPA_PLATFORM の設定を解除してください。</translation>
    </message>
    <message>
        <source>Wayland display not found</source>
        <translation>Wayland ディスプレイ「%1」にウィンドウを開けませんでした。WAYLAND_DISPLAY が実行中のコンポジターを指しているか確認してください。</translation>
    </message>
    <message>
        <source>Wayland plugin not found</source>
        <translation>Wayland ディスプレイ「%1」にウィンドウを開けませんでした。パッケージ qt6-wayland をインストールしてください。</translation>
    </message>
    <message>
        <source>X display not found</source>
        <translation>ディスプレイ「%1」にウィンドウを開けませんでした。DISPLAY が実行中の X サーバーを指しているか確認してください。</translation>
    </message>
    <message>
        <source>no display</source>
        <translation>ディスプレイがないため、ウィンドウを開けませんでした。デスクトップセッションでインストーラーを起動するか、DISPLAY または WAYLAND_DISPLAY を設定してください。</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>out of memory</source>
        <translation>処理を続行できませんでした。メモリーが足りません。</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>処理を続行できませんでした。内部エラー: %1</translation>
    </message>
    <message>
        <source>incomplete, install again</source>
        <translation>「%1」にある quillbarn は不完全な状態です。quillbarn をもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>incomplete, uninstall again</source>
        <translation>「%1」にある quillbarn は不完全な状態です。quillbarn をもう一度アンインストールしてください。</translation>
    </message>
    <message>
        <source>maybe incomplete</source>
        <translation>「%1」にある quillbarn は不完全な可能性があります。インストーラーをもう一度起動してください。</translation>
    </message>
    <message>
        <source>symlink loop</source>
        <translation>シンボリックリンク「%1」をたどれませんでした。リンク先「%2/」は、このシンボリックリンク自体を含むフォルダーです (ループ)。</translation>
    </message>
    <message>
        <source>too many symlinks</source>
        <translation>シンボリックリンク「%1」をたどれませんでした。フォルダー「%2/」を指すシンボリックリンクが多すぎます。</translation>
    </message>
    <message>
        <source>source is the installed folder</source>
        <translation>フォルダー「%1」をインストールできませんでした。インストール元が、インストール済みのフォルダー「%2」と同じフォルダーです。このフォルダーはコピーの前に空にされます。別のフォルダーからインストールしてください。</translation>
    </message>
    <message>
        <source>application is a symlink</source>
        <translation>アプリケーション「%1」を変更できませんでした。このアプリケーションは「%2」へのシンボリックリンクです。シンボリックリンクを削除してから、インストーラーをもう一度起動してください。</translation>
    </message>
    <message>
        <source>symlink points outside</source>
        <translation>アプリケーション「%1」を変更できませんでした。アプリケーション内のシンボリックリンク「%2」が、外部の「%3」を指しています。シンボリックリンクを削除してから、インストーラーをもう一度起動してください。</translation>
    </message>
    <message>
        <source>dangling symlink exists</source>
        <translation>「%1」をインストールできませんでした。同じ名前のリンク切れのシンボリックリンクがすでに存在します。quillbarn をアンインストールしてから、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>names are equal</source>
        <translation>「%1」をインストールできませんでした。このボリュームでは、この名前は「%2」と区別されません。</translation>
    </message>
    <message>
        <source>operation not started</source>
        <translation>処理を開始できませんでした。</translation>
    </message>
    <message>
        <source>folder is locked</source>
        <translation>フォルダー「%1」をロックできませんでした。別のプログラムがフォルダーをロックしています。そのプログラムの終了を待ってから、インストーラーをもう一度起動してください。</translation>
    </message>
    <message>
        <source>folder not opened</source>
        <translation>フォルダー「%1」を開けませんでした。</translation>
    </message>
    <message>
        <source>folder not created</source>
        <translation>フォルダー「%1」を作成できませんでした。</translation>
    </message>
    <message>
        <source>item not copied</source>
        <translation>「%1」を「%2」にコピーできませんでした。</translation>
    </message>
    <message>
        <source>item not removed</source>
        <translation>「%1」を削除できませんでした。</translation>
    </message>
    <message>
        <source>changes not written</source>
        <translation>「%1」の変更内容をディスクに書き込めませんでした。</translation>
    </message>
    <message>
        <source>root can write</source>
        <translation>「%1」に書き込めるのは「root」だけです。</translation>
    </message>
    <message>
        <source>group can write</source>
        <translation>「%1」に書き込めるのは「root」、およびグループ「%3」のメンバーだけです。</translation>
    </message>
    <message>
        <source>owner can write</source>
        <translation>「%1」に書き込めるのは「root」と「%2」だけです。</translation>
    </message>
    <message>
        <source>owner and group can write</source>
        <translation>「%1」に書き込めるのは「root」、「%2」、およびグループ「%3」のメンバーだけです。</translation>
    </message>
    <message>
        <source>write permission required</source>
        <translation>書き込み権限のあるユーザーでインストーラーを起動してください。</translation>
    </message>
    <message>
        <source>item is special</source>
        <translation>「%1」をコピーできませんでした。コピー元はデバイス、パイプ、またはソケットです。</translation>
    </message>
    <message>
        <source>item not read</source>
        <translation>「%1」を読み込めませんでした。</translation>
    </message>
    <message>
        <source>two sentences</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>item not examined</source>
        <translation>「%1」の情報を取得できませんでした。</translation>
    </message>
    <message>
        <source>folder not read</source>
        <translation>フォルダー「%1」を読み込めませんでした。</translation>
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
        <translation>進行状況</translation>
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
        <source>EACCES</source>
        <translation>必要な権限がありません (%1)。</translation>
    </message>
    <message>
        <source>EAGAIN</source>
        <translation>システムのリソースが一時的に利用できません (%1)。しばらくしてからもう一度試してください。</translation>
    </message>
    <message>
        <source>EBUSY</source>
        <translation>ファイルまたはフォルダーが使用中か、マウントポイントです (%1)。</translation>
    </message>
    <message>
        <source>EDQUOT</source>
        <translation>ディスク使用量の上限 (クォータ) に達しました (%1)。不要なファイルを削除してください。</translation>
    </message>
    <message>
        <source>EEXIST</source>
        <translation>同じ名前の項目がすでに存在します (%1)。</translation>
    </message>
    <message>
        <source>EFBIG</source>
        <translation>ファイルのサイズが、ボリュームの上限またはファイルサイズの制限を超えています (%1)。</translation>
    </message>
    <message>
        <source>EIO</source>
        <translation>読み込みまたは書き込みのエラーが発生しました (%1)。ディスクを確認してください。</translation>
    </message>
    <message>
        <source>EISDIR</source>
        <translation>ファイルがあるべき場所にフォルダーがあります (%1)。</translation>
    </message>
    <message>
        <source>ELOOP</source>
        <translation>パスに、シンボリックリンクのループ、またはインストーラーがたどらないシンボリックリンクがあります (%1)。</translation>
    </message>
    <message>
        <source>EMFILE</source>
        <translation>インストーラーが開いているファイルが多すぎます (%1)。</translation>
    </message>
    <message>
        <source>ENAMETOOLONG</source>
        <translation>名前またはパスが長すぎます (%1)。</translation>
    </message>
    <message>
        <source>ENFILE</source>
        <translation>システム全体で開いているファイルが多すぎます (%1)。ほかのプログラムを終了してください。</translation>
    </message>
    <message>
        <source>ENODATA</source>
        <translation>コピー中にファイルが変更されたか、ディスクにエラーがあります (%1)。</translation>
    </message>
    <message>
        <source>ENOENT</source>
        <translation>項目、またはパス上のフォルダーが存在しません (%1)。</translation>
    </message>
    <message>
        <source>ENOMEM</source>
        <translation>メモリーが足りません (%1)。ほかのプログラムを終了してください。</translation>
    </message>
    <message>
        <source>ENOSPC</source>
        <translation>ボリュームに、データやファイルを追加する空きがありません (%1)。空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>ENOSYS</source>
        <translation>必要な機能がシステムまたはサンドボックスで提供されていません (%1)。Linux 5.6 以降と、システムコール「openat2」が必要です。</translation>
    </message>
    <message>
        <source>ENOTDIR</source>
        <translation>項目、またはパスの一部がフォルダーではありません (%1)。</translation>
    </message>
    <message>
        <source>ENOTEMPTY</source>
        <translation>フォルダーが空ではありません (%1)。</translation>
    </message>
    <message>
        <source>EOPNOTSUPP</source>
        <translation>ボリュームがこの操作に対応していません (%1)。</translation>
    </message>
    <message>
        <source>EPERM</source>
        <translation>システムがこの操作を許可していません (%1)。考えられる原因: 保護された項目またはフォルダー (変更不可、追記専用、またはスティッキービット)、シンボリックリンクまたはハードリンクを使えないボリューム、またはサンドボックス。</translation>
    </message>
    <message>
        <source>EROFS</source>
        <translation>ボリュームが読み取り専用です (%1)。</translation>
    </message>
    <message>
        <source>ETXTBSY</source>
        <translation>ファイルが実行中のプログラムまたはスワップ領域として使用されています (%1)。プログラムを終了してください。</translation>
    </message>
    <message>
        <source>EUCLEAN</source>
        <translation>ボリュームのファイルシステムが壊れており、修復が必要です (%1)。</translation>
    </message>
    <message>
        <source>EXDEV</source>
        <translation>パス上にマウントポイントがあります (%1)。インストーラーはファイルシステムの境界を越えません。</translation>
    </message>
    <message>
        <source>other</source>
        <translation>システムがエラー %1 を報告しました。</translation>
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
        <source>Uninstalling quillbarn</source>
        <translation>quillbarn をアンインストールしています</translation>
    </message>
    <message>
        <source>quillbarn could not be uninstalled</source>
        <translation>quillbarn をアンインストールできませんでした</translation>
    </message>
    <message>
        <source>Ejecting the disk image</source>
        <translation>ディスクイメージを取り出しています</translation>
    </message>
    <message>
        <source>Ejecting the disk image: trying again</source>
        <translation>ディスクイメージを取り出しています: 再試行中</translation>
    </message>
    <message>
        <source>The disk image could not be ejected</source>
        <translation>ディスクイメージを取り出せませんでした</translation>
    </message>
    <message>
        <source>quillbarn installer: invalid options</source>
        <translation>quillbarn インストーラー: 無効なオプション</translation>
    </message>
</context>
</TS>
