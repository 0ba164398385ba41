<?xml version="1.0"?>
<messageTable/>
