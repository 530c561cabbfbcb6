<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>unknown option %1.</source>
        <translation>nieznana opcja %1.</translation>
    </message>
    <message>
        <source>option --%1 takes no value.</source>
        <translation>opcja --%1 nie przyjmuje wartości.</translation>
    </message>
    <message>
        <source>option %1 needs a value (%2).</source>
        <translation>opcja %1 wymaga wartości (%2).</translation>
    </message>
</context>
<context>
    <name>FwTool</name>
    <message>
        <source>Usage: telecfg-fw COMMAND [OPTIONS] FILE...

Packs, examines, unpacks and verifies the device&apos;s firmware files.

Commands:
  pack     pack a firmware payload into a firmware file
  info     show a firmware file&apos;s form, hardware words, sizes and checksums
  unpack   take the firmware payload (or the image) out of a firmware file
  verify   check firmware files as the configurator does before sending them

  telecfg-fw COMMAND --help   the command&apos;s options
  telecfg-fw --version        the version

Exit status: 0 success, 1 bad arguments, 2 an input file cannot be read,
3 the output file cannot be written, 4 the payload is too large,
6 a checksum in the file does not hold or its content cannot be read,
11 to 15 the configurator&apos;s reader refuses the file (15: other hardware).
</source>
        <translation>Użycie: telecfg-fw POLECENIE [OPCJE] PLIK...

Pakuje, opisuje, wypakowuje i sprawdza pliki firmware urządzenia.

Polecenia:
  pack     pakuje firmware do pliku firmware
  info     pokazuje formę, słowa sprzętu, rozmiary i sumy kontrolne pliku firmware
  unpack   wyjmuje firmware (albo obraz) z pliku firmware
  verify   sprawdza pliki firmware tak jak konfigurator przed wysłaniem

  telecfg-fw POLECENIE --help   opcje polecenia
  telecfg-fw --version          wersja

Status wyjścia: 0 sukces, 1 błędne argumenty, 2 nie można odczytać pliku wejściowego,
3 nie można zapisać pliku wynikowego, 4 firmware jest za duże,
6 suma kontrolna w pliku jest niezgodna albo treści nie można odczytać,
11 do 15 czytnik konfiguratora odrzuca plik (15: inny sprzęt).
</translation>
    </message>
    <message>
        <source>no command given.</source>
        <translation>nie podano polecenia.</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;.</source>
        <translation>nieznane polecenie &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The commands are pack, info, unpack and verify; &apos;telecfg-fw --help&apos; tells more.</source>
        <translation>Polecenia to pack, info, unpack i verify; więcej mówi &apos;telecfg-fw --help&apos;.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>&apos;telecfg-fw %1 --help&apos; lists the options.</source>
        <translation>Opcje wymienia &apos;telecfg-fw %1 --help&apos;.</translation>
    </message>
    <message>
        <source>give exactly one file: %1</source>
        <translation>podaj dokładnie jeden plik: %1</translation>
    </message>
    <message>
        <source>give at least one file: %1</source>
        <translation>podaj co najmniej jeden plik: %1</translation>
    </message>
    <message>
        <source>%1: cannot read it (%2). Check the path and that you may read the file.</source>
        <translation>%1: nie można go odczytać (%2). Sprawdź ścieżkę i prawo do odczytu pliku.</translation>
    </message>
    <message>
        <source>%1 is the input file; writing it would lose the input. Give another path with -o.</source>
        <translation>%1 to plik wejściowy; zapis zniszczyłby go. Podaj inną ścieżkę w -o.</translation>
    </message>
    <message>
        <source>%1: cannot write it (%2); nothing was changed there. Check that the folder exists, is writable and has room, or give another path with -o.</source>
        <translation>%1: nie można go zapisać (%2); nic tam nie zmieniono. Sprawdź, czy folder istnieje, można w nim pisać i jest w nim miejsce, albo podaj inną ścieżkę w -o.</translation>
    </message>
    <message>
        <source>--hw1 takes a number from 0 to 0xFFFF, not &apos;%1&apos;.</source>
        <translation>--hw1 przyjmuje liczbę od 0 do 0xFFFF, nie &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>the firmware file to write</source>
        <translation>plik firmware do zapisania</translation>
    </message>
    <message>
        <source>the first hardware word of the device the file is for (required)</source>
        <translation>pierwsze słowo sprzętu urządzenia, dla którego jest plik (wymagane)</translation>
    </message>
    <message>
        <source>the second hardware word (required)</source>
        <translation>drugie słowo sprzętu (wymagane)</translation>
    </message>
    <message>
        <source>compressed (the default), uncompressed or enciphered</source>
        <translation>compressed (domyślnie), uncompressed albo enciphered</translation>
    </message>
    <message>
        <source>the name in the file (default: the payload&apos;s file name without .bin)</source>
        <translation>nazwa w pliku (domyślnie: nazwa pliku z firmware bez .bin)</translation>
    </message>
    <message>
        <source>the date in the file (default: today, YYYY-MM-DD)</source>
        <translation>data w pliku (domyślnie: dzisiejsza, RRRR-MM-DD)</translation>
    </message>
    <message>
        <source>the user name in the file (at most 15 characters)</source>
        <translation>nazwa użytkownika w pliku (najwyżej 15 znaków)</translation>
    </message>
    <message>
        <source>the byte that fills the last page (default 0xFF), or &apos;random&apos;</source>
        <translation>bajt wypełniający ostatnią stronę (domyślnie 0xFF) albo &apos;random&apos;</translation>
    </message>
    <message>
        <source>say nothing on success</source>
        <translation>nic nie mów, gdy się uda</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>pokaż tę pomoc</translation>
    </message>
    <message>
        <source>telecfg-fw pack PAYLOAD -o OUT --hw1 N --hw2 N [OPTIONS]</source>
        <translation>telecfg-fw pack FIRMWARE -o WYNIK --hw1 N --hw2 N [OPCJE]</translation>
    </message>
    <message>
        <source>Packs a firmware payload (the bytes the device runs) into a firmware file under the built-in keys.
Numbers may be decimal or 0x-hexadecimal. --form plain and --form sealed are the old names of uncompressed and enciphered; they are accepted until the next release.</source>
        <translation>Pakuje firmware (bajty, które wykonuje urządzenie) do pliku firmware pod wbudowanymi kluczami.
Liczby mogą być dziesiętne albo szesnastkowe z 0x. --form plain i --form sealed to dawne nazwy uncompressed i enciphered; są przyjmowane do następnego wydania.</translation>
    </message>
    <message>
        <source>no output file given. Name the firmware file to write with -o OUT.</source>
        <translation>nie podano pliku wynikowego. Wskaż plik firmware do zapisania w -o WYNIK.</translation>
    </message>
    <message>
        <source>no hardware words given. Give the words of the device the file is for with --hw1 N --hw2 N (--hw1 0 --hw2 0 for a file that carries none).</source>
        <translation>nie podano słów sprzętu. Podaj słowa urządzenia, dla którego jest plik, w --hw1 N --hw2 N (--hw1 0 --hw2 0 dla pliku bez słów sprzętu).</translation>
    </message>
    <message>
        <source>--%1 takes a number from 0 to 0xFFFF, not &apos;%2&apos;.</source>
        <translation>--%1 przyjmuje liczbę od 0 do 0xFFFF, nie &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>unknown form &apos;%1&apos;. Give compressed, uncompressed or enciphered.</source>
        <translation>nieznana forma &apos;%1&apos;. Podaj compressed, uncompressed albo enciphered.</translation>
    </message>
    <message>
        <source>--form %1 is the old name of --form %2; it is accepted until the next release.</source>
        <translation>--form %1 to dawna nazwa --form %2; jest przyjmowana do następnego wydania.</translation>
    </message>
    <message>
        <source>--pad takes a byte from 0 to 255 or &apos;random&apos;, not &apos;%1&apos;.</source>
        <translation>--pad przyjmuje bajt od 0 do 255 albo &apos;random&apos;, nie &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1: the payload of %2 bytes does not fit the %3 pages of %4 bytes a firmware file holds (%5 bytes). Shorten it.</source>
        <translation>%1: firmware o rozmiarze %2 bajtów nie mieści się w %3 stronach po %4 bajtów pliku firmware (%5 bajtów). Skróć je.</translation>
    </message>
    <message>
        <source>Wrote %1: %2 form for hw1 %3, hw2 %4; %5 pages, %6 bytes, from %7 bytes of payload.</source>
        <translation>Zapisano %1: forma %2 dla hw1 %3, hw2 %4; stron: %5, bajtów: %6, z %7 bajtów firmware.</translation>
    </message>
    <message>
        <source>The file keeps whole pages only: &apos;telecfg-fw unpack --length %1&apos; gives the payload back byte for byte.</source>
        <translation>Plik przechowuje tylko całe strony: &apos;telecfg-fw unpack --length %1&apos; odda firmware bajt w bajt.</translation>
    </message>
    <message>
        <source>the header</source>
        <translation>nagłówek</translation>
    </message>
    <message>
        <source>the image (it cannot be read)</source>
        <translation>obraz (nie można go odczytać)</translation>
    </message>
    <message>
        <source>the name block</source>
        <translation>blok nazwy</translation>
    </message>
    <message>
        <source>the size block</source>
        <translation>blok rozmiaru</translation>
    </message>
    <message>
        <source>the page count (the size block states %1)</source>
        <translation>liczba stron (blok rozmiaru podaje %1)</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>strona %1</translation>
    </message>
    <message>
        <source>the trailer</source>
        <translation>stopka</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, bajtów: %2</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Sprzęt</translation>
    </message>
    <message>
        <source>hw1 %1, hw2 %2</source>
        <translation>hw1 %1, hw2 %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>%1; date %2; user %3</source>
        <translation>%1; data %2; użytkownik %3</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>%1 of %2 bytes: a payload of %3 bytes, the last page&apos;s fill included</source>
        <translation>%1 po %2 bajtów: firmware o rozmiarze %3 bajtów razem z wypełnieniem ostatniej strony</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Rozmiary</translation>
    </message>
    <message>
        <source>image %1 bytes, body %2 bytes; compression ratio %3</source>
        <translation>obraz %1 bajtów, treść %2 bajtów; stopień kompresji %3</translation>
    </message>
    <message>
        <source>holds</source>
        <translation>zgodna</translation>
    </message>
    <message>
        <source>FAILS</source>
        <translation>NIEZGODNA</translation>
    </message>
    <message>
        <source>Checksums</source>
        <translation>Sumy kontrolne</translation>
    </message>
    <message>
        <source>header %1, name block %2, size block %3, pages %4 of %5 hold, trailer %6</source>
        <translation>suma nagłówka %1, bloku nazwy %2, bloku rozmiaru %3; zgodne strony: %4 z %5; suma stopki %6</translation>
    </message>
    <message>
        <source>header %1</source>
        <translation>suma nagłówka %1</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>every checksum holds</source>
        <translation>wszystkie sumy kontrolne zgodne</translation>
    </message>
    <message>
        <source>these do not hold: %1</source>
        <translation>niezgodne: %1</translation>
    </message>
    <message>
        <source>Page  Label  Checksum    Verdict</source>
        <translation>Strona Znak   Suma        Wynik</translation>
    </message>
    <message>
        <source>list every page and its checksum</source>
        <translation>wypisz każdą stronę i jej sumę kontrolną</translation>
    </message>
    <message>
        <source>print the summary and the page table as JSON</source>
        <translation>wypisz podsumowanie i tabelę stron jako JSON</translation>
    </message>
    <message>
        <source>telecfg-fw info FILE [--pages] [--json]</source>
        <translation>telecfg-fw info PLIK [--pages] [--json]</translation>
    </message>
    <message>
        <source>Shows a firmware file&apos;s form, hardware words, page count, sizes, compression ratio and the verdict of every checksum;
exit status 6 when one does not hold.</source>
        <translation>Pokazuje formę pliku firmware, słowa sprzętu, liczbę stron, rozmiary, stopień kompresji i wynik każdej sumy kontrolnej;
status wyjścia 6, gdy któraś jest niezgodna.</translation>
    </message>
    <message>
        <source>%1: shorter than the 128 bytes of a header; it is no firmware file.</source>
        <translation>%1: krótszy niż 128 bajtów nagłówka; to nie jest plik firmware.</translation>
    </message>
    <message>
        <source>%1: the file is damaged; these checksums do not hold: %2. Take it again from where it came from.</source>
        <translation>%1: plik jest uszkodzony; niezgodne sumy kontrolne: %2. Weź go ponownie ze źródła.</translation>
    </message>
    <message>
        <source>shorter than 128 bytes or of an unknown type: it is no firmware file.</source>
        <translation>krótszy niż 128 bajtów albo nieznanego typu: to nie jest plik firmware.</translation>
    </message>
    <message>
        <source>its size is not a multiple of 16 or its compressed data are damaged. Take the file again from where it came from.</source>
        <translation>jego rozmiar nie jest wielokrotnością 16 albo dane skompresowane są uszkodzone. Weź plik ponownie ze źródła.</translation>
    </message>
    <message>
        <source>shorter than the length its header states: it was cut short. Copy it again.</source>
        <translation>krótszy niż długość podana w nagłówku: został ucięty. Skopiuj go ponownie.</translation>
    </message>
    <message>
        <source>the header&apos;s checksum does not hold: the file is damaged. Take it again from where it came from.</source>
        <translation>suma kontrolna nagłówka jest niezgodna: plik jest uszkodzony. Weź go ponownie ze źródła.</translation>
    </message>
    <message>
        <source>the file is for other hardware (hw1 %1, hw2 %2). Check --hw1, or use the file for that hardware.</source>
        <translation>plik jest dla innego sprzętu (hw1 %1, hw2 %2). Sprawdź --hw1 albo użyj pliku dla tamtego sprzętu.</translation>
    </message>
    <message>
        <source>the reader gave the unknown code %1.</source>
        <translation>czytnik zwrócił nieznany kod %1.</translation>
    </message>
    <message>
        <source>%1: sound: %2, hw1 %3, hw2 %4, %5 pages, every checksum holds.</source>
        <translation>%1: poprawny: %2, hw1 %3, hw2 %4, stron: %5, wszystkie sumy kontrolne zgodne.</translation>
    </message>
    <message>
        <source>the file to write</source>
        <translation>plik do zapisania</translation>
    </message>
    <message>
        <source>the payload&apos;s length, to cut the last page&apos;s fill off</source>
        <translation>długość firmware, by odciąć wypełnienie ostatniej strony</translation>
    </message>
    <message>
        <source>write the image as the configurator sends it to the device, pages enciphered</source>
        <translation>zapisz obraz tak, jak konfigurator wysyła go do urządzenia, ze stronami zaszyfrowanymi</translation>
    </message>
    <message>
        <source>the first hardware word the file must be for</source>
        <translation>pierwsze słowo sprzętu, dla którego musi być plik</translation>
    </message>
    <message>
        <source>old name of the default (the payload); accepted until the next release</source>
        <translation>dawna nazwa domyślnego wyniku (firmware); przyjmowana do następnego wydania</translation>
    </message>
    <message>
        <source>telecfg-fw unpack FILE -o OUT [--length N | --image]</source>
        <translation>telecfg-fw unpack PLIK -o WYNIK [--length N | --image]</translation>
    </message>
    <message>
        <source>Writes the firmware payload a firmware file carries, every checksum checked.
The file keeps whole pages of 2048 bytes: give the payload&apos;s length with --length to get a shorter payload back byte for byte
(pack prints it). With --image, writes instead what the configurator sends to the device.</source>
        <translation>Zapisuje firmware zawarte w pliku firmware, po sprawdzeniu każdej sumy kontrolnej.
Plik przechowuje całe strony po 2048 bajtów: podaj długość firmware w --length, by odzyskać krótsze firmware bajt w bajt
(pack ją wypisuje). Z --image zapisuje zamiast tego to, co konfigurator wysyła do urządzenia.</translation>
    </message>
    <message>
        <source>no output file given. Name the file to write with -o OUT.</source>
        <translation>nie podano pliku wynikowego. Wskaż plik do zapisania w -o WYNIK.</translation>
    </message>
    <message>
        <source>--length cuts the payload; it does not go with --image.</source>
        <translation>--length przycina firmware; nie łączy się z --image.</translation>
    </message>
    <message>
        <source>--raw (the payload) and --image exclude each other.</source>
        <translation>--raw (firmware) i --image wykluczają się.</translation>
    </message>
    <message>
        <source>--raw is the old name of the default, the payload; it is accepted until the next release.</source>
        <translation>--raw to dawna nazwa domyślnego wyniku, firmware; jest przyjmowana do następnego wydania.</translation>
    </message>
    <message>
        <source>%1: the file is damaged, and so would be the payload; these checksums do not hold: %2. Take the file again from where it came from.</source>
        <translation>%1: plik jest uszkodzony, więc firmware też byłoby uszkodzone; niezgodne sumy kontrolne: %2. Weź plik ponownie ze źródła.</translation>
    </message>
    <message>
        <source>%1: its %2 pages hold a payload of %3 to %4 bytes; --length %5 is not among them. Give the length pack printed.</source>
        <translation>%1: jego strony (%2) mieszczą firmware od %3 do %4 bajtów; --length %5 do nich nie należy. Podaj długość wypisaną przez pack.</translation>
    </message>
    <message>
        <source>%1 was written all the same.</source>
        <translation>%1 został mimo to zapisany.</translation>
    </message>
    <message>
        <source>Wrote %1: the image as the configurator sends it, %2 bytes.</source>
        <translation>Zapisano %1: obraz tak, jak wysyła go konfigurator, bajtów: %2.</translation>
    </message>
    <message>
        <source>Wrote %1: the firmware payload, %2 bytes.</source>
        <translation>Zapisano %1: firmware, bajtów: %2.</translation>
    </message>
    <message>
        <source>Wrote %1: the firmware payload, %2 bytes in %3 whole pages (--length cuts the last page&apos;s fill off).</source>
        <translation>Zapisano %1: firmware, bajtów: %2 w całych stronach: %3 (--length odcina wypełnienie ostatniej strony).</translation>
    </message>
    <message>
        <source>the first hardware word the files must be for</source>
        <translation>pierwsze słowo sprzętu, dla którego muszą być pliki</translation>
    </message>
    <message>
        <source>name only the files that fail</source>
        <translation>wymień tylko pliki z błędami</translation>
    </message>
    <message>
        <source>telecfg-fw verify FILE... [--hw1 N]</source>
        <translation>telecfg-fw verify PLIK... [--hw1 N]</translation>
    </message>
    <message>
        <source>Checks firmware files as the configurator does before it sends one, and every checksum in them;
one line for each file. The exit status is that of the worst file: 0 all sound, 15 for other hardware,
6 a checksum fails, 11 to 14 the configurator&apos;s reader refuses it, 2 it cannot be read.</source>
        <translation>Sprawdza pliki firmware tak jak konfigurator przed wysłaniem, i każdą sumę kontrolną w nich;
jeden wiersz na plik. Status wyjścia to status najgorszego pliku: 0 wszystkie poprawne, 15 inny sprzęt,
6 niezgodna suma kontrolna, 11 do 14 czytnik konfiguratora odrzuca plik, 2 nie można go odczytać.</translation>
    </message>
</context>
</TS>
