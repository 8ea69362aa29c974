<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source> and </source>
        <translation> 和 </translation>
    </message>
    <message>
        <source>Conflicting Settings</source>
        <translation>设置冲突</translation>
    </message>
    <message>
        <source>The printer can&apos;t print these together:</source>
        <translation>打印机不能同时使用以下设置：</translation>
    </message>
    <message>
        <source>There is no simple way to put this right. Go back and choose another value for one of them.</source>
        <translation>没有简单的解决办法。请返回并为其中一项选择其他值。</translation>
    </message>
    <message>
        <source>This would put it right:</source>
        <translation>以下更改可以解决问题：</translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation>返回(&amp;G)</translation>
    </message>
    <message>
        <source>Print &amp;Anyway</source>
        <translation>仍然打印(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Change and Print</source>
        <translation>更改并打印(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a state and why</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Not available with %1, and others</source>
        <translation>不能与%1等同时使用</translation>
    </message>
    <message>
        <source>Not available with %1</source>
        <translation>不能与%1同时使用</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1：%2 → %3</translation>
    </message>
    <message>
        <source>CUPS server %1</source>
        <translation>CUPS 服务器 %1</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>no CUPS server answers there: %1</source>
        <translation>没有 CUPS 服务器应答：%1</translation>
    </message>
    <message>
        <source>CUPS server %1 sent no whole answer within %2 seconds</source>
        <translation>CUPS 服务器 %1 未在 %2 秒内发送完整应答</translation>
    </message>
    <message>
        <source>CUPS server %1 gave no answer within %2 seconds</source>
        <translation>CUPS 服务器 %1 未在 %2 秒内应答</translation>
    </message>
    <message>
        <source>CUPS server %1 closed the connection or sent no valid answer</source>
        <translation>CUPS 服务器 %1 关闭了连接或发送了无效应答</translation>
    </message>
    <message>
        <source>CUPS server %1: %2</source>
        <translation>CUPS 服务器 %1：%2</translation>
    </message>
    <message>
        <source>no such queue on CUPS server %1</source>
        <translation>CUPS 服务器 %1 上没有此队列</translation>
    </message>
    <message>
        <source>has no default queue</source>
        <translation>没有默认队列</translation>
    </message>
    <message>
        <source>the queue has no PPD</source>
        <translation>队列没有 PPD</translation>
    </message>
    <message>
        <source>its PPD can&apos;t be read: %1</source>
        <translation>无法读取其 PPD：%1</translation>
    </message>
    <message>
        <source>its PPD is too large</source>
        <translation>其 PPD 过大</translation>
    </message>
    <message>
        <source>job %1</source>
        <translation>作业 %1</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation>需要身份验证</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>用户名(&amp;N)：</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>%1 didn&apos;t finish within %2 seconds</source>
        <translation>%1 未在 %2 秒内完成</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>%1 wrote too much</source>
        <translation>%1 输出过多</translation>
    </message>
    <message>
        <source>%1 can&apos;t convert it to %2%3</source>
        <translation>%1 无法将其转换为 %2%3</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>is neither PostScript nor PDF</source>
        <translation>既不是 PostScript 也不是 PDF</translation>
    </message>
    <message>
        <source>a PDF needs pdftops or gs, and neither is installed</source>
        <translation>PDF 需要 pdftops 或 gs，但均未安装</translation>
    </message>
    <message>
        <source>PostScript needs gs, which isn&apos;t installed</source>
        <translation>PostScript 需要 gs，但未安装</translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>a value of one&apos;s own (“%1”) is no longer taken</source>
        <translation>不再接受自定义值（“%1”）</translation>
    </message>
    <message>
        <source>“%1” is outside of what this printer takes</source>
        <translation>“%1”超出了此打印机接受的范围</translation>
    </message>
    <message>
        <source>“%1” is no longer there</source>
        <translation>“%1”已不存在</translation>
    </message>
    <message>
        <source>“%1” is no longer a setting of this printer; the preset has “%2”</source>
        <translation>“%1”不再是此打印机的设置；预设中为“%2”</translation>
    </message>
    <message>
        <source>%1: is locked and stays “%2”</source>
        <translation>%1：已锁定，保持为“%2”</translation>
    </message>
    <message>
        <source>passwords aren&apos;t kept in presets; enter it again</source>
        <translation>预设不保存密码；请重新输入</translation>
    </message>
    <message>
        <source>Not possible: %1.</source>
        <translation>无法完成：%1。</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>the name begins or ends with a blank</source>
        <translation>名称以空格开头或结尾</translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation>名称超过 %1 个字符</translation>
    </message>
    <message>
        <source>the name has a character that can&apos;t be shown</source>
        <translation>名称中有无法显示的字符</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>无法创建</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>正被其他程序使用</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t what it should be</source>
        <translation>“%1”的内容不正确</translation>
    </message>
    <message>
        <source>“%1” has a character that is none</source>
        <translation>“%1”中有无效字符</translation>
    </message>
    <message>
        <source>“%1” has an empty key</source>
        <translation>“%1”中有空键</translation>
    </message>
    <message>
        <source>is larger than %1 MB</source>
        <translation>大于 %1 MB</translation>
    </message>
    <message>
        <source>isn&apos;t a preset: line %1: %2</source>
        <translation>不是预设：第 %1 行：%2</translation>
    </message>
    <message>
        <source>isn&apos;t a preset</source>
        <translation>不是预设</translation>
    </message>
    <message>
        <source>has a key twice</source>
        <translation>有重复的键</translation>
    </message>
    <message>
        <source>was made by a newer version of this program (format %1); it is left as it is</source>
        <translation>由本程序的较新版本创建（格式 %1）；保持原样</translation>
    </message>
    <message>
        <source>has the unknown key “%1”</source>
        <translation>有未知的键“%1”</translation>
    </message>
    <message>
        <source>can&apos;t be removed: %1</source>
        <translation>无法删除：%1</translation>
    </message>
    <message>
        <source>“%1” has no preset of this name</source>
        <translation>“%1”没有此名称的预设</translation>
    </message>
    <message>
        <source>is too large for a preset</source>
        <translation>对于预设而言过大</translation>
    </message>
    <message>
        <source>The last used settings of “%1”</source>
        <translation>“%1”上次使用的设置</translation>
    </message>
    <message>
        <source>the document is damaged.</source>
        <translation>文档已损坏。</translation>
    </message>
    <message>
        <source>the document is protected by a password.</source>
        <translation>文档受密码保护。</translation>
    </message>
    <message>
        <source>the document has no pages.</source>
        <translation>文档没有页面。</translation>
    </message>
    <message>
        <source>the document is too large.</source>
        <translation>文档过大。</translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation>第 %1 页已损坏。</translation>
    </message>
    <message>
        <source>Page %1 has a size that can&apos;t be drawn.</source>
        <translation>第 %1 页的尺寸无法绘制。</translation>
    </message>
    <message>
        <source>Page %1 takes too long to draw.</source>
        <translation>绘制第 %1 页耗时过长。</translation>
    </message>
    <message>
        <source>Page %1 can&apos;t be drawn.</source>
        <translation>无法绘制第 %1 页。</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>%1: line %2 isn&apos;t UTF-8</source>
        <translation>%1：第 %2 行不是 UTF-8</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状态未知</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>%1, takes no jobs</source>
        <extracomment>a state, such as &quot;Idle&quot;</extracomment>
        <translation>%1，不接受作业</translation>
    </message>
    <message>
        <source>The printer takes no jobs at the moment.</source>
        <translation>打印机目前不接受作业。</translation>
    </message>
    <message>
        <source>The printer is paused. Jobs wait until it goes on.</source>
        <translation>打印机已暂停。作业将等待其恢复。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>a sentence and why</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>answers in a wrong way</source>
        <translation>应答有误</translation>
    </message>
    <message>
        <source>driver isn&apos;t safe to run</source>
        <translation>驱动程序不安全</translation>
    </message>
    <message>
        <source>driver is incomplete</source>
        <translation>驱动程序不完整</translation>
    </message>
    <message>
        <source>certificate isn&apos;t valid</source>
        <translation>证书无效</translation>
    </message>
    <message>
        <source>job is held</source>
        <translation>作业被保留</translation>
    </message>
    <message>
        <source>job has stopped</source>
        <translation>作业已停止</translation>
    </message>
    <message>
        <source>job was cancelled</source>
        <translation>作业已取消</translation>
    </message>
    <message>
        <source>job was given up</source>
        <translation>作业已放弃</translation>
    </message>
    <message>
        <source>account is needed</source>
        <translation>需要账户</translation>
    </message>
    <message>
        <source>account&apos;s limit is reached</source>
        <translation>已达账户限额</translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation>已重新配置</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>机盖已打开</translation>
    </message>
    <message>
        <source>switched off for jobs</source>
        <translation>已停用作业</translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation>显影剂用尽</translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation>显影剂不足</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>门已打开</translation>
    </message>
    <message>
        <source>fuser is too hot</source>
        <translation>定影器过热</translation>
    </message>
    <message>
        <source>fuser is too cold</source>
        <translation>定影器温度过低</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>休眠中</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新作业将被保留</translation>
    </message>
    <message>
        <source>shows where it stands</source>
        <translation>正在指示位置</translation>
    </message>
    <message>
        <source>tray is missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>a lock is open</source>
        <translation>锁扣已打开</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>墨水用尽</translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation>墨水不足</translation>
    </message>
    <message>
        <source>ink is missing</source>
        <translation>缺少墨水</translation>
    </message>
    <message>
        <source>waste box is almost full</source>
        <translation>废料盒将满</translation>
    </message>
    <message>
        <source>waste box is full</source>
        <translation>废料盒已满</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>needs other paper</source>
        <translation>需要其他纸张</translation>
    </message>
    <message>
        <source>about to pause</source>
        <translation>即将暂停</translation>
    </message>
    <message>
        <source>drum is used up</source>
        <translation>感光鼓已耗尽</translation>
    </message>
    <message>
        <source>drum is nearly used up</source>
        <translation>感光鼓将耗尽</translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation>需要处理</translation>
    </message>
    <message>
        <source>output tray is almost full</source>
        <translation>出纸盒将满</translation>
    </message>
    <message>
        <source>output tray is full</source>
        <translation>出纸盒已满</translation>
    </message>
    <message>
        <source>output tray is missing</source>
        <translation>缺少出纸盒</translation>
    </message>
    <message>
        <source>switching off</source>
        <translation>正在关机</translation>
    </message>
    <message>
        <source>about to go on</source>
        <translation>即将恢复</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已关机</translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation>没有空间接收更多作业</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>部分停止</translation>
    </message>
    <message>
        <source>about to stop</source>
        <translation>即将停止</translation>
    </message>
    <message>
        <source>being tested</source>
        <translation>正在测试</translation>
    </message>
    <message>
        <source>doesn&apos;t answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>墨粉用尽</translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation>墨粉不足</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3 points.</source>
        <translation>“%1”必须在 %2 到 %3 点之间。</translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3.</source>
        <translation>“%1”必须在 %2 到 %3 之间。</translation>
    </message>
    <message>
        <source>“%1” has a character that can&apos;t be printed.</source>
        <translation>“%1”中有无法打印的字符。</translation>
    </message>
    <message>
        <source>“%1” takes digits only.</source>
        <translation>“%1”只接受数字。</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters.</source>
        <translation>“%1”过长：最多 %2 个字符。</translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters, of which letters other than A to Z take several.</source>
        <translation>“%1”过长：最多 %2 个字符，A 到 Z 以外的字母占多个字符。</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>缺少“%1”。</translation>
    </message>
    <message>
        <source>“%1” is too short: at least %2 characters.</source>
        <translation>“%1”过短：至少 %2 个字符。</translation>
    </message>
    <message>
        <source>“%1” must be a number.</source>
        <translation>“%1”必须是数字。</translation>
    </message>
    <message>
        <source>There are %1 more values, which stay as they are.</source>
        <translation>还有 %1 个值，保持不变。</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>Asked when you print</source>
        <translation>打印时询问</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 到 %2 个字符</translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation>最多 %1 个字符</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>“%1” must be a number %2.</source>
        <translation>“%1”必须是%2的数字。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have braces in it.</source>
        <translation>“%1”中不能有大括号。</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>纵向，上下颠倒</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横向，上下颠倒</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer to print on both sides.</source>
        <translation>此打印机不提供双面打印。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sizes.</source>
        <translation>此打印机不提供纸张大小选择。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sources.</source>
        <translation>此打印机不提供纸张来源选择。</translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper types.</source>
        <translation>此打印机不提供纸张类型选择。</translation>
    </message>
    <message>
        <source>A file has the whole document in it, once and as it is.</source>
        <translation>文件包含整个文档，仅一份且保持原样。</translation>
    </message>
    <message>
        <source>Set this among the printer&apos;s own options.</source>
        <translation>请在打印机自己的选项中设置。</translation>
    </message>
    <message>
        <source>There is only one copy.</source>
        <translation>只有一份。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>与文档一致</translation>
    </message>
    <message>
        <source>%1: “%2” can&apos;t be used with this printer</source>
        <translation>%1：“%2”不能用于此打印机</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>from %1 to %2 %3</source>
        <translation>从 %1 到 %2 %3</translation>
    </message>
    <message>
        <source>“%1” can&apos;t stand there. Type pages like 1-3,5,9-.</source>
        <translation>“%1”不能出现在此处。请按 1-3,5,9- 的形式输入页码。</translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation>“%1”：页码从 1 开始。</translation>
    </message>
    <message>
        <source>“%1”: the document has only one page.</source>
        <translation>“%1”：文档只有一页。</translation>
    </message>
    <message>
        <source>“%1”: the document has only %2 pages.</source>
        <translation>“%1”：文档只有 %2 页。</translation>
    </message>
    <message>
        <source>“%1” is too great for a page.</source>
        <translation>“%1”作为页码过大。</translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation>“%1”的终止页在起始页之前。</translation>
    </message>
    <message>
        <source>These are more than %1 ranges.</source>
        <translation>范围超过 %1 个。</translation>
    </message>
    <message>
        <source>Type the pages to print, such as 1-3,5,9-.</source>
        <translation>请输入要打印的页码，例如 1-3,5,9-。</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a page. Type pages like 1-3,5,9-.</source>
        <translation>“%1”不是页码。请按 1-3,5,9- 的形式输入。</translation>
    </message>
    <message>
        <source>A page is missing before a comma.</source>
        <translation>逗号前缺少页码。</translation>
    </message>
    <message>
        <source>A page is missing at the end.</source>
        <translation>末尾缺少页码。</translation>
    </message>
    <message>
        <source>Password for This Job</source>
        <translation>此作业的密码</translation>
    </message>
    <message>
        <source>It isn&apos;t kept, and goes with this job only.</source>
        <translation>密码不会保存，仅用于此作业。</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1，%2：</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 点</translation>
    </message>
    <message>
        <source>Image options</source>
        <translation>图像选项</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>每面页数</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>not sent</source>
        <translation>不发送</translation>
    </message>
    <message>
        <source>has a character in its name that can&apos;t be sent</source>
        <translation>名称中有无法发送的字符</translation>
    </message>
    <message>
        <source>has a name that can&apos;t be sent</source>
        <translation>名称无法发送</translation>
    </message>
    <message>
        <source>has a value with a control character, which can&apos;t be sent</source>
        <translation>值中有无法发送的控制字符</translation>
    </message>
    <message>
        <source>has a value that is too long to be sent</source>
        <translation>值过长，无法发送</translation>
    </message>
    <message>
        <source>has a value that can&apos;t be sent</source>
        <translation>值无法发送</translation>
    </message>
    <message>
        <source>was changed since it was opened</source>
        <translation>打开后已被更改</translation>
    </message>
    <message>
        <source>“%1”: with several pages on a side the sides are counted, and the last one is %2.</source>
        <translation>“%1”：每面有多页时按面计数，最后一面是 %2。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t have such a value.</source>
        <translation>“%1”不能有这样的值。</translation>
    </message>
    <message>
        <source>This option takes no values of one&apos;s own.</source>
        <translation>此选项不接受自定义值。</translation>
    </message>
    <message>
        <source>This option takes several values, each by its name.</source>
        <translation>此选项有多个值，须按名称给出。</translation>
    </message>
    <message>
        <source>This option has no value of such a name.</source>
        <translation>此选项没有此名称的值。</translation>
    </message>
    <message>
        <source>No answer came in time</source>
        <translation>没有及时收到回应</translation>
    </message>
    <message>
        <source>the server doesn&apos;t know it</source>
        <translation>服务器上没有该作业</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>作业已取消</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was sent</source>
        <translation>不知道作业是否已发送</translation>
    </message>
    <message>
        <source>it isn&apos;t known whether the job was cancelled</source>
        <translation>不知道作业是否已取消</translation>
    </message>
    <message>
        <source>“%1” has no instance of this name</source>
        <translation>“%1”没有此名称的实例</translation>
    </message>
    <message>
        <source>This option is given twice.</source>
        <translation>此选项给出了两次。</translation>
    </message>
    <message>
        <source>This option has no such choice.</source>
        <translation>此选项没有这样的选择。</translation>
    </message>
    <message>
        <source>This option can&apos;t have such a value.</source>
        <translation>此选项不能有这样的值。</translation>
    </message>
    <message>
        <source>This printer has no such option.</source>
        <translation>此打印机没有这样的选项。</translation>
    </message>
    <message>
        <source>This setting is locked.</source>
        <translation>此设置已锁定。</translation>
    </message>
    <message>
        <source>only the last of its choices can be sent</source>
        <translation>只能发送其最后一个选择</translation>
    </message>
    <message>
        <source>%1; it couldn&apos;t be cancelled, and may still be printed</source>
        <translation>%1；无法取消，它可能仍会被打印</translation>
    </message>
</context>
<context>
    <name>host::CommonSettings</name>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>&amp;All pages</source>
        <translation>所有页面(&amp;A)</translation>
    </message>
    <message>
        <source>Page&amp;s:</source>
        <translation>页面(&amp;S)：</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>要打印的页面</translation>
    </message>
    <message>
        <source>1-3,5,9-</source>
        <translation>1-3,5,9-</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>范围：</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation>每面页数</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>纸张大小</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Co&amp;llate</source>
        <translation>逐份打印(&amp;L)</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>请先选择打印机。</translation>
    </message>
    <message>
        <source>Prints each copy whole before the next one.</source>
        <translation>完整打印一份后再打印下一份。</translation>
    </message>
    <message>
        <source>Pages and ranges, parted by commas, such as 1-3,5,9-.</source>
        <translation>页码和范围，用逗号分隔，例如 1-3,5,9-。</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>不提供</translation>
    </message>
    <message>
        <source>Copies must be a number from 1 to %1.</source>
        <translation>份数必须是 1 到 %1 之间的数字。</translation>
    </message>
    <message>
        <source>Printed sides and ranges of them, parted by commas, such as 1-3,5,9-. With several pages on a side, sides are counted.</source>
        <translation>要打印的面及其范围，以逗号分隔，例如 1-3,5,9-。每面有多页时按面计数。</translation>
    </message>
    <message>
        <source>Side&amp;s:</source>
        <translation>面(&amp;S)：</translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message>
        <source>Resol&amp;ve…</source>
        <translation>解决(&amp;V)…</translation>
    </message>
    <message>
        <source>Can&apos;t be printed together: %1</source>
        <translation>不能同时使用：%1</translation>
    </message>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation>
            <numerusform>不能同时使用：%1，以及另外 %n 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>取消作业(&amp;J)</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Sending “%1” to %2…</source>
        <translation>正在将“%1”发送到 %2…</translation>
    </message>
    <message>
        <source>The job %1 was sent.</source>
        <translation>作业 %1 已发送。</translation>
    </message>
    <message>
        <source>Waiting to be printed.</source>
        <translation>等待打印。</translation>
    </message>
    <message>
        <source>Held until somebody releases it.</source>
        <translation>已保留，等待有人释放。</translation>
    </message>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation>
            <numerusform>正在打印：已打印 %n 页。</numerusform>
        </translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>正在打印。</translation>
    </message>
    <message>
        <source>Stopped: the printer can&apos;t go on.</source>
        <translation>已停止：打印机无法继续。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>The printer gave the job up.</source>
        <translation>打印机已放弃该作业。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>已打印。</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>正在写入“%1”…</translation>
    </message>
    <message>
        <source>The file was written.</source>
        <translation>文件已写入。</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>The server no longer knows the job; it is done.</source>
        <translation>服务器上已没有该作业；它已处理完毕。</translation>
    </message>
</context>
<context>
    <name>host::JobSender</name>
    <message>
        <source>The name or the password is wrong.</source>
        <translation>名称或密码不正确。</translation>
    </message>
    <message>
        <source>the server wants to know who you are</source>
        <translation>服务器要求确认您的身份</translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation>作业已取消</translation>
    </message>
</context>
<context>
    <name>host::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>预设(&amp;E)：</translation>
    </message>
    <message>
        <source>Mana&amp;ge</source>
        <translation>管理(&amp;G)</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>管理预设</translation>
    </message>
    <message>
        <source>Printer&apos;s defaults</source>
        <translation>打印机默认值</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>上次使用的设置</translation>
    </message>
    <message>
        <source>%1 (can&apos;t be used)</source>
        <translation>%1（无法使用）</translation>
    </message>
    <message>
        <source>%1 (set up outside of this window)</source>
        <translation>%1（在此窗口之外设置）</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>The settings differ from what was chosen here.</source>
        <translation>设置与此处所选不同。</translation>
    </message>
    <message>
        <source>The settings stay as they are.</source>
        <translation>设置保持不变。</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be used, and the settings stay as they are.</source>
        <translation>“%1”无法使用，设置保持不变。</translation>
    </message>
    <message>
        <source>Not all of “%1” could be used:</source>
        <translation>“%1”中有部分无法使用：</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>删除(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>导出(&amp;E)…</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>已有预设“%1”。要替换吗？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Passwords aren&apos;t kept in presets. They have to be entered again each time.</source>
        <translation>预设不保存密码。每次都必须重新输入。</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Nothing was renamed.</source>
        <translation>已有预设“%1”。未进行重命名。</translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation>要删除预设“%1”吗？设置保持不变。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>“%1” was made for the printer “%2”. What this printer has of it is used.</source>
        <translation>“%1”是为打印机“%2”创建的。将使用此打印机具有的部分。</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>导入预设</translation>
    </message>
    <message>
        <source>Presets (*.json);;All Files (*)</source>
        <translation>预设 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>导出预设</translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation>预设 (*.json)</translation>
    </message>
</context>
<context>
    <name>host::PreviewView</name>
    <message>
        <source>Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them.</source>
        <translation>打印纸张的预览。使用方向键、Page Up 和 Page Down 翻页。</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>上一面</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>下一面</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Type the sheet to look at</source>
        <translation>输入要查看的纸张编号</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>没有文档</translation>
    </message>
    <message>
        <source>The preview can&apos;t be drawn: %1</source>
        <translation>无法绘制预览：%1</translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation>正在准备预览…</translation>
    </message>
    <message>
        <source>The document has none of the chosen pages.</source>
        <translation>文档中没有所选页面。</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>第 %1 张，共 %2 张，背面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>第 %1 张，共 %2 张，正面</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>sheet, pages</comment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>打开文档</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s settings…</source>
        <translation>正在获取打印机设置…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>没有文档</translation>
    </message>
    <message>
        <source>The document can&apos;t be printed.</source>
        <translation>无法打印文档。</translation>
    </message>
    <message>
        <source>Document to Print</source>
        <translation>要打印的文档</translation>
    </message>
    <message>
        <source>Documents (*.ps *.eps *.pdf);;All Files (*)</source>
        <translation>文档 (*.ps *.eps *.pdf);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>The document wasn&apos;t printed.</source>
        <translation>文档未打印。</translation>
    </message>
    <message>
        <source>The server has this printer no longer.</source>
        <translation>服务器上已没有这台打印机。</translation>
    </message>
    <message>
        <source>The job couldn&apos;t be cancelled on the server, and may still be printed.</source>
        <translation>无法在服务器上取消该作业，它可能仍会被打印。</translation>
    </message>
</context>
<context>
    <name>host::ProblemArea</name>
    <message>
        <source>Show &amp;All %1</source>
        <translation>显示全部 %1 项(&amp;H)</translation>
    </message>
</context>
<context>
    <name>host::QueueList</name>
    <message>
        <source>Re&amp;try</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>Find a printer</source>
        <translation>查找打印机</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>No printers found on this server.</source>
        <translation>此服务器上没有打印机。</translation>
    </message>
    <message>
        <source>No printer has these words.</source>
        <translation>没有符合这些词的打印机。</translation>
    </message>
</context>
<context>
    <name>host::QueueModel</name>
    <message>
        <source>No longer on the server</source>
        <translation>已不在服务器上</translation>
    </message>
    <message>
        <source>Looking for it…</source>
        <translation>正在查找…</translation>
    </message>
    <message>
        <source>Default · %1</source>
        <extracomment>the default printer and its state</extracomment>
        <translation>默认 · %1</translation>
    </message>
    <message>
        <source>Makes a PostScript file</source>
        <translation>生成 PostScript 文件</translation>
    </message>
    <message>
        <source>with %1</source>
        <translation>带%1</translation>
    </message>
    <message>
        <source> · </source>
        <translation> · </translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Nothing is known of it</source>
        <translation>没有相关信息</translation>
    </message>
</context>
<context>
    <name>host::RememberBox</name>
    <message>
        <source>&amp;Remember these settings for this printer</source>
        <translation>记住此打印机的这些设置(&amp;R)</translation>
    </message>
    <message>
        <source>If not, they hold for this job only. Passwords aren&apos;t remembered.</source>
        <translation>否则仅用于此作业。不记住密码。</translation>
    </message>
</context>
<context>
    <name>host::SentView</name>
    <message>
        <source>What will be sent</source>
        <translation>将发送的内容</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Printer&apos;s default</source>
        <translation>打印机默认值</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>所选</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Show &amp;unchanged</source>
        <translation>显示未更改项(&amp;U)</translation>
    </message>
    <message>
        <source>Nothing differs from the printer&apos;s defaults.</source>
        <translation>与打印机默认值没有差异。</translation>
    </message>
    <message>
        <source>%1 of %2 settings differ from the printer&apos;s defaults.</source>
        <translation>%2 项设置中有 %1 项与打印机默认值不同。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Differs from the printer&apos;s default</source>
        <translation>与打印机默认值不同</translation>
    </message>
</context>
<context>
    <name>host::SheetCanvas</name>
    <message>
        <source>Drawing page %1…</source>
        <translation>正在绘制第 %1 页…</translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>What will be sent</source>
        <translation>将发送的内容</translation>
    </message>
</context>
<context>
    <name>host::TypedOptions</name>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
</TS>
