<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="pl">
<context>
    <name>CfgListEditor</name>
    <message>
        <source>Dodaj…</source>
        <translation>Add…</translation>
    </message>
    <message>
        <source>Dodaj element</source>
        <translation>Add element</translation>
    </message>
    <message>
        <source>Usuń</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Usuń zaznaczone elementy</source>
        <translation>Remove selected elements</translation>
    </message>
    <message>
        <source>Lista jest pełna</source>
        <translation>The list is full</translation>
    </message>
    <message>
        <source>Nic nie zaznaczono</source>
        <translation>Nothing selected</translation>
    </message>
    <message>
        <source>Nowy element</source>
        <translation>New element</translation>
    </message>
    <message>
        <source>Wartość (%1–%2):</source>
        <translation>Value (%1–%2):</translation>
    </message>
    <message>
        <source>Nazwa:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Tekst:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Tekst (długość do %1):</source>
        <translation>Text (length up to %1):</translation>
    </message>
</context>
<context>
    <name>CfgListWidget</name>
    <message>
        <source>Nowy element</source>
        <translation>New element</translation>
    </message>
    <message>
        <source>Identyfikator jest już używany</source>
        <translation>The identifier is already in use</translation>
    </message>
    <message>
        <source>Nieznana wartość (%1)</source>
        <translation>Unknown value (%1)</translation>
    </message>
    <message>
        <source>Usunięty element</source>
        <translation>Removed element</translation>
    </message>
    <message>
        <source>Nieprawidłowy element</source>
        <translation>Invalid element</translation>
    </message>
    <message>
        <source>Zmodyfikowany element</source>
        <translation>Modified element</translation>
    </message>
    <message>
        <source>Istniejący element</source>
        <translation>Existing element</translation>
    </message>
</context>
<context>
    <name>CfgTableWidget</name>
    <message>
        <source>Kolumna %1</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>Nowy element</source>
        <translation>New element</translation>
    </message>
    <message>
        <source>Identyfikator jest już używany</source>
        <translation>The identifier is already in use</translation>
    </message>
    <message>
        <source>Edycja elementu</source>
        <translation>Edit element</translation>
    </message>
    <message>
        <source>Identyfikator nie może być pusty</source>
        <translation>The identifier cannot be empty</translation>
    </message>
</context>
<context>
    <name>ChangeReview</name>
    <message>
        <source>Przegląd zmian</source>
        <translation>Review changes</translation>
    </message>
    <message>
        <source>Te zmiany zostaną zapisane. Odznacz te, których nie chcesz zapisać: wrócą do zapisanej wartości.</source>
        <translation>These changes will be saved. Uncheck those you do not want to save: they return to the stored value.</translation>
    </message>
    <message>
        <source>Zmienione parametry</source>
        <translation>Changed parameters</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <source>…i jeszcze %1</source>
        <translation>…and %1 more</translation>
    </message>
    <message>
        <source>Niezapisane zmiany</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>Zapisać zmiany przed zamknięciem?</source>
        <translation>Save the changes before closing?</translation>
    </message>
    <message>
        <source>Zapisz</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Odrzuć zmiany</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Zatwierdź</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Parametr</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Zapisana wartość</source>
        <translation>Stored value</translation>
    </message>
    <message>
        <source>Nowa wartość</source>
        <translation>New value</translation>
    </message>
    <message>
        <source>Zmienione parametry: %1, wybrane: %2</source>
        <translation>Changed parameters: %1, chosen: %2</translation>
    </message>
</context>
<context>
    <name>CmdDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Polecenie</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Wykonaj zdalny rozkaz</source>
        <translation>Run a remote command</translation>
    </message>
</context>
<context>
    <name>CountryCode</name>
    <message>
        <source>Sieć komórkowa</source>
        <translation>Mobile network</translation>
    </message>
    <message>
        <source>Kod</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>&amp;Kraj:</source>
        <translation>&amp;Country:</translation>
    </message>
    <message>
        <source>Kod kraju (MCC). Można wpisać także kod spoza listy.</source>
        <translation>Country code (MCC). A code not on the list can be entered too.</translation>
    </message>
    <message>
        <source>MCC</source>
        <translation>MCC</translation>
    </message>
    <message>
        <source>&amp;Operator:</source>
        <translation>&amp;Operator:</translation>
    </message>
    <message>
        <source>Kod sieci (MNC); „*” oznacza wszystkich operatorów kraju. Można wpisać także kod spoza listy.</source>
        <translation>Network code (MNC); “*” means every operator of the country. A code not on the list can be entered too.</translation>
    </message>
    <message>
        <source>MNC</source>
        <translation>MNC</translation>
    </message>
    <message>
        <source>Wybierz kraj i operatora z listy albo wpisz ich kody. „*” w kodzie operatora oznacza wszystkich operatorów.</source>
        <translation>Choose a country and an operator from the list or enter their codes. “*” as the operator code means every operator.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Nieznany</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Wszystkie</source>
        <translation>All</translation>
    </message>
</context>
<context>
    <name>DualInputDlg</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
</context>
<context>
    <name>FormUndo</name>
    <message>
        <source>parametr %1</source>
        <translation>parameter %1</translation>
    </message>
    <message>
        <source>Przywrócenie zapisanej wartości: %1
przywrócenie zapisanej wartości: %1</source>
        <translation>Restoring the stored value: %1
restoring the stored value: %1</translation>
    </message>
    <message>
        <source>Zmiana: %1
zmianę: %1</source>
        <translation>Change: %1
change: %1</translation>
    </message>
    <message>
        <source>Cofnij</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Ponów</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Zmiana wielu wartości
zmianę wielu wartości</source>
        <translation>Change of several values
change of several values</translation>
    </message>
    <message>
        <source>Przywróć zapisaną wartość</source>
        <translation>Restore the stored value</translation>
    </message>
</context>
<context>
    <name>ParameterBrowser</name>
    <message>
        <source>Szukaj: numer, nazwa, opis, opcja</source>
        <translation>Search: number, name, description, option</translation>
    </message>
    <message>
        <source>Szukaj parametru</source>
        <translation>Search for a parameter</translation>
    </message>
    <message>
        <source>Tylko zmienione</source>
        <translation>Changed only</translation>
    </message>
    <message>
        <source>Tylko widoczne dla urządzenia</source>
        <translation>Shown for this device only</translation>
    </message>
    <message>
        <source>Tylko nieprawidłowe</source>
        <translation>Invalid only</translation>
    </message>
    <message>
        <source>Strona</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Wszystkie strony</source>
        <translation>All pages</translation>
    </message>
    <message>
        <source>Parametry</source>
        <translation>Parameters</translation>
    </message>
</context>
<context>
    <name>ParameterModel</name>
    <message>
        <source>Nieprawidłowy</source>
        <translation>Invalid</translation>
    </message>
    <message>
        <source>Zmieniony</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Ukryty</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>Numer</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Nazwa</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Wartość</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Zapisana wartość</source>
        <translation>Stored value</translation>
    </message>
    <message>
        <source>Stan</source>
        <translation>State</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Nieznany</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Wszystkie</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Grecja</source>
        <translation>Greece</translation>
    </message>
    <message>
        <source>Holandia</source>
        <translation>Netherlands</translation>
    </message>
    <message>
        <source>Belgia</source>
        <translation>Belgium</translation>
    </message>
    <message>
        <source>Francja</source>
        <translation>France</translation>
    </message>
    <message>
        <source>Monako</source>
        <translation>Monaco</translation>
    </message>
    <message>
        <source>Andora</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Hiszpania</source>
        <translation>Spain</translation>
    </message>
    <message>
        <source>Węgry</source>
        <translation>Hungary</translation>
    </message>
    <message>
        <source>Bośnia i Hercegowina</source>
        <translation>Bosnia and Herzegovina</translation>
    </message>
    <message>
        <source>Chorwacja</source>
        <translation>Croatia</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Serbia</translation>
    </message>
    <message>
        <source>Kosowo</source>
        <translation>Kosovo</translation>
    </message>
    <message>
        <source>Włochy</source>
        <translation>Italy</translation>
    </message>
    <message>
        <source>Rumunia</source>
        <translation>Romania</translation>
    </message>
    <message>
        <source>Szwajcaria</source>
        <translation>Switzerland</translation>
    </message>
    <message>
        <source>Czechy</source>
        <translation>Czech Republic</translation>
    </message>
    <message>
        <source>Słowacja</source>
        <translation>Slovakia</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Austria</translation>
    </message>
    <message>
        <source>Wielka Brytania(2)</source>
        <translation>United Kingdom(2)</translation>
    </message>
    <message>
        <source>Wielka Brytania(1)</source>
        <translation>United Kingdom(1)</translation>
    </message>
    <message>
        <source>Dania</source>
        <translation>Denmark</translation>
    </message>
    <message>
        <source>Szwecja</source>
        <translation>Sweden</translation>
    </message>
    <message>
        <source>Norwegia</source>
        <translation>Norway</translation>
    </message>
    <message>
        <source>Finlandia</source>
        <translation>Finland</translation>
    </message>
    <message>
        <source>Litwa</source>
        <translation>Lithuania</translation>
    </message>
    <message>
        <source>Łotwa</source>
        <translation>Latvia</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estonia</translation>
    </message>
    <message>
        <source>Rosja</source>
        <translation>Russia</translation>
    </message>
    <message>
        <source>Ukraina</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>Białoruś</source>
        <translation>Belarus</translation>
    </message>
    <message>
        <source>Mołdawia</source>
        <translation>Moldova</translation>
    </message>
    <message>
        <source>Polska</source>
        <translation>Poland</translation>
    </message>
    <message>
        <source>Niemcy</source>
        <translation>Germany</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Portugalia</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Luksemburg</source>
        <translation>Luxembourg</translation>
    </message>
    <message>
        <source>Irlandia</source>
        <translation>Ireland</translation>
    </message>
    <message>
        <source>Islandia</source>
        <translation>Iceland</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albania</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Cypr</source>
        <translation>Cyprus</translation>
    </message>
    <message>
        <source>Gruzja</source>
        <translation>Georgia</translation>
    </message>
    <message>
        <source>Bułgaria</source>
        <translation>Bulgaria</translation>
    </message>
    <message>
        <source>Turcja</source>
        <translation>Turkey</translation>
    </message>
    <message>
        <source>Wyspy Owcze</source>
        <translation>Faroe Islands</translation>
    </message>
    <message>
        <source>Grenlandia</source>
        <translation>Greenland</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>San Marino</translation>
    </message>
    <message>
        <source>Słowenia</source>
        <translation>Slovenia</translation>
    </message>
    <message>
        <source>Macedonia</source>
        <translation>Macedonia</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Czarnogóra</source>
        <translation>Montenegro</translation>
    </message>
    <message>
        <source>Kanada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>Saint-Pierre i Miquelon</source>
        <translation>Saint Pierre and Miquelon</translation>
    </message>
    <message>
        <source>Stany Zjednoczone(1)</source>
        <translation>United States(1)</translation>
    </message>
    <message>
        <source>Stany Zjednoczone(2)</source>
        <translation>United States(2)</translation>
    </message>
    <message>
        <source>Stany Zjednoczone(3)</source>
        <translation>United States(3)</translation>
    </message>
    <message>
        <source>Stany Zjednoczone(4)</source>
        <translation>United States(4)</translation>
    </message>
    <message>
        <source>Stany Zjednoczone(5)</source>
        <translation>United States(5)</translation>
    </message>
    <message>
        <source>Meksyk</source>
        <translation>Mexico</translation>
    </message>
    <message>
        <source>Jamajka</source>
        <translation>Jamaica</translation>
    </message>
    <message>
        <source>Gwadelupa i Martynika</source>
        <translation>Guadeloupe and Martinique</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Antigua i Barbuda</source>
        <translation>Antigua and Barbuda</translation>
    </message>
    <message>
        <source>Kajmany (Wielka Brytania)</source>
        <translation>Cayman Islands (United Kingdom)</translation>
    </message>
    <message>
        <source>Brytyjskie Wyspy Dziewicze (Wielka Brytania)</source>
        <translation>British Virgin Islands (United Kingdom)</translation>
    </message>
    <message>
        <source>Bermudy</source>
        <translation>Bermuda</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Grenada</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Saint Kitts i Nevis</source>
        <translation>Saint Kitts and Nevis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Saint Lucia</translation>
    </message>
    <message>
        <source>Saint Vincent i Grenadyny</source>
        <translation>Saint Vincent and the Grenadines</translation>
    </message>
    <message>
        <source>Antyle Holenderskie</source>
        <translation>Netherlands Antilles</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Bahamy</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguilla</translation>
    </message>
    <message>
        <source>Dominika</source>
        <translation>Dominica</translation>
    </message>
    <message>
        <source>Kuba</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Dominikana</source>
        <translation>Dominican Republic</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Trynidad i Tobago</source>
        <translation>Trinidad and Tobago</translation>
    </message>
    <message>
        <source>Turks i Caicos</source>
        <translation>Turks and Caicos Islands</translation>
    </message>
    <message>
        <source>Azerbejdżan</source>
        <translation>Azerbaijan</translation>
    </message>
    <message>
        <source>Kazachstan</source>
        <translation>Kazakhstan</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bhutan</translation>
    </message>
    <message>
        <source>Indie(1)</source>
        <translation>India(1)</translation>
    </message>
    <message>
        <source>Indie(2)</source>
        <translation>India(2)</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Pakistan</translation>
    </message>
    <message>
        <source>Afganistan</source>
        <translation>Afghanistan</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Birma</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Liban</source>
        <translation>Lebanon</translation>
    </message>
    <message>
        <source>Jordania</source>
        <translation>Jordan</translation>
    </message>
    <message>
        <source>Syria</source>
        <translation>Syria</translation>
    </message>
    <message>
        <source>Irak</source>
        <translation>Iraq</translation>
    </message>
    <message>
        <source>Kuwejt</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Arabia Saudyjska</source>
        <translation>Saudi Arabia</translation>
    </message>
    <message>
        <source>Jemen</source>
        <translation>Yemen</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Oman</translation>
    </message>
    <message>
        <source>Zjednoczone Emiraty Arabskie</source>
        <translation>United Arab Emirates</translation>
    </message>
    <message>
        <source>Izrael</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Bahrajn</source>
        <translation>Bahrain</translation>
    </message>
    <message>
        <source>Katar</source>
        <translation>Qatar</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongolia</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Iran</source>
        <translation>Iran</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Uzbekistan</translation>
    </message>
    <message>
        <source>Tadżykistan</source>
        <translation>Tajikistan</translation>
    </message>
    <message>
        <source>Kirgistan</source>
        <translation>Kyrgyzstan</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turkmenistan</translation>
    </message>
    <message>
        <source>Japonia(1)</source>
        <translation>Japan(1)</translation>
    </message>
    <message>
        <source>Japonia(2)</source>
        <translation>Japan(2)</translation>
    </message>
    <message>
        <source>Korea Południowa</source>
        <translation>South Korea</translation>
    </message>
    <message>
        <source>Wietnam</source>
        <translation>Vietnam</translation>
    </message>
    <message>
        <source>Hongkong</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Makau</source>
        <translation>Macau</translation>
    </message>
    <message>
        <source>Kambodża</source>
        <translation>Cambodia</translation>
    </message>
    <message>
        <source>Laos</source>
        <translation>Laos</translation>
    </message>
    <message>
        <source>Chiny(2)</source>
        <translation>China(2)</translation>
    </message>
    <message>
        <source>Bangladesz</source>
        <translation>Bangladesh</translation>
    </message>
    <message>
        <source>Malediwy</source>
        <translation>Maldives</translation>
    </message>
    <message>
        <source>Malezja</source>
        <translation>Malaysia</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australia</translation>
    </message>
    <message>
        <source>Indonezja</source>
        <translation>Indonesia</translation>
    </message>
    <message>
        <source>Timor Wschodni</source>
        <translation>East Timor</translation>
    </message>
    <message>
        <source>Filipiny</source>
        <translation>Philippines</translation>
    </message>
    <message>
        <source>Tajlandia</source>
        <translation>Thailand</translation>
    </message>
    <message>
        <source>Singapur</source>
        <translation>Singapore</translation>
    </message>
    <message>
        <source>Brunei</source>
        <translation>Brunei</translation>
    </message>
    <message>
        <source>Nowa Zelandia</source>
        <translation>New Zealand</translation>
    </message>
    <message>
        <source>Papua-Nowa Gwinea</source>
        <translation>Papua New Guinea</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Wyspy Salomona</source>
        <translation>Solomon Islands</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Fidżi</source>
        <translation>Fiji</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Wallis i Futuna (Francja)</source>
        <translation>Wallis and Futuna (France)</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Nowa Kaledonia</source>
        <translation>New Caledonia</translation>
    </message>
    <message>
        <source>Polinezja Francuska</source>
        <translation>French Polynesia</translation>
    </message>
    <message>
        <source>Wyspy Cooka</source>
        <translation>Cook Islands</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>Mikronezja</source>
        <translation>Micronesia</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Tokelau</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Egipt</source>
        <translation>Egypt</translation>
    </message>
    <message>
        <source>Algieria</source>
        <translation>Algeria</translation>
    </message>
    <message>
        <source>Maroko</source>
        <translation>Morocco</translation>
    </message>
    <message>
        <source>Tunezja</source>
        <translation>Tunisia</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambia</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Mauretania</source>
        <translation>Mauritania</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Gwinea</source>
        <translation>Guinea</translation>
    </message>
    <message>
        <source>Wybrzeże Kości Słoniowej</source>
        <translation>Ivory Coast</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burkina Faso</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Niger</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benin</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Mauritius</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Liberia</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leone</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Ghana</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigeria</translation>
    </message>
    <message>
        <source>Czad</source>
        <translation>Chad</translation>
    </message>
    <message>
        <source>Republika Środkowoafrykańska</source>
        <translation>Central African Republic</translation>
    </message>
    <message>
        <source>Kamerun</source>
        <translation>Cameroon</translation>
    </message>
    <message>
        <source>Republika Zielonego Przylądka</source>
        <translation>Cape Verde</translation>
    </message>
    <message>
        <source>Wyspy Świętego Tomasza i Książęca</source>
        <translation>São Tomé and Príncipe</translation>
    </message>
    <message>
        <source>Gwinea Równikowa</source>
        <translation>Equatorial Guinea</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabon</translation>
    </message>
    <message>
        <source>Kongo</source>
        <translation>Congo</translation>
    </message>
    <message>
        <source>Demokratyczna Republika Konga</source>
        <translation>Democratic Republic of the Congo</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Gwinea Bissau</source>
        <translation>Guinea-Bissau</translation>
    </message>
    <message>
        <source>Seszele</source>
        <translation>Seychelles</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudan</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Rwanda</translation>
    </message>
    <message>
        <source>Etiopia</source>
        <translation>Ethiopia</translation>
    </message>
    <message>
        <source>Dżibuti</source>
        <translation>Djibouti</translation>
    </message>
    <message>
        <source>Kenia</source>
        <translation>Kenya</translation>
    </message>
    <message>
        <source>Tanzania</source>
        <translation>Tanzania</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Mozambik</source>
        <translation>Mozambique</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zambia</translation>
    </message>
    <message>
        <source>Madagaskar</source>
        <translation>Madagascar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbabwe</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibia</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malawi</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesotho</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botswana</translation>
    </message>
    <message>
        <source>Suazi</source>
        <translation>Swaziland</translation>
    </message>
    <message>
        <source>Komory</source>
        <translation>Comoros</translation>
    </message>
    <message>
        <source>Południowa Afryka</source>
        <translation>South Africa</translation>
    </message>
    <message>
        <source>Święta Helena</source>
        <translation>Saint Helena</translation>
    </message>
    <message>
        <source>Południowy Sudan</source>
        <translation>South Sudan</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Gwatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Salwador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Nikaragua</source>
        <translation>Nicaragua</translation>
    </message>
    <message>
        <source>Kostaryka</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Argentyna</source>
        <translation>Argentina</translation>
    </message>
    <message>
        <source>Brazylia</source>
        <translation>Brazil</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chile</translation>
    </message>
    <message>
        <source>Kolumbia</source>
        <translation>Colombia</translation>
    </message>
    <message>
        <source>Wenezuela</source>
        <translation>Venezuela</translation>
    </message>
    <message>
        <source>Boliwia</source>
        <translation>Bolivia</translation>
    </message>
    <message>
        <source>Gujana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Ekwador</source>
        <translation>Ecuador</translation>
    </message>
    <message>
        <source>Paragwaj</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Surinam</source>
        <translation>Suriname</translation>
    </message>
    <message>
        <source>Urugwaj</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Falklandy</source>
        <translation>Falkland Islands</translation>
    </message>
    <message>
        <source>Satelitarne (1)</source>
        <translation>Satellite (1)</translation>
    </message>
    <message>
        <source>Satelitarne (2)</source>
        <translation>Satellite (2)</translation>
    </message>
    <message>
        <source>Satelitarne (3)</source>
        <translation>Satellite (3)</translation>
    </message>
</context>
<context>
    <name>ReadBlockConfigWizard</name>
    <message>
        <source>Charakterystyka paliwa</source>
        <translation>Fuel characteristic</translation>
    </message>
    <message>
        <source>Identyfikatory kierowców</source>
        <translation>Driver identifiers</translation>
    </message>
    <message>
        <source>Sieci dozwolone</source>
        <translation>Allowed networks</translation>
    </message>
    <message>
        <source>Import konfiguracji z pliku</source>
        <translation>Import configuration from a file</translation>
    </message>
    <message>
        <source>Proszę wybrać bloki konfiguracji do importu:</source>
        <translation>Please choose the configuration blocks to import:</translation>
    </message>
    <message>
        <source>Dalej</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Anuluj</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Sekcja %1</source>
        <translation>Section %1</translation>
    </message>
    <message>
        <source>Zakładka paliwo %1</source>
        <translation>Fuel tab %1</translation>
    </message>
    <message>
        <source>Otwórz plik z konfiguarcją</source>
        <translation>Open a configuration file</translation>
    </message>
    <message>
        <source>Konfiguracja (*.cfg)</source>
        <translation>Configuration (*.cfg)</translation>
    </message>
</context>
<context>
    <name>SkipReadDataDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Pomiń odczyt:</source>
        <translation>Skip reading:</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Paliwo</source>
        <translation>Fuel</translation>
    </message>
    <message>
        <source>CAN</source>
        <translation>CAN</translation>
    </message>
    <message>
        <source>Pozostałe</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Dallas</source>
        <translation>Dallas</translation>
    </message>
    <message>
        <source>Odczyt - pomijane dane</source>
        <translation>Reading - data to skip</translation>
    </message>
</context>
<context>
    <name>StateCue</name>
    <message>
        <source>Zmieniona</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>Zmieniona, zapisana wartość: %1</source>
        <translation>Modified, stored value: %1</translation>
    </message>
    <message>
        <source>Nieprawidłowa</source>
        <translation>Invalid</translation>
    </message>
    <message>
        <source>Nieprawidłowa: %1</source>
        <translation>Invalid: %1</translation>
    </message>
    <message>
        <source>poza zakresem %1–%2</source>
        <translation>outside the range %1-%2</translation>
    </message>
    <message>
        <source>nie jest wielokrotnością kroku %1</source>
        <translation>not a multiple of the step %1</translation>
    </message>
    <message>
        <source>nie pasuje do wzorca</source>
        <translation>does not match the pattern</translation>
    </message>
    <message>
        <source>za długa, najwyżej %1 znaków</source>
        <translation>too long, at most %1 characters</translation>
    </message>
    <message>
        <source>odstęp na początku lub na końcu</source>
        <translation>a blank at the start or the end</translation>
    </message>
    <message>
        <source>zaznaczone</source>
        <translation>checked</translation>
    </message>
    <message>
        <source>niezaznaczone</source>
        <translation>unchecked</translation>
    </message>
    <message>
        <source>odrzucona przez urządzenie</source>
        <translation>refused by the device</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%n element</source>
        <comment>one</comment>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n elementy</source>
        <comment>few</comment>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n elementów</source>
        <comment>many</comment>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dodany</source>
        <comment>one</comment>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dodane</source>
        <comment>few</comment>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dodanych</source>
        <comment>many</comment>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n usunięty</source>
        <comment>one</comment>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n usunięte</source>
        <comment>few</comment>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n usuniętych</source>
        <comment>many</comment>
        <translation>
            <numerusform>%n removed</numerusform>
            <numerusform>%n removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n zmieniony</source>
        <comment>one</comment>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n zmienione</source>
        <comment>few</comment>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n zmienionych</source>
        <comment>many</comment>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message>
        <source>zmieniona kolejność</source>
        <translation>order changed</translation>
    </message>
    <message>
        <source>Parametr %1</source>
        <translation>Parameter %1</translation>
    </message>
</context>
</TS>
