#include "runtime/support/full_product.h"

#include "runtime/package/package_reader.h"

namespace quillon::test {

void FullProduct::FillMachine()
{
    memory.files.Put("C:\\WINDOWS\\APP.INI", "; head\r\n[Old]\r\nx=1\r\n");
    memory.files.Put("C:\\Program\\Exempel\\egen.txt", "the user's own");
    memory.files.Put("C:\\WINDOWS\\SYSTEM32\\delad.dll", "old", {2003, 1, 1, 0, 0, 0});
    const RegistryKey firma{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    target.MakeKey(firma);
    target.WriteValue(firma, "Version", TextData("0.9"));
    target.MakeKey({RegistryRoot::LocalMachine, "SOFTWARE\\Firma\\Annat"});
}

void FullProduct::FillPackage()
{
    AddFile("prog.exe", "%DESTDIR", "program", "VX").iconMarker = "IkonD";
    package.rows.back().iconTitle = "Programmet";
    AddFile("läs mig.txt", "%DESTDIR\\Data\\Djup", "text");
    AddFile("prog.dll", "%SYSDIR", "library", "VRA");
    AddFile("delad.dll", "%SYSDIR", "shared", "S");
    AddFile("font.ttf", "%FONTDIR", "font", "DWF").iconTitle = "Min font";
    AddFile("skydd.txt", "%DESTDIR", "protected", "P");
    AddFolder("%DESTDIR\\Tom");
    project.InstallOptions.CreateUninstallIcon = kOn;
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Version=\"1.0\"\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Ny\\Nyckel\r\n"
                             "HKEY_CURRENT_USER\\SOFTWARE\\Firma :: Antal=7\r\n"
                             "HKEY_CURRENT_USER\\SOFTWARE\\Firma :: Data=!A2 FF\r\n"
                             "HKEY_CURRENT_USER\\SOFTWARE\\Firma :: (Standard)=\"%DESTDIR\"";
    project.Lists.INIFiles = "-- APP.INI --\r\n[Old]\r\nx=2\r\ny=%DESTDIR\r\n[New]\r\nz=3\r\n"
                             "-- %DESTDIR\\NY.INI --\r\n[A]\r\nb=å";
}

void FullProduct::ChangePackage()
{
    for (MemoryContainer::Source& source : sources) {
        source.bytes += " 2";
        source.modified = {2005, 6, 7, 8, 9, 10};
    }
    for (InstallRow& row : package.rows)
        row.size += IsEmptyFolderRow(row) ? 0 : 2;
    package.rows[1].copyOptions = "DB";
    AddFile("ny.txt", "%DESTDIR\\Ny mapp", "new", "R");
    project.InstallOptions.DeleteProgGroup = kOn;
    project.Lists.Registry = "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Ny\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Version=\"2.0\"\r\n"
                             "HKEY_CURRENT_USER\\SOFTWARE\\Firma :: Antal=8";
    project.Lists.INIFiles = "-- APP.INI --\r\n[Old]\r\nx=3\r\n[Ännu en]\r\nq=1";
}

} // namespace quillon::test
