@echo off
rem Forgets VelloraCTL and removes the copy that install.cmd made. Whatever fails, the copy is left working.
setlocal
if not exist "%~dp0steps.cmd" (
    echo The file steps.cmd is missing beside uninstall.cmd. Unpack the whole archive and start uninstall.cmd there.
    exit /b 3
)
set "FOLDER=%~dp0"
if not "%FOLDER:^=%"=="%FOLDER%" (
    echo Scripts cannot call each other in a folder with a "^" in its name. Unpack the whole archive elsewhere.
    exit /b 3
)
set "HELP="
if "%~1"=="/?" set "HELP=yes"
if defined HELP goto :usage
call "%~dp0steps.cmd" read_options %*
if not "%CODE%"=="0" goto :usage
if defined CHECK goto :usage
call "%~dp0steps.cmd" find_system
if not defined HERE set "BASE=%TARGET%\"
call "%~dp0steps.cmd" find_installed
if not "%CODE%"=="0" exit /b %CODE%
call "%~dp0steps.cmd" check_rights
if not "%CODE%"=="0" exit /b %CODE%
call "%~dp0steps.cmd" find_earlier
if defined HERE goto :unregister
call "%~dp0steps.cmd" check_free
if not "%CODE%"=="0" exit /b %CODE%

:unregister
call "%~dp0steps.cmd" forget_all
if not "%CODE%"=="0" goto :undo
if defined HERE goto :done
call "%~dp0steps.cmd" remove_libraries
if not "%CODE%"=="0" goto :undo
call "%~dp0steps.cmd" remove_files "%TARGET%"

:done
echo VelloraCTL is uninstalled %SCOPE%.
rem A script that removes itself must have been read to its end: all of this is one line.
if defined HERE (exit /b 0) else (cd /d "%SystemRoot%" & del "%TARGET%\steps.cmd" "%TARGET%\uninstall.cmd" 2>nul & rd "%TARGET%" 2>nul & exit /b 0)

:undo
set "FAILED=%CODE%"
call "%~dp0steps.cmd" register_earlier
echo Nothing was changed.
exit /b %FAILED%

:usage
echo Usage: uninstall.cmd [/user] [/here]
echo   without an option  what install.cmd did
echo   /user              what install.cmd /user did
echo   /here              what install.cmd /here did; the files stay
if defined HELP exit /b 0
exit /b 2
