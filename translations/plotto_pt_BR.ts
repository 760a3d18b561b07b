<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Plotto</name>
    <message>
        <source>check box</source>
        <translation>caixa de seleção</translation>
    </message>
    <message>
        <source>scroll bar</source>
        <translation>barra de rolagem</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>So&amp;bre</translation>
    </message>
    <message>
        <source>Plotto lessons (*.plotto);;All files (*)</source>
        <translation>Lições do Plotto (*.plotto);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>That could not be done: %1 (error %2). Nothing else is affected; change what was typed and try again.</source>
        <translation>Não foi possível fazer isso: %1 (erro %2). Nada mais foi afetado; altere o que foi digitado e tente de novo.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>Não foi possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .svg, .pdf or .png.</source>
        <translation>O nome de arquivo %1 não diz que tipo de arquivo gravar: termine-o com .svg, .pdf ou .png.</translation>
    </message>
    <message>
        <source>the picture is too large for the memory</source>
        <translation>a imagem é grande demais para a memória</translation>
    </message>
    <message>
        <source>the file could not be made</source>
        <translation>o arquivo não pôde ser criado</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>You graphing window is compromised.  It will be reset to the defaults.</source>
        <translation>Sua janela gráfica está comprometida. Ela será restaurada aos valores padrão.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>&amp;Select Function</source>
        <translation>&amp;Selecionar função</translation>
    </message>
    <message>
        <source>&amp;Plotto!</source>
        <translation>&amp;Plotto!</translation>
    </message>
    <message>
        <source>&amp;Erase Graph</source>
        <translation>&amp;Apagar gráfico</translation>
    </message>
    <message>
        <source>&amp;Zoom In</source>
        <translation>Am&amp;pliar</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>&amp;Valores padrão</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Window: x from %1 to %2, y from %3 to %4.</source>
        <translation>Janela: x de %1 a %2, y de %3 a %4.</translation>
    </message>
    <message>
        <source>And %1 more drawings.</source>
        <translation>E mais %1 desenhos.</translation>
    </message>
    <message>
        <source>y = 0 (no function chosen)</source>
        <translation>y = 0 (nenhuma função escolhida)</translation>
    </message>
    <message>
        <source>&amp;Caption under the graph</source>
        <translation>&amp;Legenda sob o gráfico</translation>
    </message>
    <message>
        <source>&amp;Black and white (line styles instead of colours)</source>
        <translation>&amp;Preto e branco (estilos de linha em vez de cores)</translation>
    </message>
    <message>
        <source>&amp;Line width:</source>
        <translation>&amp;Espessura da linha:</translation>
    </message>
    <message>
        <source>&amp;Resolution:</source>
        <translation>&amp;Resolução:</translation>
    </message>
    <message>
        <source>Export Graph</source>
        <translation>Exportar gráfico</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg);;PDF document (*.pdf);;PNG picture (*.png)</source>
        <translation>Desenho SVG (*.svg);;Documento PDF (*.pdf);;Imagem PNG (*.png)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Visualizar impressão</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Type a Function...</source>
        <translation>&amp;Digitar uma função...</translation>
    </message>
    <message>
        <source>&amp;Type...</source>
        <translation>&amp;Digitar...</translation>
    </message>
    <message>
        <source>&amp;Projector Mode</source>
        <translation>Modo &amp;projetor</translation>
    </message>
    <message>
        <source>&amp;Hear the Curve</source>
        <translation>&amp;Ouvir a curva</translation>
    </message>
    <message>
        <source>&amp;Export Graph...</source>
        <translation>E&amp;xportar gráfico...</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Pr&amp;int Preview...</source>
        <translation>&amp;Visualizar impressão...</translation>
    </message>
    <message>
        <source>&amp;Add This Screen to the Lesson</source>
        <translation>&amp;Adicionar esta tela à lição</translation>
    </message>
    <message>
        <source>&amp;Open Lesson...</source>
        <translation>A&amp;brir lição...</translation>
    </message>
    <message>
        <source>&amp;Save Lesson...</source>
        <translation>&amp;Salvar lição...</translation>
    </message>
    <message>
        <source>Export Lesson as &amp;Worksheet...</source>
        <translation>Exportar lição como &amp;folha de exercícios...</translation>
    </message>
    <message>
        <source>&amp;Next Step</source>
        <translation>Próxi&amp;mo passo</translation>
    </message>
    <message>
        <source>Pre&amp;vious Step</source>
        <translation>Passo a&amp;nterior</translation>
    </message>
    <message>
        <source>Nothing is drawn to hear yet.</source>
        <translation>Ainda não há nada desenhado para ouvir.</translation>
    </message>
    <message>
        <source>No sound device: the curve cannot be heard here. Left and Right still walk along it.</source>
        <translation>Nenhum dispositivo de som: a curva não pode ser ouvida aqui. Esquerda e Direita continuam percorrendo-a.</translation>
    </message>
    <message>
        <source>, above the window</source>
        <translation>, acima da janela</translation>
    </message>
    <message>
        <source>, below the window</source>
        <translation>, abaixo da janela</translation>
    </message>
    <message>
        <source>Nothing is drawn to walk along yet.</source>
        <translation>Ainda não há nada desenhado para percorrer.</translation>
    </message>
    <message>
        <source>Curve %1 of %2 has no points to walk along.</source>
        <translation>A curva %1 de %2 não tem pontos para percorrer.</translation>
    </message>
    <message>
        <source>Curve %1 of %2: %3. </source>
        <translation>Curva %1 de %2: %3. </translation>
    </message>
    <message>
        <source>No root, turn or axis crossing on this curve.</source>
        <translation>Nenhuma raiz, extremo ou interseção com os eixos nesta curva.</translation>
    </message>
    <message>
        <source>the screen has no function &apos;%1&apos;</source>
        <translation>a tela não tem a função &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a typed function names every part: %1</source>
        <translation>uma função digitada nomeia cada parte: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a family number from 1 to %2</source>
        <translation>&quot;%1&quot; é um número de família de 1 a %2</translation>
    </message>
    <message>
        <source>the function &apos;%1&apos; cannot be taken: %2</source>
        <translation>a função &quot;%1&quot; não pode ser aceita: %2</translation>
    </message>
    <message>
        <source>Typed function</source>
        <translation>Função digitada</translation>
    </message>
    <message>
        <source>Type a function y = f(x)</source>
        <translation>Digite uma função y = f(x)</translation>
    </message>
    <message>
        <source>This screen does not graph a function y = f(x).</source>
        <translation>Esta tela não faz o gráfico de uma função y = f(x).</translation>
    </message>
    <message>
        <source>cannot be computed: the numbers are too large</source>
        <translation>não pode ser calculado: os números são grandes demais</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>&amp;Exibir</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reduzir</translation>
    </message>
    <message>
        <source>O&amp;riginal Window</source>
        <translation>Janela &amp;original</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Avan&amp;çar</translation>
    </message>
    <message>
        <source> Some drawings made before cannot be drawn again at a new window: press the screen&apos;s buttons to draw them here.</source>
        <translation> Alguns desenhos feitos antes não podem ser refeitos em uma nova janela: pressione os botões da tela para desenhá-los aqui.</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers: type them first.</source>
        <translation>Os limites da janela não são números: digite-os primeiro.</translation>
    </message>
    <message>
        <source>No window before this one.</source>
        <translation>Nenhuma janela antes desta.</translation>
    </message>
    <message>
        <source>No window after this one.</source>
        <translation>Nenhuma janela depois desta.</translation>
    </message>
    <message>
        <source>Use %1, the coefficients %2, the numbers e and pi, + - * / and ^ (a power, taken before a minus sign: -x^2 is -(x^2)). Write every product with *, as 2*x. Functions: %3.</source>
        <translation>Use %1, os coeficientes %2, os números e e pi, + - * / e ^ (uma potência, calculada antes de um sinal de menos: -x^2 é -(x^2)). Escreva todo produto com *, como 2*x. Funções: %3.</translation>
    </message>
    <message>
        <source>Examples...</source>
        <translation>Exemplos...</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemplos</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Error against the number of steps, log-log</source>
        <translation>Erro em função do número de passos, log-log</translation>
    </message>
    <message>
        <source>Re&amp;compute</source>
        <translation>Re&amp;calcular</translation>
    </message>
    <message>
        <source>slope -%1</source>
        <translation>inclinação -%1</translation>
    </message>
    <message>
        <source>Con&amp;vergence</source>
        <translation>&amp;Convergência</translation>
    </message>
    <message>
        <source>Convergence &amp;Table...</source>
        <translation>&amp;Tabela de convergência...</translation>
    </message>
    <message>
        <source>Animate Classes of Functions</source>
        <translation>Animar classes de funções</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animação</translation>
    </message>
    <message>
        <source>Continuous/Steps</source>
        <translation>Contínua/Passos</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Passos</translation>
    </message>
    <message>
        <source>Steps+Erase</source>
        <translation>Passos+Apagar</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>Continuous+Erase</source>
        <translation>Contínua+Apagar</translation>
    </message>
    <message>
        <source>Variable Range</source>
        <translation>Intervalo da variável</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Início:</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Fim:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Passos:</translation>
    </message>
    <message>
        <source>Which Variable?</source>
        <translation>Qual variável?</translation>
    </message>
    <message>
        <source>Animation frame</source>
        <translation>Quadro da animação</translation>
    </message>
    <message>
        <source>Select Variable(s)</source>
        <translation>Escolha a(s) variável(is)</translation>
    </message>
    <message>
        <source>&amp;Animate It!</source>
        <translation>&amp;Animar!</translation>
    </message>
    <message>
        <source>Erase Graph</source>
        <translation>Apagar gráfico</translation>
    </message>
    <message>
        <source>Erase Graph, animation panel</source>
        <translation>Apagar gráfico, painel de animação</translation>
    </message>
    <message>
        <source>OK to Click Animate</source>
        <translation>Pronto para animar</translation>
    </message>
    <message>
        <source>Use Scroll Bar Above</source>
        <translation>Use a barra acima</translation>
    </message>
    <message>
        <source>Graph a Function</source>
        <translation>Fazer o gráfico de uma função</translation>
    </message>
    <message>
        <source>Select a function from the pull down menu.  You may change the value of any of the variables, A to E.  Clicking [Plotto!] will graph the function.  You may change any value and graph again to see the change.  You may also animate the change.</source>
        <translation>Escolha uma função no menu suspenso. Você pode mudar o valor de qualquer uma das variáveis, de A a E. Clicar em [Plotto!] faz o gráfico da função. Você pode mudar qualquer valor e fazer o gráfico de novo para ver a mudança. Também pode animar a mudança.</translation>
    </message>
    <message>
        <source>Animate It!</source>
        <translation>Animar!</translation>
    </message>
    <message>
        <source>Animate the function selected by checking one or more variables at the right, selecting the range of the variable, and clicking [Animate It!]</source>
        <translation>Anime a função escolhida marcando uma ou mais variáveis à direita, escolhendo o intervalo da variável e clicando em [Animar!]</translation>
    </message>
    <message>
        <source>Make conjectures about coefficients</source>
        <translation>Fazer conjecturas sobre os coeficientes</translation>
    </message>
    <message>
        <source>You may observe the changes each coefficient makes on the graph.  Make some conjectures about what each coefficient changes the graph.</source>
        <translation>Você pode observar as mudanças que cada coeficiente faz no gráfico. Faça conjecturas sobre o que cada coeficiente muda no gráfico.</translation>
    </message>
    <message>
        <source>Left and Right Clicking Labels</source>
        <translation>Cliques esquerdo e direito nos rótulos</translation>
    </message>
    <message>
        <source>Clicking on the coefficient labels will increase or decrease the coefficients.  Try left clicking to increase and right clicking to decrease.</source>
        <translation>Clicar nos rótulos dos coeficientes aumenta ou diminui os coeficientes. Experimente o clique esquerdo para aumentar e o direito para diminuir.</translation>
    </message>
    <message>
        <source>Change the Graphing Window</source>
        <translation>Mudar a janela gráfica</translation>
    </message>
    <message>
        <source>Clicking on the &lt; or &gt; labels next to the graphing window ranges will increase or decrease them by one also.</source>
        <translation>Clicar nos rótulos &lt; ou &gt; ao lado dos limites da janela também os aumenta ou diminui em um.</translation>
    </message>
    <message>
        <source>Clicking Labels</source>
        <translation>Clicar nos rótulos</translation>
    </message>
    <message>
        <source>Try clicking other labels.  Most of them will increase or decrease by one with left or right clicks.</source>
        <translation>Experimente clicar em outros rótulos. A maioria aumenta ou diminui em um com o clique esquerdo ou direito.</translation>
    </message>
    <message>
        <source>Window limit changes &lt; , &gt;</source>
        <translation>Mudar os limites da janela &lt; , &gt;</translation>
    </message>
    <message>
        <source>Notice the &lt; and &gt; green labels next to the window limits.  Clicking on the Arrows will increase or decrease the window limit by one.  Double clicking will increase or decrease it by 5.</source>
        <translation>Observe os rótulos verdes &lt; e &gt; ao lado dos limites da janela. Clicar nas setas aumenta ou diminui o limite da janela em um. Um clique duplo aumenta ou diminui em 5.</translation>
    </message>
    <message>
        <source>Animating %1 of %2 from %3 to %4 in %5 steps, %6.</source>
        <translation>Animando %1 de %2 de %3 a %4 em %5 passos, %6.</translation>
    </message>
    <message>
        <source>no coefficient</source>
        <translation>nenhum coeficiente</translation>
    </message>
    <message>
        <source>Frame value %1; %2.</source>
        <translation>Valor do quadro %1; %2.</translation>
    </message>
    <message>
        <source>Area Between Two Curves</source>
        <translation>Área entre duas curvas</translation>
    </message>
    <message>
        <source>Left a</source>
        <translation>Esquerda a</translation>
    </message>
    <message>
        <source>Right b</source>
        <translation>Direita b</translation>
    </message>
    <message>
        <source>Strips n</source>
        <translation>Faixas n</translation>
    </message>
    <message>
        <source>&amp;Double Strips</source>
        <translation>&amp;Dobrar faixas</translation>
    </message>
    <message>
        <source>Find &amp;Crossings</source>
        <translation>Achar &amp;interseções</translation>
    </message>
    <message>
        <source>Find where f and g cross in [a, b], shade the region and sum the strips</source>
        <translation>Acha onde f e g se cruzam em [a, b], sombreia a região e soma as faixas</translation>
    </message>
    <message>
        <source>Areas by the strip rules</source>
        <translation>Áreas pelas regras das faixas</translation>
    </message>
    <message>
        <source>Convergence of the signed area</source>
        <translation>Convergência da área com sinal</translation>
    </message>
    <message>
        <source>Limit (integral)</source>
        <translation>Limite (integral)</translation>
    </message>
    <message>
        <source>Shaded light cyan where f is above g, yellow where g is above f.</source>
        <translation>Sombreado em ciano claro onde f está acima de g, amarelo onde g está acima de f.</translation>
    </message>
    <message>
        <source>Type a number in each of the boxes Left a and Right b.</source>
        <translation>Digite um número em cada uma das caixas Esquerda a e Direita b.</translation>
    </message>
    <message>
        <source>The interval from a to b is too wide for the computer&apos;s numbers.</source>
        <translation>O intervalo de a a b é largo demais para os números do computador.</translation>
    </message>
    <message>
        <source>Left a must be less than Right b.</source>
        <translation>Esquerda a deve ser menor que Direita b.</translation>
    </message>
    <message>
        <source>The number of strips n must be a whole number from 1 to %1.</source>
        <translation>O número de faixas n deve ser um inteiro de 1 a %1.</translation>
    </message>
    <message>
        <source>Type g(x) in its box (for example x + 2).</source>
        <translation>Digite g(x) em sua caixa (por exemplo x + 2).</translation>
    </message>
    <message>
        <source>the region between %1 and %2 from x = %3 to %4</source>
        <translation>a região entre %1 e %2 de x = %3 a %4</translation>
    </message>
    <message>
        <source>and %1 more (Ctrl+C copies them all)</source>
        <translation>e mais %1 (Ctrl+C copia todas)</translation>
    </message>
    <message>
        <source>f and g do not cross in [a, b].</source>
        <translation>f e g não se cruzam em [a, b].</translation>
    </message>
    <message>
        <source>n odd</source>
        <translation>n ímpar</translation>
    </message>
    <message>
        <source>Rule (n = %1)</source>
        <translation>Regra (n = %1)</translation>
    </message>
    <message>
        <source>Signed area %1, unsigned area %2 from x = %3 to %4 (adaptive Gauss-Kronrod, split at the crossings; error below %5).</source>
        <translation>Área com sinal %1, área sem sinal %2 de x = %3 a %4 (Gauss-Kronrod adaptativo, dividido nas interseções; erro abaixo de %5).</translation>
    </message>
    <message>
        <source>No area: %1, so the area between the curves does not exist on [a, b].</source>
        <translation>Sem área: %1, então a área entre as curvas não existe em [a, b].</translation>
    </message>
    <message>
        <source>the left end a</source>
        <translation>a extremidade esquerda a</translation>
    </message>
    <message>
        <source>the right end b</source>
        <translation>a extremidade direita b</translation>
    </message>
    <message>
        <source>Area between f, %1, and g(x) = %2 from a = %3 to b = %4 with n = %5 strips.</source>
        <translation>Área entre f, %1, e g(x) = %2 de a = %3 a b = %4 com n = %5 faixas.</translation>
    </message>
    <message>
        <source>No crossings.</source>
        <translation>Nenhuma interseção.</translation>
    </message>
    <message>
        <source>%1: signed %2, unsigned %3.</source>
        <translation>%1: com sinal %2, sem sinal %3.</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>O que é isto?</translation>
    </message>
    <message>
        <source>This screen finds the area between two curves f and g from x = a to x = b: where they cross, the region between them, and how sums of thin strips close in on the area.</source>
        <translation>Esta tela acha a área entre duas curvas f e g de x = a a x = b: onde elas se cruzam, a região entre elas e como somas de faixas finas se aproximam da área.</translation>
    </message>
    <message>
        <source>Setting up</source>
        <translation>Preparação</translation>
    </message>
    <message>
        <source>f is the screen&apos;s function: select it from the menu and choose A to E, or type one with Tools, Type a Function.  Type g(x) in its box (it may use A to E too).  Type a and b, or click their green labels to move them by one (left button up, right button down).</source>
        <translation>f é a função da tela: escolha-a no menu e escolha de A a E, ou digite uma com Ferramentas, Digitar uma função. Digite g(x) em sua caixa (ela também pode usar de A a E). Digite a e b, ou clique em seus rótulos verdes para movê-los em um (botão esquerdo sobe, direito desce).</translation>
    </message>
    <message>
        <source>[Find Crossings]</source>
        <translation>[Achar interseções]</translation>
    </message>
    <message>
        <source>Lists each x in [a, b] where f = g, found to the computer&apos;s full precision, and shades the region: light cyan where f is above g, yellow where g is above f.  Where a curve is not defined somewhere in [a, b] the screen says where, and gives no area.</source>
        <translation>Lista cada x em [a, b] onde f = g, achado com toda a precisão do computador, e sombreia a região: ciano claro onde f está acima de g, amarelo onde g está acima de f. Onde uma curva não está definida em algum ponto de [a, b], a tela diz onde e não dá área.</translation>
    </message>
    <message>
        <source>The strips</source>
        <translation>As faixas</translation>
    </message>
    <message>
        <source>The grid sums n strips by five rules: the signed area of f - g (parts where g is above count as negative) and the unsigned area of |f - g|, with the limit from adaptive integration in the last row.  [Double Strips] doubles n; Convergence, Convergence Table shows each rule&apos;s error as n doubles.</source>
        <translation>A tabela soma n faixas por cinco regras: a área com sinal de f - g (as partes em que g está acima contam como negativas) e a área sem sinal de |f - g|, com o limite da integração adaptativa na última linha. [Dobrar faixas] dobra n; Convergência, Tabela de convergência mostra o erro de cada regra à medida que n dobra.</translation>
    </message>
    <message>
        <source>Graphing Classes of Functions</source>
        <translation>Gráficos de classes de funções</translation>
    </message>
    <message>
        <source>How To Use This</source>
        <translation>Como usar</translation>
    </message>
    <message>
        <source>This screen allows you to graph various functions.  Select the function you like from the menu.  Enter the values for A, B, C, D, E, then click on [Plotto].</source>
        <translation>Esta tela permite fazer gráficos de várias funções. Escolha a função desejada no menu. Digite os valores de A, B, C, D, E e clique em [Plotto].</translation>
    </message>
    <message>
        <source>Making Changes</source>
        <translation>Fazendo mudanças</translation>
    </message>
    <message>
        <source>You may change the variables then graph again to see the changes to the graph.  You will not erase the graph when changing values of variables or selecting new functions.</source>
        <translation>Você pode mudar as variáveis e fazer o gráfico de novo para ver as mudanças. O gráfico não é apagado quando você muda os valores das variáveis ou escolhe novas funções.</translation>
    </message>
    <message>
        <source>Quick change hints</source>
        <translation>Dicas de mudança rápida</translation>
    </message>
    <message>
        <source>You may also change the values of the variables by clicking on the labels.  Left clicks increase the value by one, a right click decreases the value by one.</source>
        <translation>Você também pode mudar os valores das variáveis clicando nos rótulos. O clique esquerdo aumenta o valor em um, o clique direito diminui o valor em um.</translation>
    </message>
    <message>
        <source>Change the Graphing Window?</source>
        <translation>Mudar a janela gráfica?</translation>
    </message>
    <message>
        <source>You can click on [Zoom In] to shrink the graphing area to 1/4 by reducing Xmin, Xmax, Ymin, and Ymax in half.  You may click in the values at the end of the axes to change them to any values you wish.</source>
        <translation>Você pode clicar em [Ampliar] para reduzir a área do gráfico a 1/4, dividindo Xmín, Xmáx, Ymín e Ymáx pela metade. Você pode clicar nos valores nas pontas dos eixos para mudá-los para os valores que quiser.</translation>
    </message>
    <message>
        <source>Start( _____, _____ )</source>
        <translation>Início( _____, _____ )</translation>
    </message>
    <message>
        <source>Type the rates dy and dx</source>
        <translation>Digite as taxas dy e dx</translation>
    </message>
    <message>
        <source>x and y</source>
        <translation>x e y</translation>
    </message>
    <message>
        <source> With dx = 1 the field is the slope field of dy/dx = dy.</source>
        <translation> Com dx = 1 o campo é o campo de direções de dy/dx = dy.</translation>
    </message>
    <message>
        <source>Enter x coordinate:</source>
        <translation>Digite a coordenada x:</translation>
    </message>
    <message>
        <source>Enter y coordinate:</source>
        <translation>Digite a coordenada y:</translation>
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
        <translation>Na opção de curva, Euler é o único método para calcular os pontos.</translation>
    </message>
    <message>
        <source>Sorry</source>
        <translation>Desculpe</translation>
    </message>
    <message>
        <source>The maximum for the points graphed is 10000</source>
        <translation>O máximo de pontos plotados é 10000</translation>
    </message>
    <message>
        <source>Max Points Met-Plus</source>
        <translation>Máximo de pontos atingido</translation>
    </message>
    <message>
        <source>Slope Fields, Integral Curves, or Approximations</source>
        <translation>Campos de direções, curvas integrais ou aproximações</translation>
    </message>
    <message>
        <source>This screen allows you to see Slope Fields, see integral curves, or to use various methods to find approximations.</source>
        <translation>Esta tela permite ver campos de direções, ver curvas integrais ou usar vários métodos para achar aproximações.</translation>
    </message>
    <message>
        <source>Graph Slope Fields</source>
        <translation>Desenhar campos de direções</translation>
    </message>
    <message>
        <source>Select dx and dy functions from the menus.  Select the values of the coefficients.  Click on [Graph Slope Fields] to see the slopes at all the integral values of the -10 by 10 screen.  You may resize the screen.  The vectors start at the integers so you can determine the direction from where it is supposed to start.</source>
        <translation>Escolha as funções dx e dy nos menus. Escolha os valores dos coeficientes. Clique em [Desenhar campos de direções] para ver as inclinações em todos os pontos inteiros da tela de -10 a 10. Você pode redimensionar a tela. Os vetores começam nos inteiros, para que você veja a direção a partir de onde devem começar.</translation>
    </message>
    <message>
        <source>Left or Right Click in the Graphing screen</source>
        <translation>Clique esquerdo ou direito na área do gráfico</translation>
    </message>
    <message>
        <source>Clicking on the graphing part of the screen will start the plot of an integral curve or can be used to find the endpoint approximation from that initial point.  The graph will follow the slope field smoothly or acording to the Delta x from left to right.  If the curve leaves the area, the curve will not come back onto the screen.  If you right click the slope field will go in the opposite direction.  You may select the number of points to plot and the change in x(Delta x) for the Method used in the computation of approximation.  The number of points and Delta x are used by the Plotto button also.</source>
        <translation>Clicar na parte do gráfico da tela inicia o traçado de uma curva integral ou serve para achar a aproximação do ponto final a partir desse ponto inicial. O gráfico segue o campo de direções de forma suave ou de acordo com o Delta x, da esquerda para a direita. Se a curva sair da área, ela não volta para a tela. Com o clique direito, o campo é percorrido no sentido oposto. Você pode escolher o número de pontos a plotar e a variação de x (Delta x) para o método usado no cálculo da aproximação. O número de pontos e o Delta x também são usados pelo botão Plotto.</translation>
    </message>
    <message>
        <source>Purpose? - Find an endpoint or See the curve</source>
        <translation>Objetivo? - Achar um ponto final ou ver a curva</translation>
    </message>
    <message>
        <source>The purpose may be confusing to some.  The best way to deal with this is a circle dy/dx = -x/y.  If you started at (4,3) and wanted a y value at x=6 using 3 steps, you would get a value.  If you followed the slope field you shouldn&apos;t get there since the radius is 5.  The circle would not have an x=6.  Finding the approximation is achieved since you do not hit a vertical slope and delta x stays positive making the slope change orientation(it goes up-right instead of down-left).  This should graph a &apos;V&apos; or non-differential point.  The smooth curve is achieved by using dy and dx separately in a vector plot.  The delta x is no longer the change in x.  Delta x is the length of each the vector used in plotting the curve.</source>
        <translation>O objetivo pode confundir alguns. A melhor forma de entendê-lo é com um círculo dy/dx = -x/y. Se você começar em (4,3) e quiser um valor de y em x=6 com 3 passos, obterá um valor. Seguindo o campo de direções você não deveria chegar lá, pois o raio é 5. O círculo não teria x=6. A aproximação é obtida porque não se encontra uma inclinação vertical e delta x continua positivo, fazendo a inclinação mudar de orientação (vai para cima e à direita em vez de para baixo e à esquerda). Isso deve desenhar um &quot;V&quot;, um ponto não diferenciável. A curva suave é obtida usando dy e dx separadamente em um traçado vetorial. Delta x deixa de ser a variação de x. Delta x é o comprimento de cada vetor usado para traçar a curva.</translation>
    </message>
    <message>
        <source>I want an exact point to Start?</source>
        <translation>Quero começar em um ponto exato?</translation>
    </message>
    <message>
        <source>You may not be able to move the cursor to the point you want.  You may click on the Start(___,___) label box to enter your points.  As soon as you enter the y coordinate the graph will show your plot and the endpoint will show the final value.  If your plot goes off the graph window the program at that point for your endpoint.  Change the window so it will fit.</source>
        <translation>Talvez você não consiga mover o cursor até o ponto desejado. Você pode clicar no rótulo Início(___,___) para digitar seus pontos. Assim que digitar a coordenada y, o gráfico mostrará seu traçado e o ponto final mostrará o valor final. Se seu traçado sair da janela gráfica, o programa para nesse ponto para o seu ponto final. Mude a janela para que ele caiba.</translation>
    </message>
    <message>
        <source>Plotto!</source>
        <translation>Plotto!</translation>
    </message>
    <message>
        <source>Clicking on [Plotto] will set in motion the plotting of the integral curves from 20 points on the x-axis and 20 points on the y-axis.  These would be at the integer points for the default -10 by 10 screen.  You may shift these points by entering a value in the Horizontal Shift or Vertical Shift boxes at the right.  You may also make the plotting Bi-Directional by checking that box.  You may have to wait for the screen to change since it will graph all at once.</source>
        <translation>Clicar em [Plotto] inicia o traçado das curvas integrais a partir de 20 pontos no eixo x e 20 pontos no eixo y. Na tela padrão de -10 a 10 eles ficam nos pontos inteiros. Você pode deslocar esses pontos digitando um valor nas caixas Deslocamento horizontal ou Deslocamento vertical à direita. Também pode tornar o traçado bidirecional marcando essa caixa. Talvez seja preciso esperar a tela mudar, pois tudo é desenhado de uma vez.</translation>
    </message>
    <message>
        <source>Typed rates: %1; %2.</source>
        <translation>Taxas digitadas: %1; %2.</translation>
    </message>
    <message>
        <source>Rates: %1, that is dy = %2; %3, that is dx = %4.</source>
        <translation>Taxas: %1, ou seja dy = %2; %3, ou seja dx = %4.</translation>
    </message>
    <message>
        <source>Purpose: approximation by %1, %2 %3.</source>
        <translation>Objetivo: aproximação por %1, %2 %3.</translation>
    </message>
    <message>
        <source>Purpose: smooth curves.</source>
        <translation>Objetivo: curvas suaves.</translation>
    </message>
    <message>
        <source>EndPt: the curve stops where dy/dx is undefined</source>
        <translation>Ponto final: a curva para onde dy/dx não está definida</translation>
    </message>
    <message>
        <source>the slope field</source>
        <translation>o campo de direções</translation>
    </message>
    <message>
        <source>an integral curve</source>
        <translation>uma curva integral</translation>
    </message>
    <message>
        <source>Slope Fields</source>
        <translation>Campos de direções</translation>
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
        <translation>Clique no gráfico para gerar uma curva integral.</translation>
    </message>
    <message>
        <source>Start (____, ____)</source>
        <translation>Início (____, ____)</translation>
    </message>
    <message>
        <source>Endpt ( ____, ____ )</source>
        <translation>Ponto final ( ____, ____ )</translation>
    </message>
    <message>
        <source>&amp;Show Slope Field</source>
        <translation>&amp;Mostrar campo de direções</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Find &amp;Appoximation</source>
        <translation>Achar &amp;aproximação</translation>
    </message>
    <message>
        <source>See smooth &amp;curve</source>
        <translation>Ver &amp;curva suave</translation>
    </message>
    <message>
        <source>Method Options</source>
        <translation>Opções de método</translation>
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
        <translation>Opções do Plotto</translation>
    </message>
    <message>
        <source>Horizontal Shift</source>
        <translation>Deslocamento horizontal</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Deslocamento vertical</translation>
    </message>
    <message>
        <source>Bi-directional</source>
        <translation>Bidirecional</translation>
    </message>
    <message>
        <source>Number of Curve Points</source>
        <translation>Número de pontos da curva</translation>
    </message>
    <message>
        <source>Maximum of 10000 points</source>
        <translation>Máximo de 10000 pontos</translation>
    </message>
    <message>
        <source>Delta x = </source>
        <translation>Delta x = </translation>
    </message>
    <message>
        <source>This value is used in Euler&apos;s Method to find succeeding points.</source>
        <translation>Este valor é usado no método de Euler para achar os pontos seguintes.</translation>
    </message>
    <message>
        <source>Select d&amp;y - Function</source>
        <translation>Selecionar função d&amp;y</translation>
    </message>
    <message>
        <source>Select d&amp;x - Function</source>
        <translation>Selecionar função d&amp;x</translation>
    </message>
    <message>
        <source>Convergence of the step methods</source>
        <translation>Convergência dos métodos de passo</translation>
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
        <translation>Passo h</translation>
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
        <translation>Limites por épsilon e delta</translation>
    </message>
    <message>
        <source>ε and δ</source>
        <translation>ε e δ</translation>
    </message>
    <message>
        <source>Find &amp;L</source>
        <translation>Achar &amp;L</translation>
    </message>
    <message>
        <source>Fin&amp;d δ</source>
        <translation>Achar &amp;δ</translation>
    </message>
    <message>
        <source>&amp;Halve ε</source>
        <translation>&amp;Dividir ε por 2</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Epsilon and delta</source>
        <translation>Épsilon e delta</translation>
    </message>
    <message>
        <source>Type a number for a.</source>
        <translation>Digite um número para a.</translation>
    </message>
    <message>
        <source>   (the window&apos;s edge)</source>
        <translation>   (a borda da janela)</translation>
    </message>
    <message>
        <source>near a</source>
        <translation>perto de a</translation>
    </message>
    <message>
        <source>(none in the window)</source>
        <translation>(nenhum na janela)</translation>
    </message>
    <message>
        <source>the band L = %1 ± ε = %2 about a = %3 for %4</source>
        <translation>a faixa L = %1 ± ε = %2 em torno de a = %3 para %4</translation>
    </message>
    <message>
        <source>the point a</source>
        <translation>o ponto a</translation>
    </message>
    <message>
        <source>This screen shows what the limit of f(x) as x approaches a means: for every ε &gt; 0 there is a δ &gt; 0 such that every x with 0 &lt; |x - a| &lt; δ has |f(x) - L| &lt; ε.  You choose ε; the screen finds the largest δ.</source>
        <translation>Esta tela mostra o que significa o limite de f(x) quando x tende a a: para todo ε &gt; 0 existe um δ &gt; 0 tal que todo x com 0 &lt; |x - a| &lt; δ satisfaz |f(x) - L| &lt; ε. Você escolhe ε; a tela acha o maior δ.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function (for instance sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) or sin(1/x)).  Type the point a (or click the green label a =: left button up by one, right button down) and the limit L, or press [Find L]: it looks at f(a - h) and f(a + h) as h halves forty times, down to about 1e-12 times max(1, |a|), and says whether both sides settle on one value (six values in a row agreeing to 1e-5), settle on different values, grow without bound or do not settle.</source>
        <translation>Escolha uma função no menu e escolha de A a E, ou digite uma com Ferramentas, Digitar uma função (por exemplo sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) ou sin(1/x)). Digite o ponto a (ou clique no rótulo verde a =: botão esquerdo sobe um, direito desce) e o limite L, ou pressione [Achar L]: ele examina f(a - h) e f(a + h) enquanto h é dividido ao meio quarenta vezes, até cerca de 1e-12 vezes max(1, |a|), e diz se os dois lados se estabilizam em um valor (seis valores seguidos concordando até 1e-5), se estabilizam em valores diferentes, crescem sem limite ou não se estabilizam.</translation>
    </message>
    <message>
        <source>[Find δ] and [Halve ε]</source>
        <translation>[Achar δ] e [Dividir ε por 2]</translation>
    </message>
    <message>
        <source>[Find δ] shades the band L ± ε in green and the band a ± δ in cyan, with the largest δ for which the graph stays in the green band, and marks in red where the graph first leaves it.  [Halve ε] halves ε and looks again; clicking the green label ε = halves it with the left button and doubles it with the right.  Each ε adds a row to the table: ε, δ, δ/ε and where the graph leaves the band, so that you can watch δ shrink with ε.  Where points as close to a as the search looks leave the band, the screen says that no δ works for that ε: f has no limit at a, or L is not it.</source>
        <translation>[Achar δ] sombreia em verde a faixa L ± ε e em ciano a faixa a ± δ, com o maior δ para o qual o gráfico fica na faixa verde, e marca em vermelho onde o gráfico sai dela pela primeira vez. [Dividir ε por 2] divide ε ao meio e procura de novo; clicar no rótulo verde ε = o divide ao meio com o botão esquerdo e o dobra com o direito. Cada ε acrescenta uma linha à tabela: ε, δ, δ/ε e onde o gráfico sai da faixa, para que você veja δ encolher com ε. Onde pontos tão próximos de a quanto a busca olha saem da faixa, a tela diz que nenhum δ serve para esse ε: f não tem limite em a, ou o limite não é L.</translation>
    </message>
    <message>
        <source>How δ is found</source>
        <translation>Como δ é encontrado</translation>
    </message>
    <message>
        <source>This is a numerical search, not a proof.  On each side of a, f is checked at about 7000 points: a dense cluster from 1e-13 times max(1, |a|), 64 points between each distance and its double, and 4096 evenly spread to the window&apos;s edge.  Between the last point inside the band and the first outside, the search checks sixteen pieces again and again until δ is known to 1e-12 of itself.  Points where f is undefined are not in its domain and are left out.  A narrow spike between samples can be missed.</source>
        <translation>Esta é uma busca numérica, não uma prova. De cada lado de a, f é avaliada em cerca de 7000 pontos: um aglomerado denso a partir de 1e-13 vezes max(1, |a|), 64 pontos entre cada distância e o seu dobro, e 4096 distribuídos uniformemente até a borda da janela. Entre o último ponto dentro da faixa e o primeiro fora, a busca verifica dezesseis pedaços repetidamente até conhecer δ com precisão de 1e-12 de si mesmo. Pontos onde f não está definida não estão no seu domínio e são deixados de fora. Um pico estreito entre amostras pode passar despercebido.</translation>
    </message>
    <message>
        <source>Holes and dots</source>
        <translation>Buracos e pontos</translation>
    </message>
    <message>
        <source>A filled dot marks (a, f(a)) where f is defined at a; an open circle marks (a, L) where f(a) is undefined or differs from L.</source>
        <translation>Um ponto cheio marca (a, f(a)) onde f está definida em a; um círculo vazio marca (a, L) onde f(a) não está definida ou difere de L.</translation>
    </message>
    <message>
        <source>The Mean Value Theorem</source>
        <translation>O teorema do valor médio</translation>
    </message>
    <message>
        <source>MVT Set Up</source>
        <translation>Preparação do TVM</translation>
    </message>
    <message>
        <source>Left endpt</source>
        <translation>Extremo esq.</translation>
    </message>
    <message>
        <source>Right endpt</source>
        <translation>Extremo dir.</translation>
    </message>
    <message>
        <source>Apply to Graph</source>
        <translation>Aplicar ao gráfico</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Inclinação</translation>
    </message>
    <message>
        <source>Find c</source>
        <translation>Achar c</translation>
    </message>
    <message>
        <source>Use the Slider</source>
        <translation>Use o controle deslizante</translation>
    </message>
    <message>
        <source>Slope = </source>
        <translation>Inclinação = </translation>
    </message>
    <message>
        <source>Values of c</source>
        <translation>Valores de c</translation>
    </message>
    <message>
        <source>the secant over [a, b]</source>
        <translation>a secante sobre [a, b]</translation>
    </message>
    <message>
        <source>ERROR!  0/0</source>
        <translation>ERRO!  0/0</translation>
    </message>
    <message>
        <source>Enter an x value to check</source>
        <translation>Digite um valor de x para verificar</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>Digite X</translation>
    </message>
    <message>
        <source>the points c</source>
        <translation>os pontos c</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the Mean Value Theorem.  Most of the function selections are continuous so it may be applied to most of them, at least you can define a continuous interval.</source>
        <translation>Esta tela serve para demonstrar o teorema do valor médio. A maioria das funções disponíveis é contínua, então ele pode ser aplicado à maioria delas; pelo menos é possível definir um intervalo em que sejam contínuas.</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Primeiros passos</translation>
    </message>
    <message>
        <source>To get started, select a function from the pull down menu or click on the function to get another one.  Select the values for A to E for the function and [Plotto].  The right side of the screen is to setup the interval or a and b end points.  Once you have entered the end points, Click [Apply to Graph].  This will plot the line and calculate the points and slope.</source>
        <translation>Para começar, escolha uma função no menu suspenso ou clique na função para obter outra. Escolha os valores de A a E para a função e clique em [Plotto]. O lado direito da tela serve para configurar o intervalo, ou seja, os extremos a e b. Depois de digitar os extremos, clique em [Aplicar ao gráfico]. Isso traça a reta e calcula os pontos e a inclinação.</translation>
    </message>
    <message>
        <source>Find c --- Three Ways</source>
        <translation>Achar c --- três maneiras</translation>
    </message>
    <message>
        <source>There are many ways to find c, the value guaranteed by the MVT.  1)Use the Slider to approximate where c would be on the (a,b) interval.  Each time you move the slider or click on the arrow the tangent line will be graphed and its slope determined at the point.  You can keep moving the slider until the slope from the setup matches the slope at the point. 2) Click on the &apos;x =&apos; label.  You will be asked to enter a value for x.  The slider will automatically move to the point and show the tangent line and its slope.  3) Click on [Find c].  This button will find all points(up to 20) on the graph having the same slope as the secant line.  They are listed in a chart.</source>
        <translation>Há muitas formas de achar c, o valor garantido pelo TVM. 1) Use o controle deslizante para estimar onde c estaria no intervalo (a,b). Cada vez que você move o controle ou clica na seta, a reta tangente é traçada e sua inclinação determinada no ponto. Você pode mover o controle até a inclinação da configuração coincidir com a inclinação no ponto. 2) Clique no rótulo &quot;x =&quot;. Será pedido um valor de x. O controle se move automaticamente até o ponto e mostra a reta tangente e sua inclinação. 3) Clique em [Achar c]. Este botão acha todos os pontos (até 20) do gráfico com a mesma inclinação da reta secante. Eles são listados em uma tabela.</translation>
    </message>
    <message>
        <source>Accuracy Problems</source>
        <translation>Problemas de precisão</translation>
    </message>
    <message>
        <source>There are some accuracy considerations when using [Find c].  The slopes are compared to the nearest 0.001.  The calculated slope from the end points may differ from the slope of the tangent line.  Some MVT points may be missed due the accuracy when scannning through the function for the points.  This usually does not happen unless your interval is wide and there are rapid fluctuations like sin(20x).</source>
        <translation>Há algumas questões de precisão ao usar [Achar c]. As inclinações são comparadas com precisão de 0,001. A inclinação calculada a partir dos extremos pode diferir da inclinação da reta tangente. Alguns pontos do TVM podem ser perdidos por causa da precisão ao percorrer a função em busca dos pontos. Isso geralmente não acontece, a menos que o intervalo seja largo e haja oscilações rápidas como em sin(20x).</translation>
    </message>
    <message>
        <source>Secant from %1 to %2, %3.</source>
        <translation>Secante de %1 a %2, %3.</translation>
    </message>
    <message>
        <source>Slider point %1, %2.</source>
        <translation>Ponto do controle deslizante %1, %2.</translation>
    </message>
    <message>
        <source>Newton&apos;s Method and Derivatives</source>
        <translation>Método de Newton e derivadas</translation>
    </message>
    <message>
        <source>Newton&apos;s Method</source>
        <translation>Método de Newton</translation>
    </message>
    <message>
        <source>Guess:</source>
        <translation>Estimativa:</translation>
    </message>
    <message>
        <source>Apply Newton&apos;s</source>
        <translation>Aplicar Newton</translation>
    </message>
    <message>
        <source>Graph &amp;Derivative</source>
        <translation>Gráfico da &amp;derivada</translation>
    </message>
    <message>
        <source>Guesses</source>
        <translation>Estimativas</translation>
    </message>
    <message>
        <source>Guess #</source>
        <translation>Estimativa nº</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source> (no f(x) here)</source>
        <translation> (não há f(x) aqui)</translation>
    </message>
    <message>
        <source> (no f&apos;(x) here)</source>
        <translation> (não há f&apos;(x) aqui)</translation>
    </message>
    <message>
        <source> (too large)</source>
        <translation> (grande demais)</translation>
    </message>
    <message>
        <source>This guess failed due to zero for the slope</source>
        <translation>Esta estimativa falhou porque a inclinação é zero</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Divisão por zero</translation>
    </message>
    <message>
        <source>the derivative of </source>
        <translation>a derivada de </translation>
    </message>
    <message>
        <source>This screen is used to demonstrate Newton&apos;s method for finding roots(x-intercepts) of functions.  Along the way you can graph the derivatives of functions too.</source>
        <translation>Esta tela serve para demonstrar o método de Newton para achar raízes (interseções com o eixo x) de funções. No caminho você também pode fazer os gráficos das derivadas das funções.</translation>
    </message>
    <message>
        <source>Newton&apos;s method simple takes a guess, uses the slope of the function at the (x={guess},y) point to plot where this tangent line will intercept the x-axis.  This becomes the second guess and is used in the same procedure to find the third and so on...  As your guesses get closer to the root, the function appears more linear like so you get very close.</source>
        <translation>O método de Newton simplesmente toma uma estimativa e usa a inclinação da função no ponto (x={estimativa},y) para traçar onde essa reta tangente corta o eixo x. Esse ponto passa a ser a segunda estimativa, usada no mesmo procedimento para achar a terceira, e assim por diante... À medida que suas estimativas se aproximam da raiz, a função parece mais linear, e você chega muito perto.</translation>
    </message>
    <message>
        <source>Failures</source>
        <translation>Falhas</translation>
    </message>
    <message>
        <source>There may be some cases where Newton&apos;s Method fails.   This may be due to the nature of the function or the guess.</source>
        <translation>Pode haver casos em que o método de Newton falha. Isso pode se dever à natureza da função ou à estimativa.</translation>
    </message>
    <message>
        <source>[Apply Newton&apos;s]</source>
        <translation>[Aplicar Newton]</translation>
    </message>
    <message>
        <source>To try Newton&apos;s method: select a function and the variables A to E.  Select a first guess at the right.  Click [Apply Newton&apos;s].  You should see the line drawn from your (x-guess, y) to the x-axis.  The second guess will appear in the guess box so you can [Apply Newton&apos;s] again.</source>
        <translation>Para experimentar o método de Newton: escolha uma função e as variáveis de A a E. Escolha uma primeira estimativa à direita. Clique em [Aplicar Newton]. Você verá a reta traçada do seu (x-estimativa, y) até o eixo x. A segunda estimativa aparece na caixa de estimativa para que você possa [Aplicar Newton] de novo.</translation>
    </message>
    <message>
        <source>Change and Continue</source>
        <translation>Mudar e continuar</translation>
    </message>
    <message>
        <source>Zoom in or change the window and Apply again.</source>
        <translation>Amplie ou mude a janela e aplique de novo.</translation>
    </message>
    <message>
        <source>the first guess</source>
        <translation>a primeira estimativa</translation>
    </message>
    <message>
        <source>Parametric Equation graphing</source>
        <translation>Gráficos de equações paramétricas</translation>
    </message>
    <message>
        <source>Select x &amp;&amp; y functions and enter their constants.</source>
        <translation>Escolha as funções x &amp;&amp; y e digite suas constantes.</translation>
    </message>
    <message>
        <source>Graphing Set up</source>
        <translation>Configuração do gráfico</translation>
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
        <translation>Número de passos</translation>
    </message>
    <message>
        <source>Connected Points</source>
        <translation>Pontos ligados</translation>
    </message>
    <message>
        <source>Separate Points</source>
        <translation>Pontos separados</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Rastrear</translation>
    </message>
    <message>
        <source>Trace at t =</source>
        <translation>Rastrear em t =</translation>
    </message>
    <message>
        <source>t - slider</source>
        <translation>controle de t</translation>
    </message>
    <message>
        <source>Select &amp;x Function</source>
        <translation>Selecionar função &amp;x</translation>
    </message>
    <message>
        <source>Select &amp;y Function</source>
        <translation>Selecionar função &amp;y</translation>
    </message>
    <message>
        <source>The maximum number of steps is 32000</source>
        <translation>O número máximo de passos é 32000</translation>
    </message>
    <message>
        <source>Exceeded Maximum</source>
        <translation>Máximo excedido</translation>
    </message>
    <message>
        <source>the parametric curve</source>
        <translation>a curva paramétrica</translation>
    </message>
    <message>
        <source>Type a parametric curve</source>
        <translation>Digite uma curva paramétrica</translation>
    </message>
    <message>
        <source>This screen allows you to graph parametric equations by defining the function for the x value and another equation for the y value.  The x and y values are functions of the variable t.</source>
        <translation>Esta tela permite fazer gráficos de equações paramétricas definindo a função para o valor de x e outra equação para o valor de y. Os valores de x e y são funções da variável t.</translation>
    </message>
    <message>
        <source>How do I graph things?</source>
        <translation>Como faço gráficos?</translation>
    </message>
    <message>
        <source>After selecting the functions by using the pull down menus for the x and y functions, enter the values you want for A...F.  You may click [Plotto!] to see what it looks like.</source>
        <translation>Depois de escolher as funções nos menus suspensos das funções x e y, digite os valores desejados para A...F. Você pode clicar em [Plotto!] para ver como fica.</translation>
    </message>
    <message>
        <source>Graph Set Up</source>
        <translation>Configuração do gráfico</translation>
    </message>
    <message>
        <source>Graphing Set Up at the right allows you to change the range of t, the number of steps used, and whether you want the points connected or not.  The initial set up is for a trig function and 1000 steps.  You may use any range and up to 32000 steps</source>
        <translation>A Configuração do gráfico, à direita, permite mudar o intervalo de t, o número de passos e se os pontos são ligados ou não. A configuração inicial é para uma função trigonométrica e 1000 passos. Você pode usar qualquer intervalo e até 32000 passos</translation>
    </message>
    <message>
        <source>Trace?</source>
        <translation>Rastrear?</translation>
    </message>
    <message>
        <source>Trace allows you to look at the point produced by any particular t value.  You may click in the box to change the value. As soon as you do you will see the (x,y) value below and the point appear on the graph.  You may also use the slider at the bottom to scroll to different values or even click on the slide or arrows to move the trace point on the graph.  THe slider does not show the t= value or change the box above it.</source>
        <translation>Rastrear permite ver o ponto produzido por qualquer valor de t. Você pode clicar na caixa para mudar o valor. Assim que fizer isso, verá o valor (x,y) abaixo e o ponto aparecerá no gráfico. Também pode usar o controle deslizante embaixo para ir a outros valores, ou clicar no controle ou nas setas para mover o ponto rastreado no gráfico. O controle não mostra o valor t= nem muda a caixa acima dele.</translation>
    </message>
    <message>
        <source>Left or Right clicks</source>
        <translation>Cliques esquerdo ou direito</translation>
    </message>
    <message>
        <source>You may left click of right click on the labels for the entry boxes to raise of lower their values by 1.</source>
        <translation>Você pode clicar com o botão esquerdo ou direito nos rótulos das caixas para aumentar ou diminuir seus valores em 1.</translation>
    </message>
    <message>
        <source>Change the size of the window?</source>
        <translation>Mudar o tamanho da janela?</translation>
    </message>
    <message>
        <source>The buttons below [Plotto!] are what they say.  Zoom in will reduce the size by a factor of 2.  Zoom Out will enlarge the size by a factor of 2.  You may change the window size by clicking on any of the boxes showing teh ranges for x and y.</source>
        <translation>Os botões abaixo de [Plotto!] fazem o que dizem. Ampliar reduz o tamanho por um fator de 2. Reduzir aumenta o tamanho por um fator de 2. Você pode mudar o tamanho da janela clicando em qualquer uma das caixas que mostram os intervalos de x e y.</translation>
    </message>
    <message>
        <source>Parametric curve %1, %2 with A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</source>
        <translation>Curva paramétrica %1, %2 com A = %3, B = %4, C = %5, D = %6, E = %7, F = %8.</translation>
    </message>
    <message>
        <source>t from %1 to %2 in steps of %3, %4.</source>
        <translation>t de %1 a %2 em passos de %3, %4.</translation>
    </message>
    <message>
        <source>connected points</source>
        <translation>pontos ligados</translation>
    </message>
    <message>
        <source>separate points</source>
        <translation>pontos separados</translation>
    </message>
    <message>
        <source>Trace at t = %1: %2.</source>
        <translation>Rastreamento em t = %1: %2.</translation>
    </message>
    <message>
        <source>the traced point</source>
        <translation>o ponto rastreado</translation>
    </message>
    <message>
        <source>Riemann and Other Sums</source>
        <translation>Somas de Riemann e outras</translation>
    </message>
    <message>
        <source>&amp;Select a Function</source>
        <translation>&amp;Selecionar uma função</translation>
    </message>
    <message>
        <source>&amp;Clear Graph</source>
        <translation>&amp;Limpar gráfico</translation>
    </message>
    <message>
        <source>&amp;Set to Defaults</source>
        <translation>&amp;Valores padrão</translation>
    </message>
    <message>
        <source>Left Endpoint</source>
        <translation>Extremo esquerdo</translation>
    </message>
    <message>
        <source>Right Endpoint</source>
        <translation>Extremo direito</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Ponto médio</translation>
    </message>
    <message>
        <source>Trapezoidal</source>
        <translation>Trapézios</translation>
    </message>
    <message>
        <source>Random point</source>
        <translation>Ponto aleatório</translation>
    </message>
    <message>
        <source>A random point is picked on the equal width intervals </source>
        <translation>Um ponto aleatório é escolhido nos intervalos de mesma largura </translation>
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
        <translation>Intervalos de largura aleatória e um ponto em cada um</translation>
    </message>
    <message>
        <source>Cut the scale in half</source>
        <translation>Reduzir a escala pela metade</translation>
    </message>
    <message>
        <source>Convergence of the sums</source>
        <translation>Convergência das somas</translation>
    </message>
    <message>
        <source>&amp;Erase Partitions</source>
        <translation>Apagar &amp;partições</translation>
    </message>
    <message>
        <source>Number of Partitions</source>
        <translation>Número de partições</translation>
    </message>
    <message>
        <source>&amp;Double Partitions</source>
        <translation>&amp;Dobrar partições</translation>
    </message>
    <message>
        <source>Automatically double Number of Partitions</source>
        <translation>Dobrar automaticamente o número de partições</translation>
    </message>
    <message>
        <source>Graph &amp;Partitions</source>
        <translation>&amp;Gráfico das partições</translation>
    </message>
    <message>
        <source>See the partitions from the Riemann Sums</source>
        <translation>Ver as partições das somas de Riemann</translation>
    </message>
    <message>
        <source>Left Boundary</source>
        <translation>Limite esquerdo</translation>
    </message>
    <message>
        <source>Right Boundary</source>
        <translation>Limite direito</translation>
    </message>
    <message>
        <source>AREA</source>
        <translation>ÁREA</translation>
    </message>
    <message>
        <source>Area Sums</source>
        <translation>Somas de áreas</translation>
    </message>
    <message>
        <source>Check one to see partitions when clicking Graph Partitions</source>
        <translation>Marque uma para ver as partições ao clicar em Gráfico das partições</translation>
    </message>
    <message>
        <source>Parts not even #</source>
        <translation>Partes não pares</translation>
    </message>
    <message>
        <source>= error!</source>
        <translation>= erro!</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Calculando</translation>
    </message>
    <message>
        <source>= too large</source>
        <translation>= grande demais</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Partitions must be a positive number</source>
        <translation>As partições devem ser um número positivo</translation>
    </message>
    <message>
        <source>Positive only</source>
        <translation>Só positivos</translation>
    </message>
    <message>
        <source>The limit to the number of partitions is 32000</source>
        <translation>O limite de partições é 32000</translation>
    </message>
    <message>
        <source>Limit Reached</source>
        <translation>Limite atingido</translation>
    </message>
    <message>
        <source>This form was written to demonstrate various Riemann and other Sums used to find areas under functions.</source>
        <translation>Esta tela demonstra várias somas de Riemann e outras usadas para achar áreas sob funções.</translation>
    </message>
    <message>
        <source>Plotting a function and Sizing</source>
        <translation>Fazer o gráfico de uma função e ajustar o tamanho</translation>
    </message>
    <message>
        <source>Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set the window size by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window.</source>
        <translation>Escolha uma função no menu de funções. Clique em [Plotto!] para vê-la na janela. Ajuste o tamanho da janela digitando valores para Xmín, Xmáx, Ymín e Ymáx ou nas caixas ao redor da janela.</translation>
    </message>
    <message>
        <source>Plotto! , Zoom In and Set to Defaults</source>
        <translation>Plotto! , Ampliar e Valores padrão</translation>
    </message>
    <message>
        <source>You must [Plotto!] after selecting a function to see it.  This also clears the window.  The [Zoom In] button reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10.</source>
        <translation>Você precisa clicar em [Plotto!] depois de escolher uma função para vê-la. Isso também limpa a janela. O botão [Ampliar] divide cada borda ao meio e refaz o gráfico da função. Os [Valores padrão] são de -10 a 10.</translation>
    </message>
    <message>
        <source>Riemann choices and [Graph Partitions]</source>
        <translation>Opções de Riemann e [Gráfico das partições]</translation>
    </message>
    <message>
        <source>Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the various area values.</source>
        <translation>Marque à direita a caixa de um método de soma de Riemann. Os retângulos e as áreas calculadas aparecem depois de clicar no botão [Gráfico das partições]. Você pode marcar uma, várias ou todas as caixas para ver os vários valores da área.</translation>
    </message>
    <message>
        <source>Partitions for the Riemann Sums</source>
        <translation>Partições das somas de Riemann</translation>
    </message>
    <message>
        <source>You may type in up to 32000 for the number of partitions.  You may also automatically double the number of partitions with the [Double Partitions] button.  The number of partitions determines the width of each interval except for the Riemann method.  The Riemann method breaks the total interval into random width sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of 2000 partitions.</source>
        <translation>Você pode digitar até 32000 como número de partições. Também pode dobrar automaticamente o número de partições com o botão [Dobrar partições]. O número de partições determina a largura de cada intervalo, exceto no método de Riemann. O método de Riemann divide o intervalo total em subintervalos de largura aleatória e escolhe pontos aleatórios em cada subintervalo. O método de Riemann usa no máximo 2000 partições.</translation>
    </message>
    <message>
        <source>Left and Right Boundaries</source>
        <translation>Limites esquerdo e direito</translation>
    </message>
    <message>
        <source>The Left boundary and Right boundary determine the width of the interval for the area.  The Boundaries must be in the window.  If the y value is outside the window the partition will not show up on the graph but the area will be computed correctly.</source>
        <translation>Os limites esquerdo e direito determinam a largura do intervalo para a área. Os limites devem estar dentro da janela. Se o valor de y estiver fora da janela, a partição não aparecerá no gráfico, mas a área será calculada corretamente.</translation>
    </message>
    <message>
        <source>Clicking light green labels</source>
        <translation>Clicar nos rótulos verde-claros</translation>
    </message>
    <message>
        <source>As for most of the light green labels in this program, you may left click to increase the box by one or right click to decreased it by one.</source>
        <translation>Como na maioria dos rótulos verde-claros deste programa, você pode clicar com o botão esquerdo para aumentar a caixa em um ou com o direito para diminuí-la em um.</translation>
    </message>
    <message>
        <source>Area under %1 from %2 to %3 with %4 partitions: %5.</source>
        <translation>Área sob %1 de %2 a %3 com %4 partições: %5.</translation>
    </message>
    <message>
        <source>The Tangent Line Problem</source>
        <translation>O problema da reta tangente</translation>
    </message>
    <message>
        <source>Tangent Problem Set up</source>
        <translation>Preparação do problema da tangente</translation>
    </message>
    <message>
        <source>Tangent at x =</source>
        <translation>Tangente em x =</translation>
    </message>
    <message>
        <source>Delta x</source>
        <translation>Delta x</translation>
    </message>
    <message>
        <source>&amp;Apply to graph</source>
        <translation>&amp;Aplicar ao gráfico</translation>
    </message>
    <message>
        <source>Half Delta x</source>
        <translation>Delta x pela metade</translation>
    </message>
    <message>
        <source>Delta X slider</source>
        <translation>Controle de delta x</translation>
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
        <translation>Resultados da secante</translation>
    </message>
    <message>
        <source>( ___, ___ ) to ( ___ , ___ )</source>
        <translation>( ___, ___ ) a ( ___ , ___ )</translation>
    </message>
    <message>
        <source>Line Equation</source>
        <translation>Equação da reta</translation>
    </message>
    <message>
        <source>This screen is to demonstrate the classic slope of the tangent line problem.  You may select any function from the menu.  Choose values for the A,B,...,E variables for your function and Plotto.</source>
        <translation>Esta tela serve para demonstrar o problema clássico da inclinação da reta tangente. Você pode escolher qualquer função no menu. Escolha valores para as variáveis A,B,...,E da sua função e clique em Plotto.</translation>
    </message>
    <message>
        <source>Tangent Set up Selections</source>
        <translation>Opções do problema da tangente</translation>
    </message>
    <message>
        <source>The secant lines will be graphed using the buttons, text boxes and glider at the right.  Select the initial point for the secant line by placing a value in the &apos;Tangent at x =&apos; box.  Choose the Delta x.  This the distance from your choice of x and is the longest distance for the slider.  The delta x may be negative.  The slider may be scrolled to either side of your initial x.</source>
        <translation>As retas secantes são traçadas com os botões, as caixas de texto e o controle deslizante à direita. Escolha o ponto inicial da reta secante digitando um valor na caixa &quot;Tangente em x =&quot;. Escolha o Delta x. É a distância a partir do x escolhido e a maior distância do controle deslizante. O delta x pode ser negativo. O controle pode ser movido para os dois lados do seu x inicial.</translation>
    </message>
    <message>
        <source>Show the secants and the results</source>
        <translation>Mostrar as secantes e os resultados</translation>
    </message>
    <message>
        <source>Clicking on [Apply It] will draw the secant line and show the points on the graph and the equation of the line.  If you click on [Half Delta x], your delta x will be cut in half.  You may click [Apply It] to see the new line.</source>
        <translation>Clicar em [Aplicar] traça a reta secante e mostra os pontos no gráfico e a equação da reta. Se você clicar em [Delta x pela metade], seu delta x será dividido ao meio. Você pode clicar em [Aplicar] para ver a nova reta.</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Controle deslizante</translation>
    </message>
    <message>
        <source>Clicking or scrolling the slider will change delta x and graph the secant line when releasing the mouse button.  You may see the points and the equation for each new change of the slider.  Notice the x-dx, x=  , and x+dx at the bottom of the slider.  This should help to know which way your secant line is going.</source>
        <translation>Clicar no controle deslizante ou arrastá-lo muda delta x e traça a reta secante ao soltar o botão do mouse. Você vê os pontos e a equação a cada nova mudança do controle. Observe x-dx, x=  e x+dx embaixo do controle. Isso ajuda a saber para que lado sua reta secante está indo.</translation>
    </message>
    <message>
        <source>No exact tangent: x = %1 is not a number.</source>
        <translation>Sem tangente exata: x = %1 não é um número.</translation>
    </message>
    <message>
        <source>The tangent at x = %1 has no slope there.</source>
        <translation>A tangente em x = %1 não tem inclinação ali.</translation>
    </message>
    <message>
        <source>The exact tangent at x = %1: y = %2x + %3.</source>
        <translation>A tangente exata em x = %1: y = %2x + %3.</translation>
    </message>
    <message>
        <source>the point of tangency</source>
        <translation>o ponto de tangência</translation>
    </message>
    <message>
        <source>the point at x + Delta x</source>
        <translation>o ponto em x + Delta x</translation>
    </message>
    <message>
        <source>Taylor Polynomials</source>
        <translation>Polinômios de Taylor</translation>
    </message>
    <message>
        <source>Centre a =</source>
        <translation>Centro a =</translation>
    </message>
    <message>
        <source>&amp;Add a Term</source>
        <translation>&amp;Adicionar um termo</translation>
    </message>
    <message>
        <source>Remo&amp;ve a Term</source>
        <translation>&amp;Remover um termo</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerância</translation>
    </message>
    <message>
        <source>Degree: none</source>
        <translation>Grau: nenhum</translation>
    </message>
    <message>
        <source>at x =</source>
        <translation>em x =</translation>
    </message>
    <message>
        <source>&amp;Lagrange bound</source>
        <translation>Cota de &amp;Lagrange</translation>
    </message>
    <message>
        <source>Taylor terms</source>
        <translation>Termos de Taylor</translation>
    </message>
    <message>
        <source>family %1</source>
        <translation>família %1</translation>
    </message>
    <message>
        <source>No Taylor polynomial of degree %1 about a = %2: %3.</source>
        <translation>Sem polinômio de Taylor de grau %1 em torno de a = %2: %3.</translation>
    </message>
    <message>
        <source>P_%1 about a = %2 in red%3; the green band on the x axis is where |f - P_%1| &lt; %4.</source>
        <translation>P_%1 em torno de a = %2 em vermelho%3; a faixa verde no eixo x marca onde |f - P_%1| &lt; %4.</translation>
    </message>
    <message>
        <source>, P_%1 faint</source>
        <translation>, P_%1 claro</translation>
    </message>
    <message>
        <source> Degree %1 is the last this screen works out.</source>
        <translation> O grau %1 é o último que esta tela calcula.</translation>
    </message>
    <message>
        <source>the Taylor polynomial of degree %1 about %2 of %3</source>
        <translation>o polinômio de Taylor de grau %1 em torno de %2 de %3</translation>
    </message>
    <message>
        <source>Degree: %1</source>
        <translation>Grau: %1</translation>
    </message>
    <message>
        <source> At x = %1 the new term is past double precision: it changes no digit of P_%2 a double can hold.</source>
        <translation> Em x = %1 o novo termo passa da precisão dupla: não muda nenhum dígito de P_%2 que um double consiga guardar.</translation>
    </message>
    <message>
        <source>past double precision</source>
        <translation>além da precisão dupla</translation>
    </message>
    <message>
        <source>the centre a</source>
        <translation>o centro a</translation>
    </message>
    <message>
        <source>Degree %1. Terms: </source>
        <translation>Grau %1. Termos: </translation>
    </message>
    <message>
        <source>This screen builds the Taylor polynomial of a function about a centre a one term at a time, so that you can see the polynomial hug the curve over a wider and wider stretch as the degree grows.</source>
        <translation>Esta tela constrói o polinômio de Taylor de uma função em torno de um centro a, um termo de cada vez, para que você veja o polinômio abraçar a curva em um trecho cada vez mais largo à medida que o grau cresce.</translation>
    </message>
    <message>
        <source>Select a function from the menu and choose A to E, or type one with Tools, Type a Function.  Type the centre a in its box, or click the green label to move it by one (left button up, right button down).</source>
        <translation>Escolha uma função no menu e escolha de A a E, ou digite uma com Ferramentas, Digitar uma função. Digite o centro a em sua caixa, ou clique no rótulo verde para movê-lo em um (botão esquerdo sobe, direito desce).</translation>
    </message>
    <message>
        <source>[Add a Term] and [Remove a Term]</source>
        <translation>[Adicionar um termo] e [Remover um termo]</translation>
    </message>
    <message>
        <source>Each click of [Add a Term] adds the next term, f^(n)(a)(x - a)^n / n!.  The function is drawn in blue, the polynomial of the degree shown in red and the one before it in light red.  [Remove a Term] goes back a degree.</source>
        <translation>Cada clique em [Adicionar um termo] acrescenta o termo seguinte, f^(n)(a)(x - a)^n / n!. A função é desenhada em azul, o polinômio do grau mostrado em vermelho e o anterior em vermelho claro. [Remover um termo] volta um grau.</translation>
    </message>
    <message>
        <source>The light green band along the x axis marks where the polynomial is within the tolerance of the function.  Watch it widen as terms are added.</source>
        <translation>A faixa verde-clara ao longo do eixo x marca onde o polinômio está dentro da tolerância da função. Veja-a se alargar à medida que termos são acrescentados.</translation>
    </message>
    <message>
        <source>The grid</source>
        <translation>A tabela</translation>
    </message>
    <message>
        <source>Each row is a degree: its new term with exact coefficients where they are fractions, the polynomial&apos;s value at the x you choose above the grid, and the error f(x) - P(x).  Tick Lagrange bound to see how large the error can be at most.  Where a derivative does not exist at a, or the numbers outgrow the computer&apos;s precision, the grid says so in words.</source>
        <translation>Cada linha é um grau: seu novo termo com coeficientes exatos quando são frações, o valor do polinômio no x que você escolhe acima da tabela e o erro f(x) - P(x). Marque Cota de Lagrange para ver o quão grande o erro pode ser no máximo. Onde uma derivada não existe em a, ou os números ultrapassam a precisão do computador, a tabela diz isso em palavras.</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums + Others</source>
        <translation>Somas de &amp;Riemann e outras</translation>
    </message>
    <message>
        <source>&amp;Riemann Sums +</source>
        <translation>Somas de &amp;Riemann +</translation>
    </message>
    <message>
        <source>Riemann and other sums</source>
        <translation>somas de Riemann e outras</translation>
    </message>
    <message>
        <source>Graph Classes of &amp;Functions</source>
        <translation>Gráficos de classes de &amp;funções</translation>
    </message>
    <message>
        <source>&amp;Function Grapher</source>
        <translation>&amp;Gráficos de funções</translation>
    </message>
    <message>
        <source>graphing {families} families of functions</source>
        <translation>gráficos de {families} famílias de funções</translation>
    </message>
    <message>
        <source>&amp;Animate Graphs</source>
        <translation>&amp;Animar gráficos</translation>
    </message>
    <message>
        <source>&amp;Animate Functions</source>
        <translation>&amp;Animar funções</translation>
    </message>
    <message>
        <source>animating their coefficients</source>
        <translation>a animação de seus coeficientes</translation>
    </message>
    <message>
        <source>&amp;Slope Fields</source>
        <translation>&amp;Campos de direções</translation>
    </message>
    <message>
        <source>slope fields with integral curves and Euler and Runge-Kutta approximations</source>
        <translation>campos de direções com curvas integrais e aproximações de Euler e Runge-Kutta</translation>
    </message>
    <message>
        <source>&amp;Newton&apos;s Method</source>
        <translation>Método de &amp;Newton</translation>
    </message>
    <message>
        <source>Newton&apos;s method</source>
        <translation>o método de Newton</translation>
    </message>
    <message>
        <source>&amp;Tangent Line Problem</source>
        <translation>Problema da reta &amp;tangente</translation>
    </message>
    <message>
        <source>&amp;Tangent Problem</source>
        <translation>Problema da &amp;tangente</translation>
    </message>
    <message>
        <source>secant lines converging to the tangent</source>
        <translation>retas secantes convergindo para a tangente</translation>
    </message>
    <message>
        <source>The &amp;Mean Value Theorem</source>
        <translation>O teorema do valor &amp;médio</translation>
    </message>
    <message>
        <source>&amp;Mean Value Theorem</source>
        <translation>Teorema do valor &amp;médio</translation>
    </message>
    <message>
        <source>the mean value theorem</source>
        <translation>o teorema do valor médio</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphing</source>
        <translation>Gráficos &amp;paramétricos</translation>
    </message>
    <message>
        <source>&amp;Parametric Graphs</source>
        <translation>Curvas &amp;paramétricas</translation>
    </message>
    <message>
        <source>parametric curves</source>
        <translation>curvas paramétricas</translation>
    </message>
    <message>
        <source>&amp;Taylor Polynomials</source>
        <translation>Polinômios de &amp;Taylor</translation>
    </message>
    <message>
        <source>Taylor polynomials term by term</source>
        <translation>polinômios de Taylor termo a termo</translation>
    </message>
    <message>
        <source>&amp;Area Between Curves</source>
        <translation>Á&amp;rea entre curvas</translation>
    </message>
    <message>
        <source>the area between two curves</source>
        <translation>a área entre duas curvas</translation>
    </message>
    <message>
        <source>&amp;Limits by Epsilon and Delta</source>
        <translation>&amp;Limites por épsilon e delta</translation>
    </message>
    <message>
        <source>limits by epsilon and delta</source>
        <translation>limites por épsilon e delta</translation>
    </message>
    <message>
        <source>Plotto!   Calculus Calculator</source>
        <translation>Plotto!   Calculadora de cálculo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Selections</source>
        <translation>&amp;Seleções</translation>
    </message>
    <message>
        <source>More &amp;Demonstrations</source>
        <translation>&amp;Mais demonstrações</translation>
    </message>
    <message>
        <source>Choose a demonstration</source>
        <translation>Escolha uma demonstração</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>The screens you open from now on speak this language; the launcher does from the next start of Plotto.</source>
        <translation>As telas que você abrir a partir de agora usam este idioma; o iniciador, a partir do próximo início do Plotto.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>This program was made to graphically illustrate a few Calculus concepts.  They are shown on the buttons and the pull down menu.  The &apos;About&apos; menu option for each screen will explain the use of that screen.</source>
        <translation>Este programa foi feito para ilustrar graficamente alguns conceitos de cálculo. Eles aparecem nos botões e no menu suspenso. A opção &quot;Sobre&quot; de cada tela explica o uso daquela tela.</translation>
    </message>
    <message>
        <source>Calculus Demonstrations</source>
        <translation>Demonstrações de cálculo</translation>
    </message>
    <message>
        <source>This program is free.  Give it to your Calculus students or whoever could benefit from its use.  Send your questions and suggestions to the Plotto issue tracker.</source>
        <translation>Este programa é livre. Dê-o aos seus alunos de cálculo ou a quem puder se beneficiar dele. Envie suas perguntas e sugestões para o rastreador de problemas do Plotto.</translation>
    </message>
    <message>
        <source>Distribute Freely</source>
        <translation>Distribua livremente</translation>
    </message>
    <message>
        <source>Read the ABOUTs on each screen.  There are handy things to know about clicking labels on the screens.....</source>
        <translation>Leia o &quot;Sobre&quot; de cada tela. Há coisas úteis a saber sobre clicar nos rótulos das telas.....</translation>
    </message>
    <message>
        <source>More ABOUTs</source>
        <translation>Mais &quot;Sobre&quot;</translation>
    </message>
    <message>
        <source>&amp;Lessons</source>
        <translation>&amp;Lições</translation>
    </message>
    <message>
        <source>S&amp;tart the Lesson</source>
        <translation>&amp;Iniciar a lição</translation>
    </message>
    <message>
        <source>&amp;Examples</source>
        <translation>&amp;Exemplos</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passo %1 de %2</translation>
    </message>
    <message>
        <source>Open Lesson</source>
        <translation>Abrir lição</translation>
    </message>
    <message>
        <source>%1: step %2 (%3): %4.</source>
        <translation>%1: passo %2 (%3): %4.</translation>
    </message>
    <message>
        <source>Buttons to press when this step opens, by their captions, separated by commas (a button pressed more than once: Apply Newton&apos;s*4). Leave empty for none.</source>
        <translation>Botões a pressionar quando este passo abrir, pelos seus rótulos, separados por vírgulas (um botão pressionado mais de uma vez: Aplicar Newton*4). Deixe vazio para nenhum.</translation>
    </message>
    <message>
        <source>Add to the Lesson</source>
        <translation>Adicionar à lição</translation>
    </message>
    <message>
        <source>The lesson has no steps yet: add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>A lição ainda não tem passos: adicione uma tela com Ferramentas, Adicionar esta tela à lição.</translation>
    </message>
    <message>
        <source>Save Lesson</source>
        <translation>Salvar lição</translation>
    </message>
    <message>
        <source>Cannot read the lesson %1: %2</source>
        <translation>Não é possível ler a lição %1: %2</translation>
    </message>
    <message>
        <source>Export Lesson as Worksheet</source>
        <translation>Exportar lição como folha de exercícios</translation>
    </message>
    <message>
        <source>There is no lesson to export: open one with Lessons, Open Lesson, or add a screen with Tools, Add This Screen to the Lesson.</source>
        <translation>Não há lição para exportar: abra uma com Lições, Abrir lição, ou adicione uma tela com Ferramentas, Adicionar esta tela à lição.</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Leave the results blank, as boxes for the students to fill in? The answers then go to a second file, %1.</source>
        <translation>Deixar os resultados em branco, como caixas para os alunos preencherem? As respostas vão então para um segundo arquivo, %1.</translation>
    </message>
    <message>
        <source>The lesson could not be handed over: %1</source>
        <translation>A lição não pôde ser entregue: %1</translation>
    </message>
    <message>
        <source>The worksheet was not written: %1</source>
        <translation>A folha de exercícios não foi gravada: %1</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Passo %1 de %2: %3</translation>
    </message>
    <message>
        <source>This step cannot be shown: %1.</source>
        <translation>Este passo não pode ser mostrado: %1.</translation>
    </message>
    <message>
        <source>A button of this step could not finish (run-time error %1).</source>
        <translation>Um botão deste passo não pôde terminar (erro em tempo de execução %1).</translation>
    </message>
    <message>
        <source>The screen shows %1.</source>
        <translation>A tela mostra %1.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The lesson has no steps.</source>
        <translation>A lição não tem passos.</translation>
    </message>
    <message>
        <source>Area=</source>
        <translation>Área=</translation>
    </message>
    <message>
        <source>The file name %1 does not say which kind of file to write: end it with .csv or .pdf.</source>
        <translation>O nome de arquivo %1 não diz que tipo de arquivo escrever: termine-o com .csv ou .pdf.</translation>
    </message>
    <message>
        <source>the PDF could not be started</source>
        <translation>não foi possível iniciar o PDF</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exportar tabela</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;PDF page (*.pdf)</source>
        <translation>Valores separados por vírgulas (*.csv);;Página PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>&amp;Exportar tabela...</translation>
    </message>
    <message>
        <source>Two Curves</source>
        <translation>Duas curvas</translation>
    </message>
    <message>
        <source>Worksheets are written by the plotto program, which this run cannot start.</source>
        <translation>As folhas de exercícios são escritas pelo programa plotto, que esta execução não pode iniciar.</translation>
    </message>
    <message>
        <source>are outside what a function accepts</source>
        <translation>estão fora do que uma função aceita</translation>
    </message>
    <message>
        <source>overflow</source>
        <translation>transbordam</translation>
    </message>
    <message>
        <source>go past the end of a table</source>
        <translation>passam do fim de uma tabela</translation>
    </message>
    <message>
        <source>divide by zero</source>
        <translation>dividem por zero</translation>
    </message>
    <message>
        <source>are not numbers</source>
        <translation>não são números</translation>
    </message>
    <message>
        <source>are more than a control can take</source>
        <translation>são mais do que um controle comporta</translation>
    </message>
    <message>
        <source>cannot be worked out</source>
        <translation>não podem ser calculados</translation>
    </message>
    <message>
        <source>The step of the lesson shown</source>
        <translation>O passo da lição mostrado</translation>
    </message>
    <message>
        <source>Zoom to the &amp;Steps</source>
        <translation>Enquadrar os &amp;passos</translation>
    </message>
    <message>
        <source>The last two guesses are %1 apart; View, Zoom to the Steps shows the last steps.</source>
        <translation>As duas últimas aproximações estão a %1 uma da outra; Exibir, Enquadrar os passos mostra os últimos passos.</translation>
    </message>
    <message>
        <source>No steps to zoom to yet: press Apply Newton&apos;s at least once.</source>
        <translation>Ainda não há passos para enquadrar: pressione Aplicar Newton pelo menos uma vez.</translation>
    </message>
    <message>
        <source>Step %1 cannot be shown: its values %2 (run-time error %3).</source>
        <translation>O passo %1 não pode ser mostrado: seus valores %2 (erro em tempo de execução %3).</translation>
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
        <translation>nada digitado: digite uma função, por exemplo x^2 - 4 na posição %1</translation>
    </message>
    <message>
        <source>unexpected &apos;)&apos; at %1</source>
        <translation>&apos;)&apos; inesperado na posição %1</translation>
    </message>
    <message>
        <source>too deeply nested at %1</source>
        <translation>aninhamento profundo demais na posição %1</translation>
    </message>
    <message>
        <source>missing a term after &apos;%1&apos; at %2</source>
        <translation>falta um termo depois de &apos;%1&apos; na posição %2</translation>
    </message>
    <message>
        <source>missing a term at %1</source>
        <translation>falta um termo na posição %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;)&apos; at %1</source>
        <translation>falta um termo antes de &apos;)&apos; na posição %1</translation>
    </message>
    <message>
        <source>missing a term before &apos;%1&apos; at %2</source>
        <translation>falta um termo antes de &apos;%1&apos; na posição %2</translation>
    </message>
    <message>
        <source>missing &apos;)&apos; at %1</source>
        <translation>falta &apos;)&apos; na posição %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inesperada (cada função recebe um único argumento) na posição %1</translation>
    </message>
    <message>
        <source>unexpected &apos;,&apos; (write decimals with a point, and each function takes one argument) at %1</source>
        <translation>&apos;,&apos; inesperada (escreva os decimais com ponto; cada função recebe um único argumento) na posição %1</translation>
    </message>
    <message>
        <source>unexpected character &apos;%1&apos; at %2</source>
        <translation>caractere inesperado &apos;%1&apos; na posição %2</translation>
    </message>
    <message>
        <source>missing &apos;*&apos;: write %1*%2 for a product at %3</source>
        <translation>falta &apos;*&apos;: escreva %1*%2 para um produto na posição %3</translation>
    </message>
    <message>
        <source>a number needs a digit at %1</source>
        <translation>um número precisa de um algarismo na posição %1</translation>
    </message>
    <message>
        <source>number too large at %1</source>
        <translation>número grande demais na posição %1</translation>
    </message>
    <message>
        <source>missing &apos;(&apos; after &apos;%1&apos; at %2</source>
        <translation>falta &apos;(&apos; depois de &apos;%1&apos; na posição %2</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2 (the coefficients are the capitals A to F)</source>
        <translation>nome desconhecido &apos;%1&apos; na posição %2 (os coeficientes são as maiúsculas A a F)</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %4: write %2*%3 for a product</source>
        <translation>nome desconhecido &apos;%1&apos; na posição %4: escreva %2*%3 para um produto</translation>
    </message>
    <message>
        <source>unknown name &apos;%1&apos; at %2</source>
        <translation>nome desconhecido &apos;%1&apos; na posição %2</translation>
    </message>
    <message>
        <source>too long: at most %1 characters</source>
        <translation>longo demais: no máximo %1 caracteres</translation>
    </message>
    <message>
        <source>cannot be evaluated</source>
        <translation>não pode ser avaliada</translation>
    </message>
    <message>
        <source>no derivative: it cannot be evaluated</source>
        <translation>sem derivada: ela não pode ser avaliada</translation>
    </message>
    <message>
        <source>no derivative: the expression is undefined everywhere or cannot be differentiated</source>
        <translation>sem derivada: a expressão não está definida em nenhum ponto ou não pode ser derivada</translation>
    </message>
    <message>
        <source>no derivative: part of the expression is 0 where it divides or is a base</source>
        <translation>sem derivada: uma parte da expressão é 0 onde divide ou é uma base</translation>
    </message>
    <message>
        <source>no derivative: it uses a function that cannot be differentiated here</source>
        <translation>sem derivada: ela usa uma função que não pode ser derivada aqui</translation>
    </message>
    <message>
        <source>no function chosen</source>
        <translation>nenhuma função escolhida</translation>
    </message>
    <message>
        <source>an exponent of %1 is too large to work out exactly</source>
        <translation>um expoente de %1 é grande demais para ser calculado exatamente</translation>
    </message>
    <message>
        <source>part of the expression is 0 where it divides or is a base</source>
        <translation>uma parte da expressão é 0 onde divide ou é uma base</translation>
    </message>
    <message>
        <source>the expression cannot be worked out exactly</source>
        <translation>a expressão não pode ser calculada exatamente</translation>
    </message>
    <message>
        <source>the coefficient is too large for double precision</source>
        <translation>o coeficiente é grande demais para a precisão dupla</translation>
    </message>
    <message>
        <source>f(a) does not exist</source>
        <translation>f(a) não existe</translation>
    </message>
    <message>
        <source>f^(%1)(a) does not exist</source>
        <translation>f^(%1)(a) não existe</translation>
    </message>
    <message>
        <source>the derivative grows too long to work out</source>
        <translation>a derivada fica longa demais para ser calculada</translation>
    </message>
    <message>
        <source>a must be a number.</source>
        <translation>a deve ser um número.</translation>
    </message>
    <message>
        <source>Both sides tend to %1: L = %1 at a = %2 (estimated from x = a +- h, h halving to %3 times max(1, |a|); the last values agree to %4).</source>
        <translation>Os dois lados tendem a %1: L = %1 em a = %2 (estimado a partir de x = a +- h, com h dividido ao meio até %3 vezes max(1, |a|); os últimos valores concordam até %4).</translation>
    </message>
    <message>
        <source>f is defined only on the right of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f só está definida à direita de a perto de a; esse lado tende a %1: L = %1 em a = %2 (um limite lateral).</translation>
    </message>
    <message>
        <source>f is defined only on the left of a near it; that side tends to %1: L = %1 at a = %2 (a one-sided limit).</source>
        <translation>f só está definida à esquerda de a perto de a; esse lado tende a %1: L = %1 em a = %2 (um limite lateral).</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no limit there.</source>
        <translation>f não está definida perto de a = %1 em nenhum dos lados: não há limite ali.</translation>
    </message>
    <message>
        <source>The left side %1 and the right side %2: no limit at a = %3.</source>
        <translation>O lado esquerdo %1 e o lado direito %2: não há limite em a = %3.</translation>
    </message>
    <message>
        <source>tends to infinity</source>
        <translation>tende ao infinito</translation>
    </message>
    <message>
        <source>tends to -infinity</source>
        <translation>tende a -infinito</translation>
    </message>
    <message>
        <source>tends to %1</source>
        <extracomment>what one side of a does as x nears a (&quot;The left side tends to 1 and ...&quot;)</extracomment>
        <translation>tende a %1</translation>
    </message>
    <message>
        <source>to infinity</source>
        <translation>ao infinito</translation>
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
        <translation>não se estabiliza</translation>
    </message>
    <message>
        <source>is undefined</source>
        <translation>não está definido</translation>
    </message>
    <message>
        <source>ε must be a positive number.</source>
        <translation>ε deve ser um número positivo.</translation>
    </message>
    <message>
        <source>a and L must be numbers.</source>
        <translation>a e L devem ser números.</translation>
    </message>
    <message>
        <source>a = %1 is not inside the window from %2 to %3: move a or widen the window to look for δ.</source>
        <translation>a = %1 não está dentro da janela de %2 a %3: mova a ou amplie a janela para procurar δ.</translation>
    </message>
    <message>
        <source>ε = %1 is below what rounding in f lets the computer tell apart from L = %2 (it must be at least %3): no δ is looked for.</source>
        <translation>ε = %1 está abaixo do que o arredondamento de f permite ao computador distinguir de L = %2 (deve ser pelo menos %3): nenhum δ é procurado.</translation>
    </message>
    <message>
        <source>f is not defined near a = %1 on either side: no δ can be looked for.</source>
        <translation>f não está definida perto de a = %1 em nenhum dos lados: nenhum δ pode ser procurado.</translation>
    </message>
    <message>
        <source>For ε = %1 no δ works: points arbitrarily close to a leave the band (even x = %2 has |f(x) - L| = %3, not below ε).</source>
        <translation>Para ε = %1 nenhum δ serve: pontos arbitrariamente próximos de a saem da faixa (até x = %2 tem |f(x) - L| = %3, não abaixo de ε).</translation>
    </message>
    <message>
        <source>For ε = %1 no x of the window leaves the band: δ = %2 is the distance from a to the window&apos;s nearer edge.</source>
        <translation>Para ε = %1 nenhum x da janela sai da faixa: δ = %2 é a distância de a até a borda mais próxima da janela.</translation>
    </message>
    <message>
        <source>For ε = %1 the largest δ is %2: the graph first leaves the band at x = %3 (f = %4).</source>
        <translation>Para ε = %1 o maior δ é %2: o gráfico sai da faixa pela primeira vez em x = %3 (f = %4).</translation>
    </message>
    <message>
        <source>%1 f is not defined to the right of a: only x where it is defined count.</source>
        <translation>%1 f não está definida à direita de a: só contam os x onde ela está definida.</translation>
    </message>
    <message>
        <source>%1 f is not defined to the left of a: only x where it is defined count.</source>
        <translation>%1 f não está definida à esquerda de a: só contam os x onde ela está definida.</translation>
    </message>
    <message>
        <source>%1 f is undefined at some x of the window: they are not in its domain and do not count.</source>
        <translation>%1 f não está definida em alguns x da janela: eles não estão no seu domínio e não contam.</translation>
    </message>
    <message>
        <source>x = %1 (f = g at a scanned point)</source>
        <translation>x = %1 (f = g em um ponto varrido)</translation>
    </message>
    <message>
        <source>x = %1 (sign change, TOMS 748)</source>
        <translation>x = %1 (mudança de sinal, TOMS 748)</translation>
    </message>
    <message>
        <source>x = %1 (touch without sign change, Brent minimum of |f - g|)</source>
        <translation>x = %1 (toque sem mudança de sinal, mínimo de Brent de |f - g|)</translation>
    </message>
    <message>
        <source>x = %1 to %2 (f = g all along)</source>
        <translation>x = %1 a %2 (f = g em todo o trecho)</translation>
    </message>
    <message>
        <source>a curve is not defined everywhere on [a, b]</source>
        <translation>uma curva não está definida em todo o [a, b]</translation>
    </message>
    <message>
        <source>f - g jumps across 0 without crossing it near x = %1</source>
        <translation>f - g salta por cima de 0 sem cruzá-lo perto de x = %1</translation>
    </message>
    <message>
        <source>the integral of f - g does not settle between x = %1 and x = %2 (f - g is unbounded there, or oscillates faster than the adaptive rule can follow)</source>
        <translation>a integral de f - g não se estabiliza entre x = %1 e x = %2 (f - g é ilimitada ali, ou oscila mais rápido do que a regra adaptativa consegue acompanhar)</translation>
    </message>
    <message>
        <source>No area: %1.</source>
        <translation>Sem área: %1.</translation>
    </message>
    <message>
        <source>Signed area %1 (adaptive Gauss-Kronrod, 61 points, split at the crossings)</source>
        <translation>Área com sinal %1 (Gauss-Kronrod adaptativo, 61 pontos, dividida nos cruzamentos)</translation>
    </message>
    <message>
        <source>no value: %1</source>
        <translation>sem valor: %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <extracomment>a convergence table&apos;s cell: the error is below the reference&apos;s own accuracy %1</extracomment>
        <translation>abaixo de %1</translation>
    </message>
    <message>
        <source>(reference)</source>
        <extracomment>a convergence table&apos;s cell: the row&apos;s value is the reference itself</extracomment>
        <translation>(referência)</translation>
    </message>
    <message>
        <source>round-off</source>
        <extracomment>a convergence table&apos;s cell in place of a ratio, explained by the round-off note under the table</extracomment>
        <translation>arredondamento</translation>
    </message>
    <message>
        <source>round-off: an error below %1 is mostly the rounding of double-precision arithmetic over the steps, not the method&apos;s own error, so its ratio is not shown.</source>
        <translation>arredondamento: um erro abaixo de %1 é sobretudo o arredondamento da aritmética de precisão dupla ao longo dos passos, não o erro do próprio método, por isso sua razão não é mostrada.</translation>
    </message>
    <message>
        <source>slope %1</source>
        <extracomment>the label of a reference line of slope -%1 on the log-log plot</extracomment>
        <translation>inclinação %1</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sem valor</translation>
    </message>
    <message>
        <source>undefined at x = %1</source>
        <translation>indefinida em x = %1</translation>
    </message>
    <message>
        <source>error value</source>
        <translation>valor de erro</translation>
    </message>
    <message>
        <source>The function is not defined everywhere on the interval (for example at x = %1): the integral does not exist there.</source>
        <translation>A função não está definida em todo o intervalo (por exemplo em x = %1): ali a integral não existe.</translation>
    </message>
    <message>
        <source>The function is unbounded on the interval: the integral does not exist there.</source>
        <translation>A função é ilimitada no intervalo: ali a integral não existe.</translation>
    </message>
    <message>
        <source>Exact value %1 (adaptive Gauss-Kronrod, 61 points)</source>
        <translation>Valor exato %1 (Gauss-Kronrod adaptativo, 61 pontos)</translation>
    </message>
    <message>
        <source>The integral cannot be computed: %1.</source>
        <translation>A integral não pode ser calculada: %1.</translation>
    </message>
    <message>
        <source>Reference endpoint y = %1 (adaptive Runge-Kutta-Fehlberg 7(8) in extended precision; accurate to %2)</source>
        <translation>Ponto final de referência y = %1 (Runge-Kutta-Fehlberg 7(8) adaptativo em precisão estendida; exato até %2)</translation>
    </message>
    <message>
        <source>The curve meets a vertical slope before the end x: there is no endpoint to compare with.</source>
        <translation>A curva encontra uma inclinação vertical antes do x final: não há ponto final para comparar.</translation>
    </message>
    <message>
        <source>The reference cannot be computed: %1.</source>
        <translation>A referência não pode ser calculada: %1.</translation>
    </message>
    <message>
        <source>The adaptive integration could not reach the end x (the slope grows without bound).</source>
        <translation>A integração adaptativa não conseguiu chegar ao x final (a inclinação cresce sem limite).</translation>
    </message>
    <message>
        <source>%1 (%2 steps)</source>
        <extracomment>a row of the step methods&apos; table: the step h (%1) and how many steps reach the end x (%2)</extracomment>
        <translation>%1 (%2 passos)</translation>
    </message>
    <message>
        <source>meets a vertical slope</source>
        <translation>encontra uma inclinação vertical</translation>
    </message>
    <message>
        <source>leaves the window</source>
        <translation>sai da janela</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>which of two typed texts a refusal is about (&quot;dy: missing &apos;)&apos; at 3&quot;): %1 names the text (dy, dx, x(t), y(t)) and %2 is the refusal</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The window&apos;s limits are not numbers in order.</source>
        <translation>Os limites da janela não são números em ordem.</translation>
    </message>
    <message>
        <source>Zoomed out as far as the graph goes: the window is at most 1E+12 wide and high.</source>
        <translation>Afastado até onde o gráfico vai: a janela tem no máximo 1E+12 de largura e de altura.</translation>
    </message>
    <message>
        <source>Zoomed in as far as the arithmetic can show: a closer window would draw rounding noise.</source>
        <translation>Aproximado até onde a aritmética consegue mostrar: uma janela mais próxima desenharia ruído de arredondamento.</translation>
    </message>
    <message>
        <source>raise or lower %1</source>
        <translation>aumentar ou diminuir %1</translation>
    </message>
    <message>
        <source>Drawn: %1.</source>
        <translation>Desenhado: %1.</translation>
    </message>
    <message>
        <source>the typed function y = %1</source>
        <translation>a função digitada y = %1</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <extracomment>a function and its coefficients&apos; values (&quot;y = A*x^2 with A = 1, B = 0&quot;)</extracomment>
        <translation>%1 com %2</translation>
    </message>
    <message>
        <source>Playing %1.</source>
        <translation>Tocando %1.</translation>
    </message>
    <message>
        <source>Understood: y = %1
Derivative: y&apos; = %2</source>
        <translation>Entendido: y = %1
Derivada: y&apos; = %2</translation>
    </message>
    <message>
        <source>undefined: no f(x) at x = %1</source>
        <translation>indefinida: não há f(x) em x = %1</translation>
    </message>
    <message>
        <source>no slope: f&apos;(x) is undefined at x = %1</source>
        <translation>sem inclinação: f&apos;(x) não está definida em x = %1</translation>
    </message>
    <message>
        <source> Not drawn at this window: %1.</source>
        <translation> Não desenhado nesta janela: %1.</translation>
    </message>
    <message>
        <source>Cannot be drawn from here: %1.</source>
        <translation>Não pode ser desenhado daqui: %1.</translation>
    </message>
    <message>
        <source>Cannot be taken: %1</source>
        <translation>Não pode ser aceita: %1</translation>
    </message>
    <message>
        <source>error %1</source>
        <extracomment>a convergence table&apos;s cell: the error of the value above it</extracomment>
        <translation>erro %1</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <extracomment>a convergence table&apos;s cell: the previous row&apos;s error over this row&apos;s</extracomment>
        <translation>razão %1</translation>
    </message>
    <message>
        <source>Error against the number of partitions, log-log</source>
        <translation>Erro em função do número de partições, log-log</translation>
    </message>
    <message>
        <source>steps</source>
        <extracomment>the horizontal axis of the step methods&apos; convergence plot</extracomment>
        <translation>passos</translation>
    </message>
    <message>
        <source>error</source>
        <extracomment>the vertical axis of a convergence plot</extracomment>
        <translation>erro</translation>
    </message>
    <message>
        <source>%1 error</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s errors</extracomment>
        <translation>erro de %1</translation>
    </message>
    <message>
        <source>%1 ratio</source>
        <extracomment>a convergence table&apos;s heading over a method&apos;s ratios of successive errors</extracomment>
        <translation>razão de %1</translation>
    </message>
    <message>
        <source>No errors to plot: %1</source>
        <translation>Não há erros para traçar: %1</translation>
    </message>
    <message>
        <source>%1: too few measurable errors for a slope</source>
        <translation>%1: poucos erros mensuráveis para uma inclinação</translation>
    </message>
    <message>
        <source>%1: slope %2 (expected -%3)</source>
        <translation>%1: inclinação %2 (esperada -%3)</translation>
    </message>
    <message>
        <source>%1: slope %2</source>
        <translation>%1: inclinação %2</translation>
    </message>
    <message>
        <source>g(x) = %1 cannot be read: %2.</source>
        <translation>g(x) = %1 não pode ser lida: %2.</translation>
    </message>
    <message>
        <source>%1 is not defined at x = %2</source>
        <translation>%1 não está definida em x = %2</translation>
    </message>
    <message>
        <source>%1 is not defined from x = %2 to x = %3</source>
        <translation>%1 não está definida de x = %2 a x = %3</translation>
    </message>
    <message>
        <source>Crossings in [a, b]:
%1</source>
        <translation>Cruzamentos em [a, b]:
%1</translation>
    </message>
    <message>
        <source>Understood: dy = %1,  dx = %2</source>
        <translation>Entendido: dy = %1,  dx = %2</translation>
    </message>
    <message>
        <source>Start( %1 , %2 ) </source>
        <translation>Início( %1 , %2 ) </translation>
    </message>
    <message>
        <source>the curve from (%1,%2)</source>
        <translation>a curva a partir de (%1,%2)</translation>
    </message>
    <message>
        <source>EndPt (%1,%2</source>
        <translation>Ponto final (%1,%2</translation>
    </message>
    <message>
        <source>Type numbers for a, L and ε.</source>
        <translation>Digite números para a, L e ε.</translation>
    </message>
    <message>
        <source>The window&apos;s x limits must be numbers, the minimum below the maximum.</source>
        <translation>Os limites x da janela devem ser números, o mínimo abaixo do máximo.</translation>
    </message>
    <message>
        <source>   leaves at x = %1</source>
        <translation>   sai em x = %1</translation>
    </message>
    <message>
        <source>ε = %1   no δ</source>
        <translation>ε = %1   nenhum δ</translation>
    </message>
    <message>
        <source>Limits by ε and δ of %1, a = %2, L = %3, ε = %4.</source>
        <translation>Limites por ε e δ de %1, a = %2, L = %3, ε = %4.</translation>
    </message>
    <message>
        <source>slope = %1</source>
        <translation>inclinação = %1</translation>
    </message>
    <message>
        <source>Slope =%1</source>
        <translation>Inclinação =%1</translation>
    </message>
    <message>
        <source>the tangent at x = %1</source>
        <translation>a tangente em x = %1</translation>
    </message>
    <message>
        <source>Mean value theorem for %1 on [%2, %3].</source>
        <translation>Teorema do valor médio para %1 em [%2, %3].</translation>
    </message>
    <message>
        <source>the guess x = %1</source>
        <translation>a estimativa x = %1</translation>
    </message>
    <message>
        <source>Newton&apos;s method on %1.</source>
        <translation>Método de Newton em %1.</translation>
    </message>
    <message>
        <source>No guesses yet; first guess box: %1.</source>
        <translation>Ainda não há estimativas; caixa da primeira estimativa: %1.</translation>
    </message>
    <message>
        <source>Guesses: %1.</source>
        <translation>Estimativas: %1.</translation>
    </message>
    <message>
        <source>(undefined at t = %1)</source>
        <translation>(indefinida em t = %1)</translation>
    </message>
    <message>
        <source>the point at t = %1</source>
        <translation>o ponto em t = %1</translation>
    </message>
    <message>
        <source>the curve %1, %2 for t from %3 to %4</source>
        <translation>a curva %1, %2 para t de %3 a %4</translation>
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
        <translation>Delta x = %1, não é um número</translation>
    </message>
    <message>
        <source>the secant from x = %1</source>
        <translation>a secante a partir de x = %1</translation>
    </message>
    <message>
        <source>Tangent problem for %1 at x = %2, Delta x = %3.</source>
        <translation>Problema da tangente para %1 em x = %2, Delta x = %3.</translation>
    </message>
    <message>
        <source>Secant through %1: %2.</source>
        <translation>Secante por %1: %2.</translation>
    </message>
    <message>
        <source>No Taylor polynomial: %1.</source>
        <translation>Sem polinômio de Taylor: %1.</translation>
    </message>
    <message>
        <source>Taylor polynomials of %1.</source>
        <translation>Polinômios de Taylor de %1.</translation>
    </message>
    <message>
        <source>No terms yet; centre box: %1.</source>
        <translation>Ainda não há termos; caixa do centro: %1.</translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>the last of a list of screens (&quot;..., Newton&apos;s method and Taylor polynomials&quot;)</extracomment>
        <translation>e %1</translation>
    </message>
    <message>
        <source>A launcher opens %1 demonstration screens: %2.</source>
        <translation>Um lançador abre %1 telas de demonstração: %2.</translation>
    </message>
    <message>
        <source>Left</source>
        <extracomment>a sum&apos;s rule (left endpoints) in the convergence table and the area grid</extracomment>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>a sum&apos;s rule (right endpoints) in the convergence table and the area grid</extracomment>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation>Trapézios</translation>
    </message>
    <message>
        <source>Simpson</source>
        <translation>Simpson</translation>
    </message>
    <message>
        <source>The step was not added: %1.</source>
        <translation>O passo não foi adicionado: %1.</translation>
    </message>
    <message>
        <source>Calculus demonstrations for the classroom. %1
Qt&apos;s standard options (-platform, -style, ...) are accepted.</source>
        <translation>Demonstrações de cálculo para a sala de aula. %1
As opções padrão do Qt (-platform, -style, ...) são aceitas.</translation>
    </message>
    <message>
        <source>lesson</source>
        <extracomment>the name of the command line&apos;s argument in `plotto --help`</extracomment>
        <translation>lição</translation>
    </message>
    <message>
        <source>A lesson to open (a .plotto file).</source>
        <translation>Uma lição a abrir (um arquivo .plotto).</translation>
    </message>
    <message>
        <source>[lesson]</source>
        <translation>[lição]</translation>
    </message>
    <message>
        <source>Lists the demonstration screens, one a line in teaching order, separated by tabs: key, button, menu entry, classic or addition (an addition opens from More Demonstrations), the entry&apos;s Alt letter.</source>
        <translation>Lista as telas de demonstração, uma por linha na ordem de ensino, separadas por tabulações: chave, botão, item de menu, clássica ou adição (uma adição abre em Mais demonstrações), a letra Alt do item.</translation>
    </message>
    <message>
        <source>Opens a screen at the start: %1.</source>
        <translation>Abre uma tela no início: %1.</translation>
    </message>
    <message>
        <source>name</source>
        <extracomment>the value of --screen in `plotto --help`</extracomment>
        <translation>nome</translation>
    </message>
    <message>
        <source>Writes the lesson as a worksheet to a PDF file, one step a page, and ends, with no window shown.</source>
        <translation>Escreve a lição como folha de exercícios em um arquivo PDF, um passo por página, e termina sem mostrar janela.</translation>
    </message>
    <message>
        <source>file.pdf</source>
        <translation>arquivo.pdf</translation>
    </message>
    <message>
        <source>With --worksheet: leaves the results as boxes to fill in, and writes the answers to a second file (NAME-answers.pdf).</source>
        <translation>Com --worksheet: deixa os resultados como caixas a preencher e escreve as respostas em um segundo arquivo (NOME-answers.pdf).</translation>
    </message>
    <message>
        <source>Shows the program in a language: %1 (English is the default; without this, the language chosen in Tools, Language, else the desktop&apos;s).</source>
        <translation>Mostra o programa em um idioma: %1 (o inglês é o padrão; sem esta opção, o idioma escolhido em Ferramentas, Idioma, senão o da área de trabalho).</translation>
    </message>
    <message>
        <source>code</source>
        <extracomment>the value of --lang in `plotto --help`</extracomment>
        <translation>código</translation>
    </message>
    <message>
        <source>addition</source>
        <extracomment>a screen&apos;s kind in `plotto --screens`: one of the seed&apos;s eight, or one added since</extracomment>
        <translation>adição</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>clássica</translation>
    </message>
    <message>
        <source>%1: answers</source>
        <translation>%1: respostas</translation>
    </message>
    <message>
        <source>%1, and %2 or %3, both the natural logarithm</source>
        <translation>%1, e %2 ou %3, ambos o logaritmo natural</translation>
    </message>
    <message>
        <source>A to E</source>
        <translation>A a E</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regra</translation>
    </message>
    <message>
        <source>Signed: f - g</source>
        <translation>Com sinal: f - g</translation>
    </message>
    <message>
        <source>Unsigned: |f - g|</source>
        <translation>Sem sinal: |f - g|</translation>
    </message>
    <message>
        <source>A to F</source>
        <translation>A a F</translation>
    </message>
    <message>
        <source>leaves at x =</source>
        <translation>sai em x =</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>Novo termo</translation>
    </message>
    <message>
        <source>Lagrange bound</source>
        <translation>Cota de Lagrange</translation>
    </message>
    <message>
        <source>%1 is %2. Press to raise by one; the decrease action lowers by one.</source>
        <translation>%1 é %2. Pressione para aumentar em um; a ação de diminuir reduz em um.</translation>
    </message>
    <message>
        <source>%1 holds %2, which is not a number.</source>
        <translation>%1 contém %2, que não é um número.</translation>
    </message>
    <message>
        <source>%1 strips is the most this screen sums.</source>
        <translation>%1 faixas é o máximo que esta tela soma.</translation>
    </message>
    <message>
        <source>the screen has no control named &apos;%1&apos;</source>
        <translation>a tela não tem nenhum controle chamado &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the box &apos;%1&apos; cannot take %2</source>
        <translation>a caixa &apos;%1&apos; não aceita %2</translation>
    </message>
    <message>
        <source>the scroll bar &apos;%1&apos; cannot take that position</source>
        <translation>a barra &apos;%1&apos; não aceita essa posição</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is ticked or not: true or false</source>
        <translation>&apos;%1&apos; está marcada ou não: true ou false</translation>
    </message>
    <message>
        <source>the screen has no menu entry &apos;%1&apos;</source>
        <translation>a tela não tem nenhum item de menu &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the screen has no button &apos;%1&apos;</source>
        <translation>a tela não tem nenhum botão &apos;%1&apos;</translation>
    </message>
    <message>
        <source>This is not a lesson: %1 at character %2.</source>
        <translation>Isto não é uma lição: %1 no caractere %2.</translation>
    </message>
    <message>
        <source>The lesson has no valid version number.</source>
        <translation>A lição não tem um número de versão válido.</translation>
    </message>
    <message>
        <source>Step %1: unknown screen &apos;%2&apos; (the screens are %3).</source>
        <translation>Passo %1: tela desconhecida &apos;%2&apos; (as telas são %3).</translation>
    </message>
    <message>
        <source>Step %1: an action names no button to click or menu entry to choose.</source>
        <translation>Passo %1: uma ação não nomeia nenhum botão a clicar nem item de menu a escolher.</translation>
    </message>
    <message>
        <source>The lesson cannot be written to %1: %2.</source>
        <translation>A lição não pode ser gravada em %1: %2.</translation>
    </message>
    <message>
        <source>The lesson could not be saved to %1: %2. Nothing was changed there.</source>
        <translation>A lição não pôde ser salva em %1: %2. Nada foi alterado ali.</translation>
    </message>
    <message>
        <source>The lesson %1 cannot be read: %2.</source>
        <translation>A lição %1 não pode ser lida: %2.</translation>
    </message>
    <message>
        <source>%1 is too large to be a lesson.</source>
        <translation>%1 é grande demais para ser uma lição.</translation>
    </message>
    <message>
        <source>black</source>
        <translation>preto</translation>
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
        <translation>ciano</translation>
    </message>
    <message>
        <source>red</source>
        <translation>vermelho</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>amarelo</translation>
    </message>
    <message>
        <source>white</source>
        <translation>branco</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>cinza</translation>
    </message>
    <message>
        <source>light blue</source>
        <translation>azul-claro</translation>
    </message>
    <message>
        <source>light green</source>
        <translation>verde-claro</translation>
    </message>
    <message>
        <source>light cyan</source>
        <translation>ciano-claro</translation>
    </message>
    <message>
        <source>light red</source>
        <translation>vermelho-claro</translation>
    </message>
    <message>
        <source>light magenta</source>
        <translation>magenta-claro</translation>
    </message>
    <message>
        <source>light yellow</source>
        <translation>amarelo-claro</translation>
    </message>
    <message>
        <source>bright white</source>
        <translation>branco brilhante</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>a drawn curve and the colour it is drawn in: &quot;y = x^2, in blue&quot;</extracomment>
        <translation>%1, em %2</translation>
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
        <translation>[opções]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumentos:</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Mostra a ajuda sobre as opções da linha de comando.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Mostra a ajuda incluindo as opções próprias do Qt.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Mostra as informações da versão.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opção desconhecida &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opções desconhecidas: %1.</translation>
    </message>
</context>
</TS>
