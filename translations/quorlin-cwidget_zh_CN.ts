<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CAbstractKeyPad</name>
    <message>
        <source>Del</source>
        <extracomment>Key that deletes the character after the cursor. At most 4 letters: it is 40 pixels wide.</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>Del All</source>
        <extracomment>Key that empties the entry. 75 pixels wide.</extracomment>
        <translation>清空</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Key that accepts the entry and closes the keypad. 90 pixels wide.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Shift</source>
        <extracomment>Key that puts the next letter into the other case. 55 pixels wide.</extracomment>
        <translation>上档</translation>
    </message>
    <message>
        <source>Caps</source>
        <extracomment>Key that switches to capital letters and back. 55 pixels wide.</extracomment>
        <translation>大写</translation>
    </message>
    <message>
        <source>Symbol</source>
        <extracomment>Key that switches from letters to symbols and back. 66 pixels wide.</extracomment>
        <translation>符号</translation>
    </message>
    <message>
        <source>SPACE</source>
        <extracomment>The space bar.</extracomment>
        <translation>空格</translation>
    </message>
</context>
<context>
    <name>CAccessible</name>
    <message>
        <source>Previous page</source>
        <extracomment>The arrows of the page bar, as a screen reader tells them.</extracomment>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Backspace</source>
        <extracomment>The key that deletes the character before the cursor, as a screen reader tells it.</extracomment>
        <translation>退格</translation>
    </message>
</context>
<context>
    <name>CPageBar</name>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>%1 is the page that is shown, %2 the number of pages. There are 98 pixels for it.</extracomment>
        <translation>第 %1/%2 页</translation>
    </message>
</context>
</TS>
