<?xml version="1.0"?>
<Project><PropertyGroup/></Project>
