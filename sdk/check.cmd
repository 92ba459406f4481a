@echo off
rem Runs the tests that lie in this folder on this machine and writes report.txt, to be sent back.
rem   check           all programs; keep hands off mouse and keyboard meanwhile, which takes about half an hour
rem   check PATTERN   those whose names match, such as  check test_tree*
setlocal
cd /d "%~dp0"
set patterns=test_*.exe fuzz_*.exe
if not "%~1" == "" set patterns=%~1.exe
set report=report.txt
set failed=
set /a programs=0

echo ovoui: what the tests say on this machine> %report%
ver >> %report%
echo %PROCESSOR_IDENTIFIER%, %NUMBER_OF_PROCESSORS% processors>> %report%
call :ask "HKLM\SOFTWARE\Microsoft\Windows NT\CurrentVersion" ProductName
call :ask "HKLM\SOFTWARE\Microsoft\Windows NT\CurrentVersion" CurrentBuild
call :ask "HKCU\Control Panel\Desktop" LogPixels
call :ask "HKCU\Control Panel\Desktop\WindowMetrics" AppliedDPI
call :ask "HKCU\Software\Microsoft\Windows\CurrentVersion\Themes" CurrentTheme
call :ask "HKCU\Control Panel\International" LocaleName

for %%p in (%patterns%) do if exist "%%p" call :run "%%p"

echo.>> %report%
if %programs% == 0 set failed= - no program matches %patterns%
if not defined failed echo ALL WELL: %programs% programs>> %report%
if defined failed echo FAILED:%failed%; %programs% programs were run>> %report%
echo.
echo The report is in %~dp0%report%
if defined failed exit /b 1
exit /b 0

:run
echo Running %~n1
set /a programs+=1
echo.>> %report%
echo ==== %~n1>> %report%
set arguments=--gtest_brief=1
set name=%~n1
if "%name:~0,5%" == "fuzz_" set arguments=3000
"%~1" %arguments% >> %report% 2>&1
set result=%errorlevel%
echo ---- %~n1 has ended with %result% >> %report%
if not "%result%" == "0" set failed=%failed% %~n1
exit /b

rem Puts a value of the registry into the report.
:ask
echo %~2:>> %report%
reg query %1 /v %2 >> %report% 2>&1
exit /b
