@echo off
rem Copies VelloraCTL onto this machine, or into one user's part of it, and registers it. Whatever fails, the
rem machine is as it was before, an earlier copy and its registration included.
setlocal
if not exist "%~dp0steps.cmd" (
    echo The file steps.cmd is missing beside install.cmd. Unpack the whole archive and start install.cmd there.
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
call "%~dp0steps.cmd" find_system
call "%~dp0steps.cmd" check_files
if not "%CODE%"=="0" exit /b %CODE%
if defined CHECK goto :checked
call "%~dp0steps.cmd" check_rights
if not "%CODE%"=="0" exit /b %CODE%
call "%~dp0steps.cmd" find_earlier
if defined HERE goto :register

call "%~dp0steps.cmd" tidy_up
call "%~dp0steps.cmd" check_free
if not "%CODE%"=="0" exit /b %CODE%
call "%~dp0steps.cmd" copy_files
if not "%CODE%"=="0" exit /b %CODE%
call "%~dp0steps.cmd" put_in_place
if not "%CODE%"=="0" exit /b %CODE%
set "BASE=%TARGET%\"

:register
call "%~dp0steps.cmd" register_all
if not "%CODE%"=="0" goto :undo
if not defined HERE call "%~dp0steps.cmd" clear_old
echo VelloraCTL @VERSION@ is installed %SCOPE% in "%BASE%". Registered: %BITNESSES%.
exit /b 0

:undo
set "FAILED=%CODE%"
call "%~dp0steps.cmd" unregister_all
if not defined HERE call "%~dp0steps.cmd" put_back
call "%~dp0steps.cmd" register_earlier
echo Nothing was changed.
exit /b %FAILED%

:checked
if defined CERTUTIL echo The files are whole.
if not defined CERTUTIL echo The files are there. Whether they are whole is not known: there is no certutil that tells checksums.
exit /b 0

:usage
echo Usage: install.cmd [/user] [/here]
echo   without an option  for all users, in %%ProgramFiles%%\VelloraCTL; takes an administrator's rights
echo   /user              for the present user, in %%LOCALAPPDATA%%\VelloraCTL; takes no rights
echo   /here              registers the files where they are, without copying them
echo   /check             looks whether the files are whole, and does nothing else
if defined HELP exit /b 0
exit /b 2
