<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="ja_JP">
<defaultcodec>UTF-8</defaultcodec>
</TS>
