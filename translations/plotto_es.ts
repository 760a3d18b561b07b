<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Plotto</name>
    <message>
        <source>check box</source>
        <translation>casilla de verificación</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>barra de desplazamiento</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Plotto lessons (*.plotto);;All files (*)</source>
        <translation>Lecciones de Plotto (*.plotto);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>That could not be done: %1 (error %2). Nothing else is affected; change what was typed and try again.</source>
        <translation>No se pudo hacer: %1 (error %2). Nada más se ve afectado; cambie lo que escribió e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>No se pudo escribir %1: %2.</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .svg, .pdf or .png.</source>
        <translation>El nombre de archivo %1 no indica qué tipo de archivo escribir: termínelo en .svg, .pdf o .png.</translation>
    </message>
    <message>
        <source>the picture is too large for the memory</source>
        <translation>la imagen es demasiado grande para la memoria</translation>
    </message>
    <message>
        <source>the file could not be made</source>
        <translation>no se pudo crear el archivo</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>You graphing window is compromised.  It will be reset to the defaults.</source>
        <translation>La ventana gráfica está dañada. Se restablecerán los valores predeterminados.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>&amp;Select Function</source>
        <translation>&amp;Seleccionar función</translation>
    </message>
    <message>
        <source>&amp;Plotto!</source>
        <translation>&amp;Plotto!</translation>
    </message>
    <message>
        <source>&amp;Erase Graph</source>
        <translation>&amp;Borrar gráfica</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>&amp;Valores predeterminados</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfica</translation>
    </message>
    <message>
        <source>Window: x from %1 to %2, y from %3 to %4.</source>
        <translation>Ventana: x de %1 a %2, y de %3 a %4.</translation>
    </message>
    <message>
        <source>And %1 more drawings.</source>
        <translation>Y %1 dibujos más.</translation>
    </message>
    <message>
        <source>y = 0 (no function chosen)</source>
        <translation>y = 0 (ninguna función elegida)</translation>
    </message>
    <message>
        <source>&amp;Caption under the graph</source>
        <translation>&amp;Leyenda bajo la gráfica</translation>
    </message>
    <message>
        <source>&amp;Black and white (line styles instead of colours)</source>
        <translation>&amp;Blanco y negro (estilos de línea en lugar de colores)</translation>
    </message>
    <message>
        <source>&amp;Line width:</source>
        <translation>&amp;Grosor de línea:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolución:</translation>
    </message>
    <message>
        <source>Export Graph</source>
        <translation>Exportar gráfica</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg);;PDF document (*.pdf);;PNG picture (*.png)</source>
        <translation>Dibujo SVG (*.svg);;Documento PDF (*.pdf);;Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Type a Function...</source>
        <translation>Escribir una &amp;función...</translation>
    </message>
    <message>
        <source>&amp;Type...</source>
        <translation>&amp;Escribir...</translation>
    </message>
    <message>
        <source>&amp;Projector Mode</source>
        <translation>Modo &amp;proyector</translation>
    </message>
    <message>
        <source>&amp;Hear the Curve</source>
        <translation>&amp;Oír la curva</translation>
    </message>
    <message>
        <source>&amp;Export Graph...</source>
        <translation>E&amp;xportar gráfica...</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Pr&amp;int Preview...</source>
        <translation>&amp;Vista previa de impresión...</translation>
    </message>
    <message>
        <source>&amp;Add This Screen to the Lesson</source>
        <translation>&amp;Añadir esta pantalla a la lección</translation>
    </message>
    <message>
        <source>&amp;Open Lesson...</source>
        <translation>Abrir le&amp;cción...</translation>
    </message>
    <message>
        <source>&amp;Save Lesson...</source>
        <translation>&amp;Guardar lección...</translation>
    </message>
    <message>
        <source>Export Lesson as &amp;Worksheet...</source>
        <translation>Exportar lección como &amp;hoja de trabajo...</translation>
    </message>
    <message>
        <source>&amp;Next Step</source>
        <translation>Paso &amp;siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious Step</source>
        <translation>Paso a&amp;nterior</translation>
    </message>
    <message>
        <source>Nothing is drawn to hear yet.</source>
        <translation>Todavía no hay nada dibujado que escuchar.</translation>
    </message>
    <message>
        <source>No sound device: the curve cannot be heard here. Left and Right still walk along it.</source>
        <translation>No hay dispositivo de sonido: aquí no se puede oír la curva. Izquierda y Derecha siguen recorriéndola.</translation>
    </message>
    <message>
        <source>, above the window</source>
        <translation>, por encima de la ventana</translation>
    </message>
    <message>
        <source>, below the window</source>
        <translation>, por debajo de la ventana</translation>
    </message>
    <message>
        <source>Nothing is drawn to walk along yet.</source>
        <translation>Todavía no hay nada dibujado que recorrer.</translation>
    </message>
    <message>
        <source>Curve %1 of %2 has no points to walk along.</source>
        <translation>La curva %1 de %2 no tiene puntos que recorrer.</translation>
    </message>
    <message>
        <source>Curve %1 of %2: %3. </source>
        <translation>Curva %1 de %2: %3. </translation>
    </message>
    <message>
        <source>No root, turn or axis crossing on this curve.</source>
        <translation>Ninguna raíz, extremo ni corte con los ejes en esta curva.</translation>
    </message>
    <message>
        <source>the screen has no function &apos;%1&apos;</source>
        <translation>la pantalla no tiene la función «%1»</translation>
    </message>
    <message>
        <source>a typed function names every part: %1</source>
        <translation>una función escrita nombra cada parte: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a family number from 1 to %2</source>
        <translation>«%1» es un número de familia de 1 a %2</translation>
    </message>
    <message>
        <source>the function &apos;%1&apos; cannot be taken: %2</source>
        <translation>no se puede tomar la función «%1»: %2</translation>
    </message>
    <message>
        <source>Typed function</source>
        <translation>Función escrita</translation>
    </message>
    <message>
        <source>Type a function y = f(x)</source>
        <translation>Escriba una función y = f(x)</translation>
    </message>
    <message>
        <source>This screen does not graph a function y = f(x).</source>
        <translation>Esta pantalla no grafica una función y = f(x).</translation>
    </message>
    <message>
        <source>cannot be computed: the numbers are too large</source>
        <translation>no se puede calcular: los números son demasiado grandes</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>O&amp;riginal Window</source>
        <translation>Ventana &amp;original</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source> Some drawings made before cannot be drawn again at a new window: press the screen&apos;s buttons to draw them here.</source>
        <translation> Algunos dibujos hechos antes no se pueden volver a dibujar en una ventana nueva: pulse los botones de la pantalla para dibujarlos aquí.</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers: type them first.</source>
        <translation>Los límites de la ventana no son números: escríbalos primero.</translation>
    </message>
    <message>
        <source>No window before this one.</source>
        <translation>No hay ninguna ventana antes de esta.</translation>
    </message>
    <message>
        <source>No window after this one.</source>
        <translation>No hay ninguna ventana después de esta.</translation>
    </message>
    <message>
        <source>Use %1, the coefficients %2, the numbers e and pi, + - * / and ^ (a power, taken before a minus sign: -x^2 is -(x^2)). Write every product with *, as 2*x. Functions: %3.</source>
        <translation>Use %1, los coeficientes %2, los números e y pi, + - * / y ^ (una potencia, que se calcula antes que un signo menos: -x^2 es -(x^2)). Escriba cada producto con *, como 2*x. Funciones: %3.</translation>
    </message>
    <message>
        <source>Examples...</source>
        <translation>Ejemplos...</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Error against the number of steps, log-log</source>
        <translation>Error frente al número de pasos, log-log</translation>
    </message>
    <message>
        <source>Re&amp;compute</source>
        <translation>Re&amp;calcular</translation>
    </message>
    <message>
        <source>slope -%1</source>
        <translation>pendiente -%1</translation>
    </message>
    <message>
        <source>Con&amp;vergence</source>
        <translation>&amp;Convergencia</translation>
    </message>
    <message>
        <source>Convergence &amp;Table...</source>
        <translation>&amp;Tabla de convergencia...</translation>
    </message>
    <message>
        <source>Animate Classes of Functions</source>
        <translation>Animar clases de funciones</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>Continuous/Steps</source>
        <translation>Continua/Pasos</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Steps+Erase</source>
        <translation>Pasos+Borrar</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Continuous+Erase</source>
        <translation>Continua+Borrar</translation>
    </message>
    <message>
        <source>Variable Range</source>
        <translation>Rango de la variable</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Fin:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Pasos:</translation>
    </message>
    <message>
        <source>Which Variable?</source>
        <translation>¿Qué variable?</translation>
    </message>
    <message>
        <source>Animation frame</source>
        <translation>Fotograma de la animación</translation>
    </message>
    <message>
        <source>Select Variable(s)</source>
        <translation>Elija variable(s)</translation>
    </message>
    <message>
        <source>&amp;Animate It!</source>
        <translation>&amp;Animar</translation>
    </message>
    <message>
        <source>Erase Graph</source>
        <translation>Borrar gráfica</translation>
    </message>
    <message>
        <source>Erase Graph, animation panel</source>
        <translation>Borrar gráfica, panel de animación</translation>
    </message>
    <message>
        <source>OK to Click Animate</source>
        <translation>Listo para animar</translation>
    </message>
    <message>
        <source>Use Scroll Bar Above</source>
        <translation>Use la barra de arriba</translation>
    </message>
    <message>
        <source>Graph a Function</source>
        <translation>Graficar una función</translation>
    </message>
    <message>
        <source>Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change.  You may also animate the change.</source>
        <translation>Elija una función del menú desplegable. Puede cambiar el valor de cualquiera de las variables, de A a E. Al hacer clic en [Plotto!] se grafica la función. Puede cambiar cualquier valor y graficar de nuevo para ver el cambio. También puede animar el cambio.</translation>
    </message>
    <message>
        <source>Animate It!</source>
        <translation>Animar</translation>
    </message>
    <message>
        <source>Animate the function selected by checking one or more variables at the right, selecting the range of the variable, and clicking [Animate It!]</source>
        <translation>Anime la función elegida marcando una o más variables a la derecha, eligiendo el rango de la variable y haciendo clic en [Animar].</translation>
    </message>
    <message>
        <source>Make conjectures about coefficients</source>
        <translation>Formular conjeturas sobre los coeficientes</translation>
    </message>
    <message>
        <source>You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each coefficient changes the graph.</source>
        <translation>Puede observar los cambios que cada coeficiente produce en la gráfica. Formule conjeturas sobre qué cambia cada coeficiente en la gráfica.</translation>
    </message>
    <message>
        <source>Left and Right Clicking Labels</source>
        <translation>Clic izquierdo y derecho en las etiquetas</translation>
    </message>
    <message>
        <source>Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to increase and right clicking to decrease.</source>
        <translation>Al hacer clic en las etiquetas de los coeficientes, estos aumentan o disminuyen. Pruebe el clic izquierdo para aumentar y el derecho para disminuir.</translation>
    </message>
    <message>
        <source>Change the Graphing Window</source>
        <translation>Cambiar la ventana gráfica</translation>
    </message>
    <message>
        <source>Clicking on the &lt; or &gt; labels next to the graphing window ranges will increase or decrease them by one also.</source>
        <translation>Al hacer clic en las etiquetas &lt; o &gt; junto a los límites de la ventana, también aumentan o disminuyen en uno.</translation>
    </message>
    <message>
        <source>Clicking Labels</source>
        <translation>Clic en las etiquetas</translation>
    </message>
    <message>
        <source>Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks.</source>
        <translation>Pruebe a hacer clic en otras etiquetas. La mayoría aumentan o disminuyen en uno con el clic izquierdo o derecho.</translation>
    </message>
    <message>
        <source>Window limit changes &lt; , &gt;</source>
        <translation>Cambiar los límites de la ventana &lt; , &gt;</translation>
    </message>
    <message>
        <source>Notice the &lt; and &gt; green labels next to the window limits.  Clicking on the Arrows will increase or decrease the window limit by one.  Double clicking will increase or decrease it by 5.</source>
        <translation>Observe las etiquetas verdes &lt; y &gt; junto a los límites de la ventana. Un clic en las flechas aumenta o disminuye el límite en uno. Un doble clic lo aumenta o disminuye en 5.</translation>
    </message>
    <message>
        <source>Animating %1 of %2 from %3 to %4 in %5 steps, %6.</source>
        <translation>Animando %1 de %2 de %3 a %4 en %5 pasos, %6.</translation>
    </message>
    <message>
        <source>no coefficient</source>
        <translation>ningún coeficiente</translation>
    </message>
    <message>
        <source>Frame value %1; %2.</source>
        <translation>Valor del fotograma %1; %2.</translation>
    </message>
    <message>
        <source>Area Between Two Curves</source>
        <translation>Área entre dos curvas</translation>
    </message>
    <message>
        <source>Left a</source>
        <translation>Izquierda a</translation>
    </message>
    <message>
        <source>Right b</source>
        <translation>Derecha b</translation>
    </message>
    <message>
        <source>Strips n</source>
        <translation>Franjas n</translation>
    </message>
    <message>
        <source>&amp;Double Strips</source>
        <translation>&amp;Duplicar franjas</translation>
    </message>
    <message>
        <source>Find &amp;Crossings</source>
        <translation>Hallar &amp;cortes</translation>
    </message>
    <message>
        <source>Find where f and g cross in [a, b], shade the region and sum the strips</source>
        <translation>Halla dónde se cortan f y g en [a, b], sombrea la región y suma las franjas</translation>
    </message>
    <message>
        <source>Areas by the strip rules</source>
        <translation>Áreas por las reglas de franjas</translation>
    </message>
    <message>
        <source>Convergence of the signed area</source>
        <translation>Convergencia del área con signo</translation>
    </message>
    <message>
        <source>Limit (integral)</source>
        <translation>Límite (integral)</translation>
    </message>
    <message>
        <source>Shaded light cyan where f is above g, yellow where g is above f.</source>
        <translation>Sombreado cian claro donde f está sobre g, amarillo donde g está sobre f.</translation>
    </message>
    <message>
        <source>Type a number in each of the boxes Left a and Right b.</source>
        <translation>Escriba un número en cada una de las casillas Izquierda a y Derecha b.</translation>
    </message>
    <message>
        <source>The interval from a to b is too wide for the computer&apos;s numbers.</source>
        <translation>El intervalo de a a b es demasiado ancho para los números del ordenador.</translation>
    </message>
    <message>
        <source>Left a must be less than Right b.</source>
        <translation>Izquierda a debe ser menor que Derecha b.</translation>
    </message>
    <message>
        <source>The number of strips n must be a whole number from 1 to %1.</source>
        <translation>El número de franjas n debe ser un entero de 1 a %1.</translation>
    </message>
    <message>
        <source>Type g(x) in its box (for example x + 2).</source>
        <translation>Escriba g(x) en su casilla (por ejemplo x + 2).</translation>
    </message>
    <message>
        <source>the region between %1 and %2 from x = %3 to %4</source>
        <translation>la región entre %1 y %2 de x = %3 a %4</translation>
    </message>
    <message>
        <source>and %1 more (Ctrl+C copies them all)</source>
        <translation>y %1 más (Ctrl+C los copia todos)</translation>
    </message>
    <message>
        <source>f and g do not cross in [a, b].</source>
        <translation>f y g no se cortan en [a, b].</translation>
    </message>
    <message>
        <source>n odd</source>
        <translation>n impar</translation>
    </message>
    <message>
        <source>Rule (n = %1)</source>
        <translation>Regla (n = %1)</translation>
    </message>
    <message>
        <source>Signed area %1, unsigned area %2 from x = %3 to %4 (adaptive Gauss-Kronrod, split at the crossings; error below %5).</source>
        <translation>Área con signo %1, área sin signo %2 de x = %3 a %4 (Gauss-Kronrod adaptativo, dividido en los cortes; error menor que %5).</translation>
    </message>
    <message>
        <source>No area: %1, so the area between the curves does not exist on [a, b].</source>
        <translation>Sin área: %1, así que el área entre las curvas no existe en [a, b].</translation>
    </message>
    <message>
        <source>the left end a</source>
        <translation>el extremo izquierdo a</translation>
    </message>
    <message>
        <source>the right end b</source>
        <translation>el extremo derecho b</translation>
    </message>
    <message>
        <source>Area between f, %1, and g(x) = %2 from a = %3 to b = %4 with n = %5 strips.</source>
        <translation>Área entre f, %1, y g(x) = %2 de a = %3 a b = %4 con n = %5 franjas.</translation>
    </message>
    <message>
        <source>No crossings.</source>
        <translation>Sin cortes.</translation>
    </message>
    <message>
        <source>%1: signed %2, unsigned %3.</source>
        <translation>%1: con signo %2, sin signo %3.</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>¿Qué es esto?</translation>
    </message>
    <message>
        <source>This screen finds the area between two curves f and g from x = a to x = b: where they cross, the region between them, and how sums of thin strips close in on the area.</source>
        <translation>Esta pantalla halla el área entre dos curvas f y g de x = a a x = b: dónde se cortan, la región entre ellas y cómo las sumas de franjas delgadas se acercan al área.</translation>
    </message>
    <message>
        <source>Setting up</source>
        <translation>Preparación</translation>
    </message>
    <message>
        <source>f is the screen&apos;s function: select it from the menu and choose A to E, or type one with Tools, Type a Function.  Type g(x) in its box (it may use A to E too).  Type a and b, or click their green labels to move them by one (left button up, right button down).</source>
        <translation>f es la función de la pantalla: elíjala del menú y elija de A a E, o escriba una con Herramientas, Escribir una función. Escriba g(x) en su casilla (también puede usar de A a E). Escriba a y b, o haga clic en sus etiquetas verdes para moverlos en uno (botón izquierdo sube, derecho baja).</translation>
    </message>
    <message>
        <source>[Find Crossings]</source>
        <translation>[Hallar cortes]</translation>
    </message>
    <message>
        <source>Lists each x in [a, b] where f = g, found to the computer&apos;s full precision, and shades the region: light cyan where f is above g, yellow where g is above f.  Where a curve is not defined somewhere in [a, b] the screen says where, and gives no area.</source>
        <translation>Lista cada x de [a, b] donde f = g, hallado con toda la precisión del ordenador, y sombrea la región: cian claro donde f está sobre g, amarillo donde g está sobre f. Donde una curva no está definida en algún punto de [a, b], la pantalla dice dónde y no da ningún área.</translation>
    </message>
    <message>
        <source>The strips</source>
        <translation>Las franjas</translation>
    </message>
    <message>
        <source>The grid sums n strips by five rules: the signed area of f - g (parts where g is above count as negative) and the unsigned area of |f - g|, with the limit from adaptive integration in the last row.  [Double Strips] doubles n; Convergence, Convergence Table shows each rule&apos;s error as n doubles.</source>
        <translation>La tabla suma n franjas con cinco reglas: el área con signo de f - g (las partes donde g está encima cuentan como negativas) y el área sin signo de |f - g|, con el límite de la integración adaptativa en la última fila. [Duplicar franjas] duplica n; Convergencia, Tabla de convergencia muestra el error de cada regla al duplicarse n.</translation>
    </message>
    <message>
        <source>Graphing Classes of Functions</source>
        <translation>Graficar clases de funciones</translation>
    </message>
    <message>
        <source>How To Use This</source>
        <translation>Cómo se usa</translation>
    </message>
    <message>
        <source>This screen allows you to graph various functions.  Select the function you like from the menu.  Enter the values for A, B, C, D, E, then click on [Plotto].</source>
        <translation>Esta pantalla permite graficar varias funciones. Elija la función que desee del menú. Introduzca los valores de A, B, C, D, E y haga clic en [Plotto].</translation>
    </message>
    <message>
        <source>Making Changes</source>
        <translation>Hacer cambios</translation>
    </message>
    <message>
        <source>You may change the variables then graph again to see the changes to the graph.  You will not erase the graph when changing values of variables or selecting new functions.</source>
        <translation>Puede cambiar las variables y graficar de nuevo para ver los cambios en la gráfica. La gráfica no se borra al cambiar los valores de las variables ni al elegir funciones nuevas.</translation>
    </message>
    <message>
        <source>Quick change hints</source>
        <translation>Consejos para cambios rápidos</translation>
    </message>
    <message>
        <source>You may also change the values of the variables by clicking on the labels.  Left clicks increase the value by one, a right click decreases the value by one.</source>
        <translation>También puede cambiar los valores de las variables haciendo clic en las etiquetas. El clic izquierdo aumenta el valor en uno y el derecho lo disminuye en uno.</translation>
    </message>
    <message>
        <source>Change the Graphing Window?</source>
        <translation>¿Cambiar la ventana gráfica?</translation>
    </message>
    <message>
        <source>You can click on [Zoom In] to shrink the graphing area to 1/4 by reducing Xmin, Xmax, Ymin, and Ymax in half.  You may click in the values at the end of the axes to change them to any values you wish.</source>
        <translation>Puede hacer clic en [Acercar] para reducir el área gráfica a 1/4, dividiendo Xmín, Xmáx, Ymín e Ymáx entre dos. Puede hacer clic en los valores de los extremos de los ejes para cambiarlos a los que desee.</translation>
    </message>
    <message>
        <source>Start( _____, _____ )</source>
        <translation>Inicio( _____, _____ )</translation>
    </message>
    <message>
        <source>Type the rates dy and dx</source>
        <translation>Escriba las razones dy y dx</translation>
    </message>
    <message>
        <source>x and y</source>
        <translation>x e y</translation>
    </message>
    <message>
        <source> With dx = 1 the field is the slope field of dy/dx = dy.</source>
        <translation> Con dx = 1 el campo es el campo direccional de dy/dx = dy.</translation>
    </message>
    <message>
        <source>Enter x coordinate:</source>
        <translation>Coordenada x:</translation>
    </message>
    <message>
        <source>Enter y coordinate:</source>
        <translation>Coordenada y:</translation>
    </message>
    <message>
        <source>Delta x=</source>
        <translation>Delta x=</translation>
    </message>
    <message>
        <source>Delta Vmag=</source>
        <translation>Delta Vmag=</translation>
    </message>
    <message>
        <source>In the curve option, Euler is the only method for calculating points.</source>
        <translation>En la opción de curva, Euler es el único método para calcular los puntos.</translation>
    </message>
    <message>
        <source>Sorry</source>
        <translation>Lo sentimos</translation>
    </message>
    <message>
        <source>The maximum for the points graphed is 10000</source>
        <translation>El máximo de puntos graficados es 10000</translation>
    </message>
    <message>
        <source>Max Points Met-Plus</source>
        <translation>Máximo de puntos alcanzado</translation>
    </message>
    <message>
        <source>Slope Fields, Integral Curves, or Approximations</source>
        <translation>Campos direccionales, curvas integrales o aproximaciones</translation>
    </message>
    <message>
        <source>This screen allows you to see Slope Fields, see integral curves, or to use various methods to find approximations.</source>
        <translation>Esta pantalla permite ver campos direccionales, ver curvas integrales o usar varios métodos para hallar aproximaciones.</translation>
    </message>
    <message>
        <source>Graph Slope Fields</source>
        <translation>Graficar campos direccionales</translation>
    </message>
    <message>
        <source>Select dx and dy functions from the menus.  Select the values of the coefficients.  Click on [Graph Slope Fields] to see the slopes at all the integral values of the -10 by 10 screen.  You may resize the screen.  The vectors start at the integers so you can determine the direction from where it is supposed to start.</source>
        <translation>Elija las funciones dx y dy de los menús. Elija los valores de los coeficientes. Haga clic en [Graficar campos direccionales] para ver las pendientes en todos los puntos enteros de la pantalla de -10 a 10. Puede cambiar el tamaño de la pantalla. Los vectores empiezan en los enteros, de modo que puede ver la dirección desde donde se supone que empiezan.</translation>
    </message>
    <message>
        <source>Left or Right Click in the Graphing screen</source>
        <translation>Clic izquierdo o derecho en la zona gráfica</translation>
    </message>
    <message>
        <source>Clicking on the graphing part of the screen will start the plot of an integral curve or can be used to find the endpoint approximation from that initial point.  The graph will follow the slope field smoothly or acording to the Delta x from left to right.  If the curve leaves the area, the curve will not come back onto the screen.  If you right click the slope field will go in the opposite direction.  You may select the number of points to plot and the change in x(Delta x) for the Method used in the computation of approximation.  The number of points and Delta x are used by the Plotto button also.</source>
        <translation>Hacer clic en la parte gráfica de la pantalla inicia el trazado de una curva integral o sirve para hallar la aproximación del punto final desde ese punto inicial. La gráfica sigue el campo direccional de forma suave o según Delta x, de izquierda a derecha. Si la curva sale del área, no vuelve a la pantalla. Con el clic derecho, el campo se recorre en sentido contrario. Puede elegir el número de puntos que trazar y el cambio en x (Delta x) para el método usado en el cálculo de la aproximación. El número de puntos y Delta x también los usa el botón Plotto.</translation>
    </message>
    <message>
        <source>Purpose? - Find an endpoint or See the curve</source>
        <translation>¿Propósito? - Hallar un punto final o ver la curva</translation>
    </message>
    <message>
        <source>The purpose may be confusing to some.  The best way to deal with this is a circle dy/dx = -x/y.  If you started at (4,3) and wanted a y value at x=6 using 3 steps, you would get a value.  If you followed the slope field you shouldn&apos;t get there since the radius is 5.  The circle would not have an x=6.  Finding the approximation is achieved since you do not hit a vertical slope and delta x stays positive making the slope change orientation(it goes up-right instead of down-left).  This should graph a &apos;V&apos; or non-differential point.  The smooth curve is achieved by using dy and dx separately in a vector plot.  The delta x is no longer the change in x.  Delta x is the length of each the vector used in plotting the curve.</source>
        <translation>El propósito puede confundir a algunos. La mejor manera de verlo es con un círculo dy/dx = -x/y. Si empieza en (4,3) y quiere un valor de y en x=6 con 3 pasos, obtendrá un valor. Si siguiera el campo direccional no debería llegar allí, ya que el radio es 5. El círculo no tendría x=6. La aproximación se logra porque no se encuentra una pendiente vertical y delta x sigue siendo positivo, lo que hace cambiar la orientación de la pendiente (va hacia arriba a la derecha en lugar de abajo a la izquierda). Esto debería dibujar una «V» o un punto no derivable. La curva suave se logra usando dy y dx por separado en un trazado vectorial. Delta x ya no es el cambio en x. Delta x es la longitud de cada vector usado para trazar la curva.</translation>
    </message>
    <message>
        <source>I want an exact point to Start?</source>
        <translation>¿Quiero empezar en un punto exacto?</translation>
    </message>
    <message>
        <source>You may not be able to move the cursor to the point you want.  You may click on the Start(___,___) label box to enter your points.  As soon as you enter the y coordinate the graph will show your plot and the endpoint will show the final value.  If your plot goes off the graph window the program at that point for your endpoint.  Change the window so it will fit.</source>
        <translation>Puede que no consiga mover el cursor al punto que quiere. Puede hacer clic en la etiqueta Inicio(___,___) para introducir sus puntos. En cuanto introduzca la coordenada y, la gráfica mostrará su trazado y el punto final mostrará el valor final. Si su trazado sale de la ventana gráfica, el programa se detiene en ese punto para su punto final. Cambie la ventana para que quepa.</translation>
    </message>
    <message>
        <source>Plotto!</source>
        <translation>Plotto!</translation>
    </message>
    <message>
        <source>Clicking on [Plotto] will set in motion the plotting of the integral curves from 20 points on the x-axis and 20 points on the y-axis.  These would be at the integer points for the default -10 by 10 screen.  You may shift these points by entering a value in the Horizontal Shift or Vertical Shift boxes at the right.  You may also make the plotting Bi-Directional by checking that box.  You may have to wait for the screen to change since it will graph all at once.</source>
        <translation>Al hacer clic en [Plotto] se inicia el trazado de las curvas integrales desde 20 puntos del eje x y 20 puntos del eje y. Con la pantalla predeterminada de -10 a 10 estos están en los puntos enteros. Puede desplazar estos puntos escribiendo un valor en las casillas Desplazamiento horizontal o Desplazamiento vertical de la derecha. También puede hacer el trazado bidireccional marcando esa casilla. Puede que tenga que esperar a que cambie la pantalla, ya que lo grafica todo de una vez.</translation>
    </message>
    <message>
        <source>Typed rates: %1; %2.</source>
        <translation>Razones escritas: %1; %2.</translation>
    </message>
    <message>
        <source>Rates: %1, that is dy = %2; %3, that is dx = %4.</source>
        <translation>Razones: %1, es decir dy = %2; %3, es decir dx = %4.</translation>
    </message>
    <message>
        <source>Purpose: approximation by %1, %2 %3.</source>
        <translation>Propósito: aproximación por %1, %2 %3.</translation>
    </message>
    <message>
        <source>Purpose: smooth curves.</source>
        <translation>Propósito: curvas suaves.</translation>
    </message>
    <message>
        <source>EndPt: the curve stops where dy/dx is undefined</source>
        <translation>Punto final: la curva se detiene donde dy/dx no está definida</translation>
    </message>
    <message>
        <source>the slope field</source>
        <translation>el campo direccional</translation>
    </message>
    <message>
        <source>an integral curve</source>
        <translation>una curva integral</translation>
    </message>
    <message>
        <source>Slope Fields</source>
        <translation>Campos direccionales</translation>
    </message>
    <message>
        <source>dy = Ax + By + C</source>
        <translation>dy = Ax + By + C</translation>
    </message>
    <message>
        <source>dx = Dx + Ey + F</source>
        <translation>dx = Dx + Ey + F</translation>
    </message>
    <message>
        <source>Click in the graph to generate an integral curve.</source>
        <translation>Haga clic en la gráfica para generar una curva integral.</translation>
    </message>
    <message>
        <source>Start (____, ____)</source>
        <translation>Inicio (____, ____)</translation>
    </message>
    <message>
        <source>Endpt ( ____, ____ )</source>
        <translation>Punto final ( ____, ____ )</translation>
    </message>
    <message>
        <source>&amp;Show Slope Field</source>
        <translation>&amp;Mostrar campo direccional</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Propósito</translation>
    </message>
    <message>
        <source>Find &amp;Appoximation</source>
        <translation>Hallar &amp;aproximación</translation>
    </message>
    <message>
        <source>See smooth &amp;curve</source>
        <translation>Ver &amp;curva suave</translation>
    </message>
    <message>
        <source>Method Options</source>
        <translation>Opciones de método</translation>
    </message>
    <message>
        <source>Runga-Kutta &amp;4</source>
        <translation>Runge-Kutta &amp;4</translation>
    </message>
    <message>
        <source>Runga-Kutta &amp;2</source>
        <translation>Runge-Kutta &amp;2</translation>
    </message>
    <message>
        <source>Euler&apos;s Metho&amp;d</source>
        <translation>Método de &amp;Euler</translation>
    </message>
    <message>
        <source>Plotto Options</source>
        <translation>Opciones de Plotto</translation>
    </message>
    <message>
        <source>Horizontal Shift</source>
        <translation>Desplazamiento horizontal</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Desplazamiento vertical</translation>
    </message>
    <message>
        <source>Bi-directional</source>
        <translation>Bidireccional</translation>
    </message>
    <message>
        <source>Number of Curve Points</source>
        <translation>Número de puntos de la curva</translation>
    </message>
    <message>
        <source>Maximum of 10000 points</source>
        <translation>Máximo de 10000 puntos</translation>
    </message>
    <message>
        <source>Delta x = </source>
        <translation>Delta x = </translation>
    </message>
    <message>
        <source>This value is used in Euler&apos;s Method to find succeeding points.</source>
        <translation>Este valor se usa en el método de Euler para hallar los puntos siguientes.</translation>
    </message>
    <message>
        <source>Select d&amp;y - Function</source>
        <translation>Seleccionar función d&amp;y</translation>
    </message>
    <message>
        <source>Select d&amp;x - Function</source>
        <translation>Seleccionar función d&amp;x</translation>
    </message>
    <message>
        <source>Convergence of the step methods</source>
        <translation>Convergencia de los métodos de paso</translation>
    </message>
    <message>
        <source>Start x</source>
        <translation>x inicial</translation>
    </message>
    <message>
        <source>Start y</source>
        <translation>y inicial</translation>
    </message>
    <message>
        <source>End x</source>
        <translation>x final</translation>
    </message>
    <message>
        <source>Step h</source>
        <translation>Paso h</translation>
    </message>
    <message>
        <source>Xmin</source>
        <translation>Xmín</translation>
    </message>
    <message>
        <source>Xmax</source>
        <translation>Xmáx</translation>
    </message>
    <message>
        <source>Ymin</source>
        <translation>Ymín</translation>
    </message>
    <message>
        <source>Ymax</source>
        <translation>Ymáx</translation>
    </message>
    <message>
        <source>Limits by Epsilon and Delta</source>
        <translation>Límites con épsilon y delta</translation>
    </message>
    <message>
        <source>ε and δ</source>
        <translation>ε y δ</translation>
    </message>
    <message>
        <source>Find &amp;L</source>
        <translation>Hallar &amp;L</translation>
    </message>
    <message>
        <source>Fin&amp;d δ</source>
        <translation>Hallar &amp;δ</translation>
    </message>
    <message>
        <source>&amp;Halve ε</source>
        <translation>&amp;Dividir ε entre 2</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Epsilon and delta</source>
        <translation>Épsilon y delta</translation>
    </message>
    <message>
        <source>Type a number for a.</source>
        <translation>Escriba un número para a.</translation>
    </message>
    <message>
        <source>   (the window&apos;s edge)</source>
        <translation>   (el borde de la ventana)</translation>
    </message>
    <message>
        <source>near a</source>
        <translation>cerca de a</translation>
    </message>
    <message>
        <source>(none in the window)</source>
        <translation>(ninguno en la ventana)</translation>
    </message>
    <message>
        <source>the band L = %1 ± ε = %2 about a = %3 for %4</source>
        <translation>la banda L = %1 ± ε = %2 alrededor de a = %3 para %4</translation>
    </message>
    <message>
        <source>the point a</source>
        <translation>el punto a</translation>
    </message>
    <message>
        <source>This screen shows what the limit of f(x) as x approaches a means: for every ε &gt; 0 there is a δ &gt; 0 such that every x with 0 &lt; |x - a| &lt; δ has |f(x) - L| &lt; ε.  You choose ε; the screen finds the largest δ.</source>
        <translation>Esta pantalla muestra qué significa el límite de f(x) cuando x tiende a a: para todo ε &gt; 0 existe un δ &gt; 0 tal que todo x con 0 &lt; |x - a| &lt; δ cumple |f(x) - L| &lt; ε. Usted elige ε; la pantalla halla el mayor δ.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function (for instance sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) or sin(1/x)).  Type the point a (or click the green label a =: left button up by one, right button down) and the limit L, or press [Find L]: it looks at f(a - h) and f(a + h) as h halves forty times, down to about 1e-12 times max(1, |a|), and says whether both sides settle on one value (six values in a row agreeing to 1e-5), settle on different values, grow without bound or do not settle.</source>
        <translation>Elija una función del menú y elija de A a E, o escriba una con Herramientas, Escribir una función (por ejemplo sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) o sin(1/x)). Escriba el punto a (o haga clic en la etiqueta verde a =: botón izquierdo sube uno, derecho baja) y el límite L, o pulse [Hallar L]: examina f(a - h) y f(a + h) mientras h se divide entre dos cuarenta veces, hasta unas 1e-12 veces max(1, |a|), y dice si ambos lados se estabilizan en un valor (seis valores seguidos que coinciden hasta 1e-5), se estabilizan en valores distintos, crecen sin cota o no se estabilizan.</translation>
    </message>
    <message>
        <source>[Find δ] and [Halve ε]</source>
        <translation>[Hallar δ] y [Dividir ε entre 2]</translation>
    </message>
    <message>
        <source>[Find δ] shades the band L ± ε in green and the band a ± δ in cyan, with the largest δ for which the graph stays in the green band, and marks in red where the graph first leaves it.  [Halve ε] halves ε and looks again; clicking the green label ε = halves it with the left button and doubles it with the right.  Each ε adds a row to the table: ε, δ, δ/ε and where the graph leaves the band, so that you can watch δ shrink with ε.  Where points as close to a as the search looks leave the band, the screen says that no δ works for that ε: f has no limit at a, or L is not it.</source>
        <translation>[Hallar δ] sombrea en verde la banda L ± ε y en cian la banda a ± δ, con el mayor δ para el que la gráfica permanece en la banda verde, y marca en rojo dónde la gráfica la abandona por primera vez. [Dividir ε entre 2] divide ε entre dos y vuelve a buscar; al hacer clic en la etiqueta verde ε = se divide entre dos con el botón izquierdo y se duplica con el derecho. Cada ε añade una fila a la tabla: ε, δ, δ/ε y dónde la gráfica sale de la banda, para que vea cómo δ se reduce con ε. Donde puntos tan cercanos a a como mira la búsqueda salen de la banda, la pantalla dice que ningún δ sirve para ese ε: f no tiene límite en a, o L no lo es.</translation>
    </message>
    <message>
        <source>How δ is found</source>
        <translation>Cómo se halla δ</translation>
    </message>
    <message>
        <source>This is a numerical search, not a proof.  On each side of a, f is checked at about 7000 points: a dense cluster from 1e-13 times max(1, |a|), 64 points between each distance and its double, and 4096 evenly spread to the window&apos;s edge.  Between the last point inside the band and the first outside, the search checks sixteen pieces again and again until δ is known to 1e-12 of itself.  Points where f is undefined are not in its domain and are left out.  A narrow spike between samples can be missed.</source>
        <translation>Es una búsqueda numérica, no una demostración. A cada lado de a, f se evalúa en unos 7000 puntos: un grupo denso desde 1e-13 veces max(1, |a|), 64 puntos entre cada distancia y su doble, y 4096 repartidos por igual hasta el borde de la ventana. Entre el último punto dentro de la banda y el primero fuera, la búsqueda revisa dieciséis trozos una y otra vez hasta conocer δ con una precisión de 1e-12 de sí mismo. Los puntos donde f no está definida no están en su dominio y se omiten. Un pico estrecho entre muestras puede pasar inadvertido.</translation>
    </message>
    <message>
        <source>Holes and dots</source>
        <translation>Huecos y puntos</translation>
    </message>
    <message>
        <source>A filled dot marks (a, f(a)) where f is defined at a; an open circle marks (a, L) where f(a) is undefined or differs from L.</source>
        <translation>Un punto relleno marca (a, f(a)) donde f está definida en a; un círculo vacío marca (a, L) donde f(a) no está definida o difiere de L.</translation>
    </message>
    <message>
        <source>The Mean Value Theorem</source>
        <translation>El teorema del valor medio</translation>
    </message>
    <message>
        <source>MVT Set Up</source>
        <translation>Preparación del TVM</translation>
    </message>
    <message>
        <source>Left endpt</source>
        <translation>Extremo izq.</translation>
    </message>
    <message>
        <source>Right endpt</source>
        <translation>Extremo der.</translation>
    </message>
    <message>
        <source>Apply to Graph</source>
        <translation>Aplicar a la gráfica</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Find c</source>
        <translation>Hallar c</translation>
    </message>
    <message>
        <source>Use the Slider</source>
        <translation>Use el deslizador</translation>
    </message>
    <message>
        <source>Slope = </source>
        <translation>Pendiente = </translation>
    </message>
    <message>
        <source>Values of c</source>
        <translation>Valores de c</translation>
    </message>
    <message>
        <source>the secant over [a, b]</source>
        <translation>la secante sobre [a, b]</translation>
    </message>
    <message>
        <source>ERROR!  0/0</source>
        <translation>¡ERROR!  0/0</translation>
    </message>
    <message>
        <source>Enter an x value to check</source>
        <translation>Escriba un valor de x para comprobar</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>Escriba X</translation>
    </message>
    <message>
        <source>the points c</source>
        <translation>los puntos c</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the Mean Value Theorem.  Most of the function selections are continuous so it may be applied to most of them, at least you can define a continuous interval.</source>
        <translation>Esta pantalla sirve para demostrar el teorema del valor medio. La mayoría de las funciones que se pueden elegir son continuas, así que se puede aplicar a la mayoría; al menos se puede definir un intervalo en el que sean continuas.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Para empezar</translation>
    </message>
    <message>
        <source>To get started, select a function from the pull down menu or click on the function to get another one.  Select the values for A to E for the function and [Plotto].  The right side of the screen is to setup the interval or a and b end points.  Once you have entered the end points, Click [Apply to Graph].  This will plot the line and calculate the points and slope.</source>
        <translation>Para empezar, elija una función del menú desplegable o haga clic en la función para obtener otra. Elija los valores de A a E para la función y pulse [Plotto]. La parte derecha de la pantalla sirve para preparar el intervalo, es decir, los extremos a y b. Cuando haya introducido los extremos, haga clic en [Aplicar a la gráfica]. Esto traza la recta y calcula los puntos y la pendiente.</translation>
    </message>
    <message>
        <source>Find c --- Three Ways</source>
        <translation>Hallar c --- tres maneras</translation>
    </message>
    <message>
        <source>There are many ways to find c, the value guaranteed by the MVT.  1)Use the Slider to approximate where c would be on the (a,b) interval.  Each time you move the slider or click on the arrow the tangent line will be graphed and its slope determined at the point.  You can keep moving the slider until the slope from the setup matches the slope at the point. 2) Click on the &apos;x =&apos; label.  You will be asked to enter a value for x.  The slider will automatically move to the point and show the tangent line and its slope.  3) Click on [Find c].  This button will find all points(up to 20) on the graph having the same slope as the secant line.  They are listed in a chart.</source>
        <translation>Hay muchas formas de hallar c, el valor que garantiza el TVM. 1) Use el deslizador para aproximar dónde estaría c en el intervalo (a,b). Cada vez que mueva el deslizador o haga clic en la flecha, se trazará la recta tangente y se determinará su pendiente en el punto. Puede seguir moviendo el deslizador hasta que la pendiente de la preparación coincida con la pendiente en el punto. 2) Haga clic en la etiqueta «x =». Se le pedirá un valor de x. El deslizador se moverá automáticamente al punto y mostrará la recta tangente y su pendiente. 3) Haga clic en [Hallar c]. Este botón halla todos los puntos (hasta 20) de la gráfica con la misma pendiente que la recta secante. Se listan en una tabla.</translation>
    </message>
    <message>
        <source>Accuracy Problems</source>
        <translation>Problemas de precisión</translation>
    </message>
    <message>
        <source>There are some accuracy considerations when using [Find c].  The slopes are compared to the nearest 0.001.  The calculated slope from the end points may differ from the slope of the tangent line.  Some MVT points may be missed due the accuracy when scannning through the function for the points.  This usually does not happen unless your interval is wide and there are rapid fluctuations like sin(20x).</source>
        <translation>Hay algunas cuestiones de precisión al usar [Hallar c]. Las pendientes se comparan con una precisión de 0,001. La pendiente calculada a partir de los extremos puede diferir de la pendiente de la recta tangente. Algunos puntos del TVM pueden pasarse por alto debido a la precisión al recorrer la función en busca de los puntos. Esto no suele ocurrir salvo que el intervalo sea ancho y haya oscilaciones rápidas como en sin(20x).</translation>
    </message>
    <message>
        <source>Secant from %1 to %2, %3.</source>
        <translation>Secante de %1 a %2, %3.</translation>
    </message>
    <message>
        <source>Slider point %1, %2.</source>
        <translation>Punto del deslizador %1, %2.</translation>
    </message>
    <message>
        <source>Newton&apos;s Method and Derivatives</source>
        <translation>Método de Newton y derivadas</translation>
    </message>
    <message>
        <source>Newton&apos;s Method</source>
        <translation>Método de Newton</translation>
    </message>
    <message>
        <source>Guess:</source>
        <translation>Aproximación:</translation>
    </message>
    <message>
        <source>Apply Newton&apos;s</source>
        <translation>Aplicar Newton</translation>
    </message>
    <message>
        <source>Graph &amp;Derivative</source>
        <translation>Graficar &amp;derivada</translation>
    </message>
    <message>
        <source>Guesses</source>
        <translation>Aproximaciones</translation>
    </message>
    <message>
        <source>Guess #</source>
        <translation>Aprox. n.º</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source> (no f(x) here)</source>
        <translation> (aquí no hay f(x))</translation>
    </message>
    <message>
        <source> (no f&apos;(x) here)</source>
        <translation> (aquí no hay f&apos;(x))</translation>
    </message>
    <message>
        <source> (too large)</source>
        <translation> (demasiado grande)</translation>
    </message>
    <message>
        <source>This guess failed due to zero for the slope</source>
        <translation>Esta aproximación falló porque la pendiente es cero</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <source>the derivative of </source>
        <translation>la derivada de </translation>
    </message>
    <message>
        <source>This screen is used to demonstrate Newton&apos;s method for finding roots(x-intercepts) of functions.  Along the way you can graph the derivatives of functions too.</source>
        <translation>Esta pantalla sirve para demostrar el método de Newton para hallar raíces (cortes con el eje x) de funciones. Por el camino también puede graficar las derivadas de las funciones.</translation>
    </message>
    <message>
        <source>Newton&apos;s method simple takes a guess, uses the slope of the function at the (x={guess},y) point to plot where this tangent line will intercept the x-axis.  This becomes the second guess and is used in the same procedure to find the third and so on...  As your guesses get closer to the root, the function appears more linear like so you get very close.</source>
        <translation>El método de Newton simplemente toma una aproximación y usa la pendiente de la función en el punto (x={aproximación},y) para trazar dónde cortará esta recta tangente al eje x. Ese punto pasa a ser la segunda aproximación, que se usa en el mismo procedimiento para hallar la tercera, y así sucesivamente... A medida que sus aproximaciones se acercan a la raíz, la función parece más lineal, así que se llega muy cerca.</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Fallos</translation>
    </message>
    <message>
        <source>There may be some cases where Newton&apos;s Method fails.   This may be due to the nature of the function or the guess.</source>
        <translation>Puede haber casos en que el método de Newton falle. Puede deberse a la naturaleza de la función o a la aproximación.</translation>
    </message>
    <message>
        <source>[Apply Newton&apos;s]</source>
        <translation>[Aplicar Newton]</translation>
    </message>
    <message>
        <source>To try Newton&apos;s method: select a function and the variables A to E.  Select a first guess at the right.  Click [Apply Newton&apos;s].  You should see the line drawn from your (x-guess, y) to the x-axis.  The second guess will appear in the guess box so you can [Apply Newton&apos;s] again.</source>
        <translation>Para probar el método de Newton: elija una función y las variables de A a E. Elija una primera aproximación a la derecha. Haga clic en [Aplicar Newton]. Verá la recta trazada desde su (x-aproximación, y) hasta el eje x. La segunda aproximación aparecerá en la casilla para que pueda volver a [Aplicar Newton].</translation>
    </message>
    <message>
        <source>Change and Continue</source>
        <translation>Cambiar y continuar</translation>
    </message>
    <message>
        <source>Zoom in or change the window and Apply again.</source>
        <translation>Acerque o cambie la ventana y vuelva a aplicar.</translation>
    </message>
    <message>
        <source>the first guess</source>
        <translation>la primera aproximación</translation>
    </message>
    <message>
        <source>Parametric Equation graphing</source>
        <translation>Graficación de ecuaciones paramétricas</translation>
    </message>
    <message>
        <source>Select x &amp;&amp; y functions and enter their constants.</source>
        <translation>Elija las funciones x &amp;&amp; y e introduzca sus constantes.</translation>
    </message>
    <message>
        <source>Graphing Set up</source>
        <translation>Preparación de la gráfica</translation>
    </message>
    <message>
        <source>Initial  t =</source>
        <translation>t inicial =</translation>
    </message>
    <message>
        <source>Final  t =</source>
        <translation>t final =</translation>
    </message>
    <message>
        <source>Number of Steps</source>
        <translation>Número de pasos</translation>
    </message>
    <message>
        <source>Connected Points</source>
        <translation>Puntos unidos</translation>
    </message>
    <message>
        <source>Separate Points</source>
        <translation>Puntos separados</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trazar</translation>
    </message>
    <message>
        <source>Trace at t =</source>
        <translation>Trazar en t =</translation>
    </message>
    <message>
        <source>t - slider</source>
        <translation>deslizador de t</translation>
    </message>
    <message>
        <source>Select &amp;x Function</source>
        <translation>Seleccionar función &amp;x</translation>
    </message>
    <message>
        <source>Select &amp;y Function</source>
        <translation>Seleccionar función &amp;y</translation>
    </message>
    <message>
        <source>The maximum number of steps is 32000</source>
        <translation>El número máximo de pasos es 32000</translation>
    </message>
    <message>
        <source>Exceeded Maximum</source>
        <translation>Máximo superado</translation>
    </message>
    <message>
        <source>the parametric curve</source>
        <translation>la curva paramétrica</translation>
    </message>
    <message>
        <source>Type a parametric curve</source>
        <translation>Escriba una curva paramétrica</translation>
    </message>
    <message>
        <source>This screen allows you to graph parametric equations by defining the function for the x value and another equation for the y value.  The x and y values are functions of the variable t.</source>
        <translation>Esta pantalla permite graficar ecuaciones paramétricas definiendo la función para el valor de x y otra ecuación para el valor de y. Los valores de x e y son funciones de la variable t.</translation>
    </message>
    <message>
        <source>How do I graph things?</source>
        <translation>¿Cómo grafico?</translation>
    </message>
    <message>
        <source>After selecting the functions by using the pull down menus for the x and y functions, enter the values you want for A...F.  You may click [Plotto!] to see what it looks like.</source>
        <translation>Tras elegir las funciones con los menús desplegables de las funciones x e y, introduzca los valores que desee para A...F. Puede hacer clic en [Plotto!] para ver cómo queda.</translation>
    </message>
    <message>
        <source>Graph Set Up</source>
        <translation>Preparación de la gráfica</translation>
    </message>
    <message>
        <source>Graphing Set Up at the right allows you to change the range of t, the number of steps used, and whether you want the points connected or not.  The initial set up is for a trig function and 1000 steps.  You may use any range and up to 32000 steps</source>
        <translation>La Preparación de la gráfica, a la derecha, permite cambiar el rango de t, el número de pasos y si quiere los puntos unidos o no. La preparación inicial es para una función trigonométrica y 1000 pasos. Puede usar cualquier rango y hasta 32000 pasos</translation>
    </message>
    <message>
        <source>Trace?</source>
        <translation>¿Trazar?</translation>
    </message>
    <message>
        <source>Trace allows you to look at the point produced by any particular t value.  You may click in the box to change the value. As soon as you do you will see the (x,y) value below and the point appear on the graph.  You may also use the slider at the bottom to scroll to different values or even click on the slide or arrows to move the trace point on the graph.  THe slider does not show the t= value or change the box above it.</source>
        <translation>Trazar permite ver el punto que produce cualquier valor concreto de t. Puede hacer clic en la casilla para cambiar el valor. En cuanto lo haga verá el valor (x,y) debajo y el punto aparecerá en la gráfica. También puede usar el deslizador de abajo para desplazarse a otros valores o hacer clic en el deslizador o en las flechas para mover el punto trazado en la gráfica. El deslizador no muestra el valor t= ni cambia la casilla de encima.</translation>
    </message>
    <message>
        <source>Left or Right clicks</source>
        <translation>Clic izquierdo o derecho</translation>
    </message>
    <message>
        <source>You may left click of right click on the labels for the entry boxes to raise of lower their values by 1.</source>
        <translation>Puede hacer clic izquierdo o derecho en las etiquetas de las casillas para subir o bajar sus valores en 1.</translation>
    </message>
    <message>
        <source>Change the size of the window?</source>
        <translation>¿Cambiar el tamaño de la ventana?</translation>
    </message>
    <message>
        <source>The buttons below [Plotto!] are what they say.  Zoom in will reduce the size by a factor of 2.  Zoom Out will enlarge the size by a factor of 2.  You may change the window size by clicking on any of the boxes showing teh ranges for x and y.</source>
        <translation>Los botones bajo [Plotto!] hacen lo que dicen. Acercar reduce el tamaño en un factor de 2. Alejar amplía el tamaño en un factor de 2. Puede cambiar el tamaño de la ventana haciendo clic en cualquiera de las casillas que muestran los rangos de x e y.</translation>
    </message>
    <message>
        <source>Parametric curve %1, %2 with A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</source>
        <translation>Curva paramétrica %1, %2 con A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</translation>
    </message>
    <message>
        <source>t from %1 to %2 in steps of %3, %4.</source>
        <translation>t de %1 a %2 en pasos de %3, %4.</translation>
    </message>
    <message>
        <source>connected points</source>
        <translation>puntos unidos</translation>
    </message>
    <message>
        <source>separate points</source>
        <translation>puntos separados</translation>
    </message>
    <message>
        <source>Trace at t = %1: %2.</source>
        <translation>Trazado en t = %1: %2.</translation>
    </message>
    <message>
        <source>the traced point</source>
        <translation>el punto trazado</translation>
    </message>
    <message>
        <source>Riemann and Other Sums</source>
        <translation>Sumas de Riemann y otras</translation>
    </message>
    <message>
        <source>&amp;Select a Function</source>
        <translation>&amp;Seleccionar una función</translation>
    </message>
    <message>
        <source>&amp;Clear Graph</source>
        <translation>&amp;Borrar gráfica</translation>
    </message>
    <message>
        <source>&amp;Set to Defaults</source>
        <translation>&amp;Valores predeterminados</translation>
    </message>
    <message>
        <source>Left Endpoint</source>
        <translation>Extremo izquierdo</translation>
    </message>
    <message>
        <source>Right Endpoint</source>
        <translation>Extremo derecho</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Punto medio</translation>
    </message>
    <message>
        <source>Trapezoidal</source>
        <translation>Trapecios</translation>
    </message>
    <message>
        <source>Random point</source>
        <translation>Punto aleatorio</translation>
    </message>
    <message>
        <source>A random point is picked on the equal width intervals </source>
        <translation>Se elige un punto aleatorio en los intervalos de igual ancho </translation>
    </message>
    <message>
        <source>Simpson&apos;s</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>Riemann</source>
        <translation>Riemann</translation>
    </message>
    <message>
        <source>Random width Interval and point on it</source>
        <translation>Intervalos de ancho aleatorio y un punto en cada uno</translation>
    </message>
    <message>
        <source>Cut the scale in half</source>
        <translation>Reducir la escala a la mitad</translation>
    </message>
    <message>
        <source>Convergence of the sums</source>
        <translation>Convergencia de las sumas</translation>
    </message>
    <message>
        <source>&amp;Erase Partitions</source>
        <translation>Borrar &amp;particiones</translation>
    </message>
    <message>
        <source>Number of Partitions</source>
        <translation>Número de particiones</translation>
    </message>
    <message>
        <source>&amp;Double Partitions</source>
        <translation>&amp;Duplicar particiones</translation>
    </message>
    <message>
        <source>Automatically double Number of Partitions</source>
        <translation>Duplicar automáticamente el número de particiones</translation>
    </message>
    <message>
        <source>Graph &amp;Partitions</source>
        <translation>&amp;Graficar particiones</translation>
    </message>
    <message>
        <source>See the partitions from the Riemann Sums</source>
        <translation>Ver las particiones de las sumas de Riemann</translation>
    </message>
    <message>
        <source>Left Boundary</source>
        <translation>Límite izquierdo</translation>
    </message>
    <message>
        <source>Right Boundary</source>
        <translation>Límite derecho</translation>
    </message>
    <message>
        <source>AREA</source>
        <translation>ÁREA</translation>
    </message>
    <message>
        <source>Area Sums</source>
        <translation>Sumas de área</translation>
    </message>
    <message>
        <source>Check one to see partitions when clicking Graph Partitions</source>
        <translation>Marque una para ver las particiones al pulsar Graficar particiones</translation>
    </message>
    <message>
        <source>Parts not even #</source>
        <translation>Partes no pares</translation>
    </message>
    <message>
        <source>= error!</source>
        <translation>= ¡error!</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Calculando</translation>
    </message>
    <message>
        <source>= too large</source>
        <translation>= demasiado grande</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Partitions must be a positive number</source>
        <translation>Las particiones deben ser un número positivo</translation>
    </message>
    <message>
        <source>Positive only</source>
        <translation>Solo positivos</translation>
    </message>
    <message>
        <source>The limit to the number of partitions is 32000</source>
        <translation>El límite de particiones es 32000</translation>
    </message>
    <message>
        <source>Limit Reached</source>
        <translation>Límite alcanzado</translation>
    </message>
    <message>
        <source>This form was written to demonstrate various Riemann and other Sums used to find areas under functions.</source>
        <translation>Esta pantalla muestra varias sumas de Riemann y otras que se usan para hallar áreas bajo funciones.</translation>
    </message>
    <message>
        <source>Plotting a function and Sizing</source>
        <translation>Graficar una función y ajustar el tamaño</translation>
    </message>
    <message>
        <source>Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set the window size by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window.</source>
        <translation>Elija una función del menú de funciones. Haga clic en [Plotto!] para verla en la ventana. Ajuste el tamaño de la ventana introduciendo valores para Xmín, Xmáx, Ymín e Ymáx o en las casillas alrededor de la ventana.</translation>
    </message>
    <message>
        <source>Plotto! , Zoom In and Set to Defaults</source>
        <translation>Plotto! , Acercar y Valores predeterminados</translation>
    </message>
    <message>
        <source>You must [Plotto!] after selecting a function to see it.  This also clears the window.  The [Zoom In] button reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10.</source>
        <translation>Debe pulsar [Plotto!] después de elegir una función para verla. Esto también limpia la ventana. El botón [Acercar] divide cada borde entre dos y vuelve a graficar la función. Los [Valores predeterminados] son de -10 a 10.</translation>
    </message>
    <message>
        <source>Riemann choices and [Graph Partitions]</source>
        <translation>Opciones de Riemann y [Graficar particiones]</translation>
    </message>
    <message>
        <source>Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the various area values.</source>
        <translation>Marque la casilla de un método de suma de Riemann a la derecha. Los rectángulos y las áreas calculadas aparecerán tras hacer clic en el botón [Graficar particiones]. Puede marcar una, varias o todas las casillas para ver los distintos valores del área.</translation>
    </message>
    <message>
        <source>Partitions for the Riemann Sums</source>
        <translation>Particiones de las sumas de Riemann</translation>
    </message>
    <message>
        <source>You may type in up to 32000 for the number of partitions.  You may also automatically double the number of partitions with the [Double Partitions] button.  The number of partitions determines the width of each interval except for the Riemann method.  The Riemann method breaks the total interval into random width sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of 2000 partitions.</source>
        <translation>Puede escribir hasta 32000 como número de particiones. También puede duplicar automáticamente el número de particiones con el botón [Duplicar particiones]. El número de particiones determina el ancho de cada intervalo, salvo en el método de Riemann. El método de Riemann divide el intervalo total en subintervalos de ancho aleatorio y elige puntos aleatorios en cada subintervalo. El método de Riemann usa como máximo 2000 particiones.</translation>
    </message>
    <message>
        <source>Left and Right Boundaries</source>
        <translation>Límites izquierdo y derecho</translation>
    </message>
    <message>
        <source>The Left boundary and Right boundary determine the width of the interval for the area.  The Boundaries must be in the window.  If the y value is outside the window the partition will not show up on the graph but the area will be computed correctly.</source>
        <translation>Los límites izquierdo y derecho determinan el ancho del intervalo para el área. Los límites deben estar en la ventana. Si el valor de y está fuera de la ventana, la partición no aparecerá en la gráfica, pero el área se calculará correctamente.</translation>
    </message>
    <message>
        <source>Clicking light green labels</source>
        <translation>Clic en las etiquetas verde claro</translation>
    </message>
    <message>
        <source>As for most of the light green labels in this program, you may left click to increase the box by one or right click to decreased it by one.</source>
        <translation>Como en la mayoría de las etiquetas verde claro de este programa, puede hacer clic izquierdo para aumentar la casilla en uno o clic derecho para disminuirla en uno.</translation>
    </message>
    <message>
        <source>Area under %1 from %2 to %3 with %4 partitions: %5.</source>
        <translation>Área bajo %1 de %2 a %3 con %4 particiones: %5.</translation>
    </message>
    <message>
        <source>The Tangent Line Problem</source>
        <translation>El problema de la recta tangente</translation>
    </message>
    <message>
        <source>Tangent Problem Set up</source>
        <translation>Preparación del problema de la tangente</translation>
    </message>
    <message>
        <source>Tangent at x =</source>
        <translation>Tangente en x =</translation>
    </message>
    <message>
        <source>Delta x</source>
        <translation>Delta x</translation>
    </message>
    <message>
        <source>&amp;Apply to graph</source>
        <translation>&amp;Aplicar a la gráfica</translation>
    </message>
    <message>
        <source>Half Delta x</source>
        <translation>Delta x a la mitad</translation>
    </message>
    <message>
        <source>Delta X slider</source>
        <translation>Deslizador de delta x</translation>
    </message>
    <message>
        <source>x-dx</source>
        <translation>x-dx</translation>
    </message>
    <message>
        <source>x+dx</source>
        <translation>x+dx</translation>
    </message>
    <message>
        <source>Secant Line Results</source>
        <translation>Resultados de la secante</translation>
    </message>
    <message>
        <source>( ___, ___ ) to ( ___ , ___ )</source>
        <translation>( ___, ___ ) a ( ___ , ___ )</translation>
    </message>
    <message>
        <source>Line Equation</source>
        <translation>Ecuación de la recta</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the classic slope of the tangent line problem.  You may select any function from the menu.  Choose values for the A,B,...,E variables for your function and Plotto.</source>
        <translation>Esta pantalla sirve para demostrar el problema clásico de la pendiente de la recta tangente. Puede elegir cualquier función del menú. Elija valores para las variables A,B,...,E de su función y pulse Plotto.</translation>
    </message>
    <message>
        <source>Tangent Set up Selections</source>
        <translation>Opciones del problema de la tangente</translation>
    </message>
    <message>
        <source>The secant lines will be graphed using the buttons, text boxes and glider at the right.  Select the initial point for the secant line by placing a value in the &apos;Tangent at x =&apos; box.  Choose the Delta x.  This the distance from your choice of x and is the longest distance for the slider.  The delta x may be negative.  The slider may be scrolled to either side of your initial x.</source>
        <translation>Las rectas secantes se trazan con los botones, las casillas de texto y el deslizador de la derecha. Elija el punto inicial de la recta secante escribiendo un valor en la casilla «Tangente en x =». Elija el Delta x. Es la distancia desde el x elegido y la distancia máxima del deslizador. El delta x puede ser negativo. El deslizador puede moverse a ambos lados de su x inicial.</translation>
    </message>
    <message>
        <source>Show the secants and the results</source>
        <translation>Mostrar las secantes y los resultados</translation>
    </message>
    <message>
        <source>Clicking on [Apply It] will draw the secant line and show the points on the graph and the equation of the line.  If you click on [Half Delta x], your delta x will be cut in half.  You may click [Apply It] to see the new line.</source>
        <translation>Al hacer clic en [Aplicar] se traza la recta secante y se muestran los puntos en la gráfica y la ecuación de la recta. Si hace clic en [Delta x a la mitad], su delta x se reducirá a la mitad. Puede hacer clic en [Aplicar] para ver la nueva recta.</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Deslizador</translation>
    </message>
    <message>
        <source>Clicking or scrolling the slider will change delta x and graph the secant line when releasing the mouse button.  You may see the points and the equation for each new change of the slider.  Notice the x-dx, x=  , and x+dx at the bottom of the slider.  This should help to know which way your secant line is going.</source>
        <translation>Hacer clic o desplazar el deslizador cambia delta x y traza la recta secante al soltar el botón del ratón. Verá los puntos y la ecuación con cada nuevo cambio del deslizador. Observe x-dx, x=  y x+dx debajo del deslizador. Ayuda a saber hacia dónde va su recta secante.</translation>
    </message>
    <message>
        <source>No exact tangent: x = %1 is not a number.</source>
        <translation>Sin tangente exacta: x = %1 no es un número.</translation>
    </message>
    <message>
        <source>The tangent at x = %1 has no slope there.</source>
        <translation>La tangente en x = %1 no tiene pendiente allí.</translation>
    </message>
    <message>
        <source>The exact tangent at x = %1: y = %2x + %3.</source>
        <translation>La tangente exacta en x = %1: y = %2x + %3.</translation>
    </message>
    <message>
        <source>the point of tangency</source>
        <translation>el punto de tangencia</translation>
    </message>
    <message>
        <source>the point at x + Delta x</source>
        <translation>el punto en x + Delta x</translation>
    </message>
    <message>
        <source>Taylor Polynomials</source>
        <translation>Polinomios de Taylor</translation>
    </message>
    <message>
        <source>Centre a =</source>
        <translation>Centro a =</translation>
    </message>
    <message>
        <source>&amp;Add a Term</source>
        <translation>&amp;Añadir un término</translation>
    </message>
    <message>
        <source>Remo&amp;ve a Term</source>
        <translation>&amp;Quitar un término</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Degree: none</source>
        <translation>Grado: ninguno</translation>
    </message>
    <message>
        <source>at x =</source>
        <translation>en x =</translation>
    </message>
    <message>
        <source>&amp;Lagrange bound</source>
        <translation>Cota de &amp;Lagrange</translation>
    </message>
    <message>
        <source>Taylor terms</source>
        <translation>Términos de Taylor</translation>
    </message>
    <message>
        <source>family %1</source>
        <translation>familia %1</translation>
    </message>
    <message>
        <source>No Taylor polynomial of degree %1 about a = %2: %3.</source>
        <translation>Sin polinomio de Taylor de grado %1 alrededor de a = %2: %3.</translation>
    </message>
    <message>
        <source>P_%1 about a = %2 in red%3; the green band on the x axis is where |f - P_%1| &lt; %4.</source>
        <translation>P_%1 alrededor de a = %2 en rojo%3; la banda verde del eje x marca dónde |f - P_%1| &lt; %4.</translation>
    </message>
    <message>
        <source>, P_%1 faint</source>
        <translation>, P_%1 tenue</translation>
    </message>
    <message>
        <source> Degree %1 is the last this screen works out.</source>
        <translation> El grado %1 es el último que calcula esta pantalla.</translation>
    </message>
    <message>
        <source>the Taylor polynomial of degree %1 about %2 of %3</source>
        <translation>el polinomio de Taylor de grado %1 alrededor de %2 de %3</translation>
    </message>
    <message>
        <source>Degree: %1</source>
        <translation>Grado: %1</translation>
    </message>
    <message>
        <source> At x = %1 the new term is past double precision: it changes no digit of P_%2 a double can hold.</source>
        <translation> En x = %1 el nuevo término supera la doble precisión: no cambia ninguna cifra de P_%2 que un double pueda guardar.</translation>
    </message>
    <message>
        <source>past double precision</source>
        <translation>más allá de la doble precisión</translation>
    </message>
    <message>
        <source>the centre a</source>
        <translation>el centro a</translation>
    </message>
    <message>
        <source>Degree %1. Terms: </source>
        <translation>Grado %1. Términos: </translation>
    </message>
    <message>
        <source>This screen builds the Taylor polynomial of a function about a centre a one term at a time, so that you can see the polynomial hug the curve over a wider and wider stretch as the degree grows.</source>
        <translation>Esta pantalla construye el polinomio de Taylor de una función alrededor de un centro a término a término, para que vea cómo el polinomio se ciñe a la curva en un tramo cada vez más ancho a medida que crece el grado.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function.  Type the centre a in its box, or click the green label to move it by one (left button up, right button down).</source>
        <translation>Elija una función del menú y elija de A a E, o escriba una con Herramientas, Escribir una función. Escriba el centro a en su casilla o haga clic en la etiqueta verde para moverlo en uno (botón izquierdo sube, derecho baja).</translation>
    </message>
    <message>
        <source>[Add a Term] and [Remove a Term]</source>
        <translation>[Añadir un término] y [Quitar un término]</translation>
    </message>
    <message>
        <source>Each click of [Add a Term] adds the next term, f^(n)(a)(x - a)^n / n!.  The function is drawn in blue, the polynomial of the degree shown in red and the one before it in light red.  [Remove a Term] goes back a degree.</source>
        <translation>Cada clic en [Añadir un término] añade el término siguiente, f^(n)(a)(x - a)^n / n!. La función se dibuja en azul, el polinomio del grado mostrado en rojo y el anterior en rojo claro. [Quitar un término] retrocede un grado.</translation>
    </message>
    <message>
        <source>The light green band along the x axis marks where the polynomial is within the tolerance of the function.  Watch it widen as terms are added.</source>
        <translation>La banda verde claro a lo largo del eje x marca dónde el polinomio está dentro de la tolerancia de la función. Observe cómo se ensancha al añadir términos.</translation>
    </message>
    <message>
        <source>The grid</source>
        <translation>La tabla</translation>
    </message>
    <message>
        <source>Each row is a degree: its new term with exact coefficients where they are fractions, the polynomial&apos;s value at the x you choose above the grid, and the error f(x) - P(x).  Tick Lagrange bound to see how large the error can be at most.  Where a derivative does not exist at a, or the numbers outgrow the computer&apos;s precision, the grid says so in words.</source>
        <translation>Cada fila es un grado: su nuevo término con coeficientes exactos cuando son fracciones, el valor del polinomio en el x que elija sobre la tabla y el error f(x) - P(x). Marque Cota de Lagrange para ver cuán grande puede ser el error como máximo. Donde una derivada no existe en a, o los números superan la precisión del ordenador, la tabla lo dice con palabras.</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums + Others</source>
        <translation>Sumas de &amp;Riemann y otras</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums +</source>
        <translation>Sumas de &amp;Riemann +</translation>
    </message>
    <message>
        <source>Riemann and other sums</source>
        <translation>sumas de Riemann y otras</translation>
    </message>
    <message>
        <source>Graph Classes of &amp;Functions</source>
        <translation>Graficar clases de &amp;funciones</translation>
    </message>
    <message>
        <source>&amp;Function Grapher</source>
        <translation>&amp;Graficador de funciones</translation>
    </message>
    <message>
        <source>graphing {families} families of functions</source>
        <translation>graficar {families} familias de funciones</translation>
    </message>
    <message>
        <source>&amp;Animate Graphs</source>
        <translation>&amp;Animar gráficas</translation>
    </message>
    <message>
        <source>&amp;Animate Functions</source>
        <translation>&amp;Animar funciones</translation>
    </message>
    <message>
        <source>animating their coefficients</source>
        <translation>animar sus coeficientes</translation>
    </message>
    <message>
        <source>&amp;Slope Fields</source>
        <translation>&amp;Campos direccionales</translation>
    </message>
    <message>
        <source>slope fields with integral curves and Euler and Runge-Kutta approximations</source>
        <translation>campos direccionales con curvas integrales y aproximaciones de Euler y Runge-Kutta</translation>
    </message>
    <message>
        <source>&amp;Newton&apos;s Method</source>
        <translation>Método de &amp;Newton</translation>
    </message>
    <message>
        <source>Newton&apos;s method</source>
        <translation>el método de Newton</translation>
    </message>
    <message>
        <source>&amp;Tangent Line Problem</source>
        <translation>Problema de la recta &amp;tangente</translation>
    </message>
    <message>
        <source>&amp;Tangent Problem</source>
        <translation>Problema de la &amp;tangente</translation>
    </message>
    <message>
        <source>secant lines converging to the tangent</source>
        <translation>rectas secantes que convergen a la tangente</translation>
    </message>
    <message>
        <source>The &amp;Mean Value Theorem</source>
        <translation>El teorema del valor &amp;medio</translation>
    </message>
    <message>
        <source>&amp;Mean Value Theorem</source>
        <translation>Teorema del valor &amp;medio</translation>
    </message>
    <message>
        <source>the mean value theorem</source>
        <translation>el teorema del valor medio</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphing</source>
        <translation>Graficación &amp;paramétrica</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphs</source>
        <translation>Gráficas &amp;paramétricas</translation>
    </message>
    <message>
        <source>parametric curves</source>
        <translation>curvas paramétricas</translation>
    </message>
    <message>
        <source>&amp;Taylor Polynomials</source>
        <translation>Polinomios de &amp;Taylor</translation>
    </message>
    <message>
        <source>Taylor polynomials term by term</source>
        <translation>polinomios de Taylor término a término</translation>
    </message>
    <message>
        <source>&amp;Area Between Curves</source>
        <translation>Á&amp;rea entre curvas</translation>
    </message>
    <message>
        <source>the area between two curves</source>
        <translation>el área entre dos curvas</translation>
    </message>
    <message>
        <source>&amp;Limits by Epsilon and Delta</source>
        <translation>&amp;Límites con épsilon y delta</translation>
    </message>
    <message>
        <source>limits by epsilon and delta</source>
        <translation>límites con épsilon y delta</translation>
    </message>
    <message>
        <source>Plotto!   Calculus Calculator</source>
        <translation>Plotto!   Calculadora de cálculo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Selections</source>
        <translation>&amp;Selecciones</translation>
    </message>
    <message>
        <source>More &amp;Demonstrations</source>
        <translation>&amp;Más demostraciones</translation>
    </message>
    <message>
        <source>Choose a demonstration</source>
        <translation>Elija una demostración</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>The screens you open from now on speak this language; the launcher does from the next start of Plotto.</source>
        <translation>Las pantallas que abra a partir de ahora usan este idioma; el lanzador, desde el próximo inicio de Plotto.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>This program was made to graphically illustrate a few Calculus concepts.  They are shown on the buttons and the pull down menu.  The &apos;About&apos; menu option for each screen will explain the use of that screen.</source>
        <translation>Este programa se hizo para ilustrar gráficamente algunos conceptos del cálculo. Aparecen en los botones y en el menú desplegable. La opción «Acerca de» de cada pantalla explica el uso de esa pantalla.</translation>
    </message>
    <message>
        <source>Calculus Demonstrations</source>
        <translation>Demostraciones de cálculo</translation>
    </message>
    <message>
        <source>This program is free.  Give it to your Calculus students or whoever could benefit from its use.  Send your questions and suggestions to the Plotto issue tracker.</source>
        <translation>Este programa es libre. Déselo a sus alumnos de cálculo o a quien pueda aprovecharlo. Envíe sus preguntas y sugerencias al gestor de incidencias de Plotto.</translation>
    </message>
    <message>
        <source>Distribute Freely</source>
        <translation>Distribución libre</translation>
    </message>
    <message>
        <source>Read the ABOUTs on each screen.  There are handy things to know about clicking labels on the screens.....</source>
        <translation>Lea los «Acerca de» de cada pantalla. Hay cosas útiles que saber sobre hacer clic en las etiquetas de las pantallas.....</translation>
    </message>
    <message>
        <source>More ABOUTs</source>
        <translation>Más «Acerca de»</translation>
    </message>
    <message>
        <source>&amp;Lessons</source>
        <translation>&amp;Lecciones</translation>
    </message>
    <message>
        <source>S&amp;tart the Lesson</source>
        <translation>&amp;Iniciar la lección</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>&amp;Ejemplos</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
    <message>
        <source>Open Lesson</source>
        <translation>Abrir lección</translation>
    </message>
    <message>
        <source>%1: step %2 (%3): %4.</source>
        <translation>%1: paso %2 (%3): %4.</translation>
    </message>
    <message>
        <source>Buttons to press when this step opens, by their captions, separated by commas (a button pressed more than once: Apply Newton&apos;s*4). Leave empty for none.</source>
        <translation>Botones que pulsar cuando se abre este paso, por sus rótulos, separados por comas (un botón pulsado más de una vez: Aplicar Newton*4). Déjelo vacío si no hay ninguno.</translation>
    </message>
    <message>
        <source>Add to the Lesson</source>
        <translation>Añadir a la lección</translation>
    </message>
    <message>
        <source>The lesson has no steps yet: add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>La lección aún no tiene pasos: añada una pantalla con Herramientas, Añadir esta pantalla a la lección.</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Guardar lección</translation>
    </message>
    <message>
        <source>Cannot read the lesson %1: %2</source>
        <translation>No se puede leer la lección %1: %2</translation>
    </message>
    <message>
        <source>Export Lesson as Worksheet</source>
        <translation>Exportar lección como hoja de trabajo</translation>
    </message>
    <message>
        <source>There is no lesson to export: open one with Lessons, Open Lesson, or add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>No hay ninguna lección que exportar: abra una con Lecciones, Abrir lección, o añada una pantalla con Herramientas, Añadir esta pantalla a la lección.</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Leave the results blank, as boxes for the students to fill in? The answers then go to a second file, %1.</source>
        <translation>¿Dejar los resultados en blanco, como casillas para que las rellenen los alumnos? Las respuestas van entonces a un segundo archivo, %1.</translation>
    </message>
    <message>
        <source>The lesson could not be handed over: %1</source>
        <translation>No se pudo entregar la lección: %1</translation>
    </message>
    <message>
        <source>The worksheet was not written: %1</source>
        <translation>La hoja de trabajo no se escribió: %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Paso %1 de %2: %3</translation>
    </message>
    <message>
        <source>This step cannot be shown: %1.</source>
        <translation>Este paso no se puede mostrar: %1.</translation>
    </message>
    <message>
        <source>A button of this step could not finish (run-time error %1).</source>
        <translation>Un botón de este paso no pudo terminar (error en tiempo de ejecución %1).</translation>
    </message>
    <message>
        <source>The screen shows %1.</source>
        <translation>La pantalla muestra %1.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The lesson has no steps.</source>
        <translation>La lección no tiene pasos.</translation>
    </message>
    <message>
        <source>Area=</source>
        <translation>Área=</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .csv or .pdf.</source>
        <translation>El nombre de archivo %1 no indica qué tipo de archivo escribir: termínelo en .csv o .pdf.</translation>
    </message>
    <message>
        <source>the PDF could not be started</source>
        <translation>no se pudo iniciar el PDF</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exportar tabla</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;PDF page (*.pdf)</source>
        <translation>Valores separados por comas (*.csv);;Página PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>&amp;Exportar tabla...</translation>
    </message>
    <message>
        <source>Two Curves</source>
        <translation>Dos curvas</translation>
    </message>
    <message>
        <source>Worksheets are written by the plotto program, which this run cannot start.</source>
        <translation>Las hojas de trabajo las escribe el programa plotto, que esta ejecución no puede iniciar.</translation>
    </message>
    <message>
        <source>are outside what a function accepts</source>
        <translation>están fuera de lo que acepta una función</translation>
    </message>
    <message>
        <source>overflow</source>
        <translation>desbordan</translation>
    </message>
    <message>
        <source>go past the end of a table</source>
        <translation>pasan del final de una tabla</translation>
    </message>
    <message>
        <source>divide by zero</source>
        <translation>dividen por cero</translation>
    </message>
    <message>
        <source>are not numbers</source>
        <translation>no son números</translation>
    </message>
    <message>
        <source>are more than a control can take</source>
        <translation>son más de lo que admite un control</translation>
    </message>
    <message>
        <source>cannot be worked out</source>
        <translation>no se pueden calcular</translation>
    </message>
    <message>
        <source>The step of the lesson shown</source>
        <translation>El paso de la lección que se muestra</translation>
    </message>
    <message>
        <source>Zoom to the &amp;Steps</source>
        <translation>Encuadrar los &amp;pasos</translation>
    </message>
    <message>
        <source>The last two guesses are %1 apart; View, Zoom to the Steps shows the last steps.</source>
        <translation>Las dos últimas aproximaciones distan %1; Ver, Encuadrar los pasos muestra los últimos pasos.</translation>
    </message>
    <message>
        <source>No steps to zoom to yet: press Apply Newton&apos;s at least once.</source>
        <translation>Aún no hay pasos que encuadrar: pulse Aplicar Newton al menos una vez.</translation>
    </message>
    <message>
        <source>Step %1 cannot be shown: its values %2 (run-time error %3).</source>
        <translation>El paso %1 no se puede mostrar: sus valores %2 (error en tiempo de ejecución %3).</translation>
    </message>
    <message>
        <source>Euler</source>
        <translation>Euler</translation>
    </message>
    <message>
        <source>Runge-Kutta 2</source>
        <translation>Runge-Kutta 2</translation>
    </message>
    <message>
        <source>Runge-Kutta 4</source>
        <translation>Runge-Kutta 4</translation>
    </message>
    <message>
        <source>nothing typed: type a function, for example x^2 - 4 at %1</source>
        <translation>no se escribió nada: escriba una función, por ejemplo x^2 - 4 en %1</translation>
    </message>
    <message>
        <source>unexpected &apos;)&apos; at %1</source>
        <translation>&apos;)&apos; inesperado en %1</translation>
    </message>
    <message>
        <source>too deeply nested at %1</source>
        <translation>anidamiento demasiado profundo en %1</translation>
    </message>
    <message>
        <source>missing a term after &apos;%1&apos; at %2</source>
        <translation>falta un término después de &apos;%1&apos; en %2</translation>
    </message>
    <message>
        <source>missing a term at %1</source>
        <translation>falta un término en %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;)&apos; at %1</source>
        <translation>falta un término antes de &apos;)&apos; en %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;%1&apos; at %2</source>
        <translation>falta un término antes de &apos;%1&apos; en %2</translation>
    </message>
    <message>
        <source>missing &apos;)&apos; at %1</source>
        <translation>falta &apos;)&apos; en %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inesperada (cada función toma un solo argumento) en %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (write decimals with a point, and each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inesperada (escriba los decimales con punto; cada función toma un solo argumento) en %1</translation>
    </message>
    <message>
        <source>unexpected character &apos;%1&apos; at %2</source>
        <translation>carácter inesperado &apos;%1&apos; en %2</translation>
    </message>
    <message>
        <source>missing &apos;*&apos;: write %1*%2 for a product at %3</source>
        <translation>falta &apos;*&apos;: escriba %1*%2 para un producto en %3</translation>
    </message>
    <message>
        <source>a number needs a digit at %1</source>
        <translation>un número necesita una cifra en %1</translation>
    </message>
    <message>
        <source>number too large at %1</source>
        <translation>número demasiado grande en %1</translation>
    </message>
    <message>
        <source>missing &apos;(&apos; after &apos;%1&apos; at %2</source>
        <translation>falta &apos;(&apos; después de &apos;%1&apos; en %2</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2 (the coefficients are the capitals A to F)</source>
        <translation>nombre desconocido &apos;%1&apos; en %2 (los coeficientes son las mayúsculas A a F)</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %4: write %2*%3 for a product</source>
        <translation>nombre desconocido &apos;%1&apos; en %4: escriba %2*%3 para un producto</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2</source>
        <translation>nombre desconocido &apos;%1&apos; en %2</translation>
    </message>
    <message>
        <source>too long: at most %1 characters</source>
        <translation>demasiado largo: como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>cannot be evaluated</source>
        <translation>no se puede evaluar</translation>
    </message>
    <message>
        <source>no derivative: it cannot be evaluated</source>
        <translation>sin derivada: no se puede evaluar</translation>
    </message>
    <message>
        <source>no derivative: the expression is undefined everywhere or cannot be differentiated</source>
        <translation>sin derivada: la expresión no está definida en ningún punto o no se puede derivar</translation>
    </message>
    <message>
        <source>no derivative: part of the expression is 0 where it divides or is a base</source>
        <translation>sin derivada: una parte de la expresión es 0 donde divide o es una base</translation>
    </message>
    <message>
        <source>no derivative: it uses a function that cannot be differentiated here</source>
        <translation>sin derivada: usa una función que aquí no se puede derivar</translation>
    </message>
    <message>
        <source>no function chosen</source>
        <translation>ninguna función elegida</translation>
    </message>
    <message>
        <source>an exponent of %1 is too large to work out exactly</source>
        <translation>un exponente de %1 es demasiado grande para calcularlo exactamente</translation>
    </message>
    <message>
        <source>part of the expression is 0 where it divides or is a base</source>
        <translation>una parte de la expresión es 0 donde divide o es una base</translation>
    </message>
    <message>
        <source>the expression cannot be worked out exactly</source>
        <translation>la expresión no se puede calcular exactamente</translation>
    </message>
    <message>
        <source>the coefficient is too large for double precision</source>
        <translation>el coeficiente es demasiado grande para la doble precisión</translation>
    </message>
    <message>
        <source>f(a) does not exist</source>
        <translation>f(a) no existe</translation>
    </message>
    <message>
        <source>f^(%1)(a) does not exist</source>
        <translation>f^(%1)(a) no existe</translation>
    </message>
    <message>
        <source>the derivative grows too long to work out</source>
        <translation>la derivada se vuelve demasiado larga para calcularla</translation>
    </message>
    <message>
        <source>a must be a number.</source>
        <translation>a debe ser un número.</translation>
    </message>
    <message>
        <source>Both sides tend to %1: L = %1 at a = %2 (estimated from x = a +- h, h halving to %3 times max(1, |a|); the last values agree to %4).</source>
        <translation>Ambos lados tienden a %1: L = %1 en a = %2 (estimado desde x = a +- h, con h reduciéndose a la mitad hasta %3 veces max(1, |a|); los últimos valores coinciden hasta %4).</translation>
    </message>
    <message>
        <source>f is defined only on the right of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f solo está definida a la derecha de a cerca de a; ese lado tiende a %1: L = %1 en a = %2 (un límite lateral).</translation>
    </message>
    <message>
        <source>f is defined only on the left of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f solo está definida a la izquierda de a cerca de a; ese lado tiende a %1: L = %1 en a = %2 (un límite lateral).</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no limit there.</source>
        <translation>f no está definida cerca de a = %1 en ningún lado: no hay límite ahí.</translation>
    </message>
    <message>
        <source>The left side %1 and the right side %2: no limit at a = %3.</source>
        <translation>El lado izquierdo %1 y el lado derecho %2: no hay límite en a = %3.</translation>
    </message>
    <message>
        <source>tends to infinity</source>
        <translation>tiende a infinito</translation>
    </message>
    <message>
        <source>tends to -infinity</source>
        <translation>tiende a -infinito</translation>
    </message>
    <message>
        <source>tends to %1</source>
        <extracomment>what one side of a does as x nears a (&quot;The left side tends to 1 and ...&quot;)</extracomment>
        <translation>tiende a %1</translation>
    </message>
    <message>
        <source>to infinity</source>
        <translation>a infinito</translation>
    </message>
    <message>
        <source>to -infinity</source>
        <translation>a -infinito</translation>
    </message>
    <message>
        <source>to %1</source>
        <extracomment>the right side&apos;s clause when the left side&apos;s said &quot;tends&quot; (&quot;... and the right side to 2&quot;)</extracomment>
        <translation>a %1</translation>
    </message>
    <message>
        <source>does not settle</source>
        <translation>no se estabiliza</translation>
    </message>
    <message>
        <source>is undefined</source>
        <translation>no está definido</translation>
    </message>
    <message>
        <source>ε must be a positive number.</source>
        <translation>ε debe ser un número positivo.</translation>
    </message>
    <message>
        <source>a and L must be numbers.</source>
        <translation>a y L deben ser números.</translation>
    </message>
    <message>
        <source>a = %1 is not inside the window from %2 to %3: move a or widen the window to look for δ.</source>
        <translation>a = %1 no está dentro de la ventana de %2 a %3: mueva a o amplíe la ventana para buscar δ.</translation>
    </message>
    <message>
        <source>ε = %1 is below what rounding in f lets the computer tell apart from L = %2 (it must be at least %3): no δ is looked for.</source>
        <translation>ε = %1 está por debajo de lo que el redondeo de f permite al ordenador distinguir de L = %2 (debe ser al menos %3): no se busca δ.</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no δ can be looked for.</source>
        <translation>f no está definida cerca de a = %1 en ningún lado: no se puede buscar δ.</translation>
    </message>
    <message>
        <source>For ε = %1 no δ works: points arbitrarily close to a leave the band (even x = %2 has |f(x) - L| = %3, not below ε).</source>
        <translation>Para ε = %1 ningún δ sirve: puntos arbitrariamente cercanos a a salen de la banda (incluso x = %2 tiene |f(x) - L| = %3, no menor que ε).</translation>
    </message>
    <message>
        <source>For ε = %1 no x of the window leaves the band: δ = %2 is the distance from a to the window&apos;s nearer edge.</source>
        <translation>Para ε = %1 ningún x de la ventana sale de la banda: δ = %2 es la distancia de a al borde más cercano de la ventana.</translation>
    </message>
    <message>
        <source>For ε = %1 the largest δ is %2: the graph first leaves the band at x = %3 (f = %4).</source>
        <translation>Para ε = %1 el mayor δ es %2: la gráfica sale de la banda por primera vez en x = %3 (f = %4).</translation>
    </message>
    <message>
        <source>%1 f is not defined to the right of a: only x where it is defined count.</source>
        <translation>%1 f no está definida a la derecha de a: solo cuentan los x donde está definida.</translation>
    </message>
    <message>
        <source>%1 f is not defined to the left of a: only x where it is defined count.</source>
        <translation>%1 f no está definida a la izquierda de a: solo cuentan los x donde está definida.</translation>
    </message>
    <message>
        <source>%1 f is undefined at some x of the window: they are not in its domain and do not count.</source>
        <translation>%1 f no está definida en algunos x de la ventana: no están en su dominio y no cuentan.</translation>
    </message>
    <message>
        <source>x = %1 (f = g at a scanned point)</source>
        <translation>x = %1 (f = g en un punto explorado)</translation>
    </message>
    <message>
        <source>x = %1 (sign change, TOMS 748)</source>
        <translation>x = %1 (cambio de signo, TOMS 748)</translation>
    </message>
    <message>
        <source>x = %1 (touch without sign change, Brent minimum of |f - g|)</source>
        <translation>x = %1 (contacto sin cambio de signo, mínimo de Brent de |f - g|)</translation>
    </message>
    <message>
        <source>x = %1 to %2 (f = g all along)</source>
        <translation>x = %1 a %2 (f = g en todo el tramo)</translation>
    </message>
    <message>
        <source>a curve is not defined everywhere on [a, b]</source>
        <translation>una curva no está definida en todo [a, b]</translation>
    </message>
    <message>
        <source>f - g jumps across 0 without crossing it near x = %1</source>
        <translation>f - g salta por encima de 0 sin cruzarlo cerca de x = %1</translation>
    </message>
    <message>
        <source>the integral of f - g does not settle between x = %1 and x = %2 (f - g is unbounded there, or oscillates faster than the adaptive rule can follow)</source>
        <translation>la integral de f - g no se estabiliza entre x = %1 y x = %2 (f - g no está acotada ahí, u oscila más rápido de lo que la regla adaptativa puede seguir)</translation>
    </message>
    <message>
        <source>No area: %1.</source>
        <translation>Sin área: %1.</translation>
    </message>
    <message>
        <source>Signed area %1 (adaptive Gauss-Kronrod, 61 points, split at the crossings)</source>
        <translation>Área con signo %1 (Gauss-Kronrod adaptativo, 61 puntos, dividida en los cruces)</translation>
    </message>
    <message>
        <source>no value: %1</source>
        <translation>sin valor: %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <extracomment>a convergence table&apos;s cell: the error is below the reference&apos;s own accuracy %1</extracomment>
        <translation>menor que %1</translation>
    </message>
    <message>
        <source>(reference)</source>
        <extracomment>a convergence table&apos;s cell: the row&apos;s value is the reference itself</extracomment>
        <translation>(referencia)</translation>
    </message>
    <message>
        <source>round-off</source>
        <extracomment>a convergence table&apos;s cell in place of a ratio, explained by the round-off note under the table</extracomment>
        <translation>redondeo</translation>
    </message>
    <message>
        <source>round-off: an error below %1 is mostly the rounding of double-precision arithmetic over the steps, not the method&apos;s own error, so its ratio is not shown.</source>
        <translation>redondeo: un error menor que %1 se debe sobre todo al redondeo de la aritmética de doble precisión a lo largo de los pasos, no al error propio del método, por eso no se muestra su cociente.</translation>
    </message>
    <message>
        <source>slope %1</source>
        <extracomment>the label of a reference line of slope -%1 on the log-log plot</extracomment>
        <translation>pendiente %1</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sin valor</translation>
    </message>
    <message>
        <source>undefined at x = %1</source>
        <translation>indefinida en x = %1</translation>
    </message>
    <message>
        <source>error value</source>
        <translation>valor de error</translation>
    </message>
    <message>
        <source>The function is not defined everywhere on the interval (for example at x = %1): the integral does not exist there.</source>
        <translation>La función no está definida en todo el intervalo (por ejemplo en x = %1): ahí la integral no existe.</translation>
    </message>
    <message>
        <source>The function is unbounded on the interval: the integral does not exist there.</source>
        <translation>La función no está acotada en el intervalo: ahí la integral no existe.</translation>
    </message>
    <message>
        <source>Exact value %1 (adaptive Gauss-Kronrod, 61 points)</source>
        <translation>Valor exacto %1 (Gauss-Kronrod adaptativo, 61 puntos)</translation>
    </message>
    <message>
        <source>The integral cannot be computed: %1.</source>
        <translation>La integral no se puede calcular: %1.</translation>
    </message>
    <message>
        <source>Reference endpoint y = %1 (adaptive Runge-Kutta-Fehlberg 7(8) in extended precision; accurate to %2)</source>
        <translation>Punto final de referencia y = %1 (Runge-Kutta-Fehlberg 7(8) adaptativo en precisión extendida; exacto hasta %2)</translation>
    </message>
    <message>
        <source>The curve meets a vertical slope before the end x: there is no endpoint to compare with.</source>
        <translation>La curva encuentra una pendiente vertical antes del x final: no hay punto final con el que comparar.</translation>
    </message>
    <message>
        <source>The reference cannot be computed: %1.</source>
        <translation>La referencia no se puede calcular: %1.</translation>
    </message>
    <message>
        <source>The adaptive integration could not reach the end x (the slope grows without bound).</source>
        <translation>La integración adaptativa no pudo llegar al x final (la pendiente crece sin límite).</translation>
    </message>
    <message>
        <source>%1 (%2 steps)</source>
        <extracomment>a row of the step methods&apos; table: the step h (%1) and how many steps reach the end x (%2)</extracomment>
        <translation>%1 (%2 pasos)</translation>
    </message>
    <message>
        <source>meets a vertical slope</source>
        <translation>encuentra una pendiente vertical</translation>
    </message>
    <message>
        <source>leaves the window</source>
        <translation>sale de la ventana</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>which of two typed texts a refusal is about (&quot;dy: missing &apos;)&apos; at 3&quot;): %1 names the text (dy, dx, x(t), y(t)) and %2 is the refusal</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers in order.</source>
        <translation>Los límites de la ventana no son números en orden.</translation>
    </message>
    <message>
        <source>Zoomed out as far as the graph goes: the window is at most 1E+12 wide and high.</source>
        <translation>Alejado hasta donde llega la gráfica: la ventana mide como máximo 1E+12 de ancho y de alto.</translation>
    </message>
    <message>
        <source>Zoomed in as far as the arithmetic can show: a closer window would draw rounding noise.</source>
        <translation>Acercado hasta donde la aritmética puede mostrar: una ventana más cercana dibujaría ruido de redondeo.</translation>
    </message>
    <message>
        <source>raise or lower %1</source>
        <translation>subir o bajar %1</translation>
    </message>
    <message>
        <source>Drawn: %1.</source>
        <translation>Dibujado: %1.</translation>
    </message>
    <message>
        <source>the typed function y = %1</source>
        <translation>la función escrita y = %1</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <extracomment>a function and its coefficients&apos; values (&quot;y = A*x^2 with A = 1, B = 0&quot;)</extracomment>
        <translation>%1 con %2</translation>
    </message>
    <message>
        <source>Playing %1.</source>
        <translation>Reproduciendo %1.</translation>
    </message>
    <message>
        <source>Understood: y = %1
Derivative: y&apos; = %2</source>
        <translation>Entendido: y = %1
Derivada: y&apos; = %2</translation>
    </message>
    <message>
        <source>undefined: no f(x) at x = %1</source>
        <translation>indefinida: no hay f(x) en x = %1</translation>
    </message>
    <message>
        <source>no slope: f&apos;(x) is undefined at x = %1</source>
        <translation>sin pendiente: f&apos;(x) no está definida en x = %1</translation>
    </message>
    <message>
        <source> Not drawn at this window: %1.</source>
        <translation> No dibujado en esta ventana: %1.</translation>
    </message>
    <message>
        <source>Cannot be drawn from here: %1.</source>
        <translation>No se puede dibujar desde aquí: %1.</translation>
    </message>
    <message>
        <source>Cannot be taken: %1</source>
        <translation>No se puede tomar: %1</translation>
    </message>
    <message>
        <source>error %1</source>
        <extracomment>a convergence table&apos;s cell: the error of the value above it</extracomment>
        <translation>error %1</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <extracomment>a convergence table&apos;s cell: the previous row&apos;s error over this row&apos;s</extracomment>
        <translation>cociente %1</translation>
    </message>
    <message>
        <source>Error against the number of partitions, log-log</source>
        <translation>Error frente al número de particiones, log-log</translation>
    </message>
    <message>
        <source>steps</source>
        <extracomment>the horizontal axis of the step methods&apos; convergence plot</extracomment>
        <translation>pasos</translation>
    </message>
    <message>
        <source>error</source>
        <extracomment>the vertical axis of a convergence plot</extracomment>
        <translation>error</translation>
    </message>
    <message>
        <source>%1 error</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s errors</extracomment>
        <translation>error de %1</translation>
    </message>
    <message>
        <source>%1 ratio</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s ratios of successive errors</extracomment>
        <translation>cociente de %1</translation>
    </message>
    <message>
        <source>No errors to plot: %1</source>
        <translation>No hay errores que representar: %1</translation>
    </message>
    <message>
        <source>%1: too few measurable errors for a slope</source>
        <translation>%1: muy pocos errores medibles para una pendiente</translation>
    </message>
    <message>
        <source>%1: slope %2 (expected -%3)</source>
        <translation>%1: pendiente %2 (esperada -%3)</translation>
    </message>
    <message>
        <source>%1: slope %2</source>
        <translation>%1: pendiente %2</translation>
    </message>
    <message>
        <source>g(x) = %1 cannot be read: %2.</source>
        <translation>g(x) = %1 no se puede leer: %2.</translation>
    </message>
    <message>
        <source>%1 is not defined at x = %2</source>
        <translation>%1 no está definida en x = %2</translation>
    </message>
    <message>
        <source>%1 is not defined from x = %2 to x = %3</source>
        <translation>%1 no está definida de x = %2 a x = %3</translation>
    </message>
    <message>
        <source>Crossings in [a, b]:
%1</source>
        <translation>Cruces en [a, b]:
%1</translation>
    </message>
    <message>
        <source>Understood: dy = %1,  dx = %2</source>
        <translation>Entendido: dy = %1,  dx = %2</translation>
    </message>
    <message>
        <source>Start( %1 , %2 ) </source>
        <translation>Inicio( %1 , %2 ) </translation>
    </message>
    <message>
        <source>the curve from (%1,%2)</source>
        <translation>la curva desde (%1,%2)</translation>
    </message>
    <message>
        <source>EndPt (%1,%2</source>
        <translation>Punto final (%1,%2</translation>
    </message>
    <message>
        <source>Type numbers for a, L and ε.</source>
        <translation>Escriba números para a, L y ε.</translation>
    </message>
    <message>
        <source>The window&apos;s x limits must be numbers, the minimum below the maximum.</source>
        <translation>Los límites x de la ventana deben ser números, el mínimo por debajo del máximo.</translation>
    </message>
    <message>
        <source>   leaves at x = %1</source>
        <translation>   sale en x = %1</translation>
    </message>
    <message>
        <source>ε = %1   no δ</source>
        <translation>ε = %1   ningún δ</translation>
    </message>
    <message>
        <source>Limits by ε and δ of %1, a = %2, L = %3, ε = %4.</source>
        <translation>Límites con ε y δ de %1, a = %2, L = %3, ε = %4.</translation>
    </message>
    <message>
        <source>slope = %1</source>
        <translation>pendiente = %1</translation>
    </message>
    <message>
        <source>Slope =%1</source>
        <translation>Pendiente =%1</translation>
    </message>
    <message>
        <source>the tangent at x = %1</source>
        <translation>la tangente en x = %1</translation>
    </message>
    <message>
        <source>Mean value theorem for %1 on [%2, %3].</source>
        <translation>Teorema del valor medio para %1 en [%2, %3].</translation>
    </message>
    <message>
        <source>the guess x = %1</source>
        <translation>la aproximación x = %1</translation>
    </message>
    <message>
        <source>Newton&apos;s method on %1.</source>
        <translation>Método de Newton sobre %1.</translation>
    </message>
    <message>
        <source>No guesses yet; first guess box: %1.</source>
        <translation>Aún no hay aproximaciones; casilla de la primera: %1.</translation>
    </message>
    <message>
        <source>Guesses: %1.</source>
        <translation>Aproximaciones: %1.</translation>
    </message>
    <message>
        <source>(undefined at t = %1)</source>
        <translation>(indefinida en t = %1)</translation>
    </message>
    <message>
        <source>the point at t = %1</source>
        <translation>el punto en t = %1</translation>
    </message>
    <message>
        <source>the curve %1, %2 for t from %3 to %4</source>
        <translation>la curva %1, %2 para t de %3 a %4</translation>
    </message>
    <message>
        <source>Understood: x = %1,  y = %2</source>
        <translation>Entendido: x = %1,  y = %2</translation>
    </message>
    <message>
        <source>%1 bars</source>
        <extracomment>a sum&apos;s bars as drawn (&quot;Left Endpoint bars&quot;)</extracomment>
        <translation>barras de %1</translation>
    </message>
    <message>
        <source>%1 bars of %2</source>
        <translation>barras de %1 de %2</translation>
    </message>
    <message>
        <source>Delta x = %1</source>
        <translation>Delta x = %1</translation>
    </message>
    <message>
        <source>Delta x = %1, not a number</source>
        <translation>Delta x = %1, no es un número</translation>
    </message>
    <message>
        <source>the secant from x = %1</source>
        <translation>la secante desde x = %1</translation>
    </message>
    <message>
        <source>Tangent problem for %1 at x = %2, Delta x = %3.</source>
        <translation>Problema de la tangente para %1 en x = %2, Delta x = %3.</translation>
    </message>
    <message>
        <source>Secant through %1: %2.</source>
        <translation>Secante por %1: %2.</translation>
    </message>
    <message>
        <source>No Taylor polynomial: %1.</source>
        <translation>Sin polinomio de Taylor: %1.</translation>
    </message>
    <message>
        <source>Taylor polynomials of %1.</source>
        <translation>Polinomios de Taylor de %1.</translation>
    </message>
    <message>
        <source>No terms yet; centre box: %1.</source>
        <translation>Aún no hay términos; casilla del centro: %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>the last of a list of screens (&quot;..., Newton&apos;s method and Taylor polynomials&quot;)</extracomment>
        <translation>y %1</translation>
    </message>
    <message>
        <source>A launcher opens %1 demonstration screens: %2.</source>
        <translation>Un lanzador abre %1 pantallas de demostración: %2.</translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>a sum&apos;s rule (left endpoints) in the convergence table and the area grid</extracomment>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>a sum&apos;s rule (right endpoints) in the convergence table and the area grid</extracomment>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation>Trapecios</translation>
    </message>
    <message>
        <source>Simpson</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>The step was not added: %1.</source>
        <translation>El paso no se añadió: %1.</translation>
    </message>
    <message>
        <source>Calculus demonstrations for the classroom. %1
Qt&apos;s standard options (-platform, -style, ...) are accepted.</source>
        <translation>Demostraciones de cálculo para el aula. %1
Se aceptan las opciones estándar de Qt (-platform, -style, ...).</translation>
    </message>
    <message>
        <source>lesson</source>
        <extracomment>the name of the command line&apos;s argument in `plotto --help`</extracomment>
        <translation>lección</translation>
    </message>
    <message>
        <source>A lesson to open (a .plotto file).</source>
        <translation>Una lección que abrir (un archivo .plotto).</translation>
    </message>
    <message>
        <source>[lesson]</source>
        <translation>[lección]</translation>
    </message>
    <message>
        <source>Lists the demonstration screens, one a line in teaching order, separated by tabs: key, button, menu entry, classic or addition (an addition opens from More Demonstrations), the entry&apos;s Alt letter.</source>
        <translation>Lista las pantallas de demostración, una por línea en el orden de enseñanza, separadas por tabuladores: clave, botón, entrada de menú, clásica o añadida (una añadida se abre desde Más demostraciones), la letra Alt de la entrada.</translation>
    </message>
    <message>
        <source>Opens a screen at the start: %1.</source>
        <translation>Abre una pantalla al inicio: %1.</translation>
    </message>
    <message>
        <source>name</source>
        <extracomment>the value of --screen in `plotto --help`</extracomment>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Writes the lesson as a worksheet to a PDF file, one step a page, and ends, with no window shown.</source>
        <translation>Escribe la lección como hoja de trabajo en un archivo PDF, un paso por página, y termina sin mostrar ninguna ventana.</translation>
    </message>
    <message>
        <source>file.pdf</source>
        <translation>archivo.pdf</translation>
    </message>
    <message>
        <source>With --worksheet: leaves the results as boxes to fill in, and writes the answers to a second file (NAME-answers.pdf).</source>
        <translation>Con --worksheet: deja los resultados como casillas para rellenar y escribe las respuestas en un segundo archivo (NOMBRE-answers.pdf).</translation>
    </message>
    <message>
        <source>Shows the program in a language: %1 (English is the default; without this, the language chosen in Tools, Language, else the desktop&apos;s).</source>
        <translation>Muestra el programa en un idioma: %1 (el inglés es el predeterminado; sin esta opción, el idioma elegido en Herramientas, Idioma, si no el del escritorio).</translation>
    </message>
    <message>
        <source>code</source>
        <extracomment>the value of --lang in `plotto --help`</extracomment>
        <translation>código</translation>
    </message>
    <message>
        <source>addition</source>
        <extracomment>a screen&apos;s kind in `plotto --screens`: one of the seed&apos;s eight, or one added since</extracomment>
        <translation>añadida</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>clásica</translation>
    </message>
    <message>
        <source>%1: answers</source>
        <translation>%1: respuestas</translation>
    </message>
    <message>
        <source>%1, and %2 or %3, both the natural logarithm</source>
        <translation>%1, y %2 o %3, ambos el logaritmo natural</translation>
    </message>
    <message>
        <source>A to E</source>
        <translation>A a E</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Signed: f - g</source>
        <translation>Con signo: f - g</translation>
    </message>
    <message>
        <source>Unsigned: |f - g|</source>
        <translation>Sin signo: |f - g|</translation>
    </message>
    <message>
        <source>A to F</source>
        <translation>A a F</translation>
    </message>
    <message>
        <source>leaves at x =</source>
        <translation>sale en x =</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Término nuevo</translation>
    </message>
    <message>
        <source>Lagrange bound</source>
        <translation>Cota de Lagrange</translation>
    </message>
    <message>
        <source>%1 is %2. Press to raise by one; the decrease action lowers by one.</source>
        <translation>%1 vale %2. Pulse para subir en uno; la acción de disminuir baja en uno.</translation>
    </message>
    <message>
        <source>%1 holds %2, which is not a number.</source>
        <translation>%1 contiene %2, que no es un número.</translation>
    </message>
    <message>
        <source>%1 strips is the most this screen sums.</source>
        <translation>%1 franjas es lo máximo que suma esta pantalla.</translation>
    </message>
    <message>
        <source>the screen has no control named &apos;%1&apos;</source>
        <translation>la pantalla no tiene ningún control llamado &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the box &apos;%1&apos; cannot take %2</source>
        <translation>la casilla &apos;%1&apos; no admite %2</translation>
    </message>
    <message>
        <source>the scroll bar &apos;%1&apos; cannot take that position</source>
        <translation>la barra &apos;%1&apos; no admite esa posición</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is ticked or not: true or false</source>
        <translation>&apos;%1&apos; está marcada o no: true o false</translation>
    </message>
    <message>
        <source>the screen has no menu entry &apos;%1&apos;</source>
        <translation>la pantalla no tiene ninguna entrada de menú &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the screen has no button &apos;%1&apos;</source>
        <translation>la pantalla no tiene ningún botón &apos;%1&apos;</translation>
    </message>
    <message>
        <source>This is not a lesson: %1 at character %2.</source>
        <translation>Esto no es una lección: %1 en el carácter %2.</translation>
    </message>
    <message>
        <source>The lesson has no valid version number.</source>
        <translation>La lección no tiene un número de versión válido.</translation>
    </message>
    <message>
        <source>Step %1: unknown screen &apos;%2&apos; (the screens are %3).</source>
        <translation>Paso %1: pantalla desconocida &apos;%2&apos; (las pantallas son %3).</translation>
    </message>
    <message>
        <source>Step %1: an action names no button to click or menu entry to choose.</source>
        <translation>Paso %1: una acción no nombra ningún botón que pulsar ni entrada de menú que elegir.</translation>
    </message>
    <message>
        <source>The lesson cannot be written to %1: %2.</source>
        <translation>La lección no se puede escribir en %1: %2.</translation>
    </message>
    <message>
        <source>The lesson could not be saved to %1: %2. Nothing was changed there.</source>
        <translation>La lección no se pudo guardar en %1: %2. No se cambió nada allí.</translation>
    </message>
    <message>
        <source>The lesson %1 cannot be read: %2.</source>
        <translation>La lección %1 no se puede leer: %2.</translation>
    </message>
    <message>
        <source>%1 is too large to be a lesson.</source>
        <translation>%1 es demasiado grande para ser una lección.</translation>
    </message>
    <message>
        <source>black</source>
        <translation>negro</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cian</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarillo</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>light blue</source>
        <translation>azul claro</translation>
    </message>
    <message>
        <source>light green</source>
        <translation>verde claro</translation>
    </message>
    <message>
        <source>light cyan</source>
        <translation>cian claro</translation>
    </message>
    <message>
        <source>light red</source>
        <translation>rojo claro</translation>
    </message>
    <message>
        <source>light magenta</source>
        <translation>magenta claro</translation>
    </message>
    <message>
        <source>light yellow</source>
        <translation>amarillo claro</translation>
    </message>
    <message>
        <source>bright white</source>
        <translation>blanco brillante</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>a drawn curve and the colour it is drawn in: &quot;y = x^2, in blue&quot;</extracomment>
        <translation>%1, en %2</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opciones]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Muestra la ayuda sobre las opciones de la línea de órdenes.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Muestra la ayuda con las opciones propias de Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Muestra la información de la versión.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción desconocida &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opciones desconocidas: %1.</translation>
    </message>
</context>
</TS>
