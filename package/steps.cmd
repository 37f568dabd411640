@echo off
rem The steps of install.cmd and uninstall.cmd: call steps.cmd STEP [ARGUMENTS]. A step sets CODE, to 0 when all is
rem well. One that fails says why: 2 an unknown option, 3 a file is missing or damaged, 4 rights are missing, 5 the
rem library is in use, 6 it could not be registered. Not every command processor tells such things in ERRORLEVEL.
set "CODE=0"
set "STEP=%~1"
shift
goto :%STEP%

:read_options
set "CHECK=" & set "HERE=" & set "SCOPE=for all users"
set "ROOT=HKLM" & set "OPTIONS=/s" & set "OPTIONS_OFF=/s /u"
set "TARGET=%ProgramFiles%\VelloraCTL"
if defined ProgramW6432 set "TARGET=%ProgramW6432%\VelloraCTL"
:next_option
if "%~1"=="" exit /b 0
if /i "%~1"=="/user" goto :option_user
if /i "%~1"=="/here" goto :option_here
if /i "%~1"=="/check" goto :option_check
echo There is no option "%~1".
set "CODE=2"
exit /b 0
:option_here
set "HERE=yes"
shift
goto :next_option
:option_check
set "CHECK=yes"
shift
goto :next_option
:option_user
rem Quoted, for a name may have an ampersand.
set SCOPE=for the user "%USERNAME%"
set "ROOT=HKCU" & set "OPTIONS=/s /n /i:user" & set "OPTIONS_OFF=/s /u /n /i:user"
set "TARGET=%LOCALAPPDATA%\VelloraCTL"
shift
goto :next_option

rem An archive that was unpacked where its files would be copied to stays there. A 32-bit command processor finds the
rem 64-bit programs of Windows in Sysnative.
:find_system
set "SOURCE=%~dp0"
set "BASE=%~dp0"
if /i "%SOURCE%"=="%TARGET%\" if exist "%SOURCE%install.cmd" set "HERE=yes"
set "WIDE=" & set "VIEWS="
set "NARROW=%SystemRoot%\System32"
if /i "%PROCESSOR_ARCHITECTURE%"=="AMD64" set "WIDE=%SystemRoot%\System32"
if /i "%PROCESSOR_ARCHITEW6432%"=="AMD64" set "WIDE=%SystemRoot%\Sysnative"
if defined WIDE set "VIEWS=yes"
if /i "%PROCESSOR_ARCHITECTURE%"=="ARM64" set "VIEWS=yes"
if /i "%PROCESSOR_ARCHITEW6432%"=="ARM64" set "VIEWS=yes"
if defined VIEWS set "NARROW=%SystemRoot%\SysWOW64"
set "BITNESSES="
if exist "%NARROW%\regsvr32.exe" set "BITNESSES=x86"
if defined WIDE set "BITNESSES=%BITNESSES% x64"
set "CLASS=Software\Classes\CLSID\@CLSID@\InprocServer32"
exit /b 0

rem ---- What has to be there -------------------------------------------------------------------------------------

:check_files
if not exist "%SOURCE%SHA256SUMS" goto :no_archive
set "LISTED="
for /f "usebackq tokens=2" %%F in ("%SOURCE%SHA256SUMS") do for %%B in (%BITNESSES%) do if "%%F"=="%%B/VelloraCTL.ocx" call :take_listed %%B
set "BITNESSES=%LISTED%"
if not defined BITNESSES goto :no_archive
set "CERTUTIL=%SystemRoot%\System32\certutil.exe"
if not exist "%CERTUTIL%" set "CERTUTIL="
if not defined CHECK goto :check_needed
for /f "usebackq tokens=2" %%F in ("%SOURCE%SHA256SUMS") do call :check_file %%F
exit /b 0
:check_needed
for %%F in (LICENSE steps.cmd uninstall.cmd) do call :check_file %%F
for %%B in (%BITNESSES%) do for %%E in (ocx tlb manifest) do call :check_file %%B/VelloraCTL.%%E
exit /b 0

:take_listed
if defined LISTED (set "LISTED=%LISTED% %1") else (set "LISTED=%1")
exit /b 0
:no_archive
echo The file SHA256SUMS is missing beside install.cmd, or lists nothing for this machine. Unpack the whole archive.
set "CODE=3"
exit /b 0

:check_file
set "FILE=%~1"
set "FILE=%FILE:/=\%"
if not exist "%SOURCE%%FILE%" goto :file_missing
if not defined CERTUTIL exit /b 0
set "WANTED=" & set "FOUND="
for /f "usebackq tokens=1,2" %%S in ("%SOURCE%SHA256SUMS") do if "%%T"=="%~1" set "WANTED=%%S"
for /f "skip=1 delims=" %%S in ('%CERTUTIL% -hashfile "%SOURCE%%FILE%" SHA256 2^>nul') do call :take_sum "%%S"
if not defined FOUND goto :no_sums
if /i "%FOUND%"=="%WANTED%" exit /b 0
echo The file "%FILE%" is damaged: its checksum is not the one in SHA256SUMS. Download the archive again.
set "CODE=3"
exit /b 0
:file_missing
echo The file "%FILE%" is missing. Unpack the whole archive.
set "CODE=3"
exit /b 0
:no_sums
set "CERTUTIL="
exit /b 0
rem Windows 7 puts spaces between the bytes.
:take_sum
if defined FOUND exit /b 0
set "FOUND=%~1"
set "FOUND=%FOUND: =%"
exit /b 0

:find_installed
set "CODE=3"
for %%B in (x86 x64) do if exist "%BASE%%%B\VelloraCTL.ocx" set "CODE=0"
if not "%CODE%"=="0" echo VelloraCTL is not installed %SCOPE%: there is no library in "%BASE%".
exit /b 0

:check_rights
set "PROBE=%ROOT%\Software\Classes\VelloraCTL.Setup"
"%SystemRoot%\System32\reg.exe" add "%PROBE%" /f >nul 2>&1
"%SystemRoot%\System32\reg.exe" query "%PROBE%" >nul 2>&1
if errorlevel 1 goto :no_rights
"%SystemRoot%\System32\reg.exe" delete "%PROBE%" /f >nul 2>&1
if defined HERE exit /b 0
md "%TARGET%.new" >nul 2>&1
if not exist "%TARGET%.new" goto :no_rights
rd "%TARGET%.new" >nul 2>&1
exit /b 0
:no_rights
echo There are no rights to change "%TARGET%" or the registry %SCOPE%. Nothing was changed.
if "%ROOT%"=="HKLM" echo Start a command prompt as administrator and try again, or use the option /user.
set "CODE=4"
exit /b 0

rem A library that a program has loaded cannot be opened for writing. Nothing is written.
:check_free
set "HELD="
for %%B in (x86 x64) do if exist "%TARGET%\%%B\VelloraCTL.ocx" call :check_free_file "%TARGET%\%%B\VelloraCTL.ocx" 2>nul
if not defined HELD exit /b 0
echo The file "%HELD%" is in use. End the programs that have it loaded and try again. Nothing was changed.
echo The command "tasklist /m VelloraCTL.ocx" tells which they are.
set "CODE=5"
exit /b 0
:check_free_file
set "FREE="
>>"%~1" set "FREE=yes"
if not defined FREE set "HELD=%~1"
exit /b 0

rem ---- Files ----------------------------------------------------------------------------------------------------

rem What a run left behind that was cut off in the middle.
:tidy_up
if exist "%TARGET%.new" call :remove_copy "%TARGET%.new"
if not exist "%TARGET%.old" exit /b 0
if exist "%TARGET%" (call :clear_old) else (move "%TARGET%.old" "%TARGET%" >nul 2>&1)
exit /b 0

:copy_files
md "%TARGET%.new" >nul 2>&1
for %%F in (LICENSE steps.cmd uninstall.cmd) do call :copy_file "%SOURCE%%%F" "%TARGET%.new\%%F"
for %%B in (%BITNESSES%) do md "%TARGET%.new\%%B" >nul 2>&1
for %%B in (%BITNESSES%) do for %%E in (ocx tlb manifest) do call :copy_file "%SOURCE%%%B\VelloraCTL.%%E" "%TARGET%.new\%%B\VelloraCTL.%%E"
if "%CODE%"=="0" exit /b 0
echo The files could not be copied to "%TARGET%.new". Make room on that disk and try again. Nothing was changed.
call :remove_copy "%TARGET%.new"
exit /b 0
:copy_file
copy /y "%~1" "%~2" >nul 2>&1
set "COPIED="
if exist "%~2" for %%T in ("%~2") do set "COPIED=%%~zT"
if not "%~z1"=="%COPIED%" set "CODE=4"
exit /b 0

:put_in_place
set "HELD=%TARGET%.old"
if exist "%HELD%" goto :not_moved
set "HELD=%TARGET%"
if exist "%TARGET%" move "%TARGET%" "%TARGET%.old" >nul 2>&1
if exist "%TARGET%" goto :not_moved
move "%TARGET%.new" "%TARGET%" >nul 2>&1
if exist "%TARGET%" exit /b 0
if exist "%TARGET%.old" move "%TARGET%.old" "%TARGET%" >nul 2>&1
:not_moved
call :remove_copy "%TARGET%.new"
echo A file in "%HELD%" is in use. End the programs that have it open and try again. Nothing was changed.
set "CODE=5"
exit /b 0

:put_back
call :remove_copy "%TARGET%"
if exist "%TARGET%.old" move "%TARGET%.old" "%TARGET%" >nul 2>&1
exit /b 0

rem The earlier copy goes; the files of others that lay in it come into the new one. While one of ours cannot be removed
rem they wait, for it would come with them.
:clear_old
call :remove_copy "%TARGET%.old"
if not exist "%TARGET%.old" exit /b 0
set "LEFT="
for %%F in (LICENSE install.cmd steps.cmd uninstall.cmd SHA256SUMS) do if exist "%TARGET%.old\%%F" set "LEFT=yes"
for %%B in (x86 x64) do for %%E in (ocx tlb manifest) do if exist "%TARGET%.old\%%B\VelloraCTL.%%E" set "LEFT=yes"
if defined LEFT exit /b 0
"%SystemRoot%\System32\xcopy.exe" "%TARGET%.old" "%TARGET%" /d /e /h /i /k /q /y >nul 2>&1 && rd /s /q "%TARGET%.old" >nul 2>&1
exit /b 0

rem remove_copy FOLDER - removes what was installed there, and what installed it; files of others stay, and with them
rem their folder.
:remove_copy
call :remove_files %1
for %%B in (x86 x64) do del /q "%~1\%%B\VelloraCTL.ocx" >nul 2>&1
del /q "%~1\install.cmd" "%~1\steps.cmd" "%~1\uninstall.cmd" "%~1\SHA256SUMS" >nul 2>&1
for %%B in (x86 x64) do rd "%~1\%%B" >nul 2>&1
rd "%~1" >nul 2>&1
exit /b 0

rem remove_files FOLDER - all but the libraries and the scripts.
:remove_files
for %%B in (x86 x64) do del /q "%~1\%%B\VelloraCTL.tlb" "%~1\%%B\VelloraCTL.manifest" >nul 2>&1
for %%B in (x86 x64) do rd "%~1\%%B" >nul 2>&1
del /q "%~1\LICENSE" >nul 2>&1
exit /b 0

rem The libraries go together or not at all.
:remove_libraries
md "%TARGET%\kept" >nul 2>&1
for %%B in (x86 x64) do if exist "%TARGET%\%%B\VelloraCTL.ocx" call :remove_library %%B
if "%CODE%"=="0" goto :forget_kept
for %%B in (x86 x64) do if exist "%TARGET%\kept\%%B.ocx" if not exist "%TARGET%\%%B\VelloraCTL.ocx" copy /y "%TARGET%\kept\%%B.ocx" "%TARGET%\%%B\VelloraCTL.ocx" >nul 2>&1
:forget_kept
del /q "%TARGET%\kept\x86.ocx" "%TARGET%\kept\x64.ocx" >nul 2>&1
rd "%TARGET%\kept" >nul 2>&1
exit /b 0
:remove_library
copy /y "%TARGET%\%1\VelloraCTL.ocx" "%TARGET%\kept\%1.ocx" >nul 2>&1
del /q "%TARGET%\%1\VelloraCTL.ocx" >nul 2>&1
if not exist "%TARGET%\%1\VelloraCTL.ocx" exit /b 0
echo The file "%TARGET%\%1\VelloraCTL.ocx" is in use. End the programs that have it loaded and try again.
set "CODE=5"
exit /b 0

rem ---- The registry ---------------------------------------------------------------------------------------------

rem run_regsvr32 BITNESS FILE OPTIONS - sets RESULT.
:run_regsvr32
set "PROGRAM=%NARROW%\regsvr32.exe"
if "%~1"=="x64" set "PROGRAM=%WIDE%\regsvr32.exe"
"%PROGRAM%" %~3 "%~2"
set "RESULT=%ERRORLEVEL%"
exit /b 0

:register_all
for %%B in (%BITNESSES%) do if exist "%BASE%%%B\VelloraCTL.ocx" call :register_one %%B
exit /b 0
:register_one
if not "%CODE%"=="0" exit /b 0
call :run_regsvr32 %1 "%BASE%%1\VelloraCTL.ocx" "%OPTIONS%"
if "%RESULT%"=="0" exit /b 0
echo The file "%BASE%%1\VelloraCTL.ocx" could not be registered %SCOPE%: regsvr32 ended with code %RESULT%.
if "%RESULT%"=="3" echo That code stands for a file that cannot be loaded: it is damaged, or not made for this machine.
set "CODE=6"
exit /b 0

rem Taking back what failed says nothing more.
:unregister_all
for %%B in (%BITNESSES%) do if exist "%BASE%%%B\VelloraCTL.ocx" call :run_regsvr32 %%B "%BASE%%%B\VelloraCTL.ocx" "%OPTIONS_OFF%"
exit /b 0

:forget_all
for %%B in (%BITNESSES%) do if exist "%BASE%%%B\VelloraCTL.ocx" call :forget_one %%B
exit /b 0
:forget_one
if not "%CODE%"=="0" exit /b 0
call :run_regsvr32 %1 "%BASE%%1\VelloraCTL.ocx" "%OPTIONS_OFF%"
if "%RESULT%"=="0" exit /b 0
echo The file "%BASE%%1\VelloraCTL.ocx" could not be unregistered %SCOPE%: regsvr32 ended with code %RESULT%.
set "CODE=6"
exit /b 0

rem The libraries that are registered now, wherever they lie.
:find_earlier
set "EARLIER_x86=" & set "EARLIER_x64="
set "VIEW=" & if defined VIEWS set "VIEW=/reg:32"
for /f "delims=" %%L in ('%SystemRoot%\System32\reg.exe query "%ROOT%\%CLASS%" /ve %VIEW% 2^>nul') do call :take_value EARLIER_x86 "%%L"
if not defined WIDE exit /b 0
for /f "delims=" %%L in ('%SystemRoot%\System32\reg.exe query "%ROOT%\%CLASS%" /ve /reg:64 2^>nul') do call :take_value EARLIER_x64 "%%L"
exit /b 0
rem The value's name stands before its type in the language of Windows.
:take_value
set "LINE=%~2"
set "VALUE=%LINE:*REG_SZ=%"
if "%VALUE%"=="%LINE%" exit /b 0
for /f "tokens=*" %%V in ("%VALUE%") do set "%~1=%%V"
exit /b 0

:register_earlier
if defined EARLIER_x86 if exist "%EARLIER_x86%" call :run_regsvr32 x86 "%EARLIER_x86%" "%OPTIONS%"
if defined EARLIER_x64 if exist "%EARLIER_x64%" call :run_regsvr32 x64 "%EARLIER_x64%" "%OPTIONS%"
exit /b 0
