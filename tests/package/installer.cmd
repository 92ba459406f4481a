@echo off
rem Installs, lists and starts what was installed, and removes it again:  installer SETUP
set folder=C:\ovoui for all
start /wait %1 /S /D=%folder%
if not exist "%folder%\bin\ovoui.dll" echo the libraries are missing & exit /b 1
if not exist "%folder%\lib\cmake\ovoui\ovouiConfig.cmake" echo the package is missing & exit /b 1
if not exist "%folder%\include\ovoui\ovoui.h" echo the headers are missing & exit /b 1
if not exist "%folder%\licences\ovoui.txt" echo the licence is missing & exit /b 1
dir /s /b /a-d "%folder%" > files.txt
start /wait /b "" "%folder%\bin\gallery.exe" --list > pages.txt
if errorlevel 1 echo the gallery does not start & exit /b 1
reg query HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\ovoui /v DisplayName
if errorlevel 1 echo it is not registered & exit /b 1
start /wait "" "%folder%\uninstall.exe" /S _?=%folder%
if exist "%folder%\bin\ovoui.dll" echo it is not removed & exit /b 1
dir /s /b /a-d "%folder%" > left.txt
reg query HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\ovoui
if not errorlevel 1 echo it is still registered & exit /b 1
exit /b 0
