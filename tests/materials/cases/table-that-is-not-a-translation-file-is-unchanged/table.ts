<?xml version="1.0" encoding="UTF-8"?>
<materials>
   <material>
      <name>Oil</name>
   </material>
</materials>
