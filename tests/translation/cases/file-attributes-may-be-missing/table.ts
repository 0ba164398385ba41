<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS>
</TS>
