-- Neovim 0.7: what a person does by keys, by the functions that the keys run.
local mod = vim.env.MOD

local function fail(sentence)
  io.stderr:write(sentence .. '\n')
  vim.cmd('cquit 1')
end

local function wait(what, condition)
  if not vim.wait(20000, condition, 20) then
    local told = {}
    for _, each in ipairs(vim.diagnostic.get()) do
      table.insert(told, each.bufnr .. ':' .. (each.lnum + 1) .. ' ' .. tostring(each.code or each.message))
    end
    fail('waited in vain for ' .. what .. '; there is ' .. table.concat(told, ', '))
  end
end

local function session()
  vim.o.fileencodings = 'cp1252'
  vim.o.hidden = true
  vim.o.swapfile = false
  local client = vim.lsp.start_client({ name = 'tessel', cmd = { vim.env.TESSEL, 'lsp' }, root_dir = mod })
  local buffers = {}
  for _, name in ipairs({ 'USER.CON', 'DEFS.CON', 'GAME.CON' }) do
    vim.cmd('edit ' .. mod .. '/' .. name)
    buffers[name] = vim.api.nvim_get_current_buf()
    vim.lsp.buf_attach_client(buffers[name], client)
  end
  wait('the server', function() return vim.lsp.get_client_by_id(client).initialized end)

  local function has(name, code)
    for _, each in ipairs(vim.diagnostic.get(buffers[name])) do
      if (each.user_data or {}).lsp and each.user_data.lsp.code == code or each.code == code then return each end
    end
  end
  local function go(name, line, column)
    vim.cmd('buffer ' .. buffers[name])
    vim.api.nvim_win_set_cursor(0, { line, column })
  end
  local function find(name, pattern)
    for number, line in ipairs(vim.api.nvim_buf_get_lines(buffers[name], 0, -1, false)) do
      local column = line:find(pattern)
      if column then return number, column - 1 end
    end
    fail(pattern .. ' is not in ' .. name)
  end
  -- Chooses the action of the menu that begins so.
  local function act(title)
    local chosen = false
    vim.ui.select = function(items, _, on_choice)
      for _, item in ipairs(items) do
        if vim.startswith(item[2].title, title) then
          chosen = true
          return on_choice(item)
        end
      end
      fail('there is no action "' .. title .. '" among ' .. vim.inspect(items))
    end
    local before = vim.api.nvim_buf_get_changedtick(0)
    vim.lsp.buf.code_action()
    wait('the action ' .. title, function()
      return chosen and vim.api.nvim_buf_get_changedtick(0) ~= before
    end)
  end
  local function repair(name, code, title)
    wait(code, function() return has(name, code) end)
    local diagnostic = has(name, code)
    go(name, diagnostic.lnum + 1, diagnostic.col)
    act(title)
    wait(code .. ' to go', function() return not has(name, code) end)
  end

  repair('DEFS.CON', 'open-comment', 'Close the comment')
  repair('USER.CON', 'doubled-define', 'Take the line out')
  repair('USER.CON', 'panel-missing', 'Insert the line of the template')

  go('USER.CON', 1, 0)
  act('Convert to 1.4/1.5')
  find('USER.CON', '^define QSIZE')

  go('USER.CON', find('USER.CON', '^define TROOPSTRENGTH'))
  act('Set value of TROOPSTRENGTH to 50')
  local tick = vim.api.nvim_buf_get_changedtick(buffers['USER.CON'])
  vim.lsp.buf.execute_command({
    command = 'tessel.setValue',
    arguments = { vim.uri_from_bufnr(buffers['USER.CON']), 'Pig Cop', '90' },
  })
  wait('the value', function() return vim.api.nvim_buf_get_changedtick(buffers['USER.CON']) ~= tick end)

  local function ask(method, name, pattern)
    go(name, find(name, pattern))
    local params = vim.lsp.util.make_position_params()
    params.context = { includeDeclaration = true }
    local answers = vim.lsp.buf_request_sync(buffers[name], method, params, 10000)
    return (answers and answers[client] or {}).result
  end
  local hover = ask('textDocument/hover', 'GAME.CON', 'BLOOD$')
  if not (hover and hover.contents.value:find('define BLOOD')) then fail('no hover: ' .. vim.inspect(hover)) end
  local definition = ask('textDocument/definition', 'GAME.CON', 'BLOOD$')
  if not (definition and definition[1].uri:find('DEFS.CON')) then fail('no definition: ' .. vim.inspect(definition)) end
  if #ask('textDocument/references', 'GAME.CON', 'BLOOD$') < 2 then fail('no references') end
  if #ask('textDocument/documentSymbol', 'GAME.CON', 'BLOOD$') < 10 then fail('no symbols') end
  if #ask('textDocument/completion', 'GAME.CON', 'LOOD$').items < 1 then fail('no completion') end

  go('GAME.CON', find('GAME.CON', 'BLOOD$'))
  vim.lsp.buf.rename('GORE')
  wait('the name in both files', function()
    local function holds(name)
      return table.concat(vim.api.nvim_buf_get_lines(buffers[name], 0, -1, false), '\n'):find('GORE')
    end
    return holds('GAME.CON') and holds('DEFS.CON')
  end)
  wait('a clean mod', function() return #vim.diagnostic.get() == 0 end)
  vim.cmd('wall')
  vim.lsp.get_client_by_id(client).stop()
  wait('the end of the server', function() return vim.lsp.get_client_by_id(client) == nil end)
end

vim.defer_fn(function()
  local ok, problem = xpcall(session, debug.traceback)
  if not ok then fail(problem) end
  vim.cmd('qall!')
end, 10)
