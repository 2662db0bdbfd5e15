// The rows of the host's own texts. A list of keywords has the Russian keywords before the English
// ones, so that the host understands both; their global forms follow the underscore.
#pragma once

namespace host
{
struct OwnTextRow
{
    const wchar_t* english;
    const wchar_t* russian;
};

// clang-format off
inline constexpr OwnTextRow ownTextRows[] = {
    // The command line.
    {L"Command: ", L"Команда: "},
    {L"Unknown command \"%1\".  Press F1 for help.", L"Неизвестная команда \"%1\"."},
    {L"Unknown command \"%1\".  Type HELP for a list.", L"Неизвестная команда \"%1\". Список команд: HELP."},
    {L"** Command not allowed in Paper Space **", L"** Команда недоступна в пространстве листа **"},
    {L"** Command not allowed in Model Tab **", L"** Команда недоступна на вкладке «Модель» **"},
    {L"** %1 command not allowed in block editor. **", L"** Команда %1 недоступна в редакторе блоков. **"},
    {L"** That command may not be invoked transparently **", L"** Эту команду нельзя вызвать прозрачно **"},
    {L"Resuming %1 command.", L"Продолжение команды %1."},

    // Answers that are not taken.
    {L"Invalid point.", L"Недопустимая точка."},
    {L"Invalid option keyword.", L"Недопустимое ключевое слово."},
    {L"Value must be positive and nonzero.", L"Значение должно быть положительным и ненулевым."},
    {L"Value must be nonzero.", L"Значение не должно быть нулевым."},
    {L"Value must be positive.", L"Значение должно быть положительным."},
    {L"Requires numeric distance or second point.", L"Требуется число или вторая точка."},
    {L"Requires numeric distance or two points.", L"Требуется число или две точки."},
    {L"Requires valid numeric angle.", L"Требуется угол, заданный числом."},
    {L"Specify second point: ", L"Вторая точка: "},

    // Message boxes.
    {L"OK", L"OK"},
    {L"Cancel", L"Отмена"},
    {L"Yes", L"Да"},
    {L"No", L"Нет"},
    {L"Answer with one of the buttons: %1.", L"Ответьте одной из кнопок: %1."},

    // UCS.
    {L"Current ucs name:  %1", L"Имя текущей ПСК:  %1"},
    {L"*WORLD*", L"*МИР*"},
    {L"*NO NAME*", L"*БЕЗ ИМЕНИ*"},
    {L"Specify origin of UCS or [Origin/Previous/World/X/Y/Z] <World>: ",
     L"Укажите начало ПСК или [Начало/Предыдущая/Мир/X/Y/Z] <Мир>: "},
    {L"Origin Previous World X Y Z",
     L"Начало Предыдущая Мир X Y Z Origin Previous World _ Origin Previous World X Y Z Origin Previous World"},
    {L"Specify new origin point: ", L"Новое начало координат: "},
    {L"Specify rotation angle about %1 axis <90>: ", L"Угол поворота вокруг оси %1 <90>: "},
    {L"Specify point on X-axis or <Accept>: ", L"Укажите точку на оси X или <Принять>: "},
    {L"Specify point on the XY plane or <Accept>: ", L"Укажите точку на плоскости XY или <Принять>: "},
    {L"Points are collinear.", L"Точки лежат на одной прямой."},
    {L"No previous coordinate system saved.", L"Предыдущей системы координат нет."},

    // VPOINT, DVIEW and PLAN.
    {L"Current view direction:  VIEWDIR=%1", L"Текущее направление взгляда:  VIEWDIR=%1"},
    {L"Specify a view point <keep>: ", L"Укажите точку зрения <не менять>: "},
    {L"Select objects or <use DVIEWBLOCK>: ", L"Выберите объекты или <DVIEWBLOCK>: "},
    {L"Nothing is shown while the view turns; the objects do not matter.",
     L"Пока вид поворачивается, ничего не показывается; выбор объектов не важен."},
    {L"Enter option [TWist]: ", L"Задайте параметр [ПОворот]: "},
    {L"TWist", L"ПОворот TWist _ TWist TWist"},
    {L"Specify view twist angle <%1>: ", L"Угол поворота вида <%1>: "},
    {L"Enter an option [Current ucs/Ucs/World] <Current>: ", L"Задайте параметр [Текущая пск/Пск/Мир] <Текущая>: "},
    {L"Current Ucs World", L"Текущая Пск Мир Current Ucs World _ Current Ucs World Current Ucs World"},
    {L"Enter name of UCS: ", L"Имя ПСК: "},
    {L"Cannot find UCS %1.", L"ПСК %1 не найдена."},

    // SETVAR.
    {L"Enter variable name: ", L"Имя переменной: "},
    {L"Unknown variable name.", L"Неизвестное имя переменной."},
    {L"Enter new value for %1 <%2>: ", L"Новое значение %1 <%2>: "},
    {L"Requires an integer between %1 and %2.", L"Требуется целое число от %1 до %2."},
    {L"Requires numeric value.", L"Требуется число."},
    {L"Cannot set %1 to that value.", L"Переменной %1 нельзя присвоить это значение."},

    // ARX, U, REDO, SAVEAS and PLOT.
    {L"Enter an option [Load/Unload/Commands]: ", L"Задайте параметр [Загрузить/Выгрузить/Команды]: "},
    {L"Load Unload Commands", L"Загрузить Выгрузить Команды Load Unload Commands _ Load Unload Commands Load Unload Commands"},
    {L"Enter ARX file name to load: ", L"Имя загружаемого файла ARX: "},
    {L"Enter ARX file name to unload: ", L"Имя выгружаемого файла ARX: "},
    {L"%1 successfully loaded.", L"Файл %1 загружен."},
    {L"%1 successfully unloaded.", L"Файл %1 выгружен."},
    {L"No module has registered a command.", L"Ни один модуль не зарегистрировал команд."},
    {L"Everything has been undone.", L"Отменено всё."},
    {L"Nothing to redo.", L"Повторять нечего."},
    {L"Save drawing as: ", L"Сохранить чертёж как: "},
    {L"Save drawing as <%1>: ", L"Сохранить чертёж как <%1>: "},
    {L"Yes No", L"Да Нет Yes No _ Yes No Yes No"},
    {L"%1 exists already. Replace it? [Yes/No] <No>: ", L"Файл %1 уже существует. Заменить его? [Да/Нет] <Нет>: "},
    {L"The drawing has changes that are not saved. Give them up? [Yes/No] <No>: ",
     L"В чертеже есть несохранённые изменения. Отказаться от них? [Да/Нет] <Нет>: "},
    {L"saved %1", L"сохранено: %1"},
    {L"the changes of the drawing are not saved, they are kept in %1",
     L"изменения чертежа не сохранены, они остались в файле %1"},
    {L"the changes of the drawing are lost: %1", L"изменения чертежа потеряны: %1"},
    {L"%1 keeps changes that were not saved.", L"В файле %1 остались несохранённые изменения."},
    {L"Plot to file (.png, .pdf or .svg): ", L"Файл для печати (.png, .pdf или .svg): "},
    {L"%1: not drawn: %2", L"%1: не нарисовано: %2"},

    // HELP and the line at a session's start.
    {L"arxhost %1 for DXF drawings: %2SAVEAS, QUIT; HELP lists the rest.",
     L"arxhost %1, чертежи DXF: %2SAVEAS, QUIT; остальное перечислит HELP."},
    {L"a command of a module, group %1", L"команда модуля, группа %1"},
    {L"the same as HELP", L"то же, что HELP"},
    {L"loads or unloads a module", L"загружает или выгружает модуль"},
    {L"twists the view", L"поворачивает вид"},
    {L"lists the commands", L"перечисляет команды"},
    {L"looks straight at a coordinate system's plane", L"вид в плане системы координат"},
    {L"ends the session", L"заканчивает работу"},
    {L"does again what U has undone", L"возвращает отменённое командой U"},
    {L"shows or sets a variable, as its name alone does", L"показывает или задаёт переменную, как и одно её имя"},
    {L"undoes the last command", L"отменяет последнюю команду"},
    {L"sets the user coordinate system", L"задаёт пользовательскую систему координат"},
    {L"sets the direction of view", L"задаёт направление взгляда"},
    {L"saves the drawing as DXF", L"сохраняет чертёж в DXF"},
    {L"draws model space as a picture", L"рисует пространство модели в файл"},

    // Progress.
    {L"Opening", L"Открытие"},
    {L"Saving", L"Сохранение"},
    {L"Plotting", L"Вывод на лист"},

    {L"Press Enter to close the window.", L"Нажмите Enter, чтобы закрыть окно."},

    // Dialogs.
    {L"Dialog: ", L"Диалог: "},
    {L"set ID TEXT, check ID on|off, click ID, select ID TEXT or #N, color ID N, show, close; "
     L"Enter presses OK, ^C cancels",
     L"set НОМЕР ТЕКСТ — ввести, check НОМЕР on|off — флажок, click НОМЕР — нажать, "
     L"select НОМЕР ТЕКСТ или #N — выбрать,\ncolor НОМЕР N — цвет, show — элементы, close — закрыть; "
     L"Enter — ОК, ^C — отмена"},
    {L"edit", L"поле ввода"},
    {L"button", L"кнопка"},
    {L"check", L"флажок"},
    {L"radio", L"переключатель"},
    {L"combo", L"список"},
    {L"label", L"надпись"},
    {L"group", L"рамка"},
    {L"line", L"линия"},
    {L"%1  one of: %2", L"%1  варианты: %2"},
    {L"%1 and %2 more", L"%1 и ещё %2"},
    {L"%1 (top)", L"%1 (сверху)"},
    {L"%1 (bottom)", L"%1 (снизу)"},
    {L"%1 (left)", L"%1 (слева)"},
    {L"%1 (right)", L"%1 (справа)"},
    {L"Say on or off: check %1 on", L"Укажите on или off: check %1 on"},
    {L"Control %1 goes off only when another button of its group is clicked.",
     L"Элемент %1 выключается только нажатием другой кнопки его группы."},
    {L"Control %1 has no item %2.", L"В списке %1 нет пункта %2."},
    {L"for the colour %1", L"для цвета %1"},
    {L"Control %1 is no list of colours.", L"Элемент %1 — не список цветов."},
    {L"Control %1 is an %2, which does not take %3.", L"Элемент %1 — %2, команда %3 к нему не подходит."},
    {L"Control %1 is a %2, which does not take %3.", L"Элемент %1 — %2, команда %3 к нему не подходит."},
    {L"Control %1 is disabled.", L"Элемент %1 недоступен."},
    {L"Say which control: %1 ID", L"Укажите номер элемента: %1 НОМЕР"},
    {L"There is no control %1 in this dialog.", L"В этом диалоге нет элемента %1."},
    {L"A dialog takes set, check, click, select, color, show and close, not \"%1\".",
     L"Диалог понимает set, check, click, select, color, show и close, но не \"%1\"."},
};
// clang-format on
}  // namespace host
