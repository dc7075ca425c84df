"""Finds what can be changed in a C++ source: one small change at a time."""

import re
from collections import namedtuple

# The characters from `begin` to `end` become `text`.
Mutant = namedtuple('Mutant', 'begin end text')

Token = namedtuple('Token', 'kind text begin end')

TOKEN = re.compile(r'''
    (?P<space>\s+|//[^\n]*|/\*.*?\*/)
  | (?P<directive>^\#(?:\\\n|[^\n])*)
  | (?P<string>"(?:\\.|[^"\\])*")
  | (?P<char>'(?:\\.|[^'\\])*')
  | (?P<number>\d(?:[\w.']|(?<=[eE])[+-])*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<mark><<=|>>=|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||\+=|-=|\*=|/=|&=|\|=|::|.)
''', re.VERBOSE | re.MULTILINE | re.DOTALL)

# An operator between spaces has two operands; elsewhere it may be part of a type or a sign.
OPERATORS = {
    '<': ['<=', '>'], '<=': ['<', '>'], '>': ['>=', '<'], '>=': ['>', '<'],
    '==': ['!='], '!=': ['=='], '&&': ['||'], '||': ['&&'],
    '+': ['-'], '-': ['+'], '*': ['+'], '/': ['*'], '%': ['/'],
    '&': ['|'], '|': ['&'], '<<': ['>>'], '>>': ['<<'],
    '+=': ['-='], '-=': ['+='], '<<=': ['>>='], '>>=': ['<<='],
    '?': ['&& false ?', '|| true ?'],
}
SIGNS = {'++': '--', '--': '++', '!': ''}
NAMES = {
    'true': 'false', 'false': 'true', 'min': 'max', 'max': 'min',
    'lower_bound': 'upper_bound', 'LockShared': 'LockExclusive', 'LockExclusive': 'LockShared',
    'kLogError': 'kLogWarning', 'kLogWarning': 'kLogError', 'kLogInformation': 'kLogWarning',
    'kStepStarts': 'kStepEnds', 'kStepEnds': 'kStepStarts',
    'VMETRICS_OK': 'VMETRICS_INVALID', 'VMETRICS_INVALID': 'VMETRICS_OK',
    'VMETRICS_STEP_ERROR': 'VMETRICS_INVALID', 'VMETRICS_REPORT_FAILED': 'VMETRICS_OK',
}
DECLARATIONS = {'using', 'template', 'static_assert', 'constexpr', 'typedef', 'case', 'default'}


def tokens_of(source):
    tokens = []
    for match in TOKEN.finditer(source):
        if match.lastgroup not in ('space', 'directive'):
            tokens.append(Token(match.lastgroup, match.group(), match.start(), match.end()))
    return without_static_asserts(tokens)


def without_static_asserts(tokens):
    """What the compiler checks by itself needs no test."""
    kept, inside = [], False
    for token in tokens:
        inside = inside or token.text == 'static_assert'
        if not inside:
            kept.append(token)
        inside = inside and token.text != ';'
    return kept


def integer_mutants(token):
    match = re.fullmatch(r"(0[xX][\da-fA-F]+|\d+)([uUlL]*)", token.text.replace("'", ''))
    if match:
        value = int(match.group(1), 0)
        for other in [value + 1] + ([value - 1] if value > 0 else []):
            yield Mutant(token.begin, token.end, f'{other}{match.group(2)}')


def token_mutants(source, tokens):
    for token in tokens:
        between_spaces = source[token.begin - 1].isspace() and source[token.end:token.end + 1].isspace()
        if token.kind == 'mark' and between_spaces:
            for other in OPERATORS.get(token.text, []):
                yield Mutant(token.begin, token.end, other)
        elif token.text in SIGNS:
            yield Mutant(token.begin, token.end, SIGNS[token.text])
        elif token.text in NAMES:
            yield Mutant(token.begin, token.end, NAMES[token.text])
        elif token.kind == 'number':
            yield from integer_mutants(token)
        elif token.kind == 'string':
            yield Mutant(token.begin + 1, token.begin + 1, 'x')
        elif token.kind == 'char':
            yield Mutant(token.begin, token.end, "'x'")


def matching(tokens, i):
    """The index of the bracket that closes the one at `i`."""
    closing = {'(': ')', '{': '}', '[': ']'}[tokens[i].text]
    depth = 0
    for j in range(i, len(tokens)):
        depth += (tokens[j].text == tokens[i].text) - (tokens[j].text == closing)
        if depth == 0:
            return j
    raise ValueError('a bracket is not closed')


def condition_mutants(source, tokens):
    for i, token in enumerate(tokens[:-1]):
        if token.text in ('if', 'while') and tokens[i + 1].text == '(':
            begin, end = tokens[i + 1].end, tokens[matching(tokens, i + 1)].begin
            yield Mutant(begin, end, f'!({source[begin:end]})')
            if token.text == 'if':
                yield Mutant(begin, end, f'{source[begin:end]} || true')
            yield Mutant(begin, end, f'({source[begin:end]}) && false')


def is_code_block(tokens, i):
    """Whether the brace at `i` holds statements: it follows a parameter list or a condition."""
    before = tokens[i - 1].text if i > 0 else ''
    return before in (')', 'else', 'do', 'const', 'noexcept', 'override') or (
        before == '}' and tokens[i - 2].text in ('{', ')'))


def statements(tokens, opening):
    """The simple statements of the block that `opening` opens, neighbours in one list."""
    run, start, i = [], opening + 1, opening + 1
    end = matching(tokens, opening)
    while i < end:
        text = tokens[i].text
        if text in '([{':
            closed = matching(tokens, i)
            if text == '{' and is_code_block(tokens, i) and tokens[closed + 1].text not in ';,).':
                yield run
                run, start = [], closed + 1
            i = closed
        elif text == ';':
            if tokens[start].text not in DECLARATIONS:
                run.append((tokens[start], tokens[i]))
            start = i + 1
        i += 1
    yield run


def statement_mutants(source, tokens):
    for i, token in enumerate(tokens):
        if token.text != '{' or not is_code_block(tokens, i):
            continue
        for run in statements(tokens, i):
            for first, last in run:
                # A function that ends without its return is no other program, but none at all.
                if first.text != 'return' or not ends_function(tokens, last):
                    yield Mutant(first.begin, last.end, ';')
                if first.text == 'return' and not is_empty_value(source[first.end:last.begin]):
                    yield Mutant(first.begin, last.end, 'return {};')
            for (a, b), (c, d) in zip(run, run[1:]):
                if 'return' not in (a.text, c.text):
                    swapped = (source[c.begin:d.end] + source[b.end:c.begin] +
                               source[a.begin:b.end])
                    yield Mutant(a.begin, d.end, swapped)


def is_empty_value(text):
    return text.strip() in ('', '{}', 'nullptr', 'false', '0', 'VMETRICS_OK')


def ends_function(tokens, last):
    i = tokens.index(last)
    return tokens[i + 1].text == '}' and (i + 2 == len(tokens) or not is_inside(tokens, i + 2))


def is_inside(tokens, i):
    """Whether a statement may stand at `i`: the block around it is one of statements."""
    depth = 0
    for j in range(i - 1, -1, -1):
        depth += (tokens[j].text == '}') - (tokens[j].text == '{')
        if depth < 0:
            return is_code_block(tokens, j)
    return False


def mutants_of(source):
    """All mutants of `source`, in the order of their places, each once."""
    tokens = tokens_of(source)
    found = {*token_mutants(source, tokens), *condition_mutants(source, tokens),
             *statement_mutants(source, tokens)}
    return sorted(mutant for mutant in found
                  if source[mutant.begin:mutant.end] != mutant.text)
