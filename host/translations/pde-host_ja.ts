<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source> and </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Conflicting Settings</source>
        <translation>競合する設定</translation>
    </message>
    <message>
        <source>The printer can&apos;t print these together:</source>
        <translation>プリンターは次の設定を同時に使用できません:</translation>
    </message>
    <message>
        <source>There is no simple way to put this right. Go back and choose another value for one of them.</source>
        <translation>簡単な解決方法がありません。戻って、いずれかに別の値を選択してください。</translation>
    </message>
    <message>
        <source>This would put it right:</source>
        <translation>次の変更で解決できます:</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>戻る(&amp;G)</translation>
    </message>
    <message>
        <source>Print &amp;Anyway</source>
        <translation>このまま印刷(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Change and Print</source>
        <translation>変更して印刷(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a state and why</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Not available with %1, and others</source>
        <translation>%1 などと同時に使用できません</translation>
    </message>
    <message>
        <source>Not available with %1</source>
        <translation>%1 と同時に使用できません</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>CUPS server %1</source>
        <translation>CUPS サーバー %1</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>中止されました</translation>
    </message>
    <message>
        <source>no CUPS server answers there: %1</source>
        <translation>CUPS サーバーが応答しません: %1</translation>
    </message>
    <message>
        <source>CUPS server %1 sent no whole answer within %2 seconds</source>
        <translation>CUPS サーバー %1 は %2 秒以内に完全な応答を返しませんでした</translation>
    </message>
    <message>
        <source>CUPS server %1 gave no answer within %2 seconds</source>
        <translation>CUPS サーバー %1 は %2 秒以内に応答しませんでした</translation>
    </message>
    <message>
        <source>CUPS server %1 closed the connection or sent no valid answer</source>
        <translation>CUPS サーバー %1 は接続を閉じたか、無効な応答を返しました</translation>
    </message>
    <message>
        <source>CUPS server %1: %2</source>
        <translation>CUPS サーバー %1: %2</translation>
    </message>
    <message>
        <source>no such queue on CUPS server %1</source>
        <translation>CUPS サーバー %1 にこのキューはありません</translation>
    </message>
    <message>
        <source>has no default queue</source>
        <translation>既定のキューがありません</translation>
    </message>
    <message>
        <source>the queue has no PPD</source>
        <translation>キューに PPD がありません</translation>
    </message>
    <message>
        <source>its PPD can&apos;t be read: %1</source>
        <translation>PPD を読み込めません: %1</translation>
    </message>
    <message>
        <source>its PPD is too large</source>
        <translation>PPD が大きすぎます</translation>
    </message>
    <message>
        <source>job %1</source>
        <translation>ジョブ %1</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに印刷</translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation>認証が必要です</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>%1 didn&apos;t finish within %2 seconds</source>
        <translation>%1 は %2 秒以内に終了しませんでした</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>%1 wrote too much</source>
        <translation>%1 の出力が多すぎます</translation>
    </message>
    <message>
        <source>%1 can&apos;t convert it to %2%3</source>
        <translation>%1 で %2 に変換できません%3</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>is neither PostScript nor PDF</source>
        <translation>PostScript でも PDF でもありません</translation>
    </message>
    <message>
        <source>a PDF needs pdftops or gs, and neither is installed</source>
        <translation>PDF には pdftops か gs が必要ですが、どちらもインストールされていません</translation>
    </message>
    <message>
        <source>PostScript needs gs, which isn&apos;t installed</source>
        <translation>PostScript には gs が必要ですが、インストールされていません</translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation>書き込めません: %1</translation>
    </message>
    <message>
        <source>a value of one&apos;s own (“%1”) is no longer taken</source>
        <translation>独自の値（「%1」）は使用できなくなりました</translation>
    </message>
    <message>
        <source>“%1” is outside of what this printer takes</source>
        <translation>「%1」はこのプリンターで使用できる範囲外です</translation>
    </message>
    <message>
        <source>“%1” is no longer there</source>
        <translation>「%1」はなくなりました</translation>
    </message>
    <message>
        <source>“%1” is no longer a setting of this printer; the preset has “%2”</source>
        <translation>「%1」はこのプリンターの設定ではなくなりました。プリセットの値は「%2」です</translation>
    </message>
    <message>
        <source>%1: is locked and stays “%2”</source>
        <translation>%1: ロックされているため「%2」のままです</translation>
    </message>
    <message>
        <source>passwords aren&apos;t kept in presets; enter it again</source>
        <translation>パスワードはプリセットに保存されません。もう一度入力してください</translation>
    </message>
    <message>
        <source>Not possible: %1.</source>
        <translation>実行できません: %1。</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>the name begins or ends with a blank</source>
        <translation>名前の先頭または末尾が空白です</translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation>名前が %1 文字を超えています</translation>
    </message>
    <message>
        <source>the name has a character that can&apos;t be shown</source>
        <translation>名前に表示できない文字があります</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>作成できません</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>ほかのプログラムが使用中です</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t what it should be</source>
        <translation>「%1」の内容が正しくありません</translation>
    </message>
    <message>
        <source>“%1” has a character that is none</source>
        <translation>「%1」に文字でないものがあります</translation>
    </message>
    <message>
        <source>“%1” has an empty key</source>
        <translation>「%1」に空のキーがあります</translation>
    </message>
    <message>
        <source>is larger than %1 MB</source>
        <translation>%1 MB を超えています</translation>
    </message>
    <message>
        <source>isn&apos;t a preset: line %1: %2</source>
        <translation>プリセットではありません: %1 行目: %2</translation>
    </message>
    <message>
        <source>isn&apos;t a preset</source>
        <translation>プリセットではありません</translation>
    </message>
    <message>
        <source>has a key twice</source>
        <translation>キーが重複しています</translation>
    </message>
    <message>
        <source>was made by a newer version of this program (format %1); it is left as it is</source>
        <translation>このプログラムの新しいバージョンで作成されています（形式 %1）。そのまま残します</translation>
    </message>
    <message>
        <source>has the unknown key “%1”</source>
        <translation>不明なキー「%1」があります</translation>
    </message>
    <message>
        <source>can&apos;t be removed: %1</source>
        <translation>削除できません: %1</translation>
    </message>
    <message>
        <source>“%1” has no preset of this name</source>
        <translation>「%1」にこの名前のプリセットはありません</translation>
    </message>
    <message>
        <source>is too large for a preset</source>
        <translation>プリセットとしては大きすぎます</translation>
    </message>
    <message>
        <source>The last used settings of “%1”</source>
        <translation>「%1」で最後に使用した設定</translation>
    </message>
    <message>
        <source>the document is damaged.</source>
        <translation>文書が壊れています。</translation>
    </message>
    <message>
        <source>the document is protected by a password.</source>
        <translation>文書はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>the document has no pages.</source>
        <translation>文書にページがありません。</translation>
    </message>
    <message>
        <source>the document is too large.</source>
        <translation>文書が大きすぎます。</translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation>%1 ページは壊れています。</translation>
    </message>
    <message>
        <source>Page %1 has a size that can&apos;t be drawn.</source>
        <translation>%1 ページの大きさは描画できません。</translation>
    </message>
    <message>
        <source>Page %1 takes too long to draw.</source>
        <translation>%1 ページの描画に時間がかかりすぎています。</translation>
    </message>
    <message>
        <source>Page %1 can&apos;t be drawn.</source>
        <translation>%1 ページを描画できません。</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>%1: line %2 isn&apos;t UTF-8</source>
        <translation>%1: %2 行目は UTF-8 ではありません</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状態不明</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>%1, takes no jobs</source>
        <extracomment>a state, such as &quot;Idle&quot;</extracomment>
        <translation>%1、ジョブを受け付けません</translation>
    </message>
    <message>
        <source>The printer takes no jobs at the moment.</source>
        <translation>プリンターは現在ジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>The printer is paused. Jobs wait until it goes on.</source>
        <translation>プリンターは一時停止しています。ジョブは再開されるまで待機します。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>a sentence and why</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>接続されていません</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>answers in a wrong way</source>
        <translation>応答が正しくありません</translation>
    </message>
    <message>
        <source>driver isn&apos;t safe to run</source>
        <translation>ドライバーが安全ではありません</translation>
    </message>
    <message>
        <source>driver is incomplete</source>
        <translation>ドライバーが不完全です</translation>
    </message>
    <message>
        <source>certificate isn&apos;t valid</source>
        <translation>証明書が無効です</translation>
    </message>
    <message>
        <source>job is held</source>
        <translation>ジョブは保留中です</translation>
    </message>
    <message>
        <source>job has stopped</source>
        <translation>ジョブが停止しました</translation>
    </message>
    <message>
        <source>job was cancelled</source>
        <translation>ジョブはキャンセルされました</translation>
    </message>
    <message>
        <source>job was given up</source>
        <translation>ジョブは中止されました</translation>
    </message>
    <message>
        <source>account is needed</source>
        <translation>アカウントが必要です</translation>
    </message>
    <message>
        <source>account&apos;s limit is reached</source>
        <translation>アカウントの上限に達しました</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>再設定されました</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>switched off for jobs</source>
        <translation>ジョブの受け付けを停止しています</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>現像剤がありません</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>現像剤が残りわずかです</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>fuser is too hot</source>
        <translation>定着器の温度が高すぎます</translation>
    </message>
    <message>
        <source>fuser is too cold</source>
        <translation>定着器の温度が低すぎます</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>スリープ中</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>shows where it stands</source>
        <translation>位置を知らせています</translation>
    </message>
    <message>
        <source>tray is missing</source>
        <translation>トレイがありません</translation>
    </message>
    <message>
        <source>a lock is open</source>
        <translation>ロックが外れています</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>インクがありません</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>インクが残りわずかです</translation>
    </message>
    <message>
        <source>ink is missing</source>
        <translation>インクが取り付けられていません</translation>
    </message>
    <message>
        <source>waste box is almost full</source>
        <translation>廃液・廃トナーボックスがもうすぐ満杯です</translation>
    </message>
    <message>
        <source>waste box is full</source>
        <translation>廃液・廃トナーボックスが満杯です</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙詰まり</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>用紙が残りわずかです</translation>
    </message>
    <message>
        <source>needs other paper</source>
        <translation>別の用紙が必要です</translation>
    </message>
    <message>
        <source>about to pause</source>
        <translation>まもなく一時停止します</translation>
    </message>
    <message>
        <source>drum is used up</source>
        <translation>感光体の寿命です</translation>
    </message>
    <message>
        <source>drum is nearly used up</source>
        <translation>感光体の寿命が近づいています</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>確認が必要です</translation>
    </message>
    <message>
        <source>output tray is almost full</source>
        <translation>排紙トレイがもうすぐ満杯です</translation>
    </message>
    <message>
        <source>output tray is full</source>
        <translation>排紙トレイが満杯です</translation>
    </message>
    <message>
        <source>output tray is missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>switching off</source>
        <translation>電源を切っています</translation>
    </message>
    <message>
        <source>about to go on</source>
        <translation>まもなく再開します</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>これ以上ジョブを受け付けられません</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>一部停止中</translation>
    </message>
    <message>
        <source>about to stop</source>
        <translation>まもなく停止します</translation>
    </message>
    <message>
        <source>being tested</source>
        <translation>テスト中</translation>
    </message>
    <message>
        <source>doesn&apos;t answer</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>トナーが残りわずかです</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3 points.</source>
        <translation>「%1」は %2 から %3 ポイントまでです。</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3.</source>
        <translation>「%1」は %2 から %3 までです。</translation>
    </message>
    <message>
        <source>“%1” has a character that can&apos;t be printed.</source>
        <translation>「%1」に印刷できない文字があります。</translation>
    </message>
    <message>
        <source>“%1” takes digits only.</source>
        <translation>「%1」には数字だけを入力できます。</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters.</source>
        <translation>「%1」が長すぎます。最大 %2 文字です。</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters, of which letters other than A to Z take several.</source>
        <translation>「%1」が長すぎます。最大 %2 文字で、A から Z 以外の文字は複数文字に数えます。</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>「%1」がありません。</translation>
    </message>
    <message>
        <source>“%1” is too short: at least %2 characters.</source>
        <translation>「%1」が短すぎます。最小 %2 文字です。</translation>
    </message>
    <message>
        <source>“%1” must be a number.</source>
        <translation>「%1」には数値を入力してください。</translation>
    </message>
    <message>
        <source>There are %1 more values, which stay as they are.</source>
        <translation>ほかに %1 個の値があり、そのまま残ります。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Asked when you print</source>
        <translation>印刷時に入力します</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 から %2 文字</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>最大 %1 文字</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>“%1” must be a number %2.</source>
        <translation>「%1」には%2の数値を入力してください。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have braces in it.</source>
        <translation>「%1」に波かっこは使えません。</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>縦、上下逆</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横、上下逆</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer to print on both sides.</source>
        <translation>このプリンターでは両面印刷を選択できません。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sizes.</source>
        <translation>このプリンターでは用紙サイズを選択できません。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sources.</source>
        <translation>このプリンターでは給紙方法を選択できません。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper types.</source>
        <translation>このプリンターでは用紙の種類を選択できません。</translation>
    </message>
    <message>
        <source>A file has the whole document in it, once and as it is.</source>
        <translation>ファイルには文書全体がそのまま一部だけ入ります。</translation>
    </message>
    <message>
        <source>Set this among the printer&apos;s own options.</source>
        <translation>プリンター独自のオプションで設定してください。</translation>
    </message>
    <message>
        <source>There is only one copy.</source>
        <translation>部数が 1 部です。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>文書のとおり</translation>
    </message>
    <message>
        <source>%1: “%2” can&apos;t be used with this printer</source>
        <translation>%1: 「%2」はこのプリンターで使用できません</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>from %1 to %2 %3</source>
        <translation>%1 から %2 %3 まで</translation>
    </message>
    <message>
        <source>“%1” can&apos;t stand there. Type pages like 1-3,5,9-.</source>
        <translation>「%1」はここに入力できません。1-3,5,9- のように入力してください。</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>「%1」: ページは 1 から始まります。</translation>
    </message>
    <message>
        <source>“%1”: the document has only one page.</source>
        <translation>「%1」: 文書は 1 ページだけです。</translation>
    </message>
    <message>
        <source>“%1”: the document has only %2 pages.</source>
        <translation>「%1」: 文書は %2 ページだけです。</translation>
    </message>
    <message>
        <source>“%1” is too great for a page.</source>
        <translation>「%1」はページとしては大きすぎます。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>「%1」は終わりが始まりより前です。</translation>
    </message>
    <message>
        <source>These are more than %1 ranges.</source>
        <translation>範囲が %1 個を超えています。</translation>
    </message>
    <message>
        <source>Type the pages to print, such as 1-3,5,9-.</source>
        <translation>印刷するページを 1-3,5,9- のように入力してください。</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a page. Type pages like 1-3,5,9-.</source>
        <translation>「%1」はページではありません。1-3,5,9- のように入力してください。</translation>
    </message>
    <message>
        <source>A page is missing before a comma.</source>
        <translation>コンマの前にページがありません。</translation>
    </message>
    <message>
        <source>A page is missing at the end.</source>
        <translation>最後にページがありません。</translation>
    </message>
    <message>
        <source>Password for This Job</source>
        <translation>このジョブのパスワード</translation>
    </message>
    <message>
        <source>It isn&apos;t kept, and goes with this job only.</source>
        <translation>保存されず、このジョブだけに使用されます。</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1、%2:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Image options</source>
        <translation>画像オプション</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>面あたりのページ数</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>送信しない</translation>
    </message>
    <message>
        <source>has a character in its name that can&apos;t be sent</source>
        <translation>名前に送信できない文字があります</translation>
    </message>
    <message>
        <source>has a name that can&apos;t be sent</source>
        <translation>名前を送信できません</translation>
    </message>
    <message>
        <source>has a value with a control character, which can&apos;t be sent</source>
        <translation>値に送信できない制御文字があります</translation>
    </message>
    <message>
        <source>has a value that is too long to be sent</source>
        <translation>値が長すぎて送信できません</translation>
    </message>
    <message>
        <source>has a value that can&apos;t be sent</source>
        <translation>値を送信できません</translation>
    </message>
    <message>
        <source>was changed since it was opened</source>
        <translation>は開いた後に変更されました</translation>
    </message>
    <message>
        <source>“%1”: with several pages on a side the sides are counted, and the last one is %2.</source>
        <translation>「%1」: 1面に複数のページがあるときは面を数えます。最後は%2です。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have such a value.</source>
        <translation>「%1」にそのような値は指定できません。</translation>
    </message>
    <message>
        <source>This option takes no values of one&apos;s own.</source>
        <translation>このオプションでは独自の値を指定できません。</translation>
    </message>
    <message>
        <source>This option takes several values, each by its name.</source>
        <translation>このオプションには複数の値を名前で指定します。</translation>
    </message>
    <message>
        <source>This option has no value of such a name.</source>
        <translation>このオプションにその名前の値はありません。</translation>
    </message>
    <message>
        <source>No answer came in time</source>
        <translation>時間内に応答がありませんでした</translation>
    </message>
    <message>
        <source>the server doesn&apos;t know it</source>
        <translation>サーバーにありません</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>ジョブはキャンセルされました</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was sent</source>
        <translation>ジョブが送信されたかどうかは不明です</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was cancelled</source>
        <translation>ジョブが取り消されたかどうかは不明です</translation>
    </message>
    <message>
        <source>“%1” has no instance of this name</source>
        <translation>「%1」にこの名前のインスタンスはありません</translation>
    </message>
    <message>
        <source>This option is given twice.</source>
        <translation>このオプションは2回指定されています。</translation>
    </message>
    <message>
        <source>This option has no such choice.</source>
        <translation>このオプションにそのような選択肢はありません。</translation>
    </message>
    <message>
        <source>This option can&apos;t have such a value.</source>
        <translation>このオプションにそのような値は指定できません。</translation>
    </message>
    <message>
        <source>This printer has no such option.</source>
        <translation>このプリンターにそのようなオプションはありません。</translation>
    </message>
    <message>
        <source>This setting is locked.</source>
        <translation>この設定はロックされています。</translation>
    </message>
    <message>
        <source>only the last of its choices can be sent</source>
        <translation>送信できるのは最後の選択肢だけです</translation>
    </message>
    <message>
        <source>%1; it couldn&apos;t be cancelled, and may still be printed</source>
        <translation>%1。キャンセルできなかったため、印刷される可能性があります</translation>
    </message>
</context>
<context>
    <name>host::CommonSettings</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>&amp;All pages</source>
        <translation>すべてのページ(&amp;A)</translation>
    </message>
    <message>
        <source>Page&amp;s:</source>
        <translation>ページ指定(&amp;S):</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>印刷するページ</translation>
    </message>
    <message>
        <source>1-3,5,9-</source>
        <translation>1-3,5,9-</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>範囲:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>面あたりのページ数</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Co&amp;llate</source>
        <translation>部単位で印刷(&amp;L)</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>先にプリンターを選択してください。</translation>
    </message>
    <message>
        <source>Prints each copy whole before the next one.</source>
        <translation>1 部ずつまとめて印刷します。</translation>
    </message>
    <message>
        <source>Pages and ranges, parted by commas, such as 1-3,5,9-.</source>
        <translation>ページと範囲をコンマで区切ります（例: 1-3,5,9-）。</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>選択できません</translation>
    </message>
    <message>
        <source>Copies must be a number from 1 to %1.</source>
        <translation>部数は 1 から %1 までの数値です。</translation>
    </message>
    <message>
        <source>Printed sides and ranges of them, parted by commas, such as 1-3,5,9-. With several pages on a side, sides are counted.</source>
        <translation>印刷する面とその範囲をコンマで区切ります。例: 1-3,5,9-。1面に複数のページがあるときは面を数えます。</translation>
    </message>
    <message>
        <source>Side&amp;s:</source>
        <translation>面(&amp;S):</translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message>
        <source>Resol&amp;ve…</source>
        <translation>解決(&amp;V)…</translation>
    </message>
    <message>
        <source>Can&apos;t be printed together: %1</source>
        <translation>同時に使用できません: %1</translation>
    </message>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation>
            <numerusform>同時に使用できません: %1、他 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>ジョブをキャンセル(&amp;J)</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>Sending “%1” to %2…</source>
        <translation>「%1」を %2 に送信しています…</translation>
    </message>
    <message>
        <source>The job %1 was sent.</source>
        <translation>ジョブ %1 を送信しました。</translation>
    </message>
    <message>
        <source>Waiting to be printed.</source>
        <translation>印刷待ちです。</translation>
    </message>
    <message>
        <source>Held until somebody releases it.</source>
        <translation>解除されるまで保留されています。</translation>
    </message>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation>
            <numerusform>印刷中: %n ページ印刷しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>印刷中です。</translation>
    </message>
    <message>
        <source>Stopped: the printer can&apos;t go on.</source>
        <translation>停止しました。プリンターを続行できません。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>The printer gave the job up.</source>
        <translation>プリンターはジョブを中止しました。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>印刷しました。</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>「%1」を書き込んでいます…</translation>
    </message>
    <message>
        <source>The file was written.</source>
        <translation>ファイルを書き込みました。</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>The server no longer knows the job; it is done.</source>
        <translation>サーバーにはこのジョブはもうありません。処理は終わっています。</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>The name or the password is wrong.</source>
        <translation>名前またはパスワードが違います。</translation>
    </message>
    <message>
        <source>the server wants to know who you are</source>
        <translation>サーバーが本人確認を求めています</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>ジョブはキャンセルされました</translation>
    </message>
</context>
<context>
    <name>host::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>プリセット(&amp;E):</translation>
    </message>
    <message>
        <source>Mana&amp;ge</source>
        <translation>管理(&amp;G)</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>プリセットを管理</translation>
    </message>
    <message>
        <source>Printer&apos;s defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>最後に使用した設定</translation>
    </message>
    <message>
        <source>%1 (can&apos;t be used)</source>
        <translation>%1（使用できません）</translation>
    </message>
    <message>
        <source>%1 (set up outside of this window)</source>
        <translation>%1（このウィンドウの外で設定）</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>The settings differ from what was chosen here.</source>
        <translation>設定はここで選択したものと異なります。</translation>
    </message>
    <message>
        <source>The settings stay as they are.</source>
        <translation>設定はそのままです。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be used, and the settings stay as they are.</source>
        <translation>「%1」は使用できません。設定はそのままです。</translation>
    </message>
    <message>
        <source>Not all of “%1” could be used:</source>
        <translation>「%1」の一部を使用できませんでした:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>プリセット「%1」は既に存在します。置き換えますか?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>Passwords aren&apos;t kept in presets. They have to be entered again each time.</source>
        <translation>パスワードはプリセットに保存されません。毎回入力する必要があります。</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットを保存</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセットの名前を変更</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Nothing was renamed.</source>
        <translation>プリセット「%1」は既に存在します。名前は変更していません。</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>プリセット「%1」を削除しますか? 設定はそのままです。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>“%1” was made for the printer “%2”. What this printer has of it is used.</source>
        <translation>「%1」はプリンター「%2」用に作成されました。このプリンターにある設定だけを使用します。</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>プリセットをインポート</translation>
    </message>
    <message>
        <source>Presets (*.json);;All Files (*)</source>
        <translation>プリセット (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>プリセットをエクスポート</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>プリセット (*.json)</translation>
    </message>
</context>
<context>
    <name>host::PreviewView</name>
    <message>
        <source>Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them.</source>
        <translation>印刷される用紙のプレビュー。矢印キー、Page Up、Page Down でめくります。</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>前の面</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>次の面</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Type the sheet to look at</source>
        <translation>表示する用紙の番号を入力します</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>文書なし</translation>
    </message>
    <message>
        <source>The preview can&apos;t be drawn: %1</source>
        <translation>プレビューを表示できません: %1</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>プレビューを準備しています…</translation>
    </message>
    <message>
        <source>The document has none of the chosen pages.</source>
        <translation>選択したページは文書にありません。</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>用紙 %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>用紙 %1 / %2、裏</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>用紙 %1 / %2、表</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>sheet, pages</comment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>文書を開く</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s settings…</source>
        <translation>プリンターの設定を取得しています…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>文書なし</translation>
    </message>
    <message>
        <source>The document can&apos;t be printed.</source>
        <translation>文書を印刷できません。</translation>
    </message>
    <message>
        <source>Document to Print</source>
        <translation>印刷する文書</translation>
    </message>
    <message>
        <source>Documents (*.ps *.eps *.pdf);;All Files (*)</source>
        <translation>文書 (*.ps *.eps *.pdf);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに印刷</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>The document wasn&apos;t printed.</source>
        <translation>文書は印刷されませんでした。</translation>
    </message>
    <message>
        <source>The server has this printer no longer.</source>
        <translation>このプリンターはサーバーにもうありません。</translation>
    </message>
    <message>
        <source>The job couldn&apos;t be cancelled on the server, and may still be printed.</source>
        <translation>サーバー上でジョブをキャンセルできませんでした。印刷される可能性があります。</translation>
    </message>
</context>
<context>
    <name>host::ProblemArea</name>
    <message>
        <source>Show &amp;All %1</source>
        <translation>すべて表示（%1）(&amp;H)</translation>
    </message>
</context>
<context>
    <name>host::QueueList</name>
    <message>
        <source>Re&amp;try</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>Find a printer</source>
        <translation>プリンターを検索</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンターを検索しています…</translation>
    </message>
    <message>
        <source>No printers found on this server.</source>
        <translation>このサーバーにプリンターはありません。</translation>
    </message>
    <message>
        <source>No printer has these words.</source>
        <translation>該当するプリンターはありません。</translation>
    </message>
</context>
<context>
    <name>host::QueueModel</name>
    <message>
        <source>No longer on the server</source>
        <translation>サーバーにありません</translation>
    </message>
    <message>
        <source>Looking for it…</source>
        <translation>検索しています…</translation>
    </message>
    <message>
        <source>Default · %1</source>
        <extracomment>the default printer and its state</extracomment>
        <translation>既定 · %1</translation>
    </message>
    <message>
        <source>Makes a PostScript file</source>
        <translation>PostScript ファイルを作成します</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>%1 付き</translation>
    </message>
    <message>
        <source> · </source>
        <translation> · </translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>ファイルに印刷</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Nothing is known of it</source>
        <translation>情報がありません</translation>
    </message>
</context>
<context>
    <name>host::RememberBox</name>
    <message>
        <source>&amp;Remember these settings for this printer</source>
        <translation>このプリンターの設定を記憶する(&amp;R)</translation>
    </message>
    <message>
        <source>If not, they hold for this job only. Passwords aren&apos;t remembered.</source>
        <translation>記憶しない場合はこのジョブだけに適用されます。パスワードは記憶されません。</translation>
    </message>
</context>
<context>
    <name>host::SentView</name>
    <message>
        <source>What will be sent</source>
        <translation>送信される内容</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Printer&apos;s default</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Show &amp;unchanged</source>
        <translation>変更のない項目も表示(&amp;U)</translation>
    </message>
    <message>
        <source>Nothing differs from the printer&apos;s defaults.</source>
        <translation>プリンターの既定値と異なるものはありません。</translation>
    </message>
    <message>
        <source>%1 of %2 settings differ from the printer&apos;s defaults.</source>
        <translation>%2 件中 %1 件の設定がプリンターの既定値と異なります。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Differs from the printer&apos;s default</source>
        <translation>プリンターの既定値と異なります</translation>
    </message>
</context>
<context>
    <name>host::SheetCanvas</name>
    <message>
        <source>Drawing page %1…</source>
        <translation>%1 ページを描画しています…</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>What will be sent</source>
        <translation>送信される内容</translation>
    </message>
</context>
<context>
    <name>host::TypedOptions</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
</TS>
